#pragma once

#include <kit/plugindeclaration.h>
#include <problem.h>

#include <QPolygonF>
#include <QRectF>

namespace PluginKit {

class SettingNode;

/// A region of the earth as a setting holds it: a rectangle of four edges, or a polygon if there are corners. Places
/// are in degrees: x is the longitude, y the latitude. A plain value.
struct Region
{
    bool isActive = false;
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;
    QPolygonF corners; ///< open; empty for a rectangle

    /// At least three corners.
    bool isPolygon() const { return corners.size() >= 3; }
    /// Whether there is anything to draw: active, and with an area.
    bool isVisible() const;
    /// Its y is the southern edge.
    QRectF rect() const { return QRectF(QPointF(west, south), QPointF(east, north)); }
    /// The same place, but for less than what a setting keeps of a number.
    bool hasSamePlaceAs(const Region& other) const;
    /// The numbers with their units, in the user's language.
    QString toText() const;

    /// Makes it a rectangle.
    void setRect(const QRectF& rect);
    /// Makes it a polygon, whose bounds are the edges.
    void setCorners(const QPolygonF& polygon);
};

/// What the values of a node say. Corners that are no longitude and latitude are left out.
/// \return false if the node does not have the fields of the region
bool readRegion(const SettingNode& node, const RegionFields& fields, Region* region);

/// Gives the values of a node what has changed, to five decimals, which is a metre. Corners go into nodes that have a
/// field for them only.
void writeRegion(const Region& region, const RegionFields& fields, SettingNode* node);

/// Whether the node can hold a polygon.
bool canBePolygon(const SettingNode& node, const RegionFields& fields);

/// Regions that end before they begin, and corners that are none.
QList<JEDVEPLUGIN::Problem> problemsOfRegion(const SettingNode& node, const RegionFields& fields);

} // namespace PluginKit
