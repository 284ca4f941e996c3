#pragma once

#include "jedvepb_export.h"

#include <QtCore/QHash>
#include <QtCore/QString>

namespace JobXml {
class Settings;
class Subjob;
class TransmitterItem;
} // namespace JobXml

namespace JEDVEPLUGIN {

/// Knows where in a job file a parameter set belongs, and loads its XML text into that place. The text is
/// that of the one element; what cannot be read leaves the element as it was. One for the process, never
/// changed after the library is loaded. GUI thread only.
class JEDVEPB_EXPORT JobXmlHandler
{
public:
    /// The parameter sets by number. The numbers are part of the binary interface.
    enum enJOB_SETTING_TYPES : int {
        SETTING_UNKNOWN = -1, ///< what an unknown name is converted to
        SETTING_ACTIVITY_GENERATION = 0,
        SETTING_ANTENNA = 1,
        SETTING_ANALOG_DEMODULATOR = 2,
        SETTING_DF = 3,
        SETTING_DSC = 4,
        SETTING_DIGITAL_DEMODULATOR = 5,
        SETTING_CLASSIFIER = 6,
        SETTING_TUNER = 7,
        SETTING_FFT = 8,
        SETTING_SCAN = 9,
        SETTING_FREQUENCY_LIST = 10,   ///< has a place in the job file, but no parameter set
        SETTING_TRANSMITTER_LIST = 11, ///< likewise
        SETTING_SHORT_TIME = 12,
        SETTING_ALARM = 13,
        SETTING_STORAGE = 14,
        SETTING_ED = 15,
        SETTING_JOB_AUTOMATIC = 16,
        SETTING_AUTO_RECORDING = 17,
        SETTING_SIGNAL_DESCRIPTIONS = 18,
        SETTING_FHP_JOB = 19,
        SETTING_COMPRESSION = 20
    };

    JobXmlHandler(const JobXmlHandler& other) = default;
    JobXmlHandler(JobXmlHandler&& other) = default;
    JobXmlHandler& operator=(const JobXmlHandler& other) = default;
    JobXmlHandler& operator=(JobXmlHandler&& other) = default;

    /// Never null; belongs to the library.
    static JobXmlHandler* getInstance();

    /// Empty for a number without a name.
    const QString getParameterSetName(const enJOB_SETTING_TYPES& type) const;
    /// \param name  case counts
    /// \return -1 for an unknown name
    const enJOB_SETTING_TYPES getSettingType(const QString& name) const;

    /// Loads "ActivityGeneration", "AutoRecordingSettings" or "CompressionSettings" into a sub-job; an empty
    /// text is handed on, too. Any other name is traced and changes nothing.
    void addSubjobSetting(const QString& name, const QString& xml, JobXml::Subjob& subjob);
    /// Loads a parameter set into the settings of a sub-job. An unknown name is traced and changes nothing.
    /// An empty text changes nothing, nor does a set that the settings have no place for:
    /// "ActivityGeneration", "AutoRecordingSettings", "CompressionSettings", "StorageSettings". Of
    /// "DSCSettings" the priority criteria, the produce criteria and the spectral detector settings are left
    /// out.
    void addParameterSetObject(const QString& name, const QString& xml, JobXml::Settings& settings);
    /// Loads "ADemSettings", "DF_Settings", "TunerSettings" or "FFTSettings" into an item of a transmitter
    /// list; of "ScanSettings" it takes the threshold, and dwell, signal and measurement time as far as they
    /// are set; a scan text that cannot be read counts as an empty element. An unknown name is traced and
    /// changes nothing; an empty text and any other set change nothing.
    void addTransmitterListSetting(const QString& name, const QString& xml, JobXml::TransmitterItem& item);

private:
    JobXmlHandler();

    QHash<QString, enJOB_SETTING_TYPES> nameToType;
    QHash<enJOB_SETTING_TYPES, QString> typeToName;

    static JobXmlHandler m_instance;
};

} // namespace JEDVEPLUGIN
