#pragma once

#include <QPolygonF>
#include <QVector>

/// A line on the map, in degrees.
struct MapLine
{
    bool isLand; // Closed; else the border of a country.
    QPolygonF points;
    QRectF box;
};

/// Land and borders. Read when they are asked for first.
const QVector<MapLine>& coastlines();
