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

namespace Session {

/// The values of one sub-job: a node for each parameter set that the receiver's components supply, with defaults and
/// ranges out of its tuner property file. A value's path is "SET/FIELD". GUI thread only.
class SubjobTree
{
public:
    SubjobTree();
    ~SubjobTree();

    /// Builds the values of a receiver anew.
    void build(const JEDVEPLUGIN::ResourceDescription& resource);

    /// The nodes of the parameter sets in the order of the components. Owned by the tree.
    QVector<Node*> sets() const;
    /// Null if the receiver does not supply a set of that name.
    Node* set(const QString& name) const;
    /// Whether only optional components supply the set.
    bool isOptional(const QString& set) const { return !m_mandatorySets.contains(set); }

    /// Null if there is none.
    ValueBase* value(const QString& path) const;
    QStringList valuePaths() const;

    /// The field that a value stands for, null if there is none.
    static const REPORTGENERATOR::Field* field(const QString& path);

private:
    std::unique_ptr<Node> m_root;
    QSet<QString> m_mandatorySets;
};

} // namespace Session
