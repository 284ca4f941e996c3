// What the user does on the map with mouse and keyboard.

#include "mapcanvas.h"

#include <cmath>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace {
constexpr double ZOOM_STEP = 1.5;
constexpr double WHEEL_STEP = 120; // Eighths of a degree for one ZOOM_STEP.
constexpr int NEAR = 4;            // Pixels by which one may miss.
constexpr int LARGE_STEP = 8;      // Pixels by which a key moves something.
constexpr int SMALLEST_POLYGON = 3;

const QHash<int, QPoint> DIRECTIONS = {
    {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};

int stepOf(Qt::KeyboardModifiers modifiers)
{
    return modifiers & Qt::ControlModifier ? 1 : LARGE_STEP;
}
} // namespace

bool MapCanvas::event(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        viewHasChanged();
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const MapGroup* const group = m_scene->group(groupAt(help->pos()));
    const QString text = group ? (group->toolTip.isEmpty() ? group->name : group->toolTip) : QString();
    // The text is a client's: it is shown as it is, whatever it looks like.
    QToolTip::showText(
        help->globalPos(),
        text.isEmpty()
            ? QString()
            : QStringLiteral("<span style='white-space: pre-wrap'>%1</span>").arg(text.toHtmlEscaped()),
        this);
    return true;
}

// Tab goes from object to object, and behind the last one on to the next control.
bool MapCanvas::focusNextPrevChild(bool next)
{
    return selectNext(next) || QWidget::focusNextPrevChild(next);
}

void MapCanvas::mousePressEvent(QMouseEvent* event)
{
    m_pressed = m_last = event->pos();
    m_isDragged = false;
    m_gesture = GESTURE_SHIFT;
    if (event->button() != Qt::LeftButton || m_drawing != 0)
        return;
    const MapKey key = groupAt(m_pressed);
    if (m_scene->canMove(key) && m_scene->selection().contains(key))
        m_gesture = GESTURE_MOVE;
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drawing != 0) {
        m_cross = MapScene::onWorld(m_view.toDegrees(QPointF(event->pos())));
        update();
    }
    const int distance = (event->pos() - m_pressed).manhattanLength();
    if (m_gesture == GESTURE_NONE || (!m_isDragged && distance < QApplication::startDragDistance()))
        return;
    m_isDragged = true;
    if (m_gesture == GESTURE_SHIFT)
        shift(m_last - event->pos());
    m_last = event->pos();
    update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_gesture == GESTURE_NONE)
        return;
    if (m_isDragged && m_gesture == GESTURE_MOVE)
        m_scene->move(m_scene->selection(), offsetInDegrees(event->pos() - m_pressed));
    else if (m_isDragged)
        shift(m_last - event->pos());
    else if (event->button() == Qt::LeftButton && m_drawing != 0)
        addPoint(MapScene::onWorld(m_view.toDegrees(QPointF(event->pos()))));
    else if (event->button() == Qt::LeftButton)
        click(event->pos(), event->modifiers() & Qt::ControlModifier);
    m_gesture = GESTURE_NONE;
    update();
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent*)
{
    if (m_drawing != 0)
        finishDrawing();
}

void MapCanvas::wheelEvent(QWheelEvent* event)
{
    m_view.zoom(std::pow(ZOOM_STEP, event->angleDelta().y() / WHEEL_STEP), event->position());
    viewHasChanged();
}

void MapCanvas::keyPressEvent(QKeyEvent* event)
{
    const QPoint direction = DIRECTIONS.value(event->key());
    if (event->key() == Qt::Key_Escape && m_gesture != GESTURE_NONE) {
        m_gesture = GESTURE_NONE;
        update();
    } else if (m_drawing != 0 && drawByKey(event->key(), direction, event->modifiers())) {
        return;
    } else if (!direction.isNull() && event->modifiers() & (Qt::AltModifier | Qt::ControlModifier)) {
        m_scene->move(m_scene->selection(), offsetInDegrees(direction * stepOf(event->modifiers())));
    } else if (!direction.isNull()) {
        shift(QPoint(direction.x() * width() / 10, direction.y() * height() / 10));
    } else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal) {
        zoom(ZOOM_STEP);
    } else if (event->key() == Qt::Key_Minus) {
        zoom(1 / ZOOM_STEP);
    } else if (event->key() == Qt::Key_Home) {
        showWorld();
    } else if (event->key() == Qt::Key_Escape) {
        m_scene->select({});
    } else {
        QWidget::keyPressEvent(event);
    }
}

// The uppermost one; 0: none.
MapKey MapCanvas::groupAt(const QPoint& pixel) const
{
    const QRectF around = m_view.toDegrees(QRectF(pixel - QPoint(NEAR, NEAR), QSize(2 * NEAR, 2 * NEAR)));
    const QPointF place = m_view.toDegrees(QPointF(pixel));
    MapKey found = 0;
    m_scene->visit(around, [&](const MapLayer&, const MapGroup& group) {
        const bool isSmall = group.box.width() <= around.width() || group.box.height() <= around.height();
        if (isSmall || group.isRect || group.points.containsPoint(place, Qt::OddEvenFill))
            found = group.key;
    });
    return found;
}

void MapCanvas::click(const QPoint& pixel, bool adds)
{
    const MapKey key = groupAt(pixel);
    QSet<MapKey> keys = adds ? m_scene->selection() : QSet<MapKey>();
    if (key != 0 && !(adds && keys.remove(key)))
        keys.insert(key);
    m_scene->select(keys);
}

QPointF MapCanvas::offsetInDegrees(const QPoint& pixels) const
{
    return QPointF(pixels.x(), -pixels.y()) / m_view.scale();
}

// Begins with the next polygon that a client wants, or ends with one that a client has taken back.
void MapCanvas::startDrawing()
{
    const MapKey key = m_scene->pendingPolygon();
    if (key == m_drawing)
        return;
    m_drawing = key;
    m_points.clear();
    m_cross = MapScene::onWorld(m_view.toDegrees(m_view.middle()));
    setCursor(key == 0 ? Qt::ArrowCursor : Qt::CrossCursor);
    if (key != 0)
        emit hint(tr("Draw %1: a click or Enter sets a point, a double click or Enter again ends, Backspace "
                     "takes the last point back, Escape gives it up.")
                      .arg(m_scene->group(key)->name));
    update();
}

bool MapCanvas::drawByKey(int key, const QPoint& direction, Qt::KeyboardModifiers modifiers)
{
    if (!direction.isNull()) {
        m_cross = MapScene::onWorld(m_cross + offsetInDegrees(direction * stepOf(modifiers)));
        if (!m_view.area().contains(m_cross)) {
            m_view.center(m_cross);
            viewHasChanged();
        }
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (!m_points.isEmpty() && m_points.last() == m_cross)
            finishDrawing();
        else
            addPoint(m_cross);
    } else if (key == Qt::Key_Backspace) {
        if (!m_points.isEmpty())
            m_points.removeLast();
    } else if (key == Qt::Key_Escape) {
        m_scene->cancelPolygon(m_drawing);
    } else {
        return false;
    }
    update();
    return true;
}

// A point at the first one closes the polygon.
void MapCanvas::addPoint(const QPointF& place)
{
    m_cross = place;
    if (m_points.size() >= SMALLEST_POLYGON &&
        (m_view.toPixels(m_points.first()) - m_view.toPixels(place)).manhattanLength() <= NEAR)
        return finishDrawing();
    if (m_points.isEmpty() || m_points.last() != place)
        m_points.append(place);
    emit hint(tr("%1 points").arg(m_points.size()));
}

void MapCanvas::finishDrawing()
{
    if (m_points.size() < SMALLEST_POLYGON) {
        emit hint(tr("A polygon has three points at least."));
        return;
    }
    m_scene->finishPolygon(m_drawing, QPolygonF(m_points));
}
