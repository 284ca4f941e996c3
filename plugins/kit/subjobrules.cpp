#include <kit/subjobrules.h>

#include <QRegularExpression>
#include <scriptableboolean.h>
#include <scriptablenumericfloat.h>
#include <scriptablenumericint.h>
#include <scriptablenumericint64.h>
#include <scriptableselection.h>
#include <scriptablestring.h>
#include <values/node.h>

using JEDVEPLUGIN::RuleObjectManager;
using JEDVEPLUGIN::ScriptableObject;

namespace {
// Null for a value of another type.
template <class Scriptable, class Value>
ScriptableObject* make(ValueBase* value, const QString& function, RuleObjectManager* manager)
{
    auto* const typed = dynamic_cast<Value*>(value);
    return typed ? new Scriptable(typed, function, manager) : nullptr;
}

using Maker = ScriptableObject* (*)(ValueBase*, const QString&, RuleObjectManager*);

const Maker MAKERS[] = {
    make<JEDVEPLUGIN::ScriptableBoolean, ValueBool>,
    make<JEDVEPLUGIN::ScriptableNumericFloat, NumericDouble>,
    make<JEDVEPLUGIN::ScriptableNumericInt, NumericInt>,
    make<JEDVEPLUGIN::ScriptableNumericInt64, NumericInt64>,
    make<JEDVEPLUGIN::ScriptableSelection, ValueSelection>,
    make<JEDVEPLUGIN::ScriptableString, ValueString>,
};

QString scriptName(const QString& set, const QString& field)
{
    static const QRegularExpression OTHER(QStringLiteral("[^A-Za-z0-9_]"));
    return QStringLiteral("%1_%2").arg(set, field).replace(OTHER, QStringLiteral("_"));
}

void registerValue(const QString& name, ValueBase* value, RuleObjectManager* manager)
{
    for (const Maker maker : MAKERS) {
        if (ScriptableObject* const object = maker(value, name + QLatin1String("_changed"), manager)) {
            manager->RegisterScriptableObject(object, name);
            return;
        }
    }
}
} // namespace

namespace PluginKit {

SubjobRules::SubjobRules(const QString& script, const Node& root)
    : m_manager(script)
{
    for (const Node* set : root.GetChildNodes()) {
        for (ValueBase* value : set->GetValues())
            registerValue(scriptName(set->GetId(), value->GetId()), value, &m_manager);
    }
    m_manager.InitFinished();
}

SubjobRules::Pause::Pause(SubjobRules* rules)
    : m_rules(rules)
    , m_wasActive(rules && rules->m_manager.IsRuleExecutionActive())
{
    if (m_rules)
        m_rules->m_manager.setRuleExecutionActive(false);
}

SubjobRules::Pause::~Pause()
{
    if (m_rules)
        m_rules->m_manager.setRuleExecutionActive(m_wasActive);
}

} // namespace PluginKit
