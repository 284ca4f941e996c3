#include "commandline.h"

#include <freqstorexml/frequencystore.h>
#include <jobxml/suggestion.h>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <session/frequencyimport.h>
#include <session/frequencylistreport.h>
#include <session/savefile.h>
#include <session/texttable.h>

using Session::FrequencyImport;
using Session::ImportedLine;

namespace JedTool {

namespace {
const char* const IMPORT_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Turns a list of another program into a frequency-store list, which plug-ins import as a profile. Tells "
    "for each entry\n"
    "what it becomes or why it is refused; the entries that are taken are written, and the exit code is 1 if "
    "any is refused.\n"
    "Modes are translated by a table for each format, and one without a counterpart is refused. An entry "
    "without a bandwidth\n"
    "gets the usual one of its mode.\n\n"
    "Example:  jedtool freq import bookmarks.csv --as gqrx --dry-run\n"
    "Next:     jedtool freq check list.xml\n");
const char* const CHECK_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool", "Reads a frequency-store list and checks it: schema, values, whether plug-ins can use it.\n\n"
               "Example:  jedtool freq check list.xml\n"
               "Next:     import the list in the job editor\n");
const char* const SHOW_DETAILS =
    QT_TRANSLATE_NOOP("jedtool", "Shows the entries of a frequency-store list.\n\n"
                                 "Example:  jedtool freq show list.xml --format json\n");

void printJson(const QJsonObject& object)
{
    print(QString::fromUtf8(QJsonDocument(object).toJson()));
}

ExitCode usageError(const QString& text)
{
    printError(Texts::tr("jedtool: %1").arg(text));
    printError(Texts::tr("Next: jedtool freq import --help"));
    return USAGE;
}

QJsonObject toJson(const ImportedLine& line)
{
    QJsonObject object{{QStringLiteral("line"), line.line},
                       {QStringLiteral("name"), line.name},
                       {QStringLiteral("frequency"), line.frequency},
                       {QStringLiteral("mode"), line.mode}};
    if (!line.isTaken()) {
        object.insert(QStringLiteral("refused"), line.reason);
        return object;
    }
    object.insert(QStringLiteral("becomes"), QJsonObject{{QStringLiteral("name"), line.entryName},
                                                         {QStringLiteral("frequency"), line.hertz},
                                                         {QStringLiteral("demodulation"), line.demodulation},
                                                         {QStringLiteral("bandwidth"), line.bandwidth}});
    return object;
}

QJsonObject toJson(const FrequencyImport& import, const QString& written)
{
    QJsonArray lines;
    for (const ImportedLine& line : import.lines)
        lines.append(toJson(line));
    return {{QStringLiteral("lines"), lines},
            {QStringLiteral("leftOut"), QJsonArray::fromStringList(import.leftOut)},
            {QStringLiteral("taken"), import.takenCount()},
            {QStringLiteral("refused"), import.refusedCount()},
            {QStringLiteral("file"), written.isEmpty() ? QJsonValue() : QJsonValue(written)}};
}

QString toText(const FrequencyImport& import, const QString& written)
{
    Session::TextTable table;
    for (const ImportedLine& line : import.lines)
        table.append({QString::number(line.line), line.name, line.frequency, line.mode, QStringLiteral("->"),
                      line.becomes()});
    QString text = table.toText();
    if (!import.leftOut.isEmpty())
        text += Texts::tr("Left out, since the list has no place for it: %1\n")
                    .arg(import.leftOut.join(QLatin1String(", ")));
    text += Texts::tr("Entries taken: %1, refused: %2\n")
                .arg(QString::number(import.takenCount()), QString::number(import.refusedCount()));
    if (!written.isEmpty())
        text += Texts::tr("%1: written\nNext: jedtool freq check %1\n").arg(written);
    return text;
}

// Null, or what is wrong with the options.
QString importFault(const Invocation& invocation)
{
    const QStringList formats = Session::frequencyFormats();
    const QString format = invocation.value(QStringLiteral("as"));
    const QString choice = formats.join(QLatin1String(", "));
    if (format.isNull())
        return Texts::tr("say with --as what the list is: %1").arg(choice);
    if (!formats.contains(format))
        return Texts::tr("there is no format \"%1\"; write one of %2.%3")
            .arg(format, choice, JobXml::suggestion(format, formats));
    if (!invocation.isSet(QStringLiteral("out")) && !invocation.isSet(QStringLiteral("dry-run")))
        return Texts::tr("say with --out which file to write, or --dry-run");
    return QString();
}

bool save(const FrequencyImport& import, const QString& source, const QString& target)
{
    const QString text = import.toList(QFileInfo(source).completeBaseName()).GetXmlString(true);
    QString reason;
    if (Session::saveFile(target, text.toUtf8(), &reason))
        return true;
    printFindings({{Session::Finding::FAILURE, target, 0, 0, Texts::tr("cannot be written: %1").arg(reason),
                    QFileInfo::exists(target) ? Texts::tr("The file is as it was before.") : QString()}});
    return false;
}

// The list as a whole.
ExitCode refuse(const Session::Finding& finding, bool isJson)
{
    if (isJson)
        printJson({{QStringLiteral("findings"), Session::toJson({finding})}});
    else
        printFindings({finding});
    return FINDINGS;
}

ExitCode importList(const Invocation& invocation)
{
    const QString fault = importFault(invocation);
    if (!fault.isNull())
        return usageError(fault);
    const QString source = invocation.arguments.first();
    const FrequencyImport import =
        Session::importFrequencyFile(source, invocation.value(QStringLiteral("as")));
    if (!import.failure.isEmpty())
        return refuse({Session::Finding::FAILURE, source, import.failureLine, 0,
                       Texts::tr("the list is refused: %1").arg(import.failure), QString()},
                      invocation.isJson);
    const bool isToWrite = !invocation.isSet(QStringLiteral("dry-run")) && import.takenCount() > 0;
    const QString target = isToWrite ? invocation.value(QStringLiteral("out")) : QString();
    if (isToWrite && !save(import, source, target))
        return INTERNAL;
    if (invocation.isJson)
        printJson(toJson(import, target));
    else
        print(toText(import, target));
    return import.refusedCount() > 0 ? FINDINGS : CLEAN;
}

ExitCode check(const Invocation& invocation)
{
    const QString path = invocation.arguments.first();
    FreqStoreXml::FrequencyStoreList list;
    Session::Findings findings;
    if (Session::loadFrequencyList(path, &list, &findings))
        findings += Session::checkFrequencyList(path, &list);
    if (invocation.isJson) {
        printJson({{QStringLiteral("file"), path}, {QStringLiteral("findings"), Session::toJson(findings)}});
    } else {
        for (const Session::Finding& finding : findings)
            print(finding.toText() + QLatin1Char('\n'));
        print(findings.isEmpty()
                  ? Texts::tr("%1: clean, entries: %2\n")
                        .arg(path, QString::number(list.GetFrequencyStoreEntry().size()))
                  : Texts::tr("%1: findings: %2\n").arg(path, QString::number(findings.size())));
    }
    return findings.isEmpty() ? CLEAN : FINDINGS;
}

ExitCode show(const Invocation& invocation)
{
    FreqStoreXml::FrequencyStoreList list;
    Session::Findings findings;
    if (!Session::loadFrequencyList(invocation.arguments.first(), &list, &findings)) {
        printFindings(findings);
        return FINDINGS;
    }
    if (invocation.isJson)
        printJson(Session::frequencyListJson(list));
    else
        print(Session::frequencyListText(list));
    return CLEAN;
}
} // namespace

Noun frequenciesNoun()
{
    const QVector<Option> importOptions{
        {"as", "FORMAT",
         QT_TRANSLATE_NOOP("jedtool",
                           "gqrx (bookmarks.csv), sdrsharp (frequencies.xml), sdrpp (JSON) or chirp (CSV)")},
        {"out", "LIST", QT_TRANSLATE_NOOP("jedtool", "the frequency-store list to write")},
        {"dry-run", nullptr, QT_TRANSLATE_NOOP("jedtool", "tell what would be done, write nothing")},
    };
    return {"freq",
            QT_TRANSLATE_NOOP("jedtool", "lists of frequencies"),
            {
                {"import", "FILE --as FORMAT --out LIST",
                 QT_TRANSLATE_NOOP("jedtool", "make a frequency-store list of another program's list"),
                 IMPORT_DETAILS, 1, 1, importOptions, importList, nullptr},
                {"show",
                 "LIST",
                 QT_TRANSLATE_NOOP("jedtool", "show the entries of a frequency-store list"),
                 SHOW_DETAILS,
                 1,
                 1,
                 {},
                 show,
                 nullptr},
                {"check",
                 "LIST",
                 QT_TRANSLATE_NOOP("jedtool", "check a frequency-store list"),
                 CHECK_DETAILS,
                 1,
                 1,
                 {},
                 check,
                 nullptr},
            }};
}

} // namespace JedTool
