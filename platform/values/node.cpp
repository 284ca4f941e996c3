#include <values/node.h>

#include <values/pathwatch_p.h>

Node::Node()
    : ValueBase(true)
{
}

Node::~Node()
{
    m_isEnding = true;
    Clear();
    Leave();
}

Node* Node::AddChildNode(const QString& id)
{
    if (Node* const child = GetChildNode(id))
        return child;
    if (m_isEnding || id.isEmpty() || id.contains(QLatin1Char('/')))
        return nullptr;
    auto* const child = new Node;
    child->m_name = id;
    child->m_parent = this;
    m_childNodes.append(child);
    return child;
}

Node* Node::GetChildNode(const QString& id) const
{
    return static_cast<Node*>(m_childNodes.find(id));
}

bool Node::AddChild(ValueBase* child, const QString& key)
{
    if (m_isEnding || child == nullptr || child->isGoing() || child->m_parent != nullptr ||
        child->m_isTreeRoot)
        return false;
    if ((!key.isEmpty() && key.contains(QLatin1Char('/'))) || (child->m_isNode && isInside(child)))
        return false;
    const PathWatch watch(child);
    if (!key.isEmpty())
        child->m_key = key;
    child->m_parent = this;
    listOf(child).append(child);
    watch.tellChange();
    return true;
}

ValueBase* Node::GetChild(const QString& id) const
{
    ValueBase* const value = m_values.find(id);
    return value != nullptr ? value : m_childNodes.find(id);
}

QVector<ValueBase*> Node::GetValues() const
{
    QVector<ValueBase*> values;
    values.reserve(m_values.count());
    for (ValueBase* value = m_values.first(); value != nullptr; value = value->m_next)
        values.append(value);
    return values;
}

QVector<Node*> Node::GetChildNodes() const
{
    QVector<Node*> nodes;
    nodes.reserve(m_childNodes.count());
    for (ValueBase* node = m_childNodes.first(); node != nullptr; node = node->m_next)
        nodes.append(static_cast<Node*>(node));
    return nodes;
}

void Node::Clear()
{
    // A loop, since a recursion would run out of stack on a deep chain. A node without children left is
    // deleted by its parent's turn, so each destructor finds nothing to do below it.
    Node* node = this;
    for (;;) {
        node->deleteValues();
        if (ValueBase* const child = node->m_childNodes.first()) {
            node = static_cast<Node*>(child);
            node->m_isEnding = true;
        } else if (node == this) {
            return;
        } else {
            Node* const parent = node->m_parent;
            delete node;
            node = parent;
        }
    }
}

QString Node::GetText() const
{
    return QString();
}

bool Node::SetText(const QString& text, IObserver*)
{
    return text.isEmpty();
}

bool Node::isInside(const ValueBase* ancestor) const
{
    const Node* node = this;
    while (node != nullptr && node != ancestor)
        node = node->m_parent;
    return node != nullptr;
}

void Node::deleteValues()
{
    m_values.forgetIds();
    while (ValueBase* const value = m_values.first())
        delete value;
}
