#include "finding.h"

#include <algorithm>
#include <QCoreApplication>
#include <QJsonObject>

namespace {
const char* const SEVERITY_NAMES[] = {
    QT_TRANSLATE_NOOP("Session::Finding", "note"),
    QT_TRANSLATE_NOOP("Session::Finding", "warning"),
    QT_TRANSLATE_NOOP("Session::Finding", "error"),
};

void insertText(QJsonObject* object, const QString& name, const QString& value)
{
    if (!value.isEmpty())
        object->insert(name, value);
}

void insertNumber(QJsonObject* object, const QString& name, int value)
{
    if (value > 0)
        object->insert(name, value);
}
} // namespace

namespace Session {

QString Finding::toText() const
{
    QString result;
    if (!place.isEmpty())
        result += place + QLatin1Char(':');
    for (const int position : {line, column}) {
        if (position > 0)
            result += QString::number(position) + QLatin1Char(':');
    }
    if (!result.isEmpty())
        result += QLatin1Char(' ');
    result += QCoreApplication::translate("Session::Finding", SEVERITY_NAMES[severity]);
    if (!code.isEmpty())
        result += QLatin1String(" [") + code + QLatin1Char(']');
    result += QLatin1String(": ") + text;
    if (!advice.isEmpty())
        result += QLatin1String("\n    ") + advice;
    return result;
}

QString severityName(Finding::Severity severity)
{
    return QLatin1String(SEVERITY_NAMES[severity]);
}

QJsonArray toJson(const Findings& findings)
{
    QJsonArray result;
    for (const Finding& finding : findings) {
        QJsonObject object;
        object.insert(QLatin1String("severity"), severityName(finding.severity));
        insertText(&object, QLatin1String("code"), finding.code);
        insertText(&object, QLatin1String("place"), finding.place);
        insertNumber(&object, QLatin1String("line"), finding.line);
        insertNumber(&object, QLatin1String("column"), finding.column);
        insertText(&object, QLatin1String("text"), finding.text);
        insertText(&object, QLatin1String("advice"), finding.advice);
        result.append(object);
    }
    return result;
}

bool needsAttention(const Findings& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.severity != Finding::NOTE; });
}

} // namespace Session
