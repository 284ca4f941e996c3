#include "mapcanvas.h"

#include "mappainter.h"

#include <algorithm>
#include <QPainter>
#include <QPaintEvent>

namespace {
constexpr int MANY_PARTS = 8;   // Parts of the picture to be painted anew; more are painted as one.
constexpr int CROSS_ARM = 12;   // Pixels.
constexpr int POINT_RADIUS = 3; // Pixels.
} // namespace

MapCanvas::MapCanvas(MapScene* scene, QWidget* parent)
    : QWidget(parent)
    , m_scene(scene)
{
    setObjectName(QStringLiteral("MapCanvas"));
    setAccessibleName(tr("Map"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(m_scene, &MapScene::changed, this, &MapCanvas::invalidate);
    connect(m_scene, &MapScene::paintingChanged, this, QOverload<>::of(&QWidget::update));
    connect(m_scene, &MapScene::selectionChanged, this, &MapCanvas::describeSelection);
    connect(m_scene, &MapScene::showRequested, this, &MapCanvas::showGroup);
    connect(m_scene, &MapScene::pendingPolygonChanged, this, &MapCanvas::startDrawing);
    describeSelection();
}

void MapCanvas::shift(const QPoint& pixels)
{
    const QPoint before = m_view.origin();
    m_view.shift(pixels);
    const QPoint moved = before - m_view.origin();
    if (moved.isNull())
        return;
    const QPointF scaled = QPointF(moved) * devicePixelRatioF();
    if (QPointF(scaled.toPoint()) != scaled || m_picture.isNull())
        return viewHasChanged();
    m_picture.scroll(scaled.toPoint().x(), scaled.toPoint().y(), m_picture.rect());
    m_dirty =
        m_dirty.translated(moved).intersected(rect()) + QRegion(rect()).subtracted(rect().translated(moved));
    update();
    emit viewChanged(m_view.area());
}

void MapCanvas::zoom(double factor)
{
    m_view.zoom(factor, m_view.middle());
    viewHasChanged();
}

void MapCanvas::showWorld()
{
    m_view.showWorld();
    viewHasChanged();
}

void MapCanvas::showObjects()
{
    QRectF area;
    for (const MapKey key : m_scene->visibleGroups())
        area = area.united(m_scene->group(key)->box);
    if (!area.isNull())
        m_view.show(area);
    viewHasChanged();
}

void MapCanvas::showGroup(quint64 key)
{
    const QRectF box = m_scene->group(key)->box;
    const QRectF area = m_view.area();
    if (box.width() > area.width() || box.height() > area.height())
        m_view.show(box);
    else
        m_view.center(box.center());
    viewHasChanged();
}

void MapCanvas::selectAll()
{
    const QVector<MapKey> keys = m_scene->visibleGroups();
    m_scene->select(QSet<MapKey>(keys.begin(), keys.end()));
}

bool MapCanvas::selectNext(bool forward)
{
    const QVector<MapKey> keys = m_scene->visibleGroups();
    const auto isSelected = [this](MapKey key) { return m_scene->selection().contains(key); };
    const int current = int(std::find_if(keys.begin(), keys.end(), isSelected) - keys.begin());
    const int place = forward ? (current + 1) % (keys.size() + 1) : current - 1;
    if (place < 0 || place >= keys.size()) {
        m_scene->select({});
        return false;
    }
    m_scene->select({keys[place]});
    if (!m_view.area().contains(m_scene->group(keys[place])->box.center()))
        showGroup(keys[place]);
    return true;
}

void MapCanvas::eraseSelection()
{
    const int before = m_scene->selection().size();
    m_scene->erase(m_scene->selection());
    if (const int kept = m_scene->selection().size())
        emit hint(tr("%1 of %2 may not be deleted").arg(kept).arg(before));
}

void MapCanvas::paintEvent(QPaintEvent* event)
{
    refresh();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, m_picture);
    MapPainter::paintGrid(&painter, m_view, palette(), MapPainter::LABELS);
    paintMarks(&painter);
}

void MapCanvas::resizeEvent(QResizeEvent*)
{
    m_view.resize(size());
    viewHasChanged();
}

void MapCanvas::invalidate(const QRectF& degrees)
{
    constexpr int REACH = 2 * MapPainter::MARGIN;
    const QRectF pixels = m_view.toPixels(degrees).adjusted(-REACH, -REACH, REACH, REACH).intersected(rect());
    if (pixels.isEmpty())
        return;
    m_dirty += pixels.toAlignedRect();
    if (m_dirty.rectCount() > MANY_PARTS)
        m_dirty = m_dirty.boundingRect();
    // While a client draws much, the map is painted for other reasons only.
    if (m_scene->isPainting())
        update();
}

// Brings the picture up to date.
void MapCanvas::refresh()
{
    const QSize pixels = size() * devicePixelRatioF();
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        m_dirty = rect();
    }
    QPainter painter(&m_picture);
    painter.setFont(font());
    for (const QRect& part : std::exchange(m_dirty, QRegion()))
        MapPainter::paintMap(&painter, m_view, *m_scene, palette(), part);
}

void MapCanvas::viewHasChanged()
{
    m_dirty = rect();
    update();
    emit viewChanged(m_view.area());
}

void MapCanvas::describeSelection()
{
    const QSet<MapKey>& selection = m_scene->selection();
    if (selection.isEmpty())
        setAccessibleDescription(tr("Tab selects an object, arrows shift the map, + and - zoom."));
    else if (selection.size() == 1)
        setAccessibleDescription(tr("%1 is selected. Alt+arrows move it, Ctrl+arrows by a pixel.")
                                     .arg(m_scene->group(*selection.begin())->name));
    else
        setAccessibleDescription(tr("%1 objects are selected").arg(selection.size()));
    emit hint(accessibleDescription());
}

// What is being done and is not on the map yet.
void MapCanvas::paintMarks(QPainter* painter)
{
    painter->setPen(QPen(palette().highlight(), 2));
    if (m_isDragged && m_gesture == GESTURE_MOVE) {
        for (const MapKey key : m_scene->selection()) {
            if (m_scene->canMove(key))
                painter->drawRect(m_view.toPixels(m_scene->group(key)->box).translated(m_last - m_pressed));
        }
    }
    if (m_drawing == 0)
        return;
    const QPolygonF line = m_view.toPixels(m_points);
    const QPointF cross = m_view.toPixels(m_cross);
    painter->drawPolyline(QPolygonF(line) << cross);
    painter->setBrush(palette().highlight());
    for (const QPointF& point : line)
        painter->drawEllipse(point, POINT_RADIUS, POINT_RADIUS);
    painter->drawLine(cross - QPointF(CROSS_ARM, 0), cross + QPointF(CROSS_ARM, 0));
    painter->drawLine(cross - QPointF(0, CROSS_ARM), cross + QPointF(0, CROSS_ARM));
}
