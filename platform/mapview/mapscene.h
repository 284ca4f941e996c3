#pragma once

#include <map>
#include <mapviewinterface/mapmessage.h>
#include <memory>
#include <QColor>
#include <QHash>
#include <QObject>
#include <QPolygonF>
#include <QSet>
#include <vector>

/// An object of any client: the client's number and the object's id.
using MapKey = quint64;
inline MapKey mapKey(int client, qint32 id)
{
    return quint64(client) << 32 | quint32(id);
}

/// Left top and right bottom of a box whose top is the smallest latitude.
QPolygonF cornersOf(const QRectF& box);

/// One shape on the map, in the group that holds it. Places are in degrees.
struct MapGroup
{
    MapKey key = 0;
    QString name;
    QString toolTip;
    bool isRect = false;
    qint32 shape = 0; // Id of the shape; 0: none yet.
    QPolygonF
        points; // A rectangle's are left top and right bottom; none of a polygon that is still to be drawn.
    QRectF box; // Around the points; its top is the smallest latitude.

    bool isDrawn() const { return !points.isEmpty(); }
};

struct MapLayer
{
    int client = 0;
    qint32 id = 0;
    QString name;
    bool isVisible = true;
    bool canBeDeleted = false; // By the user, as all that follows.
    bool canDeleteObjects = false;
    bool canMoveObjects = false;
    QColor color;          // Invalid: the map's own.
    int transparency = 70; // Percent.
    std::map<qint32, MapGroup> groups;
};

/// What is on the map, by clients, and what the user has selected of it. Obeys messages of clients and tells them what
/// the user does.
class MapScene : public QObject
{
    Q_OBJECT
public:
    /// What one client may have on the map, counted in points; a group counts as one.
    static constexpr int MAX_POINTS = 2000000;
    static QRectF world() { return QRectF(-180, -90, 360, 180); }
    static QPointF onWorld(const QPointF& place); ///< the nearest one there

    /// \return the client's number, from 1
    int addClient(const QString& name);
    /// All that it has drawn goes with it.
    void removeClient(int client);
    QString clientName(int client) const { return m_clients.value(client).name; }
    int clientCount() const { return m_clients.size(); }
    /// Does what a client wants. What makes no sense (an unknown id, a place that is no number) is left out.
    /// \return false if the client has more on the map than it may
    bool apply(int client, const MapMessage& message);

    /// In the order in which they are painted. Valid until the next change.
    const std::vector<std::unique_ptr<MapLayer>>& layers() const { return m_layers; }
    const MapGroup* group(MapKey key) const { return findGroup(key); }
    const MapLayer* layerOf(MapKey key) const { return m_groups.value(key); }
    /// All that are drawn in visible layers, in the order of painting.
    QVector<MapKey> visibleGroups() const;
    /// Calls \p visitor for each drawn and visible group whose box meets the area.
    template <typename Visitor>
    void visit(const QRectF& area, Visitor visitor) const;
    /// The editable polygon that waits for the user, the oldest first; 0: none.
    MapKey pendingPolygon() const { return m_pending.isEmpty() ? 0 : m_pending.first(); }
    /// False while a client draws much and does not want it to be painted yet.
    bool isPainting() const { return m_silent.isEmpty(); }

    const QSet<MapKey>& selection() const { return m_selection; }
    bool canMove(MapKey key) const;

    // What the user does. Clients are told.
    void select(const QSet<MapKey>& keys);
    /// Moves what may be moved, as far as the world reaches.
    void move(const QSet<MapKey>& keys, const QPointF& offset);
    void erase(QSet<MapKey> keys);
    void eraseLayer(int client, qint32 id);
    void setLayerVisible(int client, qint32 id, bool isVisible);
    void finishPolygon(MapKey key, const QPolygonF& points);
    /// The user does not want to draw it: it is deleted.
    void cancelPolygon(MapKey key);

signals:
    void changed(const QRectF& area);
    void selectionChanged();
    void paintingChanged();
    void pendingPolygonChanged();
    /// Somebody wants it to be seen.
    void showRequested(quint64 key);
    /// To be sent to a client.
    void told(int client, const MapMessage& message);

private:
    struct Client
    {
        QString name;
        int points = 0;
    };

    MapLayer* findLayer(int client, qint32 id) const;
    MapGroup* findGroup(MapKey key) const;
    void createLayer(int client, const MapMessage& message);
    void createGroup(int client, const MapMessage& message);
    void createShape(int client, const MapMessage& message);
    void setToolTip(int client, const MapMessage& message);
    void setProperties(int client, const MapMessage& message);
    void setPainting(int client, const MapMessage& message);
    void remove(int client, const MapMessage& message);
    void requestShow(int client, const MapMessage& message);
    void setPoints(MapGroup* group, const QPolygonF& points);
    void removeLayer(const MapLayer* layer);
    void removeGroup(MapKey key);
    void clearShape(MapGroup* group);
    void tell(MapMessageKind kind, MapKey key, const QVector<QPointF>& points = {});

    int m_lastClient = 0;
    QHash<int, Client> m_clients;
    std::vector<std::unique_ptr<MapLayer>> m_layers;
    QHash<MapKey, MapLayer*> m_groups; // The layer of each group.
    QHash<MapKey, MapKey> m_shapes;    // The group of each shape.
    QSet<MapKey> m_selection;
    QVector<MapKey> m_pending;
    QSet<int> m_silent; // Clients that have painting off.
};

template <typename Visitor>
void MapScene::visit(const QRectF& area, Visitor visitor) const
{
    for (const auto& layer : m_layers) {
        if (!layer->isVisible)
            continue;
        for (const auto& entry : layer->groups) {
            const MapGroup& group = entry.second;
            // A box may have no width or no height.
            if (group.isDrawn() && group.box.left() <= area.right() && group.box.right() >= area.left() &&
                group.box.top() <= area.bottom() && group.box.bottom() >= area.top())
                visitor(*layer, group);
        }
    }
}
