#include "frequencylistreport.h"

#include "texttable.h"

#include <freqstorexml/filehandling.h>
#include <freqstorexml/frequencystore.h>
#include <jobprofilefactory.h>
#include <jobxml/quantity.h>
#include <QCoreApplication>
#include <reportlayer/rgexception.h>

using FreqStoreXml::FrequencyStoreEntry;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyListReport)
};

QString hertzText(qint64 hertz)
{
    return JobXml::readableQuantity(QString::number(hertz), QStringLiteral("Hz"));
}

// What an entry sets, in words.
QStringList settingsOf(const FrequencyStoreEntry& entry)
{
    QStringList words;
    if (entry.IsFFM_SettingsSet())
        words << hertzText(entry.GetFFM_Settings().GetCenterFrequency())
              << hertzText(entry.GetFFM_Settings().GetBandwidth());
    if (entry.IsShortTime_SettingsSet())
        words << Texts::tr("short-time signals");
    if (entry.IsAudio_SettingsSet())
        words << FreqStoreXml::Audio_Settings::DemodulationToName(entry.GetAudio_Settings().GetDemodulation())
              << hertzText(entry.GetAudio_Settings().GetBandwidth());
    if (entry.IsDemodulator_SettingsSet())
        words << FreqStoreXml::Demodulator_Settings::ModulationToName(
            entry.GetDemodulator_Settings().GetModulation());
    return words;
}

QJsonObject entryJson(const FrequencyStoreEntry& entry)
{
    QJsonObject object{{QStringLiteral("id"), entry.GetProfile_Data().GetProfileID()},
                       {QStringLiteral("name"), entry.GetProfile_Data().GetProfileName()}};
    if (entry.IsFFM_SettingsSet()) {
        object.insert(QStringLiteral("frequency"), entry.GetFFM_Settings().GetCenterFrequency());
        object.insert(QStringLiteral("bandwidth"), entry.GetFFM_Settings().GetBandwidth());
    }
    if (entry.IsShortTime_SettingsSet())
        object.insert(QStringLiteral("shortTime"), true);
    if (entry.IsAudio_SettingsSet())
        object.insert(QStringLiteral("demodulation"), FreqStoreXml::Audio_Settings::DemodulationToName(
                                                          entry.GetAudio_Settings().GetDemodulation()));
    if (entry.IsDemodulator_SettingsSet())
        object.insert(QStringLiteral("modulation"), FreqStoreXml::Demodulator_Settings::ModulationToName(
                                                        entry.GetDemodulator_Settings().GetModulation()));
    return object;
}
} // namespace

namespace Session {

bool loadFrequencyList(const QString& path, FreqStoreXml::FrequencyStoreList* list, Findings* findings)
{
    try {
        const FreqStoreXml::FileHandling files;
        files.ImportXml(path, *list);
        return true;
    } catch (const REPORTGENERATOR::RGException& exception) {
        // The message begins with the path.
        findings->append({Finding::FAILURE, QString(), 0, 0, exception.GetMessage(),
                          Texts::tr("Lists of other programs are read by: jedtool freq import %1 --as FORMAT "
                                    "--out LIST")
                              .arg(path)});
    }
    return false;
}

Findings checkFrequencyList(const QString& path, FreqStoreXml::FrequencyStoreList* list)
{
    Findings findings;
    for (const REPORTGENERATOR::Problem& problem : list->problems())
        findings.append(
            {Finding::FAILURE, path, problem.line, problem.column + 1, problem.reason, QString()});
    list->SetValidate(true);
    if (findings.isEmpty() && !list->Check())
        findings.append({Finding::FAILURE, path, list->GetCheckLine(), list->GetCheckColumn() + 1,
                         list->GetCheckReason(), QString()});
    list->SetValidate(false);
    const std::shared_ptr<JEDVEPLUGIN::IJobProfile> profile =
        JEDVEPLUGIN::JobProfileFactory::getProfile(path);
    if (!profile || !profile->isApplicable())
        findings.append(
            {Finding::FAILURE, path, 0, 0, Texts::tr("no plug-in can use the list"),
             Texts::tr("It must have entries, and either all of them tuner settings or all of them "
                       "short-time settings.")});
    return findings;
}

QString frequencyEntryText(const FrequencyStoreEntry& entry)
{
    return settingsOf(entry).join(QLatin1String(", "));
}

QString frequencyListText(const FreqStoreXml::FrequencyStoreList& list)
{
    TextTable table;
    int number = 0;
    for (const FrequencyStoreEntry& entry : list.GetFrequencyStoreEntry())
        table.append(
            {QString::number(++number), entry.GetProfile_Data().GetProfileName(), frequencyEntryText(entry)});
    return table.toText();
}

QJsonObject frequencyListJson(const FreqStoreXml::FrequencyStoreList& list)
{
    QJsonArray entries;
    for (const FrequencyStoreEntry& entry : list.GetFrequencyStoreEntry())
        entries.append(entryJson(entry));
    return {{QStringLiteral("name"), list.GetName()}, {QStringLiteral("entries"), entries}};
}

} // namespace Session
