#pragma once

#include "jobcomposer.h"

namespace Session {

class JobSession;

/// A job on paper: what it is for, what is wrong with it, what it takes of the receivers, and for each sub-job its
/// receiver, frequencies, the revisit times of its scans (RevisitTime tells how they are estimated) and all settings with
/// units. Times of day are UTC.
///
/// One HTML page without links to anything outside, in the language of the program, which browsers and Qt's rich text
/// show alike; the same job gives the same page, to the byte.
QString jobSummary(const JobSession& session, const JobComposer::Resources& resources);

} // namespace Session
