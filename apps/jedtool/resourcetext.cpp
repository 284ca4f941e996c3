#include "resourcetext.h"

#include "commandline.h"

#include <algorithm>
#include <componentdescriptor.h>
#include <jobxml/valuetext.h>
#include <kit/jobplaces.h>
#include <kit/subjobtree.h>
#include <reportlayer/elementtable.h>
#include <session/texttable.h>
#include <values/node.h>

using JEDVEPLUGIN::ResourceDescription;
using Session::ResourceFile;

namespace JedTool {

namespace {
const char* const VERDICT_NAMES[] = {"accepted", "outdated", "skipped"};

QString joined(const QStringList& words)
{
    return words.join(QLatin1String(", "));
}

QStringList componentNamesOf(const ResourceDescription& resource)
{
    QStringList result;
    for (const auto& component : resource.getComponents())
        result.append(component->getComponentName());
    return result;
}

// What distinguishes one receiver from another, by name.
QVector<QPair<QString, QString>> properties(const ResourceDescription& resource)
{
    return {
        {Texts::tr("name"), resource.getName()},
        {Texts::tr("quantity"), QString::number(resource.getQuantity())},
        {Texts::tr("parent"), resource.getParentBaseResource()},
        {Texts::tr("connectable"), joined(resource.getConnectableResources())},
        {Texts::tr("start-up modes"), joined(resource.getStartupModes())},
        {Texts::tr("version"), resource.getVersion()},
    };
}

QString setText(const Node& set)
{
    QString result = QStringLiteral("    %1").arg(set.GetId());
    if (!PluginKit::isCarriedByJobFile(set.GetId()))
        result += Texts::tr("  (a job file cannot hold it)");
    Session::TextTable table(6);
    for (const ValueBase* value : set.GetValues()) {
        const REPORTGENERATOR::Field* field =
            PluginKit::SubjobTree::field(set.GetId() + QLatin1Char('/') + value->GetId());
        table.append(
            {value->GetId(), JobXml::readableValue(*value, field), JobXml::readableRange(*value, field)});
    }
    return result + QLatin1Char('\n') + table.toText();
}

QString componentText(const JEDVEPLUGIN::ComponentDescriptor& component)
{
    QString result = QLatin1String("  ") + component.getComponentName();
    if (component.isOptional())
        result += Texts::tr("  (optional)");
    result += QLatin1Char('\n');
    Node root;
    component.createVTConfig(&root);
    for (const Node* set : root.GetChildNodes())
        result += setText(*set);
    return result;
}

QJsonObject summaryToJson(const ResourceDescription& resource)
{
    return {
        {QStringLiteral("resource"), Session::resourceKey(resource)},
        {QStringLiteral("name"), resource.getName()},
        {QStringLiteral("quantity"), resource.getQuantity()},
        {QStringLiteral("parent"), resource.getParentBaseResource()},
        {QStringLiteral("connectable"), QJsonArray::fromStringList(resource.getConnectableResources())},
        {QStringLiteral("startupModes"), QJsonArray::fromStringList(resource.getStartupModes())},
        {QStringLiteral("version"), resource.getVersion()},
        {QStringLiteral("components"), QJsonArray::fromStringList(componentNamesOf(resource))},
    };
}

QJsonObject setToJson(const Node& set)
{
    QJsonArray values;
    for (const ValueBase* value : set.GetValues()) {
        const REPORTGENERATOR::Field* field =
            PluginKit::SubjobTree::field(set.GetId() + QLatin1Char('/') + value->GetId());
        values.append(QJsonObject{{QStringLiteral("field"), value->GetId()},
                                  {QStringLiteral("default"), value->GetText()},
                                  {QStringLiteral("range"), JobXml::readableRange(*value, field)},
                                  {QStringLiteral("unit"), field ? field->unit() : QString()}});
    }
    return {{QStringLiteral("name"), set.GetId()},
            {QStringLiteral("carriedByJobFile"), PluginKit::isCarriedByJobFile(set.GetId())},
            {QStringLiteral("values"), values}};
}

QJsonObject componentToJson(const JEDVEPLUGIN::ComponentDescriptor& component)
{
    Node root;
    component.createVTConfig(&root);
    QJsonArray sets;
    for (const Node* set : root.GetChildNodes())
        sets.append(setToJson(*set));
    return {{QStringLiteral("name"), component.getComponentName()},
            {QStringLiteral("optional"), component.isOptional()},
            {QStringLiteral("parameterSets"), sets}};
}

int countOf(const QList<ResourceFile>& files, ResourceFile::Verdict verdict)
{
    return int(std::count_if(files.begin(), files.end(),
                             [verdict](const ResourceFile& file) { return file.verdict == verdict; }));
}
} // namespace

QString resourcesToText(const QList<std::shared_ptr<ResourceDescription>>& resources)
{
    Session::TextTable table;
    table.append({Texts::tr("RESOURCE"), Texts::tr("NAME"), Texts::tr("QUANTITY"), Texts::tr("PARENT"),
                  Texts::tr("START-UP MODES")});
    for (const auto& resource : resources)
        table.append({Session::resourceKey(*resource), resource->getName(),
                      QString::number(resource->getQuantity()), resource->getParentBaseResource(),
                      joined(resource->getStartupModes())});
    return table.toText();
}

QJsonArray resourcesToJson(const QList<std::shared_ptr<ResourceDescription>>& resources)
{
    QJsonArray result;
    for (const auto& resource : resources)
        result.append(summaryToJson(*resource));
    return result;
}

QString resourceToText(const ResourceDescription& resource)
{
    Session::TextTable table(2);
    for (const auto& property : properties(resource)) {
        if (!property.second.isEmpty())
            table.append({property.first, property.second});
    }
    QString result = Session::resourceKey(resource) + QLatin1Char('\n') + table.toText();
    for (const auto& component : resource.getComponents())
        result += componentText(*component);
    return result;
}

QJsonObject resourceToJson(const ResourceDescription& resource)
{
    QJsonArray components;
    for (const auto& component : resource.getComponents())
        components.append(componentToJson(*component));
    QJsonObject result = summaryToJson(resource);
    result.insert(QStringLiteral("components"), components);
    return result;
}

QString resourceFilesToText(const QList<ResourceFile>& files)
{
    Session::TextTable table;
    QString findings;
    int count = 0;
    for (const ResourceFile& file : files) {
        table.append({Texts::tr(VERDICT_NAMES[file.verdict]),
                      file.description ? Session::resourceKey(*file.description) : QStringLiteral("-"),
                      file.path});
        for (const Session::Finding& finding : file.findings)
            findings += finding.toText() + QLatin1Char('\n');
        count += file.findings.size();
    }
    return table.toText() + findings +
           Texts::tr("files: %1 accepted, %2 outdated, %3 skipped; findings: %4\n")
               .arg(QString::number(countOf(files, ResourceFile::ACCEPTED)),
                    QString::number(countOf(files, ResourceFile::OUTDATED)),
                    QString::number(countOf(files, ResourceFile::SKIPPED)), QString::number(count));
}

QJsonObject resourceFilesToJson(const QList<ResourceFile>& files)
{
    QJsonArray rows;
    for (const ResourceFile& file : files) {
        QJsonObject row{{QStringLiteral("file"), file.path},
                        {QStringLiteral("verdict"), QLatin1String(VERDICT_NAMES[file.verdict])},
                        {QStringLiteral("findings"), Session::toJson(file.findings)}};
        if (file.description)
            row.insert(QStringLiteral("resource"), Session::resourceKey(*file.description));
        rows.append(row);
    }
    return {{QStringLiteral("files"), rows},
            {QStringLiteral("accepted"), countOf(files, ResourceFile::ACCEPTED)},
            {QStringLiteral("outdated"), countOf(files, ResourceFile::OUTDATED)},
            {QStringLiteral("skipped"), countOf(files, ResourceFile::SKIPPED)}};
}

} // namespace JedTool
