#include "jobxmlhandler.h"

#include "common/tracing_p.h"

#include <jobxml/job.h>

namespace JEDVEPLUGIN {

namespace {

using Element = REPORTGENERATOR::IRGObject;
using Handler = JobXmlHandler;
using SettingType = JobXmlHandler::enJOB_SETTING_TYPES;
using JobXml::Settings;
using JobXml::Subjob;
using JobXml::TransmitterItem;

struct ParameterSet
{
    QLatin1String name;
    SettingType type;
};
const ParameterSet PARAMETER_SETS[] = {
    {QLatin1String("ActivityGeneration"), Handler::SETTING_ACTIVITY_GENERATION},
    {QLatin1String("AntennaSettings"), Handler::SETTING_ANTENNA},
    {QLatin1String("ADemSettings"), Handler::SETTING_ANALOG_DEMODULATOR},
    {QLatin1String("DF_Settings"), Handler::SETTING_DF},
    {QLatin1String("DDemSettings"), Handler::SETTING_DIGITAL_DEMODULATOR},
    {QLatin1String("ClassifierSettings"), Handler::SETTING_CLASSIFIER},
    {QLatin1String("TunerSettings"), Handler::SETTING_TUNER},
    {QLatin1String("FFTSettings"), Handler::SETTING_FFT},
    {QLatin1String("ScanSettings"), Handler::SETTING_SCAN},
    {QLatin1String("ShortTime_Settings"), Handler::SETTING_SHORT_TIME},
    {QLatin1String("AlarmSettings"), Handler::SETTING_ALARM},
    {QLatin1String("StorageSettings"), Handler::SETTING_STORAGE},
    {QLatin1String("EDSettings"), Handler::SETTING_ED},
    {QLatin1String("DSCSettings"), Handler::SETTING_DSC},
    {QLatin1String("JobAutomaticSettings"), Handler::SETTING_JOB_AUTOMATIC},
    {QLatin1String("AutoRecordingSettings"), Handler::SETTING_AUTO_RECORDING},
    {QLatin1String("SignalDescriptions"), Handler::SETTING_SIGNAL_DESCRIPTIONS},
    {QLatin1String("FHPJobSettings"), Handler::SETTING_FHP_JOB},
    {QLatin1String("CompressionSettings"), Handler::SETTING_COMPRESSION},
};

// Where a parameter set goes: an element inside an object of the job file.
template <typename Key, typename Owner>
struct Place
{
    Key key;
    Element& (*element)(Owner&);
};

const Place<QLatin1String, Subjob> SUBJOB_PLACES[] = {
    {QLatin1String("ActivityGeneration"), [](Subjob& s) -> Element& { return s.GetActivityGeneration(); }},
    {QLatin1String("AutoRecordingSettings"),
     [](Subjob& s) -> Element& { return s.GetAutoRecordingSettings(); }},
    {QLatin1String("CompressionSettings"), [](Subjob& s) -> Element& { return s.GetCompressionSettings(); }},
};

const Place<SettingType, Settings> SETTINGS_PLACES[] = {
    {Handler::SETTING_ANTENNA, [](Settings& s) -> Element& { return s.GetAntennaSettings(); }},
    {Handler::SETTING_ANALOG_DEMODULATOR, [](Settings& s) -> Element& { return s.GetAudio_Settings(); }},
    {Handler::SETTING_DF, [](Settings& s) -> Element& { return s.GetDF_Settings(); }},
    {Handler::SETTING_DSC, [](Settings& s) -> Element& { return s.GetDSC_Settings(); }},
    {Handler::SETTING_DIGITAL_DEMODULATOR,
     [](Settings& s) -> Element& { return s.GetDemodulator_Settings(); }},
    {Handler::SETTING_CLASSIFIER, [](Settings& s) -> Element& { return s.GetClassification_Settings(); }},
    {Handler::SETTING_TUNER, [](Settings& s) -> Element& { return s.GetFFM_Settings(); }},
    {Handler::SETTING_FFT, [](Settings& s) -> Element& { return s.GetFFTSettings(); }},
    {Handler::SETTING_SCAN, [](Settings& s) -> Element& { return s.GetScan_Settings(); }},
    {Handler::SETTING_FREQUENCY_LIST, [](Settings& s) -> Element& { return s.GetFrequencyListSettings(); }},
    {Handler::SETTING_TRANSMITTER_LIST,
     [](Settings& s) -> Element& { return s.GetTransmitterListSettings(); }},
    {Handler::SETTING_SHORT_TIME, [](Settings& s) -> Element& { return s.GetShortTime_Settings(); }},
    {Handler::SETTING_ALARM, [](Settings& s) -> Element& { return s.GetAlarmSettings(); }},
    {Handler::SETTING_ED, [](Settings& s) -> Element& { return s.GetEDSettings(); }},
    {Handler::SETTING_JOB_AUTOMATIC, [](Settings& s) -> Element& { return s.GetJobAutomaticSettings(); }},
    {Handler::SETTING_SIGNAL_DESCRIPTIONS, [](Settings& s) -> Element& { return s.GetSignalDescriptions(); }},
    {Handler::SETTING_FHP_JOB, [](Settings& s) -> Element& { return s.GetST_Settings(); }},
};

const Place<SettingType, TransmitterItem> ITEM_PLACES[] = {
    {Handler::SETTING_ANALOG_DEMODULATOR,
     [](TransmitterItem& i) -> Element& { return i.GetAudio_Settings(); }},
    {Handler::SETTING_DF, [](TransmitterItem& i) -> Element& { return i.GetDF_Settings(); }},
    {Handler::SETTING_TUNER, [](TransmitterItem& i) -> Element& { return i.GetFFM_Settings(); }},
    {Handler::SETTING_FFT, [](TransmitterItem& i) -> Element& { return i.GetFFTSettings(); }},
};

template <typename Key, typename Owner, size_t COUNT, typename Wanted>
Element* findElement(const Place<Key, Owner> (&places)[COUNT], const Wanted& wanted, Owner& owner)
{
    for (const auto& place : places) {
        if (place.key == wanted)
            return &place.element(owner);
    }
    return nullptr;
}

void traceUnsupported(int line, const QString& name)
{
    traceError({TracePoints::JOB_XML_HANDLER, line},
               QStringLiteral("The parameter set <%1> is not supported by the job file structure").arg(name));
}

// What the job file must not carry from a plug-in's set.
void stripForeignParts(JobXml::DSC_Settings& dsc)
{
    if (dsc.IsPriorityCriteriaSet())
        dsc.ResetPriorityCriteria();
    if (dsc.IsProduceCriteriaSet())
        dsc.ResetProduceCriteria();
    if (dsc.IsSpectralDetectorSettingsSet())
        dsc.ResetSpectralDetectorSettings();
}

// An item of a transmitter list has no scan settings of its own, only some of their values.
void takeScanDetail(const QString& xml, JobXml::Detail& target)
{
    JobXml::Scan_Settings scan;
    scan.SetXmlString(xml, false);
    const JobXml::Detail& source = scan.GetRange().GetDetail();
    target.SetThreshold(source.GetThreshold());
    if (source.IsDwellTimeSet())
        target.SetDwellTime(source.GetDwellTime());
    if (source.IsSignalTimeSet())
        target.SetSignalTime(source.GetSignalTime());
    if (source.IsMeasurementTimeSet())
        target.SetMeasurementTime(source.GetMeasurementTime());
}

} // namespace

JobXmlHandler JobXmlHandler::m_instance;

JobXmlHandler* JobXmlHandler::getInstance()
{
    return &m_instance;
}

const QString JobXmlHandler::getParameterSetName(const enJOB_SETTING_TYPES& type) const
{
    return typeToName.value(type);
}

const JobXmlHandler::enJOB_SETTING_TYPES JobXmlHandler::getSettingType(const QString& name) const
{
    return nameToType.value(name, SETTING_UNKNOWN);
}

void JobXmlHandler::addSubjobSetting(const QString& name, const QString& xml, JobXml::Subjob& subjob)
{
    if (Element* element = findElement(SUBJOB_PLACES, name, subjob))
        element->SetXmlString(xml, false);
    else
        traceUnsupported(__LINE__, name);
}

void JobXmlHandler::addParameterSetObject(const QString& name, const QString& xml, JobXml::Settings& settings)
{
    if (!nameToType.contains(name))
        return traceUnsupported(__LINE__, name);
    if (xml.isEmpty())
        return;
    const SettingType type = nameToType.value(name);
    if (Element* element = findElement(SETTINGS_PLACES, type, settings))
        element->SetXmlString(xml, false);
    if (type == SETTING_DSC)
        stripForeignParts(settings.GetDSC_Settings());
}

void JobXmlHandler::addTransmitterListSetting(const QString& name, const QString& xml,
                                              JobXml::TransmitterItem& item)
{
    if (!nameToType.contains(name))
        return traceUnsupported(__LINE__, name);
    if (xml.isEmpty())
        return;
    const SettingType type = nameToType.value(name);
    if (Element* element = findElement(ITEM_PLACES, type, item))
        element->SetXmlString(xml, false);
    else if (type == SETTING_SCAN)
        takeScanDetail(xml, item.GetDetail());
}

JobXmlHandler::JobXmlHandler()
{
    for (const ParameterSet& set : PARAMETER_SETS)
        nameToType.insert(set.name, set.type);
    for (auto it = nameToType.cbegin(); it != nameToType.cend(); ++it)
        typeToName.insert(it.value(), it.key());
}

} // namespace JEDVEPLUGIN
