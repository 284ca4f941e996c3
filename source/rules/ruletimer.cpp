#include "ruletimer_p.h"

#include "rulerun_p.h"
#include "ruletimelimit.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTabletEvent>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>
#include <QtScript/QScriptEngine>

#include <algorithm>
#include <deque>
#include <memory>
#include <utility>

namespace JEDVEPLUGIN {

namespace {

int s_limit = 0; // milliseconds, 0: none

struct HeldEvent
{
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
};

/// Input that came while a rule ran, the oldest first.
std::deque<HeldEvent>& heldEvents()
{
    static std::deque<HeldEvent> events;
    return events;
}

template <class Event>
std::unique_ptr<QEvent> copyOf(const QEvent* event)
{
    return std::make_unique<Event>(*static_cast<const Event*>(event));
}

struct InputKind
{
    QEvent::Type type;
    std::unique_ptr<QEvent> (*copy)(const QEvent*);
};

const InputKind INPUT_KINDS[] = {
    {QEvent::MouseButtonPress, copyOf<QMouseEvent>},
    {QEvent::MouseButtonRelease, copyOf<QMouseEvent>},
    {QEvent::MouseButtonDblClick, copyOf<QMouseEvent>},
    {QEvent::MouseMove, copyOf<QMouseEvent>},
    {QEvent::Wheel, copyOf<QWheelEvent>},
    {QEvent::KeyPress, copyOf<QKeyEvent>},
    {QEvent::KeyRelease, copyOf<QKeyEvent>},
    {QEvent::InputMethod, copyOf<QInputMethodEvent>},
    {QEvent::ContextMenu, copyOf<QContextMenuEvent>},
    {QEvent::TouchBegin, copyOf<QTouchEvent>},
    {QEvent::TouchUpdate, copyOf<QTouchEvent>},
    {QEvent::TouchEnd, copyOf<QTouchEvent>},
    {QEvent::TouchCancel, copyOf<QTouchEvent>},
    {QEvent::TabletPress, copyOf<QTabletEvent>},
    {QEvent::TabletMove, copyOf<QTabletEvent>},
    {QEvent::TabletRelease, copyOf<QTabletEvent>},
    {QEvent::Close, copyOf<QCloseEvent>},
};

const QEvent::Type DRAG_TYPES[] = {QEvent::DragEnter, QEvent::DragMove, QEvent::Drop};

/// Delivers in order. An event that sets off a rule may find others kept back behind those still waiting.
void deliverHeldEvents()
{
    std::deque<HeldEvent> waiting;
    waiting.swap(heldEvents());
    for (const HeldEvent& held : waiting) {
        if (held.receiver)
            QCoreApplication::instance()->notify(held.receiver, held.event.get());
    }
}

} // namespace

void setRuleTimeLimit(int milliseconds)
{
    s_limit = std::max(0, milliseconds);
}

int ruleTimeLimit()
{
    return s_limit;
}

RuleTimer::RuleTimer(int limit)
    : m_limit(limit)
{
    m_clock.start();
    m_tick.setTimerType(Qt::PreciseTimer);
    m_tick.setInterval(std::min(limit, EVENT_INTERVAL));
    connect(&m_tick, &QTimer::timeout, this, &RuleTimer::stopRunsAtLimit);
    m_tick.start();
    QCoreApplication::instance()->installEventFilter(this);
}

RuleTimer::~RuleTimer()
{
    if (!heldEvents().empty())
        QTimer::singleShot(0, QCoreApplication::instance(), deliverHeldEvents);
}

bool RuleTimer::eventFilter(QObject* receiver, QEvent* event)
{
    if (!event->spontaneous())
        return false; // made by the program itself, or on its way from a window to a widget
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept(); // no shortcut is triggered, a key press follows
        return true;
    }
    if (std::find(std::begin(DRAG_TYPES), std::end(DRAG_TYPES), event->type()) != std::end(DRAG_TYPES)) {
        event->ignore();
        return true;
    }
    const auto kind = std::find_if(std::begin(INPUT_KINDS), std::end(INPUT_KINDS),
                                   [event](const InputKind& input) { return input.type == event->type(); });
    if (kind == std::end(INPUT_KINDS))
        return false;
    heldEvents().push_back({receiver, kind->copy(event)});
    event->setAccepted(event->type() != QEvent::Close);
    return true;
}

/// Again and again, since a run that is only being entered cannot be stopped yet.
void RuleTimer::stopRunsAtLimit()
{
    if (m_clock.elapsed() < m_limit)
        return;
    for (RuleRun* run = RuleRun::s_current; run; run = run->m_outer) {
        run->m_isStopped = true;
        run->m_subject.engine->abortEvaluation();
    }
}

} // namespace JEDVEPLUGIN
