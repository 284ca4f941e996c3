#pragma once

#include <zubase/errorhandler.h>

#include <QLoggingCategory>
#include <QStringList>

namespace JedTest {

/// Writes down what is traced while it lives, and keeps it out of Qt's logging.
class TraceRecorder
{
public:
    TraceRecorder()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("jobeditorve.trace=false"));
        m_sink = ErrorHandler::Instance()->AddTraceSink([this](const TraceRecord& record) {
            m_lines.append(QStringLiteral("%1:%2: %3")
                               .arg(record.sourceFile, QString::number(record.line), record.message));
        });
    }
    ~TraceRecorder()
    {
        ErrorHandler::Instance()->RemoveTraceSink(m_sink);
        QLoggingCategory::setFilterRules(QString());
    }

    /// One "file:line: message" for each trace since the last call.
    QStringList take()
    {
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }

private:
    Q_DISABLE_COPY(TraceRecorder)

    QStringList m_lines;
    int m_sink = 0;
};

/// Sets the trace mask and puts the old one back at the end.
class TraceMask
{
public:
    explicit TraceMask(quint32 mask)
        : m_before(ErrorHandler::Instance()->GetTraceMask())
    {
        ErrorHandler::Instance()->SetTraceMask(mask);
    }
    ~TraceMask() { ErrorHandler::Instance()->SetTraceMask(m_before); }

private:
    Q_DISABLE_COPY(TraceMask)

    quint32 m_before;
};

} // namespace JedTest
