#pragma once

#include <values/value.h>

#include <QVector>

/// A list of values of type T. Every change of the items tells CHANGE_ITEMS, once for each call.
template <class T, class F, class S>
class VALUES_EXPORT ValueList : public ValueBase
{
public:
    ValueList() = default;
    ~ValueList() override { Leave(); }

    int GetItemCount() const { return m_items.size(); }
    /// The item at \p position, 0 or empty if there is none.
    T GetItem(int position) const { return m_items.value(position); }
    QVector<T> GetItems() const { return m_items; }

    bool PushBack(const T& item, IObserver* except = nullptr)
    {
        m_items.append(item);
        NotifyObservers(CHANGE_ITEMS, except);
        return true;
    }
    bool SetItems(const QVector<T>& items, IObserver* except = nullptr)
    {
        if (m_items != items) {
            m_items = items;
            NotifyObservers(CHANGE_ITEMS, except);
        }
        return true;
    }
    /// Refuses positions outside the list.
    bool SetItem(int position, const T& item, IObserver* except = nullptr)
    {
        if (position < 0 || position >= m_items.size())
            return false;
        QVector<T> items = m_items;
        items[position] = item;
        return SetItems(items, except);
    }
    /// Refuses positions outside the list.
    bool DeleteItem(int position, IObserver* except = nullptr)
    {
        if (position < 0 || position >= m_items.size())
            return false;
        m_items.remove(position);
        NotifyObservers(CHANGE_ITEMS, except);
        return true;
    }
    bool DeleteItems(IObserver* except = nullptr) { return SetItems(QVector<T>(), except); }

    /// One line for each item, each ended by a line feed.
    QString GetText() const override
    {
        QString text;
        QTextStream stream(&text);
        for (const T& item : m_items)
            S::Write(stream, item);
        stream.flush();
        return text;
    }
    bool SetText(const QString& text, IObserver* except = nullptr) override
    {
        QString copy = text;
        QTextStream stream(&copy, QIODevice::ReadOnly);
        QVector<T> items;
        while (!stream.atEnd()) {
            T item{};
            if (!S::Read(stream, &item))
                return false;
            items.append(item);
        }
        return SetItems(items, except);
    }

private:
    QVector<T> m_items;
};

extern template class ValueList<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;

using StringList = ValueList<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;
