#include "ruleproberun.h"

#include <algorithm>
#include <jobxml/suggestion.h>
#include <QRegularExpression>
#include <QTimer>
#include <QtScript/QScriptEngine>
#include <QtScript/QScriptEngineAgent>

namespace RuleChecking {

namespace {
constexpr int EVENT_INTERVAL = 20; // ms
} // namespace

// Follows which line runs.
class RuleProbeRun::Tracer : public QScriptEngineAgent
{
public:
    Tracer(QScriptEngine* engine, const QString& file, QSet<int>* lines)
        : QScriptEngineAgent(engine)
        , m_file(file)
        , m_lines(lines)
    {
    }

    // The line of the innermost function of the script; 0: none.
    int line() const
    {
        const auto found =
            std::find_if(m_stack.crbegin(), m_stack.crend(), [](int line) { return line > 0; });
        return found == m_stack.crend() ? 0 : *found;
    }

    void scriptLoad(qint64 id, const QString&, const QString& file, int) override
    {
        if (file == m_file)
            m_ids.insert(id);
    }
    void functionEntry(qint64) override { m_stack.append(0); }
    void functionExit(qint64, const QScriptValue&) override
    {
        if (m_stack.size() > 1)
            m_stack.removeLast();
    }
    void positionChange(qint64 id, int line, int) override
    {
        if (!m_ids.contains(id))
            return;
        m_stack.last() = line;
        m_lines->insert(line);
    }

private:
    const QString m_file;
    QSet<int>* m_lines; // Not owned.
    QSet<qint64> m_ids;
    QVector<int> m_stack{0};
};

RuleProbeRun::RuleProbeRun(const RuleScript& script, const QVector<RuleObject>& objects, int limit)
    : m_script(script)
    , m_objects(objects)
    , m_limit(limit)
{
}

RuleProbeRun::~RuleProbeRun() = default;

void RuleProbeRun::run(const QString& function)
{
    QScriptEngine engine;
    RuleRecorder recorder(&engine, &m_objects, this);
    recorder.publish();
    m_tracer = new Tracer(&engine, m_script.file, &m_lines);
    engine.setAgent(m_tracer);
    evaluate(&engine, m_script.text, m_script.file);
    if (function.isEmpty() || m_isEndless)
        return;
    const QHash<QString, QVariant> before = variables(&engine);
    engine.clearExceptions();
    m_isInFunction = true;
    if (engine.globalObject().property(function).isFunction())
        evaluate(&engine, QStringLiteral("this['%1']()").arg(function), QString());
    const QHash<QString, QVariant> after = variables(&engine);
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (before.value(it.key()) != it.value())
            m_changedVariables.append(it.key());
    }
}

void RuleProbeRun::evaluate(QScriptEngine* engine, const QString& text, const QString& file)
{
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, engine, [this, engine] {
        m_isEndless = true;
        m_endlessLine = m_tracer->line();
        engine->abortEvaluation();
    });
    engine->setProcessEventsInterval(EVENT_INTERVAL);
    timer.start(m_limit);
    engine->evaluate(text, file, 1);
    if (m_isEndless)
        observe(RuleFinding::ENDLESS, -1, m_endlessLine, QString(),
                QStringLiteral("stopped after %1 ms").arg(m_limit));
    else if (engine->hasUncaughtException())
        noteException(engine);
}

void RuleProbeRun::noteException(QScriptEngine* engine)
{
    static const QRegularExpression UNKNOWN(QStringLiteral("^ReferenceError: Can't find variable: (.*)$"));
    const QString text = engine->uncaughtException().toString();
    const int line = engine->uncaughtExceptionLineNumber();
    const QRegularExpressionMatch match = UNKNOWN.match(text);
    if (match.hasMatch()) {
        const QString name = match.captured(1);
        QStringList names = m_script.outline.globals().values();
        for (const RuleObject& object : qAsConst(m_objects))
            names.append(object.name);
        std::sort(names.begin(), names.end());
        observe(RuleFinding::UNKNOWN_NAME, m_script.outline.find(line, name), line, name,
                QStringLiteral("there is no \"%1\"").arg(name), JobXml::suggestion(name, names));
        return;
    }
    // What led to it was told already.
    const bool isExplained = std::any_of(
        m_observations.cbegin(), m_observations.cend(), [line](const RuleObservation& observation) {
            return observation.line == line &&
                   ruleFindingKind(observation.number).severity == Finding::FAILURE;
        });
    if (!isExplained)
        observe(RuleFinding::EXCEPTION, -1, line, QString(), text);
}

QHash<QString, QVariant> RuleProbeRun::variables(QScriptEngine* engine) const
{
    QHash<QString, QVariant> result;
    for (const QString& name : m_script.outline.globals()) {
        const QScriptValue value = engine->globalObject().property(name);
        if (value.isValid() && !value.isFunction() && !value.scriptClass())
            result.insert(name, value.toVariant());
    }
    return result;
}

void RuleProbeRun::objectRead(int object)
{
    m_reads.insert(object);
}

void RuleProbeRun::valueWritten(int object, bool isChange)
{
    m_writes.append({object, m_tracer->line(), isChange});
    if (!m_isInFunction)
        observe(RuleFinding::CHANGE_AT_TOP,
                m_script.outline.find(m_tracer->line(), m_objects.at(object).name), m_tracer->line(),
                m_objects.at(object).name,
                QStringLiteral("%1 is written before each run of any rule").arg(m_objects.at(object).name));
}

void RuleProbeRun::found(RuleFinding number, int object, const QString& member, const QString& text)
{
    const int line = m_tracer->line();
    const int token = m_script.outline.find(line, member);
    const bool isQuestion =
        number == RuleFinding::UNKNOWN_MEMBER && token >= 0 && m_script.outline.isTest(token);
    if (isQuestion)
        return;
    const bool isMember = number == RuleFinding::UNKNOWN_MEMBER || number == RuleFinding::LOST_WRITE;
    observe(number, token, line, m_objects.at(object).name + QLatin1Char('.') + member, text,
            isMember ? JobXml::suggestion(member, RuleRecorder::members(m_objects.at(object).kind))
                     : QString());
}

/// \param token  where it is, -1 if only the line is known
void RuleProbeRun::observe(RuleFinding number, int token, int line, const QString& subject,
                           const QString& text, const QString& advice)
{
    const int column = token >= 0 ? m_script.outline.tokens().at(token).column : 0;
    const int place = token >= 0 ? m_script.outline.tokens().at(token).line : line;
    m_observations.append({number, place, column, subject, text, advice});
}

} // namespace RuleChecking
