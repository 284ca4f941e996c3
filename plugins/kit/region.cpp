#include "region.h"

#include <kit/settingnode.h>

#include <cmath>
#include <QCoreApplication>
#include <QRegularExpression>
#include <values/valuelist.h>

using JEDVEPLUGIN::Problem;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::Region)
};

constexpr int DECIMALS = 5;
constexpr double RESOLUTION = 1e-5; // degrees

const char* const ACTIVE = "Active";
const char* const EDGES[] = {"West", "South", "East", "North"};
const char* const CORNER = "Corner";

double* edgeOf(PluginKit::Region* region, int edge)
{
    double* const edges[] = {&region->west, &region->south, &region->east, &region->north};
    return edges[edge];
}

ValueBase* valueOf(const PluginKit::SettingNode& node, const PluginKit::RegionFields& fields,
                   const char* field)
{
    return node.value(fields.parameterSet, fields.group + QLatin1Char('.') + QLatin1String(field));
}

StringList* cornersOf(const PluginKit::SettingNode& node, const PluginKit::RegionFields& fields)
{
    return dynamic_cast<StringList*>(valueOf(node, fields, CORNER));
}

// The shortest text of a place.
QString numberText(double number)
{
    const double rounded = std::round(number / RESOLUTION) * RESOLUTION;
    QString text = QString::number(rounded, 'f', DECIMALS);
    text.remove(QRegularExpression(QStringLiteral("\\.?0+$")));
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

bool readCorner(QString text, QPointF* corner)
{
    text.replace(QLatin1Char(','), QLatin1Char('.'));
    const QStringList parts = text.split(QRegularExpression(QStringLiteral("[\\s;]+")), Qt::SkipEmptyParts);
    bool isLongitude = false;
    bool isLatitude = false;
    *corner = QPointF(parts.value(0).toDouble(&isLongitude), parts.value(1).toDouble(&isLatitude));
    return parts.size() == 2 && isLongitude && isLatitude && std::abs(corner->x()) <= 180 &&
           std::abs(corner->y()) <= 90;
}

bool isClose(const QPointF& one, const QPointF& other)
{
    return std::abs(one.x() - other.x()) < RESOLUTION && std::abs(one.y() - other.y()) < RESOLUTION;
}
} // namespace

namespace PluginKit {

bool Region::isVisible() const
{
    return isActive && (isPolygon() || (west < east && south < north));
}

bool Region::hasSamePlaceAs(const Region& other) const
{
    if (isPolygon() || other.isPolygon())
        return corners.size() == other.corners.size() &&
               std::equal(corners.cbegin(), corners.cend(), other.corners.cbegin(), isClose);
    return isClose(QPointF(west, south), QPointF(other.west, other.south)) &&
           isClose(QPointF(east, north), QPointF(other.east, other.north));
}

QString Region::toText() const
{
    const QRectF bounds = isPolygon() ? corners.boundingRect() : rect();
    const QString edges = Texts::tr("West %1°, south %2°, east %3°, north %4°")
                              .arg(numberText(bounds.left()), numberText(bounds.top()),
                                   numberText(bounds.right()), numberText(bounds.bottom()));
    return isPolygon() ? Texts::tr("Polygon with %1 corners: %2").arg(QString::number(corners.size()), edges)
                       : edges;
}

void Region::setRect(const QRectF& rect)
{
    const QRectF normal = rect.normalized();
    west = normal.left();
    south = normal.top();
    east = normal.right();
    north = normal.bottom();
    corners.clear();
}

void Region::setCorners(const QPolygonF& polygon)
{
    setRect(polygon.boundingRect());
    corners = polygon;
    if (corners.size() > 3 && isClose(corners.first(), corners.last()))
        corners.removeLast();
}

bool readRegion(const SettingNode& node, const RegionFields& fields, Region* region)
{
    const ValueBase* const active = valueOf(node, fields, ACTIVE);
    if (!active)
        return false;
    *region = Region();
    region->isActive = active->GetText() == QLatin1String("true");
    for (int edge = 0; edge < 4; ++edge) {
        const ValueBase* const value = valueOf(node, fields, EDGES[edge]);
        if (!value)
            return false;
        *edgeOf(region, edge) = value->GetText().toDouble();
    }
    const StringList* const corners = cornersOf(node, fields);
    for (int i = 0; corners && i < corners->GetItemCount(); ++i) {
        QPointF corner;
        if (readCorner(corners->GetItem(i), &corner))
            region->corners.append(corner);
    }
    return true;
}

void writeRegion(const Region& region, const RegionFields& fields, SettingNode* node)
{
    Region before;
    if (!readRegion(*node, fields, &before))
        return;
    Region wanted = region;
    for (int edge = 0; edge < 4; ++edge) {
        if (std::abs(*edgeOf(&wanted, edge) - *edgeOf(&before, edge)) >= RESOLUTION)
            valueOf(*node, fields, EDGES[edge])->SetText(numberText(*edgeOf(&wanted, edge)));
    }
    StringList* const corners = cornersOf(*node, fields);
    if (corners && !region.hasSamePlaceAs(before)) {
        QVector<QString> texts;
        for (const QPointF& corner : region.corners)
            texts.append(numberText(corner.x()) + QLatin1Char(' ') + numberText(corner.y()));
        corners->SetItems(texts);
    }
    valueOf(*node, fields, ACTIVE)
        ->SetText(region.isActive ? QStringLiteral("true") : QStringLiteral("false"));
}

bool canBePolygon(const SettingNode& node, const RegionFields& fields)
{
    return cornersOf(node, fields);
}

QList<Problem> problemsOfRegion(const SettingNode& node, const RegionFields& fields)
{
    Region region;
    if (!readRegion(node, fields, &region) || !region.isActive)
        return {};
    QList<Problem> problems;
    const auto tell = [&](const char* field, const QString& text) {
        problems.append({Problem::SEVERITY_ERROR, fields.parameterSet,
                         fields.group + QLatin1Char('.') + QLatin1String(field), text});
    };
    const StringList* const corners = cornersOf(node, fields);
    const int count = corners ? corners->GetItemCount() : 0;
    QPointF corner;
    for (int i = 0; i < count; ++i) {
        if (!readCorner(corners->GetItem(i), &corner))
            tell(CORNER, Texts::tr("Corner %1 is no longitude and latitude: \"%2\"")
                             .arg(QString::number(i + 1), corners->GetItem(i)));
    }
    if (count > 0 && count < 3)
        tell(CORNER, Texts::tr("A polygon has at least three corners"));
    if (region.isPolygon())
        return problems;
    if (region.west >= region.east)
        tell("East", Texts::tr("The eastern edge of the region is not east of the western one"));
    if (region.south >= region.north)
        tell("North", Texts::tr("The northern edge of the region is not north of the southern one"));
    return problems;
}

} // namespace PluginKit
