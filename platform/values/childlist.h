#pragma once

#include <values/valuebase.h>

#include <QHash>
#include <QString>

/// The children of one kind of a node, in order of adding. They are linked by members of their own, so that
/// adding and removing one costs a few pointers; ids are hashed when the first one is asked for. Does not own
/// them.
class ChildList
{
public:
    ChildList() = default;

    ValueBase* first() const { return m_first; }
    int count() const { return m_count; }

    void append(ValueBase* child)
    {
        child->m_previous = m_last;
        child->m_next = nullptr;
        (m_last == nullptr ? m_first : m_last->m_next) = child;
        m_last = child;
        ++m_count;
        if (m_isIndexed)
            addToIndex(child);
    }
    void remove(ValueBase* child)
    {
        (child->m_previous == nullptr ? m_first : child->m_previous->m_next) = child->m_next;
        (child->m_next == nullptr ? m_last : child->m_next->m_previous) = child->m_previous;
        --m_count;
        if (m_isIndexed)
            removeFromIndex(child);
    }
    /// The first one of that id that is not leaving, null if there is none or the id is empty.
    ValueBase* find(const QString& id) const;
    /// To be called when an id has changed.
    void forgetIds();

private:
    Q_DISABLE_COPY(ChildList)

    void buildIndex() const;
    void addToIndex(ValueBase* child) const;
    void removeFromIndex(const ValueBase* child);

    ValueBase* m_first = nullptr;
    ValueBase* m_last = nullptr;
    int m_count = 0;
    mutable QHash<QString, ValueBase*> m_index; // Id to the first child of that id.
    mutable bool m_isIndexed = false;
    mutable bool m_hasTwins = false; // Some id occurs more than once.
};
