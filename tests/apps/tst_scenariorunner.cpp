#include "station.h"

#include <session/savefile.h>
#include <session/scenariorunner.h>
#include <support/testmain.h>

using namespace Session;

class TstScenarioRunner : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_resources = JedTest::stationResources(); }
    void init() { qputenv("SOURCE_DATE_EPOCH", "0"); }
    void aScenarioWritesTheJob();
    void outcomes_data();
    void outcomes();
    void aFailedStepEndsTheRun();
    void twoFilesFromOneScenario();
    void lossesAreToldForWhatWasWritten();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    JobComposer::Resources m_resources;
    QTemporaryDir m_folder;
};

void TstScenarioRunner::aScenarioWritesTheJob()
{
    Scenario scenario;
    Finding finding;
    QVERIFY(scenario.parse(QString("new Search \"Morning watch\"\n"
                                   "add HT720/HF-1 Automatic\n"
                                   "set TunerSettings/CenterFrequency 8.4145M\n"
                                   "add TRV9KScanSettings/VUHF-1\n"
                                   "expect subjobs 2\n"
                                   "select 1\n"
                                   "expect TunerSettings/CenterFrequency 8414500\n"
                                   "expect TunerSettings/CenterFrequency \"8.4145 MHz\"\n"
                                   "save \"%1\"\n")
                               .arg(path("job.xml")),
                           "s", &finding));
    ScenarioRunner runner(m_resources);
    QCOMPARE(int(runner.run(scenario)), int(ScenarioRunner::DONE));
    QVERIFY2(runner.findings().isEmpty(), qPrintable(JedTest::textOf(runner.findings())));
    QCOMPARE(runner.savedFiles(), QStringList{path("job.xml")});
    QCOMPARE(runner.subjobCount(), 2);
    QByteArray written;
    QByteArray expected;
    QVERIFY(readFile(path("job.xml"), &written, nullptr));
    QVERIFY(readFile(JED_SOURCE_DIR "/tests/data/jobs/search.xml", &expected, nullptr));
    QCOMPARE(written, expected);
}

void TstScenarioRunner::outcomes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<QString>("findings");
    const QString start = "new Search\nadd HT720/HF-1\n";
    QTest::newRow("empty") << "" << int(ScenarioRunner::DONE) << "";
    QTest::newRow("refused")
        << "\nnew Fishing" << int(ScenarioRunner::REFUSED)
        << "s:2: error: there is no type of job \"Fishing\"\n    Types are Production, Search, "
           "Surveillance, DFScan, Measurement.";
    QTest::newRow("value refused") << start + "set TunerSettings/Gain loud" << int(ScenarioRunner::REFUSED)
                                   << "s:3: error: TunerSettings/Gain: \"loud\" is no number in dB";
    QTest::newRow("number of sub-jobs") << start + "expect subjobs 2" << int(ScenarioRunner::MISSED)
                                        << "s:3: error: subjobs is \"1\", not \"2\" as expected";
    QTest::newRow("value") << start + "expect TunerSettings/Gain 31" << int(ScenarioRunner::MISSED)
                           << "s:3: error: TunerSettings/Gain is \"30\", not \"31\" as expected";
    QTest::newRow("no such value")
        << start + "expect TunerSettings/Xyz 31" << int(ScenarioRunner::REFUSED)
        << "s:3: error: HT720/HF-1 has no value \"TunerSettings/Xyz\"\n    jedtool "
           "resources show HT720/HF-1 lists them.";
    QTest::newRow("no number") << start + "select first" << int(ScenarioRunner::REFUSED)
                               << "s:3: error: \"first\" is no number of a sub-job";
    QTest::newRow("nothing to save") << "save /nowhere/job.xml" << int(ScenarioRunner::REFUSED)
                                     << "s:1: error: no job was begun\n    Begin with: new TYPE [NAME]";
    QTest::newRow("cannot be written")
        << start + "save /nowhere/job.xml" << int(ScenarioRunner::FAULT)
        << "/nowhere/job.xml: error: cannot be written: the folder /nowhere does not "
           "exist\n    The file is as it was before.";
}

void TstScenarioRunner::outcomes()
{
    QFETCH(QString, text);
    Scenario scenario;
    Finding finding;
    QVERIFY2(scenario.parse(text, "s", &finding), qPrintable(finding.toText()));
    ScenarioRunner runner(m_resources);
    QTEST(int(runner.run(scenario)), "outcome");
    QTEST(JedTest::textOf(runner.findings()), "findings");
}

void TstScenarioRunner::aFailedStepEndsTheRun()
{
    Scenario scenario; // Without a name, as made from options: then there is no line to name.
    scenario.append("new", {"Search"});
    scenario.append("expect", {"subjobs", "1"});
    scenario.append("save", {path("never.xml")});
    ScenarioRunner runner(m_resources);
    QCOMPARE(int(runner.run(scenario)), int(ScenarioRunner::MISSED));
    QCOMPARE(JedTest::textOf(runner.findings()), QString("error: subjobs is \"0\", not \"1\" as expected"));
    QVERIFY(!QFile::exists(path("never.xml")));
    QVERIFY(runner.savedFiles().isEmpty());
}

void TstScenarioRunner::twoFilesFromOneScenario()
{
    Scenario scenario;
    scenario.append("new", {"Search", "One"});
    scenario.append("save", {path("1.xml")});
    scenario.append("new", {"Search", "Two"});
    scenario.append("save", {path("2.xml")});
    ScenarioRunner runner(m_resources);
    QCOMPARE(int(runner.run(scenario)), int(ScenarioRunner::DONE));
    QCOMPARE(runner.savedFiles(), QStringList({path("1.xml"), path("2.xml")}));
    QByteArray second;
    QVERIFY(readFile(path("2.xml"), &second, nullptr));
    QVERIFY(second.contains("<Name>Two</Name>"));
}

void TstScenarioRunner::lossesAreToldForWhatWasWritten()
{
    Scenario scenario;
    scenario.append("new", {"Search"});
    scenario.append("add", {"HT720/HF-2"});
    ScenarioRunner silent(m_resources);
    QCOMPARE(int(silent.run(scenario)), int(ScenarioRunner::DONE));
    QVERIFY(silent.findings().isEmpty());
    scenario.append("save", {path("lossy.xml")});
    ScenarioRunner runner(m_resources);
    QCOMPARE(int(runner.run(scenario)), int(ScenarioRunner::DONE));
    QCOMPARE(
        JedTest::textOf(runner.findings()),
        QString(
            "sub-job 1, HT720/HF-2: warning: ActivityDetectionSettings is lost: a job file cannot hold it\n"
            "    The receiver keeps the values that it has."));
    QVERIFY(QFile::exists(path("lossy.xml")));
}

JED_TEST_MAIN(TstScenarioRunner)
#include "tst_scenariorunner.moc"
