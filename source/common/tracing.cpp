#include "tracing_p.h"

#include <zubase/errorhandler.h>
#include <zubase/trace.h>

namespace JEDVEPLUGIN {

namespace {
void traceIf(quint32 messageClass, const TracePoint& point, const QString& message)
{
    if (ErrorHandler::Instance()->GetTraceMask() & messageClass)
        _Q_Trace(message, point.file, point.line);
}
} // namespace

void traceError(const TracePoint& point, const QString& message)
{
    traceIf(ErrorHandler::TRACE_ERRORS, point, message);
}

void traceJobType(const TracePoint& point, const QString& message)
{
    traceIf(ErrorHandler::TRACE_JOB_TYPE, point, message);
}

} // namespace JEDVEPLUGIN
