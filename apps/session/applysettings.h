#pragma once

#include "jobsession.h"

namespace Session {

/// Parameter sets of a setting that other settings of its type can take over; what belongs to the one setting
/// alone, as the head of a sub-job, is none.
QStringList applicableSets(const JobSession::Setting& setting);

/// The other settings of the job that are of the same plug-in and type and can be changed, in display order.
QVector<JobSession::Setting*> similarSettings(const JobSession& session, const JobSession::Setting* setting);

/// Gives settings the parameter sets of another one, as one step that can be undone. A setting that lacks a set,
/// or whose receiver does not take it, keeps its own.
/// \param sets  of applicableSets() of \p source
/// \return the settings that did not take all of the sets
QVector<JobSession::Setting*> applySettings(JobSession* session, const JobSession::Setting* source,
                                            const QStringList& sets,
                                            const QVector<JobSession::Setting*>& targets);

} // namespace Session
