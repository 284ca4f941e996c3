#include "scriptablestring.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;

ScriptableString::ScriptableString(ValueString* value, QString ruleFunction, RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableString::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this))
        m_valueTreePath = path;
}

void ScriptableString::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableString*>(other);
    if (!source)
        return;
    setStringValue(source->stringValue());
}

QString ScriptableString::stringValue() const
{
    return m_value ? m_value->GetValue() : QString();
}

void ScriptableString::setStringValue(QString value)
{
    if (m_value)
        guarded([&] { m_value->SetValue(value, nullptr); });
}

} // namespace JEDVEPLUGIN
