#pragma once

#include "mapviewlayermanager.h"

#include <QtCore/QSet>

namespace JEDVEPLUGIN {

/// What is drawn on the map, by the map's own ids: layers, groups in them, shapes in those. Knows the layer of a name
/// and what lies below an object without searching.
class MapObjects
{
public:
    struct Entry
    {
        MapViewLayerManager::enObjType kind = MapViewLayerManager::OBJ_LAYER;
        int parent = 0;
        MapViewLayerManager::tObjectID owner = 0; // 0 for a layer.
        QString name;                             // Of a layer.
    };

    void insert(int id, MapViewLayerManager::enObjType kind, int parent, MapViewLayerManager::tObjectID owner,
                const QString& name = QString());
    /// Forgets one object; what lies below it stays.
    void remove(int id);
    void clear();
    /// Null if there is none.
    const Entry* find(int id) const;
    /// What was put below an object, also when that object itself has gone.
    QSet<int> children(int id) const { return m_children.value(id); }
    /// 0 if no layer of that name is drawn.
    int layer(const QString& name) const { return m_layers.value(name); }

private:
    QHash<int, Entry> m_entries;
    QHash<int, QSet<int>> m_children; // By parent; without those of no parent.
    QHash<QString, int> m_layers;
};

/// The text that the map wants: NAME=VALUE joined by ";".
QString layerPropertyText(const MapViewLayerManager::MapViewProperties& properties);
MapViewLayerManager::MapViewProperties defaultLayerProperties();

/// Counts the processes that use a name, in shared memory. A process that was killed is counted until the last of
/// the others ends.
class InstanceCounter
{
public:
    /// \param memory  must outlive the counter
    explicit InstanceCounter(QSharedMemory& memory)
        : m_memory(memory)
    {
    }
    /// \return how many processes use the name now, this one among them; 0 if that cannot be found out
    int enter(const QString& name);
    void leave();

private:
    int change(int difference);

    QSharedMemory& m_memory;
};

} // namespace JEDVEPLUGIN
