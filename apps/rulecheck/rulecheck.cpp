#include "rulecheck.h"

#include "rulefindings.h"
#include "rulelanguage.h"
#include "ruleprobe.h"
#include "rulestatic.h"
#include <session/savefile.h>

#include <algorithm>
#include <QtScript/QScriptEngine>

namespace RuleChecking {

namespace {
Finding toFinding(const RuleObservation& observation, const QString& file)
{
    const RuleFindingKind& kind = ruleFindingKind(observation.number);
    Finding finding;
    finding.severity = kind.severity;
    finding.place = file;
    finding.line = observation.line;
    finding.column = observation.column;
    finding.text = observation.text;
    finding.advice =
        observation.isOwnAdvice() ? observation.advice : QLatin1String(kind.advice) + observation.advice;
    finding.code = kind.code();
    return finding;
}

Finding note(const QString& file, int line, const QString& text)
{
    Finding finding;
    finding.severity = Finding::NOTE;
    finding.place = file;
    finding.line = line;
    finding.text = text;
    return finding;
}

// Whether the engine reads the script, which it does as a whole before anything runs. Empty if it does.
QVector<RuleObservation> syntaxFaults(const RuleScript& script)
{
    QScriptEngine engine;
    engine.evaluate(QStringLiteral("throw null;") + script.text);
    if (engine.uncaughtException().isNull())
        return {};
    QVector<RuleObservation> result;
    for (const LaterSyntax& later : laterSyntax(script.outline)) {
        const RuleToken& token = script.outline.tokens().at(later.token);
        result.append({RuleFinding::LATER_LANGUAGE, token.line, token.column, QString(),
                       QStringLiteral("%1 is not known to the engine").arg(QLatin1String(later.what)),
                       QLatin1String(later.advice)});
    }
    if (!result.isEmpty())
        return result;
    const QScriptSyntaxCheckResult syntax = QScriptEngine::checkSyntax(script.text);
    const bool isAgreed = syntax.state() != QScriptSyntaxCheckResult::Valid;
    int line = isAgreed ? syntax.errorLineNumber() : engine.uncaughtExceptionLineNumber();
    int column = isAgreed ? syntax.errorColumnNumber() : 1;
    const QString text = syntaxFault(script.outline, &line, &column);
    return {{RuleFinding::SYNTAX, line, column, QString(), text, QString()}};
}

// "line 7", "lines 7 to 9"
QString linesText(int first, int last)
{
    return first == last ? QStringLiteral("line %1").arg(first)
                         : QStringLiteral("lines %1 to %2").arg(first).arg(last);
}

// Statements that no run came to, as ranges; functions of which nothing ran as one.
Findings unreached(const RuleScript& script, const QSet<int>& reached)
{
    Findings result;
    int first = 0;
    int last = 0;
    const auto close = [&] {
        if (first > 0)
            result.append(
                note(script.file, first, QStringLiteral("no run came to %1").arg(linesText(first, last))));
        first = 0;
    };
    for (const int line : script.outline.statementLines()) {
        if (reached.contains(line)) {
            close();
            continue;
        }
        first = first > 0 ? first : line;
        last = line;
    }
    close();
    return result;
}

int countRules(const RuleOutline& outline, const QVector<RuleScope>& scopes)
{
    QSet<QString> rules;
    for (const RuleScope& scope : scopes) {
        for (const RuleObject& object : scope.objects) {
            if (outline.globals().contains(object.ruleFunction))
                rules.insert(object.ruleFunction);
        }
    }
    return rules.size();
}
// Tries all rules; of a script whose objects are guessed, also the functions that are no rule of them.
RuleProbe tryRules(const RuleScript& script, const QVector<RuleScope>& scopes, bool isGuessed)
{
    RuleProbe probe(script);
    for (const RuleScope& scope : scopes)
        probe.probe(scope);
    if (isGuessed) {
        for (const QString& function : looseFunctions(script.outline, scopes.constFirst()))
            probe.probeFunction(scopes.constFirst(), function);
    }
    if (probe.runCount() == 0)
        probe.probeFunction(scopes.constFirst(), QString());
    return probe;
}

// What reading told of an unknown name, running need not tell again.
QVector<RuleObservation> merged(QVector<RuleObservation> read, const QVector<RuleObservation>& seen)
{
    QSet<QString> unknown;
    for (const RuleObservation& observation : qAsConst(read)) {
        if (observation.number == RuleFinding::UNKNOWN_NAME)
            unknown.insert(observation.subject);
    }
    for (const RuleObservation& observation : seen) {
        if (observation.number != RuleFinding::UNKNOWN_NAME || !unknown.contains(observation.subject))
            read.append(observation);
    }
    return read;
}

// Triggers of which the ends of the range could not be tried.
Findings boundless(const RuleScript& script, const QVector<RuleScope>& scopes)
{
    Findings result;
    QSet<QString> told;
    for (const RuleScope& scope : scopes) {
        for (const RuleObject& object : scope.objects) {
            if (!object.isNumber() || object.isBounded() || told.contains(object.name) ||
                !script.outline.globals().contains(object.ruleFunction))
                continue;
            told.insert(object.name);
            result.append(note(script.file, 0,
                               QStringLiteral("%1 has no bounds, so the ends of its range were not tried")
                                   .arg(object.name)));
        }
    }
    return result;
}

QVector<RuleObservation> examine(const RuleScript& script, const QVector<RuleScope>& scopes, RuleCheck* check)
{
    const bool isGuessed = scopes.isEmpty();
    const QVector<RuleScope> known = isGuessed ? QVector<RuleScope>{guessedScope(script.outline)} : scopes;
    const RuleProbe probe = tryRules(script, known, isGuessed);
    if (isGuessed)
        check->notes.append(note(
            script.file, 0,
            QStringLiteral(
                "only the script itself tells what its objects are; their names, bounds, keys and 64-bit "
                "numbers are tried with a plug-in or a list of objects")));
    else
        check->notes += boundless(script, known);
    check->notes += unreached(script, probe.lines());
    check->rules = countRules(script.outline, known);
    check->runs = probe.runCount();
    return merged(staticObservations(script.outline, known, isGuessed, probe.changedVariables()),
                  probe.observations());
}
} // namespace

RuleCheck checkRules(const QString& file, const QVector<RuleScope>& scopes)
{
    RuleCheck result;
    QByteArray content;
    QString reason;
    if (!Session::readFile(file, &content, &reason)) {
        result.findings.append(toFinding({RuleFinding::NOT_READ, 0, 0, QString(), reason, QString()}, file));
        return result;
    }
    const QString text = QString::fromUtf8(content);
    const RuleScript script{file, text, RuleOutline(text)};
    QVector<RuleObservation> observations = syntaxFaults(script);
    if (observations.isEmpty())
        observations = examine(script, scopes, &result);
    std::stable_sort(observations.begin(), observations.end(), [](const auto& a, const auto& b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    for (const RuleObservation& observation : qAsConst(observations))
        result.findings.append(toFinding(observation, file));
    return result;
}

} // namespace RuleChecking
