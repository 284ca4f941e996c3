#include <support/testmain.h>

#include <isubsetting.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/recoverydialog.h>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/recovery.h>
#include <session/savefile.h>
#include <support/accessiblenames.h>

using JEDVEPLUGIN::ISubSetting;
using Session::Findings;
using Session::JobSession;
using Session::LeftJob;
using Session::PluginHost;
using Session::Recovery;

namespace {
const QString SEARCH_JOB = JED_SOURCE_DIR "/installation/Jobs/search.xml";

// A job editor without a person, that does some steps and then waits to be killed.
class KilledEditor
{
public:
    KilledEditor(const QTemporaryDir& home, const QString& steps)
    {
        const QString scenario = home.filePath("steps.txt");
        Session::saveFile(scenario, QString(steps + "\nwait 600\n").toUtf8(), nullptr);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", home.path());
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(JED_BINARY_DIR "/bin/jobeditor",
                        {"--batch", scenario, "--installation", JED_SOURCE_DIR "/installation"});
        m_folder = home.filePath("jobeditorve/jobeditor/recovery");
    }
    ~KilledEditor() { kill(); }

    // What a crash does.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    const QString& folder() const { return m_folder; }
    QStringList copies() const { return QDir(m_folder).entryList({"*.recovery"}, QDir::Files); }

private:
    QProcess m_process;
    QString m_folder;
};
} // namespace

class TstRecovery : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aCopyIsKeptSomeTimeAfterAChange();
    void aCopyIsKeptInTheMidstOfChanges();
    void theCopyGoesWithTheChanges_data();
    void theCopyGoesWithTheChanges();
    void theCopyHoldsEveryChange();
    void aLeftJobIsRecovered();
    void aJobThatWasNeverSavedIsRecovered();
    void aFileThatChangedMeanwhileIsNamed();
    void twoEditorsKeepTheirOwn();
    void rubbishIsNoJob_data();
    void rubbishIsNoJob();
    void interruptedSavesAreRemoved();
    void aFolderThatCannotBeMadeIsTold();
    void aKilledEditorLeavesItsJob();
    void theWindowRecovers();
    void theDialogDiscards();

private:
    QString folder() const { return m_home->filePath("recovery"); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
    // Leaves a changed job as a process would that is gone: without the lock.
    void leave(const QString& path, const QString& name);

    PluginHost m_host;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<Recovery> m_recovery;
};

void TstRecovery::initTestCase()
{
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QCoreApplication::setOrganizationName("jobeditorve");
    QCoreApplication::setApplicationName("jobeditor");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QString error;
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
}

void TstRecovery::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->path()));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_home->path());
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_recovery = std::make_unique<Recovery>(m_session.get(), folder());
    Findings findings;
    QVERIFY(m_session->open(SEARCH_JOB, &findings));
}

void TstRecovery::cleanup()
{
    m_recovery.reset();
    m_session.reset();
}

void TstRecovery::leave(const QString& path, const QString& name)
{
    const QString inUse = folder() + "/in-use";
    {
        Recovery recovery(m_session.get(), inUse);
        Findings findings;
        QVERIFY(m_session->recover(m_session->draft(), path, &findings));
        QVERIFY(m_session->rename(m_session->settingAt({0}), name));
        QVERIFY(recovery.keep());
        const QString copy = QDir(inUse).entryList({"*.recovery"}, QDir::Files).value(0);
        QVERIFY(QFile::copy(inUse + '/' + copy, QString("%1/%2.recovery").arg(folder(), name)));
    }
    QVERIFY(QDir().rmdir(inUse));
}

void TstRecovery::aCopyIsKeptSomeTimeAfterAChange()
{
    m_recovery->setDelays(50, 60000);
    QVERIFY(!m_recovery->keep());
    QVERIFY(files().isEmpty());
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Changed"));
    QVERIFY(files().isEmpty());
    QTRY_COMPARE(files().filter(QRegularExpression("\\.recovery$")).size(), 1);
    // Whoever holds the lock is alive: this process.
    QVERIFY(Recovery::leftJobs(folder()).isEmpty());
}

void TstRecovery::aCopyIsKeptInTheMidstOfChanges()
{
    m_recovery->setDelays(60000, 200);
    for (int i = 0; i < 100 && files().isEmpty(); ++i) {
        QVERIFY(m_session->rename(m_session->settingAt({0}), QString("Changed %1").arg(i)));
        QTest::qWait(20);
    }
    QVERIFY(!files().isEmpty());
}

void TstRecovery::theCopyGoesWithTheChanges_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"saved", "undone", "another job", "end of the program"})
        QTest::newRow(way) << QString(way);
}

void TstRecovery::theCopyGoesWithTheChanges()
{
    QFETCH(QString, way);
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Changed"));
    QVERIFY(m_recovery->keep());
    QCOMPARE(files().size(), 2);
    Findings findings;
    if (way == "saved")
        QVERIFY(m_session->save(m_home->filePath("job.xml"), &findings));
    else if (way == "undone")
        m_session->undoStack()->undo();
    else if (way == "another job")
        QVERIFY(m_session->open(SEARCH_JOB, &findings));
    else
        m_recovery.reset();
    QCOMPARE(files(), QStringList());
}

void TstRecovery::theCopyHoldsEveryChange()
{
    const auto isInStep = [this] {
        if (!m_recovery->keep())
            return false;
        const QStringList copies = QDir(folder()).entryList({"*.recovery"}, QDir::Files);
        QByteArray bytes;
        return Session::readFile(folder() + '/' + copies.value(0), &bytes, nullptr) &&
               bytes.mid(bytes.indexOf('\n') + 1) == m_session->draft();
    };
    ISubSetting* const first = m_session->settingAt({0});
    QVERIFY(m_session->rename(first, "Renamed"));
    QVERIFY(isInStep());
    QVERIFY(m_session->duplicate(first));
    QVERIFY(isInStep());
    ISubSetting* const last = m_session->settingAt({m_session->topLevelCount() - 1});
    QVERIFY(m_session->remove(last->child(0)));
    QVERIFY(isInStep());
    const QStringList types = m_session->addableTypes(m_session->factoryOf(last), last);
    QVERIFY(m_session->add(m_session->factoryOf(last), types.value(0), last, nullptr));
    QVERIFY(isInStep());
    QVERIFY(m_session->move(nullptr, 0, 2));
    QVERIFY(isInStep());
    QVERIFY(m_session->setParameterSet(first, "SubJob", last->parameterSetText("SubJob")));
    QVERIFY(isInStep());
    QVERIFY(m_session->remove(first));
    QVERIFY(isInStep());
    while (m_session->undoStack()->index() > 1) {
        m_session->undoStack()->undo();
        QVERIFY(isInStep());
    }
}

void TstRecovery::aLeftJobIsRecovered()
{
    const QString path = m_home->filePath("job.xml");
    QVERIFY(Session::saveFile(path, m_session->draft(), nullptr));
    const QByteArray saved = m_session->draft();
    leave(path, "Left");
    const QByteArray changed = m_session->draft();
    QVERIFY(changed != saved);
    m_session->begin(JEDVE::JOB_TYPE_SEARCH, "Other");

    QList<LeftJob> left = Recovery::leftJobs(folder());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left[0].path, path);
    QCOMPARE(left[0].written.timeSpec(), Qt::UTC);
    QVERIFY(qAbs(left[0].written.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    Findings findings;
    QVERIFY(m_recovery->recover(left[0], &findings));
    QVERIFY2(findings.isEmpty(), qPrintable(findings.value(0).toText()));
    QVERIFY(m_session->isModified());
    QCOMPARE(m_session->document().path(), path);
    QCOMPARE(QString(m_session->draft()), QString(changed));
    QCOMPARE(m_session->settingAt({0})->getDisplayName(), QString("Left"));
    // It is kept on, under the lock of this process.
    left.clear();
    QCOMPARE(files().filter(QRegularExpression("\\.recovery$")).size(), 1);
    QVERIFY(Recovery::leftJobs(folder()).isEmpty());
    QVERIFY(m_session->save(path, &findings));
    QVERIFY(!m_session->isModified());
    QCOMPARE(files(), QStringList());
}

void TstRecovery::aJobThatWasNeverSavedIsRecovered()
{
    m_session->document().begin(JEDVE::JOB_TYPE_SEARCH, "Never saved");
    leave(QString(), "Never");
    const QList<LeftJob> left = Recovery::leftJobs(folder());
    QCOMPARE(left.size(), 1);
    QVERIFY(left[0].path.isEmpty());
    QVERIFY(!left[0].savedTime.isValid());
    QCOMPARE(left[0].name, QString("Never saved"));
    Findings findings;
    QVERIFY(m_recovery->recover(left[0], &findings));
    QVERIFY(m_session->document().path().isEmpty());
    QVERIFY(m_session->isModified());
}

void TstRecovery::aFileThatChangedMeanwhileIsNamed()
{
    const QString path = m_home->filePath("job.xml");
    QVERIFY(Session::saveFile(path, m_session->draft(), nullptr));
    leave(path, "Left");
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    file.close();
    Findings findings;
    QVERIFY(m_recovery->recover(Recovery::leftJobs(folder()).value(0), &findings));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings[0].place, path);
}

void TstRecovery::twoEditorsKeepTheirOwn()
{
    leave(QString(), "Left");
    QVERIFY(m_recovery->keep());
    QCOMPARE(files().filter(QRegularExpression("\\.recovery$")).size(), 2);
    const QList<LeftJob> offered = Recovery::leftJobs(folder());
    QCOMPARE(offered.size(), 1);
    // As long as one editor offers it, another one does not.
    QVERIFY(Recovery::leftJobs(folder()).isEmpty());
    Recovery::discard(offered[0]);
    QCOMPARE(files().filter(QRegularExpression("\\.recovery$")).size(), 1);
}

void TstRecovery::rubbishIsNoJob_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isOffered");
    const QByteArray head = R"({"format":"job recovery 1","path":"","name":"x","written":"","saved":""})";
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no head") << QByteArray("<Job/>") << false;
    QTest::newRow("another head") << QByteArray("{\"format\":\"else\"}\n<Job/>") << false;
    QTest::newRow("no end of line") << head << false;
    QTest::newRow("nothing behind the head") << QByteArray(head + '\n') << true;
    QTest::newRow("no job behind the head") << QByteArray(head + "\nrubbish") << true;
}

void TstRecovery::rubbishIsNoJob()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isOffered);
    const QByteArray before = m_session->draft();
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(Session::saveFile(folder() + "/a.recovery", content, nullptr));
    const QList<LeftJob> left = Recovery::leftJobs(folder());
    QCOMPARE(left.size(), int(isOffered));
    Findings findings;
    QVERIFY(!isOffered || !m_recovery->recover(left[0], &findings));
    QCOMPARE(findings.size(), int(isOffered));
    QCOMPARE(m_session->draft(), before);
    // Nobody else's file is touched.
    QVERIFY(QFile::exists(folder() + "/a.recovery"));
}

void TstRecovery::interruptedSavesAreRemoved()
{
    leave(QString(), "Left");
    for (const char* name : {"Left.recovery.AbCdEf", "notes.txt"})
        QVERIFY(Session::saveFile(folder() + '/' + name, "x", nullptr));
    // Of a process that ended before it wrote anything; no process has such a number.
    const QString lock = "4194999\njobeditor\n" + QSysInfo::machineHostName() + "\n";
    QVERIFY(Session::saveFile(folder() + "/gone.recovery.lock", lock.toUtf8(), nullptr));
    QCOMPARE(Recovery::leftJobs(folder()).size(), 1);
    QCOMPARE(files(), (QStringList{"Left.recovery", "notes.txt"}));
}

void TstRecovery::aFolderThatCannotBeMadeIsTold()
{
    QVERIFY(Session::saveFile(m_home->filePath("recovery"), "a file", nullptr));
    QSignalSpy failed(m_recovery.get(), &Recovery::failed);
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Changed"));
    QVERIFY(!m_recovery->keep());
    QCOMPARE(failed.size(), 1);
}

void TstRecovery::aKilledEditorLeavesItsJob()
{
    KilledEditor editor(*m_home, "new Search \"Night watch\"\nadd HT720/HF-1\n"
                                 "set TunerSettings/CenterFrequency 8M");
    QTRY_VERIFY_WITH_TIMEOUT(!editor.copies().isEmpty(), 120000);
    QVERIFY(editor.isRunning());
    QVERIFY(Recovery::leftJobs(editor.folder()).isEmpty());
    editor.kill();
    const QList<LeftJob> left = Recovery::leftJobs(editor.folder());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left[0].name, QString("Night watch"));
    Findings findings;
    QVERIFY(m_recovery->recover(left[0], &findings));
    QCOMPARE(m_session->topLevelCount(), 1);
    QVERIFY(m_session->draft().contains("<CenterFrequency>8000000</CenterFrequency>"));
    Recovery::discard(left[0]);
    QCOMPARE(QDir(editor.folder()).entryList(QDir::Files), QStringList());
}

void TstRecovery::theWindowRecovers()
{
    const QString path = m_home->filePath("job.xml");
    QVERIFY(Session::saveFile(path, m_session->draft(), nullptr));
    leave(path, "Left");
    m_recovery.reset();
    QVERIFY(QDir().mkpath(Recovery::defaultFolder()));
    QVERIFY(QFile::rename(folder() + "/Left.recovery", Recovery::defaultFolder() + "/Left.recovery"));
    EditorWindow window(&m_host, m_session.get());
    window.show();
    QStringList nameless;
    QTimer::singleShot(0, &window, [&nameless] {
        QWidget* const dialog = QApplication::activeModalWidget();
        nameless = JedTest::namelessControls(dialog);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QVERIFY(window.offerRecovery());
    QCOMPARE(nameless, QStringList());
    QVERIFY(window.isWindowModified());
    QVERIFY(window.windowTitle().startsWith("job.xml"));
    QCOMPARE(m_session->settingAt({0})->getDisplayName(), QString("Left"));
    m_session->undoStack()->setClean();
    QVERIFY(!window.offerRecovery());
}

void TstRecovery::theDialogDiscards()
{
    leave(QString(), "First");
    leave(QString(), "Second");
    RecoveryDialog dialog(Recovery::leftJobs(folder()), nullptr);
    auto* const list = dialog.findChild<QTreeWidget*>("leftJobs");
    QCOMPARE(list->topLevelItemCount(), 2);
    QVERIFY(dialog.chosen().file.endsWith("Second.recovery"));
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(list, Qt::Key_Down);
    QVERIFY(dialog.chosen().file.endsWith("First.recovery"));
    QTimer::singleShot(0, &dialog, [] {
        qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click();
    });
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == "&Discard...")
            QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(QDir(folder()).entryList({"*.recovery"}, QDir::Files), QStringList{"Second.recovery"});
    QVERIFY(dialog.isVisible());
}

JED_TEST_MAIN(TstRecovery)
#include "tst_recovery.moc"
