#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace JEDVEPLUGIN {

/// Stops the runs that are under way when the time limit is reached, and keeps input back while it exists.
class RuleTimer : public QObject
{
public:
    static constexpr int EVENT_INTERVAL = 20; // milliseconds from one look for events to the next

    /// Starts at once.
    explicit RuleTimer(int limit);
    /// What was kept back is delivered when control returns to the event loop.
    ~RuleTimer() override;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void stopRunsAtLimit();

    int m_limit; // milliseconds
    QElapsedTimer m_clock;
    QTimer m_tick;
};

} // namespace JEDVEPLUGIN
