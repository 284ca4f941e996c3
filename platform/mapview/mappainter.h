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

/// Land and all shapes.
void paintMap(QPainter* painter, const Viewport& view, const MapScene& scene, const QPalette& palette,
              const QRect& part);
/// Lines over the map, with longitudes along the upper edge and latitudes along the left one.
void paintGraticule(QPainter* painter, const Viewport& view, const QPalette& palette);
} // namespace MapPainter
