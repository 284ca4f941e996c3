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

void paintGrid(QPainter* painter, const Viewport& view, const Colors& colors, const QRectF& part)
{
    const QRectF area = view.toDegrees(part).intersected(MapScene::world());
    const QRectF pixels = view.toPixels(area);
    const double step = gridStep(view);
    painter->setPen(colors.grid);
    for (const double x : gridPlaces(area.left(), area.right(), step)) {
        const double pixel = std::floor(view.toPixels(QPointF(x, 0)).x());
        painter->drawLine(QLineF(pixel, pixels.top(), pixel, pixels.bottom()));
    }
    for (const double y : gridPlaces(area.top(), area.bottom(), step)) {
        const double pixel = std::floor(view.toPixels(QPointF(0, y)).y());
        painter->drawLine(QLineF(pixels.left(), pixel, pixels.right(), pixel));
    }
}

void paintShape(QPainter* painter, const MapGroup& group, const QPolygonF& pixels, const QRectF& part)
{
    const QRectF box = pixels.boundingRect();
    if (box.width() < 2 && box.height() < 2) {
        painter->drawRect(QRectF(box.center() - QPointF(1, 1), QSizeF(2, 2)));
    } else if (group.isRect) {
        painter->drawRect(box.intersected(part));
    } else {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawPolygon(pixels);
        painter->setRenderHint(QPainter::Antialiasing, false);
    }
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
        paintShape(painter, group, view.toPixels(group.points), part);
        paintName(painter, group.name, view.toPixels(group.box), colors.text);
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
    painter->setRenderHint(QPainter::Antialiasing, false);
    paintGrid(painter, view, colors, area);
    paintShapes(painter, view, scene, colors, area);
    painter->restore();
}

void MapPainter::paintLabels(QPainter* painter, const Viewport& view, const QPalette& palette)
{
    const QRectF area = view.area();
    const double step = gridStep(view);
    const QFontMetrics metrics = painter->fontMetrics();
    painter->setPen(colorsOf(palette).text);
    const auto text = [](double value, const QString& positive, const QString& negative) {
        const QString degrees = QString::number(std::abs(value));
        return value == 0 ? QStringLiteral("0°") : (value > 0 ? positive : negative).arg(degrees);
    };
    for (const double x : gridPlaces(area.left(), area.right(), step))
        painter->drawText(QPointF(view.toPixels(QPointF(x, 0)).x() + 3, metrics.ascent() + 1),
                          text(x, Texts::tr("%1° E"), Texts::tr("%1° W")));
    for (const double y : gridPlaces(area.top(), area.bottom(), step))
        painter->drawText(QPointF(3, view.toPixels(QPointF(0, y)).y() - 3),
                          text(y, Texts::tr("%1° N"), Texts::tr("%1° S")));
}

QColor MapPainter::markColor(const QPalette& palette)
{
    return colorsOf(palette).mark;
}
