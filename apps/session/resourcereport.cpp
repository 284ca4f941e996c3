#include "resourcereport.h"

#include "parametersets.h"
#include "savefile.h"
#include "tuneritem.h"
#include <jobxml/suggestion.h>

#include <jobxml/job.h>
#include <jobxml/parametersettext.h>
#include <jobxml/tunerproperties.h>
#include <kit/subjobheader.h>
#include <parametersetmapper.h>
#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QSet>

using JEDVEPLUGIN::ParameterSetMapper;
using JEDVEPLUGIN::ResourceDescription;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::ResourceReport)
};

// Collects the findings of one file; knows where its elements begin.
class FileExaminer
{
public:
    FileExaminer(Session::ResourceFile* file, const Session::ElementPositions& positions)
        : m_file(file)
        , m_positions(positions)
    {
    }

    void examine(const JobXml::TunerProperties& properties)
    {
        for (int i = 0; i < properties.GetComponent().size(); ++i)
            examineComponent(properties.GetComponent().value(i), QStringLiteral("Component:%1").arg(i));
    }

    void warn(const QString& path, const QString& text, const QString& advice = QString())
    {
        const Session::ElementPositions::Position position = m_positions.at(path);
        m_file->findings.append({Session::Finding::WARNING, m_file->path, position.line, position.column,
                                 text, advice.trimmed()});
    }

private:
    void examineComponent(const JobXml::Component& component, const QString& path)
    {
        if (ParameterSetMapper::getParameterSetNames(component.Getname()).isEmpty()) {
            warn(path, Texts::tr("no component is called \"%1\"").arg(component.Getname()),
                 JobXml::suggestion(component.Getname(), Session::componentNames()));
        }
        for (int i = 0; i < component.GetNode().size(); ++i) {
            const JobXml::Node& node = component.GetNode().at(i);
            const QString nodePath = QStringLiteral("%1/Node:%2").arg(path, QString::number(i));
            examineNode(node, nodePath);
        }
    }

    void examineNode(const JobXml::Node& node, const QString& path)
    {
        if (!JobXml::findParameterSet(node.Getid())) {
            warn(path, Texts::tr("there is no parameter set \"%1\"").arg(node.Getid()),
                 JobXml::suggestion(node.Getid(), Session::parameterSetNames()));
            return;
        }
        QSet<QString> ids;
        for (int i = 0; i < node.GetValueItem().size(); ++i) {
            if (node.GetValueItem().at(i).GetChoiceValueItem() < 0)
                continue; // Of an unknown kind; validating tells.
            const Session::TunerItem item = Session::tunerItem(node.GetValueItem().at(i));
            const QString itemPath = QStringLiteral("%1/ValueItem:%2").arg(path, QString::number(i));
            const REPORTGENERATOR::Field* field = JobXml::ParameterSetText::field(node.Getid(), item.id);
            if (ids.contains(item.id))
                warn(itemPath, Texts::tr("%1 has two values \"%2\"").arg(node.Getid(), item.id));
            ids.insert(item.id);
            if (!field)
                warn(itemPath, Texts::tr("%1 has no field \"%2\"").arg(node.Getid(), item.id),
                     JobXml::suggestion(item.id, JobXml::ParameterSetText::fieldPaths(node.Getid())));
            else
                examineItem(item, *field, itemPath);
        }
    }

    void examineItem(const Session::TunerItem& item, const REPORTGENERATOR::Field& field, const QString& path)
    {
        for (const QString& fault : Session::tunerItemFaults(item, field))
            warn(path, QStringLiteral("%1: %2").arg(item.id, fault));
    }

    Session::ResourceFile* m_file;
    const Session::ElementPositions& m_positions;
};

void refuse(Session::ResourceFile* file, const REPORTGENERATOR::IRGObject& element, const QString& reason)
{
    file->findings.append({Session::Finding::FAILURE, file->path, element.GetCheckLine(),
                           element.GetCheckColumn(), reason,
                           Texts::tr("The library skips the file. Mend it, or export it again.")});
}

void refuseVersion(Session::ResourceFile* file, const QString& version)
{
    file->verdict = Session::ResourceFile::OUTDATED;
    file->findings.append(
        {Session::Finding::FAILURE, file->path, file->root.line, file->root.column,
         Texts::tr("version \"%1\" is outdated, 1.1 or later is needed").arg(version),
         Texts::tr("The library skips the file and warns. Export the tuner properties again.")});
}

QHash<QString, const Session::ResourceFile*> byKey(const QList<Session::ResourceFile>& files)
{
    QHash<QString, const Session::ResourceFile*> result;
    for (const Session::ResourceFile& file : files) {
        if (file.description && !result.contains(Session::resourceKey(*file.description)))
            result.insert(Session::resourceKey(*file.description), &file);
    }
    return result;
}

QString parentKey(const ResourceDescription& description)
{
    return description.getType() + QLatin1Char('/') + description.getParentBaseResource();
}

// The base resources of one type, or of all if it is empty.
QStringList basesOf(const QString& type, const QHash<QString, const Session::ResourceFile*>& files)
{
    QStringList result;
    for (const Session::ResourceFile* file : files) {
        if (type.isEmpty() || file->description->getType() == type)
            result.append(file->description->getBaseResource());
    }
    result.sort();
    return result;
}

// Whether following the parents from here leads back to here.
bool isInCircle(const ResourceDescription& start, const QHash<QString, const Session::ResourceFile*>& files)
{
    const ResourceDescription* current = &start;
    for (int steps = 0; steps <= files.size() && !current->getParentBaseResource().isEmpty(); ++steps) {
        const Session::ResourceFile* parent = files.value(parentKey(*current));
        if (!parent)
            return false;
        current = parent->description.get();
        if (Session::resourceKey(*current) == Session::resourceKey(start))
            return true;
    }
    return false;
}

Session::Finding parentFinding(const Session::ResourceFile& file,
                               const QHash<QString, const Session::ResourceFile*>& files)
{
    const ResourceDescription& description = *file.description;
    Session::Finding finding{Session::Finding::WARNING, file.path, file.root.line,
                             file.root.column,          QString(), QString()};
    if (description.getParentBaseResource().isEmpty())
        return finding;
    if (!files.contains(parentKey(description))) {
        finding.text = Texts::tr("the parent \"%1\" is not among the resources of type %2")
                           .arg(description.getParentBaseResource(), description.getType());
        finding.advice =
            (Texts::tr("The resource counts as one without a parent.") +
             JobXml::suggestion(description.getParentBaseResource(), basesOf(description.getType(), files)));
    } else if (isInCircle(description, files)) {
        finding.text = Texts::tr("the parents of %1 lead back to it").arg(Session::resourceKey(description));
        finding.advice = Texts::tr("Take the parent out of one of the files in the circle.");
    }
    return finding;
}
} // namespace

namespace Session {

ResourceFile examineResourceFile(const QString& path)
{
    ResourceFile file;
    file.path = path;
    QByteArray bytes;
    QString reason;
    if (!readFile(path, &bytes, &reason)) {
        file.findings.append(
            {Finding::FAILURE, path, 0, 0, Texts::tr("cannot be read: %1").arg(reason), QString()});
        return file;
    }
    const QString xml = decodedText(bytes);
    JobXml::TunerProperties properties;
    properties.SetValidate(false);
    if (!properties.SetXmlString(xml, true)) {
        refuse(&file, properties, properties.GetCheckReason());
        return file;
    }
    const ElementPositions positions(xml);
    file.root = positions.at(QString());
    auto description = std::make_shared<ResourceDescription>(xml);
    if (!description->isValid()) {
        refuseVersion(&file, properties.GetInitialVersionLoaded());
        return file;
    }
    file.verdict = ResourceFile::ACCEPTED;
    file.description = description;
    properties.SetValidate(true);
    if (!properties.Check())
        file.findings.append(
            {Finding::WARNING, path, properties.GetCheckLine(), properties.GetCheckColumn(),
             properties.GetCheckReason(),
             Texts::tr("The library takes the file all the same; what it does not understand is left out.")});
    FileExaminer(&file, positions).examine(properties);
    return file;
}

QStringList resourceFiles(const QString& folder)
{
    QStringList result;
    if (folder.isEmpty())
        return result;
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files))
        result.append(directory.absoluteFilePath(name));
    return result;
}

void compareResourceFiles(QList<ResourceFile>* files)
{
    const QList<ResourceFile> all = *files;
    const QHash<QString, const ResourceFile*> known = byKey(all);
    const QStringList bases = basesOf(QString(), known);
    for (ResourceFile& file : *files) {
        if (!file.description)
            continue;
        const QString key = resourceKey(*file.description);
        const QString first = known.value(key)->path;
        if (first != file.path)
            file.findings.append(
                {Finding::FAILURE, file.path, file.root.line, file.root.column,
                 Texts::tr("%1 is described by %2 already").arg(key, first),
                 Texts::tr("Take one of the two files away, or give it another base resource.")});
        const Finding parent = parentFinding(file, known);
        if (!parent.text.isEmpty())
            file.findings.append(parent);
        for (const QString& base : file.description->getConnectableResources()) {
            if (!bases.contains(base))
                file.findings.append({Finding::WARNING, file.path, file.root.line, file.root.column,
                                      Texts::tr("the connectable resource \"%1\" is not there").arg(base),
                                      JobXml::suggestion(base, bases).trimmed()});
        }
    }
}

QStringList startupModes(const ResourceDescription& description, JEDVE::enJOB_TYPE jobType)
{
    return PluginKit::startupModes(description.getStartupModes(), jobType);
}

QString resourceKey(const ResourceDescription& description)
{
    return description.getType() + QLatin1Char('/') + description.getBaseResource();
}

QString resourceKey(const JobXml::Subjob& subjob)
{
    const JobXml::ResourceDescription& receiver = subjob.GetResourceDescription();
    return JobXml::ResourceDescription::TypeToName(receiver.GetType()) + QLatin1Char('/') +
           receiver.GetBaseResource();
}

const ResourceDescription* receiverOf(const JobXml::Subjob& subjob,
                                      const QList<std::shared_ptr<ResourceDescription>>& resources)
{
    const QString key = resourceKey(subjob);
    for (const auto& resource : resources) {
        if (resourceKey(*resource) == key)
            return resource.get();
    }
    return nullptr;
}

} // namespace Session
