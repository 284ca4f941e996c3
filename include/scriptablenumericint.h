#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/valuenumeric.h>

namespace JEDVEPLUGIN {

/// A 32-bit integer as rule scripts see it. Numbers that a script gives for the integers lose their
/// fraction, and beyond 32 bits their upper part.
class JEDVEPB_EXPORT ScriptableNumericInt : public ScriptableObject
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(double stepValue READ stepValue WRITE setStepValue)
    Q_PROPERTY(bool stateNormal READ stateNormal WRITE setStateNormal)
public:
    /// \param value         what to script; only its path name is used, see ScriptableObject. May be null.
    /// \param ruleFunction  name of the script function that runs when the value changes
    /// \param manager       see ScriptableObject
    ScriptableNumericInt(NumericInt* value, QString ruleFunction, RuleObjectManager* manager);

    /// The rule keeps following the value.
    void SetValueTreePath(QString path) override;
    /// Takes over value, minimum and maximum, in this order; not the step.
    void SetValue(ScriptableObject* other) override;

    /// A value outside the bounds becomes the nearest bound.
    int value() const;
    void setValue(int value);
    /// A minimum above the maximum takes the maximum along, and the other way round.
    int minValue() const;
    void setMinValue(int value);
    int maxValue() const;
    void setMaxValue(int value);
    /// Loses its fraction when it is set; beyond 32 bits the nearest integer is taken, 0 for NaN.
    double stepValue() const;
    void setStepValue(double value);
    /// Whether the value can be relied on (state 0); setting false writes state 2.
    bool stateNormal() const;
    void setStateNormal(bool isNormal);

private:
    ValueObservingPtr<NumericInt> m_value;
};

} // namespace JEDVEPLUGIN
