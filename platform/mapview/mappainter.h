#pragma once

#include <QPalette>
#include <QRect>

class MapScene;
class QPainter;
class Viewport;

/// Paints the map. Everything is painted in pixels of the viewport, and only what meets the part that is wanted.
namespace MapPainter {
/// How far outlines reach beyond their shape, in pixels.
constexpr int MARGIN = 5;

/// Land, graticule and all shapes.
void paintMap(QPainter* painter, const Viewport& view, const MapScene& scene, const QPalette& palette,
              const QRect& part);
/// Longitudes along the upper edge, latitudes along the left one.
void paintLabels(QPainter* painter, const Viewport& view, const QPalette& palette);
/// For what is being moved or drawn.
QColor markColor(const QPalette& palette);
} // namespace MapPainter
