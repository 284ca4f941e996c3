#include "mapdispatch_p.h"
#include "maplink_p.h"

#include <mapviewinterface/mapviewinterface.h>

namespace {
// The id of what was made; 0 without a link.
int create(MapLink* link, MapMessageKind kind, int parent, const std::wstring& name,
           const QVector<QPointF>& points = QVector<QPointF>())
{
    if (!link->isConnected())
        return 0;
    MapMessage message;
    message.kind = kind;
    message.id = link->newId();
    message.parent = parent;
    message.text = QString::fromStdWString(name);
    message.points = points;
    link->send(message);
    return message.id;
}

void tell(MapLink* link, MapMessageKind kind, int id, int code, const std::wstring& text = std::wstring())
{
    if (!link->isConnected())
        return;
    MapMessage message;
    message.kind = kind;
    message.id = id;
    message.code = code;
    message.text = QString::fromStdWString(text);
    link->send(message);
}

template <typename Event>
Event objectEvent(const MapMessage& message)
{
    Event event;
    event.id = message.id;
    return event;
}

template <typename Event>
Event areaEvent(const MapMessage& message)
{
    Event event;
    event.first = {message.points[0].x(), message.points[0].y()};
    event.second = {message.points[1].x(), message.points[1].y()};
    return event;
}

MST_EVENT_GROUP_MOVE moveEvent(const MapMessage& message)
{
    auto event = objectEvent<MST_EVENT_GROUP_MOVE>(message);
    event.dx = message.points[0].x();
    event.dy = message.points[0].y();
    return event;
}

MST_EVENT_GROUP_MOVE_EX resizeEvent(const MapMessage& message)
{
    auto event = objectEvent<MST_EVENT_GROUP_MOVE_EX>(message);
    event.left = message.points[0].x();
    event.top = message.points[0].y();
    event.right = message.points[1].x();
    event.bottom = message.points[1].y();
    return event;
}

MST_EVENT_POLY_CREATE polygonEvent(const MapMessage& message)
{
    auto event = objectEvent<MST_EVENT_POLY_CREATE>(message);
    for (const QPointF& point : message.points)
        event.points.push_back({point.x(), point.y()});
    return event;
}
} // namespace

MapViewInterface::MapViewInterface(const QString& server, const QString& name)
    : m_link(std::make_unique<MapLink>(this, server, name))
{
}

MapViewInterface::~MapViewInterface() = default;

bool MapViewInterface::isConnected() const
{
    return m_link->isConnected();
}

int MapViewInterface::getOverlay() const
{
    return m_link->overlay();
}

int MapViewInterface::createMapViewLayer(int overlay, const std::wstring& name)
{
    return create(m_link.get(), MAP_CREATE_LAYER, overlay, name);
}

void MapViewInterface::setLayerProperties(int layer, const std::wstring& properties)
{
    tell(m_link.get(), MAP_LAYER_PROPERTIES, layer, 0, properties);
}

int MapViewInterface::createMapViewGroup(int layer, const std::wstring& name)
{
    return create(m_link.get(), MAP_CREATE_GROUP, layer, name);
}

int MapViewInterface::createMapViewRect(int group, const std::wstring& name, double left, double top,
                                        double right, double bottom, int)
{
    return create(m_link.get(), MAP_CREATE_RECT, group, name, {QPointF(left, top), QPointF(right, bottom)});
}

int MapViewInterface::createMapViewPolygon(int group, const std::wstring& name, int pointCount,
                                           const MST_POINT* points, int)
{
    QVector<QPointF> copies;
    copies.reserve(pointCount);
    for (int i = 0; i < pointCount; ++i)
        copies.append(QPointF(points[i].x, points[i].y));
    return create(m_link.get(), MAP_CREATE_POLYGON, group, name, copies);
}

int MapViewInterface::createMapViewEditablePoly(int group, const std::wstring& name, int)
{
    return create(m_link.get(), MAP_CREATE_EDITABLE, group, name);
}

void MapViewInterface::setToolTip(int group, bool hasText, const std::wstring& text)
{
    tell(m_link.get(), MAP_TOOL_TIP, group, 0, hasText ? text : std::wstring());
}

void MapViewInterface::deleteMapViewObj(int id, int code)
{
    tell(m_link.get(), MAP_DELETE, id, code);
}

void MapViewInterface::selectInMap(int id, int mode)
{
    tell(m_link.get(), MAP_SELECT, id, mode);
}

void MapViewInterface::setPaint(bool on)
{
    tell(m_link.get(), MAP_PAINT, 0, on ? 1 : 0);
}

void MapViewInterface::setMapViewVisibleWW(bool on)
{
    tell(m_link.get(), MAP_TELL_VISIBLE, 0, on ? 1 : 0);
}

void MapViewInterface::setMapViewWW(bool on)
{
    tell(m_link.get(), MAP_TELL_WORLD, 0, on ? 1 : 0);
}

// What a client does not override does nothing.
void MapViewInterface::onInitializeMapView() {}
void MapViewInterface::onResetMapView() {}
void MapViewInterface::on_MST_EVENT_GROUP_DELETE(const MST_EVENT_GROUP_DELETE&) {}
void MapViewInterface::on_MST_EVENT_LAYER_DELETE(const MST_EVENT_LAYER_DELETE&) {}
void MapViewInterface::on_MST_EVENT_OVERLAY_DELETE(const MST_EVENT_OVERLAY_DELETE&) {}
void MapViewInterface::on_MST_EVENT_SHAPE_DELETE(const MST_EVENT_SHAPE_DELETE&) {}
void MapViewInterface::on_MST_EVENT_GROUP_CREATE(const MST_EVENT_GROUP_CREATE&) {}
void MapViewInterface::on_MST_EVENT_GROUP_MOVE(const MST_EVENT_GROUP_MOVE&) {}
void MapViewInterface::on_MST_EVENT_GROUP_MOVE_EX(const MST_EVENT_GROUP_MOVE_EX&) {}
void MapViewInterface::on_MST_EVENT_GROUP_SELECT(const MST_EVENT_GROUP_SELECT&) {}
void MapViewInterface::on_MST_EVENT_GROUP_DESELECT(const MST_EVENT_GROUP_DESELECT&) {}
void MapViewInterface::on_MST_EVENT_VISIBLE_WW(const MST_EVENT_VISIBLE_WW&) {}
void MapViewInterface::on_MST_EVENT_WW(const MST_EVENT_WW&) {}
void MapViewInterface::on_MST_EVENT_MENU(const MST_EVENT_MENU&) {}
void MapViewInterface::on_MST_EVENT_MOUSE_ACT(const MST_EVENT_MOUSE_ACT&) {}
void MapViewInterface::on_MST_EVENT_COMMON_DATA(const MST_EVENT_COMMON_DATA&) {}
void MapViewInterface::on_MST_EVENT_GROUP_OPEN(const MST_EVENT_GROUP_OPEN&) {}
void MapViewInterface::on_MST_EVENT_RESULT_IDS(const MST_EVENT_RESULT_IDS&) {}
void MapViewInterface::on_MST_EVENT_POLY_CREATE(const MST_EVENT_POLY_CREATE&) {}

void MapDispatch::tellInitialized(MapViewInterface* client)
{
    client->onInitializeMapView();
}

void MapDispatch::tellReset(MapViewInterface* client)
{
    client->onResetMapView();
}

void MapDispatch::tell(MapViewInterface* client, const MapMessage& message)
{
    const int pointCount = message.points.size();
    if (message.kind == MAP_GROUP_DELETED)
        client->on_MST_EVENT_GROUP_DELETE(objectEvent<MST_EVENT_GROUP_DELETE>(message));
    else if (message.kind == MAP_LAYER_DELETED)
        client->on_MST_EVENT_LAYER_DELETE(objectEvent<MST_EVENT_LAYER_DELETE>(message));
    else if (message.kind == MAP_SHAPE_DELETED)
        client->on_MST_EVENT_SHAPE_DELETE(objectEvent<MST_EVENT_SHAPE_DELETE>(message));
    else if (message.kind == MAP_GROUP_SELECTED)
        client->on_MST_EVENT_GROUP_SELECT(objectEvent<MST_EVENT_GROUP_SELECT>(message));
    else if (message.kind == MAP_GROUP_DESELECTED)
        client->on_MST_EVENT_GROUP_DESELECT(objectEvent<MST_EVENT_GROUP_DESELECT>(message));
    else if (message.kind == MAP_GROUP_MOVED && pointCount == 1)
        client->on_MST_EVENT_GROUP_MOVE(moveEvent(message));
    else if (message.kind == MAP_GROUP_RESIZED && pointCount == 2)
        client->on_MST_EVENT_GROUP_MOVE_EX(resizeEvent(message));
    else if (message.kind == MAP_VISIBLE_AREA && pointCount == 2)
        client->on_MST_EVENT_VISIBLE_WW(areaEvent<MST_EVENT_VISIBLE_WW>(message));
    else if (message.kind == MAP_WORLD_AREA && pointCount == 2)
        client->on_MST_EVENT_WW(areaEvent<MST_EVENT_WW>(message));
    else if (message.kind == MAP_POLYGON_DRAWN)
        client->on_MST_EVENT_POLY_CREATE(polygonEvent(message));
}
