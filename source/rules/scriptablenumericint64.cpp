#include "scriptablenumericint64.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;
using ScriptableAccess::truncated;

ScriptableNumericInt64::ScriptableNumericInt64(NumericInt64* value, QString ruleFunction,
                                               RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableNumericInt64::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this))
        m_valueTreePath = path;
}

void ScriptableNumericInt64::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableNumericInt64*>(other);
    if (!source)
        return;
    setFloatValue(source->floatValue());
    setFloatMinValue(source->floatMinValue());
    setFloatMaxValue(source->floatMaxValue());
}

double ScriptableNumericInt64::floatValue() const
{
    return m_value ? m_value->GetDoubleValue() : 0.0;
}

void ScriptableNumericInt64::setFloatValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetValue(truncated<__int64>(value), nullptr); });
}

double ScriptableNumericInt64::floatMinValue() const
{
    return m_value ? m_value->GetDoubleMin() : 0.0;
}

void ScriptableNumericInt64::setFloatMinValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetMin(truncated<__int64>(value), nullptr); });
}

double ScriptableNumericInt64::floatMaxValue() const
{
    return m_value ? m_value->GetDoubleMax() : 0.0;
}

void ScriptableNumericInt64::setFloatMaxValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetMax(truncated<__int64>(value), nullptr); });
}

double ScriptableNumericInt64::stepValue() const
{
    return m_value ? m_value->GetDoubleStep() : 0.0;
}

void ScriptableNumericInt64::setStepValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetStep(truncated<__int64>(value), nullptr); });
}

bool ScriptableNumericInt64::stateNormal() const
{
    return ScriptableAccess::isStateNormal(m_value);
}

void ScriptableNumericInt64::setStateNormal(bool isNormal)
{
    ScriptableAccess::setStateNormal(m_value, isNormal);
}

} // namespace JEDVEPLUGIN
