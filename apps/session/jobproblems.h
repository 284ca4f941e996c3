#pragma once

#include "receiveruse.h"

#include <problem.h>
#include <QHash>
#include <QObject>

namespace JEDVEPLUGIN {
class ISubSetting;
}

namespace Session {

/// Something that is wrong with a job, and where.
struct JobProblem
{
    int subjob = 0;                              ///< position in the job
    JEDVEPLUGIN::ISubSetting* setting = nullptr; ///< null for a sub-job without a plug-in. Not owned.
    QString place;                               ///< the names of the sub-job and of the settings down to it
    JEDVEPLUGIN::Problem problem;
};

/// What the settings find wrong with themselves, what no plug-in claims, and receivers of which the job takes more than
/// the installation has; in the order of the job, the receivers at the end.
QList<JobProblem> jobProblems(const JobSession& session, const JobComposer::Resources& resources);

/// Finds the problems of a job that is being worked on: looks only at sub-jobs that changed since the last time. GUI
/// thread only.
class ProblemFinder : public QObject
{
    Q_OBJECT
public:
    /// \param session  not owned, outlives the finder
    explicit ProblemFinder(const JobSession* session, QObject* parent = nullptr);

    /// As jobProblems().
    QList<JobProblem> problems(const JobComposer::Resources& resources);

private:
    const JobSession* m_session;           // Not owned.
    QHash<int, QList<JobProblem>> m_found; // By the number of the top-level setting.
};

/// "note", "warning" or "error".
QString severityText(JEDVEPLUGIN::Problem::Severity severity);

} // namespace Session
