#pragma once

#include "ruleproberun.h"

namespace RuleChecking {

/// Tries the rules of a script: each once per value of its trigger, and what it sets off after it.
class RuleProbe
{
public:
    /// \param script  not owned, must outlive the probe
    explicit RuleProbe(const RuleScript& script);

    /// Tries all rules with the objects of one setting.
    void probe(const RuleScope& scope);
    /// Runs a function that belongs to no object.
    void probeFunction(const RuleScope& scope, const QString& function);

    const QVector<RuleObservation>& observations() const { return m_observations; }
    const QSet<int>& lines() const { return m_lines; }
    const QSet<QString>& changedVariables() const { return m_changedVariables; }
    int runCount() const { return m_runCount; }

private:
    using Objects = QVector<RuleObject>;

    void probeTrigger(const RuleScope& scope, int trigger);
    void probeOthers(const RuleScope& scope, int trigger, const QSet<int>& others);
    QSet<int> runOnce(const RuleScope& scope, const Objects& objects, int trigger, int varied);
    void follow(const RuleProbeRun& run, const QVector<int>& path, const QVector<int>& lines);
    void noteCycle(const Objects& objects, const QVector<int>& path, const QVector<int>& lines);
    void take(const RuleProbeRun& run);
    void observe(RuleObservation observation, const QString& circumstances);
    bool hasUnreachedLines(const QString& function) const;
    bool hasRule(const RuleObject& object) const;

    const RuleScript& m_script;
    QVector<RuleObservation> m_observations;
    QSet<QString> m_seen;
    QSet<QString> m_cycles;
    QSet<QString> m_endless; // Functions.
    QSet<int> m_lines;
    QSet<QString> m_changedVariables;
    int m_runCount = 0;
};

} // namespace RuleChecking
