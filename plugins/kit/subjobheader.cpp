#include <kit/subjobheader.h>

#include <jedcommonhelper.h>
#include <jobxml/job.h>
#include <reportlayer/fieldaccess.h>

namespace {
// All but the detectors, which are a list of groups.
const char* const HEADER_FIELDS[] = {
    "Name",
    "StartupMode",
    "PreClassifier",
    "ResourceDescription.Type",
    "ResourceDescription.BaseResource",
    "ResourceDescription.Name",
    "ResourceDescription.RecordLocation",
};

void copyField(const QString& path, const JobXml::Subjob& from, JobXml::Subjob* to)
{
    const QString text = REPORTGENERATOR::fieldText(from, path);
    const bool isSet = REPORTGENERATOR::isFieldSet(from, path);
    if (isSet == REPORTGENERATOR::isFieldSet(*to, path) &&
        (!isSet || text == REPORTGENERATOR::fieldText(*to, path)))
        return;
    if (isSet)
        REPORTGENERATOR::setFieldText(*to, path, text);
    else
        REPORTGENERATOR::resetField(*to, path);
}

QString textOf(const QVector<JobXml::Detector>& detectors)
{
    QString result;
    for (const JobXml::Detector& detector : detectors)
        result += detector.GetXmlString(false);
    return result;
}
} // namespace

namespace PluginKit {

JobXml::Subjob headerOf(const JobXml::Subjob& subjob)
{
    JobXml::Subjob header = subjob;
    header.ResetActivityGeneration();
    header.ResetAutoRecordingSettings();
    header.ResetCompressionSettings();
    header.ResetSettings();
    return header;
}

void writeHeader(const JobXml::Subjob& header, JobXml::Subjob* subjob)
{
    for (const char* field : HEADER_FIELDS)
        copyField(QLatin1String(field), header, subjob);
    if (textOf(header.GetDetector()) != textOf(std::as_const(*subjob).GetDetector()))
        subjob->SetDetector(header.GetDetector());
}

QList<JEDVEPLUGIN::ResourceUse> resourcesOf(const JobXml::Subjob& subjob, JEDVEPLUGIN::ISubSetting* setting)
{
    const JobXml::ResourceDescription& resource = subjob.GetResourceDescription();
    const QString type = JobXml::ResourceDescription::TypeToName(resource.GetType());
    QList<JEDVEPLUGIN::ResourceUse> result{{setting, type, resource.GetBaseResource(), 1}};
    for (const JobXml::Detector& detector : subjob.GetDetector()) {
        if (detector.GetDSCChannels() > 0 && !detector.GetBaseResource().isEmpty())
            result.append({setting, type, detector.GetBaseResource(), detector.GetDSCChannels()});
        for (const JobXml::AutonomousSCP& scp : detector.GetAutonomousSCP())
            result.append({setting, JobXml::AutonomousSCP::TypeToName(scp.GetType()), scp.GetBaseResource(),
                           scp.GetCount()});
    }
    return result;
}

QStringList startupModes(const QStringList& offered, JEDVE::enJOB_TYPE jobType)
{
    return JEDVEPLUGIN::JEDCommonHelper::restrictedStartupModes(
        offered.isEmpty() ? JobXml::Subjob::GetStartupModes() : offered,
        JEDVEPLUGIN::JEDCommonHelper::allowedStartupModeString(jobType));
}

} // namespace PluginKit
