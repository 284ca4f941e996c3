#include <support/mapshapes.h>
#include <support/testmain.h>

#include <isubsetting.h>
#include <jobeditor/mapcontrol.h>
#include <jobeditor/mappicture.h>
#include <mapviewlayermanager.h>
#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>

using JedTest::MapShapes;
using JedTest::RecordingMap;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::MapViewLayerManager;
using Session::JobSession;
using Session::PluginHost;

namespace {
const QString PROGRAM = JED_BINARY_DIR "/bin/mapview";

QString serverName()
{
    return QString("jed-editor-map-%1").arg(QCoreApplication::applicationPid());
}
} // namespace

class TstEditorMap : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void stateIsTold();
    void openMapNeedsNoOther();
    void missingProgramIsTold();
    void programIsStartedAndEndsWithTheEditor();
    void programOfSomebodyElseStays();
    void pictureShowsTheRegions();
    void eachMoveIsAStepOfItsOwn();
    void moveIsNoPartOfTheEditBefore();
    void deletionAndMoveAreTwoSteps();

private:
    static MapViewLayerManager* manager()
    {
        return QCoreApplication::instance()->findChild<MapViewLayerManager*>();
    }
    QString state() const { return m_window->findChild<QLabel*>("mapState")->text(); }
    void openJob(const QString& name);
    void moveOnMap(const QString& name, const QVector<QPointF>& points);
    QString west(const QString& name);

    std::unique_ptr<PluginHost> m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<RecordingMap> m_map;
    std::unique_ptr<MapShapes> m_shapes;
    MapControl* m_control = nullptr; // The window's.
};

void TstEditorMap::initTestCase()
{
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QCoreApplication::setApplicationName(serverName());
    qputenv("JED_MAPVIEW", serverName().toUtf8());
    // What Qt never frees in the map program is not looked at here, where its exit code counts.
    qputenv("LSAN_OPTIONS", "detect_leaks=0");
    QString error;
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
}

void TstEditorMap::init()
{
    // As in the editor: the control is there before the plug-ins have to do with a map.
    m_host = std::make_unique<PluginHost>();
    m_host->load(PluginHost::defaultFolders());
    m_session = std::make_unique<JobSession>(m_host->factories());
    m_window = std::make_unique<QMainWindow>();
    m_control = new MapControl(m_window.get(), m_session.get(), "/nonexistent/mapview");
    m_window->show();
    m_map = std::make_unique<RecordingMap>(serverName());
    m_shapes = std::make_unique<MapShapes>(*m_map);
}

void TstEditorMap::cleanup()
{
    m_window.reset();
    m_session.reset();
    m_host.reset();
    m_map.reset();
    m_shapes.reset();
    QTRY_VERIFY(!manager()->isConnected());
}

void TstEditorMap::openJob(const QString& name)
{
    QVERIFY(m_map->start());
    QVERIFY(m_session->open(JED_SOURCE_DIR "/installation/Jobs/" + name + ".xml", nullptr));
    QTRY_VERIFY(!m_shapes->all().isEmpty());
}

void TstEditorMap::moveOnMap(const QString& name, const QVector<QPointF>& points)
{
    const int group = m_shapes->named(name).group;
    m_shapes->move(group, points);
    m_map->send(MAP_GROUP_RESIZED, group, points);
}

// The western edge of the region of a sub-job.
QString TstEditorMap::west(const QString& name)
{
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        ISubSetting* const subjob = m_session->settingAt({i});
        for (int k = 0; subjob && subjob->getDisplayName() == name && k < subjob->childCount(); ++k) {
            const QString text = subjob->child(k)->parameterSetText("DF_Settings");
            if (!text.isEmpty())
                return text.section("<West>", 1).section("</", 0, 0);
        }
    }
    return "no such region";
}

void TstEditorMap::stateIsTold()
{
    QCOMPARE(state(), QString("Map: none"));
    QVERIFY(m_map->start());
    QTRY_COMPARE(state(), QString("Map: linked"));
    m_map->stop();
    QTRY_COMPARE(state(), QString("Map: none"));
}

void TstEditorMap::openMapNeedsNoOther()
{
    QVERIFY(m_map->start());
    QTRY_COMPARE(state(), QString("Map: linked"));
    // With the program that does not exist, starting it would bring up a box.
    m_control->action()->trigger();
    QCOMPARE(m_window->statusBar()->currentMessage(), QString("The map is open in a window of its own."));
    QTest::qWait(50);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstEditorMap::missingProgramIsTold()
{
    QString told;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&told] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->text() + " " + box->informativeText();
            box->button(QMessageBox::Ok)->click();
        }
    });
    timer.start(10);
    QCOMPARE(m_control->action()->shortcut(), QKeySequence("Ctrl+M"));
    m_control->action()->trigger();
    QTRY_COMPARE(told,
                 QString("The map program could not be started. It is expected as /nonexistent/mapview. "
                         "Install it there, or start a map program by hand: the editor finds it by itself."));
}

void TstEditorMap::programIsStartedAndEndsWithTheEditor()
{
    const auto* const control = new MapControl(m_window.get(), m_session.get(), PROGRAM);
    control->action()->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(manager()->isConnected(), 20000);
    QCOMPARE(state(), QString("Map: linked"));
    control->action()->trigger(); // No second one, which would complain.
    m_window.reset();
}

void TstEditorMap::programOfSomebodyElseStays()
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(PROGRAM, QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(manager()->isConnected(), 20000);
    m_control->action()->trigger();
    m_window.reset();
    QTest::qWait(100);
    QVERIFY(manager()->isConnected());
    program.terminate();
    QVERIFY(program.waitForFinished(20000));
}

void TstEditorMap::pictureShowsTheRegions()
{
    const QTemporaryDir folder;
    QVERIFY(m_session->open(JED_SOURCE_DIR "/installation/Jobs/dfscan.xml", nullptr));
    QVERIFY(writeMapPicture(folder.filePath("with.png"), PROGRAM));
    m_session->begin(JEDVE::JOB_TYPE_DF_SCAN, "Empty");
    QTRY_VERIFY(!manager()->isConnected());
    QVERIFY(writeMapPicture(folder.filePath("without.png"), PROGRAM));
    const QImage with(folder.filePath("with.png"));
    const QImage without(folder.filePath("without.png"));
    QVERIFY(!with.isNull() && with.size() == without.size());
    QVERIFY(with != without);
    QVERIFY(!writeMapPicture(folder.filePath("none.png"), "/nonexistent/mapview"));
    QVERIFY(!writeMapPicture(folder.filePath("no/folder.png"), PROGRAM));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList({"with.png", "without.png"}));
}

void TstEditorMap::eachMoveIsAStepOfItsOwn()
{
    openJob("surveillance");
    const QString before = west("Harbour channels");
    for (int step = 1; step <= 3; ++step) {
        moveOnMap("Harbour channels", {{double(step), 55}, {5, 54}});
        QTRY_COMPARE(m_session->undoStack()->count(), step);
        QCOMPARE(west("Harbour channels"), QString::number(step));
    }
    for (const QString& text : {QString("2"), QString("1"), before}) {
        m_session->undoStack()->undo();
        QCOMPARE(west("Harbour channels"), text);
    }
    QVERIFY(!m_session->isModified());
}

void TstEditorMap::moveIsNoPartOfTheEditBefore()
{
    openJob("dfscan");
    ISubSetting* const node = m_session->settingAt({0})->settingAtTypePosition("DirectionFinding", 0);
    const QString before = node->parameterSetText("DF_Settings");
    QString edited = before;
    edited.replace("<QualityThreshold>75<", "<QualityThreshold>80<");
    QVERIFY(before != edited);
    // As an editor widget does it: a step when the event loop is reached.
    QVERIFY(node->setParameterSetText("DF_Settings", edited));
    moveOnMap("Beacons", {{0, 55}, {5, 54}});
    QTRY_COMPARE(west("Beacons"), QString("0"));
    QTRY_COMPARE(m_session->undoStack()->count(), 2);
    m_session->undoStack()->undo();
    QCOMPARE(node->parameterSetText("DF_Settings"), edited);
    m_session->undoStack()->undo();
    QCOMPARE(node->parameterSetText("DF_Settings"), before);
}

void TstEditorMap::deletionAndMoveAreTwoSteps()
{
    openJob("surveillance");
    moveOnMap("Harbour channels", {{1, 55}, {5, 54}});
    QTRY_COMPARE(m_session->undoStack()->count(), 1);
    const int group = m_shapes->named("Harbour channels").group;
    m_shapes->drop(group);
    m_map->send(MAP_GROUP_DELETED, group);
    QTRY_COMPARE(m_session->undoStack()->count(), 2);
    m_session->undoStack()->undo();
    QTRY_COMPARE(m_shapes->all().size(), 1);
    QCOMPARE(west("Harbour channels"), QString("1"));
}

JED_TEST_MAIN(TstEditorMap)
#include "tst_editormap.moc"
