#pragma once

#include "tracepoints.h"

class QString;

namespace JEDVEPLUGIN {

/// Traces a message of the class "errors and diagnostics", unless the installation has switched that class
/// off.
void traceError(const TracePoint& point, const QString& message);
/// The same for the class "changes of the job type".
void traceJobType(const TracePoint& point, const QString& message);

} // namespace JEDVEPLUGIN
