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
constexpr int HANDLE = 7;       // Pixels.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapPainter)
};

const Colors& colorsOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? DARK : LIGHT;
}

QPolygonF clippedToEdge(const QPolygonF& polygon, bool isX, double edge, double side)
{
    const auto inside = [=](const QPointF& point) { return ((isX ? point.x() : point.y()) - edge) * side; };
    QPolygonF result;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& from = polygon[i];
        const QPointF& to = polygon[(i + 1) % polygon.size()];
        const double a = inside(from);
        const double b = inside(to);
        if (a >= 0)
            result.append(from);
        if ((a < 0) != (b < 0))
            result.append(from + (to - from) * (a / (a - b)));
    }
    return result;
}

// The rasterizer is slow with, and not made for, what lies far outside.
QPolygonF clipped(QPolygonF polygon, const QRectF& area)
{
    if (area.contains(polygon.boundingRect()))
        return polygon;
    polygon = clippedToEdge(polygon, true, area.left(), 1);
    polygon = clippedToEdge(polygon, true, area.right(), -1);
    polygon = clippedToEdge(polygon, false, area.top(), 1);
    return clippedToEdge(polygon, false, area.bottom(), -1);
}

// Lines of a map are short: those with both ends on the outer side of an edge are left out, others are painted whole.
void addSegments(const QPolygonF& line, const QRectF& area, QVector<QLineF>* segments)
{
    for (int i = 1; i < line.size(); ++i) {
        const QPointF& a = line[i - 1];
        const QPointF& b = line[i];
        if ((a.x() < area.left() && b.x() < area.left()) || (a.x() > area.right() && b.x() > area.right()) ||
            (a.y() < area.top() && b.y() < area.top()) || (a.y() > area.bottom() && b.y() > area.bottom()))
            continue;
        segments->append(QLineF(a, b));
    }
}

QPolygonF inPixels(const QVector<QPointF>& points, const Viewport& view)
{
    QPolygonF result;
    result.reserve(points.size());
    for (const QPointF& point : points)
        result.append(view.toPixels(point));
    return result;
}

void paintLand(QPainter* painter, const Viewport& view, const Colors& colors, const QRectF& part)
{
    const QRectF area = view.toDegrees(part);
    QVector<QLineF> coasts;
    painter->setPen(Qt::NoPen);
    painter->setBrush(colors.land);
    for (const MapLine& ring : Coastlines::instance().land()) {
        if (!ring.box.intersects(area))
            continue;
        const QPolygonF pixels = inPixels(ring.points, view);
        painter->drawPolygon(clipped(pixels, part));
        addSegments(pixels, part, &coasts);
    }
    QVector<QLineF> borders;
    for (const MapLine& line : Coastlines::instance().borders()) {
        if (line.box.intersects(area))
            addSegments(inPixels(line.points, view), part, &borders);
    }
    painter->setPen(colors.border);
    painter->drawLines(borders);
    painter->setPen(colors.coast);
    painter->drawLines(coasts);
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

// Paints the shapes of a part, one after the other.
class ShapePainter
{
public:
    ShapePainter(QPainter* painter, const Viewport& view, const MapScene& scene, const Colors& colors,
                 const QRectF& part)
        : m_painter(painter)
        , m_view(view)
        , m_selection(scene.selection())
        , m_colors(colors)
        , m_part(part)
    {
    }

    void paint(const MapLayer& layer, const MapGroup& group)
    {
        const QRectF box = m_view.toPixels(group.box);
        const bool isSelected = m_selection.contains(group.key);
        usePens(layer, isSelected);
        if (box.width() < 2 && box.height() < 2) {
            m_painter->drawRect(QRectF(box.center() - QPointF(1, 1), QSizeF(2, 2)));
        } else if (group.kind == MapGroup::RECT) {

            m_painter->drawRect(box.intersected(m_part));
            if (isSelected && m_selection.size() == 1)
                paintHandles(box);
        } else {
            m_painter->setRenderHint(QPainter::Antialiasing);
            m_painter->drawPolygon(clipped(inPixels(group.points, m_view), m_part));
            m_painter->setRenderHint(QPainter::Antialiasing, false);
        }
        if (box.width() > LABEL_WIDTH && box.height() > m_painter->fontMetrics().height())
            paintName(group.name, box);
    }

private:
    void usePens(const MapLayer& layer, bool isSelected)
    {
        if (m_layer == &layer && m_isSelected == isSelected)
            return;
        m_layer = &layer;
        m_isSelected = isSelected;
        QColor color = layer.color.isValid() ? layer.color : m_colors.shape;
        m_painter->setPen(isSelected ? QPen(m_colors.mark, 3) : QPen(color, 1));
        color.setAlpha(255 * (100 - layer.transparency) / 100);
        m_painter->setBrush(color);
    }

    void paintHandles(const QRectF& box)
    {
        for (const QPointF& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
            const QRectF handle(corner - QPointF(HANDLE, HANDLE) / 2, QSizeF(HANDLE, HANDLE));
            if (handle.intersects(m_part))
                m_painter->fillRect(handle, m_colors.mark);
        }
    }

    void paintName(const QString& name, const QRectF& box)
    {
        const QPen pen = m_painter->pen();
        const QFontMetrics metrics = m_painter->fontMetrics();
        const QString text = metrics.elidedText(name, Qt::ElideRight, int(std::min(box.width(), 1e4)) - 6);
        const QPointF corner(box.center().x() - metrics.horizontalAdvance(text) / 2.0,
                             box.center().y() + metrics.ascent() / 2.0);
        m_painter->setPen(m_colors.text);
        m_painter->drawText(corner, text);
        m_painter->setPen(pen);
    }

    QPainter* m_painter;
    const Viewport& m_view;
    const QSet<MapKey>& m_selection;
    const Colors& m_colors;
    QRectF m_part; // With room for what reaches out of it.
    const MapLayer* m_layer = nullptr;
    bool m_isSelected = false;
};
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
    ShapePainter shapes(painter, view, scene, colors, area);
    scene.visit(view.toDegrees(area),
                [&shapes](const MapLayer& layer, const MapGroup& group) { shapes.paint(layer, group); });
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

QString MapPainter::placeText(const QPointF& degrees, double scale)
{
    const int digits = qBound(1, int(std::ceil(std::log10(scale))), 5);
    const auto number = [digits](double value) { return QString::number(std::abs(value), 'f', digits); };
    return (degrees.y() < 0 ? Texts::tr("%1° S") : Texts::tr("%1° N")).arg(number(degrees.y())) +
           QStringLiteral("  ") +
           (degrees.x() < 0 ? Texts::tr("%1° W") : Texts::tr("%1° E")).arg(number(degrees.x()));
}
