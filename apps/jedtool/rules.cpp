#include "ruletrace.h"

#include <jedsubsettingfactory.h>
#include <QJsonDocument>
#include <QJsonObject>
#include <rulecheck/pluginrules.h>
#include <rulecheck/rulecheck.h>
#include <rulecheck/rulefindings.h>
#include <session/pluginhost.h>
#include <session/savefile.h>

namespace JedTool {

namespace {
const char* const CHECK_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool",
    "Looks at a rule script as its author should: at its syntax, then at each rule, which is run for each "
    "value "
    "of its trigger\n"
    "with recorders in place of the objects. With --plugin these are the objects that the plug-in registers "
    "for "
    "each receiver;\n"
    "with --objects those of a list, a line like \"float Gain 30 -30 130\" or \"selection Mode AM AM=1 "
    "FM=2\" "
    "each; else the script\n"
    "itself has to tell what they are. Notes tell what could not be tried. Each finding has a number, which "
    "\"jedtool rules findings\"\n"
    "explains.\n\n"
    "Examples: jedtool rules check installation/Rules/search.js --plugin Search\n"
    "          jedtool rules check rules.js --objects objects.txt --format json\n"
    "Next:     mend what is named, then check again\n");
const char* const FINDINGS_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool", "Explains the numbers of findings: what each is about, why, and what to do. With "
               "--markdown as the guide has them.\n\n"
               "Example:  jedtool rules findings\n");

const Option PLUGIN = {"plugin", "NAME",
                       QT_TRANSLATE_NOOP("jedtool", "the objects of this plug-in's settings")};
const Option PLUGIN_DIR = {"plugin-dir", "DIR",
                           QT_TRANSLATE_NOOP("jedtool", "a further folder with plug-ins")};
const Option OBJECTS = {"objects", "LIST",
                        QT_TRANSLATE_NOOP("jedtool", "the objects of this list instead of a plug-in's")};

void printJson(const QJsonDocument& document)
{
    print(QString::fromUtf8(document.toJson()));
}

// The objects that the command line names; false, which is told, if there are none.
bool readScopes(const Invocation& invocation, QVector<RuleChecking::RuleScope>* scopes)
{
    if (invocation.isSet(QLatin1String(OBJECTS.name))) {
        const QString path = invocation.value(QLatin1String(OBJECTS.name));
        QByteArray content;
        QString error;
        scopes->append(RuleChecking::RuleScope());
        if (Session::readFile(path, &content, &error) &&
            RuleChecking::readRuleObjects(Session::decodedText(content), &scopes->first(), &error))
            return true;
        printError(Texts::tr("jedtool: %1: %2").arg(path, error));
        printError(Texts::tr("Next: jedtool rules check --help"));
        return false;
    }
    if (!invocation.isSet(QLatin1String(PLUGIN.name)))
        return true;
    Session::PluginHost host;
    host.load(pluginFolders(invocation));
    JEDVEPLUGIN::JEDSubSettingFactory* const factory =
        namedPlugin(host, invocation.value(QLatin1String(PLUGIN.name)));
    if (!factory)
        return false;
    *scopes = RuleChecking::pluginRuleScopes(factory, invocation.arguments.first());
    if (scopes->isEmpty())
        printError(Texts::tr("jedtool: the plug-in %1 has no rules on the receivers of the installation")
                       .arg(factory->getName()));
    return !scopes->isEmpty();
}

QString summary(const QString& path, const RuleChecking::RuleCheck& result)
{
    const QString tried =
        Texts::tr("rules: %1, runs: %2").arg(QString::number(result.rules), QString::number(result.runs));
    if (!Session::needsAttention(result.findings))
        return Texts::tr("%1: clean, %2\n").arg(path, tried);
    return Texts::tr("%1: findings: %2, %3\n").arg(path, QString::number(result.findings.size()), tried);
}

ExitCode check(const Invocation& invocation)
{
    const QString path = invocation.arguments.first();
    QVector<RuleChecking::RuleScope> scopes;
    if (!readScopes(invocation, &scopes))
        return USAGE;
    const RuleChecking::RuleCheck result = RuleChecking::checkRules(path, scopes);
    if (invocation.isJson) {
        printJson(QJsonDocument(QJsonObject{{QStringLiteral("file"), path},
                                            {QStringLiteral("rules"), result.rules},
                                            {QStringLiteral("runs"), result.runs},
                                            {QStringLiteral("findings"), Session::toJson(result.findings)},
                                            {QStringLiteral("notes"), Session::toJson(result.notes)}}));
    } else {
        for (const Session::Finding& finding : result.findings + result.notes)
            print(finding.toText() + QLatin1Char('\n'));
        print(summary(path, result));
    }
    return Session::needsAttention(result.findings) ? FINDINGS : CLEAN;
}

ExitCode explain(const Invocation& invocation)
{
    if (invocation.isJson)
        printJson(QJsonDocument(RuleChecking::ruleFindingsJson()));
    else
        print(invocation.isSet(QStringLiteral("markdown")) ? RuleChecking::ruleFindingsMarkdown()
                                                           : RuleChecking::ruleFindingsText());
    return CLEAN;
}
} // namespace

Noun rulesNoun()
{
    return {"rules",
            QT_TRANSLATE_NOOP("jedtool", "rule scripts"),
            {
                {"check",
                 "FILE [--plugin NAME | --objects LIST]",
                 QT_TRANSLATE_NOOP("jedtool", "check a rule script"),
                 CHECK_DETAILS,
                 1,
                 1,
                 {PLUGIN, PLUGIN_DIR, OBJECTS},
                 check,
                 nullptr},
                ruleTraceVerb(),
                {"findings",
                 "",
                 QT_TRANSLATE_NOOP("jedtool", "explain the numbers of findings"),
                 FINDINGS_DETAILS,
                 0,
                 0,
                 {{"markdown", nullptr, QT_TRANSLATE_NOOP("jedtool", "as a table for the guide")}},
                 explain,
                 nullptr},
            }};
}

} // namespace JedTool
