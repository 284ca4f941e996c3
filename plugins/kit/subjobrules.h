#pragma once

#include <QString>
#include <ruleobjectmanager.h>

class Node;

namespace PluginKit {

/// The rules of one sub-job. A script sees each value of the receiver as an object named by set and field, with "_" for
/// what no name can have in it ("ScanSettings_Range_StepWidth"), and is called when the value changes: the function of
/// that name with "_changed" behind it, if there is one.
///
/// Rules follow what somebody does to a single value. They rest while the text of a whole set is taken over, from a job
/// file, by paste or by undo: that text has the result of the rules in it. GUI thread only.
class SubjobRules
{
public:
    /// \param script  path of the script file
    /// \param root    node above the parameter sets, in the value tree; must not get values later
    SubjobRules(const QString& script, const Node& root);

    /// Lets rules rest while it lives.
    class Pause
    {
    public:
        /// \param rules  may be null
        explicit Pause(SubjobRules* rules);
        ~Pause();

    private:
        Q_DISABLE_COPY(Pause)

        SubjobRules* m_rules;
        bool m_wasActive;
    };

private:
    JEDVEPLUGIN::RuleObjectManager m_manager;
};

} // namespace PluginKit
