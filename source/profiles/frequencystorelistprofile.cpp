#include "frequencystorelistprofile.h"

#include "common/tracing_p.h"

#include <freqstorexml/filehandling.h>
#include <jobxml/settings.h>
#include <reportlayer/rgexception.h>

using FreqStoreXml::FrequencyStoreEntry;
using REPORTGENERATOR::RGException;

namespace JEDVEPLUGIN {

namespace {
enum Kind { KIND_TUNER = 0, KIND_SHORT_TIME = 1, KIND_UNUSABLE = 2 };

// What a list counts as. An entry with both kinds of settings counts as what the entries before it are.
int kindOf(const QVector<FrequencyStoreEntry>& entries)
{
    int kind = KIND_UNUSABLE;
    for (const FrequencyStoreEntry& entry : entries) {
        if (entry.IsFFM_SettingsSet() && kind != KIND_SHORT_TIME) {
            kind = KIND_TUNER;
            continue;
        }
        if (!entry.IsShortTime_SettingsSet() || kind == KIND_TUNER)
            return KIND_UNUSABLE;
        kind = KIND_SHORT_TIME;
    }
    return kind;
}

// Null for an entry that does not exist.
const FrequencyStoreEntry* entryAt(const FreqStoreXml::FrequencyStoreList& list, int index)
{
    const QVector<FrequencyStoreEntry>& entries = list.GetFrequencyStoreEntry();
    return index >= 0 && index < entries.size() ? &entries.at(index) : nullptr;
}

// Merges the fields that are set in the profile's element into the element that the text holds.
template <typename Element>
bool merge(const REPORTGENERATOR::IRGObject& profile, QString& xml)
{
    Element source;
    source.SetValidate(false);
    Element target;
    target.SetValidate(false);
    if (!source.SetXmlString(profile.GetXmlString(), false) || !target.SetXmlString(xml, false) ||
        !target.TakeOver(source))
        return false;
    xml = target.GetXmlString();
    return true;
}

bool modify(const FrequencyStoreEntry& entry, JobXmlHandler::enJOB_SETTING_TYPES type, QString& xml)
{
    switch (type) {
    case JobXmlHandler::SETTING_DIGITAL_DEMODULATOR:
        return merge<JobXml::Demodulator_Settings>(entry.GetDemodulator_Settings(), xml);
    case JobXmlHandler::SETTING_TUNER:
        return merge<JobXml::FFM_Settings>(entry.GetFFM_Settings(), xml);
    case JobXmlHandler::SETTING_SHORT_TIME:
        return merge<JobXml::ShortTime_Settings>(entry.GetShortTime_Settings(), xml);
    default:
        return false;
    }
}

void appendDescription(const FreqStoreXml::FrequencyStoreList& storeList, QString& xml,
                       JobXml::SignalDescription& description)
{
    JobXml::SignalDescriptions descriptions;
    if (!xml.isEmpty() && !descriptions.SetXmlString(xml, false))
        throw RGException(QStringLiteral("invalid XML content"));
    JobXml::FrequencyStoreList list;
    if (!list.SetXmlString(storeList.GetXmlString(), false))
        throw RGException(QStringLiteral("invalid XML conversion"));
    list.SetName(QStringLiteral("Profile Import"));
    description.SetFrequencyStoreList(list);
    descriptions.AppendSignalDescription(description);
    xml = descriptions.GetXmlString();
}
} // namespace

FrequencyStoreListProfile::FrequencyStoreListProfile(const QString& file)
    : kind(KIND_UNUSABLE)
{
    FreqStoreXml::FileHandling().ImportXml(file, storeList);
    kind = kindOf(storeList.GetFrequencyStoreEntry());
}

int FrequencyStoreListProfile::getEntryCount() const
{
    return storeList.GetFrequencyStoreEntry().size();
}

QList<JobXmlHandler::enJOB_SETTING_TYPES> FrequencyStoreListProfile::getSettingTypes(int index) const
{
    QList<JobXmlHandler::enJOB_SETTING_TYPES> types;
    const FrequencyStoreEntry* const entry = entryAt(storeList, index);
    if (!entry)
        return types;
    types.append(entry->IsFFM_SettingsSet() ? JobXmlHandler::SETTING_TUNER
                                            : JobXmlHandler::SETTING_SHORT_TIME);
    if (entry->IsDemodulator_SettingsSet())
        types.append(JobXmlHandler::SETTING_DIGITAL_DEMODULATOR);
    return types;
}

QString FrequencyStoreListProfile::getProfileID(int index) const
{
    const FrequencyStoreEntry* const entry = entryAt(storeList, index);
    return entry && entry->IsProfile_DataSet() ? entry->GetProfile_Data().GetProfileID() : QString();
}

QString FrequencyStoreListProfile::getProfileName(int index) const
{
    const FrequencyStoreEntry* const entry = entryAt(storeList, index);
    return entry && entry->IsProfile_DataSet() ? entry->GetProfile_Data().GetProfileName() : QString();
}

bool FrequencyStoreListProfile::modifySetting(int index, const JobXmlHandler::enJOB_SETTING_TYPES& type,
                                              QString& xml)
{
    try {
        const FrequencyStoreEntry* const entry = entryAt(storeList, index);
        return entry && modify(*entry, type, xml);
    } catch (const RGException& exception) {
        traceError({TracePoints::FREQUENCY_STORE_LIST_PROFILE, __LINE__},
                   QStringLiteral("FrequenyStoreListProfile::modifySetting - RGException: ") +
                       exception.GetMessage());
    } catch (...) {
        traceError({TracePoints::FREQUENCY_STORE_LIST_PROFILE, __LINE__},
                   QStringLiteral("FrequenyStoreListProfile::modifySetting - Exception caught"));
    }
    return false;
}

bool FrequencyStoreListProfile::isApplicable() const
{
    return kind < KIND_UNUSABLE;
}

bool FrequencyStoreListProfile::importSignalDescription(QString& xml, JobXml::SignalDescription& description)
{
    if (!isApplicable())
        return false;
    try {
        appendDescription(storeList, xml, description);
        return true;
    } catch (const RGException& exception) {
        traceError({TracePoints::FREQUENCY_STORE_LIST_PROFILE, __LINE__},
                   QStringLiteral("FrequencyStoreListProfile::importSignalDescription: ") +
                       exception.GetMessage());
    } catch (...) {
        // Other failures have no message of their own, and nothing may leave.
        return false;
    }
    return false;
}

bool FrequencyStoreListProfile::isShortTimeProfile() const
{
    return kind == KIND_SHORT_TIME;
}

} // namespace JEDVEPLUGIN
