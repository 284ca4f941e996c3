#include <values/valuebase.h>

#include <values/node.h>
#include <values/pathwatch_p.h>
#include <values/tree.h>

#include <QStringList>

#include <algorithm>

ValueBase::~ValueBase()
{
    if (m_isRegistered)
        Tree::Instance()->forget(this);
    if (m_parent != nullptr)
        m_parent->listOf(this).remove(this);
}

bool ValueBase::SetName(const QString& name)
{
    if (name.contains(QLatin1Char('/')))
        return false;
    if (name == m_name)
        return true;
    const PathWatch watch(this);
    m_name = name;
    if (m_parent != nullptr && m_key.isEmpty())
        m_parent->listOf(this).forgetIds();
    watch.tellChange();
    return true;
}

bool ValueBase::SetState(TValueState state, IObserver* except)
{
    const bool isPossible = state == STATE_NORMAL || state == STATE_NOT_NORMAL;
    if (!isPossible || m_state == STATE_LEAVING)
        return false;
    if (state != m_state) {
        m_state = state;
        NotifyObservers(CHANGE_STATE, except);
    }
    return true;
}

QString ValueBase::GetPathName() const
{
    QStringList ids;
    const ValueBase* object = this;
    while (!object->m_isRegistered && !object->m_isTreeRoot) {
        if (object->m_parent == nullptr || object->GetId().isEmpty())
            return QString();
        ids.append(object->GetId());
        object = object->m_parent;
    }
    ids.append(object->m_isRegistered ? Tree::Instance()->newestPath(object) : QString());
    if (ids.size() == 1 && object->m_isTreeRoot)
        return QStringLiteral("/");
    std::reverse(ids.begin(), ids.end());
    return ids.join(QLatin1Char('/'));
}
