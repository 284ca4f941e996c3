#include <kit/kitfactory.h>

#include <jobprofilefactory.h>

#include <algorithm>
#include <freqstorexml/filehandling.h>
#include <freqstorexml/frequencystore.h>
#include <jobxml/settings.h>
#include <reportlayer/rgexception.h>

using JEDVEPLUGIN::IJobProfile;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JobXmlHandler;

namespace {
// What profiles can set.
const JobXmlHandler::enJOB_SETTING_TYPES PROFILE_SETS[] = {JobXmlHandler::SETTING_TUNER,
                                                           JobXmlHandler::SETTING_DIGITAL_DEMODULATOR,
                                                           JobXmlHandler::SETTING_SHORT_TIME};

// More sub-jobs than anybody can look after are not made.
const int MAX_ENTRIES = 1000;

QString nameOf(JobXmlHandler::enJOB_SETTING_TYPES type)
{
    return JobXmlHandler::getInstance()->getParameterSetName(type);
}

// The node in a subtree that carries a parameter set, null if there is none.
ISubSetting* carrierOf(const QString& set, ISubSetting* node)
{
    if (node->parameterSetNames().contains(set))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (ISubSetting* const found = carrierOf(set, node->child(i)))
            return found;
    }
    return nullptr;
}

// Gives a sub-job what an entry says. Whether the sub-job carries any of it.
bool applyEntry(IJobProfile& profile, int entry, ISubSetting* subjob)
{
    bool isApplied = false;
    for (const JobXmlHandler::enJOB_SETTING_TYPES type : profile.getSettingTypes(entry)) {
        const QString set = nameOf(type);
        ISubSetting* const carrier = carrierOf(set, subjob);
        QString xml = carrier ? carrier->parameterSetText(set) : QString();
        if (carrier && profile.modifySetting(entry, type, xml))
            isApplied = carrier->setParameterSetText(set, xml) || isApplied;
    }
    return isApplied;
}

// The entries of a list; none if the file is none.
QVector<FreqStoreXml::FrequencyStoreEntry> entriesOf(const QString& file)
{
    FreqStoreXml::FrequencyStoreList list;
    try {
        const FreqStoreXml::FileHandling files;
        files.ImportXml(file, list);
    } catch (const REPORTGENERATOR::RGException&) {
        return {};
    }
    return list.GetFrequencyStoreEntry();
}

// Analogue demodulation is in the list, but profiles do not hand it out.
bool applyAudio(const FreqStoreXml::FrequencyStoreEntry& entry, ISubSetting* subjob)
{
    const QString set = nameOf(JobXmlHandler::SETTING_ANALOG_DEMODULATOR);
    ISubSetting* const carrier = entry.IsAudio_SettingsSet() ? carrierOf(set, subjob) : nullptr;
    JobXml::Audio_Settings listed;
    JobXml::Audio_Settings present;
    return carrier && listed.SetXmlString(entry.GetAudio_Settings().GetXmlString(), false) &&
           present.SetXmlString(carrier->parameterSetText(set), false) && present.TakeOver(listed) &&
           carrier->setParameterSetText(set, present.GetXmlString());
}
} // namespace

namespace PluginKit {

bool KitFactory::supportsImportProfile() const
{
    const auto isProfileSet = [](const QString& set) {
        return std::any_of(std::begin(PROFILE_SETS), std::end(PROFILE_SETS),
                           [&set](auto type) { return set == nameOf(type); });
    };
    return std::any_of(
        m_declaration.types.cbegin(), m_declaration.types.cend(), [&isProfileSet](const SettingType& type) {
            return std::any_of(type.parameterSets.cbegin(), type.parameterSets.cend(), isProfileSet);
        });
}

bool KitFactory::canImportProfile(const ISubSetting* setting)
{
    const auto found = std::find(subSettings.cbegin(), subSettings.cend(), setting);
    return found != subSettings.cend() && !isReadOnly() &&
           std::any_of(std::begin(PROFILE_SETS), std::end(PROFILE_SETS),
                       [found](auto type) { return carrierOf(nameOf(type), *found); });
}

QList<ISubSetting*> KitFactory::importProfile(const QString& file, ISubSetting* parent)
{
    QList<ISubSetting*> made;
    const std::shared_ptr<IJobProfile> profile =
        canImportProfile(parent) ? JEDVEPLUGIN::JobProfileFactory::getProfile(file) : nullptr;
    if (!profile || !profile->isApplicable())
        return made;
    const QVector<FreqStoreXml::FrequencyStoreEntry> entries = entriesOf(file);
    const QString original = parent->getMimeText(0);
    for (int entry = 0; entry < std::min(profile->getEntryCount(), MAX_ENTRIES); ++entry) {
        ISubSetting* const subjob = entry == 0 ? parent : pasteMimeText(original, nullptr);
        if (!subjob)
            break;
        bool isApplied = applyEntry(*profile, entry, subjob);
        isApplied = (entry < entries.size() && applyAudio(entries.at(entry), subjob)) || isApplied;
        if (isApplied)
            subjob->setDisplayName(profile->getProfileName(entry));
        if (subjob == parent)
            continue;
        if (isApplied)
            made.append(subjob);
        else
            deleteSubSetting(subjob);
    }
    return made;
}

} // namespace PluginKit
