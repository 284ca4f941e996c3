#include "mapregions.h"

#include <kit/kitfactory.h>
#include <kit/subjobnode.h>

#include <QCoreApplication>
#include <QTimer>
#include <utility>

using JEDVEPLUGIN::MapViewLayerManager;

namespace PluginKit {

MapRegions::MapRegions(const KitFactory& factory)
    : m_factory(factory)
{
}

MapRegions::~MapRegions()
{
    if (!m_map)
        return;
    m_map->disconnect(this);
    if (m_drawingId != 0)
        m_leaving.append(m_drawingId);
    m_map->removeObjects(m_leaving + m_shapes.keys().toVector());
}

void MapRegions::noteChange(SettingNode* node)
{
    if (m_factory.declared().regions.isEmpty())
        return;
    m_changed.insert(node);
    schedule();
}

void MapRegions::forget(SettingNode* node)
{
    m_changed.remove(node);
    if (m_drawing.node == node) {
        m_leaving.append(std::exchange(m_drawingId, 0));
        m_drawing = Shape();
    }
    for (const Id id : m_ids.values(node)) {
        m_leaving.append(id);
        m_shapes.remove(id);
    }
    m_ids.remove(node);
    if (!m_leaving.isEmpty())
        schedule();
}

bool MapRegions::isLinked()
{
    return map()->isConnected();
}

void MapRegions::select(SettingNode* node, const RegionFields& fields)
{
    paint();
    const Id id = shapeOf(node, fields);
    if (id != 0)
        map()->showInMapView(id);
}

bool MapRegions::drawPolygon(SettingNode* node, const RegionFields& fields)
{
    const QString name = node->subjob()->getDisplayName();
    const Id id = map()->createPolygonByUser(layerOf(*node), name);
    if (id == 0)
        return false;
    m_drawingId = id;
    m_drawing.node = node;
    m_drawing.fields = fields;
    m_drawing.name = name;
    return true;
}

MapViewLayerManager* MapRegions::map()
{
    if (m_map)
        return m_map;
    m_map = MapViewLayerManager::getInstance(QCoreApplication::applicationName());
    connect(m_map, &MapViewLayerManager::linkStateChanged, this, &MapRegions::stateChanged);
    connect(m_map, &MapViewLayerManager::objectDeleted, this, &MapRegions::deleted);
    connect(m_map, &MapViewLayerManager::polygonCreated, this, &MapRegions::drawn);
    connect(m_map, &MapViewLayerManager::rectMoved, this, [this](Id id, const QRectF& rect) {
        Region place;
        place.setRect(rect);
        moved(id, place);
    });
    connect(m_map, &MapViewLayerManager::polygonMoved, this, [this](Id id, const QPolygonF& polygon) {
        Region place;
        place.setCorners(polygon);
        moved(id, place);
    });
    return m_map;
}

MapRegions::Id MapRegions::shapeOf(const SettingNode* node, const RegionFields& fields) const
{
    for (const Id id : m_ids.values(node)) {
        if (m_shapes.value(id).fields == fields)
            return id;
    }
    return 0;
}

QString MapRegions::layerOf(const SettingNode& node) const
{
    return QStringLiteral("%1 / %2").arg(m_factory.getName(), node.type().displayName);
}

void MapRegions::schedule()
{
    if (!std::exchange(m_isScheduled, true))
        QTimer::singleShot(0, this, &MapRegions::paint);
}

void MapRegions::paint()
{
    m_isScheduled = false;
    const QSet<SettingNode*> changed = std::exchange(m_changed, {});
    for (SettingNode* node : changed)
        paintBelow(node);
    const QVector<Id> leaving = std::exchange(m_leaving, {});
    if (m_map && !leaving.isEmpty())
        m_map->removeObjects(leaving);
}

// Shapes have the name of the sub-job.
void MapRegions::paintBelow(SettingNode* node)
{
    for (const RegionFields& fields : m_factory.declared().regions)
        paintRegion(node, fields);
    for (int i = 0; i < node->childCount(); ++i)
        paintBelow(static_cast<SettingNode*>(node->child(i)));
}

void MapRegions::paintRegion(SettingNode* node, const RegionFields& fields)
{
    Region region;
    const Id known = shapeOf(node, fields);
    if (!readRegion(*node, fields, &region) || !region.isVisible()) {
        if (known == 0)
            return;
        m_leaving.append(known);
        m_shapes.remove(known);
        m_ids.remove(node, known);
        return;
    }
    const QString name = node->subjob()->getDisplayName();
    const QString tooltip = name + QLatin1Char('\n') + region.toText();
    if (known == 0) {
        const Id id = region.isPolygon() ? map()->addPolygon(layerOf(*node), name, region.corners, tooltip)
                                         : map()->addRect(layerOf(*node), name, region.rect(), tooltip);
        m_shapes.insert(id, {node, fields, region, name, tooltip});
        m_ids.insert(node, id);
        return;
    }
    Shape& shape = m_shapes[known];
    if (!shape.region.hasSamePlaceAs(region) || shape.name != name) {
        if (region.isPolygon())
            map()->updatePolygon(known, name, region.corners, tooltip);
        else
            map()->updateRect(known, name, region.rect(), tooltip);
    } else if (shape.tooltip != tooltip) {
        map()->updateTooltip(known, tooltip);
    }
    shape.region = region;
    shape.name = name;
    shape.tooltip = tooltip;
}

// The map shows the region already; the setting follows, as far as its values go along.
void MapRegions::take(Id id, const Region& region)
{
    Shape& shape = m_shapes[id];
    shape.region = region;
    SettingNode* const node = shape.node;
    if (!node->isReadOnly())
        writeRegion(region, shape.fields, node);
    noteChange(node);
}

void MapRegions::moved(Id id, const Region& place)
{
    if (!m_shapes.contains(id))
        return;
    Region region = place;
    region.isActive = true;
    take(id, region);
}

void MapRegions::deleted(Id id)
{
    if (id == m_drawingId) {
        m_drawingId = 0;
        m_drawing = Shape();
        emit stateChanged();
        return;
    }
    const auto found = m_shapes.constFind(id);
    if (found == m_shapes.constEnd())
        return;
    const Shape shape = *found;
    m_shapes.remove(id);
    m_ids.remove(shape.node, id);
    noteChange(shape.node);
    Region region;
    if (shape.node->isReadOnly() || !readRegion(*shape.node, shape.fields, &region))
        return;
    region.isActive = false;
    writeRegion(region, shape.fields, shape.node);
}

void MapRegions::drawn(Id id, const QPolygonF& polygon)
{
    if (id != m_drawingId)
        return;
    m_drawingId = 0;
    Shape shape = std::exchange(m_drawing, Shape());
    Region region;
    region.isActive = true;
    region.setCorners(polygon);
    if (shape.node->isReadOnly() || !region.isPolygon()) {
        map()->removeObject(id);
    } else {
        const Id former = shapeOf(shape.node, shape.fields);
        if (former != 0) {
            m_shapes.remove(former);
            m_ids.remove(shape.node, former);
            map()->removeObject(former);
        }
        m_ids.insert(shape.node, id);
        m_shapes.insert(id, shape);
        take(id, region);
    }
    emit stateChanged();
}

} // namespace PluginKit
