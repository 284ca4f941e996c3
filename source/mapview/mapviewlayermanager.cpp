#include "mapviewlayermanager.h"

#include "common/tracing_p.h"
#include "mapobjects_p.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>

namespace JEDVEPLUGIN {

namespace {
using tObjectID = MapViewLayerManager::tObjectID;

enum ObjectType { TYPE_RECT = 0, TYPE_POLYGON = 1, TYPE_USER_POLYGON = 2 };
enum DeleteCode { DELETE_LAYER = 171, DELETE_GROUP = 172, DELETE_SHAPE = 173 };

constexpr int SELECT_CENTRED = 6;
constexpr double SAME_PLACE = 1e-7; // degrees

struct ObjectRecord
{
    int mapId = 0; // Of the group; 0 as long as it is not drawn.
    QString layer;
    QString name;
    QString tooltip;
    int type = TYPE_RECT;
    QVector<QPointF> points; // A rectangle's are left top and right bottom.
};

struct Area
{
    QPointF first;
    QPointF second;
};

QVector<QPointF> cornersOf(const QRectF& rect)
{
    return {QPointF(rect.x(), rect.y()), QPointF(rect.x() + rect.width(), rect.y() + rect.height())};
}

// The map says what it likes; a place that is no number would spread into the settings.
bool areNumbers(std::initializer_list<double> coordinates)
{
    return std::all_of(coordinates.begin(), coordinates.end(), [](double one) { return std::isfinite(one); });
}

// Moves the edges of a rectangle. \return false, with nothing changed, if they are where they were
bool moveEdges(const MST_EVENT_GROUP_MOVE_EX& event, QVector<QPointF>& points)
{
    // With equal edges the first point takes left and top.
    double& top = points[1].y() > points[0].y() ? points[1].ry() : points[0].ry();
    double& bottom = &top == &points[0].ry() ? points[1].ry() : points[0].ry();
    double& left = points[1].x() < points[0].x() ? points[1].rx() : points[0].rx();
    double& right = &left == &points[0].rx() ? points[1].rx() : points[0].rx();
    if (std::abs(top - event.top) < SAME_PLACE && std::abs(bottom - event.bottom) < SAME_PLACE &&
        std::abs(left - event.left) < SAME_PLACE && std::abs(right - event.right) < SAME_PLACE)
        return false;
    top = event.top;
    bottom = event.bottom;
    left = event.left;
    right = event.right;
    return true;
}
} // namespace

struct MapViewLayerManager::Data
{
    tObjectID nextId = 0;
    QHash<tObjectID, ObjectRecord> objects;
    MapObjects mapObjects;
    QHash<QString, MapViewProperties> layerProperties;
    Area visibleArea;
    tObjectID userPolygon = 0; // The record that the user is drawing, 0 if there is none.

    // The record that a map object belongs to; null if there is none.
    ObjectRecord* recordOf(int mapId, tObjectID* id)
    {
        const MapObjects::Entry* const entry = mapObjects.find(mapId);
        const auto record = entry ? objects.find(entry->owner) : objects.end();
        if (record == objects.end())
            return nullptr;
        *id = record.key();
        return &*record;
    }

    void drop(tObjectID id)
    {
        objects.remove(id);
        if (userPolygon == id)
            userPolygon = 0;
    }
};

MapViewLayerManager* MapViewLayerManager::s_instance = nullptr;
QSharedMemory MapViewLayerManager::s_instanceCounter;

MapViewLayerManager::MapViewLayerManager(const QString& server, const QString& name, QObject* parent)
    : QObject(parent)
    , MapViewInterface(server, name)
    , m_data(std::make_unique<Data>())
{
    qRegisterMetaType<tObjectID>("JEDVEPLUGIN::MapViewLayerManager::tObjectID");
}

MapViewLayerManager::~MapViewLayerManager()
{
    s_instance = nullptr;
    m_data.reset();
    InstanceCounter(s_instanceCounter).leave();
}

MapViewLayerManager* MapViewLayerManager::getInstance(const QString& name)
{
    if (s_instance)
        return s_instance;
    const int count = InstanceCounter(s_instanceCounter).enter(name);
    const QString clientName = count > 1 ? name + QStringLiteral(" (%1)").arg(count - 1) : name;
    s_instance = new MapViewLayerManager(QString(), clientName, QCoreApplication::instance());
    return s_instance;
}

tObjectID MapViewLayerManager::addRect(const QString& layer, QString name, const QRectF& rect,
                                       const QString& tooltip)
{
    return addObject(layer, name, TYPE_RECT, cornersOf(rect), tooltip);
}

tObjectID MapViewLayerManager::addPolygon(const QString& layer, const QString& name, const QPolygonF& polygon,
                                          const QString& tooltip)
{
    return addObject(layer, name, TYPE_POLYGON, polygon, tooltip);
}

void MapViewLayerManager::updateRect(tObjectID id, const QString& name, const QRectF& rect,
                                     const QString& tooltip)
{
    updateObject(id, name, TYPE_RECT, cornersOf(rect), tooltip);
}

void MapViewLayerManager::updatePolygon(tObjectID id, const QString& name, const QPolygonF& polygon,
                                        const QString& tooltip)
{
    updateObject(id, name, TYPE_POLYGON, polygon, tooltip);
}

void MapViewLayerManager::updateTooltip(tObjectID id, const QString& tooltip)
{
    const auto record = m_data->objects.find(id);
    if (record == m_data->objects.end())
        return;
    record->tooltip = tooltip;
    if (record->mapId != 0)
        setToolTip(record->mapId, !tooltip.isEmpty(), tooltip.toStdWString());
}

void MapViewLayerManager::removeObject(tObjectID id)
{
    if (!m_data->objects.contains(id))
        return;
    eraseFromMap(id);
    m_data->drop(id);
}

void MapViewLayerManager::removeObjects(const QVector<tObjectID>& ids)
{
    setPaint(false);
    for (const tObjectID id : ids)
        removeObject(id);
    setPaint(true);
}

tObjectID MapViewLayerManager::createPolygonByUser(const QString& layer, const QString& name)
{
    if (!isConnected() || m_data->userPolygon != 0)
        return 0;
    m_data->userPolygon = addObject(layer, name, TYPE_USER_POLYGON, {}, QString());
    return m_data->userPolygon;
}

void MapViewLayerManager::showInMapView(tObjectID id)
{
    const int mapId = m_data->objects.value(id).mapId;
    if (isConnected() && mapId != 0)
        selectInMap(mapId, SELECT_CENTRED);
}

bool MapViewLayerManager::visibleWW(QPointF& first, QPointF& second)
{
    if (!isConnected())
        return false;
    first = m_data->visibleArea.first;
    second = m_data->visibleArea.second;
    return true;
}

MapViewLayerManager::MapViewProperties& MapViewLayerManager::getLayerProperties(const QString& layer)
{
    const auto properties = m_data->layerProperties.find(layer);
    return properties != m_data->layerProperties.end()
               ? *properties
               : *m_data->layerProperties.insert(layer, defaultLayerProperties());
}

void MapViewLayerManager::deleteLayer(const QString& layer)
{
    const int mapId = m_data->mapObjects.layer(layer);
    if (mapId == 0)
        return;
    const QSet<int> groups = m_data->mapObjects.children(mapId);
    for (const int id : groups) {
        // Two of them may belong to one object: the group of a shape that the user deleted stays.
        if (const MapObjects::Entry* const group = m_data->mapObjects.find(id))
            removeObject(group->owner);
    }
    deleteMapViewObj(mapId, DELETE_LAYER);
    m_data->mapObjects.remove(mapId);
}

MapViewLayerManager::enObjType MapViewLayerManager::getObjectType(tObjectID id)
{
    const MapObjects::Entry* const entry = m_data->mapObjects.find(m_data->objects.value(id).mapId);
    return entry ? entry->kind : OBJ_LAYER;
}

void MapViewLayerManager::onInitializeMapView()
{
    setMapViewVisibleWW(true);
    setMapViewWW(false);
    setPaint(false);
    QList<tObjectID> ids = m_data->objects.keys();
    std::sort(ids.begin(), ids.end());
    for (const tObjectID id : qAsConst(ids))
        draw(id);
    setPaint(true);
    emit linkStateChanged(true);
}

void MapViewLayerManager::onResetMapView()
{
    emit linkStateChanged(false);
    m_data->mapObjects.clear();
    for (ObjectRecord& record : m_data->objects)
        record.mapId = 0;
    m_data->visibleArea = Area();
}

void MapViewLayerManager::on_MST_EVENT_GROUP_DELETE(const MST_EVENT_GROUP_DELETE& event)
{
    handleDeletion(event.id);
}

void MapViewLayerManager::on_MST_EVENT_LAYER_DELETE(const MST_EVENT_LAYER_DELETE& event)
{
    handleDeletion(event.id);
}

void MapViewLayerManager::on_MST_EVENT_SHAPE_DELETE(const MST_EVENT_SHAPE_DELETE& event)
{
    handleDeletion(event.id);
}

void MapViewLayerManager::on_MST_EVENT_GROUP_MOVE(const MST_EVENT_GROUP_MOVE& event)
{
    tObjectID id = 0;
    ObjectRecord* const record = m_data->recordOf(event.id, &id);
    if (!record || record->type != TYPE_POLYGON || !areNumbers({event.dx, event.dy}) ||
        (std::abs(event.dx) < SAME_PLACE && std::abs(event.dy) < SAME_PLACE))
        return;
    for (QPointF& point : record->points)
        point += QPointF(event.dx, event.dy);
    emit polygonMoved(id, QPolygonF(record->points));
}

void MapViewLayerManager::on_MST_EVENT_GROUP_MOVE_EX(const MST_EVENT_GROUP_MOVE_EX& event)
{
    tObjectID id = 0;
    ObjectRecord* const record = m_data->recordOf(event.id, &id);
    if (!record || record->type != TYPE_RECT ||
        !areNumbers({event.left, event.top, event.right, event.bottom}) || !moveEdges(event, record->points))
        return;
    emit rectMoved(id, QRectF(record->points[0], record->points[1]));
}

void MapViewLayerManager::on_MST_EVENT_VISIBLE_WW(const MST_EVENT_VISIBLE_WW& event)
{
    if (areNumbers({event.first.x, event.first.y, event.second.x, event.second.y}))
        m_data->visibleArea = {QPointF(event.first.x, event.first.y),
                               QPointF(event.second.x, event.second.y)};
}

void MapViewLayerManager::on_MST_EVENT_POLY_CREATE(const MST_EVENT_POLY_CREATE& event)
{
    tObjectID id = 0;
    ObjectRecord* const record = m_data->recordOf(event.id, &id);
    if (!record || record->type != TYPE_USER_POLYGON)
        return;
    QPolygonF polygon;
    for (const MST_POINT& point : event.points) {
        if (!areNumbers({point.x, point.y}))
            return;
        polygon.append(QPointF(point.x, point.y));
    }
    record->points = polygon;
    record->type = TYPE_POLYGON;
    m_data->userPolygon = 0;
    emit polygonCreated(id, polygon);
}

// What else happens on the map is of no interest here.
void MapViewLayerManager::on_MST_EVENT_OVERLAY_DELETE(const MST_EVENT_OVERLAY_DELETE&) {}
void MapViewLayerManager::on_MST_EVENT_GROUP_CREATE(const MST_EVENT_GROUP_CREATE&) {}
void MapViewLayerManager::on_MST_EVENT_GROUP_SELECT(const MST_EVENT_GROUP_SELECT&) {}
void MapViewLayerManager::on_MST_EVENT_GROUP_DESELECT(const MST_EVENT_GROUP_DESELECT&) {}
void MapViewLayerManager::on_MST_EVENT_WW(const MST_EVENT_WW&) {}
void MapViewLayerManager::on_MST_EVENT_MENU(const MST_EVENT_MENU&) {}
void MapViewLayerManager::on_MST_EVENT_MOUSE_ACT(const MST_EVENT_MOUSE_ACT&) {}
void MapViewLayerManager::on_MST_EVENT_COMMON_DATA(const MST_EVENT_COMMON_DATA&) {}
void MapViewLayerManager::on_MST_EVENT_GROUP_OPEN(const MST_EVENT_GROUP_OPEN&) {}
void MapViewLayerManager::on_MST_EVENT_RESULT_IDS(const MST_EVENT_RESULT_IDS&) {}

tObjectID MapViewLayerManager::nextObjId()
{
    if (++m_data->nextId == 0)
        traceError(
            {TracePoints::MAP_VIEW_LAYER_MANAGER, __LINE__},
            QStringLiteral(
                "MapViewLayerManager::nextObjId() -> more than 2^64 objects created -> are you nuts?"));
    return m_data->nextId;
}

tObjectID MapViewLayerManager::addObject(const QString& layer, const QString& name, int type,
                                         const QVector<QPointF>& points, const QString& tooltip)
{
    const tObjectID id = nextObjId();
    if (id == 0)
        return 0;
    // An update may have made an object under an id that was still to come.
    removeObject(id);
    m_data->objects.insert(id, {0, layer, name, tooltip, type, points});
    draw(id);
    return id;
}

void MapViewLayerManager::updateObject(tObjectID id, const QString& name, int type,
                                       const QVector<QPointF>& points, const QString& tooltip)
{
    if (id == 0)
        return;
    ObjectRecord& record = m_data->objects[id];
    record.name = name;
    record.points = points;
    record.type = type;
    record.tooltip = tooltip;
    if (m_data->userPolygon == id)
        m_data->userPolygon = 0;
    eraseFromMap(id);
    draw(id);
}

void MapViewLayerManager::draw(tObjectID id)
{
    if (!isConnected())
        return;
    ObjectRecord& record = m_data->objects[id];
    const int layer = drawnLayer(record.layer);
    const int group = createMapViewGroup(layer, record.name.toStdWString());
    m_data->mapObjects.insert(group, OBJ_GROUP, layer, id);
    record.mapId = group;
    m_data->mapObjects.insert(drawShape(group, id), OBJ_SHAPE, group, id);
    setToolTip(group, !record.tooltip.isEmpty(), record.tooltip.toStdWString());
}

int MapViewLayerManager::drawnLayer(const QString& name)
{
    const int drawn = m_data->mapObjects.layer(name);
    if (drawn != 0)
        return drawn;
    const QString properties = layerPropertyText(getLayerProperties(name));
    const int layer = createMapViewLayer(getOverlay(), name.toStdWString());
    setLayerProperties(layer, properties.toStdWString());
    m_data->mapObjects.insert(layer, OBJ_LAYER, 0, 0, name);
    return layer;
}

int MapViewLayerManager::drawShape(int group, tObjectID id)
{
    const ObjectRecord& record = m_data->objects[id];
    const std::wstring name = record.name.toStdWString();
    const QVector<QPointF>& points = record.points;
    if (record.type == TYPE_USER_POLYGON)
        return createMapViewEditablePoly(group, name, 1);
    if (record.type == TYPE_RECT)
        return createMapViewRect(
            group, name, std::min(points[0].x(), points[1].x()), std::max(points[0].y(), points[1].y()),
            std::max(points[0].x(), points[1].x()), std::min(points[0].y(), points[1].y()), 1);
    QVector<MST_POINT> places;
    places.reserve(points.size());
    for (const QPointF& point : points)
        places.append({point.x(), point.y()});
    return createMapViewPolygon(group, name, places.size(), places.constData(), 1);
}

void MapViewLayerManager::eraseFromMap(tObjectID id)
{
    ObjectRecord& record = m_data->objects[id];
    if (!m_data->mapObjects.find(record.mapId))
        return;
    const QSet<int> shapes = m_data->mapObjects.children(record.mapId);
    deleteMapViewObj(record.mapId, DELETE_GROUP);
    for (const int shape : shapes) {
        deleteMapViewObj(shape, DELETE_SHAPE);
        m_data->mapObjects.remove(shape);
    }
    m_data->mapObjects.remove(record.mapId);
    record.mapId = 0;
}

// The user deleted something on the map: everything below it is gone, too.
void MapViewLayerManager::handleDeletion(int mapId)
{
    tObjectID id = 0;
    if (m_data->recordOf(mapId, &id)) {
        emit objectDeleted(id);
        m_data->drop(id);
    }
    // Also below an object that is not known any more: a layer may have been deleted on both sides at once.
    const QSet<int> children = m_data->mapObjects.children(mapId);
    for (const int child : children)
        handleDeletion(child);
    m_data->mapObjects.remove(mapId);
}

} // namespace JEDVEPLUGIN
