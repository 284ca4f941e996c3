#pragma once

#include <QList>
#include <QString>

namespace JobXml {
class Subjob;
}

namespace PluginKit {

/// What a user chooses about the detector of a sub-job, by the names of the job file. A plain value.
struct DetectorChoice
{
    bool isOn = false;
    QString type;
    bool hasProduction = false;
    QString recordLocation;
    bool separatesAutomatically = false;
    bool separatesByFilter = false;
    bool recombinesOnline = false;
    int channels = 0;
    QString baseResource;
    int minCoverage = 0; ///< percent
    bool recordsAutomatically = false;
};

/// What a dialog or widget of the library holds about the detector.
template <class Fields>
DetectorChoice detectorChoice(const Fields& fields, bool isOn)
{
    return {isOn,
            fields.getDetectorType(),
            fields.isProductionSet(),
            fields.getDetectorRecordLocation(),
            fields.isAutoSeparationSet(),
            fields.isFilterSeparationSet(),
            fields.isOnlineRecombinationSet(),
            fields.getDSCChannels(),
            fields.getDetectorBaseResource(),
            static_cast<int>(fields.getMinCoverage()),
            fields.isAutoRecordingSet()};
}

/// Makes the first detector of a sub-job what was chosen, or takes it away. Fields that its kind does not have become
/// unset, and what is the same already stays as it was written.
void setDetector(const DetectorChoice& choice, JobXml::Subjob* subjob);

} // namespace PluginKit
