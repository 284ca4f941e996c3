#include <jobxml/job.h>
#include <jobxml/settings.h>
#include <jobxml/tunerproperties.h>
#include <support/settingfields.h>

#include <QCoreApplication>
#include <QSet>

using JedTest::PathAndField;
using JedTest::settingFields;
using EnumPointer = const REPORTGENERATOR::EnumTable*;
Q_DECLARE_METATYPE(EnumPointer)

using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;
using REPORTGENERATOR::FieldKind;
using REPORTGENERATOR::ParameterSet;

/// What the schemas promise to operators and to the library: parameter sets worth editing, and the names and numbers
/// that decisions are made by.
class TstParameterSets : public QObject
{
    Q_OBJECT
private slots:
    void namesAndElements_data();
    void namesAndElements();
    void sixFieldsOfThreeKinds_data();
    void sixFieldsOfThreeKinds();
    void operatorSeesLabelsAndHelp_data();
    void operatorSeesLabelsAndHelp();
    void unitsAndTypes_data();
    void unitsAndTypes();
    void defaultsAreInRange_data();
    void defaultsAreInRange();
    void guiTextsDifferFromNames_data();
    void guiTextsDifferFromNames();
    void freshSetIsValid_data();
    void freshSetIsValid();
    void scanHasAThresholdBelowItsRange();
    void jobTypeNumbers();
    void resourceTypeNumbers();
    void detectorTypeNumbers();
    void startupModes();
    void recordLocations();
    void unknownNamesGiveMinusOne();
    void settingsBlockHasOneElementPerGetter();
    void subjobHasItsOwnSets();
    void optionalPartsOfTheSignalChannels();
    void optionalTimesOfATransmitter();
    void signalDescriptionTakesAFrequencyList();
    void listsKeepTheOrderOfTheJob();
    void valueItemChoices();

private:
    void addSets();
};

namespace {

struct SetElement
{
    const char* set;
    const char* element;
};

const SetElement SETS[] = {
    {"ActivityGeneration", "ActivityGeneration"},
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
    {"StorageSettings", "StorageSettings"},
    {"EDSettings", "EDSettings"},
    {"JobAutomaticSettings", "JobAutomaticSettings"},
    {"AutoRecordingSettings", "AutoRecordingSettings"},
    {"SignalDescriptions", "SignalDescriptions"},
    {"FHPJobSettings", "ST_Settings"},
    {"CompressionSettings", "CompressionSettings"},
    {"ActivityDetectionSettings", "ActivityDetectionSettings"},
};

const ElementTable& tableOf(const QString& set)
{
    const ParameterSet* found = JobXml::findParameterSet(set);
    return found ? *found->table : JobXml::Settings::fieldTable();
}

QString kindOf(const Field& field)
{
    static const char* const NAMES[] = {"boolean", "int",  "long", "float",
                                        "float",   "text", "time", "enumeration"};
    return field.list ? QStringLiteral("list") : QLatin1String(NAMES[static_cast<int>(field.kind)]);
}

std::unique_ptr<REPORTGENERATOR::IRGObject> makeElement(const QString& set)
{
    return std::unique_ptr<REPORTGENERATOR::IRGObject>(tableOf(set).create());
}

} // namespace

void TstParameterSets::addSets()
{
    QTest::addColumn<QString>("set");
    for (const SetElement& row : SETS)
        QTest::newRow(row.set) << QString::fromLatin1(row.set);
}

void TstParameterSets::namesAndElements_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("element");
    for (const SetElement& row : SETS)
        QTest::newRow(row.set) << QString::fromLatin1(row.set) << QString::fromLatin1(row.element);
}

void TstParameterSets::namesAndElements()
{
    QFETCH(QString, set);
    QFETCH(QString, element);

    const ParameterSet* found = JobXml::findParameterSet(set);

    QVERIFY(found);
    QCOMPARE(QString::fromLatin1(found->table->elementName), element);
    QVERIFY(!found->label().isEmpty());
    QCOMPARE(JobXml::parameterSets().size(), int(std::size(SETS)));
}

void TstParameterSets::sixFieldsOfThreeKinds_data()
{
    addSets();
}

void TstParameterSets::sixFieldsOfThreeKinds()
{
    QFETCH(QString, set);
    const ElementTable& table = tableOf(set);

    QSet<QString> kinds;
    int count = 0;
    for (int i = 0; i < table.fieldCount; ++i) {
        if (table.fields[i].kind == FieldKind::Element)
            continue;
        kinds.insert(kindOf(table.fields[i]));
        ++count;
    }

    QVERIFY2(count >= 6, qPrintable(QString::number(count)));
    QVERIFY2(kinds.size() >= 3, qPrintable(kinds.values().join(' ')));
}

void TstParameterSets::operatorSeesLabelsAndHelp_data()
{
    addSets();
}

void TstParameterSets::operatorSeesLabelsAndHelp()
{
    QFETCH(QString, set);

    for (const PathAndField& row : settingFields(tableOf(set), true)) {
        QVERIFY2(row.field->labelText && *row.field->labelText, qPrintable(row.path));
        QVERIFY2(row.field->help().endsWith('.'), qPrintable(row.path));
    }
}

void TstParameterSets::unitsAndTypes_data()
{
    addSets();
}

void TstParameterSets::unitsAndTypes()
{
    QFETCH(QString, set);

    for (const PathAndField& row : settingFields(tableOf(set), true)) {
        const QString name = row.path.section('.', -1);
        const char* const where = row.field->name;
        if (row.field->unit() == "Hz")
            QVERIFY2(row.field->kind == FieldKind::Long, where);
        if (name.endsWith("Frequency"))
            QVERIFY2(row.field->unit() == "Hz", where);
        if (row.field->unit() == "ms")
            QVERIFY2(row.field->kind == FieldKind::Int || row.field->kind == FieldKind::Long, where);
        if ((name.endsWith("Time") || name.endsWith("Duration")) && row.field->kind != FieldKind::DateTime)
            QVERIFY2(row.field->unit() == "ms", where);
        if (name.endsWith("Threshold") && name != "QualityThreshold")
            QCOMPARE(row.field->unit(), QString::fromUtf8("dBµV"));
    }
}

void TstParameterSets::defaultsAreInRange_data()
{
    addSets();
}

void TstParameterSets::defaultsAreInRange()
{
    QFETCH(QString, set);

    for (const PathAndField& row : settingFields(tableOf(set), true)) {
        const Field& field = *row.field;
        if (field.list)
            continue;
        if (field.kind == FieldKind::Enumeration)
            QVERIFY2(!field.enumeration->name(int(field.defaultInteger)).isEmpty(), qPrintable(row.path));
        else if (field.kind == FieldKind::Float || field.kind == FieldKind::Double)
            QVERIFY2(field.isInRange(field.defaultReal), qPrintable(row.path));
        else if (field.isNumber())
            QVERIFY2(field.isInRange(field.defaultInteger), qPrintable(row.path));
    }
}

void TstParameterSets::guiTextsDifferFromNames_data()
{
    QTest::addColumn<EnumPointer>("enumeration");
    QSet<const void*> seen;
    const ElementTable* roots[] = {&JobXml::Job::fieldTable(), &JobXml::TunerProperties::fieldTable(),
                                   &JobXml::StorageSettings::fieldTable(),
                                   &JobXml::ActivityDetectionSettings::fieldTable()};
    for (const ElementTable* root : roots) {
        for (const PathAndField& row : settingFields(*root, true)) {
            if (row.field->enumeration && !seen.contains(row.field->enumeration)) {
                seen.insert(row.field->enumeration);
                QTest::newRow(qPrintable(row.path)) << row.field->enumeration;
            }
        }
    }
}

void TstParameterSets::guiTextsDifferFromNames()
{
    QFETCH(EnumPointer, enumeration);

    const QStringList names = enumeration->allNames();
    const QStringList texts = enumeration->allGuiTexts();

    QCOMPARE(names.size(), texts.size());
    QVERIFY(names.size() >= 2);
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY(names.at(i) != texts.at(i));
        QVERIFY2(!names.contains(texts.at(i)), qPrintable(texts.at(i)));
    }
    QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), texts.size());
}

void TstParameterSets::freshSetIsValid_data()
{
    addSets();
}

void TstParameterSets::freshSetIsValid()
{
    QFETCH(QString, set);
    const auto empty = makeElement(set);
    const QString name = QString::fromLatin1(empty->table().elementName);

    // An element without content gets all that is required, and that is valid.
    QVERIFY(empty->SetXmlString("<" + name + "/>", false));
    const QString text = empty->GetXmlString();
    const auto read = makeElement(set);
    read->SetValidate(true);

    QVERIFY2(read->SetXmlString(text, false), qPrintable(read->GetCheckReason()));
    QVERIFY(read->Check());
    QCOMPARE(read->GetXmlString(), text);
}

void TstParameterSets::scanHasAThresholdBelowItsRange()
{
    JobXml::Scan_Settings scan;
    scan.GetRange().GetDetail().SetThreshold(7.5);

    QVERIFY(scan.IsRangeSet());
    QVERIFY(scan.GetRange().GetDetail().IsThresholdSet());
    QVERIFY(!scan.GetRange().GetDetail().IsDwellTimeSet());
    QVERIFY(scan.GetXmlString().contains("<Threshold>7.5</Threshold>"));
}

void TstParameterSets::jobTypeNumbers()
{
    const QStringList expected{"Production", "Search", "Surveillance", "DFScan", "Measurement"};

    QCOMPARE(JobXml::JobInformation::GetJobTypes(), expected);
    QCOMPARE(JobXml::JobInformation::GetGUIJobTypes().size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(int(JobXml::JobInformation::NameToJobType(expected.at(i))), i);
}

void TstParameterSets::resourceTypeNumbers()
{
    const QStringList types = JobXml::ResourceDescription::GetTypes();

    QCOMPARE(types.size(), 5);
    QCOMPARE(types.mid(0, 3), (QStringList{"HT720", "TRV9KScanSettings", "DirectionFinder"}));
    QCOMPARE(JobXml::TunerProperties::Gettypes(), types);
    QCOMPARE(JobXml::TunerProperties::GetGUItypes(), JobXml::ResourceDescription::GetGUITypes());
    for (int i = 0; i < types.size(); ++i) {
        QCOMPARE(int(JobXml::ResourceDescription::NameToType(types.at(i))), i);
        QCOMPARE(JobXml::TunerProperties::typeToName(static_cast<JobXml::TunerProperties::type>(i)),
                 types.at(i));
    }
}

void TstParameterSets::detectorTypeNumbers()
{
    const QStringList types = JobXml::Detector::GetTypes();

    QVERIFY(types.size() >= 3);
    QCOMPARE(JobXml::Detector::GetGUITypes().size(), types.size());
    for (int i = 0; i < types.size(); ++i)
        QCOMPARE(int(JobXml::Detector::NameToType(types.at(i))), i);
}

void TstParameterSets::startupModes()
{
    const QStringList modes = JobXml::Subjob::GetStartupModes();

    QVERIFY(modes.size() >= 4);
    QCOMPARE(modes.at(3), QString("Permanent"));
    QCOMPARE(JobXml::Subjob::GetGUIStartupModes().size(), modes.size());
    QCOMPARE(JobXml::StartupModes::GetStartupModes(), modes);
    QCOMPARE(JobXml::StartupModes::GetGUIStartupModes(), JobXml::Subjob::GetGUIStartupModes());
}

void TstParameterSets::recordLocations()
{
    QVERIFY(JobXml::ResourceDescription::GetRecordLocations().size() >= 3);
    QCOMPARE(JobXml::ResourceDescription::GetGUIRecordLocations().size(),
             JobXml::ResourceDescription::GetRecordLocations().size());
    QVERIFY(JobXml::Detector::GetRecordLocations().size() >= 2);
    QCOMPARE(JobXml::Detector::GetGUIRecordLocations().size(), JobXml::Detector::GetRecordLocations().size());
}

void TstParameterSets::unknownNamesGiveMinusOne()
{
    QCOMPARE(int(JobXml::ResourceDescription::NameToType("ht720")), -1);
    QCOMPARE(int(JobXml::ResourceDescription::NameToType(QString())), -1);
    QCOMPARE(int(JobXml::ResourceDescription::NameToRecordLocation("At the receiver")), -1);
    QCOMPARE(int(JobXml::Detector::NameToRecordLocation("nowhere")), -1);
    QCOMPARE(int(JobXml::JobInformation::NameToJobType("production")), -1);
    QVERIFY(
        JobXml::ResourceDescription::TypeToName(static_cast<JobXml::ResourceDescription::Type>(-1)).isNull());
    QVERIFY(!JobXml::findParameterSet("tunersettings"));
}

void TstParameterSets::settingsBlockHasOneElementPerGetter()
{
    JobXml::Settings settings;
    REPORTGENERATOR::IRGObject* const elements[] = {
        &settings.GetAntennaSettings(),
        &settings.GetAudio_Settings(),
        &settings.GetDF_Settings(),
        &settings.GetDSC_Settings(),
        &settings.GetDemodulator_Settings(),
        &settings.GetClassification_Settings(),
        &settings.GetFFM_Settings(),
        &settings.GetFFTSettings(),
        &settings.GetScan_Settings(),
        &settings.GetFrequencyListSettings(),
        &settings.GetTransmitterListSettings(),
        &settings.GetShortTime_Settings(),
        &settings.GetAlarmSettings(),
        &settings.GetEDSettings(),
        &settings.GetJobAutomaticSettings(),
        &settings.GetSignalDescriptions(),
        &settings.GetST_Settings(),
    };
    QCOMPARE(JobXml::Settings::fieldTable().fieldCount, int(std::size(elements)));
    QVERIFY(!settings.isSet());

    for (REPORTGENERATOR::IRGObject* element : elements) {
        const QString name = QString::fromLatin1(element->table().elementName);
        QVERIFY(element->SetXmlString("<" + name + "/>", false));
        QVERIFY2(settings.GetXmlString().contains("<" + name + ">") ||
                     settings.GetXmlString().contains("<" + name + "/>"),
                 qPrintable(name));
    }
}

void TstParameterSets::subjobHasItsOwnSets()
{
    JobXml::Subjob subjob;
    QVERIFY(subjob.GetActivityGeneration().SetXmlString("<ActivityGeneration/>", false));
    QVERIFY(subjob.GetAutoRecordingSettings().SetXmlString("<AutoRecordingSettings/>", false));
    QVERIFY(subjob.GetCompressionSettings().SetXmlString("<CompressionSettings/>", false));

    QVERIFY(subjob.IsActivityGenerationSet());
    QVERIFY(subjob.IsAutoRecordingSettingsSet());
    QVERIFY(subjob.IsCompressionSettingsSet());
}

void TstParameterSets::optionalPartsOfTheSignalChannels()
{
    JobXml::DSC_Settings channels;
    QVERIFY(!channels.IsPriorityCriteriaSet());
    channels.GetPriorityCriteria().SetWeight(40);
    channels.GetProduceCriteria().SetOnlyNewSignals(true);
    channels.GetSpectralDetectorSettings().SetProfile("marine");
    QVERIFY(channels.IsPriorityCriteriaSet());
    QVERIFY(channels.IsProduceCriteriaSet());
    QVERIFY(channels.IsSpectralDetectorSettingsSet());

    channels.ResetPriorityCriteria();
    channels.ResetProduceCriteria();
    channels.ResetSpectralDetectorSettings();

    const QString text = channels.GetXmlString();
    QVERIFY(!text.contains("Criteria"));
    QVERIFY(!text.contains("SpectralDetectorSettings"));
}

void TstParameterSets::optionalTimesOfATransmitter()
{
    JobXml::TransmitterItem item;
    item.GetDetail().SetThreshold(3);
    item.GetDetail().SetDwellTime(20);

    QVERIFY(item.IsDetailSet());
    QVERIFY(item.GetDetail().IsDwellTimeSet());
    QVERIFY(!item.GetDetail().IsSignalTimeSet());
    QVERIFY(!item.GetDetail().IsMeasurementTimeSet());
    QVERIFY(!item.IsAudio_SettingsSet());
    QVERIFY(!item.IsFFM_SettingsSet());
}

void TstParameterSets::signalDescriptionTakesAFrequencyList()
{
    JobXml::FrequencyStoreList list;
    list.SetName("Coast");
    list.AppendFrequencyStoreEntry(JobXml::FrequencyStoreEntry());
    JobXml::SignalDescription description;
    description.SetFrequencyStoreList(list);
    JobXml::SignalDescriptions descriptions;
    descriptions.AppendSignalDescription(description);

    JobXml::SignalDescriptions read;
    QVERIFY(read.SetXmlString(descriptions.GetXmlString(), false));

    QCOMPARE(read.GetSignalDescription().size(), 1);
    QCOMPARE(read.GetSignalDescription().at(0).GetFrequencyStoreList().GetName(), QString("Coast"));
}

void TstParameterSets::listsKeepTheOrderOfTheJob()
{
    JobXml::Job job;
    for (const char* name : {"second", "first", "third"}) {
        JobXml::Subjob subjob;
        subjob.SetName(name);
        job.AppendSubjob(subjob);
    }

    JobXml::Job read;
    QVERIFY(read.SetXmlString(job.GetXmlString(true), true));

    QStringList names;
    for (const JobXml::Subjob& subjob : qAsConst(read).GetSubjob())
        names << subjob.GetName();
    QCOMPARE(names, (QStringList{"second", "first", "third"}));
}

void TstParameterSets::valueItemChoices()
{
    const QStringList expected{"ValueBoolean",      "ValueFloat",      "ValueInt",          "ValueInt64",
                               "ValueNumericFloat", "ValueNumericInt", "ValueNumericInt64", "ValueSelection",
                               "ValueString",       "ValueStringList"};

    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(JobXml::ValueItem::ChoiceValueItemToName(i), expected.at(i));
    QVERIFY(JobXml::ValueItem::ChoiceValueItemToName(expected.size()).isNull());
    QCOMPARE(JobXml::ValueItem().GetChoiceValueItem(), -1);
}

QTEST_GUILESS_MAIN(TstParameterSets)
#include "tst_parametersets.moc"
