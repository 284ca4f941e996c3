#pragma once

#include "jobcomposer.h"

namespace Session {

class JobDocument;

/// Looks for what is wrong with a job file that was loaded: the schema; loading and saving it unchanged; each
/// parameter set on its way through the value tree and back; receivers and start-up modes that the installation does
/// not offer; and what receivers supply but a job file cannot hold.
/// \param resources  the receivers of the installation
Findings checkJob(JobDocument* document, const JobComposer::Resources& resources);

} // namespace Session
