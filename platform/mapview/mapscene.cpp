#include "mapscene.h"

#include <algorithm>
#include <cmath>
#include <QPolygonF>
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

QColor colorOf(int number)
{
    return QColor(number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF);
}

// NAME=VALUE joined by ";". What the map does not know is left out.
void setProperties(const QString& text, MapLayer* layer)
{
    bool isEditable = true;
    const QStringList properties = text.split(QLatin1Char(';'));
    for (const QString& property : properties) {
        const QString name = property.section(QLatin1Char('='), 0, 0);
        const QString value = property.section(QLatin1Char('='), 1);
        const bool isTrue = value == QLatin1String("TRUE");
        if (name == QLatin1String("EDIT"))
            isEditable = isTrue;
        else if (name == QLatin1String("DELETE"))
            layer->canBeDeleted = isTrue;
        else if (name == QLatin1String("O_DELETE"))
            layer->canDeleteObjects = isTrue;
        else if (name == QLatin1String("O_MOVE"))
            layer->canMoveObjects = isTrue;
        else if (name == QLatin1String("FILL_COLOR"))
            layer->color = colorOf(value.toInt());
        else if (name == QLatin1String("TRANS") && layer->color.isValid())
            layer->transparency = qBound(0, value.toInt(), 100);
    }
    layer->canDeleteObjects = layer->canDeleteObjects && isEditable;
    layer->canMoveObjects = layer->canMoveObjects && isEditable;
}

// Whatever lies farther away is no place; a comparison with what is no number is false, too.
bool arePlaces(const QVector<QPointF>& points)
{
    return std::all_of(points.begin(), points.end(), [](const QPointF& point) {
        return std::abs(point.x()) <= FARTHEST && std::abs(point.y()) <= FARTHEST;
    });
}
} // namespace

QVector<QPointF> cornersOf(const QRectF& box)
{
    return {QPointF(box.left(), box.bottom()), QPointF(box.right(), box.top())};
}

const QRectF& MapScene::world()
{
    static const QRectF area(-180, -90, 360, 180);
    return area;
}

QPointF MapScene::onWorld(const QPointF& place)
{
    return QPointF(qBound(world().left(), place.x(), world().right()),
                   qBound(world().top(), place.y(), world().bottom()));
}

MapScene::MapScene()
{
    m_selectionTimer.setSingleShot(true);
    connect(&m_selectionTimer, &QTimer::timeout, this, &MapScene::selectionChanged);
}

int MapScene::addClient(const QString& name)
{
    m_clients.insert(++m_lastClient, {name, 0});
    emit layersChanged();
    return m_lastClient;
}

void MapScene::removeClient(int client)
{
    for (int i = int(m_layers.size()) - 1; i >= 0; --i) {
        if (m_layers[size_t(i)]->client == client)
            removeLayer(m_layers[size_t(i)].get());
    }
    setPainting(client, true);
    m_clients.remove(client);
    emit layersChanged();
}

bool MapScene::apply(int client, const MapMessage& message)
{
    const MapKey key = mapKey(client, message.id);
    if (message.kind == MAP_CREATE_LAYER)
        createLayer(client, message);
    else if (message.kind == MAP_CREATE_GROUP)
        createGroup(client, message);
    else if (message.kind == MAP_CREATE_RECT && message.points.size() == 2)
        createShape(client, message, MapGroup::RECT);
    else if (message.kind == MAP_CREATE_POLYGON)
        createShape(client, message, MapGroup::POLYGON);
    else if (message.kind == MAP_CREATE_EDITABLE)
        createShape(client, message, MapGroup::EDITABLE);
    else if (message.kind == MAP_TOOL_TIP)
        setToolTip(key, message.text);
    else if (message.kind == MAP_DELETE)
        remove(client, message);
    else if (message.kind == MAP_SELECT)
        requestShow(key);
    else if (message.kind == MAP_PAINT)
        setPainting(client, message.code != 0);
    else if (message.kind == MAP_LAYER_PROPERTIES) {
        if (MapLayer* const layer = findLayer(client, message.id)) {
            setProperties(message.text, layer);
            emit changed(world());
        }
    }
    return m_clients[client].points <= MAX_POINTS;
}

const MapGroup* MapScene::group(MapKey key) const
{
    return findGroup(key);
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
    return layer && layer->canMoveObjects;
}

void MapScene::select(const QSet<MapKey>& keys)
{
    const QSet<MapKey> before = std::exchange(m_selection, keys);
    for (const MapKey key : before) {
        if (!keys.contains(key) && findGroup(key)) {
            emit changed(findGroup(key)->box);
            tell(MAP_GROUP_DESELECTED, key);
        }
    }
    for (const MapKey key : keys) {
        if (!before.contains(key) && findGroup(key)) {
            emit changed(findGroup(key)->box);
            tell(MAP_GROUP_SELECTED, key);
        }
    }
    if (before != keys)
        emit selectionChanged();
}

void MapScene::move(const QSet<MapKey>& keys, const QPointF& offset)
{
    QRectF all;
    for (const MapKey key : keys) {
        if (canMove(key))
            all = all.isNull() ? findGroup(key)->box : all.united(findGroup(key)->box);
    }
    const auto limited = [](double value, double least, double most) {
        return least <= 0 && most >= 0 ? qBound(least, value, most) : 0;
    };
    const QPointF step(limited(offset.x(), world().left() - all.left(), world().right() - all.right()),
                       limited(offset.y(), world().top() - all.top(), world().bottom() - all.bottom()));
    if (step.isNull())
        return;
    for (const MapKey key : keys) {
        MapGroup* const group = canMove(key) ? findGroup(key) : nullptr;
        if (!group || !group->isDrawn())
            continue;
        QVector<QPointF> points = group->points;
        for (QPointF& point : points)
            point += step;
        setPoints(group, points);
        if (group->kind == MapGroup::RECT)
            tell(MAP_GROUP_RESIZED, key, points);
        else
            tell(MAP_GROUP_MOVED, key, {step});
    }
}

void MapScene::resize(MapKey key, const QRectF& box)
{
    MapGroup* const group = canMove(key) ? findGroup(key) : nullptr;
    if (!group || group->kind != MapGroup::RECT || box == group->box)
        return;
    setPoints(group, cornersOf(QRectF(onWorld(box.topLeft()), onWorld(box.bottomRight()))));
    tell(MAP_GROUP_RESIZED, key, group->points);
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
    emit objectsChanged();
}

void MapScene::finishPolygon(MapKey key, const QVector<QPointF>& points)
{
    MapGroup* const group = findGroup(key);
    if (!group || !m_pending.removeOne(key))
        return;
    group->kind = MapGroup::POLYGON;
    setPoints(group, points);
    tell(MAP_POLYGON_DRAWN, mapKey(clientOf(key), group->shape), points);
    emit objectsChanged();
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
    emit layersChanged();
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

void MapScene::createShape(int client, const MapMessage& message, MapGroup::Kind kind)
{
    const MapKey shape = mapKey(client, message.id);
    MapGroup* const group = findGroup(mapKey(client, message.parent));
    if (!group || message.id <= 0 || m_shapes.contains(shape) || !arePlaces(message.points))
        return;
    clearShape(group);
    group->kind = kind;
    group->shape = message.id;
    m_shapes.insert(shape, group->key);
    if (kind == MapGroup::EDITABLE) {
        m_pending.append(group->key);
        emit pendingPolygonChanged();
        return;
    }
    // Left top and right bottom, whatever corners were given.
    setPoints(group, kind == MapGroup::RECT
                         ? cornersOf(QRectF(message.points[0], message.points[1]).normalized())
                         : message.points);
    emit objectsChanged();
}

void MapScene::setToolTip(MapKey key, const QString& text)
{
    if (MapGroup* const group = findGroup(key))
        group->toolTip = text;
}

void MapScene::setPoints(MapGroup* group, const QVector<QPointF>& points)
{
    m_clients[clientOf(group->key)].points += points.size() - group->points.size();
    emit changed(group->box);
    group->points = points;
    group->box = QPolygonF(points).boundingRect();
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
        emit objectsChanged();
    }
}

void MapScene::removeLayer(const MapLayer* layer)
{
    while (!layer->groups.empty())
        removeGroup(layer->groups.begin()->second.key);
    --m_clients[layer->client].points;
    m_layers.erase(std::find_if(m_layers.begin(), m_layers.end(),
                                [layer](const auto& entry) { return entry.get() == layer; }));
    emit layersChanged();
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
        m_selectionTimer.start();
    emit objectsChanged();
}

void MapScene::clearShape(MapGroup* group)
{
    m_shapes.remove(mapKey(clientOf(group->key), group->shape));
    group->kind = MapGroup::NOTHING;
    group->shape = 0;
    setPoints(group, {});
    if (m_pending.removeOne(group->key))
        emit pendingPolygonChanged();
}

void MapScene::requestShow(MapKey key)
{
    const MapGroup* const group = findGroup(key);
    if (!group || !group->isDrawn() || !layerOf(key)->isVisible)
        return;
    select({key});
    emit showRequested(key);
}

void MapScene::setPainting(int client, bool on)
{
    const bool wasPainting = isPainting();
    if (on)
        m_silent.remove(client);
    else
        m_silent.insert(client);
    if (isPainting() != wasPainting)
        emit paintingChanged();
}

void MapScene::tell(MapMessageKind kind, MapKey key, const QVector<QPointF>& points)
{
    MapMessage message;
    message.kind = kind;
    message.id = idOf(key);
    message.points = points;
    emit told(clientOf(key), message);
}
