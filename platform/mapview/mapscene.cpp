#include "mapscene.h"

#include <algorithm>
#include <cmath>
#include <QStringList>

namespace {
constexpr double FARTHEST = 10000; // Degrees.

int clientOf(MapKey key)
{
    return int(key >> 32);
}

qint32 idOf(MapKey key)
{
    return qint32(key & 0xFFFFFFFFu);
}

// NAME=VALUE joined by ";". What the map does not know is left out, what is not there stays as it was.
void applyProperties(const QString& text, MapLayer* layer)
{
    QHash<QString, QString> values;
    const QStringList properties = text.split(QLatin1Char(';'));
    for (const QString& property : properties)
        values.insert(property.section(QLatin1Char('='), 0, 0), property.section(QLatin1Char('='), 1));
    const auto isTrue = [&values](const char* name, bool otherwise) {
        const auto value = values.constFind(QLatin1String(name));
        return value == values.constEnd() ? otherwise : *value == QLatin1String("TRUE");
    };
    const bool isEditable = isTrue("EDIT", true);
    layer->canBeDeleted = isTrue("DELETE", layer->canBeDeleted);
    layer->canDeleteObjects = isEditable && isTrue("O_DELETE", layer->canDeleteObjects);
    layer->canMoveObjects = isEditable && isTrue("O_MOVE", layer->canMoveObjects);
    const int color = values.value(QStringLiteral("FILL_COLOR")).toInt();
    if (values.contains(QStringLiteral("FILL_COLOR")))
        layer->color = QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
    if (values.contains(QStringLiteral("TRANS")) && layer->color.isValid())
        layer->transparency = qBound(0, values.value(QStringLiteral("TRANS")).toInt(), 100);
}

// Whatever lies farther away is no place; a comparison with what is no number is false, too.
bool arePlaces(const QVector<QPointF>& points)
{
    return std::all_of(points.begin(), points.end(), [](const QPointF& point) {
        return std::abs(point.x()) <= FARTHEST && std::abs(point.y()) <= FARTHEST;
    });
}
} // namespace

QPolygonF cornersOf(const QRectF& box)
{
    return QPolygonF() << box.bottomLeft() << box.topRight();
}

QPointF MapScene::onWorld(const QPointF& place)
{
    return QPointF(qBound(world().left(), place.x(), world().right()),
                   qBound(world().top(), place.y(), world().bottom()));
}

int MapScene::addClient(const QString& name)
{
    m_clients.insert(++m_lastClient, {name, 0});
    return m_lastClient;
}

void MapScene::removeClient(int client)
{
    for (int i = int(m_layers.size()) - 1; i >= 0; --i) {
        if (m_layers[size_t(i)]->client == client)
            removeLayer(m_layers[size_t(i)].get());
    }
    m_silent.remove(client);
    emit paintingChanged();
    m_clients.remove(client);
}

bool MapScene::apply(int client, const MapMessage& message)
{
    using Handler = void (MapScene::*)(int, const MapMessage&);
    static const QHash<int, Handler> HANDLERS = {
        {MAP_CREATE_LAYER, &MapScene::createLayer},   {MAP_LAYER_PROPERTIES, &MapScene::setProperties},
        {MAP_CREATE_GROUP, &MapScene::createGroup},   {MAP_CREATE_RECT, &MapScene::createShape},
        {MAP_CREATE_POLYGON, &MapScene::createShape}, {MAP_CREATE_EDITABLE, &MapScene::createShape},
        {MAP_TOOL_TIP, &MapScene::setToolTip},        {MAP_DELETE, &MapScene::remove},
        {MAP_SELECT, &MapScene::requestShow},         {MAP_PAINT, &MapScene::setPainting}};
    if (const Handler handler = HANDLERS.value(message.kind))
        (this->*handler)(client, message);
    return m_clients[client].points <= MAX_POINTS;
}

QVector<MapKey> MapScene::visibleGroups() const
{
    QVector<MapKey> keys;
    visit(QRectF(-FARTHEST, -FARTHEST, 2 * FARTHEST, 2 * FARTHEST),
          [&keys](const MapLayer&, const MapGroup& group) { keys.append(group.key); });
    return keys;
}

bool MapScene::canMove(MapKey key) const
{
    const MapLayer* const layer = layerOf(key);
    return layer && layer->canMoveObjects && findGroup(key)->isDrawn();
}

void MapScene::select(const QSet<MapKey>& keys)
{
    const QSet<MapKey> before = std::exchange(m_selection, keys);
    const auto report = [this](const QSet<MapKey>& differing, MapMessageKind kind) {
        for (const MapKey key : differing) {
            emit changed(findGroup(key)->box);
            tell(kind, key);
        }
    };
    report(before - keys, MAP_GROUP_DESELECTED);
    report(keys - before, MAP_GROUP_SELECTED);
    if (before != keys)
        emit selectionChanged();
}

void MapScene::move(const QSet<MapKey>& keys, const QPointF& offset)
{
    QRectF all;
    QVector<MapGroup*> groups;
    for (const MapKey key : keys) {
        if (!canMove(key))
            continue;
        groups.append(findGroup(key));
        all = all.united(groups.last()->box);
    }
    const auto limited = [](double value, double least, double most) {
        return least <= 0 && most >= 0 ? qBound(least, value, most) : 0;
    };
    const QPointF step(limited(offset.x(), world().left() - all.left(), world().right() - all.right()),
                       limited(offset.y(), world().top() - all.top(), world().bottom() - all.bottom()));
    if (step.isNull())
        return;
    for (MapGroup* group : qAsConst(groups)) {
        setPoints(group, group->points.translated(step));
        tell(group->isRect ? MAP_GROUP_RESIZED : MAP_GROUP_MOVED, group->key,
             group->isRect ? group->points : QPolygonF() << step);
    }
}

// By value: what is erased leaves the selection, too.
void MapScene::erase(QSet<MapKey> keys)
{
    for (const MapKey key : qAsConst(keys)) {
        if (!layerOf(key) || !layerOf(key)->canDeleteObjects)
            continue;
        tell(MAP_GROUP_DELETED, key);
        removeGroup(key);
    }
}

void MapScene::eraseLayer(int client, qint32 id)
{
    const MapLayer* const layer = findLayer(client, id);
    if (!layer || !layer->canBeDeleted)
        return;
    tell(MAP_LAYER_DELETED, mapKey(client, id));
    removeLayer(layer);
}

void MapScene::setLayerVisible(int client, qint32 id, bool isVisible)
{
    MapLayer* const layer = findLayer(client, id);
    if (!layer || layer->isVisible == isVisible)
        return;
    layer->isVisible = isVisible;
    // Nobody is to delete what cannot be seen.
    QSet<MapKey> visible;
    for (const MapKey key : qAsConst(m_selection)) {
        if (layerOf(key)->isVisible)
            visible.insert(key);
    }
    select(visible);
    emit changed(world());
}

void MapScene::finishPolygon(MapKey key, const QPolygonF& points)
{
    MapGroup* const group = findGroup(key);
    if (!group || !m_pending.removeOne(key))
        return;
    setPoints(group, points);
    tell(MAP_POLYGON_DRAWN, mapKey(clientOf(key), group->shape), points);
    emit pendingPolygonChanged();
}

void MapScene::cancelPolygon(MapKey key)
{
    if (!m_pending.contains(key))
        return;
    tell(MAP_GROUP_DELETED, key);
    removeGroup(key);
}

MapLayer* MapScene::findLayer(int client, qint32 id) const
{
    for (const auto& layer : m_layers) {
        if (layer->client == client && layer->id == id)
            return layer.get();
    }
    return nullptr;
}

MapGroup* MapScene::findGroup(MapKey key) const
{
    MapLayer* const layer = m_groups.value(key);
    return layer ? &layer->groups.at(idOf(key)) : nullptr;
}

void MapScene::createLayer(int client, const MapMessage& message)
{
    if (message.id <= 0 || findLayer(client, message.id))
        return;
    auto layer = std::make_unique<MapLayer>();
    layer->client = client;
    layer->id = message.id;
    layer->name = message.text;
    m_layers.push_back(std::move(layer));
    ++m_clients[client].points;
}

void MapScene::createGroup(int client, const MapMessage& message)
{
    const MapKey key = mapKey(client, message.id);
    MapLayer* const layer = findLayer(client, message.parent);
    if (!layer || message.id <= 0 || m_groups.contains(key))
        return;
    MapGroup& group = layer->groups[message.id];
    group.key = key;
    group.name = message.text;
    m_groups.insert(key, layer);
    ++m_clients[client].points;
}

void MapScene::createShape(int client, const MapMessage& message)
{
    const bool isRect = message.kind == MAP_CREATE_RECT;
    const MapKey shape = mapKey(client, message.id);
    MapGroup* const group = findGroup(mapKey(client, message.parent));
    if (!group || message.id <= 0 || m_shapes.contains(shape) || !arePlaces(message.points) ||
        (isRect && message.points.size() != 2))
        return;
    clearShape(group);
    group->isRect = isRect;
    group->shape = message.id;
    m_shapes.insert(shape, group->key);
    if (message.kind == MAP_CREATE_EDITABLE) {
        m_pending.append(group->key);
        emit pendingPolygonChanged();
    } else {
        // Left top and right bottom, whatever corners were given.
        setPoints(group, isRect ? cornersOf(QPolygonF(message.points).boundingRect()) : message.points);
    }
}

void MapScene::setToolTip(int client, const MapMessage& message)
{
    if (MapGroup* const group = findGroup(mapKey(client, message.id)))
        group->toolTip = message.text;
}

void MapScene::setProperties(int client, const MapMessage& message)
{
    if (MapLayer* const layer = findLayer(client, message.id)) {
        applyProperties(message.text, layer);
        emit changed(world());
    }
}

void MapScene::setPoints(MapGroup* group, const QPolygonF& points)
{
    m_clients[clientOf(group->key)].points += points.size() - group->points.size();
    emit changed(group->box);
    group->points = points;
    group->box = points.boundingRect();
    emit changed(group->box);
}

void MapScene::remove(int client, const MapMessage& message)
{
    enum DeleteCode { DELETE_LAYER = 171, DELETE_GROUP = 172, DELETE_SHAPE = 173 };
    const MapKey key = mapKey(client, message.id);
    if (message.code == DELETE_LAYER) {
        if (const MapLayer* const layer = findLayer(client, message.id))
            removeLayer(layer);
    } else if (message.code == DELETE_GROUP) {
        removeGroup(key);
    } else if (message.code == DELETE_SHAPE && m_shapes.contains(key)) {
        clearShape(findGroup(m_shapes.value(key)));
    }
}

void MapScene::removeLayer(const MapLayer* layer)
{
    while (!layer->groups.empty())
        removeGroup(layer->groups.begin()->second.key);
    --m_clients[layer->client].points;
    m_layers.erase(std::find_if(m_layers.begin(), m_layers.end(),
                                [layer](const auto& entry) { return entry.get() == layer; }));
}

void MapScene::removeGroup(MapKey key)
{
    MapGroup* const group = findGroup(key);
    if (!group)
        return;
    clearShape(group);
    --m_clients[clientOf(key)].points;
    m_groups.take(key)->groups.erase(idOf(key));
    if (m_selection.remove(key))
        emit selectionChanged();
}

void MapScene::clearShape(MapGroup* group)
{
    m_shapes.remove(mapKey(clientOf(group->key), group->shape));
    group->shape = 0;
    setPoints(group, {});
    if (m_pending.removeOne(group->key))
        emit pendingPolygonChanged();
}

void MapScene::requestShow(int client, const MapMessage& message)
{
    const MapKey key = mapKey(client, message.id);
    const MapGroup* const group = findGroup(key);
    if (!group || !group->isDrawn() || !layerOf(key)->isVisible)
        return;
    select({key});
    emit showRequested(key);
}

void MapScene::setPainting(int client, const MapMessage& message)
{
    if (message.code != 0)
        m_silent.remove(client);
    else
        m_silent.insert(client);
    emit paintingChanged();
}

void MapScene::tell(MapMessageKind kind, MapKey key, const QVector<QPointF>& points)
{
    emit told(clientOf(key), {kind, idOf(key), 0, 0, QString(), points});
}
