#include <values/childlist.h>

namespace {

/// Below this number a walk is as fast as the index, and saves making it.
const int INDEX_FROM = 8;

} // namespace

ValueBase* ChildList::find(const QString& id) const
{
    if (id.isEmpty())
        return nullptr;
    ValueBase* child = m_first;
    if (m_count >= INDEX_FROM) {
        if (!m_isIndexed)
            buildIndex();
        child = m_index.value(id);
        if (child == nullptr || !child->isGoing())
            return child;
    }
    while (child != nullptr && (child->isGoing() || child->GetId() != id))
        child = child->m_next;
    return child;
}

void ChildList::forgetIds()
{
    m_index.clear();
    m_isIndexed = false;
    m_hasTwins = false;
}

void ChildList::buildIndex() const
{
    m_index.reserve(m_count);
    for (ValueBase* child = m_first; child != nullptr; child = child->m_next)
        addToIndex(child);
    m_isIndexed = true;
}

void ChildList::addToIndex(ValueBase* child) const
{
    const int size = m_index.size();
    ValueBase*& first = m_index[child->GetId()];
    if (m_index.size() == size)
        m_hasTwins = true;
    else
        first = child;
}

void ChildList::removeFromIndex(const ValueBase* child)
{
    if (m_hasTwins)
        forgetIds();
    else
        m_index.remove(child->GetId());
}
