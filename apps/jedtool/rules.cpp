#include "ruletrace.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <session/rulecheck.h>
#include <session/rulefindings.h>

namespace JedTool {

namespace {
const char* const CHECK_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool", "Looks at a rule script as its author should. Each finding has a number; \"jedtool rules "
               "findings\" explains them.\n\n"
               "Example:  jedtool rules check installation/Rules/search.js\n"
               "Next:     mend what is named, then check again\n");
const char* const FINDINGS_DETAILS = QT_TRANSLATE_NOOP(
    "jedtool", "Explains the numbers of findings: what each is about, why, and what to do. With "
               "--markdown as the guide has them.\n\n"
               "Example:  jedtool rules findings\n");

void printJson(const QJsonDocument& document)
{
    print(QString::fromUtf8(document.toJson()));
}

ExitCode check(const Invocation& invocation)
{
    const QString path = invocation.arguments.first();
    const Session::RuleCheck result = Session::checkRules(path);
    if (invocation.isJson) {
        printJson(QJsonDocument(QJsonObject{{QStringLiteral("file"), path},
                                            {QStringLiteral("findings"), Session::toJson(result.findings)}}));
    } else {
        for (const Session::Finding& finding : result.findings)
            print(finding.toText() + QLatin1Char('\n'));
        print(Session::needsAttention(result.findings)
                  ? Texts::tr("%1: findings: %2\n").arg(path, QString::number(result.findings.size()))
                  : Texts::tr("%1: clean\n").arg(path));
    }
    return Session::needsAttention(result.findings) ? FINDINGS : CLEAN;
}

ExitCode explain(const Invocation& invocation)
{
    if (invocation.isJson)
        printJson(QJsonDocument(Session::ruleFindingsJson()));
    else
        print(invocation.isSet(QStringLiteral("markdown")) ? Session::ruleFindingsMarkdown()
                                                           : Session::ruleFindingsText());
    return CLEAN;
}
} // namespace

Noun rulesNoun()
{
    return {"rules",
            QT_TRANSLATE_NOOP("jedtool", "rule scripts"),
            {
                {"check",
                 "FILE",
                 QT_TRANSLATE_NOOP("jedtool", "check a rule script"),
                 CHECK_DETAILS,
                 1,
                 1,
                 {},
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
