#include "listpreview.h"

#include "frequencyimport.h"
#include "frequencylistreport.h"
#include "savefile.h"

#include <algorithm>
#include <freqstorexml/filehandling.h>
#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <reportlayer/rgexception.h>

namespace {
const QString STORE = QStringLiteral("store");
constexpr int BEGINNING = 4096; // Bytes that a guess looks at.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::ListPreview)
};

void fillFromStore(const QString& path, const REPORTGENERATOR::ReadProgress& progress,
                   Session::ListPreview* preview)
{
    try {
        const FreqStoreXml::FileHandling files([&](int done, int total) {
            preview->isStopped = progress && !progress(done, total);
            return !preview->isStopped;
        });
        files.ImportXml(path, preview->list);
    } catch (const REPORTGENERATOR::RGException& exception) {
        preview->failure = exception.GetMessage();
        return;
    }
    for (const FreqStoreXml::FrequencyStoreEntry& entry : preview->list.GetFrequencyStoreEntry()) {
        const int position = preview->rows.size();
        preview->rows.append({position + 1, entry.GetProfile_Data().GetProfileName(), QString(),
                              Session::frequencyEntryText(entry), position});
    }
    if (preview->rows.isEmpty())
        preview->failure = Texts::tr("the list has no entries");
}

void fillFromImport(const QString& path, const Session::FrequencyImport& import,
                    Session::ListPreview* preview)
{
    preview->leftOut = import.leftOut;
    preview->isStopped = import.isStopped;
    if (!import.failure.isEmpty())
        preview->failure =
            import.failureLine > 0
                ? Texts::tr("line %1: %2").arg(QString::number(import.failureLine), import.failure)
                : import.failure;
    int entries = 0;
    for (const Session::ImportedLine& line : import.lines)
        preview->rows.append({line.line, line.name, (line.frequency + QLatin1Char(' ') + line.mode).trimmed(),
                              line.becomes(), line.isTaken() ? entries++ : -1});
    preview->list = import.toList(QFileInfo(path).completeBaseName());
}
} // namespace

namespace Session {

FreqStoreXml::FrequencyStoreList ListPreview::listOf(const QVector<int>& entries) const
{
    FreqStoreXml::FrequencyStoreList result;
    result.SetName(list.GetName());
    for (const int entry : entries)
        result.AppendFrequencyStoreEntry(list.GetFrequencyStoreEntry().value(entry));
    return result;
}

QStringList parameterSetsOf(const FreqStoreXml::FrequencyStoreList& list)
{
    struct Held
    {
        QLatin1String set;
        bool (FreqStoreXml::FrequencyStoreEntry::*isSet)() const;
    };
    static const Held HELD[] = {
        {QLatin1String("TunerSettings"), &FreqStoreXml::FrequencyStoreEntry::IsFFM_SettingsSet},
        {QLatin1String("ShortTime_Settings"), &FreqStoreXml::FrequencyStoreEntry::IsShortTime_SettingsSet},
        {QLatin1String("DDemSettings"), &FreqStoreXml::FrequencyStoreEntry::IsDemodulator_SettingsSet},
        {QLatin1String("ADemSettings"), &FreqStoreXml::FrequencyStoreEntry::IsAudio_SettingsSet},
    };
    const QVector<FreqStoreXml::FrequencyStoreEntry>& entries = list.GetFrequencyStoreEntry();
    QStringList sets;
    for (const Held& held : HELD) {
        if (std::any_of(entries.cbegin(), entries.cend(),
                        [&held](const auto& entry) { return (entry.*held.isSet)(); }))
            sets.append(held.set);
    }
    return sets;
}

QStringList listFormats()
{
    return QStringList{STORE} + frequencyFormats();
}

QString listFormatText(const QString& format)
{
    return format == STORE ? Texts::tr("Frequency-store list") : frequencyFormatText(format);
}

QString guessListFormat(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return STORE;
    const QString guess = guessFrequencyFormat(file.read(BEGINNING));
    return guess.isNull() ? STORE : guess;
}

ListPreview previewList(const QString& path, const QString& format,
                        const REPORTGENERATOR::ReadProgress& progress)
{
    ListPreview preview;
    if (format == STORE)
        fillFromStore(path, progress, &preview);
    else
        fillFromImport(path, importFrequencyFile(path, format, progress), &preview);
    return preview;
}

JobSession::Setting* importTarget(const JobSession& session, JobSession::Setting* current)
{
    JobSession::Factory* const factory = session.factoryOf(current);
    if (!factory || factory->isReadOnly() || !factory->supportsImportProfile())
        return nullptr;
    while (current && !factory->canImportProfile(current))
        current = current->parent();
    return current;
}

bool importList(JobSession* session, JobSession::Setting* target,
                const FreqStoreXml::FrequencyStoreList& list, QList<JobSession::Setting*>* made,
                QString* error)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.xml"));
    if (!saveFile(path, list.GetXmlString(true).toUtf8(), error))
        return false;
    if (session->importProfile(target, path, made))
        return true;
    *error = Texts::tr("the plug-in takes nothing of it");
    return false;
}

} // namespace Session
