// What the user does on the map with mouse and keyboard.

#include "mapcanvas.h"
#include "mappainter.h"

#include <cmath>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace {
constexpr double WHEEL_STEP = 120; // Eighths of a degree for one ZOOM_STEP.
constexpr int NEAR = 4;            // Pixels by which one may miss.
constexpr int LARGE_STEP = 8;      // Pixels by which a key moves something.
constexpr int SMALLEST_POLYGON = 3;

struct Direction
{
    int key;
    QPoint step;
};
const Direction DIRECTIONS[] = {
    {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};

QPoint directionOf(int key)
{
    for (const Direction& direction : DIRECTIONS) {
        if (direction.key == key)
            return direction.step;
    }
    return QPoint();
}
} // namespace

bool MapCanvas::event(QEvent* event)
{
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
    m_corner = cornerAt(m_pressed);
    const MapKey key = groupAt(m_pressed);
    if (event->modifiers() & Qt::ShiftModifier)
        m_gesture = GESTURE_SELECT;
    else if (event->modifiers() & Qt::ControlModifier)
        m_gesture = GESTURE_ZOOM;
    else if (m_corner >= 0)
        m_gesture = GESTURE_RESIZE;
    else if (m_scene->canMove(key) && m_scene->selection().contains(key))
        m_gesture = GESTURE_MOVE;
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF place = MapScene::onWorld(m_view.toDegrees(QPointF(event->pos())));
    emit pointed(place);
    if (m_drawing != 0) {
        m_cross = place;
        update();
    }
    if (m_gesture == GESTURE_NONE)
        return;
    m_isDragged =
        m_isDragged || (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!m_isDragged)
        return;
    if (m_gesture == GESTURE_SHIFT)
        shift(m_last - event->pos());
    m_last = event->pos();
    update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_gesture == GESTURE_NONE)
        return;
    if (m_isDragged)
        endGesture(event->pos());
    else if (event->button() == Qt::LeftButton && m_drawing != 0)
        addPoint(MapScene::onWorld(m_view.toDegrees(QPointF(event->pos()))));
    else if (event->button() == Qt::LeftButton)
        click(event->pos(), event->modifiers());
    m_gesture = GESTURE_NONE;
    update();
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_drawing != 0)
        return finishDrawing();
    m_view.zoom(2, event->pos());
    viewHasChanged();
}

void MapCanvas::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / WHEEL_STEP;
    m_view.zoom(std::pow(ZOOM_STEP, steps), event->position());
    viewHasChanged();
}

void MapCanvas::keyPressEvent(QKeyEvent* event)
{
    const QPoint direction = directionOf(event->key());
    if (event->key() == Qt::Key_Escape && m_gesture != GESTURE_NONE) {
        m_gesture = GESTURE_NONE;
        update();
    } else if (m_drawing != 0 && drawByKey(event->key(), direction, event->modifiers())) {
        return;
    } else if (!direction.isNull() && moveByKey(direction, event->modifiers())) {
        return;
    } else if (!direction.isNull()) {
        shift(QPoint(direction.x() * width() / 10, direction.y() * height() / 10));
    } else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal) {
        zoom(ZOOM_STEP);
    } else if (event->key() == Qt::Key_Minus) {
        zoom(1 / ZOOM_STEP);
    } else if (event->key() == Qt::Key_Home) {
        showWorld();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        showSelection();
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
        if (isSmall || group.kind == MapGroup::RECT ||
            QPolygonF(group.points).containsPoint(place, Qt::OddEvenFill))
            found = group.key;
    });
    return found;
}

// Of the one selected rectangle, if it may be changed; -1: none is near. Corners: 1 right, 2 lower.
int MapCanvas::cornerAt(const QPoint& pixel) const
{
    if (m_scene->selection().size() != 1)
        return -1;
    const MapKey key = *m_scene->selection().begin();
    const MapGroup* const group = m_scene->group(key);
    if (group->kind != MapGroup::RECT || !m_scene->canMove(key))
        return -1;
    const QRectF box = m_view.toPixels(group->box);
    for (int corner = 0; corner < 4; ++corner) {
        const QPointF place(corner & 1 ? box.right() : box.left(), corner & 2 ? box.bottom() : box.top());
        if ((place - pixel).manhattanLength() <= NEAR)
            return corner;
    }
    return -1;
}

void MapCanvas::click(const QPoint& pixel, Qt::KeyboardModifiers modifiers)
{
    const MapKey key = groupAt(pixel);
    const bool adds = modifiers & (Qt::ControlModifier | Qt::ShiftModifier);
    QSet<MapKey> keys = adds ? m_scene->selection() : QSet<MapKey>();
    if (key != 0 && !(adds && keys.remove(key)))
        keys.insert(key);
    m_scene->select(keys);
}

void MapCanvas::endGesture(const QPoint& pixel)
{
    const QRect band = QRect(m_pressed, pixel).normalized();
    if (m_gesture == GESTURE_MOVE) {
        m_scene->move(m_scene->selection(), offsetInDegrees(pixel - m_pressed));
    } else if (m_gesture == GESTURE_RESIZE && m_scene->selection().size() == 1) {
        m_scene->resize(*m_scene->selection().begin(), resizedBox(pixel - m_pressed));
    } else if (m_gesture == GESTURE_ZOOM) {
        m_view.show(m_view.toDegrees(QRectF(band)));
        viewHasChanged();
    } else if (m_gesture == GESTURE_SELECT) {
        const QRectF area = m_view.toDegrees(QRectF(band));
        QSet<MapKey> keys;
        m_scene->visit(area, [&](const MapLayer&, const MapGroup& group) {
            if (area.contains(group.box.topLeft()) && area.contains(group.box.bottomRight()))
                keys.insert(group.key);
        });
        m_scene->select(keys);
    }
}

// What becomes of the selected rectangle when the corner in hand is moved.
QRectF MapCanvas::resizedBox(const QPoint& offset) const
{
    if (m_scene->selection().size() != 1)
        return QRectF();
    QRectF box = m_view.toPixels(m_scene->group(*m_scene->selection().begin())->box);
    if (m_corner & 1)
        box.setRight(box.right() + offset.x());
    else
        box.setLeft(box.left() + offset.x());
    if (m_corner & 2)
        box.setBottom(box.bottom() + offset.y());
    else
        box.setTop(box.top() + offset.y());
    return m_view.toDegrees(box.normalized());
}

QPointF MapCanvas::offsetInDegrees(const QPoint& pixels) const
{
    return QPointF(pixels.x(), -pixels.y()) / m_view.scale();
}

// Alt moves what is selected, Ctrl by a pixel; Shift moves the right lower corner of a rectangle.
bool MapCanvas::moveByKey(const QPoint& direction, Qt::KeyboardModifiers modifiers)
{
    const bool isFine = modifiers & Qt::ControlModifier;
    if (!(modifiers & (Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier)))
        return false;
    const QPoint step = direction * (isFine ? 1 : LARGE_STEP);
    if (modifiers & Qt::ShiftModifier) {
        m_corner = 3;
        if (m_scene->selection().size() == 1)
            m_scene->resize(*m_scene->selection().begin(), resizedBox(step));
    } else {
        m_scene->move(m_scene->selection(), offsetInDegrees(step));
    }
    return true;
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
        const QPoint step = direction * (modifiers & Qt::ControlModifier ? 1 : LARGE_STEP);
        m_cross = MapScene::onWorld(m_cross + offsetInDegrees(step));
        if (!m_view.area().contains(m_cross)) {
            m_view.center(m_cross);
            viewHasChanged();
        }
        emit pointed(m_cross);
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
    const QVector<QPointF> points = m_points;
    m_scene->finishPolygon(m_drawing, points);
}
