#include "scriptablenumericfloat.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;

ScriptableNumericFloat::ScriptableNumericFloat(NumericDouble* value, QString ruleFunction,
                                               RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableNumericFloat::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this))
        m_valueTreePath = path;
}

void ScriptableNumericFloat::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableNumericFloat*>(other);
    if (!source)
        return;
    setFloatValue(source->floatValue());
    setFloatMinValue(source->floatMinValue());
    setFloatMaxValue(source->floatMaxValue());
}

double ScriptableNumericFloat::floatValue() const
{
    return m_value ? m_value->GetValue() : 0.0;
}

void ScriptableNumericFloat::setFloatValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetValue(value, nullptr); });
}

double ScriptableNumericFloat::floatMinValue() const
{
    return m_value ? m_value->GetDoubleMin() : 0.0;
}

void ScriptableNumericFloat::setFloatMinValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetMin(value, nullptr); });
}

double ScriptableNumericFloat::floatMaxValue() const
{
    return m_value ? m_value->GetDoubleMax() : 0.0;
}

void ScriptableNumericFloat::setFloatMaxValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetMax(value, nullptr); });
}

double ScriptableNumericFloat::stepValue() const
{
    return m_value ? m_value->GetDoubleStep() : 0.0;
}

void ScriptableNumericFloat::setStepValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetStep(value, nullptr); });
}

bool ScriptableNumericFloat::stateNormal() const
{
    return ScriptableAccess::isStateNormal(m_value);
}

void ScriptableNumericFloat::setStateNormal(bool isNormal)
{
    ScriptableAccess::setStateNormal(m_value, isNormal);
}

} // namespace JEDVEPLUGIN
