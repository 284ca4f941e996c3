#include "subjobtree.h"

#include <algorithm>
#include <componentdescriptor.h>
#include <jobxml/parametersettext.h>
#include <jobxml/tunerproperties.h>
#include <resourcedescription.h>
#include <values/node.h>

namespace {
QString setOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

QString fieldOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 1);
}

Node* newRoot(Node* parent)
{
    int number = 1;
    const auto id = [&number] { return QStringLiteral("SubJob%1").arg(number); };
    while (parent && parent->GetChildNode(id()))
        ++number;
    Node* const inParent = parent ? parent->AddChildNode(id()) : nullptr;
    return inParent ? inParent : new Node;
}
} // namespace

namespace PluginKit {

SubjobTree::SubjobTree(Node* parent)
    : m_root(newRoot(parent))
{
}

SubjobTree::~SubjobTree() = default;

void SubjobTree::build(const JEDVEPLUGIN::ResourceDescription& resource)
{
    m_root->Clear();
    m_mandatorySets.clear();
    m_optionalSets.clear();
    for (const auto& component : resource.getComponents()) {
        component->createVTConfig(m_root.get());
        QStringList sets;
        for (const JobXml::Node& node : component->getVtNodes())
            sets.append(node.Getid());
        (component->isOptional() ? m_optionalSets : m_mandatorySets).append(sets);
    }
}

QVector<Node*> SubjobTree::sets() const
{
    return m_root->GetChildNodes();
}

QVector<Node*> SubjobTree::setsInUse(const QSet<QString>& touched) const
{
    QStringList used;
    for (const QStringList& component : m_mandatorySets)
        used += component;
    for (const QStringList& component : m_optionalSets) {
        if (std::any_of(component.begin(), component.end(),
                        [&](const QString& set) { return touched.contains(set); }))
            used += component;
    }
    QVector<Node*> result;
    for (Node* node : sets()) {
        if (used.contains(node->GetId()))
            result.append(node);
    }
    return result;
}

Node* SubjobTree::set(const QString& name) const
{
    return m_root->GetChildNode(name);
}

ValueBase* SubjobTree::value(const QString& path) const
{
    const Node* const node = set(setOf(path));
    ValueBase* const found = node ? node->GetChild(fieldOf(path)) : nullptr;
    return found && !found->IsNode() ? found : nullptr;
}

QStringList SubjobTree::valuePaths() const
{
    QStringList result;
    for (const Node* node : sets()) {
        for (const ValueBase* value : node->GetValues())
            result.append(node->GetId() + QLatin1Char('/') + value->GetId());
    }
    return result;
}

const REPORTGENERATOR::Field* SubjobTree::field(const QString& path)
{
    return JobXml::ParameterSetText::field(setOf(path), fieldOf(path));
}

} // namespace PluginKit
