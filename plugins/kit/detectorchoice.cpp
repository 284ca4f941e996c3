#include <kit/detectorchoice.h>

#include <jedcommonhelper.h>
#include <jobxml/job.h>
#include <reportlayer/fieldaccess.h>

using JEDVEPLUGIN::JEDCommonHelper;

namespace {
QString flag(bool on)
{
    return on ? QStringLiteral("true") : QStringLiteral("false");
}

// An empty text means that the field has nothing to say.
void setField(JobXml::Detector* detector, const char* name, const QString& text)
{
    const QString path = QLatin1String(name);
    if (text.isEmpty())
        REPORTGENERATOR::resetField(*detector, path);
    else if (text != REPORTGENERATOR::fieldText(*detector, path))
        REPORTGENERATOR::setFieldText(*detector, path, text);
}
} // namespace

namespace PluginKit {

void setDetector(const DetectorChoice& choice, JobXml::Subjob* subjob)
{
    QVector<JobXml::Detector> detectors = std::as_const(*subjob).GetDetector();
    if (choice.isOn && detectors.isEmpty())
        detectors.append(JobXml::Detector());
    if (!choice.isOn) {
        detectors = detectors.mid(1);
        subjob->SetDetector(detectors);
        return;
    }
    const JobXml::Detector::Type type =
        static_cast<JobXml::Detector::Type>(JobXml::Detector::NameToType(choice.type));
    const auto onlyIf = [](bool has, const QString& text) { return has ? text : QString(); };
    const bool hasSeparation = JEDCommonHelper::supportsDetectorProcessingSettings(type);
    JobXml::Detector& detector = detectors.first();
    detector.SetType(type);
    setField(&detector, "Production",
             onlyIf(JEDCommonHelper::supportsProduction(type), flag(choice.hasProduction)));
    setField(&detector, "RecordLocation", choice.recordLocation);
    setField(&detector, "AutoSeparation", onlyIf(hasSeparation, flag(choice.separatesAutomatically)));
    setField(&detector, "FilterSeparation", onlyIf(hasSeparation, flag(choice.separatesByFilter)));
    setField(&detector, "OnlineRecombination", onlyIf(hasSeparation, flag(choice.recombinesOnline)));
    setField(&detector, "DSCChannels",
             onlyIf(JEDCommonHelper::supportsDetectorBaseResource(type), QString::number(choice.channels)));
    setField(&detector, "BaseResource", choice.baseResource);
    setField(&detector, "MinCoverage",
             onlyIf(JEDCommonHelper::supportsMinCoverage(type), QString::number(choice.minCoverage)));
    setField(&detector, "AutoRecording",
             onlyIf(JEDCommonHelper::supportsAutoRecording(type), flag(choice.recordsAutomatically)));
    subjob->SetDetector(detectors);
}

} // namespace PluginKit
