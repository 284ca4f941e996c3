#pragma once

#include "receiveruse.h"

#include <problem.h>

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

/// "note", "warning" or "error".
QString severityText(JEDVEPLUGIN::Problem::Severity severity);

} // namespace Session
