#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QTemporaryDir>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/savefile.h>
#include <session/sessionrunner.h>
#include <session/settingtreemodel.h>

using JEDVEPLUGIN::ISubSetting;
using Session::Findings;
using Session::JobSession;
using Session::PluginHost;
using Session::SessionRunner;
using Session::SettingPath;
using Session::SettingTreeModel;

namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";

// All settings of a job in display order.
QVector<ISubSetting*> allSettings(const JobSession& session)
{
    QVector<ISubSetting*> result;
    const std::function<void(ISubSetting*)> walk = [&](ISubSetting* setting) {
        result.append(setting);
        for (int i = 0; i < setting->childCount(); ++i)
            walk(setting->child(i));
    };
    for (int i = 0; i < session.topLevelCount(); ++i) {
        if (session.topLevel(i).setting)
            walk(session.topLevel(i).setting);
    }
    return result;
}
} // namespace

class TstJobSession : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup() { m_session.reset(); }

    void pluginsAreFound();
    void filesOfTheFolderHaveVerdicts();
    void unknownFolderIsEmpty();
    void exampleIsOpened_data() { examples(); }
    void exampleIsOpened();
    void exampleIsSavedUnchanged_data() { examples(); }
    void exampleIsSavedUnchanged();
    void unclaimedSubjobsStay();
    void unreadableFileLeavesTheJob();
    void newJobIsEmpty();
    void deletionIsUndone();
    void duplicateIsUndone();
    void renamingIsUndone();
    void anEditAfterARenamingIsUndoneAlone();
    void moveIsUndone_data();
    void moveIsUndone();
    void editIsUndoneAndMerged();
    void pasteIsUndone();
    void pasteOfRubbishIsRefused();
    void addableTypesKeepToTheLimits();
    void modelShowsTheJob();
    void modelFollowsEveryChange();
    void modelDropsWithinAParent();
    void closedPageIsUndone();
    void readOnlyJobCannotBeChanged();

    void scenarioIsRun();
    void scenarioStopsAtTheFirstFault_data();
    void scenarioStopsAtTheFirstFault();

private:
    void examples();
    QByteArray text();
    void open(const QString& name);

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    QTemporaryDir m_folder;
};

void TstJobSession::initTestCase()
{
    QString error;
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
}

void TstJobSession::init()
{
    m_session = std::make_unique<JobSession>(m_host.factories());
}

void TstJobSession::examples()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"dfscan", "measurement", "production", "search", "surveillance"})
        QTest::newRow(name) << QString(name);
}

void TstJobSession::open(const QString& name)
{
    Findings findings;
    QVERIFY(m_session->open(EXAMPLES + name + ".xml", &findings));
    QVERIFY(m_session->topLevelCount() > 0);
}

QByteArray TstJobSession::text()
{
    Findings findings;
    [&] { QVERIFY(m_session->compose(&findings)); }();
    return m_session->document().text();
}

void TstJobSession::pluginsAreFound()
{
    QVERIFY(m_host.factory("Search"));
    QVERIFY(m_host.factory("search"));
    QVERIFY(!m_host.factory("Minimal"));
    QVERIFY(!m_host.factory("nobody"));
    for (const auto& plugin : m_host.plugins())
        QVERIFY2(plugin.report.isAccepted(), qPrintable(plugin.report.text));
}

void TstJobSession::filesOfTheFolderHaveVerdicts()
{
    QTemporaryDir folder;
    QString error;
    QVERIFY(Session::saveFile(folder.filePath("a.so"), "no library", &error));
    QVERIFY(Session::saveFile(folder.filePath("b.so"), QByteArray(), &error));
    QFile::link(folder.filePath("missing"), folder.filePath("c.so"));
    PluginHost host;
    host.load({folder.path()});
    QCOMPARE(host.plugins().size(), size_t(3));
    QCOMPARE(host.plugins()[0].report.verdict, LIBRARY_NO_LIBRARY);
    QCOMPARE(host.plugins()[1].report.verdict, LIBRARY_EMPTY);
    QCOMPARE(host.plugins()[2].report.verdict, LIBRARY_DANGLING_LINK);
    QVERIFY(host.factories().isEmpty());
}

void TstJobSession::unknownFolderIsEmpty()
{
    PluginHost host;
    host.load({"/nonexistent/folder"});
    QVERIFY(host.plugins().empty());
}

void TstJobSession::exampleIsOpened()
{
    QFETCH(QString, name);
    open(name);
    QCOMPARE(m_session->topLevelCount(), m_session->document().job().GetSubjob().size());
    QVERIFY(!m_session->isModified());
    for (ISubSetting* setting : allSettings(*m_session)) {
        QCOMPARE(m_session->settingAt(m_session->pathOf(setting)), setting);
        QVERIFY(m_session->factoryOf(setting));
    }
}

void TstJobSession::exampleIsSavedUnchanged()
{
    QFETCH(QString, name);
    open(name);
    Findings findings;
    const QString path = m_folder.filePath(name + ".xml");
    QVERIFY(m_session->save(path, &findings));
    QByteArray before;
    QByteArray after;
    QString error;
    QVERIFY(Session::readFile(EXAMPLES + name + ".xml", &before, &error));
    QVERIFY(Session::readFile(path, &after, &error));
    QCOMPARE(QString(after), QString(before));
}

void TstJobSession::unclaimedSubjobsStay()
{
    m_session = std::make_unique<JobSession>(QList<JobSession::Factory*>());
    open("search");
    QCOMPARE(m_session->topLevel(0).factory, nullptr);
    QVERIFY(!m_session->topLevel(0).reason.isEmpty());
    QVERIFY(!m_session->settingAt({0}));
    QByteArray before;
    QString error;
    QVERIFY(Session::readFile(EXAMPLES + "search.xml", &before, &error));
    QCOMPARE(QString(text()), QString(before));
}

void TstJobSession::unreadableFileLeavesTheJob()
{
    open("search");
    const QByteArray before = text();
    Findings findings;
    QVERIFY(!m_session->open(m_folder.filePath("missing.xml"), &findings));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(text(), before);
}

void TstJobSession::newJobIsEmpty()
{
    QSignalSpy replaced(m_session.get(), &JobSession::jobReplaced);
    m_session->begin(JEDVE::JOB_TYPE_SEARCH, "Morning");
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(m_session->topLevelCount(), 0);
    QCOMPARE(int(m_session->jobType()), int(JEDVE::JOB_TYPE_SEARCH));
    QVERIFY(!m_session->activeFactories().isEmpty());
    QVERIFY(!m_session->isModified());
}

void TstJobSession::deletionIsUndone()
{
    open("search");
    const QByteArray before = text();
    const int count = m_session->topLevelCount();
    QVERIFY(m_session->remove(m_session->settingAt({0})));
    QCOMPARE(m_session->topLevelCount(), count - 1);
    QVERIFY(m_session->isModified());
    const QByteArray after = text();
    QVERIFY(after != before);
    m_session->undoStack()->undo();
    QCOMPARE(QString(text()), QString(before));
    m_session->undoStack()->redo();
    QCOMPARE(QString(text()), QString(after));
}

void TstJobSession::duplicateIsUndone()
{
    open("search");
    const QByteArray before = text();
    QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    const QByteArray after = text();
    m_session->undoStack()->undo();
    QCOMPARE(QString(text()), QString(before));
    m_session->undoStack()->redo();
    QCOMPARE(QString(text()), QString(after));
}

void TstJobSession::renamingIsUndone()
{
    open("search");
    ISubSetting* const setting = m_session->settingAt({0});
    const QString before = setting->getDisplayName();
    QVERIFY(m_session->rename(setting, "Another name"));
    QVERIFY(!m_session->rename(setting, "Another name"));
    QCOMPARE(setting->getDisplayName(), QString("Another name"));
    m_session->undoStack()->undo();
    QCOMPARE(setting->getDisplayName(), before);
}

void TstJobSession::anEditAfterARenamingIsUndoneAlone()
{
    open("search");
    ISubSetting* const setting = m_session->settingAt({0});
    QVERIFY(m_session->rename(setting, "Another name"));
    const QString before = setting->parameterSetText("SubJob");
    QString changed = before;
    changed.replace(QRegularExpression("<StartupMode>\\w+"), "<StartupMode>Permanent");
    if (changed == before)
        changed.replace("<StartupMode>Permanent", "<StartupMode>Manual");
    QVERIFY(m_session->setParameterSet(setting, "SubJob", changed));
    QCOMPARE(m_session->undoStack()->count(), 2);
    m_session->undoStack()->undo();
    QCOMPARE(setting->parameterSetText("SubJob"), before);
}

void TstJobSession::moveIsUndone_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("to the end") << 0 << 3;
    QTest::newRow("one down") << 0 << 2;
    QTest::newRow("to the front") << 2 << 0;
    QTest::newRow("one up") << 2 << 1;
}

void TstJobSession::moveIsUndone()
{
    QFETCH(int, from);
    QFETCH(int, to);
    open("search");
    while (m_session->topLevelCount() < 3)
        QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    const QByteArray before = text();
    ISubSetting* const setting = m_session->settingAt({from});
    QVERIFY(m_session->move(nullptr, from, to));
    QCOMPARE(m_session->topLevelIndex(setting), to > from ? to - 1 : to);
    m_session->undoStack()->undo();
    QCOMPARE(QString(text()), QString(before));
    QVERIFY(!m_session->move(nullptr, from, from));
    QVERIFY(!m_session->move(nullptr, from, from + 1));
    QVERIFY(!m_session->move(nullptr, -1, 1));
    QVERIFY(!m_session->move(nullptr, 0, 99));
}

void TstJobSession::editIsUndoneAndMerged()
{
    open("search");
    ISubSetting* tuner = nullptr;
    for (ISubSetting* setting : allSettings(*m_session)) {
        if (setting->parameterSetNames().contains("TunerSettings"))
            tuner = setting;
    }
    QVERIFY(tuner);
    const QByteArray before = text();
    const int steps = m_session->undoStack()->count();
    const auto shift = [&] {
        QString xml = tuner->parameterSetText("TunerSettings");
        const QRegularExpressionMatch match = QRegularExpression("<CenterFrequency>(\\d+)").match(xml);
        const qint64 frequency = match.captured(1).toLongLong() + 1000;
        xml.replace(match.captured(0), QString("<CenterFrequency>%1").arg(frequency));
        return m_session->setParameterSet(tuner, "TunerSettings", xml);
    };
    for (int i = 0; i < 3; ++i)
        QVERIFY(shift());
    const QString merged = tuner->parameterSetText("TunerSettings");
    QCOMPARE(m_session->undoStack()->count(), steps + 1);
    m_session->endEditStep();
    QVERIFY(shift());
    QCOMPARE(m_session->undoStack()->count(), steps + 2);
    m_session->undoStack()->undo();
    QCOMPARE(tuner->parameterSetText("TunerSettings"), merged);
    m_session->undoStack()->undo();
    QCOMPARE(QString(text()), QString(before));
    QVERIFY(!m_session->isModified());
}

void TstJobSession::pasteIsUndone()
{
    open("search");
    const QByteArray before = text();
    const QString copied = m_session->textOf(m_session->settingAt({0}));
    QVERIFY(!copied.isEmpty());
    QVERIFY(m_session->paste(copied, nullptr));
    m_session->undoStack()->undo();
    QCOMPARE(QString(text()), QString(before));
}

void TstJobSession::pasteOfRubbishIsRefused()
{
    open("search");
    for (const char* rubbish : {"", "rubbish", "<Job/>"})
        QVERIFY(!m_session->paste(rubbish, nullptr));
    QCOMPARE(m_session->undoStack()->count(), 0);
}

void TstJobSession::addableTypesKeepToTheLimits()
{
    open("search");
    for (ISubSetting* setting : allSettings(*m_session)) {
        JobSession::Factory* const factory = m_session->factoryOf(setting);
        for (const QString& type : m_session->addableTypes(factory, setting)) {
            QVERIFY(factory->isAppendable(setting, type));
            QVERIFY(setting->typeCount(type) < factory->getMaxCount(type));
        }
        QVERIFY(!m_session->add(factory, "no such type", setting, nullptr));
    }
    m_host.factory("Search")->setReadOnly(true);
    QVERIFY(m_session->addableTypes(m_host.factory("Search"), nullptr).isEmpty());
    m_host.factory("Search")->setReadOnly(false);
}

void TstJobSession::modelShowsTheJob()
{
    SettingTreeModel model(m_session.get());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    open("search");
    QCOMPARE(model.rowCount(), m_session->topLevelCount());
    for (ISubSetting* setting : allSettings(*m_session)) {
        const QModelIndex index = model.indexOf(setting);
        QVERIFY(index.isValid());
        QCOMPARE(model.settingOf(index), setting);
        QCOMPARE(index.data().toString(), setting->getDisplayName());
        QCOMPARE(index.data(SettingTreeModel::TYPE_ROLE).toString(), setting->getSettingType());
        QCOMPARE(model.rowCount(index), setting->childCount());
    }
}

void TstJobSession::modelFollowsEveryChange()
{
    SettingTreeModel model(m_session.get());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    open("search");
    const auto isInStep = [&] {
        QVector<ISubSetting*> shown;
        const std::function<void(const QModelIndex&)> walk = [&](const QModelIndex& index) {
            if (index.isValid())
                shown.append(model.settingOf(index));
            for (int row = 0; row < model.rowCount(index); ++row)
                walk(model.index(row, 0, index));
        };
        walk(QModelIndex());
        return shown == allSettings(*m_session);
    };
    QVERIFY(isInStep());
    QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    QVERIFY(isInStep());
    QVERIFY(m_session->move(nullptr, 0, 2));
    QVERIFY(isInStep());
    QVERIFY(m_session->remove(m_session->settingAt({0})));
    QVERIFY(isInStep());
    while (m_session->undoStack()->canUndo()) {
        m_session->undoStack()->undo();
        QVERIFY(isInStep());
    }
}

void TstJobSession::modelDropsWithinAParent()
{
    SettingTreeModel model(m_session.get());
    open("search");
    ISubSetting* const first = m_session->settingAt({0});
    m_session->duplicate(first);
    const std::unique_ptr<QMimeData> data(model.mimeData({model.indexOf(first)}));
    QVERIFY(model.canDropMimeData(data.get(), Qt::MoveAction, 2, 0, QModelIndex()));
    QVERIFY(!model.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, model.indexOf(first)));
    model.dropMimeData(data.get(), Qt::MoveAction, 2, 0, QModelIndex());
    QCOMPARE(m_session->topLevelIndex(first), 1);
    const int count = m_session->topLevelCount();
    QVERIFY(model.dropMimeData(data.get(), Qt::CopyAction, -1, 0, QModelIndex()));
    QCOMPARE(m_session->topLevelCount(), count + 1);
    QMimeData foreign;
    foreign.setData("application/x-jobeditor-setting-place", "17/0");
    QVERIFY(!model.canDropMimeData(&foreign, Qt::MoveAction, 0, 0, QModelIndex()));
}

void TstJobSession::closedPageIsUndone()
{
    open("production");
    const QByteArray before = text();
    JobSession::Setting* node = nullptr;
    JobSession::Setting* const subjob = m_session->settingAt({0});
    for (int i = 0; i < subjob->childCount(); ++i) {
        if (subjob->child(i)->parameterSetNames().size() > 1)
            node = subjob->child(i);
    }
    QVERIFY(node);
    const QString set = node->parameterSetNames().last();
    QVERIFY(node->setParameterSetText(set, QString()));
    m_session->flushEdits();
    QVERIFY(text() != before);
    QCOMPARE(m_session->undoStack()->count(), 1);
    m_session->undoStack()->undo();
    QCOMPARE(text(), before);
    m_session->undoStack()->redo();
    QVERIFY(!node->parameterSetNames().contains(set));
    m_session->undoStack()->undo();
    QCOMPARE(text(), before);
}

void TstJobSession::readOnlyJobCannotBeChanged()
{
    open("search");
    m_session->duplicate(m_session->settingAt({0}));
    const QByteArray before = text();
    m_session->setReadOnly(true);
    JobSession::Setting* const setting = m_session->settingAt({0});
    QVERIFY(setting->isReadOnly());
    QVERIFY(!m_session->remove(setting));
    QVERIFY(!m_session->duplicate(setting));
    QVERIFY(!m_session->rename(setting, "Renamed"));
    QVERIFY(!m_session->move(nullptr, 0, 2));
    QVERIFY(!m_session->paste(m_session->textOf(setting), nullptr));
    QVERIFY(!m_session->setParameterSet(setting, "SubJob", setting->parameterSetText("SubJob")));
    QVERIFY(m_session->addableTypes(m_session->factoryOf(setting), nullptr).isEmpty());
    QCOMPARE(text(), before);
    m_session->setReadOnly(false);
    QVERIFY(m_session->remove(setting));
    m_session->setReadOnly(true);
    m_session->begin(JEDVE::JOB_TYPE_SEARCH, "Another one");
    QVERIFY(!m_session->isReadOnly());
}

void TstJobSession::scenarioIsRun()
{
    QByteArray bytes;
    QVERIFY(Session::readFile(JED_SOURCE_DIR "/installation/Scenarios/morning-watch.txt", &bytes, nullptr));
    QString text = QString::fromUtf8(bytes);
    text.replace("job.xml", m_folder.filePath("job.xml"));
    Session::Scenario scenario;
    Session::Finding finding;
    QVERIFY(scenario.parse(text, JED_SOURCE_DIR "/installation/Scenarios/morning-watch.txt", &finding));
    struct Recorder : SessionRunner::Artist
    {
        bool drawSetting(ISubSetting* current, const QString& file) override
        {
            m_drawn.append(file + " " + (current ? current->getSettingType() : QString("start")));
            return true;
        }
        bool drawDialog(const QString& type, const QString& detector, const QString& file) override
        {
            m_drawn.append(file + " " + type + " " + detector);
            return true;
        }
        bool drawDock(const QString& name, ISubSetting* current, const QString& file) override
        {
            return drawSetting(current, name + " " + file);
        }
        bool drawMap(ISubSetting* current, const QString& file) override
        {
            m_drawn.append(file + " map " + current->getSettingType());
            return true;
        }
        bool drawWindow(const QString& name, ISubSetting* current, const QString& file) override
        {
            return drawSetting(current, name + " " + file);
        }
        QStringList m_drawn;
    } recorder;
    SessionRunner runner(m_session.get(), &recorder);
    QVERIFY2(runner.run(scenario), qPrintable(runner.findings().value(0).toText()));
    QVERIFY(recorder.m_drawn.contains("start.png start"));
    QVERIFY(recorder.m_drawn.contains("tuner.png Tuner"));
    QVERIFY(recorder.m_drawn.contains("rules rules.png Scan"));
    QVERIFY(recorder.m_drawn.contains("summary summary.png Scan"));
    QVERIFY(recorder.m_drawn.contains("dialog-hopper.png HT720 HopperDetector"));
    QCOMPARE(runner.files().size(), recorder.m_drawn.size() + 1);
    Findings findings;
    QVERIFY(m_session->open(m_folder.filePath("job.xml"), &findings));
    QCOMPARE(m_session->topLevelCount(), 2);
    QVERIFY(findings.isEmpty());
}

void TstJobSession::scenarioStopsAtTheFirstFault_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("line");
    QTest::newRow("type of job") << "new Party" << 1;
    QTest::newRow("missing file") << "open /nonexistent/job.xml" << 0;
    QTest::newRow("receiver") << "new Search\nadd HT720/NONE" << 2;
    QTest::newRow("start-up mode") << "new Search\nadd HT720/HF-1 Never" << 2;
    QTest::newRow("no plug-in for the job") << "new Measurement\nadd HT720/HF-1" << 2;
    QTest::newRow("no sub-job") << "new Search\nset TunerSettings/CenterFrequency 8M" << 2;
    QTest::newRow("set") << "new Search\nadd HT720/HF-1\nset NoSet/Field 1" << 3;
    QTest::newRow("field") << "new Search\nadd HT720/HF-1\nset TunerSettings/NoField 1" << 3;
    QTest::newRow("value") << "new Search\nadd HT720/HF-1\nset TunerSettings/CenterFrequency much" << 3;
    QTest::newRow("number") << "new Search\nselect 1" << 2;
    QTest::newRow("expectation") << "new Search\nexpect subjobs 1" << 2;
    QTest::newRow("expected value") << "new Search\nadd HT720/HF-1\nset TunerSettings/CenterFrequency 8M\n"
                                       "expect TunerSettings/CenterFrequency 9M"
                                    << 4;
    QTest::newRow("time") << "new Search\nwait long" << 2;
    QTest::newRow("time before now") << "new Search\nwait -1" << 2;
    QTest::newRow("picture") << "new Search\npicture a.png" << 2;
    QTest::newRow("unwritable file") << "new Search\nsave /nonexistent/job.xml" << 0;
}

void TstJobSession::scenarioStopsAtTheFirstFault()
{
    QFETCH(QString, steps);
    QFETCH(int, line);
    Session::Scenario scenario;
    Session::Finding finding;
    QVERIFY(scenario.parse(steps + "\nexpect subjobs 99", "steps", &finding));
    SessionRunner runner(m_session.get(), nullptr);
    QVERIFY(!runner.run(scenario));
    QCOMPARE(runner.findings().size(), 1);
    QCOMPARE(runner.findings()[0].line, line);
}

JED_TEST_MAIN(TstJobSession)
#include "tst_jobsession.moc"
