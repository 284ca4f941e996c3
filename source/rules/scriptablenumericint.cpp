#include "scriptablenumericint.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;
using ScriptableAccess::truncated;

ScriptableNumericInt::ScriptableNumericInt(NumericInt* value, QString ruleFunction,
                                           RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableNumericInt::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this))
        m_valueTreePath = path;
}

void ScriptableNumericInt::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableNumericInt*>(other);
    if (!source)
        return;
    setValue(source->value());
    setMinValue(source->minValue());
    setMaxValue(source->maxValue());
}

int ScriptableNumericInt::value() const
{
    return m_value ? m_value->GetValue() : 0;
}

void ScriptableNumericInt::setValue(int value)
{
    if (m_value)
        guarded([&] { m_value->SetValue(value, nullptr); });
}

int ScriptableNumericInt::minValue() const
{
    return m_value ? m_value->GetMin() : 0;
}

void ScriptableNumericInt::setMinValue(int value)
{
    if (m_value)
        guarded([&] { m_value->SetMin(value, nullptr); });
}

int ScriptableNumericInt::maxValue() const
{
    return m_value ? m_value->GetMax() : 0;
}

void ScriptableNumericInt::setMaxValue(int value)
{
    if (m_value)
        guarded([&] { m_value->SetMax(value, nullptr); });
}

double ScriptableNumericInt::stepValue() const
{
    return m_value ? m_value->GetDoubleStep() : 0.0;
}

void ScriptableNumericInt::setStepValue(double value)
{
    if (m_value)
        guarded([&] { m_value->SetStep(truncated<int>(value), nullptr); });
}

bool ScriptableNumericInt::stateNormal() const
{
    return ScriptableAccess::isStateNormal(m_value);
}

void ScriptableNumericInt::setStateNormal(bool isNormal)
{
    ScriptableAccess::setStateNormal(m_value, isNormal);
}

} // namespace JEDVEPLUGIN
