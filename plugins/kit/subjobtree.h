#pragma once

#include <memory>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class Node;
class ValueBase;

namespace JEDVEPLUGIN {
class ResourceDescription;
}
namespace REPORTGENERATOR {
struct Field;
}

namespace PluginKit {

/// The values of one sub-job: a node for each parameter set that the receiver's components supply, with defaults and
/// ranges out of its tuner property file. A value's path is "SET/FIELD". GUI thread only.
class SubjobTree
{
public:
    /// \param parent  node of the value tree in which the values get a place, under the first free one of the ids
    ///                "SubJob1", "SubJob2" and so on; null: none. Must outlive the tree.
    explicit SubjobTree(Node* parent = nullptr);
    ~SubjobTree();

    /// The node above the parameter sets. Owned by the tree.
    Node* root() const { return m_root.get(); }

    /// Builds the values of a receiver anew.
    void build(const JEDVEPLUGIN::ResourceDescription& resource);

    /// The nodes of the parameter sets in the order of the components. Owned by the tree.
    QVector<Node*> sets() const;
    /// Null if the receiver does not supply a set of that name.
    Node* set(const QString& name) const;
    /// Those that a job writes: of components that are not optional, and of optional ones when one of their sets is
    /// among \p touched.
    QVector<Node*> setsInUse(const QSet<QString>& touched) const;

    /// Null if there is none.
    ValueBase* value(const QString& path) const;
    QStringList valuePaths() const;

    /// The field that a value stands for, null if there is none.
    static const REPORTGENERATOR::Field* field(const QString& path);

private:
    std::unique_ptr<Node> m_root;         // In its parent, which it leaves when it is deleted.
    QVector<QStringList> m_mandatorySets; // Of each component that is not optional.
    QVector<QStringList> m_optionalSets;  // Of each optional component.
};

} // namespace PluginKit
