#include "mappainter.h"

#include "coastlines.h"
#include "mapscene.h"
#include "viewport.h"

#include <cmath>
#include <QCoreApplication>
#include <QPainter>

namespace {
struct Colors
{
    QColor sea, land, coast, border, grid, text, shape, mark;
};

const Colors LIGHT = {"#d8e6f0", "#f6f3e8", "#7b8a94", "#c3b9a4", "#b9cad6", "#44525c", "#b04a00", "#0050c8"};
const Colors DARK = {"#1b2630", "#36393a", "#8796a0", "#5b5a53", "#33434f", "#b4c2cc", "#ff9a4d", "#62b0ff"};

constexpr double GRID_STEPS[] = {30, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01, 0.005, 0.002, 0.001};
constexpr int GRID_SPACE = 90;  // Pixels between two lines of the graticule, at least.
constexpr int LABEL_WIDTH = 45; // Pixels that a shape must have to carry its name.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapPainter)
};

const Colors& colorsOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? DARK : LIGHT;
}

void paintLand(QPainter* painter, const Viewport& view, const Colors& colors, const QRectF& part)
{
    const QRectF area = view.toDegrees(part);
    painter->setBrush(colors.land);
    for (const MapLine& line : coastlines()) {
        if (!line.box.intersects(area))
            continue;
        painter->setPen(line.isLand ? colors.coast : colors.border);
        if (line.isLand)
            painter->drawPolygon(view.toPixels(line.points));
        else
            painter->drawPolyline(view.toPixels(line.points));
    }
}

double gridStep(const Viewport& view)
{
    double result = GRID_STEPS[0];
    for (const double step : GRID_STEPS) {
        if (step * view.scale() >= GRID_SPACE)
            result = step;
    }
    return result;
}

QVector<double> gridPlaces(double from, double to, double step)
{
    QVector<double> places;
    for (int i = int(std::ceil(from / step)); i * step <= to; ++i)
        places.append(i * step);
    return places;
}

void paintName(QPainter* painter, const QString& name, const QRectF& box, const QColor& color)
{
    const QFontMetrics metrics = painter->fontMetrics();
    if (box.width() < LABEL_WIDTH || box.height() < metrics.height())
        return;
    const QString text = metrics.elidedText(name, Qt::ElideRight, int(std::min(box.width(), 1e4)) - 6);
    painter->setPen(color);
    painter->drawText(box.center() + QPointF(-metrics.horizontalAdvance(text), metrics.ascent()) / 2, text);
}

void paintShapes(QPainter* painter, const Viewport& view, const MapScene& scene, const Colors& colors,
                 const QRectF& part)
{
    scene.visit(view.toDegrees(part), [&](const MapLayer& layer, const MapGroup& group) {
        const bool isSelected = scene.selection().contains(group.key);
        QColor color = layer.color.isValid() ? layer.color : colors.shape;
        painter->setPen(isSelected ? QPen(colors.mark, 3) : QPen(color, 1));
        color.setAlpha(255 * (100 - layer.transparency) / 100);
        painter->setBrush(color);
        const QRectF box = view.toPixels(group.box);
        painter->setRenderHint(QPainter::Antialiasing, !group.isRect);
        if (group.isRect)
            painter->drawRect(box);
        else
            painter->drawPolygon(view.toPixels(group.points));
        paintName(painter, group.name, box, colors.text);
    });
}
} // namespace

void MapPainter::paintMap(QPainter* painter, const Viewport& view, const MapScene& scene,
                          const QPalette& palette, const QRect& part)
{
    const Colors& colors = colorsOf(palette);
    const QRectF area = QRectF(part).adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    painter->save();
    painter->setClipRect(part);
    painter->fillRect(part, palette.color(QPalette::Window));
    painter->fillRect(view.toPixels(MapScene::world()).intersected(area), colors.sea);
    painter->setRenderHint(QPainter::Antialiasing);
    paintLand(painter, view, colors, area);
    paintGrid(painter, view, palette, LINES);
    paintShapes(painter, view, scene, colors, area);
    painter->restore();
}

void MapPainter::paintGrid(QPainter* painter, const Viewport& view, const QPalette& palette, GridPart part)
{
    const QRectF area = view.area();
    const QRectF pixels = view.toPixels(area);
    const double step = gridStep(view);
    painter->setPen(part == LINES ? colorsOf(palette).grid : colorsOf(palette).text);
    const auto paint = [=](const QLineF& line, const QPointF& corner, double value, const QString& text) {
        if (part == LINES)
            painter->drawLine(line);
        else
            painter->drawText(corner, value == 0 ? QStringLiteral("0°") : text.arg(std::abs(value)));
    };
    for (const double value : gridPlaces(area.left(), area.right(), step)) {
        const double x = std::floor(view.toPixels(QPointF(value, 0)).x()) + 0.5;
        paint(QLineF(x, pixels.top(), x, pixels.bottom()), QPointF(x + 3, painter->fontMetrics().height()),
              value, value > 0 ? Texts::tr("%1° E") : Texts::tr("%1° W"));
    }
    for (const double value : gridPlaces(area.top(), area.bottom(), step)) {
        const double y = std::floor(view.toPixels(QPointF(0, value)).y()) + 0.5;
        paint(QLineF(pixels.left(), y, pixels.right(), y), QPointF(3, y - 3), value,
              value > 0 ? Texts::tr("%1° N") : Texts::tr("%1° S"));
    }
}
