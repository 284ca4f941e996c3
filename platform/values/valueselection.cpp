#include <values/valueselection.h>

#include <values/value.h>

#include <algorithm>

namespace {

/// The position of the first item that the condition holds for, -1 if there is none.
template <class Items, class Condition>
int positionOf(const Items& items, Condition condition)
{
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const auto& item) { return condition(*item); });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

} // namespace

ValueSelection::ValueSelection() = default;

ValueSelection::~ValueSelection()
{
    Leave();
}

bool ValueSelection::AddItem(const QString& name, double value, long key, IObserver* except)
{
    m_items.push_back(std::make_unique<SelectionItem>(name, value, key));
    NotifyObservers(CHANGE_ITEMS, except);
    return true;
}

bool ValueSelection::DeleteItem(const QString& name, double value, long key, IObserver* except)
{
    const int position = positionOf(m_items, [&](const SelectionItem& item) {
        return item.GetKey() == key && ValueCompare::isSame(item.GetValue(), value) && item.GetName() == name;
    });
    if (position < 0)
        return false;
    const bool wasCurrent = GetItem(position) == m_current;
    m_items.erase(m_items.begin() + position);
    tellRemoval(wasCurrent, except);
    return true;
}

bool ValueSelection::DeleteItems(IObserver* except)
{
    if (m_items.empty())
        return true;
    const bool wasCurrent = m_current != nullptr;
    m_items.clear();
    tellRemoval(wasCurrent, except);
    return true;
}

bool ValueSelection::Select(long key, IObserver* except)
{
    return makeCurrent(GetItemByKey(key), except);
}

bool ValueSelection::SelectIndex(int position, IObserver* except)
{
    return makeCurrent(GetItem(position), except);
}

double ValueSelection::GetCurrentValue() const
{
    return m_current == nullptr ? 0.0 : m_current->GetValue();
}

int ValueSelection::GetCurrentIndex() const
{
    return positionOf(m_items, [this](const SelectionItem& item) { return &item == m_current; });
}

SelectionItem* ValueSelection::GetItem(int position) const
{
    return position < 0 || position >= GetItemCount() ? nullptr
                                                      : m_items[static_cast<std::size_t>(position)].get();
}

SelectionItem* ValueSelection::GetItemByKey(long key) const
{
    return GetItem(positionOf(m_items, [key](const SelectionItem& item) { return item.GetKey() == key; }));
}

QString ValueSelection::GetText() const
{
    return m_current == nullptr ? QString() : m_current->GetName();
}

bool ValueSelection::SetText(const QString& text, IObserver* except)
{
    if (m_current == nullptr && text.isEmpty())
        return true;
    return makeCurrent(
        GetItem(positionOf(m_items, [&](const SelectionItem& item) { return item.GetName() == text; })),
        except);
}

bool ValueSelection::makeCurrent(SelectionItem* item, IObserver* except)
{
    if (item == nullptr)
        return false;
    if (item != m_current) {
        m_current = item;
        NotifyObservers(CHANGE_VALUE, except);
    }
    return true;
}

void ValueSelection::tellRemoval(bool wasCurrent, IObserver* except)
{
    if (wasCurrent)
        m_current = nullptr;
    if (NotifyObservers(CHANGE_ITEMS, except) && wasCurrent)
        NotifyObservers(CHANGE_VALUE, except);
}
