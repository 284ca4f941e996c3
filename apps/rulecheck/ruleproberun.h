#pragma once

#include "ruleoutline.h"
#include "rulerecorder.h"

#include <QPair>

namespace RuleChecking {

/// A rule script that the engine can read.
struct RuleScript
{
    QString file;
    QString text;
    RuleOutline outline;
};

/// Something found by a run, not yet said to anybody.
struct RuleObservation
{
    RuleFinding number;
    int line;
    int column;
    QString subject; ///< what it is about; of one number, line and subject only the first counts
    QString text;
    QString advice; ///< may be empty; with a leading blank in addition to what the table says, else instead

    bool isOwnAdvice() const { return !advice.isEmpty() && !advice.startsWith(QLatin1Char(' ')); }
};

/// One run of a rule as the engine makes it: the script as a whole, then the function, with recorders in place of its
/// objects.
class RuleProbeRun : public IRuleListener
{
public:
    struct Write
    {
        int object;
        int line;
        bool isChange;
    };

    /// \param script   not owned, must outlive the run
    /// \param objects  what they hold at the beginning
    /// \param limit    in milliseconds
    RuleProbeRun(const RuleScript& script, const QVector<RuleObject>& objects, int limit);
    ~RuleProbeRun() override;

    /// \param function  empty: the script only
    void run(const QString& function);

    /// What the objects hold in the end.
    const QVector<RuleObject>& objects() const { return m_objects; }
    const QVector<RuleObservation>& observations() const { return m_observations; }
    const QVector<Write>& writes() const { return m_writes; }
    const QSet<int>& reads() const { return m_reads; }
    /// Lines with a statement that ran.
    const QSet<int>& lines() const { return m_lines; }
    /// Variables of the script that the function left with another value.
    const QStringList& changedVariables() const { return m_changedVariables; }
    bool isEndless() const { return m_isEndless; }

    void objectRead(int object) override;
    void valueWritten(int object, bool isChange) override;
    void found(RuleFinding number, int object, const QString& member, const QString& text) override;

private:
    class Tracer;

    void evaluate(QScriptEngine* engine, const QString& text, const QString& file);
    void noteException(QScriptEngine* engine);
    QHash<QString, QVariant> variables(QScriptEngine* engine) const;
    void observe(RuleFinding number, int token, int line, const QString& subject, const QString& text,
                 const QString& advice = QString());

    const RuleScript& m_script;
    QVector<RuleObject> m_objects;
    const int m_limit;
    Tracer* m_tracer = nullptr; // Owned by the engine of run().
    QVector<RuleObservation> m_observations;
    QVector<Write> m_writes;
    QSet<int> m_reads;
    QSet<int> m_lines;
    QStringList m_changedVariables;
    int m_endlessLine = 0;
    bool m_isInFunction = false;
    bool m_isEndless = false;
};

} // namespace RuleChecking
