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

/// Land, lines of the graticule and all shapes.
void paintMap(QPainter* painter, const Viewport& view, const MapScene& scene, const QPalette& palette,
              const QRect& part);
enum GridPart { LINES, LABELS }; ///< longitudes along the upper edge, latitudes along the left one
void paintGrid(QPainter* painter, const Viewport& view, const QPalette& palette, GridPart part);
} // namespace MapPainter
