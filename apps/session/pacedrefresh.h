#pragma once

#include <functional>
#include <QObject>
#include <QTimer>

namespace Session {

/// Brings a view of the whole job up to date after changes, without getting into the way of who makes them: as soon
/// as the event loop is reached, but the longer it took the last time, the longer it rests before the next. GUI
/// thread only.
class PacedRefresh : public QObject
{
    Q_OBJECT
public:
    PacedRefresh(std::function<void()> refresh, QObject* parent);

    /// To be called at every change; several are answered at once.
    void request();
    /// The same without rest, where the view shows what is no longer there.
    void requestAtOnce() { m_timer.start(0); }

private:
    void run();

    std::function<void()> m_refresh;
    QTimer m_timer;
    qint64 m_duration = 0; // Of the last time, ms.
};

} // namespace Session
