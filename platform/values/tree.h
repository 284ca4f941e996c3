#pragma once

#include <values/node.h>

#include <QHash>
#include <QStringList>

/// The value tree of the process: finds values and nodes by path. Made on first use and never destroyed. GUI
/// thread only.
///
/// A path is "/" and ids joined by "/". The leading "/" may be missing and one trailing "/" is ignored. A
/// path with an empty id in it names nothing.
class VALUES_EXPORT Tree
{
public:
    /// Never null.
    static Tree* Instance();

    /// The root, whose children are the first ids of all paths. Owned by the tree.
    Node* GetRoot() const { return m_root; }

    /// What was registered under \p path, otherwise the value there, otherwise the node there. "/" is the
    /// root.
    /// \return null if there is nothing, or only what is being deleted
    ValueBase* FindByPath(const QString& path) const;
    /// The node at \p path, registered ones first. Null if there is none, even if there is a value.
    Node* FindNode(const QString& path) const;
    /// Makes the nodes of the path that are missing.
    /// \return the last one; null, with nothing made, for a path that is empty or has an empty id in it
    Node* CreatePath(const QString& path);

    /// Gives \p value a further address, under which it is found and which is its path name from now on;
    /// ownership stays where it is. What is below a registered node is found under that address too. A path
    /// in use goes to the newcomer: a former holder that was registered there loses it, one that stands there
    /// is not found until the newcomer goes. Tells CHANGE_PATH if the path name changes, first for \p value,
    /// then for a former holder.
    /// \return false if \p value is null or leaving, or for a path that is empty or has an empty id in it
    bool RegisterValue(ValueBase* value, const QString& path);
    /// Takes back all addresses that were registered for \p value. Tells CHANGE_PATH if it had any.
    /// \return false if there were none
    bool UnregisterValue(ValueBase* value);

private:
    friend class ValueBase;

    Tree();
    ~Tree() = default;
    Q_DISABLE_COPY(Tree)

    ValueBase* registered(const QString& path) const;
    /// The node registered under \p path, otherwise the child of \p parent, which may be null.
    Node* childNode(const Node* parent, const QString& path, const QString& id) const;
    const Node* parentOf(const QStringList& ids) const;
    QString newestPath(const ValueBase* value) const { return m_paths.value(value).constLast(); }
    void removeRegistration(ValueBase* value, const QString& path);
    void forget(ValueBase* value);

    Node* m_root;                            // Owned.
    QHash<QString, ValueBase*> m_registered; // Path to who holds it, not owned.
    // The registered paths of a value, the newest last. Without values that have none.
    QHash<const ValueBase*, QStringList> m_paths;
};
