#pragma once

#include "scriptableobject.h"
#include "valueobservingptr.h"

#include <values/valueselection.h>

namespace JEDVEPLUGIN {

/// A choice among items as rule scripts see it. What the methods call index is the item's key throughout,
/// not its position.
class JEDVEPB_EXPORT ScriptableSelection : public ScriptableObject
{
    Q_OBJECT
public:
    /// \param value         what to script; only its path name is used, see ScriptableObject. May be null.
    /// \param ruleFunction  name of the script function that runs when the value changes
    /// \param manager       see ScriptableObject
    ScriptableSelection(ValueSelection* value, QString ruleFunction, RuleObjectManager* manager);

    /// The rule keeps following the value.
    void SetValueTreePath(QString path) override;
    /// Selects the key of the other's current item, -1 if it has none. The items are not taken over.
    void SetValue(ScriptableObject* other) override;

    /// Appends an item.
    Q_INVOKABLE void AddItemToSelection(int index, QString name, double val);
    /// Removes the first item of that key, name and value, if there is one.
    Q_INVOKABLE void RemoveItemFromSelection(int index, QString name, double value);
    /// Makes the first item of that key the current one, if there is one.
    Q_INVOKABLE void SelectItemByIndex(int index);
    /// Removes all items. Unlike all other changes this one does not run the object's own rule.
    Q_INVOKABLE void DeleteItems();
    /// 0.0 without a current item.
    Q_INVOKABLE double GetCurrentValue() const;
    /// Empty without a current item.
    Q_INVOKABLE QString GetCurrentName() const;
    /// Key of the current item, -1 without one.
    Q_INVOKABLE int GetCurrentIndex() const;
    Q_INVOKABLE int GetItemCount() const;
    /// Value of the first item of that key, 0.0 if there is none.
    Q_INVOKABLE double GetItemValue(int index) const;
    /// Name of the first item of that key, empty if there is none.
    Q_INVOKABLE QString GetItemName(int index) const;

private:
    ValueObservingPtr<ValueSelection> m_value;
};

} // namespace JEDVEPLUGIN
