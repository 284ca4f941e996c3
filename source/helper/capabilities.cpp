#include "jedcommonhelper.h"

#include <algorithm>

namespace JEDVEPLUGIN {

namespace {

using ResourceType = JobXml::ResourceDescription::Type;
using DetectorType = JobXml::Detector::Type;

// The job file's numbers; their names are the job file library's.
constexpr ResourceType R0 = ResourceType(0);
constexpr ResourceType R1 = ResourceType(1);
constexpr ResourceType R2 = ResourceType(2);
constexpr ResourceType R3 = ResourceType(3);
constexpr ResourceType R4 = ResourceType(4);
constexpr DetectorType D1 = DetectorType(1);
constexpr DetectorType D2 = DetectorType(2);

struct ResourceRow
{
    ResourceType resource;
    bool hasAutonomousSCPs;
    int defaultRecordLocation; // index of the GUI texts
};

const ResourceRow RECORDING_RESOURCES[] = {
    {R0, true, 1},
    {R1, true, 2},
    {R2, false, 2},
};

struct OfferedDetector
{
    ResourceType resource;
    DetectorType detector;
    bool hasDSCChannel;
};

// In the order in which a resource offers its detectors.
const OfferedDetector OFFERED_DETECTORS[] = {
    {R0, D1, true},
    {R0, D2, true},
    {R1, D1, false},
};

const ResourceRow* rowOf(ResourceType resource)
{
    const auto isIt = [resource](const ResourceRow& row) { return row.resource == resource; };
    const auto row = std::find_if(std::begin(RECORDING_RESOURCES), std::end(RECORDING_RESOURCES), isIt);
    return row == std::end(RECORDING_RESOURCES) ? nullptr : row;
}

const OfferedDetector* rowOf(ResourceType resource, DetectorType detector)
{
    const auto isIt = [resource, detector](const OfferedDetector& row) {
        return row.resource == resource && row.detector == detector;
    };
    const auto row = std::find_if(std::begin(OFFERED_DETECTORS), std::end(OFFERED_DETECTORS), isIt);
    return row == std::end(OFFERED_DETECTORS) ? nullptr : row;
}

const QStringList& detectorTypeNames()
{
    static const QStringList names = JobXml::Detector::GetTypes();
    return names;
}

const QStringList& detectorTypeTexts()
{
    static const QStringList texts = JobXml::Detector::GetGUITypes();
    return texts;
}

QString translated(const QString& text, const QStringList& from, const QStringList& to)
{
    const int index = from.indexOf(text);
    return index < 0 ? text : to.value(index);
}

} // namespace

// In this order: the table is the last to be built.
const JobXml::ResourceDescription JEDCommonHelper::s_ResDescConversionObject;
const JobXml::Detector JEDCommonHelper::s_DetectorConversionObject;
const QHash<JobXml::ResourceDescription::Type, int> JEDCommonHelper::s_compResTypeHash = createResTypeHash();

bool JEDCommonHelper::supportsDetector(const JEDVE::enJOB_TYPE& jobType)
{
    return jobType != JEDVE::JOB_TYPE_SURVEILLANCE;
}

bool JEDCommonHelper::supportsDetectorType(const JobXml::ResourceDescription::Type& resource,
                                           const JobXml::Detector::Type& detector)
{
    return rowOf(resource, detector) != nullptr;
}

bool JEDCommonHelper::supportsDSCChannel(const JobXml::ResourceDescription::Type& resource,
                                         const JobXml::Detector::Type& detector)
{
    const OfferedDetector* row = rowOf(resource, detector);
    return row && row->hasDSCChannel;
}

bool JEDCommonHelper::supportsAutonomousSCPs(const JobXml::ResourceDescription::Type& resource)
{
    const ResourceRow* row = rowOf(resource);
    return row && row->hasAutonomousSCPs;
}

bool JEDCommonHelper::supportsAutonomousSCPs(const QString& resource)
{
    return supportsAutonomousSCPs(s_ResDescConversionObject.NameToType(resource));
}

bool JEDCommonHelper::supportsAutonomousSCPs(const JobXml::Detector::Type& detector)
{
    return detector == D1;
}

bool JEDCommonHelper::supportsDetectorBaseResource(const JobXml::Detector::Type& detector)
{
    return detector == D1 || detector == D2;
}

bool JEDCommonHelper::supportsProduction(const JobXml::Detector::Type& detector)
{
    return detector == D1;
}

bool JEDCommonHelper::supportsDetectorProcessingSettings(const JobXml::Detector::Type& detector)
{
    return detector == D2;
}

bool JEDCommonHelper::supportsMinCoverage(const JobXml::Detector::Type& detector)
{
    return detector == D2;
}

bool JEDCommonHelper::supportsAutoRecording(const JobXml::Detector::Type& detector)
{
    return detector == D2;
}

bool JEDCommonHelper::providesRecordLocation(const JobXml::ResourceDescription::Type& resource)
{
    return rowOf(resource) != nullptr;
}

bool JEDCommonHelper::providesRecordLocation(const QString& resource)
{
    return providesRecordLocation(s_ResDescConversionObject.NameToType(resource));
}

QStringList JEDCommonHelper::getAvailableDetectorTypes(const JobXml::ResourceDescription::Type& resource)
{
    QStringList texts;
    for (const OfferedDetector& row : OFFERED_DETECTORS) {
        if (row.resource == resource)
            texts.append(JobXml::Detector::GetGUITypes().value(row.detector));
    }
    return texts;
}

QStringList JEDCommonHelper::getAvailableDetectorTypes(const QString& resource)
{
    return getAvailableDetectorTypes(s_ResDescConversionObject.NameToType(resource));
}

QStringList JEDCommonHelper::getAvailableGUIRecordLocations(const JobXml::ResourceDescription::Type& resource)
{
    return providesRecordLocation(resource) ? JobXml::ResourceDescription::GetGUIRecordLocations()
                                            : QStringList();
}

QStringList JEDCommonHelper::getAvailableGUIRecordLocations(const QString& resource)
{
    return getAvailableGUIRecordLocations(s_ResDescConversionObject.NameToType(resource));
}

QString JEDCommonHelper::getDefaultGUIRecordLocation(const JobXml::ResourceDescription::Type& resource)
{
    const ResourceRow* row = rowOf(resource);
    return row ? JobXml::ResourceDescription::GetGUIRecordLocations().value(row->defaultRecordLocation)
               : QString();
}

QString JEDCommonHelper::getDefaultGUIRecordLocation(const QString& resource)
{
    return getDefaultGUIRecordLocation(s_ResDescConversionObject.NameToType(resource));
}

JobXml::ResourceDescription::RecordLocation JEDCommonHelper::getRecordLocation(const QString& name)
{
    return s_ResDescConversionObject.NameToRecordLocation(name);
}

JobXml::Detector::RecordLocation JEDCommonHelper::getDetectorRecordLocation(const QString& name)
{
    return s_DetectorConversionObject.NameToRecordLocation(name);
}

QString JEDCommonHelper::detectorTypeToGUI(const QString& name)
{
    return translated(name, detectorTypeNames(), detectorTypeTexts());
}

QString JEDCommonHelper::detectorTypeFromGUI(const QString& text)
{
    return translated(text, detectorTypeTexts(), detectorTypeNames());
}

// Stable, so that the order does not depend on the number of entries.
void JEDCommonHelper::sortResourceTypes(QList<JobXml::ResourceDescription::Type>& resources)
{
    std::stable_sort(resources.begin(), resources.end(), compResourceTypes);
}

void JEDCommonHelper::sortResourceTypes(QStringList& resources)
{
    std::stable_sort(resources.begin(), resources.end(), compResourceTypesS);
}

bool JEDCommonHelper::compResourceTypes(const JobXml::ResourceDescription::Type& a,
                                        const JobXml::ResourceDescription::Type& b)
{
    return s_compResTypeHash.value(a, -1) > s_compResTypeHash.value(b, -1);
}

bool JEDCommonHelper::compResourceTypesS(const QString& a, const QString& b)
{
    return compResourceTypes(s_ResDescConversionObject.NameToType(a),
                             s_ResDescConversionObject.NameToType(b));
}

QHash<JobXml::ResourceDescription::Type, int> JEDCommonHelper::createResTypeHash()
{
    return {{R2, 0}, {R1, 1}, {R3, 2}, {R4, 2}, {R0, 2}};
}

} // namespace JEDVEPLUGIN
