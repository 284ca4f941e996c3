#pragma once

#include <QList>
#include <QString>
#include <QVector>

#include "jedvepb_export.h"

class Node;
class ValueBase;

namespace JobXml {
class Component;
class Node;
class ValueSelection;
class ValueStringList;
} // namespace JobXml

namespace JEDVEPLUGIN {

/// One component of a receiver as its tuner property file describes it: which parameter sets it supplies, and
/// the values with defaults and ranges that its settings start from.
///
/// A plain value: copies are independent of each other. Shared descriptions hand it around as
/// std::shared_ptr<ComponentDescriptor>. GUI thread only; nothing is thrown.
///
/// Callers that use the nodes include <jobxml/tunerproperties.h>, those that build a tree <values/node.h>.
class JEDVEPB_EXPORT ComponentDescriptor
{
public:
    /// Copies type, name, optional flag and nodes of \p component and asks ParameterSetMapper, with the
    /// component's name (not its type), for the parameter sets.
    ComponentDescriptor(const JobXml::Component& component);
    ComponentDescriptor(const ComponentDescriptor& other);
    ComponentDescriptor& operator=(const ComponentDescriptor& other);
    ~ComponentDescriptor();

    /// The component's type attribute, as the file has it.
    QString getType() const;
    /// The component's name, the key into ParameterSetMapper.
    QString getComponentName() const;
    /// Whether a receiver can be without this component.
    bool isOptional() const;
    /// Names of the parameter sets that the component supplies, in the order of
    /// ParameterSetMapper::getParameterSetNames; empty if the mapper does not know the component's name.
    const QList<QString>& getParameterSetNames() const;

    /// The first node whose id equals \p id to the letter; where there is none, a new node of that id is
    /// appended. \return never fails; valid until the next node is appended or the descriptor is copied or
    /// destroyed
    JobXml::Node& getvtNode(const QString& id);
    /// Whether a node has exactly the id \p id. Adds none.
    bool hasVtNode(const QString& id) const;
    /// All nodes: those of the file in its order, then the appended ones.
    const QVector<JobXml::Node>& getVtNodes() const;
    /// Appends a copy of \p node, also if one of that id is there already.
    void appendNode(const JobXml::Node& node);

    /// Builds the nodes below \p root, each as a child node named by its id with one value per value item,
    /// named by the item's id and holding the file's range and default (a default outside its range is
    /// clamped). Nodes that share an id fill one child node. Value items of an unknown kind are skipped and
    /// traced; values and nodes that the value tree refuses (a name with "/") are left out. \param root takes
    /// ownership of all that is created; null: nothing happens
    ///
    /// May be called any number of times, for different roots: every call makes values of its own.
    void createVTConfig(::Node* root) const;

private:
    void createVTNode(::Node* target, const JobXml::Node& source) const;
    // Both return a new value that the caller owns.
    ValueBase* createValueSelection(const JobXml::ValueSelection& selection) const;
    ValueBase* createValueStringList(const JobXml::ValueStringList& list) const;

    QString type;
    QString name;
    bool optional;
    QVector<JobXml::Node> vtNodes; // In file order, appended ones behind.
    QList<QString> parameterSetNames;
};

} // namespace JEDVEPLUGIN
