#include "rulecheck.h"

#include "rulefindings.h"
#include "savefile.h"

#include <QtScript/QScriptEngine>

namespace Session {

namespace {
Finding makeFinding(RuleFinding number, const QString& file, const QString& text)
{
    const RuleFindingKind& kind = ruleFindingKind(number);
    Finding finding;
    finding.severity = kind.severity;
    finding.place = file;
    finding.text = text;
    finding.advice = QLatin1String(kind.advice);
    finding.code = kind.code();
    return finding;
}
} // namespace

RuleCheck checkRules(const QString& file)
{
    RuleCheck result;
    QByteArray content;
    QString reason;
    if (!readFile(file, &content, &reason)) {
        result.findings.append(makeFinding(RuleFinding::NOT_READ, file, reason));
        return result;
    }
    const QScriptSyntaxCheckResult syntax = QScriptEngine::checkSyntax(QString::fromUtf8(content));
    if (syntax.state() != QScriptSyntaxCheckResult::Valid) {
        Finding finding =
            makeFinding(RuleFinding::SYNTAX, file,
                        syntax.errorMessage().isEmpty() ? QStringLiteral("the engine cannot read this line")
                                                        : syntax.errorMessage());
        finding.line = syntax.errorLineNumber();
        finding.column = syntax.errorColumnNumber();
        result.findings.append(finding);
    }
    return result;
}

} // namespace Session
