#include "scriptableselection.h"

#include "scriptableaccess_p.h"

namespace JEDVEPLUGIN {

using ScriptableAccess::guarded;

ScriptableSelection::ScriptableSelection(ValueSelection* value, QString ruleFunction,
                                         RuleObjectManager* manager)
    : ScriptableObject(manager)
    , m_value(this)
{
    m_valueTreePath = ScriptableAccess::attachByPath(value, &m_value);
    m_ruleFunction = ruleFunction;
}

void ScriptableSelection::SetValueTreePath(QString path)
{
    if (ScriptableAccess::registerUnder(path, m_value, this))
        m_valueTreePath = path;
}

void ScriptableSelection::SetValue(ScriptableObject* other)
{
    const auto* const source = dynamic_cast<ScriptableSelection*>(other);
    if (!source)
        return;
    SelectItemByIndex(source->GetCurrentIndex());
}

void ScriptableSelection::AddItemToSelection(int index, QString name, double val)
{
    if (m_value)
        guarded([&] { m_value->AddItem(name, val, index, nullptr); });
}

void ScriptableSelection::RemoveItemFromSelection(int index, QString name, double value)
{
    if (m_value)
        guarded([&] { m_value->DeleteItem(name, value, index, nullptr); });
}

void ScriptableSelection::SelectItemByIndex(int index)
{
    if (m_value)
        guarded([&] { m_value->Select(index, nullptr); });
}

void ScriptableSelection::DeleteItems()
{
    if (m_value)
        guarded([&] { m_value->DeleteItems(this); });
}

double ScriptableSelection::GetCurrentValue() const
{
    return m_value ? m_value->GetCurrentValue() : 0.0;
}

QString ScriptableSelection::GetCurrentName() const
{
    const SelectionItem* const item = m_value ? m_value->GetCurrentItem() : nullptr;
    return item ? item->GetName() : QString();
}

int ScriptableSelection::GetCurrentIndex() const
{
    const SelectionItem* const item = m_value ? m_value->GetCurrentItem() : nullptr;
    return item ? static_cast<int>(item->GetKey()) : -1;
}

int ScriptableSelection::GetItemCount() const
{
    return m_value ? m_value->GetItemCount() : 0;
}

double ScriptableSelection::GetItemValue(int index) const
{
    const SelectionItem* const item = m_value ? m_value->GetItemByKey(index) : nullptr;
    return item ? item->GetValue() : 0.0;
}

QString ScriptableSelection::GetItemName(int index) const
{
    const SelectionItem* const item = m_value ? m_value->GetItemByKey(index) : nullptr;
    return item ? item->GetName() : QString();
}

} // namespace JEDVEPLUGIN
