#include "jobcomposer.h"

#include "jobdocument.h"
#include "resourcereport.h"
#include <jobxml/suggestion.h>
#include <jobxml/valuetext.h>

#include <jedcommonhelper.h>
#include <jobxml/job.h>
#include <kit/jobplaces.h>
#include <kit/subjobtree.h>
#include <QCoreApplication>
#include <values/node.h>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::ResourceDescription;
using PluginKit::SubjobTree;

namespace {
const char* const JOB_TYPE_NAMES[] = {"Production", "Search", "Surveillance", "DFScan", "Measurement"};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::JobComposer)
};

QStringList jobTypeNames()
{
    QStringList result;
    for (const char* name : JOB_TYPE_NAMES)
        result.append(QLatin1String(name));
    return result;
}

// One parameter set on its way from the value tree into the job; what is lost on the way is a finding.
void composeSet(const Node& set, const QString& place, JobXml::Subjob* subjob, Session::Findings* findings)
{
    for (const JEDVEPLUGIN::Problem& problem : PluginKit::putValues(set, QString(), subjob)) {
        const bool isJobFile = problem.severity < JEDVEPLUGIN::Problem::SEVERITY_ERROR;
        findings->append({Session::Finding::WARNING, place, 0, 0, problem.text,
                          isJobFile ? Texts::tr("The receiver keeps the values that it has.") : QString()});
    }
}
} // namespace

namespace Session {

struct JobComposer::Subjob
{
    std::shared_ptr<ResourceDescription> resource;
    QString startupMode;
    SubjobTree tree;
    QSet<QString> chosenSets; // Of which a value was set.
};

JobComposer::JobComposer(const Resources& resources)
    : m_resources(resources)
{
}

JobComposer::~JobComposer() = default;

bool JobComposer::begin(const QString& type, const QString& name)
{
    if (JEDCommonHelper::StringToJobType(type) < 0)
        return refuse(Texts::tr("there is no type of job \"%1\"").arg(type),
                      Texts::tr("Types are %1.").arg(jobTypeNames().join(QLatin1String(", "))) +
                          JobXml::suggestion(type, jobTypeNames()));
    m_type = type;
    m_name = name.isEmpty() ? type : name;
    m_subjobs.clear();
    m_current = nullptr;
    return true;
}

bool JobComposer::addSubjob(const QString& resource, const QString& startupMode)
{
    if (m_type.isEmpty())
        return refuse(Texts::tr("no job was begun"), Texts::tr("Begin with: new TYPE [NAME]"));
    QStringList keys;
    std::shared_ptr<ResourceDescription> found;
    for (const std::shared_ptr<ResourceDescription>& candidate : m_resources) {
        keys.append(resourceKey(*candidate));
        if (!found && keys.last() == resource)
            found = candidate;
    }
    if (!found)
        return refuse(Texts::tr("the installation offers no \"%1\"").arg(resource),
                      Texts::tr("jedtool resources list shows what it offers.") +
                          JobXml::suggestion(resource, keys));
    const QString mode = chooseStartupMode(*found, startupMode);
    if (mode.isEmpty())
        return false;
    auto subjob = std::make_unique<Subjob>();
    subjob->resource = found;
    subjob->startupMode = mode;
    subjob->tree.build(*found);
    m_current = subjob.get();
    m_subjobs.push_back(std::move(subjob));
    return true;
}

bool JobComposer::selectSubjob(int number)
{
    if (number < 1 || number > subjobCount())
        return refuse(Texts::tr("there is no sub-job %1").arg(number),
                      Texts::tr("The job has %1.").arg(subjobCount()));
    m_current = m_subjobs[size_t(number - 1)].get();
    return true;
}

bool JobComposer::setValue(const QString& path, const QString& text)
{
    ValueBase* const found = value(path);
    if (!found)
        return false;
    const QString set = path.section(QLatin1Char('/'), 0, 0);
    QString reason;
    if (!JobXml::assignText(found, SubjobTree::field(path), text, &reason))
        return refuse(QStringLiteral("%1: %2").arg(path, reason));
    m_current->chosenSets.insert(set);
    return true;
}

ValueBase* JobComposer::value(const QString& path)
{
    if (!m_current) {
        refuse(Texts::tr("there is no sub-job"), Texts::tr("Add one with: add TYPE/BASE"));
        return nullptr;
    }
    ValueBase* const found = m_current->tree.value(path);
    if (!found)
        refuse(Texts::tr("%1 has no value \"%2\"").arg(resourceKey(*m_current->resource), path),
               Texts::tr("jedtool resources show %1 lists them.").arg(resourceKey(*m_current->resource)) +
                   JobXml::suggestion(path, m_current->tree.valuePaths()));
    return found;
}

bool JobComposer::compose(JobDocument* document, Findings* findings)
{
    if (m_type.isEmpty())
        return refuse(Texts::tr("no job was begun"), Texts::tr("Begin with: new TYPE [NAME]"));
    document->begin(JEDCommonHelper::StringToJobType(m_type), m_name);
    for (size_t i = 0; i < m_subjobs.size(); ++i) {
        const QString place =
            Texts::tr("sub-job %1, %2").arg(QString::number(i + 1), resourceKey(*m_subjobs[i]->resource));
        document->job().AppendSubjob(composeSubjob(*m_subjobs[i], place, findings));
    }
    return true;
}

bool JobComposer::refuse(const QString& text, const QString& advice)
{
    m_fault = {Finding::FAILURE, QString(), 0, 0, text, advice};
    return false;
}

QString JobComposer::chooseStartupMode(const ResourceDescription& resource, const QString& wanted)
{
    const QStringList modes = startupModes(resource, JEDCommonHelper::StringToJobType(m_type));
    const QString mode = wanted.isEmpty() ? modes.value(0) : JEDCommonHelper::startupModeFromGUI(wanted);
    if (modes.contains(mode))
        return mode;
    if (modes.isEmpty())
        refuse(
            Texts::tr("%1 offers no start-up mode for a job of type %2").arg(resourceKey(resource), m_type),
            Texts::tr("It offers %1.").arg(resource.getStartupModes().join(QLatin1String(", "))));
    else
        refuse(Texts::tr("%1 does not offer the start-up mode \"%2\" for a job of type %3")
                   .arg(resourceKey(resource), wanted, m_type),
               Texts::tr("It offers %1.").arg(modes.join(QLatin1String(", "))) +
                   JobXml::suggestion(wanted, modes));
    return QString();
}

JobXml::Subjob JobComposer::composeSubjob(const Subjob& draft, const QString& place, Findings* findings) const
{
    JobXml::Subjob subjob;
    subjob.SetName(draft.resource->getName());
    subjob.SetStartupMode(JobXml::Subjob::NameToStartupMode(draft.startupMode));
    JobXml::ResourceDescription& resource = subjob.GetResourceDescription();
    resource.SetType(JobXml::ResourceDescription::NameToType(draft.resource->getType()));
    resource.SetBaseResource(draft.resource->getBaseResource());
    resource.SetName(draft.resource->getName());
    for (const Node* set : draft.tree.setsInUse(draft.chosenSets))
        composeSet(*set, place, &subjob, findings);
    return subjob;
}

} // namespace Session
