#pragma once

#include <QPolygonF>
#include <QVector>

/// A line on the map, in degrees.
struct MapLine
{
    QPolygonF points;
    QRectF box;
};

/// Land and the borders of countries. Read when they are asked for first.
class Coastlines
{
public:
    static const Coastlines& instance();

    const QVector<MapLine>& land() const { return m_land; } ///< closed
    const QVector<MapLine>& borders() const { return m_borders; }

private:
    Coastlines();

    QVector<MapLine> m_land;
    QVector<MapLine> m_borders;
};
