#include "pacedrefresh.h"

#include <algorithm>
#include <QElapsedTimer>

namespace Session {

namespace {
// Rest for each time unit of work.
constexpr qint64 REST = 6;
constexpr qint64 MAX_DELAY = 1000; // ms
} // namespace

PacedRefresh::PacedRefresh(std::function<void()> refresh, QObject* parent)
    : QObject(parent)
    , m_refresh(std::move(refresh))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &PacedRefresh::run);
}

void PacedRefresh::request()
{
    if (!m_timer.isActive())
        m_timer.start(int(std::min(MAX_DELAY, m_duration * REST)));
}

void PacedRefresh::run()
{
    QElapsedTimer timer;
    timer.start();
    m_refresh();
    m_duration = timer.elapsed();
}

} // namespace Session
