#include "viewport.h"

#include "mapscene.h"

#include <algorithm>

namespace {
constexpr double LARGEST_SCALE = 20000; // Pixels per degree: some five metres each.
constexpr double SPACE = 1.2;           // Around what is shown.

// The middle, if all of it has room.
int limited(int origin, double least, double most)
{
    return least > most ? qRound((least + most) / 2) : qBound(qRound(least), origin, qRound(most));
}
} // namespace

QRectF Viewport::area() const
{
    return toDegrees(QRectF(QPointF(0, 0), m_size)).intersected(MapScene::world());
}

void Viewport::resize(const QSize& size)
{
    const bool wasWorld = m_scale <= smallestScale();
    const QPointF place = toDegrees(middle());
    m_size = size.expandedTo(QSize(1, 1));
    if (wasWorld || m_scale < smallestScale())
        showWorld();
    else
        center(place);
}

void Viewport::zoom(double factor, const QPointF& fixedPixel)
{
    const QPointF place = toDegrees(fixedPixel);
    m_scale = qBound(smallestScale(), m_scale * factor, LARGEST_SCALE);
    setOrigin((QPointF(place.x() * m_scale, -place.y() * m_scale) - fixedPixel).toPoint());
}

void Viewport::show(const QRectF& degrees)
{
    const double width = std::max(degrees.width(), 1e-3) * SPACE;
    const double height = std::max(degrees.height(), 1e-3) * SPACE;
    m_scale =
        qBound(smallestScale(), std::min(m_size.width() / width, m_size.height() / height), LARGEST_SCALE);
    center(degrees.center());
}

void Viewport::center(const QPointF& degrees)
{
    const QPointF place = MapScene::onWorld(degrees) * m_scale;
    setOrigin((QPointF(place.x(), -place.y()) - middle()).toPoint());
}

void Viewport::showWorld()
{
    m_scale = smallestScale();
    center(QPointF(0, 0));
}

double Viewport::smallestScale() const
{
    return std::min(m_size.width() / MapScene::world().width(), m_size.height() / MapScene::world().height());
}

void Viewport::setOrigin(const QPoint& origin)
{
    const QRectF world = MapScene::world();
    m_origin = QPoint(limited(origin.x(), world.left() * m_scale, world.right() * m_scale - m_size.width()),
                      limited(origin.y(), world.top() * m_scale, world.bottom() * m_scale - m_size.height()));
}
