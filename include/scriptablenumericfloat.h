#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/valuenumeric.h>

namespace JEDVEPLUGIN {

/// A floating-point number as rule scripts see it.
class JEDVEPB_EXPORT ScriptableNumericFloat : public ScriptableObject
{
    Q_OBJECT
    Q_PROPERTY(double floatValue READ floatValue WRITE setFloatValue)
    Q_PROPERTY(double floatMinValue READ floatMinValue WRITE setFloatMinValue)
    Q_PROPERTY(double floatMaxValue READ floatMaxValue WRITE setFloatMaxValue)
    Q_PROPERTY(double stepValue READ stepValue WRITE setStepValue)
    Q_PROPERTY(bool stateNormal READ stateNormal WRITE setStateNormal)
public:
    /// \param value         what to script; only its path name is used, see ScriptableObject. May be null.
    /// \param ruleFunction  name of the script function that runs when the value changes
    /// \param manager       see ScriptableObject
    ScriptableNumericFloat(NumericDouble* value, QString ruleFunction, RuleObjectManager* manager);

    /// The rule keeps following the value.
    void SetValueTreePath(QString path) override;
    /// Takes over value, minimum and maximum, in this order; not the step.
    void SetValue(ScriptableObject* other) override;

    /// A value outside the bounds becomes the nearest bound.
    double floatValue() const;
    void setFloatValue(double value);
    /// A minimum above the maximum takes the maximum along, and the other way round.
    double floatMinValue() const;
    void setFloatMinValue(double value);
    double floatMaxValue() const;
    void setFloatMaxValue(double value);
    /// 0 means free. Steps below 0 are refused.
    double stepValue() const;
    void setStepValue(double value);
    /// Whether the value can be relied on (state 0); setting false writes state 2.
    bool stateNormal() const;
    void setStateNormal(bool isNormal);

private:
    ValueObservingPtr<NumericDouble> m_value;
};

} // namespace JEDVEPLUGIN
