#include "jobproblems.h"

#include "jobsession.h"

#include <isubsetting.h>
#include <kit/plugindeclaration.h>
#include <QCoreApplication>
#include <resourcedescription.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using Session::JobProblem;
using Session::JobSession;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::JobProblems)
};

void collect(ISubSetting* setting, int subjob, const QString& place, QList<JobProblem>* problems)
{
    const QString here = place.isEmpty() ? setting->getDisplayName()
                                         : Texts::tr("%1, %2").arg(place, setting->getDisplayName());
    for (const Problem& problem : setting->problems())
        problems->append({subjob, setting, here, problem});
    for (int i = 0; i < setting->childCount(); ++i)
        collect(setting->child(i), subjob, here, problems);
}

JobProblem unclaimed(const JobSession::TopLevel& top, int subjob)
{
    return {subjob, nullptr, top.subjob.GetName(),
            Problem{Problem::SEVERITY_WARNING, QString(), QString(), top.reason}};
}

JobProblem overuse(const Session::ReceiverUse& use, const JobSession& session)
{
    JobProblem result;
    result.subjob = use.takers.last(); // The one that it was too much for.
    const JobSession::TopLevel& top = session.topLevel(result.subjob);
    result.setting = top.setting;
    result.place = top.setting ? top.setting->getDisplayName() : top.subjob.GetName();
    result.problem = {Problem::SEVERITY_WARNING, QLatin1String(PluginKit::SUB_JOB),
                      QStringLiteral("ResourceDescription.BaseResource"),
                      Texts::tr("The job takes %1 of %2, the installation has %3")
                          .arg(QString::number(use.occupied), use.toText(), QString::number(use.quantity))};
    return result;
}
} // namespace

namespace Session {

QList<JobProblem> jobProblems(const JobSession& session, const JobComposer::Resources& resources)
{
    return ProblemFinder(&session).problems(resources);
}

ProblemFinder::ProblemFinder(const JobSession* session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    connect(session, &JobSession::jobLeaving, this, [this] { m_found.clear(); });
    const auto forget = [this](const ISubSetting* setting) {
        const int index = m_session->rootIndex(setting);
        if (index >= 0)
            m_found.remove(m_session->topLevel(index).number);
    };
    connect(session, &JobSession::settingChanged, this, forget);
    connect(session, &JobSession::settingLeaving, this, forget);
}

QList<JobProblem> ProblemFinder::problems(const JobComposer::Resources& resources)
{
    QHash<int, QList<JobProblem>> found;
    QList<JobProblem> result;
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        const JobSession::TopLevel& top = m_session->topLevel(i);
        const auto known = m_found.constFind(top.number);
        QList<JobProblem>& problems = found[top.number];
        if (known != m_found.constEnd())
            problems = *known;
        else if (top.setting)
            collect(top.setting, i, QString(), &problems);
        else
            problems.append(unclaimed(top, i));
        for (JobProblem problem : qAsConst(problems)) {
            problem.subjob = i;
            result.append(problem);
        }
    }
    m_found = found;
    for (const ReceiverUse& use : receiverUses(*m_session, resources)) {
        if (use.isOverused())
            result.append(overuse(use, *m_session));
    }
    return result;
}

QString severityText(Problem::Severity severity)
{
    switch (severity) {
    case Problem::SEVERITY_NOTE:
        return Texts::tr("Note");
    case Problem::SEVERITY_WARNING:
        return Texts::tr("Warning");
    case Problem::SEVERITY_ERROR:
        break;
    }
    return Texts::tr("Error");
}

} // namespace Session
