#include "ruleprobe.h"

#include <algorithm>
#include <ruletimelimit.h>

namespace RuleChecking {

namespace {
constexpr int TIME_LIMIT = 1000; // ms, unless the process has one
constexpr int MOST_RUNS_IN_A_ROW = 6;

int timeLimit()
{
    const int limit = JEDVEPLUGIN::ruleTimeLimit();
    return limit > 0 ? limit : TIME_LIMIT;
}
} // namespace

RuleProbe::RuleProbe(const RuleScript& script)
    : m_script(script)
{
}

void RuleProbe::probe(const RuleScope& scope)
{
    for (int i = 0; i < scope.objects.size(); ++i) {
        if (hasRule(scope.objects.at(i)))
            probeTrigger(scope, i);
    }
}

void RuleProbe::probeFunction(const RuleScope& scope, const QString& function)
{
    RuleProbeRun run(m_script, scope.objects, timeLimit());
    run.run(function);
    take(run);
    for (const RuleObservation& observation : run.observations())
        observe(observation, QString());
}

void RuleProbe::probeTrigger(const RuleScope& scope, int trigger)
{
    QSet<int> reads;
    for (const RuleObject& probe : scope.objects.at(trigger).probes()) {
        Objects objects = scope.objects;
        objects[trigger] = probe;
        reads += runOnce(scope, objects, trigger, trigger);
    }
    reads.remove(trigger);
    if (hasUnreachedLines(scope.objects.at(trigger).ruleFunction))
        probeOthers(scope, trigger, reads);
}

// With other values of what the rule looks at beside its trigger.
void RuleProbe::probeOthers(const RuleScope& scope, int trigger, const QSet<int>& others)
{
    QList<int> sorted = others.values();
    std::sort(sorted.begin(), sorted.end());
    for (const int other : qAsConst(sorted)) {
        for (const RuleObject& probe : scope.objects.at(other).probes()) {
            Objects objects = scope.objects;
            objects[other] = probe;
            runOnce(scope, objects, trigger, other);
        }
    }
}

/// \param varied  the object that has another value than usual
/// \return the objects that were read
QSet<int> RuleProbe::runOnce(const RuleScope& scope, const Objects& objects, int trigger, int varied)
{
    const QString function = objects.at(trigger).ruleFunction;
    if (m_endless.contains(function))
        return {};
    RuleProbeRun run(m_script, objects, timeLimit());
    run.run(function);
    take(run);
    if (run.isEndless())
        m_endless.insert(function);
    const RuleObject& changed = objects.at(varied);
    QString circumstances = QStringLiteral(", when %1 is %2").arg(changed.name, changed.valueText());
    if (!scope.name.isEmpty())
        circumstances += QStringLiteral(" on %1").arg(scope.name);
    for (const RuleObservation& observation : run.observations())
        observe(observation, circumstances);
    follow(run, {trigger}, {});
    return run.reads();
}

// Runs the rules of what was changed, as they would run inside; each object's own rule does not run again.
void RuleProbe::follow(const RuleProbeRun& run, const QVector<int>& path, const QVector<int>& lines)
{
    QSet<int> followed;
    for (const RuleProbeRun::Write& write : run.writes()) {
        const int known = path.indexOf(write.object);
        if (known >= 0 && known < path.size() - 1)
            noteCycle(run.objects(), path.mid(known), lines.mid(known) + QVector<int>{write.line});
        const QString function = run.objects().at(write.object).ruleFunction;
        if (known >= 0 || !write.isChange || !hasRule(run.objects().at(write.object)) ||
            followed.contains(write.object) || m_endless.contains(function) ||
            path.size() >= MOST_RUNS_IN_A_ROW)
            continue;
        followed.insert(write.object);
        RuleProbeRun inner(m_script, run.objects(), timeLimit());
        inner.run(function);
        take(inner);
        if (inner.isEndless())
            m_endless.insert(function);
        follow(inner, path + QVector<int>{write.object}, lines + QVector<int>{write.line});
    }
}

void RuleProbe::noteCycle(const Objects& objects, const QVector<int>& path, const QVector<int>& lines)
{
    QStringList names;
    for (const int object : path)
        names.append(objects.at(object).name);
    QStringList sorted = names;
    sorted.sort();
    const QString key = sorted.join(QLatin1Char(' '));
    if (m_cycles.contains(key))
        return;
    m_cycles.insert(key);
    const int line = *std::min_element(lines.cbegin(), lines.cend());
    RuleObservation cycle{RuleFinding::CYCLE, line, 0, key, QString(), QString()};
    cycle.text = QStringLiteral("%1 changes %2, which writes it back")
                     .arg(names.constFirst(), names.mid(1).join(QStringLiteral(", which changes ")));
    observe(cycle, QString());
}

void RuleProbe::take(const RuleProbeRun& run)
{
    ++m_runCount;
    m_lines += run.lines();
    for (const QString& name : run.changedVariables())
        m_changedVariables.insert(name);
}

void RuleProbe::observe(RuleObservation observation, const QString& circumstances)
{
    const QString key = QStringLiteral("%1 %2 %3")
                            .arg(QString::number(int(observation.number)), QString::number(observation.line),
                                 observation.subject);
    if (m_seen.contains(key))
        return;
    m_seen.insert(key);
    if (observation.number != RuleFinding::CHANGE_AT_TOP)
        observation.text += circumstances;
    m_observations.append(observation);
}

bool RuleProbe::hasUnreachedLines(const QString& function) const
{
    for (const RuleOutline::Function& candidate : m_script.outline.functions()) {
        if (candidate.name != function || candidate.outer >= 0)
            continue;
        const int begin = m_script.outline.tokens().at(candidate.begin).line;
        const int end = m_script.outline.tokens().at(candidate.end).line;
        for (const int line : m_script.outline.statementLines()) {
            if (line >= begin && line <= end && !m_lines.contains(line))
                return true;
        }
    }
    return false;
}

bool RuleProbe::hasRule(const RuleObject& object) const
{
    return m_script.outline.globals().contains(object.ruleFunction);
}

} // namespace RuleChecking
