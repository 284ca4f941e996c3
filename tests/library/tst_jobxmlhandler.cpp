#include "jobfileparts.h"
#include "jobxmlhandler.h"

using namespace JobFileParts;
using JEDVEPLUGIN::JobXmlHandler;
using JobXml::Settings;
using JobXml::Subjob;
using JobXml::TransmitterItem;
using SettingType = JobXmlHandler::enJOB_SETTING_TYPES;

class TstJobXmlHandler : public QObject
{
    Q_OBJECT
private slots:
    void instanceIsOne();
    void namesAndNumbers();
    void unknownNumberHasNoName_data();
    void unknownNumberHasNoName();
    void unknownNameHasNoNumber_data();
    void unknownNameHasNoNumber();
    void copiesKeepBothTables();

    void subjobSetting_data();
    void subjobSetting();
    void subjobSettingTakesAnEmptyText();
    void subjobSettingReportsOtherNames_data();
    void subjobSettingReportsOtherNames();

    void parameterSet_data();
    void parameterSet();
    void parameterSetWithoutAPlace_data();
    void parameterSetWithoutAPlace();
    void emptyParameterSetChangesNothing();
    void parameterSetOfUnknownNameIsReported_data();
    void parameterSetOfUnknownNameIsReported();
    void unreadableParameterSetChangesNothing();
    void dscLeavesThreePartsOut();

    void reportsFollowTheMask_data();
    void reportsFollowTheMask();
    void reportKeepsPlaceholders();
};

void TstJobXmlHandler::instanceIsOne()
{
    QVERIFY(JobXmlHandler::getInstance());
    QCOMPARE(JobXmlHandler::getInstance(), JobXmlHandler::getInstance());
    static_assert(!std::is_default_constructible_v<JobXmlHandler>);
}

void TstJobXmlHandler::namesAndNumbers()
{
    const JobXmlHandler& handler = *JobXmlHandler::getInstance();
    for (const SetName& set : SET_NAMES) {
        QCOMPARE(int(handler.getSettingType(set.name)), set.number);
        QCOMPARE(handler.getParameterSetName(static_cast<SettingType>(set.number)), QString(set.name));
    }
    QCOMPARE(sizeof(SET_NAMES) / sizeof(SET_NAMES[0]), size_t(19));
}

void TstJobXmlHandler::unknownNumberHasNoName_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {10, 11, -1, 21, INT_MAX, INT_MIN})
        QTest::newRow(qPrintable(QString::number(number))) << number;
}

void TstJobXmlHandler::unknownNumberHasNoName()
{
    QFETCH(int, number);
    QVERIFY(JobXmlHandler::getInstance()->getParameterSetName(static_cast<SettingType>(number)).isEmpty());
}

void TstJobXmlHandler::unknownNameHasNoNumber_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"", "Foo", "scansettings", "ScanSettings ", "Scan_Settings", "DSC_Settings",
                             "FrequencyListSettings", "TransmitterListSettings", "ActivityDetectionSettings"})
        QTest::newRow(*name ? name : "empty") << name;
}

void TstJobXmlHandler::unknownNameHasNoNumber()
{
    QFETCH(QString, name);
    QCOMPARE(int(JobXmlHandler::getInstance()->getSettingType(name)), -1);
}

void TstJobXmlHandler::copiesKeepBothTables()
{
    JobXmlHandler copy(*JobXmlHandler::getInstance());
    JobXmlHandler moved(std::move(copy));
    JobXmlHandler assigned(moved);
    assigned = moved;
    JobXmlHandler moveAssigned(moved);
    moveAssigned = std::move(assigned);
    for (const JobXmlHandler* handler : {&moved, &moveAssigned, JobXmlHandler::getInstance()}) {
        QCOMPARE(int(handler->getSettingType("CompressionSettings")), 20);
        QCOMPARE(handler->getParameterSetName(static_cast<SettingType>(4)), QString("DSCSettings"));
    }
}

void TstJobXmlHandler::subjobSetting_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : SUBJOB_PARTS)
        QTest::newRow(qPrintable(name)) << name;
}

void TstJobXmlHandler::subjobSetting()
{
    QFETCH(QString, name);
    JedTest::TraceRecorder recorder;
    Subjob subjob;
    fill(subjob, "Subjob", SUBJOB_PARTS);
    QMap<QString, QString> expected = values(subjob);
    expected[name] = "2";
    JobXmlHandler::getInstance()->addSubjobSetting(name, element(name, 2), subjob);
    QCOMPARE(values(subjob), expected);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::subjobSettingTakesAnEmptyText()
{
    JedTest::TraceRecorder recorder;
    for (const QString& name : SUBJOB_PARTS) {
        Subjob subjob;
        fill(subjob, "Subjob", SUBJOB_PARTS);
        QMap<QString, QString> expected = values(subjob);
        QCOMPARE(expected.remove(name), 1);
        JobXmlHandler::getInstance()->addSubjobSetting(name, "", subjob);
        QCOMPARE(values(subjob), expected);
    }
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::subjobSettingReportsOtherNames_data()
{
    QTest::addColumn<QString>("name");
    for (const SetName& set : SET_NAMES) {
        if (!SUBJOB_PARTS.contains(set.name))
            QTest::newRow(set.name) << set.name;
    }
    QTest::newRow("unknown") << "Foo";
    QTest::newRow("lower case") << "activitygeneration";
    QTest::newRow("empty") << "";
}

void TstJobXmlHandler::subjobSettingReportsOtherNames()
{
    QFETCH(QString, name);
    JedTest::TraceRecorder recorder;
    Subjob subjob;
    fill(subjob, "Subjob", SUBJOB_PARTS);
    const QString before = subjob.GetXmlString();
    JobXmlHandler::getInstance()->addSubjobSetting(name, element("ActivityGeneration", 2), subjob);
    QVERIFY(isReported(recorder, name));
    JobXmlHandler::getInstance()->addSubjobSetting(name, "", subjob);
    QVERIFY(isReported(recorder, name));
    QCOMPARE(subjob.GetXmlString(), before);
}

void TstJobXmlHandler::parameterSet_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("part");
    const char* rows[][2] = {
        {"AntennaSettings", "AntennaSettings"},
        {"ADemSettings", "Audio_Settings"},
        {"DF_Settings", "DF_Settings"},
        {"DSCSettings", "DSC_Settings"},
        {"DDemSettings", "Demodulator_Settings"},
        {"ClassifierSettings", "Classification_Settings"},
        {"TunerSettings", "FFM_Settings"},
        {"FFTSettings", "FFTSettings"},
        {"ScanSettings", "Scan_Settings"},
        {"ShortTime_Settings", "ShortTime_Settings"},
        {"AlarmSettings", "AlarmSettings"},
        {"EDSettings", "EDSettings"},
        {"JobAutomaticSettings", "JobAutomaticSettings"},
        {"SignalDescriptions", "SignalDescriptions"},
        {"FHPJobSettings", "ST_Settings"},
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << row[0] << row[1];
}

void TstJobXmlHandler::parameterSet()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    JedTest::TraceRecorder recorder;
    Settings settings;
    fill(settings, "Settings", SETTINGS_PARTS);
    QMap<QString, QString> expected = values(settings);
    QCOMPARE(expected.size(), SETTINGS_PARTS.size());
    QCOMPARE(expected.value(part), QString("1"));
    expected[part] = "2";
    JobXmlHandler::getInstance()->addParameterSetObject(name, element(part, 2), settings);
    QCOMPARE(values(settings), expected);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::parameterSetWithoutAPlace_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"ActivityGeneration", "CompressionSettings", "StorageSettings", "AutoRecordingSettings"})
        QTest::newRow(name) << name;
}

void TstJobXmlHandler::parameterSetWithoutAPlace()
{
    QFETCH(QString, name);
    JedTest::TraceRecorder recorder;
    Settings settings;
    fill(settings, "Settings", SETTINGS_PARTS);
    const QString before = settings.GetXmlString();
    for (const QString& root : SETTINGS_PARTS)
        JobXmlHandler::getInstance()->addParameterSetObject(name, element(root, 2), settings);
    JobXmlHandler::getInstance()->addParameterSetObject(name, QString("<%1/>").arg(name), settings);
    QCOMPARE(settings.GetXmlString(), before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::emptyParameterSetChangesNothing()
{
    JedTest::TraceRecorder recorder;
    Settings settings;
    fill(settings, "Settings", SETTINGS_PARTS);
    const QString before = settings.GetXmlString();
    for (const SetName& set : SET_NAMES) {
        JobXmlHandler::getInstance()->addParameterSetObject(set.name, "", settings);
        JobXmlHandler::getInstance()->addParameterSetObject(set.name, QString(), settings);
    }
    QCOMPARE(settings.GetXmlString(), before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::parameterSetOfUnknownNameIsReported_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"Foo", "", "scansettings", "FrequencyListSettings", "TransmitterListSettings",
                             "ActivityDetectionSettings", "Audio_Settings"})
        QTest::newRow(*name ? name : "empty") << name;
}

void TstJobXmlHandler::parameterSetOfUnknownNameIsReported()
{
    QFETCH(QString, name);
    JedTest::TraceRecorder recorder;
    Settings settings;
    fill(settings, "Settings", SETTINGS_PARTS);
    const QString before = settings.GetXmlString();
    JobXmlHandler::getInstance()->addParameterSetObject(name, element("Audio_Settings", 2), settings);
    QVERIFY(isReported(recorder, name));
    // The name is looked at before the text.
    JobXmlHandler::getInstance()->addParameterSetObject(name, "", settings);
    QVERIFY(isReported(recorder, name));
    QCOMPARE(settings.GetXmlString(), before);
}

void TstJobXmlHandler::unreadableParameterSetChangesNothing()
{
    JedTest::TraceRecorder recorder;
    Settings settings;
    fill(settings, "Settings", SETTINGS_PARTS);
    const QString before = settings.GetXmlString();
    for (const char* text : {"<AntennaSettings>", "no XML", "<DF_Settings/>", " "})
        JobXmlHandler::getInstance()->addParameterSetObject("AntennaSettings", text, settings);
    QCOMPARE(settings.GetXmlString(), before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandler::dscLeavesThreePartsOut()
{
    const QString text =
        "<DSC_Settings><Threshold>2</Threshold><HoldTime>7</HoldTime>"
        "<PriorityCriteria><MinimumLevel>3</MinimumLevel></PriorityCriteria>"
        "<ProduceCriteria><MinimumConfidence>4</MinimumConfidence></ProduceCriteria>"
        "<SpectralDetectorSettings><Profile>p</Profile></SpectralDetectorSettings></DSC_Settings>";
    Settings settings;
    QVERIFY(settings.GetDSC_Settings().SetXmlString(text, false));
    QVERIFY(settings.GetDSC_Settings().IsPriorityCriteriaSet());
    QVERIFY(settings.GetDSC_Settings().IsProduceCriteriaSet());
    QVERIFY(settings.GetDSC_Settings().IsSpectralDetectorSettingsSet());
    settings = Settings();

    JobXmlHandler::getInstance()->addParameterSetObject("DSCSettings", text, settings);
    const JobXml::DSC_Settings& dsc = settings.GetDSC_Settings();
    QVERIFY(!dsc.IsPriorityCriteriaSet());
    QVERIFY(!dsc.IsProduceCriteriaSet());
    QVERIFY(!dsc.IsSpectralDetectorSettingsSet());
    QCOMPARE(double(dsc.GetThreshold()), 2.0);
    QCOMPARE(int(dsc.GetHoldTime()), 7);
    QVERIFY(!settings.GetXmlString().contains("Criteria"));

    // Each part goes on its own, and what an earlier load left behind goes as well.
    JobXmlHandler::getInstance()->addParameterSetObject("DSCSettings",
                                                        "<DSC_Settings><ProduceCriteria><OnlyNewSignals>true<"
                                                        "/OnlyNewSignals></ProduceCriteria></DSC_Settings>",
                                                        settings);
    QVERIFY(!dsc.IsProduceCriteriaSet());
    QVERIFY(settings.GetDSC_Settings().SetXmlString(text, false));
    JobXmlHandler::getInstance()->addParameterSetObject("DSCSettings", "no XML", settings);
    QCOMPARE(int(settings.GetDSC_Settings().GetHoldTime()), 7);
    QVERIFY(!settings.GetDSC_Settings().IsPriorityCriteriaSet());
}

void TstJobXmlHandler::reportsFollowTheMask_data()
{
    QTest::addColumn<quint32>("mask");
    QTest::addColumn<int>("reports");
    QTest::newRow("errors") << 0x20u << 3;
    QTest::newRow("errors among others") << 0xFFu << 3;
    QTest::newRow("all but errors") << ~0x20u << 0;
    QTest::newRow("nothing") << 0u << 0;
}

void TstJobXmlHandler::reportsFollowTheMask()
{
    QFETCH(quint32, mask);
    JedTest::TraceRecorder recorder;
    const JedTest::TraceMask masked(mask);
    Subjob subjob;
    TransmitterItem item;
    JobXmlHandler::getInstance()->addSubjobSetting("Foo", "<Foo/>", subjob);
    JobXmlHandler::getInstance()->addParameterSetObject("Foo", "<Foo/>", subjob.GetSettings());
    JobXmlHandler::getInstance()->addTransmitterListSetting("Foo", "<Foo/>", item);
    QTEST(recorder.take().size(), "reports");
}

void TstJobXmlHandler::reportKeepsPlaceholders()
{
    JedTest::TraceRecorder recorder;
    Subjob subjob;
    JobXmlHandler::getInstance()->addSubjobSetting("%1 <%2>", "", subjob);
    QVERIFY(isReported(recorder, "%1 <%2>"));
}

QTEST_GUILESS_MAIN(TstJobXmlHandler)
#include "tst_jobxmlhandler.moc"
