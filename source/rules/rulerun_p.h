#pragma once

#include "rulemonitor.h"

#include <QtCore/QElapsedTimer>
#include <QtScript/QScriptValue>

#include <functional>

class QScriptContext;
class QScriptEngine;
class QScriptProgram;

namespace JEDVEPLUGIN {

class RuleTimer;

/// Whether \p manager has not been destroyed. Objects may outlive the manager that they were made with.
bool isRuleManagerAlive(const RuleObjectManager* manager);

/// The installed monitor, null if there is none.
IRuleMonitor* ruleMonitor();

/// Tells the installed monitor, whatever it throws. The message is only made if there is one.
template <class Message>
void tellRuleMonitor(const Message& message)
{
    IRuleMonitor* const monitor = ruleMonitor();
    if (!monitor)
        return;
    try {
        message(monitor);
    } catch (...) {
        // A monitor that throws must not end the run.
    }
}

/// Names the object whose change sets off the next run. Lives on the stack.
class RuleTrigger
{
public:
    explicit RuleTrigger(const QString& valueTreePath);
    ~RuleTrigger();

    /// The path of the latest one, which is used up by asking.
    static QString take();

private:
    Q_DISABLE_COPY(RuleTrigger)

    const QString* m_path; // Not owned; null once it is used up.
    RuleTrigger* m_outer;  // Not owned.
};

/// A rule run that is under way. Lives on the stack; the runs of the process form a stack of their own.
///
/// A run inside another one on the same engine gets an execution context at program level, and at its end
/// everything is as the outer run had it: its global object, and no exception. An outermost run leaves its
/// own global object and exceptions in place.
class RuleRun
{
public:
    /// What the run works on. Copies, since the run may see its manager deleted.
    struct Subject
    {
        RuleObjectManager* manager; // Not owned.
        QScriptEngine* engine;      // Not owned.
        QScriptValue scope;
        QString scriptFile;
        QString function;
    };

    explicit RuleRun(const Subject& subject);
    ~RuleRun();

    /// Whether a run may begin: not inside one that was stopped.
    static bool mayBegin();
    /// To be called when a manager is destroyed.
    static void forgetManager(const RuleObjectManager* manager);

    QScriptValue evaluate(const QScriptProgram& program);
    /// Calls \p function, within reach of the time limit if there is one.
    void call(const std::function<void()>& function);
    /// There is nobody left to go on with: the manager was deleted, or the time is up.
    bool isOver() const { return !m_subject.manager || m_isStopped; }

private:
    Q_DISABLE_COPY(RuleRun)
    friend class RuleTimer;

    bool isInsideRunOfSameEngine() const;
    void enterScope();
    void leaveScope();
    void callInsideEvaluation(const std::function<void()>& function);
    void noteErrors(const QScriptProgram* program);
    RuleRunInfo describe() const;

    static RuleRun* s_current; // The innermost run, null if there is none.

    Subject m_subject;
    RuleRun* m_outer; // Not owned.
    bool m_isNested;
    bool m_isStopped = false;
    QScriptValue m_outerScope;
    int m_eventInterval = 0;      // what the engine had before, if there is a limit
    RuleTimer* m_timer = nullptr; // Owned by the outermost run.

    // For the monitor only.
    bool m_isMonitored;
    QElapsedTimer m_clock;
    RuleRunInfo m_info;
};

} // namespace JEDVEPLUGIN
