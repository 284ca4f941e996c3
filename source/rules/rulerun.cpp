#include "rulerun_p.h"

#include "ruletimelimit.h"
#include "ruletimer_p.h"

#include <QtScript/QScriptContext>
#include <QtScript/QScriptEngine>
#include <QtScript/QScriptProgram>

#include <utility>

namespace JEDVEPLUGIN {

namespace {
IRuleMonitor* s_monitor = nullptr; // Not owned.
RuleTrigger* s_trigger = nullptr;  // Not owned; the latest.

QScriptValue callBack(QScriptContext*, QScriptEngine*, void* function)
{
    (*static_cast<const std::function<void()>*>(function))();
    return QScriptValue();
}
} // namespace

RuleRun* RuleRun::s_current = nullptr;

IRuleMonitor::~IRuleMonitor() = default;
void IRuleMonitor::managerConstructed(const RuleObjectManager*, const QString&) {}
void IRuleMonitor::managerDestroyed(const RuleObjectManager*) {}
void IRuleMonitor::objectRegistered(const RuleRegistration&) {}
void IRuleMonitor::objectRemoved(const RuleObjectManager*, const QString&) {}
void IRuleMonitor::runBegins(const RuleRunInfo&) {}
void IRuleMonitor::runEnds(const RuleRunInfo&) {}

IRuleMonitor* setRuleMonitor(IRuleMonitor* monitor)
{
    return std::exchange(s_monitor, monitor);
}

IRuleMonitor* ruleMonitor()
{
    return s_monitor;
}

// --- RuleTrigger

RuleTrigger::RuleTrigger(const QString& valueTreePath)
    : m_path(&valueTreePath)
    , m_outer(std::exchange(s_trigger, this))
{
}

RuleTrigger::~RuleTrigger()
{
    s_trigger = m_outer;
}

QString RuleTrigger::take()
{
    const QString* const path = s_trigger ? std::exchange(s_trigger->m_path, nullptr) : nullptr;
    return path ? *path : QString();
}

// --- RuleRun

RuleRun::RuleRun(const Subject& subject)
    : m_subject(subject)
    , m_outer(s_current)
    , m_isNested(isInsideRunOfSameEngine())
    , m_isMonitored(s_monitor != nullptr)
{
    if (m_isMonitored) {
        m_info = describe();
        tellRuleMonitor([this](IRuleMonitor* monitor) { monitor->runBegins(m_info); });
    }
    s_current = this;
    const int limit = ruleTimeLimit();
    m_timer = m_outer ? m_outer->m_timer : limit > 0 ? new RuleTimer(limit) : nullptr;
    enterScope();
    if (m_isMonitored)
        m_clock.start();
}

RuleRun::~RuleRun()
{
    if (m_isMonitored)
        m_info.nanoseconds = m_clock.nsecsElapsed();
    leaveScope();
    s_current = m_outer;
    if (!m_outer)
        delete m_timer;
    if (m_isMonitored) {
        m_info.manager = m_subject.manager;
        m_info.isStopped = m_isStopped;
        tellRuleMonitor([this](IRuleMonitor* monitor) { monitor->runEnds(m_info); });
    }
}

bool RuleRun::mayBegin()
{
    return !s_current || !s_current->m_isStopped;
}

void RuleRun::forgetManager(const RuleObjectManager* manager)
{
    for (RuleRun* run = s_current; run; run = run->m_outer) {
        if (run->m_subject.manager == manager)
            run->m_subject.manager = nullptr;
    }
}

QScriptValue RuleRun::evaluate(const QScriptProgram& program)
{
    const QScriptValue result = m_subject.engine->evaluate(program);
    if (m_isMonitored)
        noteErrors(&program);
    return result;
}

void RuleRun::call(const std::function<void()>& function)
{
    if (m_isMonitored) {
        const QScriptValue rule =
            m_subject.engine->globalObject().property(m_subject.function, QScriptValue::ResolvePrototype);
        m_info.isFunctionMissing = !rule.isFunction();
    }
    if (m_timer)
        callInsideEvaluation(function);
    else
        function();
    if (m_isMonitored)
        noteErrors(nullptr);
}

bool RuleRun::isInsideRunOfSameEngine() const
{
    for (const RuleRun* run = m_outer; run; run = run->m_outer) {
        if (run->m_subject.engine == m_subject.engine)
            return true;
    }
    return false;
}

void RuleRun::enterScope()
{
    QScriptEngine* const engine = m_subject.engine;
    if (m_isNested)
        m_outerScope = engine->globalObject();
    engine->setGlobalObject(m_subject.scope);
    if (m_isNested) {
        QScriptContext* const context = engine->pushContext();
        context->setActivationObject(m_subject.scope);
        context->setThisObject(m_subject.scope);
    }
    if (m_timer) {
        m_eventInterval = engine->processEventsInterval();
        engine->setProcessEventsInterval(RuleTimer::EVENT_INTERVAL);
    }
}

void RuleRun::leaveScope()
{
    QScriptEngine* const engine = m_subject.engine;
    if (m_timer)
        engine->setProcessEventsInterval(m_eventInterval);
    if (!m_isNested)
        return;
    engine->popContext();
    engine->setGlobalObject(m_outerScope);
    engine->clearExceptions();
}

/// The engine only looks for events, and can only be stopped, inside evaluate(); so the function is called by
/// a program that finds nothing else in its scope.
void RuleRun::callInsideEvaluation(const std::function<void()>& function)
{
    QScriptEngine* const engine = m_subject.engine;
    QScriptValue privateScope = engine->newObject();
    privateScope.setProperty("call",
                             engine->newFunction(callBack, const_cast<std::function<void()>*>(&function)));
    QScriptContext* const context = engine->pushContext();
    context->setActivationObject(privateScope);
    engine->evaluate("call()");
    engine->popContext();
    privateScope.setProperty("call", QScriptValue());
}

/// \param program  what was evaluated, null after the function
void RuleRun::noteErrors(const QScriptProgram* program)
{
    QScriptEngine* const engine = m_subject.engine;
    if (!engine->hasUncaughtException() || m_isStopped)
        return;
    RuleError error;
    error.text = engine->uncaughtException().toString();
    error.line = engine->uncaughtExceptionLineNumber();
    if (!program && !m_info.errors.isEmpty() && m_info.errors.constLast().text == error.text &&
        m_info.errors.constLast().line == error.line)
        return; // still the one of the evaluation
    error.isSyntaxError = program && QScriptEngine::checkSyntax(program->sourceCode()).state() !=
                                         QScriptSyntaxCheckResult::Valid;
    m_info.errors.append(error);
}

RuleRunInfo RuleRun::describe() const
{
    RuleRunInfo info;
    info.manager = m_subject.manager;
    info.scriptFile = m_subject.scriptFile;
    info.function = m_subject.function;
    info.trigger = RuleTrigger::take();
    for (const RuleRun* run = m_outer; run; run = run->m_outer)
        ++info.nesting;
    return info;
}

} // namespace JEDVEPLUGIN
