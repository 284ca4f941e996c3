#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/valuenumeric.h>

namespace JEDVEPLUGIN {

/// A 64-bit integer as rule scripts see it: as floating-point numbers, since the script engine has no others.
/// Beyond 2^53 they lose precision. What is set loses its fraction; beyond 64 bits the nearest integer is
/// taken, 0 for NaN.
class JEDVEPB_EXPORT ScriptableNumericInt64 : public ScriptableObject
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
    ScriptableNumericInt64(NumericInt64* value, QString ruleFunction, RuleObjectManager* manager);

    /// The rule keeps following the value.
    void SetValueTreePath(QString path) override;
    /// Takes over value, minimum and maximum, in this order and by way of floating-point numbers; not the step.
    void SetValue(ScriptableObject* other) override;

    /// A value outside the bounds becomes the nearest bound.
    double floatValue() const;
    void setFloatValue(double value);
    /// A minimum above the maximum takes the maximum along, and the other way round.
    double floatMinValue() const;
    void setFloatMinValue(double value);
    double floatMaxValue() const;
    void setFloatMaxValue(double value);
    double stepValue() const;
    void setStepValue(double value);
    /// Whether the value can be relied on (state 0); setting false writes state 2.
    bool stateNormal() const;
    void setStateNormal(bool isNormal);

private:
    ValueObservingPtr<NumericInt64> m_value;
};

} // namespace JEDVEPLUGIN
