#include <zubase/errorhandler.h>

#include <QMutexLocker>

#include <algorithm>

namespace {

thread_local bool t_isDispatching = false;

/// Marks the thread as being inside of a sink, also when the sink throws.
class DispatchMark
{
public:
    DispatchMark() { t_isDispatching = true; }
    ~DispatchMark() { t_isDispatching = false; }

private:
    Q_DISABLE_COPY(DispatchMark)
};

} // namespace

ErrorHandler* ErrorHandler::Instance()
{
    static ErrorHandler* const s_instance = new ErrorHandler;
    return s_instance;
}

quint32 ErrorHandler::GetTraceMask() const
{
    return m_traceMask.load(std::memory_order_relaxed);
}

void ErrorHandler::SetTraceMask(quint32 mask)
{
    m_traceMask.store(mask, std::memory_order_relaxed);
}

int ErrorHandler::AddTraceSink(const TraceSink& sink)
{
    if (!sink)
        return 0;
    const QMutexLocker lock(&m_mutex);
    m_sinks.append({++m_lastId, sink});
    return m_lastId;
}

bool ErrorHandler::RemoveTraceSink(int id)
{
    const QMutexLocker lock(&m_mutex);
    const auto found =
        std::find_if(m_sinks.begin(), m_sinks.end(), [id](const Entry& entry) { return entry.id == id; });
    if (found == m_sinks.end())
        return false;
    m_sinks.erase(found);
    return true;
}

void ErrorHandler::Dispatch(const TraceRecord& record)
{
    if (t_isDispatching)
        return;
    m_mutex.lock();
    const QVector<Entry> sinks =
        m_sinks; // A sink may add and remove sinks, so the lock is not held meanwhile.
    m_mutex.unlock();
    const DispatchMark mark;
    for (const Entry& entry : sinks)
        entry.sink(record);
}
