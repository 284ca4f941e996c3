#pragma once

#include <mapviewinterface/mapviewinterface.h>

#include <QHash>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

/// Rectangles on the map in the most straightforward way: what is drawn is one table by map id, and every question
/// about names, parents and owners runs through it. Yardstick of the benchmark and oracle of the random test.
class NaiveMapLayers : public MapViewInterface
{
public:
    using Id = quint64;

    /// \param layerProperties  the text that every layer gets
    NaiveMapLayers(const QString& server, const QString& name, const QString& layerProperties)
        : MapViewInterface(server, name)
        , m_layerProperties(layerProperties)
    {
    }

    Id addRect(const QString& layer, const QString& name, const QRectF& rect, const QString& tooltip)
    {
        m_records.insert(++m_lastId, {layer, name, tooltip, rect, 0});
        draw(m_lastId);
        return m_lastId;
    }
    void updateRect(Id id, const QString& name, const QRectF& rect, const QString& tooltip)
    {
        Record& record = m_records[id];
        record.name = name;
        record.rect = rect;
        record.tooltip = tooltip;
        erase(id);
        draw(id);
    }
    void removeObject(Id id)
    {
        if (!m_records.contains(id))
            return;
        erase(id);
        m_records.remove(id);
    }
    void removeObjects(const QVector<Id>& ids)
    {
        setPaint(false);
        for (const Id id : ids)
            removeObject(id);
        setPaint(true);
    }
    void deleteLayer(const QString& name)
    {
        const int layer = layerOf(name);
        if (layer == 0)
            return;
        for (const int group : childrenOf(layer))
            removeObject(m_entries.value(group).owner);
        deleteMapViewObj(layer, 171);
        m_entries.remove(layer);
    }

    QVector<Id> m_deleted; // By the user.
    double m_west = 0;     // Of the area that is visible.

protected:
    void on_MST_EVENT_GROUP_DELETE(const MST_EVENT_GROUP_DELETE& event) override { forget(event.id); }
    void on_MST_EVENT_LAYER_DELETE(const MST_EVENT_LAYER_DELETE& event) override { forget(event.id); }
    void on_MST_EVENT_SHAPE_DELETE(const MST_EVENT_SHAPE_DELETE& event) override { forget(event.id); }

    void on_MST_EVENT_VISIBLE_WW(const MST_EVENT_VISIBLE_WW& event) override { m_west = event.first.x; }

private:
    enum Kind { LAYER, GROUP, SHAPE };
    struct Entry
    {
        Kind kind;
        int parent;
        Id owner;
        QString name;
    };
    struct Record
    {
        QString layer;
        QString name;
        QString tooltip;
        QRectF rect;
        int group;
    };

    int layerOf(const QString& name) const
    {
        for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
            if (entry->kind == LAYER && entry->name == name)
                return entry.key();
        }
        return 0;
    }
    QVector<int> childrenOf(int id) const
    {
        QVector<int> children;
        for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
            if (entry->parent == id)
                children.append(entry.key());
        }
        return children;
    }
    void draw(Id id)
    {
        if (!isConnected())
            return;
        Record& record = m_records[id];
        int layer = layerOf(record.layer);
        if (layer == 0) {
            layer = createMapViewLayer(getOverlay(), record.layer.toStdWString());
            setLayerProperties(layer, m_layerProperties.toStdWString());
            m_entries.insert(layer, {LAYER, 0, 0, record.layer});
        }
        record.group = createMapViewGroup(layer, record.name.toStdWString());
        m_entries.insert(record.group, {GROUP, layer, id, QString()});
        const QRectF box = record.rect.normalized();
        const int shape = createMapViewRect(record.group, record.name.toStdWString(), box.left(),
                                            box.bottom(), box.right(), box.top(), 1);
        m_entries.insert(shape, {SHAPE, record.group, id, QString()});
        setToolTip(record.group, !record.tooltip.isEmpty(), record.tooltip.toStdWString());
    }
    void erase(Id id)
    {
        const int group = m_records.value(id).group;
        if (!m_entries.contains(group))
            return;
        deleteMapViewObj(group, 172);
        for (const int shape : childrenOf(group)) {
            deleteMapViewObj(shape, 173);
            m_entries.remove(shape);
        }
        m_entries.remove(group);
    }
    void forget(int mapId)
    {
        const Id owner = m_entries.value(mapId, {LAYER, 0, 0, QString()}).owner;
        if (m_records.remove(owner) > 0)
            m_deleted.append(owner);
        for (const int child : childrenOf(mapId))
            forget(child);
        m_entries.remove(mapId);
    }

    QString m_layerProperties;
    Id m_lastId = 0;
    QHash<Id, Record> m_records;
    QHash<int, Entry> m_entries;
};
