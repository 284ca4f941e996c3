#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobxml/job.h>
#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <session/installation.h>
#include <session/listpreview.h>
#include <session/pluginhost.h>
#include <session/savefile.h>
#include <session/sessionrunner.h>
#include <session/settingtreemodel.h>

using Session::JobSession;
using Session::ListPreview;

namespace {
const QString INSTALLATION = JED_SOURCE_DIR "/installation";
const QString BOOKMARKS = INSTALLATION + "/FrequencyLists/coast-bookmarks.csv";
const QString STORE = INSTALLATION + "/FrequencyLists/coast.xml";

// With what a list sets.
const char* const SUBJOB = "new Production\nadd HT720/VUHF-1\nset TunerSettings/ChannelName A\n"
                           "set ADemSettings/Demodulation AM\n";

// "6 Name|source|becomes|entry"
QStringList rowsOf(const ListPreview& preview)
{
    QStringList result;
    for (const ListPreview::Row& row : preview.rows)
        result.append(QString("%1 %2|%3|%4|%5")
                          .arg(QString::number(row.line), row.name, row.source, row.becomes,
                               QString::number(row.entry)));
    return result;
}
} // namespace

class TstListPreview : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup() { m_session.reset(); }

    void formatsAreGuessed();
    void listOfAnotherProgramIsShown();
    void storeListIsShown();
    void listsThatAreRefused_data();
    void listsThatAreRefused();
    void readingIsStopped();
    void chosenEntriesMakeTheList();
    void targetIsTheSubjob();
    void importIsOneStep();
    void manyEntriesAreOneStep();
    void nothingIsChangedByAnUnusableList();
    void readOnlyJobTakesNothing();
    void scenarioImports();
    void scenarioImportsFail_data();
    void scenarioImportsFail();

private:
    bool run(const QString& text);
    QStringList names() const;

    Session::PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    Session::Findings m_findings;
};

void TstListPreview::initTestCase()
{
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QString error;
    QVERIFY2(Session::chooseInstallation(INSTALLATION, QString(), &error), qPrintable(error));
    m_host.load(Session::PluginHost::defaultFolders());
}

void TstListPreview::init()
{
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_findings.clear();
}

// Runs a scenario that stands in the folder of the lists.
bool TstListPreview::run(const QString& text)
{
    Session::Scenario scenario;
    Session::Finding finding;
    if (!scenario.parse(text, INSTALLATION + "/FrequencyLists/test.txt", &finding))
        qFatal("%s", qPrintable(finding.toText()));
    Session::SessionRunner runner(m_session.get(), nullptr);
    const bool isDone = runner.run(scenario);
    m_findings = runner.findings();
    return isDone;
}

QStringList TstListPreview::names() const
{
    QStringList result;
    for (int i = 0; i < m_session->topLevelCount(); ++i)
        result.append(m_session->topLevel(i).setting->getDisplayName());
    return result;
}

void TstListPreview::formatsAreGuessed()
{
    QCOMPARE(Session::listFormats(), QStringList({"store", "gqrx", "sdrsharp", "sdrpp", "chirp"}));
    for (const QString& format : Session::listFormats())
        QVERIFY(!Session::listFormatText(format).isEmpty());
    QCOMPARE(Session::guessListFormat(BOOKMARKS), QString("gqrx"));
    QCOMPARE(Session::guessListFormat(STORE), QString("store"));
    QCOMPARE(Session::guessListFormat("missing"), QString("store"));
    QCOMPARE(Session::guessListFormat("/dev/zero"), QString("store"));
}

void TstListPreview::listOfAnotherProgramIsShown()
{
    const ListPreview preview = Session::previewList(BOOKMARKS, "gqrx");
    QCOMPARE(rowsOf(preview).first(),
             QString("6 Skarholm Radio 16|156800000 Narrow FM|156.8 MHz, FM, 12.5 kHz|0"));
    QCOMPARE(rowsOf(preview).last(),
             QString("11 Weather picture|157425000 Raw I/Q|refused: the mode Raw I/Q has "
                     "no counterpart|-1"));
    QCOMPARE(preview.rows.size(), 6);
    QCOMPARE(preview.list.GetFrequencyStoreEntry().size(), 5);
    QCOMPARE(preview.leftOut, QStringList({"list of tags", "Tags"}));
    QVERIFY(preview.failure.isEmpty());
}

void TstListPreview::storeListIsShown()
{
    const ListPreview preview = Session::previewList(STORE, "store");
    QCOMPARE(preview.rows.size(), 5);
    QCOMPARE(Session::parameterSetsOf(preview.list), QStringList({"TunerSettings", "ADemSettings"}));
    QCOMPARE(rowsOf(preview).last(), QString("5 Oxen Sound bridge||156.65 MHz, 15 kHz, FM, 15 kHz|4"));
    QCOMPARE(preview.list.GetName(), QString("coast-bookmarks"));
}

void TstListPreview::listsThatAreRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("failure");
    const QString lists = JED_SOURCE_DIR "/tests/data/lists/";
    const QString bookmarks = BOOKMARKS;
    QTest::newRow("other format") << bookmarks << "sdrpp"
                                  << "line 1: it is damaged: illegal value";
    QTest::newRow("no store") << bookmarks << "store" << bookmarks + ": line 1: Start tag expected.";
    QTest::newRow("no bookmarks") << lists + "sdrpp-damaged-other.json"
                                  << "sdrpp"
                                  << "it has no object \"bookmarks\"";
    QTest::newRow("missing") << "missing.csv"
                             << "gqrx"
                             << "there is no such file";
    QTest::newRow("missing store") << "missing.xml"
                                   << "store"
                                   << "missing.xml: is no file that can be read, or above 64 MiB";
}

void TstListPreview::listsThatAreRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, format);
    const ListPreview preview = Session::previewList(file, format);
    QTEST(preview.failure, "failure");
    QVERIFY(preview.rows.isEmpty() && !preview.isStopped);
}

void TstListPreview::readingIsStopped()
{
    QVERIFY(Session::previewList(BOOKMARKS, "gqrx", [](int, int) { return false; }).isStopped);
    const QTemporaryDir folder;
    const QString path = folder.filePath("long.xml");
    QString text = "<FrequencyStoreList>";
    for (int i = 0; i < 20000; ++i)
        text += "<FrequencyStoreEntry><Profile_Data><ProfileID>1</ProfileID></Profile_Data></"
                "FrequencyStoreEntry>";
    QVERIFY(Session::saveFile(path, (text + "</FrequencyStoreList>").toUtf8(), nullptr));
    int calls = 0;
    const ListPreview stopped =
        Session::previewList(path, "store", [&calls](int, int) { return ++calls < 2; });
    QVERIFY(stopped.isStopped);
    QCOMPARE(calls, 2);
    QVERIFY(stopped.rows.isEmpty() && !stopped.failure.isEmpty());
    QCOMPARE(Session::previewList(path, "store", [](int, int) { return true; }).rows.size(), 20000);
}

void TstListPreview::chosenEntriesMakeTheList()
{
    const ListPreview preview = Session::previewList(STORE, "store");
    const FreqStoreXml::FrequencyStoreList list = preview.listOf({0, 3});
    QCOMPARE(list.GetName(), QString("coast-bookmarks"));
    QCOMPARE(list.GetFrequencyStoreEntry().size(), 2);
    QCOMPARE(list.GetFrequencyStoreEntry().at(1).GetProfile_Data().GetProfileName(),
             QString("Vellin pilots"));
    QVERIFY(preview.listOf({}).GetFrequencyStoreEntry().isEmpty());
}

void TstListPreview::targetIsTheSubjob()
{
    QVERIFY(!Session::importTarget(*m_session, nullptr));
    QVERIFY(run(SUBJOB));
    JobSession::Setting* const subjob = m_session->settingAt({0});
    QCOMPARE(Session::importTarget(*m_session, subjob), subjob);
    QCOMPARE(Session::importTarget(*m_session, m_session->settingAt({0, 0})), subjob);
}

void TstListPreview::importIsOneStep()
{
    QVERIFY(run(SUBJOB + QString("add HT720/VUHF-2\n")));
    Session::SettingTreeModel model(m_session.get());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QByteArray before = m_session->draft();
    const int steps = m_session->undoStack()->index();
    QList<JobSession::Setting*> made;
    QString error;
    QSignalSpy structure(m_session.get(), &JobSession::structureChanged);
    QVERIFY(Session::importList(m_session.get(), m_session->settingAt({0}),
                                Session::previewList(STORE, "store").list, &made, &error));
    QCOMPARE(structure.count(), 1);
    QCOMPARE(made.size(), 4);
    QCOMPARE(model.rowCount(), 6);
    QCOMPARE(names(), QStringList({"Skarholm Radio 16", "Airband", "Skarholm Radio 70", "Vellin port control",
                                   "Vellin pilots", "Oxen Sound bridge"}));
    QCOMPARE(m_session->undoStack()->index(), steps + 1);
    QCOMPARE(m_session->undoStack()->undoText(), QString("Import into Marine VHF"));
    const QByteArray after = m_session->draft();
    QVERIFY(after != before);

    for (int round = 0; round < 2; ++round) {
        m_session->undoStack()->undo();
        QCOMPARE(m_session->draft(), before);
        QCOMPARE(model.rowCount(), 2);
        m_session->undoStack()->redo();
        QCOMPARE(m_session->draft(), after);
        QCOMPARE(model.rowCount(), 6);
    }
    const QTemporaryDir folder;
    QVERIFY(m_session->save(folder.filePath("job.xml"), &m_findings));
    JobXml::Job job;
    QByteArray bytes;
    QVERIFY(Session::readFile(folder.filePath("job.xml"), &bytes, nullptr));
    QVERIFY(job.SetXmlString(QString::fromUtf8(bytes), true));
    job.SetValidate(true);
    QVERIFY2(job.Check(), qPrintable(job.GetCheckReason()));
    QCOMPARE(job.GetSubjob().at(5).GetSettings().GetFFM_Settings().GetCenterFrequency(), 156650000);
    QCOMPARE(job.GetSubjob().at(5).GetSettings().GetAudio_Settings().GetDemodulation(),
             JobXml::Audio_Settings::NameToDemodulation("FM"));
}

void TstListPreview::manyEntriesAreOneStep()
{
    constexpr int COUNT = 100;
    FreqStoreXml::FrequencyStoreList list;
    for (int i = 0; i < COUNT; ++i) {
        FreqStoreXml::FrequencyStoreEntry entry;
        entry.GetFFM_Settings().SetCenterFrequency(156000000 + i * 25000);
        entry.GetProfile_Data().SetProfileName(QString("Channel %1").arg(i));
        list.AppendFrequencyStoreEntry(entry);
    }
    QVERIFY(run(SUBJOB));
    const QByteArray before = m_session->draft();
    QList<JobSession::Setting*> made;
    QString error;
    QVERIFY(Session::importList(m_session.get(), m_session->settingAt({0}), list, &made, &error));
    QCOMPARE(m_session->topLevelCount(), COUNT);
    QCOMPARE(names().last(), QString("Channel 99"));
    QSignalSpy structure(m_session.get(), &JobSession::structureChanged);
    m_session->undoStack()->undo();
    QCOMPARE(structure.count(), 1);
    QCOMPARE(m_session->draft(), before);
}

void TstListPreview::nothingIsChangedByAnUnusableList()
{
    QVERIFY(run(SUBJOB));
    const int steps = m_session->undoStack()->index();
    const QByteArray before = m_session->draft();
    FreqStoreXml::FrequencyStoreList list;
    list.AppendFrequencyStoreEntry(FreqStoreXml::FrequencyStoreEntry());
    QList<JobSession::Setting*> made;
    QString error;
    QVERIFY(!Session::importList(m_session.get(), m_session->settingAt({0}), list, &made, &error));
    QCOMPARE(error, QString("the plug-in takes nothing of it"));
    QVERIFY(made.isEmpty());
    QCOMPARE(m_session->undoStack()->index(), steps);
    QCOMPARE(m_session->draft(), before);
}

void TstListPreview::readOnlyJobTakesNothing()
{
    QVERIFY(run(SUBJOB));
    m_session->setReadOnly(true);
    JobSession::Setting* const subjob = m_session->settingAt({0});
    QVERIFY(!Session::importTarget(*m_session, subjob));
    QList<JobSession::Setting*> made;
    QVERIFY(!m_session->importProfile(subjob, STORE, &made));
    QCOMPARE(m_session->topLevelCount(), 1);
}

void TstListPreview::scenarioImports()
{
    QVERIFY2(run("new Production\nadd HT720/VUHF-1\nimport coast-bookmarks.csv\nexpect subjobs 5\n"
                 "expect TunerSettings/CenterFrequency 156.8M\nexpect ADemSettings/Demodulation FM\n"
                 "select 5\nexpect TunerSettings/ChannelName \"Oxen Sound bridge\"\n"
                 "select 2\nimport harbour-radios.csv chirp\nexpect subjobs 7\n"),
             qPrintable(m_findings.isEmpty() ? QString() : m_findings.last().toText()));
    QCOMPARE(m_findings.size(), 2);
    QVERIFY(m_findings.at(0).toText().endsWith(
        "coast-bookmarks.csv:11: warning: refused: the mode Raw I/Q has no counterpart"));
    QVERIFY(m_findings.at(1).toText().endsWith(
        "harbour-radios.csv:5: warning: refused: the mode DMR has no counterpart"));
}

void TstListPreview::scenarioImportsFail_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no sub-job") << "import coast.xml\n"
                                << "there is no sub-job that takes a list";
    QTest::newRow("unknown format") << "add HT720/VUHF-1\nimport coast.xml xml\n"
                                    << "there is no format of lists \"xml\"";
    QTest::newRow("no such file") << "add HT720/VUHF-1\nimport none.csv gqrx\n"
                                  << "there is no such file";
    QTest::newRow("another format") << "add HT720/VUHF-1\nimport coast.xml chirp\n"
                                    << "its first line does not name the columns Frequency and Mode";
}

void TstListPreview::scenarioImportsFail()
{
    QFETCH(QString, steps);
    QFETCH(QString, reason);
    QVERIFY(!run("new Production\n" + steps));
    QVERIFY2(m_findings.last().text.contains(reason), qPrintable(m_findings.last().text));
    QCOMPARE(m_findings.last().severity, Session::Finding::FAILURE);
}

JED_TEST_MAIN(TstListPreview)
#include "tst_listpreview.moc"
