#pragma once

#include <values/values_export.h>
#include <zubase/observable.h>

#include <QString>

class Node;

/// State of a value or node.
enum TValueState : int {
    STATE_NORMAL = 0,
    STATE_LEAVING = 1,   ///< it is being deleted; set by the destructor only
    STATE_NOT_NORMAL = 2 ///< what it holds is not to be relied on
};

/// What values and nodes have in common: a name, a state, an address in the value tree and a text form.
///
/// A value belongs to the node that it was added to, otherwise to who made it. The first thing that its
/// destructor does is to set the state STATE_LEAVING and to tell the observers so (CHANGE_STATE), while the
/// object is whole; from then on no look-up finds it. GUI thread only.
///
/// For all setters of this family: one that changes nothing tells nobody and returns true; one that refuses
/// what it is given changes nothing, tells nobody and returns false. Their last argument is the observer that
/// is not told, null to tell everybody. Several changes by one call are all made first and then told in the
/// order CHANGE_ITEMS, CHANGE_RANGE, CHANGE_VALUE.
class VALUES_EXPORT ValueBase : public Observable
{
public:
    /// Leaves its node, if there is one, and gives up its registered addresses.
    ~ValueBase() override;

    const QString& GetName() const { return m_name; }
    /// Refuses a name that contains "/". The name is the id among the siblings unless another one was given
    /// when the value was added; then the change tells CHANGE_PATH if the value has a path name.
    bool SetName(const QString& name);

    TValueState GetState() const { return m_state; }
    /// Tells CHANGE_STATE. Takes STATE_NORMAL and STATE_NOT_NORMAL; refuses anything when the value is
    /// leaving.
    bool SetState(TValueState state, IObserver* except = nullptr);

    /// By what the node that owns it finds it: the key that it was added with, or else its name.
    const QString& GetId() const { return m_key.isEmpty() ? m_name : m_key; }
    /// The node that owns it, null if there is none.
    Node* GetParent() const { return m_parent; }
    bool IsNode() const { return m_isNode; }

    /// The address in the value tree: the newest one of those that were registered (see Tree), otherwise "/"
    /// and the ids from the root down, joined by "/". Empty for a value that is neither registered nor in the
    /// tree, and if an id on the way is empty. The root is "/".
    QString GetPathName() const;

    /// The value as text, independent of the locale, such that SetText() takes it back.
    virtual QString GetText() const = 0;
    /// Refuses a text that is no such value; otherwise as the setter of the value.
    virtual bool SetText(const QString& text, IObserver* except = nullptr) = 0;

protected:
    explicit ValueBase(bool isNode = false)
        : m_isNode(isNode)
    {
    }

    /// To be called first in the destructor of each class that objects are made of. Only the first call
    /// counts.
    void Leave()
    {
        if (m_state == STATE_LEAVING)
            return;
        m_state = STATE_LEAVING;
        NotifyObservers(CHANGE_STATE);
    }

private:
    Q_DISABLE_COPY(ValueBase)
    friend class ChildList;
    friend class Node;
    friend class Tree;

    /// Its destructor is at work, so that it must not be found any more.
    bool isGoing() const { return m_isEnding || m_state == STATE_LEAVING; }

    QString m_name;
    QString m_key;                   // Empty: the name is the id.
    Node* m_parent = nullptr;        // Not owned; owns this.
    ValueBase* m_previous = nullptr; // Siblings of the same kind (value or node), not owned.
    ValueBase* m_next = nullptr;
    TValueState m_state = STATE_NORMAL;
    bool m_isNode;
    bool m_isTreeRoot = false;
    bool m_isEnding = false;     // A node whose destructor is at work, though it has not left yet.
    bool m_isRegistered = false; // The tree knows further addresses of it.
};
