#include <zubase/trace.h>

#include <QLoggingCategory>

namespace {

const QLoggingCategory& traceCategory()
{
    // Never destroyed: static objects of other libraries may trace while the process ends.
    static const QLoggingCategory* const s_category = new QLoggingCategory("jobeditorve.trace");
    return *s_category;
}

} // namespace

void _Q_Trace(const QString& message, const char* sourceFile, int line)
{
    QMessageLogger(sourceFile, line, nullptr).info(traceCategory(), "%s", qUtf8Printable(message));
    ErrorHandler::Instance()->Dispatch({message, QString::fromUtf8(sourceFile), line});
}
