#include <kit/kitfactory.h>

#include <jobprofilefactory.h>

#include <algorithm>

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
    const QString original = parent->getMimeText(0);
    for (int entry = 0; entry < std::min(profile->getEntryCount(), MAX_ENTRIES); ++entry) {
        ISubSetting* const subjob = entry == 0 ? parent : pasteMimeText(original, nullptr);
        if (!subjob)
            break;
        const bool isApplied = applyEntry(*profile, entry, subjob);
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
