#include "tracing_p.h"

#include <zubase/errorhandler.h>
#include <zubase/trace.h>

namespace JEDVEPLUGIN {

void traceError(const TracePoint& point, const QString& message)
{
    if (ErrorHandler::Instance()->GetTraceMask() & ErrorHandler::TRACE_ERRORS)
        _Q_Trace(message, point.file, point.line);
}

} // namespace JEDVEPLUGIN
