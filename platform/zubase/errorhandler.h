#pragma once

#include <zubase/zubase_export.h>

#include <QMutex>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>

/// One traced message. The file is a bare name ("resourcehandling"), the line a number that log filters
/// match.
struct TraceRecord
{
    QString message;
    QString sourceFile;
    int line = 0;
};

/// Where traced messages go beside Qt's logging: a log view, a test. Called on the thread that traces.
using TraceSink = std::function<void(const TraceRecord&)>;

/// Which classes of messages are traced, and who sees them. One for the process; made on first use, never
/// destroyed. Any thread.
class ZUBASE_EXPORT ErrorHandler
{
public:
    /// Bits of the trace mask.
    static constexpr quint32 TRACE_ERRORS = 0x20;   ///< errors and diagnostics
    static constexpr quint32 TRACE_JOB_TYPE = 0x40; ///< changes of the job type, for information

    /// Never null.
    static ErrorHandler* Instance();

    /// The classes that are traced, TRACE_ERRORS alone at the start. Whoever traces asks first; _Q_Trace()
    /// itself does not, since it is not told the class.
    quint32 GetTraceMask() const;
    void SetTraceMask(quint32 mask);

    /// \param sink  called for each message from now on; what it traces itself reaches Qt's logging only
    /// \return a number above 0 for RemoveTraceSink(), or 0 if \p sink is empty
    int AddTraceSink(const TraceSink& sink);
    /// \return false if there is no sink of that number
    bool RemoveTraceSink(int id);

    /// Hands \p record to the sinks, in the order in which they were added. Called by _Q_Trace().
    void Dispatch(const TraceRecord& record);

private:
    struct Entry
    {
        int id;
        TraceSink sink;
    };

    ErrorHandler() = default;
    ~ErrorHandler() = default;
    Q_DISABLE_COPY(ErrorHandler)

    std::atomic<quint32> m_traceMask{TRACE_ERRORS};
    QMutex m_mutex;         // Guards what follows.
    QVector<Entry> m_sinks; // In order of adding.
    int m_lastId = 0;
};
