#include "jobreport.h"

#include "jobdocument.h"
#include "resourcereport.h"
#include <jobxml/suggestion.h>

#include <jedcommonhelper.h>
#include <jobxml/parametersettext.h>
#include <kit/jobplaces.h>
#include <kit/subjobtree.h>
#include <QCoreApplication>
#include <QSet>
#include <values/node.h>

using JEDVEPLUGIN::JEDCommonHelper;
using JobXml::ParameterSetText;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::JobReport)
};

// Looks at one sub-job and tells what is wrong with it.
class SubjobChecker
{
public:
    SubjobChecker(const QString& file, int number, const JobXml::Subjob& subjob, Session::Findings* findings)
        : m_file(file)
        , m_title(Texts::tr("sub-job %1, %2").arg(QString::number(number), Session::resourceKey(subjob)))
        , m_subjob(subjob)
        , m_findings(findings)
    {
    }

    void check(const Session::JobComposer::Resources& resources, JEDVE::enJOB_TYPE jobType)
    {
        QStringList keys;
        for (const auto& resource : resources) {
            keys.append(Session::resourceKey(*resource));
            if (keys.last() == Session::resourceKey(m_subjob)) {
                checkStartupMode(Session::startupModes(*resource, jobType));
                checkSets(*resource);
                return;
            }
        }
        warn(Texts::tr("the installation does not offer this receiver"),
             JobXml::suggestion(Session::resourceKey(m_subjob), keys).trimmed());
    }

private:
    void warn(const QString& text, const QString& advice = QString())
    {
        m_findings->append(
            {Session::Finding::WARNING, m_file, 0, 0, m_title + QLatin1String(": ") + text, advice});
    }

    void checkStartupMode(const QStringList& modes)
    {
        const QString mode = JobXml::Subjob::StartupModeToName(m_subjob.GetStartupMode());
        if (!modes.contains(mode))
            warn(Texts::tr("the receiver does not offer the start-up mode \"%1\" for this type of job")
                     .arg(mode),
                 Texts::tr("It offers %1.").arg(modes.join(QLatin1String(", "))));
    }

    void checkSets(const JEDVEPLUGIN::ResourceDescription& resource)
    {
        PluginKit::SubjobTree tree;
        tree.build(resource);
        QSet<QString> names;
        for (const PluginKit::CarriedSet& carried : PluginKit::carriedSets(m_subjob)) {
            checkRoundTrip(&tree, carried);
            names.insert(QLatin1String(carried.set->name));
        }
        for (const Node* set : tree.setsInUse(names)) {
            for (const QString& part : PluginKit::lostParts(set->GetId(), ParameterSetText::toText(*set)))
                warn(Texts::tr("the receiver has %1, which a job file cannot hold").arg(part),
                     Texts::tr("The receiver keeps the values that it has."));
        }
    }

    // Text to values and back: what the text sets must come out again as it was.
    void checkRoundTrip(PluginKit::SubjobTree* tree, const PluginKit::CarriedSet& carried)
    {
        const QString name = QLatin1String(carried.set->name);
        Node* const node = tree->set(name);
        if (!node) {
            warn(Texts::tr("the receiver does not have the parameter set %1").arg(name));
            return;
        }
        ParameterSetText::Report report;
        ParameterSetText::fromText(*node, carried.xml, &report);
        for (const QString& id : report.textsNotConverted + report.valuesClamped)
            warn(Texts::tr("%1/%2 does not fit the receiver").arg(name, id),
                 Texts::tr("jedtool resources show %1 tells what does.").arg(Session::resourceKey(m_subjob)));
        if (report.isClean() && !holds(ParameterSetText::toText(*node, carried.xml), carried))
            warn(Texts::tr("%1 does not come back from the value tree as it was").arg(name));
    }

    // Whether all that the sub-job's text sets is set to the same in the other text.
    static bool holds(const QString& text, const PluginKit::CarriedSet& carried)
    {
        const std::unique_ptr<REPORTGENERATOR::IRGObject> before(carried.set->table->create());
        const std::unique_ptr<REPORTGENERATOR::IRGObject> after(carried.set->table->create());
        if (!before->SetXmlString(carried.xml, false) || !after->SetXmlString(text, false))
            return false;
        const QString alone = after->GetXmlString(false);
        after->TakeOver(*before);
        return after->GetXmlString(false) == alone;
    }

    QString m_file;
    QString m_title;
    const JobXml::Subjob& m_subjob;
    Session::Findings* m_findings;
};
} // namespace

namespace Session {

Findings checkJob(JobDocument* document, const JobComposer::Resources& resources)
{
    Findings findings;
    document->validate(&findings);
    JobDocument again;
    again.job() = document->job();
    const QByteArray text = document->text();
    if (!again.job().SetXmlString(QString::fromUtf8(text), true) || again.text() != text)
        findings.append({Finding::FAILURE, document->path(), 0, 0,
                         Texts::tr("saving and loading again does not give the same job"), QString()});
    else if (text != document->loadedText())
        findings.append({Finding::NOTE, document->path(), 0, 0,
                         Texts::tr("saving brings the file into our layout"),
                         Texts::tr("Nothing that it says is changed.")});
    const JobXml::Job& job = document->job();
    const JEDVE::enJOB_TYPE jobType =
        JEDCommonHelper::jobXmlTypeToJobType(job.GetJobInformation().GetJobType());
    for (int i = 0; i < job.GetSubjob().size(); ++i)
        SubjobChecker(document->path(), i + 1, job.GetSubjob().at(i), &findings).check(resources, jobType);
    return findings;
}

} // namespace Session
