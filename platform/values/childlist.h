#pragma once

#include <values/values_export.h>

#include <QHash>
#include <QString>

class ValueBase;

/// The children of one kind of a node, in order of adding. They are linked by members of their own, so that
/// adding and removing one costs a few pointers; ids are hashed when the first one is asked for. Does not own
/// them.
class VALUES_EXPORT ChildList
{
public:
    ChildList() = default;

    ValueBase* first() const { return m_first; }
    int count() const { return m_count; }

    void append(ValueBase* child);
    void remove(ValueBase* child);
    /// The first one of that id that is not leaving, null if there is none or the id is empty.
    ValueBase* find(const QString& id) const;
    /// To be called when an id has changed.
    void forgetIds();

private:
    Q_DISABLE_COPY(ChildList)

    void buildIndex() const;
    void addToIndex(ValueBase* child) const;

    ValueBase* m_first = nullptr;
    ValueBase* m_last = nullptr;
    int m_count = 0;
    mutable QHash<QString, ValueBase*> m_index; // Id to the first child of that id.
    mutable bool m_isIndexed = false;
    mutable bool m_hasTwins = false; // Some id occurs more than once.
};
