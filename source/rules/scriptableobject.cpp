#include "scriptableobject.h"

#include "ruleobjectmanager.h"
#include "rulerun_p.h"

#include <QtCore/QPointer>

namespace JEDVEPLUGIN {

ScriptableObject::ScriptableObject(RuleObjectManager* manager)
    : m_manager(manager)
{
}

QString ScriptableObject::GetValueTreePath() const
{
    return m_valueTreePath;
}

void ScriptableObject::Update(Observable*, TChangeCode code)
{
    if (code != CHANGE_VALUE || !isRuleManagerAlive(m_manager) || !m_manager->IsInit() || m_depth >= 1)
        return;
    const QPointer<ScriptableObject> self = this; // the rule may have it deleted
    const QString path = m_valueTreePath;
    const RuleTrigger trigger(path);
    ++m_depth;
    m_manager->ReloadScriptAndRun(m_ruleFunction);
    if (self)
        --m_depth;
}

} // namespace JEDVEPLUGIN
