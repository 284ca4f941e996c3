#include "station.h"

#include <jobxml/job.h>
#include <kit/jobplaces.h>
#include <session/jobcomposer.h>
#include <session/jobdocument.h>
#include <support/testmain.h>
#include <values/valuebase.h>

using namespace PluginKit;
using namespace Session;

class TstJobComposer : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_resources = JedTest::stationResources(); }
    void init() { m_composer = std::make_unique<JobComposer>(m_resources); }
    void cleanup() { qunsetenv("SOURCE_DATE_EPOCH"); }
    void aJobHasTypeNameAndTime();
    void theTypeNamesANamelessJob();
    void aSubjobNamesItsReceiver();
    void startupModes_data();
    void startupModes();
    void valuesStartWithTheReceiversDefaults();
    void valuesGoToTheCurrentSubjob();
    void refusals_data();
    void refusals();
    void aRefusalChangesNothing();
    void optionalComponentsCountWhenTouched();
    void aNewJobDropsTheOldOne();
    void whatAJobFileCannotHoldIsTold_data();
    void whatAJobFileCannotHoldIsTold();
    void everyReceiverGivesAValidJob();

private:
    JobXml::Job composed()
    {
        JobDocument document;
        m_findings.clear();
        m_composer->compose(&document, &m_findings);
        return document.job();
    }
    QStringList carriedNames(const JobXml::Subjob& subjob) const
    {
        QStringList names;
        for (const CarriedSet& carried : carriedSets(subjob))
            names.append(carried.set->name);
        return names;
    }
    // Takes one of the steps "new", "add", "select" or "set".
    bool take(const QStringList& step)
    {
        const QString verb = step.value(0);
        if (verb == "new")
            return m_composer->begin(step.value(1), step.value(2));
        if (verb == "add")
            return m_composer->addSubjob(step.value(1), step.value(2));
        if (verb == "select")
            return m_composer->selectSubjob(step.value(1).toInt());
        return m_composer->setValue(step.value(1), step.value(2));
    }

    JobComposer::Resources m_resources;
    std::unique_ptr<JobComposer> m_composer;
    Findings m_findings;
};

void TstJobComposer::aJobHasTypeNameAndTime()
{
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    QVERIFY(m_composer->begin("DFScan", "Night watch"));
    const JobXml::JobInformation information = composed().GetJobInformation();
    QCOMPARE(int(information.GetJobType()), 3);
    QCOMPARE(information.GetName(), QString("Night watch"));
    QCOMPARE(information.GetCreated(), QString("2023-11-14T22:13:20Z"));
    qunsetenv("SOURCE_DATE_EPOCH");
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    const QDateTime made = QDateTime::fromString(composed().GetJobInformation().GetCreated(), Qt::ISODate);
    QVERIFY(made >= before && made <= QDateTime::currentDateTimeUtc());
}

void TstJobComposer::theTypeNamesANamelessJob()
{
    QVERIFY(m_composer->begin("Search", ""));
    QCOMPARE(composed().GetJobInformation().GetName(), QString("Search"));
}

void TstJobComposer::aSubjobNamesItsReceiver()
{
    QVERIFY(m_composer->begin("Search", "") && m_composer->addSubjob("TRV9KScanSettings/VUHF-1", ""));
    const JobXml::Subjob subjob = composed().GetSubjob().value(0);
    QCOMPARE(subjob.GetName(), QString("Airband scan"));
    QCOMPARE(int(subjob.GetResourceDescription().GetType()), 1);
    QCOMPARE(subjob.GetResourceDescription().GetBaseResource(), QString("VUHF-1"));
    QCOMPARE(subjob.GetResourceDescription().GetName(), QString("Airband scan"));
    QCOMPARE(carriedNames(subjob),
             QStringList({"DF_Settings", "TunerSettings", "FFTSettings", "ScanSettings"}));
}

void TstJobComposer::startupModes_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("mode"); // Or the reason.
    QTest::newRow("the first one offered") << "Search"
                                           << "HT720/HF-1"
                                           << ""
                                           << "Manual";
    QTest::newRow("by name") << "Search"
                             << "HT720/HF-1"
                             << "Timed"
                             << "Timed";
    QTest::newRow("by what the user is shown") << "Search"
                                               << "HT720/HF-1"
                                               << "Starts with the job"
                                               << "Automatic";
    QTest::newRow("the one that surveillance allows") << "Surveillance"
                                                      << "HT720/HF-1"
                                                      << ""
                                                      << "Permanent";
    QTest::newRow("receiver without modes") << "Measurement"
                                            << "SignalRecorder/REC-1"
                                            << "Timed"
                                            << "Timed";
    QTest::newRow("receiver without modes, surveillance") << "Surveillance"
                                                          << "SignalRecorder/REC-1"
                                                          << ""
                                                          << "Permanent";
    QTest::newRow("not offered") << "Search"
                                 << "HT720/HF-2"
                                 << "Automatic"
                                 << "HT720/HF-2 does not offer the start-up mode \"Automatic\" for a job of "
                                    "type Search|It offers Manual, Timed, OnRequest.";
    QTest::newRow("mistyped")
        << "Search"
        << "HT720/HF-2"
        << "Manuel"
        << "HT720/HF-2 does not offer the start-up mode \"Manuel\" for a job of type Search"
           "|It offers Manual, Timed, OnRequest. Did you mean \"Manual\"?";
    QTest::newRow("not allowed")
        << "Surveillance"
        << "HT720/HF-1"
        << "Manual"
        << "HT720/HF-1 does not offer the start-up mode \"Manual\" for a job of type Surveillance"
           "|It offers Permanent.";
    QTest::newRow("none that is allowed")
        << "Surveillance"
        << "HT720/HF-2"
        << ""
        << "HT720/HF-2 offers no start-up mode for a job of type Surveillance"
           "|It offers Manual, Timed, OnRequest.";
}

void TstJobComposer::startupModes()
{
    QFETCH(QString, type);
    QFETCH(QString, resource);
    QFETCH(QString, wanted);
    QVERIFY(m_composer->begin(type, ""));
    const bool isAdded = m_composer->addSubjob(resource, wanted);
    const QString result =
        isAdded ? JobXml::Subjob::StartupModeToName(composed().GetSubjob().value(0).GetStartupMode())
                : m_composer->fault().text + '|' + m_composer->fault().advice;
    QTEST(result, "mode");
}

void TstJobComposer::valuesStartWithTheReceiversDefaults()
{
    QVERIFY(m_composer->begin("Search", "") && m_composer->addSubjob("HT720/HF-1", ""));
    QCOMPARE(m_composer->value("TunerSettings/CenterFrequency")->GetText(), QString("2182000"));
    QCOMPARE(composed().GetSubjob().value(0).GetSettings().GetFFM_Settings().GetCenterFrequency(), 2182000);
}

void TstJobComposer::valuesGoToTheCurrentSubjob()
{
    QVERIFY(m_composer->begin("Search", ""));
    QVERIFY(m_composer->addSubjob("HT720/HF-1", "") &&
            m_composer->setValue("TunerSettings/CenterFrequency", "3M"));
    QVERIFY(m_composer->addSubjob("HT720/HF-1", "") &&
            m_composer->setValue("TunerSettings/CenterFrequency", "4M"));
    QVERIFY(m_composer->selectSubjob(1) && m_composer->setValue("TunerSettings/Attenuation", "20"));
    const JobXml::Job job = composed();
    QCOMPARE(job.GetSubjob().size(), 2);
    const JobXml::Settings first = job.GetSubjob().value(0).GetSettings();
    const JobXml::Settings second = job.GetSubjob().value(1).GetSettings();
    QCOMPARE(first.GetFFM_Settings().GetCenterFrequency(), 3000000);
    QCOMPARE(first.GetFFM_Settings().GetAttenuation(), 20);
    QCOMPARE(second.GetFFM_Settings().GetCenterFrequency(), 4000000);
    QCOMPARE(second.GetFFM_Settings().GetAttenuation(), 0);
}

void TstJobComposer::refusals_data()
{
    QTest::addColumn<QVector<QStringList>>("steps"); // The last one is refused.
    QTest::addColumn<QString>("fault");
    const QStringList begin{"new", "Search"};
    const QStringList add{"add", "HT720/HF-1"};
    using Steps = QVector<QStringList>;
    QTest::newRow("type") << Steps{{"new", "Serch"}}
                          << "error: there is no type of job \"Serch\"\n    Types are Production, Search, "
                             "Surveillance, DFScan, Measurement. Did you mean \"Search\"?";
    QTest::newRow("type in lower case")
        << Steps{{"new", "production"}}
        << "error: there is no type of job \"production\"\n    Types are Production, Search, Surveillance, "
           "DFScan, Measurement. Did you mean \"Production\"?";
    QTest::newRow("no job") << Steps{add} << "error: no job was begun\n    Begin with: new TYPE [NAME]";
    QTest::newRow("receiver") << Steps{begin, {"add", "HT720/HF1"}}
                              << "error: the installation offers no \"HT720/HF1\"\n    jedtool resources "
                                 "list shows what it offers. "
                                 "Did you mean \"HT720/HF-1\"?";
    QTest::newRow("no sub-job") << Steps{begin, {"set", "A/B", "1"}}
                                << "error: there is no sub-job\n    Add one with: add TYPE/BASE";
    QTest::newRow("parameter set") << Steps{begin, add, {"set", "TunerSetting/Gain", "1"}}
                                   << "error: HT720/HF-1 has no value \"TunerSetting/Gain\"\n    jedtool "
                                      "resources show HT720/HF-1 lists "
                                      "them. Did you mean \"TunerSettings/Gain\"?";
    QTest::newRow("field")
        << Steps{begin, add, {"set", "TunerSettings/Xyz", "1"}}
        << "error: HT720/HF-1 has no value \"TunerSettings/Xyz\"\n    jedtool resources show "
           "HT720/HF-1 lists them.";
    QTest::newRow("set alone")
        << Steps{begin, add, {"set", "TunerSettings", "1"}}
        << "error: HT720/HF-1 has no value \"TunerSettings\"\n    jedtool resources show "
           "HT720/HF-1 lists them.";
    QTest::newRow("value") << Steps{begin, add, {"set", "TunerSettings/CenterFrequency", "156.8M"}}
                           << "error: TunerSettings/CenterFrequency: 156.8 MHz is outside 415 kHz … 27.5 MHz";
    QTest::newRow("sub-job 0") << Steps{begin, add, {"select", "0"}}
                               << "error: there is no sub-job 0\n    The job has 1.";
    QTest::newRow("sub-job beyond") << Steps{begin, add, {"select", "2"}}
                                    << "error: there is no sub-job 2\n    The job has 1.";
}

void TstJobComposer::refusals()
{
    QFETCH(QVector<QStringList>, steps);
    for (int i = 0; i + 1 < steps.size(); ++i)
        QVERIFY(take(steps.at(i)));
    QVERIFY(!take(steps.last()));
    QTEST(m_composer->fault().toText(), "fault");
}

void TstJobComposer::aRefusalChangesNothing()
{
    qputenv("SOURCE_DATE_EPOCH", "0");
    QVERIFY(m_composer->begin("Search", "A") && m_composer->addSubjob("HT720/HF-1", ""));
    const QString before = composed().GetXmlString(true);
    QVERIFY(!m_composer->begin("Nothing", "B"));
    QVERIFY(!m_composer->addSubjob("HT720/HF-1", "Never"));
    QVERIFY(!m_composer->setValue("TunerSettings/CenterFrequency", "1"));
    QVERIFY(!m_composer->setValue("DDemSettings/SymbolRate", "fast"));
    QVERIFY(!m_composer->selectSubjob(7));
    QCOMPARE(composed().GetXmlString(true), before);
    QVERIFY(m_composer->setValue("TunerSettings/CenterFrequency", "5M"));
    QVERIFY(composed().GetXmlString(true) != before);
}

void TstJobComposer::optionalComponentsCountWhenTouched()
{
    QVERIFY(m_composer->begin("Search", "") && m_composer->addSubjob("HT720/HF-1", ""));
    QVERIFY(!carriedNames(composed().GetSubjob().value(0)).contains("DDemSettings"));
    QVERIFY(m_findings.isEmpty());
    QVERIFY(m_composer->setValue("DDemSettings/SymbolRate", "75"));
    const JobXml::Subjob subjob = composed().GetSubjob().value(0);
    QVERIFY(carriedNames(subjob).contains("DDemSettings"));
    QCOMPARE(subjob.GetSettings().GetDemodulator_Settings().GetSymbolRate(), 75.0);
}

void TstJobComposer::aNewJobDropsTheOldOne()
{
    QVERIFY(m_composer->begin("Search", "") && m_composer->addSubjob("HT720/HF-1", ""));
    QVERIFY(m_composer->begin("Production", ""));
    QCOMPARE(m_composer->subjobCount(), 0);
    QVERIFY(!m_composer->value("TunerSettings/Gain"));
    QCOMPARE(composed().GetSubjob().size(), 0);
}

void TstJobComposer::whatAJobFileCannotHoldIsTold_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("touched");
    QTest::addColumn<QString>("findings");
    QTest::newRow("set that the job file handler does not know")
        << "HT720/HF-2"
        << ""
        << "sub-job 1, HT720/HF-2: warning: ActivityDetectionSettings is lost: a job file cannot hold it\n"
           "    The receiver keeps the values that it has.";
    QTest::newRow("set that the job file handler drops, of an optional component in use")
        << "HT720/HF-1"
        << "StorageSettings/Format"
        << "sub-job 1, HT720/HF-1: warning: StorageSettings is lost: a job file cannot hold it\n"
           "    The receiver keeps the values that it has.";
    QTest::newRow("parts that the job file handler takes out")
        << "HT720/VUHF-1"
        << "DSCSettings/HoldTime"
        << QStringList({"DSCSettings/PriorityCriteria", "DSCSettings/ProduceCriteria",
                        "DSCSettings/SpectralDetectorSettings", "StorageSettings"})
               .replaceInStrings(QRegularExpression("^(.*)$"),
                                 "sub-job 1, HT720/VUHF-1: warning: \\1 is lost: a job file cannot hold it\n"
                                 "    The receiver keeps the values that it has.")
               .join('\n');
    QTest::newRow("the same, not in use") << "HT720/HF-1"
                                          << ""
                                          << "";
}

void TstJobComposer::whatAJobFileCannotHoldIsTold()
{
    QFETCH(QString, resource);
    QFETCH(QString, touched);
    QVERIFY(m_composer->begin("Search", "") && m_composer->addSubjob(resource, ""));
    if (!touched.isEmpty()) {
        const ValueBase* const value = m_composer->value(touched);
        QVERIFY(value);
        QVERIFY(m_composer->setValue(touched, value->GetText()));
    }
    const JobXml::Job job = composed();
    QTEST(JedTest::textOf(m_findings), "findings");
    QVERIFY(!job.GetXmlString(true).contains("ActivityDetectionSettings"));
    QVERIFY(!job.GetXmlString(true).contains("StorageSettings"));
}

void TstJobComposer::everyReceiverGivesAValidJob()
{
    QVERIFY(m_composer->begin("Production", "All"));
    for (const auto& resource : m_resources) {
        QVERIFY2(m_composer->addSubjob(resource->getType() + '/' + resource->getBaseResource(), ""),
                 qPrintable(m_composer->fault().toText()));
    }
    JobDocument document;
    Findings losses;
    Findings faults;
    QVERIFY(m_composer->compose(&document, &losses));
    QVERIFY2(document.validate(&faults), qPrintable(JedTest::textOf(faults)));
    QCOMPARE(document.job().GetSubjob().size(), m_resources.size());
}

JED_TEST_MAIN(TstJobComposer)
#include "tst_jobcomposer.moc"
