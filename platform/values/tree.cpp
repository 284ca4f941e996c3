#include <values/tree.h>

#include <values/pathwatch_p.h>

namespace {

/// The ids of a path, empty if it names nothing.
QStringList idsOf(const QString& path)
{
    const int begin = path.startsWith(QLatin1Char('/')) ? 1 : 0;
    const int end = path.size() > begin && path.endsWith(QLatin1Char('/')) ? path.size() - 1 : path.size();
    const QStringList ids = path.mid(begin, end - begin).split(QLatin1Char('/'));
    return ids.contains(QString()) ? QStringList() : ids;
}

QString pathOf(const QStringList& ids)
{
    return QLatin1Char('/') + ids.join(QLatin1Char('/'));
}

/// Knows whether an object still lives while others are told.
class LifeWatch : public IObserver
{
public:
    explicit LifeWatch(ValueBase* object)
        : m_object(object)
    {
        if (m_object != nullptr)
            m_object->AddObserver(this);
    }
    ~LifeWatch() override
    {
        if (m_object != nullptr)
            m_object->DeleteObserver(this);
    }
    bool isAlive() const { return m_object != nullptr; }
    void Update(Observable*, TChangeCode) override
    {
        if (m_object->GetState() == STATE_LEAVING)
            m_object = nullptr;
    }

private:
    Q_DISABLE_COPY(LifeWatch)

    ValueBase* m_object; // Not owned.
};

} // namespace

Tree* Tree::Instance()
{
    static Tree* const s_instance = new Tree;
    return s_instance;
}

Tree::Tree()
    : m_root(new Node)
{
    m_root->m_isTreeRoot = true;
}

ValueBase* Tree::FindByPath(const QString& path) const
{
    if (path == QLatin1String("/"))
        return m_root;
    const QStringList ids = idsOf(path);
    if (ids.isEmpty())
        return nullptr;
    if (ValueBase* const value = registered(pathOf(ids)))
        return value;
    const Node* const parent = parentOf(ids);
    return parent == nullptr ? nullptr : parent->GetChild(ids.last());
}

Node* Tree::FindNode(const QString& path) const
{
    if (path == QLatin1String("/"))
        return m_root;
    const QStringList ids = idsOf(path);
    return ids.isEmpty() ? nullptr : childNode(parentOf(ids), pathOf(ids), ids.last());
}

Node* Tree::CreatePath(const QString& path)
{
    const QStringList ids = idsOf(path);
    if (ids.isEmpty())
        return nullptr;
    Node* node = m_root;
    QString prefix;
    for (const QString& id : ids) {
        prefix += QLatin1Char('/') + id;
        Node* const child = childNode(node, prefix, id);
        node = child != nullptr ? child : node->AddChildNode(id);
    }
    return node;
}

bool Tree::RegisterValue(ValueBase* value, const QString& path)
{
    const QStringList ids = idsOf(path);
    if (ids.isEmpty() || value == nullptr || value == m_root || value->isGoing())
        return false;
    const QString key = pathOf(ids);
    ValueBase* const holder = m_registered.value(key);
    ValueBase* const former = holder == value ? nullptr : holder;
    const PathWatch watch(value);
    const PathWatch formerWatch(former);
    if (former != nullptr)
        removeRegistration(former, key);
    m_registered.insert(key, value);
    QStringList& paths = m_paths[value];
    paths.removeAll(key);
    paths.append(key);
    value->m_isRegistered = true;
    const LifeWatch formerLife(former);
    watch.tellChange();
    if (formerLife.isAlive())
        formerWatch.tellChange();
    return true;
}

bool Tree::UnregisterValue(ValueBase* value)
{
    if (value == nullptr || !value->m_isRegistered)
        return false;
    const PathWatch watch(value);
    forget(value);
    watch.tellChange();
    return true;
}

ValueBase* Tree::registered(const QString& path) const
{
    ValueBase* const value = m_registered.value(path);
    return value == nullptr || value->isGoing() ? nullptr : value;
}

Node* Tree::childNode(const Node* parent, const QString& path, const QString& id) const
{
    ValueBase* const value = registered(path);
    if (value != nullptr && value->m_isNode)
        return static_cast<Node*>(value);
    return parent == nullptr ? nullptr : parent->GetChildNode(id);
}

const Node* Tree::parentOf(const QStringList& ids) const
{
    const Node* node = m_root;
    QString prefix;
    // Goes on where there is no node, since one may be registered further down.
    for (int i = 0; i < ids.size() - 1; ++i) {
        prefix += QLatin1Char('/') + ids.at(i);
        node = childNode(node, prefix, ids.at(i));
    }
    return node;
}

void Tree::removeRegistration(ValueBase* value, const QString& path)
{
    m_registered.remove(path);
    QStringList& paths = m_paths[value];
    paths.removeAll(path);
    if (!paths.isEmpty())
        return;
    m_paths.remove(value);
    value->m_isRegistered = false;
}

void Tree::forget(ValueBase* value)
{
    const QStringList paths = m_paths.take(value);
    for (const QString& path : paths)
        m_registered.remove(path);
    value->m_isRegistered = false;
}
