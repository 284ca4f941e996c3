#include "commandline.h"

#include <jedabstractsubsettingfactory.h>
#include <jedcommonhelper.h>
#include <jobxml/job.h>
#include <jobxml/suggestion.h>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <resourcedescription.h>
#include <session/pluginhost.h>
#include <session/texttable.h>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::ResourceDescription;
using Session::PluginHost;
using Session::TextTable;

namespace JedTool {

namespace {
const char* const LIST_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Lists every file of the plug-in folders with its verdict: whether it is used, and if not, what is "
    "wrong with it and what to\ndo. The exit code is 1 if there is a file that is not "
    "used.\n\n"
    "Example:  jedtool plugin list --plugin-dir build/lib\n"
    "Next:     jedtool plugin inspect Search\n");
const char* const INSPECT_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Shows what a plug-in offers: the jobs that it can be used in, its kinds of settings with what can "
    "be created below each\nand how often, and for each receiver of the installation the "
    "jobs in which it takes sub-jobs on it.\n\n"
    "Example:  jedtool plugin inspect Search --format json\n");

const Option PLUGIN_DIR = {"plugin-dir", "DIR",
                           QT_TRANSLATE_NOOP("jedtool", "a further folder with plug-ins")};

void printJson(const QJsonDocument& document)
{
    print(QString::fromUtf8(document.toJson()));
}

QJsonObject toJson(const PluginHost::Plugin& plugin)
{
    QJsonObject object{{QStringLiteral("file"), QFileInfo(plugin.report.path).fileName()},
                       {QStringLiteral("verdict"), LibraryExaminer::verdictName(plugin.report.verdict)},
                       {QStringLiteral("interfaceVersion"), plugin.report.interfaceVersion}};
    if (plugin.factory)
        object.insert(QStringLiteral("name"), plugin.factory->getName());
    else
        object.insert(QStringLiteral("text"), plugin.report.text);
    return object;
}

ExitCode list(const Invocation& invocation)
{
    PluginHost host;
    host.load(pluginFolders(invocation));
    QJsonArray array;
    TextTable table;
    bool isClean = !host.plugins().empty();
    for (const PluginHost::Plugin& plugin : host.plugins()) {
        array.append(toJson(plugin));
        isClean = isClean && plugin.factory;
        table.append({QFileInfo(plugin.report.path).fileName(),
                      plugin.factory ? plugin.factory->getName() : QStringLiteral("-"),
                      plugin.factory ? plugin.factory->description() : plugin.report.text});
    }
    if (invocation.isJson)
        printJson(QJsonDocument(array));
    else
        print(table.toText());
    if (host.plugins().empty())
        printError(Texts::tr("jedtool: there are no files in the plug-in folders"));
    return isClean ? CLEAN : FINDINGS;
}

QStringList jobTypeNames(const QList<JEDVE::enJOB_TYPE>& types)
{
    QStringList names;
    for (const JEDVE::enJOB_TYPE type : types)
        names.append(JEDCommonHelper::JobTypeToString(type));
    return names;
}

struct Use
{
    QStringList jobs; // In which the plug-in takes a sub-job on a receiver.
    QString reason;   // Why there are none.
};

Use useOf(const ResourceDescription& resource, JEDSubSettingFactory* factory)
{
    JobXml::Subjob subjob;
    subjob.GetResourceDescription().SetType(JobXml::ResourceDescription::NameToType(resource.getType()));
    subjob.GetResourceDescription().SetBaseResource(resource.getBaseResource());
    Use use;
    for (const JEDVE::enJOB_TYPE type : factory->supportedJobTypes()) {
        factory->slot_setCurrentJobType(type);
        if (factory->claimsSubjob(subjob)) {
            use.jobs.append(JEDCommonHelper::JobTypeToString(type));
            continue;
        }
        QList<JEDVEPLUGIN::Problem> problems;
        factory->readSubjob(subjob, &problems);
        use.reason = problems.value(0).text;
    }
    return use;
}

QString countText(int count)
{
    return count == std::numeric_limits<int>::max() ? Texts::tr("any number") : QString::number(count);
}

QJsonObject inspectionToJson(JEDSubSettingFactory* factory)
{
    QJsonArray types;
    for (const QString& type : factory->supportedTypes(false)) {
        const int count = factory->getMaxCount(type);
        QJsonObject object{
            {QStringLiteral("type"), type},
            {QStringLiteral("label"), factory->settingDisplayName(type)},
            {QStringLiteral("children"), QJsonArray::fromStringList(factory->supportedTypesOf(type))}};
        if (count != std::numeric_limits<int>::max())
            object.insert(QStringLiteral("maximum"), count);
        types.append(object);
    }
    QJsonArray receivers;
    for (const auto& resource : ResourceDescription::readAllResourceFiles()) {
        const Use use = useOf(*resource, factory);
        QJsonObject object{{QStringLiteral("type"), resource->getType()},
                           {QStringLiteral("baseResource"), resource->getBaseResource()},
                           {QStringLiteral("jobs"), QJsonArray::fromStringList(use.jobs)}};
        if (use.jobs.isEmpty())
            object.insert(QStringLiteral("reason"), use.reason);
        receivers.append(object);
    }
    return {
        {QStringLiteral("name"), factory->getName()},
        {QStringLiteral("description"), factory->description()},
        {QStringLiteral("jobTypes"), QJsonArray::fromStringList(jobTypeNames(factory->supportedJobTypes()))},
        {QStringLiteral("settings"), types},
        {QStringLiteral("receivers"), receivers}};
}

QString inspectionToText(JEDSubSettingFactory* factory)
{
    TextTable types(2);
    for (const QString& type : factory->supportedTypes(false)) {
        const QString children = factory->supportedTypesOf(type).join(QLatin1String(", "));
        types.append({type, countText(factory->getMaxCount(type)),
                      children.isEmpty() ? QString() : Texts::tr("may have %1").arg(children)});
    }
    TextTable receivers(2);
    for (const auto& resource : ResourceDescription::readAllResourceFiles()) {
        const Use use = useOf(*resource, factory);
        const QString reason =
            use.reason.isEmpty() ? Texts::tr("not taken") : Texts::tr("not taken: %1").arg(use.reason);
        receivers.append({resource->getType() + QLatin1Char('/') + resource->getBaseResource(),
                          use.jobs.isEmpty() ? reason : use.jobs.join(QLatin1String(", "))});
    }
    return Texts::tr("%1: %2\nJobs: %3\nSettings:\n%4Receivers:\n%5")
        .arg(factory->getName(), factory->description(),
             jobTypeNames(factory->supportedJobTypes()).join(QLatin1String(", ")), types.toText(),
             receivers.toText());
}

ExitCode inspect(const Invocation& invocation)
{
    PluginHost host;
    host.load(pluginFolders(invocation));
    JEDSubSettingFactory* const factory = namedPlugin(host, invocation.arguments.value(0));
    if (!factory)
        return USAGE;
    if (invocation.isJson)
        printJson(QJsonDocument(inspectionToJson(factory)));
    else
        print(inspectionToText(factory));
    return CLEAN;
}
} // namespace

QStringList pluginFolders(const Invocation& invocation)
{
    QStringList folders;
    for (const auto& option : invocation.options) {
        if (option.first == QLatin1String(PLUGIN_DIR.name))
            folders.append(option.second);
    }
    return folders + PluginHost::defaultFolders();
}

JEDSubSettingFactory* namedPlugin(const PluginHost& host, const QString& name)
{
    if (JEDSubSettingFactory* const factory = host.factory(name))
        return factory;
    QStringList names;
    for (const JEDSubSettingFactory* present : host.factories())
        names.append(present->getName());
    printError(
        Texts::tr("jedtool: no plug-in is called \"%1\".%2").arg(name, JobXml::suggestion(name, names)));
    printError(Texts::tr("Next: jedtool plugin list"));
    return nullptr;
}

Noun pluginNoun()
{
    return {"plugin",
            QT_TRANSLATE_NOOP("jedtool", "the plug-ins of the job editor"),
            {
                {"list",
                 "",
                 QT_TRANSLATE_NOOP("jedtool", "list the files of the plug-in folders with their verdicts"),
                 LIST_DETAILS,
                 0,
                 0,
                 {PLUGIN_DIR},
                 list,
                 nullptr},
                {"inspect",
                 "NAME",
                 QT_TRANSLATE_NOOP("jedtool", "show what a plug-in offers"),
                 INSPECT_DETAILS,
                 1,
                 1,
                 {PLUGIN_DIR},
                 inspect,
                 nullptr},
            }};
}

} // namespace JedTool
