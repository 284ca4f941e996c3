#pragma once

#include <values/valuebase.h>

#include <memory>
#include <vector>

/// One item of a ValueSelection. It does not change once it is made.
class VALUES_EXPORT SelectionItem
{
public:
    SelectionItem(const QString& name, double value, long key)
        : m_name(name)
        , m_value(value)
        , m_key(key)
    {
    }

    const QString& GetName() const { return m_name; }
    double GetValue() const { return m_value; }
    long GetKey() const { return m_key; }

private:
    QString m_name;
    double m_value;
    long m_key;
};

/// A choice among items, of which one or none is the current one. Items keep the order in which they were
/// added; nothing about them need be unique. At first there is no current item, and adding items selects
/// none.
class VALUES_EXPORT ValueSelection : public ValueBase
{
public:
    ValueSelection();
    ~ValueSelection() override;

    /// Appends an item. Tells CHANGE_ITEMS.
    bool AddItem(const QString& name, double value, long key, IObserver* except = nullptr);
    /// Removes the first item of that name, value and key, false if there is none. Tells CHANGE_ITEMS, and
    /// CHANGE_VALUE if it was the current one, after which there is no current item.
    bool DeleteItem(const QString& name, double value, long key, IObserver* except = nullptr);
    /// Removes all items. Tells as DeleteItem().
    bool DeleteItems(IObserver* except = nullptr);

    /// Makes the first item of that key the current one, false if there is none. Tells CHANGE_VALUE.
    bool Select(long key, IObserver* except = nullptr);
    /// Makes the item at that position the current one, false if there is none. Tells CHANGE_VALUE.
    bool SelectIndex(int position, IObserver* except = nullptr);

    /// Null if there is none. Items are owned by the selection and stay valid until they are removed.
    SelectionItem* GetCurrentItem() const { return m_current; }
    /// The current item's value, 0.0 if there is none.
    double GetCurrentValue() const;
    /// The current item's position, -1 if there is none.
    int GetCurrentIndex() const;

    int GetItemCount() const { return static_cast<int>(m_items.size()); }
    /// Null for positions outside.
    SelectionItem* GetItem(int position) const;
    /// The first item of that key, null if there is none.
    SelectionItem* GetItemByKey(long key) const;

    /// The current item's name, empty if there is none.
    QString GetText() const override;
    /// Selects the first item of that name.
    bool SetText(const QString& text, IObserver* except = nullptr) override;

private:
    using Items = std::vector<std::unique_ptr<SelectionItem>>;

    bool makeCurrent(SelectionItem* item, IObserver* except);
    void tellRemoval(bool wasCurrent, IObserver* except);

    Items m_items;
    SelectionItem* m_current = nullptr; // One of the items, or null.
};
