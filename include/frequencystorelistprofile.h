#pragma once

#include "ijobprofile.h"
#include "jedvepb_export.h"

#include <freqstorexml/frequencystore.h>

namespace JEDVEPLUGIN {

/// A frequency-store list as a profile: each entry holds the settings of a tuner or those for short-time signals,
/// and those of a demodulator. GUI thread only.
class JEDVEPB_EXPORT FrequencyStoreListProfile final : public IJobProfile
{
public:
    /// Reads the file.
    /// \throw REPORTGENERATOR::RGException if the file cannot be read; JobProfileFactory catches it
    explicit FrequencyStoreListProfile(const QString& file);

    int getEntryCount() const override;
    QList<JobXmlHandler::enJOB_SETTING_TYPES> getSettingTypes(int index) const override;
    QString getProfileID(int index) const override;
    QString getProfileName(int index) const override;
    bool modifySetting(int index, const JobXmlHandler::enJOB_SETTING_TYPES& type, QString& xml) override;
    bool isApplicable() const override;
    bool importSignalDescription(QString& xml, JobXml::SignalDescription& description) override;
    bool isShortTimeProfile() const override;

private:
    FreqStoreXml::FrequencyStoreList storeList;
    int kind; // 0: tuner settings, 1: short-time settings, 2: empty or mixed.
};

} // namespace JEDVEPLUGIN
