#include "commandline.h"
#include "resourcetext.h"

#include <jobxml/suggestion.h>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <session/installation.h>
#include <session/resourcereport.h>

namespace JedTool {

namespace {
using Resources = QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>;

const char* const LIST_DETAILS =
    QT_TRANSLATE_NOOP("jedtool", "Lists the receivers that a job can use, as the library reads them from the "
                                 "installation. Files that it did not\n"
                                 "accept are counted, and the exit code is 1.\n\n"
                                 "Example:  jedtool resources list --installation /srv/station\n"
                                 "Next:     jedtool resources show HT720/HF-1\n");
const char* const SHOW_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Shows a receiver: start-up modes, components, and each value with its default and what it may be set "
    "to.\n"
    "NAME is TYPE/BASE, the receiver's own name, or BASE where only one type has it.\n\n"
    "Example:  jedtool resources show HT720/HF-1\n"
    "Next:     jedtool job new --type Search --resource HT720/HF-1 --set SET/FIELD=VALUE --out job.xml\n");
const char* const CHECK_DETAILS =
    QT_TRANSLATE_NOOP("jedtool", "Tells for each tuner property file whether the library accepts it and what "
                                 "is wrong with it: versions, schema,\n"
                                 "unknown components, parameter sets and fields, ranges and defaults; "
                                 "receivers that are described twice; parents that\n"
                                 "are missing or lead in a circle. With FILE, those files are checked as if "
                                 "they lay in the installation's folder.\n\n"
                                 "Examples: jedtool resources check\n"
                                 "          jedtool resources check new-receiver.xml --format json\n"
                                 "Next:     mend what is named, then check again\n");

void printJson(const QJsonValue& value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    print(QString::fromUtf8(document.toJson()));
}

ExitCode list(const Invocation& invocation)
{
    const Resources resources = JEDVEPLUGIN::ResourceDescription::readAllResourceFiles();
    if (invocation.isJson)
        printJson(resourcesToJson(resources));
    else
        print(resourcesToText(resources));
    const QString folder = Session::templateFolder();
    const int files = Session::resourceFiles(folder).size();
    if (resources.isEmpty())
        printError(Texts::tr("jedtool: there are no receivers in %1").arg(folder));
    else if (files > resources.size())
        printError(Texts::tr("jedtool: %1 of %2 files in %3 were not accepted")
                       .arg(QString::number(files - resources.size()), QString::number(files), folder));
    else
        return CLEAN;
    printError(Texts::tr("Next: jedtool resources check"));
    return FINDINGS;
}

// The resources that a person may mean: by TYPE/BASE or own name, else all with that base resource.
Resources meant(const QString& wanted, const Resources& resources)
{
    Resources byBase;
    for (const auto& resource : resources) {
        if (Session::resourceKey(*resource) == wanted || resource->getName() == wanted)
            return {resource};
        if (resource->getBaseResource() == wanted)
            byBase.append(resource);
    }
    return byBase;
}

QStringList namesOf(const Resources& resources)
{
    QStringList names;
    for (const auto& resource : resources)
        names << Session::resourceKey(*resource) << resource->getName();
    return names;
}

ExitCode show(const Invocation& invocation)
{
    const QString wanted = invocation.arguments.first();
    const Resources resources = JEDVEPLUGIN::ResourceDescription::readAllResourceFiles();
    const Resources found = meant(wanted, resources);
    if (found.size() != 1) {
        const QString hint =
            found.isEmpty() ? JobXml::suggestion(wanted, namesOf(resources))
                            : Texts::tr(" Write one of %1.").arg(namesOf(found).join(QLatin1String(", ")));
        printError(
            Texts::tr("jedtool: no receiver of the installation is called \"%1\".%2").arg(wanted, hint));
        printError(Texts::tr("Next: jedtool resources list"));
        return USAGE;
    }
    if (invocation.isJson)
        printJson(resourceToJson(*found.first()));
    else
        print(resourceToText(*found.first()));
    return CLEAN;
}

// The files asked for, then, to compare with, those of the installation.
QList<Session::ResourceFile> examine(const QStringList& paths)
{
    QList<Session::ResourceFile> files;
    QStringList known;
    for (const QString& path : paths) {
        files.append(Session::examineResourceFile(path));
        known.append(QFileInfo(path).canonicalFilePath());
    }
    for (const QString& path : Session::resourceFiles(Session::templateFolder())) {
        if (!known.contains(QFileInfo(path).canonicalFilePath()))
            files.append(Session::examineResourceFile(path));
    }
    Session::compareResourceFiles(&files);
    return paths.isEmpty() ? files : files.mid(0, paths.size());
}

ExitCode check(const Invocation& invocation)
{
    const QList<Session::ResourceFile> files = examine(invocation.arguments);
    if (invocation.isJson)
        printJson(resourceFilesToJson(files));
    else
        print(resourceFilesToText(files));
    if (files.isEmpty()) {
        printError(Texts::tr("jedtool: there are no files in %1").arg(Session::templateFolder()));
        return FINDINGS;
    }
    for (const Session::ResourceFile& file : files) {
        if (Session::needsAttention(file.findings))
            return FINDINGS;
    }
    return CLEAN;
}
} // namespace

Noun resourcesNoun()
{
    return {"resources",
            QT_TRANSLATE_NOOP("jedtool", "the receivers of the installation"),
            {
                {"list",
                 "",
                 QT_TRANSLATE_NOOP("jedtool", "list the receivers that a job can use"),
                 LIST_DETAILS,
                 0,
                 0,
                 {},
                 list,
                 nullptr},
                {"show",
                 "NAME",
                 QT_TRANSLATE_NOOP("jedtool", "show a receiver and its values"),
                 SHOW_DETAILS,
                 1,
                 1,
                 {},
                 show,
                 nullptr},
                {"check",
                 "[FILE...]",
                 QT_TRANSLATE_NOOP("jedtool", "check tuner property files"),
                 CHECK_DETAILS,
                 0,
                 -1,
                 {},
                 check,
                 nullptr},
            }};
}

} // namespace JedTool
