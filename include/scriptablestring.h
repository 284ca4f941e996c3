#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/value.h>

namespace JEDVEPLUGIN {

/// A text as rule scripts see it.
class JEDVEPB_EXPORT ScriptableString : public ScriptableObject
{
    Q_OBJECT
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue)
public:
    /// \param value         what to script; only its path name is used, see ScriptableObject. May be null.
    /// \param ruleFunction  name of the script function that runs when the value changes
    /// \param manager       see ScriptableObject
    ScriptableString(ValueString* value, QString ruleFunction, RuleObjectManager* manager);

    /// The rule keeps following the value.
    void SetValueTreePath(QString path) override;
    /// Takes over the text.
    void SetValue(ScriptableObject* other) override;

    QString stringValue() const;
    void setStringValue(QString value);

private:
    ValueObservingPtr<ValueString> m_value;
};

} // namespace JEDVEPLUGIN
