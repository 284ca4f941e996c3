#include "scriptableboolean.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;

ScriptableBoolean::ScriptableBoolean(ValueBool* value, QString ruleFunction, RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableBoolean::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this, false))
        m_valueTreePath = path;
}

void ScriptableBoolean::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableBoolean*>(other);
    if (!source)
        return;
    setBoolValue(source->boolValue());
}

bool ScriptableBoolean::boolValue() const
{
    return m_value && m_value->GetValue();
}

void ScriptableBoolean::setBoolValue(bool value)
{
    if (m_value)
        guarded([&] { m_value->SetValue(value, nullptr); });
}

bool ScriptableBoolean::stateNormal() const
{
    return ScriptableAccess::isStateNormal(m_value);
}

void ScriptableBoolean::setStateNormal(bool isNormal)
{
    ScriptableAccess::setStateNormal(m_value, isNormal);
}

} // namespace JEDVEPLUGIN
