#include "ruletrace.h"

#include <jedabstractsubsettingfactory.h>
#include <jedcommonhelper.h>
#include <jobxml/suggestion.h>
#include <jobxml/valuetext.h>
#include <kit/subjobtree.h>
#include <QDir>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <resourcedescription.h>
#include <ruletimelimit.h>
#include <session/fieldplaces.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/resourcereport.h>
#include <session/rulelog.h>
#include <session/savefile.h>
#include <session/sessionrunner.h>

using JEDVEPLUGIN::JEDAbstractSubSettingFactory;
using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::ResourceDescription;
using Session::Finding;
using Session::RuleChange;
using Session::RuleLog;
using Session::RuleRun;

namespace JedTool {

namespace {
const char* const DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Makes a sub-job of a plug-in, with FILE in place of the plug-in's rule file, and sets values one after "
    "the other, as an\n"
    "operator does it in the editor. Shows which rule functions ran, what each of them changed, and what "
    "went "
    "wrong. A rule\n"
    "that runs for more than five seconds is stopped. Without --resource the first receiver is taken that "
    "has all the values.\n\n"
    "Example:  jedtool rules trace installation/Rules/search.js --plugin Search --resource HT720/HF-1 \\\n"
    "              --set ADemSettings/Demodulation=AM\n"
    "Next:     jedtool rules check FILE\n");
constexpr int INDENT = 2;

struct Assignment
{
    QString path; // "SET/FIELD"
    QString text;
};

// What the command line asks for.
struct Request
{
    QString file;
    QByteArray script;
    QVector<Assignment> assignments;
    bool showsTimes = false;
};

// One value that was set.
struct Step
{
    Assignment assignment;
    QString before; // Empty if no setting had the field before.
    QString after;  // Before rules had their say.
    QVector<RuleLog::Run> runs;
};

struct Trace
{
    QString plugin;
    QString resource;
    QString jobType;
    QVector<Step> steps;
    Session::Findings findings;
};

ExitCode refuse(const QString& text, const QString& next = QStringLiteral("jedtool rules trace --help"))
{
    printError(Texts::tr("jedtool: %1").arg(text));
    printError(Texts::tr("Next: %1").arg(next));
    return USAGE;
}

// Null, or what is wrong with the command line.
QString readRequest(const Invocation& invocation, Request* request)
{
    request->file = invocation.arguments.first();
    request->showsTimes = invocation.isSet(QStringLiteral("times"));
    if (!invocation.isSet(QStringLiteral("plugin")))
        return Texts::tr("say with --plugin whose rules they are");
    for (const auto& option : invocation.options) {
        if (option.first != QLatin1String("set"))
            continue;
        const QString& value = option.second;
        if (!value.contains(QLatin1Char('=')))
            return Texts::tr("--set %1 has no \"=\"; write --set SET/FIELD=VALUE").arg(value);
        request->assignments.append(
            {value.section(QLatin1Char('='), 0, 0), value.section(QLatin1Char('='), 1)});
    }
    if (request->assignments.isEmpty())
        return Texts::tr("say with --set what is to be set");
    QString reason;
    if (!Session::readFile(request->file, &request->script, &reason))
        return Texts::tr("%1 cannot be read: %2").arg(request->file, reason);
    return QString();
}

JEDAbstractSubSettingFactory* findFactory(const Session::PluginHost& host, const QString& name,
                                          QStringList* names)
{
    for (const Session::PluginHost::Plugin& plugin : host.plugins()) {
        if (!plugin.factory)
            continue;
        names->append(plugin.factory->getName());
        if (names->last().compare(name, Qt::CaseInsensitive) == 0)
            return plugin.factory.get();
    }
    return nullptr;
}

// Puts the script where the plug-in looks for its own.
bool useScript(const QByteArray& script, const QTemporaryDir& folder, JEDAbstractSubSettingFactory* factory)
{
    const QString path = folder.filePath(factory->property("ruleFile").toString());
    if (!folder.isValid() || !Session::saveFile(path, script, nullptr))
        return false;
    factory->setRulesDir(folder.path());
    factory->initializeRuleEngine();
    return true;
}

// The first of the plug-in's types of jobs that takes a sub-job on the receiver; -1 if there is none.
int jobTypeOn(const ResourceDescription& resource, JEDAbstractSubSettingFactory* factory)
{
    JobXml::Subjob subjob;
    subjob.GetResourceDescription().SetType(JobXml::ResourceDescription::NameToType(resource.getType()));
    subjob.GetResourceDescription().SetBaseResource(resource.getBaseResource());
    for (const JEDVE::enJOB_TYPE type : factory->supportedJobTypes()) {
        factory->slot_setCurrentJobType(type);
        if (factory->claimsSubjob(subjob) && !Session::startupModes(resource, type).isEmpty())
            return type;
    }
    return -1;
}

// The path of the first value that the receiver lacks; null if it has them all.
QString missingValue(const ResourceDescription& resource, const Request& request, QStringList* paths)
{
    PluginKit::SubjobTree tree;
    tree.build(resource);
    *paths += tree.valuePaths();
    for (const Assignment& assignment : request.assignments) {
        if (!tree.value(assignment.path))
            return assignment.path;
    }
    return QString();
}

// Chooses receiver and type of job. Null, or why there are none.
QString chooseReceiver(const QString& wanted, const Request& request, JEDAbstractSubSettingFactory* factory,
                       Trace* trace)
{
    QStringList keys;
    QStringList paths;
    QString missing;
    for (const auto& resource : ResourceDescription::readAllResourceFiles()) {
        const int jobType = jobTypeOn(*resource, factory);
        if (jobType < 0)
            continue;
        keys.append(Session::resourceKey(*resource));
        if (!wanted.isEmpty() && keys.last() != wanted)
            continue;
        trace->resource = keys.last();
        trace->jobType = JEDCommonHelper::JobTypeToString(static_cast<JEDVE::enJOB_TYPE>(jobType));
        missing = missingValue(*resource, request, &paths);
        if (missing.isNull())
            return QString();
    }
    if (trace->resource.isEmpty())
        return wanted.isEmpty() ? Texts::tr("%1 can use no receiver of the installation").arg(trace->plugin)
                                : Texts::tr("%1 can use no receiver \"%2\".%3")
                                      .arg(trace->plugin, wanted, JobXml::suggestion(wanted, keys));
    return (wanted.isEmpty() ? Texts::tr("--set %1: no receiver that %2 can use has such a value.%3")
                             : Texts::tr("--set %1: the receiver %2 has no such value.%3"))
        .arg(missing, wanted.isEmpty() ? trace->plugin : wanted, JobXml::suggestion(missing, paths));
}

// Empty while no setting of the sub-job has the field.
QString readableField(const Session::JobSession& session, const QString& path)
{
    const QString set = path.section(QLatin1Char('/'), 0, 0);
    JEDVEPLUGIN::ISubSetting* const setting = Session::findCarrier(session.settingAt({0}), set);
    const ValueBase* const value =
        setting ? Session::fieldValue(setting, set, path.section(QLatin1Char('/'), 1)) : nullptr;
    return value ? JobXml::readableValue(*value, PluginKit::SubjobTree::field(path)) : QString();
}

bool runStep(Session::SessionRunner* runner, const QString& verb, const QStringList& arguments)
{
    Session::Scenario scenario;
    scenario.append(verb, arguments);
    return runner->run(scenario);
}

// Whether all values were set.
bool runSteps(const Request& request, JEDAbstractSubSettingFactory* factory, Trace* trace)
{
    RuleLog log;
    JEDVEPLUGIN::setRuleTimeLimit(Session::RULE_TIME_LIMIT);
    Session::JobSession session({factory});
    Session::SessionRunner runner(&session, nullptr);
    bool isDone = runStep(&runner, QStringLiteral("new"), {trace->jobType}) &&
                  runStep(&runner, QStringLiteral("add"), {trace->resource});
    for (const Assignment& assignment : request.assignments) {
        log.clear();
        Step step{assignment, readableField(session, assignment.path), QString(), {}};
        isDone = isDone && runStep(&runner, QStringLiteral("set"), {assignment.path, assignment.text});
        if (!isDone)
            break;
        step.runs = log.runs();
        step.after =
            step.runs.isEmpty() ? readableField(session, assignment.path) : step.runs.first()->trigger.after;
        if (!step.runs.isEmpty())
            step.before = step.runs.first()->trigger.before;
        trace->steps.append(step);
    }
    trace->findings = runner.findings();
    return isDone;
}

QString textOf(const RuleChange& change)
{
    return QStringLiteral("%1: %2 -> %3").arg(Session::fieldOfPath(change.path), change.before, change.after);
}

QString timeOf(const RuleRun& run)
{
    return Texts::tr(" (%1 ms)").arg(double(run.nanoseconds) / 1e6, 0, 'f', 3);
}

QString runToText(const RuleRun& run, const Request& request, int indent)
{
    const auto line = [](int blanks, const QString& text) {
        return QString(blanks, QLatin1Char(' ')) + text + QLatin1Char('\n');
    };
    QString result =
        line(indent, run.function + (run.isFunctionMissing ? Texts::tr(": not in the script") : QString()) +
                         (request.showsTimes ? timeOf(run) : QString()));
    indent += INDENT;
    for (const RuleChange& change : run.changes)
        result += line(indent, textOf(change));
    for (const JEDVEPLUGIN::RuleError& error : run.errors)
        result += line(
            indent,
            Finding{Finding::FAILURE, request.file, qMax(0, error.line), 0, error.text, QString()}.toText());
    if (run.isStopped)
        result += line(indent, Texts::tr("stopped: it ran too long"));
    for (const auto& inner : run.inner)
        result += runToText(*inner, request, indent);
    if (run.droppedRuns > 0)
        result += line(indent, Texts::tr("%1 more runs inside").arg(run.droppedRuns));
    return result;
}

QString toText(const Trace& trace, const Request& request)
{
    QString result = Texts::tr("%1 on %2, plug-in %3, job of type %4\n")
                         .arg(request.file, trace.resource, trace.plugin, trace.jobType);
    for (const Step& step : trace.steps) {
        const bool isChanged = !step.before.isEmpty() && step.before != step.after;
        result += isChanged ? textOf({step.assignment.path, step.before, step.after}) + QLatin1Char('\n')
                            : QStringLiteral("%1: %2\n").arg(step.assignment.path, step.after);
        if (step.runs.isEmpty())
            result += QString(INDENT, QLatin1Char(' ')) + Texts::tr("no rule runs\n");
        for (const RuleLog::Run& run : step.runs)
            result += runToText(*run, request, INDENT);
    }
    return result;
}

QJsonObject toJson(const RuleChange& change)
{
    return {{QStringLiteral("field"), Session::fieldOfPath(change.path)},
            {QStringLiteral("before"), change.before},
            {QStringLiteral("after"), change.after}};
}

QJsonObject toJson(const RuleRun& run, bool showsTimes)
{
    QJsonArray changes;
    for (const RuleChange& change : run.changes)
        changes.append(toJson(change));
    QJsonArray errors;
    for (const JEDVEPLUGIN::RuleError& error : run.errors)
        errors.append(QJsonObject{{QStringLiteral("line"), error.line},
                                  {QStringLiteral("text"), error.text},
                                  {QStringLiteral("isSyntaxError"), error.isSyntaxError}});
    QJsonArray inner;
    for (const auto& innerRun : run.inner)
        inner.append(toJson(*innerRun, showsTimes));
    QJsonObject result{{QStringLiteral("function"), run.function},
                       {QStringLiteral("trigger"), Session::fieldOfPath(run.trigger.path)},
                       {QStringLiteral("isFunctionMissing"), run.isFunctionMissing},
                       {QStringLiteral("isStopped"), run.isStopped},
                       {QStringLiteral("changes"), changes},
                       {QStringLiteral("errors"), errors},
                       {QStringLiteral("runs"), inner}};
    if (run.droppedRuns > 0)
        result.insert(QStringLiteral("furtherRuns"), run.droppedRuns);
    if (showsTimes)
        result.insert(QStringLiteral("milliseconds"), double(run.nanoseconds) / 1e6);
    return result;
}

QJsonObject toJson(const Trace& trace, const Request& request)
{
    QJsonArray steps;
    for (const Step& step : trace.steps) {
        QJsonArray runs;
        for (const RuleLog::Run& run : step.runs)
            runs.append(toJson(*run, request.showsTimes));
        QJsonObject object = toJson(RuleChange{step.assignment.path, step.before, step.after});
        object.insert(QStringLiteral("runs"), runs);
        steps.append(object);
    }
    return {{QStringLiteral("file"), request.file},
            {QStringLiteral("plugin"), trace.plugin},
            {QStringLiteral("resource"), trace.resource},
            {QStringLiteral("jobType"), trace.jobType},
            {QStringLiteral("steps"), steps},
            {QStringLiteral("findings"), Session::toJson(trace.findings)}};
}

bool hasFault(const RuleRun& run)
{
    bool result = run.isStopped || !run.errors.isEmpty();
    for (const auto& inner : run.inner)
        result = result || hasFault(*inner);
    return result;
}

bool hasFault(const Trace& trace)
{
    for (const Step& step : trace.steps) {
        for (const RuleLog::Run& run : step.runs) {
            if (hasFault(*run))
                return true;
        }
    }
    return false;
}

ExitCode run(const Invocation& invocation)
{
    Request request;
    QString fault = readRequest(invocation, &request);
    if (!fault.isNull())
        return refuse(fault);
    Session::PluginHost host;
    host.load(pluginFolders(invocation));
    const QString name = invocation.value(QStringLiteral("plugin"));
    QStringList names;
    JEDAbstractSubSettingFactory* const factory = findFactory(host, name, &names);
    if (!factory)
        return refuse(Texts::tr("no plug-in is called \"%1\".%2").arg(name, JobXml::suggestion(name, names)),
                      QStringLiteral("jedtool plugin list"));
    Trace trace;
    trace.plugin = factory->getName();
    if (factory->property("ruleFile").toString().isEmpty())
        return refuse(Texts::tr("the plug-in %1 has no rules").arg(trace.plugin));
    fault = chooseReceiver(invocation.value(QStringLiteral("resource")), request, factory, &trace);
    if (!fault.isNull())
        return refuse(fault, QStringLiteral("jedtool resources list"));
    const QTemporaryDir folder;
    if (!useScript(request.script, folder, factory)) {
        printError(Texts::tr("jedtool: there is no place for temporary files"));
        return INTERNAL;
    }
    const bool isDone = runSteps(request, factory, &trace);
    if (invocation.isJson)
        print(QString::fromUtf8(QJsonDocument(toJson(trace, request)).toJson()));
    else
        print(toText(trace, request));
    if (!invocation.isJson)
        printFindings(trace.findings);
    return !isDone ? USAGE : hasFault(trace) ? FINDINGS : CLEAN;
}
} // namespace

Verb ruleTraceVerb()
{
    return {"trace",
            "FILE --plugin NAME --set SET/FIELD=VALUE...",
            QT_TRANSLATE_NOOP("jedtool", "show which rules run, and what they change"),
            DETAILS,
            1,
            1,
            {{"plugin", "NAME", QT_TRANSLATE_NOOP("jedtool", "the plug-in whose rules they are")},
             {"plugin-dir", "DIR", QT_TRANSLATE_NOOP("jedtool", "a further folder with plug-ins")},
             {"resource", "TYPE/BASE", QT_TRANSLATE_NOOP("jedtool", "the receiver of the sub-job")},
             {"set", "SET/FIELD=VALUE",
              QT_TRANSLATE_NOOP("jedtool", "a value that is set; any number, in order")},
             {"times", nullptr, QT_TRANSLATE_NOOP("jedtool", "show how long each run took")}},
            run,
            nullptr};
}

} // namespace JedTool
