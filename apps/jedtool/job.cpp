#include "commandline.h"

#include <QJsonDocument>
#include <session/jobdocument.h>
#include <session/joboutline.h>
#include <session/jobreport.h>
#include <session/jobsession.h>
#include <session/jobsummary.h>
#include <session/pluginhost.h>
#include <session/savefile.h>
#include <session/scenariorunner.h>
#include <session/sessionrunner.h>

namespace JedTool {

namespace {
const char* const NEW_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Composes a job and writes it to a file. Options behind a --resource belong to its sub-job; more "
    "--resource options\n"
    "make more sub-jobs. Values start with the receiver's defaults. They are given as numbers with an "
    "optional unit\n"
    "(156.8M, 30ms), as true or false, by name, or as a list between commas. The options are turned into a "
    "scenario;\n"
    "--print-scenario shows it, --scenario runs one. What a job file cannot hold is told, with exit code "
    "1.\n\n"
    "Examples: jedtool job new --type Search --name Morning --resource HT720/HF-1 --startup-mode Manual \\\n"
    "              --set TunerSettings/CenterFrequency=8.4145M --out job.xml\n"
    "          jedtool job new --scenario morning.scenario\n"
    "Next:     jedtool job check job.xml\n");
const char* const SHOW_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool", "Shows what a job file holds: the job, its sub-jobs and their parameter sets.\n"
               "--format html gives the summary that the job editor shows and prints: problems, receivers, "
               "frequencies, revisit\n"
               "times of scans and all settings on one page.\n\n"
               "Examples: jedtool job show job.xml\n"
               "          jedtool job show job.xml --format html > job.html\n"
               "Next:     jedtool job check job.xml\n");
const char* const CHECK_DETAILS =
    QT_TRANSLATE_NOOP("jedtool", "Reads a job file back and checks it: schema, loading and saving unchanged, "
                                 "each parameter set on its way through\n"
                                 "the value tree, receivers that the installation does not offer. What a "
                                 "receiver supplies but a job file cannot hold\n"
                                 "is a finding too.\n\n"
                                 "Example:  jedtool job check job.xml\n"
                                 "Next:     mend what is named, then check again\n");

void printJson(const QJsonObject& object)
{
    print(QString::fromUtf8(QJsonDocument(object).toJson()));
}

ExitCode usageError(const QString& text)
{
    printError(Texts::tr("jedtool: %1").arg(text));
    printError(Texts::tr("Next: jedtool job new --help"));
    return USAGE;
}

QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>> resources()
{
    return JEDVEPLUGIN::ResourceDescription::readAllResourceFiles();
}

// One sub-job's options: from a --resource up to the next. Returns where they end.
int appendSubjob(const QVector<QPair<QString, QString>>& options, int begin, Session::Scenario* scenario,
                 QString* fault)
{
    QString startupMode;
    QVector<QStringList> values;
    int i = begin + 1;
    for (; i < options.size() && options.at(i).first != QLatin1String("resource"); ++i) {
        const QString& value = options.at(i).second;
        if (options.at(i).first == QLatin1String("startup-mode"))
            startupMode = value;
        if (options.at(i).first != QLatin1String("set"))
            continue;
        if (!value.contains(QLatin1Char('=')))
            *fault = Texts::tr("--set %1 has no \"=\"; write --set SET/FIELD=VALUE").arg(value);
        values.append({value.section(QLatin1Char('='), 0, 0), value.section(QLatin1Char('='), 1)});
    }
    QStringList add{options.at(begin).second};
    if (!startupMode.isEmpty())
        add.append(startupMode);
    scenario->append(QStringLiteral("add"), add);
    for (const QStringList& value : values)
        scenario->append(QStringLiteral("set"), value);
    return i;
}

// The options as steps of a scenario; null, or what keeps them from being one.
QString scenarioFromOptions(const Invocation& invocation, Session::Scenario* scenario)
{
    QString fault;
    if (!invocation.isSet(QStringLiteral("type")))
        return Texts::tr("give the type of the job with --type, or a scenario with --scenario");
    if (!invocation.isSet(QStringLiteral("out")))
        return Texts::tr("say with --out which file to write");
    QStringList begin{invocation.value(QStringLiteral("type"))};
    if (invocation.isSet(QStringLiteral("name")))
        begin.append(invocation.value(QStringLiteral("name")));
    scenario->append(QStringLiteral("new"), begin);
    for (int i = 0; i < invocation.options.size();) {
        const QString& name = invocation.options.at(i).first;
        if (name == QLatin1String("resource")) {
            i = appendSubjob(invocation.options, i, scenario, &fault);
            continue;
        }
        if (name == QLatin1String("set") || name == QLatin1String("startup-mode"))
            return Texts::tr("--%1 %2 stands before the first --resource, so it belongs to no sub-job")
                .arg(name, invocation.options.at(i).second);
        ++i;
    }
    if (scenario->steps().size() == 1)
        return Texts::tr("give at least one receiver with --resource TYPE/BASE");
    scenario->append(QStringLiteral("save"), {invocation.value(QStringLiteral("out"))});
    return fault;
}

// Null, or what keeps the file from being a scenario.
bool readScenario(const QString& path, Session::Scenario* scenario)
{
    QByteArray bytes;
    Session::Finding finding{Session::Finding::FAILURE, path, 0, 0, QString(), QString()};
    QString reason;
    const bool isRead = Session::readFile(path, &bytes, &reason);
    if (!isRead)
        finding.text = Texts::tr("cannot be read: %1").arg(reason);
    if (isRead && scenario->parse(Session::decodedText(bytes), path, &finding))
        return true;
    printFindings({finding});
    return false;
}

// Tells what was written and found.
ExitCode tell(const QStringList& files, int subjobs, const Session::Findings& findings, bool isJson)
{
    if (isJson)
        printJson({{QStringLiteral("files"), QJsonArray::fromStringList(files)},
                   {QStringLiteral("subjobs"), subjobs},
                   {QStringLiteral("findings"), Session::toJson(findings)}});
    else
        printFindings(findings);
    for (const QString& file : files) {
        if (!isJson)
            print(Texts::tr("%1: written, sub-jobs: %2\nNext: jedtool job check %1\n")
                      .arg(file, QString::number(subjobs)));
    }
    return Session::needsAttention(findings) ? FINDINGS : CLEAN;
}

ExitCode runScenario(const Session::Scenario& scenario, bool isJson)
{
    static const ExitCode EXIT_CODES[] = {CLEAN, USAGE, FINDINGS, INTERNAL};
    Session::ScenarioRunner runner(resources());
    const Session::ScenarioRunner::Outcome outcome = runner.run(scenario);
    const ExitCode told = tell(runner.savedFiles(), runner.subjobCount(), runner.findings(), isJson);
    return outcome == Session::ScenarioRunner::DONE ? told : EXIT_CODES[outcome];
}

// The same through the factory of a plug-in, as in the editor.
ExitCode runWithPlugin(const Session::Scenario& scenario, const Invocation& invocation)
{
    Session::PluginHost host;
    host.load(pluginFolders(invocation));
    const QString name = invocation.value(QStringLiteral("plugin"));
    JEDVEPLUGIN::JEDSubSettingFactory* const factory = host.factory(name);
    if (!factory)
        return usageError(Texts::tr("no plug-in is called \"%1\"; jedtool plugin list shows them").arg(name));
    Session::JobSession session({factory});
    Session::SessionRunner runner(&session, nullptr);
    const bool isDone = runner.run(scenario);
    const ExitCode told = tell(runner.files(), session.topLevelCount(), runner.findings(), invocation.isJson);
    return isDone ? told : USAGE;
}

ExitCode compose(const Invocation& invocation)
{
    Session::Scenario scenario;
    const QString path = invocation.value(QStringLiteral("scenario"));
    if (!path.isEmpty()) {
        if (!readScenario(path, &scenario))
            return USAGE;
    } else {
        const QString fault = scenarioFromOptions(invocation, &scenario);
        if (!fault.isNull())
            return usageError(fault);
    }
    if (invocation.isSet(QStringLiteral("print-scenario"))) {
        print(scenario.toText());
        return CLEAN;
    }
    return invocation.isSet(QStringLiteral("plugin")) ? runWithPlugin(scenario, invocation)
                                                      : runScenario(scenario, invocation.isJson);
}

QString scenarioHelp()
{
    return Texts::tr("A scenario is a text with one step a line, \"#\" before comments, double quotes round "
                     "words with "
                     "blanks:\n") +
           Session::Scenario::verbsHelp();
}

// As the editor sees it: with the plug-ins, which know what is wrong.
ExitCode showSummary(const Invocation& invocation)
{
    Session::PluginHost host;
    host.load(pluginFolders(invocation));
    Session::JobSession session(host.factories());
    Session::Findings findings;
    const bool isOpen = session.open(invocation.arguments.first(), &findings);
    printFindings(findings);
    if (isOpen)
        print(Session::jobSummary(session, resources()));
    return isOpen && findings.isEmpty() ? CLEAN : FINDINGS;
}

ExitCode show(const Invocation& invocation)
{
    if (invocation.isHtml)
        return showSummary(invocation);
    Session::JobDocument document;
    Session::Findings findings;
    const bool isLoaded = document.load(invocation.arguments.first(), &findings);
    printFindings(findings);
    if (!isLoaded)
        return FINDINGS;
    if (invocation.isJson)
        printJson(Session::outlineJson(document.job()));
    else
        print(Session::outlineText(document.job(), 0));
    return findings.isEmpty() ? CLEAN : FINDINGS;
}

ExitCode check(const Invocation& invocation)
{
    const QString path = invocation.arguments.first();
    Session::JobDocument document;
    Session::Findings findings;
    if (document.load(path, &findings))
        findings += Session::checkJob(&document, resources());
    if (invocation.isJson) {
        printJson({{QStringLiteral("file"), path}, {QStringLiteral("findings"), Session::toJson(findings)}});
    } else {
        for (const Session::Finding& finding : findings)
            print(finding.toText() + QLatin1Char('\n'));
        print(Session::needsAttention(findings)
                  ? Texts::tr("%1: findings: %2\n").arg(path, QString::number(findings.size()))
                  : Texts::tr("%1: clean, sub-jobs: %2\n")
                        .arg(path, QString::number(document.job().GetSubjob().size())));
    }
    return Session::needsAttention(findings) ? FINDINGS : CLEAN;
}
} // namespace

Noun jobNoun()
{
    const QVector<Option> newOptions{
        {"type", "TYPE",
         QT_TRANSLATE_NOOP("jedtool", "Production, Search, Surveillance, DFScan or Measurement")},
        {"name", "NAME", QT_TRANSLATE_NOOP("jedtool", "name of the job (the type)")},
        {"resource", "TYPE/BASE", QT_TRANSLATE_NOOP("jedtool", "begins a sub-job on this receiver")},
        {"startup-mode", "MODE",
         QT_TRANSLATE_NOOP("jedtool", "when the sub-job starts (the first mode that the receiver offers)")},
        {"set", "SET/FIELD=VALUE", QT_TRANSLATE_NOOP("jedtool", "a value of the sub-job")},
        {"out", "FILE", QT_TRANSLATE_NOOP("jedtool", "the job file to write")},
        {"scenario", "FILE", QT_TRANSLATE_NOOP("jedtool", "run this scenario instead of the options above")},
        {"plugin", "NAME",
         QT_TRANSLATE_NOOP("jedtool", "compose through this plug-in and its rules, as the editor does")},
        {"plugin-dir", "DIR", QT_TRANSLATE_NOOP("jedtool", "a further folder with plug-ins")},
        {"print-scenario", nullptr, QT_TRANSLATE_NOOP("jedtool", "show the scenario, run nothing")},
    };
    return {"job",
            QT_TRANSLATE_NOOP("jedtool", "job files"),
            {
                {"new", "--type TYPE --resource TYPE/BASE [--set SET/FIELD=VALUE]... --out FILE",
                 QT_TRANSLATE_NOOP("jedtool", "compose a job"), NEW_DETAILS, 0, 0, newOptions, compose,
                 scenarioHelp},
                {"show",
                 "FILE",
                 QT_TRANSLATE_NOOP("jedtool", "show what a job file holds"),
                 SHOW_DETAILS,
                 1,
                 1,
                 {{"plugin-dir", "DIR",
                   QT_TRANSLATE_NOOP("jedtool", "a further folder with plug-ins, for html")}},
                 show,
                 nullptr,
                 true},
                {"check",
                 "FILE",
                 QT_TRANSLATE_NOOP("jedtool", "check a job file"),
                 CHECK_DETAILS,
                 1,
                 1,
                 {},
                 check,
                 nullptr},
            }};
}

} // namespace JedTool
