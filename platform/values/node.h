#pragma once

#include <values/childlist.h>
#include <values/valuebase.h>

#include <QVector>

/// A node of the value tree. It owns its values and child nodes and keeps them in the order in which they
/// were added. Values and child nodes are looked up separately, so one of each may carry the same id; of
/// several of the same kind a look-up gives the first.
///
/// On deletion it lets its values go one after the other, then its child nodes, then itself; any depth will
/// do. Deleting a child takes it out of its node.
class VALUES_EXPORT Node : public ValueBase
{
public:
    Node();
    ~Node() override;

    /// Gives the child node of that id, a new one named \p id if there is none.
    /// \return null if \p id is empty or contains "/", or if this node is being deleted
    Node* AddChildNode(const QString& id);
    /// \return null if there is none
    Node* GetChildNode(const QString& id) const;

    /// Takes a value or node as the last child and owns it from then on. Tells the child's observers
    /// CHANGE_PATH if that gives it a path name.
    /// \param key  the child's id; empty: its own name, also after later changes of the name. A child without
    ///             any id is kept, but no look-up finds it.
    /// \return false, the child still being the caller's, if it is null, leaving, in a node already, this
    ///         node or above it, if \p key contains "/", or if this node is being deleted
    bool AddChild(ValueBase* child, const QString& key = QString());
    /// The value of that id, otherwise the child node of that id, otherwise null.
    ValueBase* GetChild(const QString& id) const;

    int GetValueCount() const { return m_values.count(); }
    int GetChildNodeCount() const { return m_childNodes.count(); }
    /// The values, without the child nodes, in order.
    QVector<ValueBase*> GetValues() const;
    /// In order.
    QVector<Node*> GetChildNodes() const;
    /// Deletes all values and child nodes, in the order of the destructor.
    void Clear();

    /// A node has no value: always empty.
    QString GetText() const override;
    /// Refused, except for the empty text.
    bool SetText(const QString& text, IObserver* except = nullptr) override;

private:
    friend class ValueBase;
    friend class Tree;

    ChildList& listOf(const ValueBase* child) { return child->m_isNode ? m_childNodes : m_values; }
    bool isInside(const ValueBase* ancestor) const;
    void deleteValues();

    ChildList m_values;
    ChildList m_childNodes;
};
