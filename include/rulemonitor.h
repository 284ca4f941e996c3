#pragma once

#include "jedvepb_export.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace JEDVEPLUGIN {

class RuleObjectManager;
class ScriptableObject;

/// Something that went wrong in a rule run.
struct RuleError
{
    QString text;
    int line = -1;              ///< in the script file, from 1; -1 if unknown
    bool isSyntaxError = false; ///< of the file as a whole, so that nothing of it was evaluated
};

/// A scriptable object that becomes known to a script.
struct RuleRegistration
{
    const RuleObjectManager* manager = nullptr;
    const ScriptableObject* object = nullptr;
    QString name;          ///< in the script
    QString className;     ///< "JEDVEPLUGIN::ScriptableString"
    QString valueTreePath; ///< empty if the object has no value
    QString ruleFunction;  ///< what runs when the value changes
};

/// One rule run.
struct RuleRunInfo
{
    const RuleObjectManager* manager = nullptr; ///< null at the end if the run deleted it
    QString scriptFile;
    QString function;
    QString trigger; ///< value-tree path of the object whose change it is; empty if the host called for it
    int nesting = 0; ///< runs that this one takes place in, whichever their files

    // Known at the end only.
    qint64 nanoseconds = 0;         ///< duration with all that took place inside
    QVector<RuleError> errors;      ///< of the evaluation, then of the function; two at most
    bool isFunctionMissing = false; ///< the scope has no function of that name
    bool isStopped = false;         ///< the time limit was reached, see ruletimelimit.h
};

/// Is told what the rule engine does, which itself reports nothing. Every operation does nothing unless it is
/// overridden. May not change values or run rules; what it throws is dropped. GUI thread only.
class JEDVEPB_EXPORT IRuleMonitor
{
public:
    IRuleMonitor() = default;
    virtual ~IRuleMonitor();

    /// At the end of the construction, also of copies.
    virtual void managerConstructed(const RuleObjectManager* manager, const QString& scriptFile);
    /// At the beginning of the destruction, while the objects are still registered.
    virtual void managerDestroyed(const RuleObjectManager* manager);
    virtual void objectRegistered(const RuleRegistration& registration);
    /// A name was given up or its object deleted; not told for each name when the whole registry goes.
    /// \param manager  null when the object itself was deleted
    virtual void objectRemoved(const RuleObjectManager* manager, const QString& name);
    virtual void runBegins(const RuleRunInfo& run);
    /// Once for each runBegins(), the innermost run first.
    virtual void runEnds(const RuleRunInfo& run);

private:
    Q_DISABLE_COPY(IRuleMonitor)
};

/// Installs the monitor of the process. Without one, which is the beginning, nothing is collected.
/// \param monitor  not owned, has to stay until it is replaced; null for none
/// \return the one that was installed before, may be null
JEDVEPB_EXPORT IRuleMonitor* setRuleMonitor(IRuleMonitor* monitor);

} // namespace JEDVEPLUGIN
