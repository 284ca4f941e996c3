#pragma once

#include <QRectF>
#include <QTransform>

/// The part of the map that a window shows: degrees to pixels and back. The map's pixels are whole numbers, so that a
/// picture of the map can be shifted.
class Viewport
{
public:
    QPointF toPixels(const QPointF& degrees) const
    {
        return QPointF(degrees.x() * m_scale - m_origin.x(), -degrees.y() * m_scale - m_origin.y());
    }
    QPointF toDegrees(const QPointF& pixels) const
    {
        return QPointF((pixels.x() + m_origin.x()) / m_scale, -(pixels.y() + m_origin.y()) / m_scale);
    }
    /// Its top is the smallest latitude.
    QRectF toDegrees(const QRectF& pixels) const
    {
        return QRectF(toDegrees(pixels.bottomLeft()), toDegrees(pixels.topRight()));
    }
    QRectF toPixels(const QRectF& degrees) const
    {
        return QRectF(toPixels(degrees.bottomLeft()), toPixels(degrees.topRight()));
    }
    QPolygonF toPixels(const QPolygonF& degrees) const
    {
        return QTransform(m_scale, 0, 0, -m_scale, -m_origin.x(), -m_origin.y()).map(degrees);
    }
    QPointF middle() const { return QPointF(m_size.width() / 2.0, m_size.height() / 2.0); }
    double scale() const { return m_scale; } ///< pixels per degree
    QPoint origin() const { return m_origin; }
    /// What is visible of the world, in degrees.
    QRectF area() const;

    /// Keeps what is in the middle; the whole world stays the whole world.
    void resize(const QSize& size);
    void shift(const QPoint& pixels) { setOrigin(m_origin + pixels); }
    void zoom(double factor, const QPointF& fixedPixel);
    /// Shows all of an area, with some space around it.
    void show(const QRectF& degrees);
    void center(const QPointF& degrees);
    void showWorld();

private:
    double smallestScale() const;
    void setOrigin(const QPoint& origin);

    QSize m_size = QSize(1, 1);
    double m_scale = 1;
    QPoint m_origin; // Of the left upper corner, in pixels from 0 degrees.
};
