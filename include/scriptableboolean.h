#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/value.h>

namespace JEDVEPLUGIN {

/// A truth value as rule scripts see it.
class JEDVEPB_EXPORT ScriptableBoolean : public ScriptableObject
{
    Q_OBJECT
    Q_PROPERTY(bool boolValue READ boolValue WRITE setBoolValue)
    Q_PROPERTY(bool stateNormal READ stateNormal WRITE setStateNormal)
public:
    /// \param value         what to script; only its path name is used, see ScriptableObject. May be null.
    /// \param ruleFunction  name of the script function that runs when the value changes
    /// \param manager       see ScriptableObject
    ScriptableBoolean(ValueBool* value, QString ruleFunction, RuleObjectManager* manager);

    /// Ends the observation: from then on changes of the value no longer run the rule. That is how this class
    /// has always behaved, other than its siblings; scripts and plug-ins count on it.
    void SetValueTreePath(QString path) override;
    /// Takes over the truth value.
    void SetValue(ScriptableObject* other) override;

    bool boolValue() const;
    void setBoolValue(bool value);
    /// Whether the value can be relied on (state 0); setting false writes state 2.
    bool stateNormal() const;
    void setStateNormal(bool isNormal);

private:
    ValueObservingPtr<ValueBool> m_value;
};

} // namespace JEDVEPLUGIN
