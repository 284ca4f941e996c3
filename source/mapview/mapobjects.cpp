#include "mapobjects_p.h"

#include <QtCore/QStringList>
#include <QtGui/QColor>

namespace JEDVEPLUGIN {

namespace {
QString valueText(const QVariant& value)
{
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    if (value.userType() == QMetaType::QColor) {
        const QColor color = value.value<QColor>();
        return QString::number(color.blue() * 65536 + color.green() * 256 + color.red());
    }
    return value.toString();
}
} // namespace

void MapObjects::insert(int id, MapViewLayerManager::enObjType kind, int parent,
                        MapViewLayerManager::tObjectID owner, const QString& name)
{
    m_entries.insert(id, {kind, parent, owner, name});
    if (parent != 0)
        m_children[parent].insert(id);
    if (kind == MapViewLayerManager::OBJ_LAYER)
        m_layers.insert(name, id);
}

void MapObjects::remove(int id)
{
    const auto entry = m_entries.constFind(id);
    if (entry == m_entries.cend())
        return;
    if (entry->kind == MapViewLayerManager::OBJ_LAYER && m_layers.value(entry->name) == id)
        m_layers.remove(entry->name);
    const auto siblings = m_children.find(entry->parent);
    if (siblings != m_children.end()) {
        siblings->remove(id);
        if (siblings->isEmpty())
            m_children.erase(siblings);
    }
    m_entries.remove(id);
}

void MapObjects::clear()
{
    m_entries.clear();
    m_children.clear();
    m_layers.clear();
}

const MapObjects::Entry* MapObjects::find(int id) const
{
    const auto entry = m_entries.constFind(id);
    return entry == m_entries.cend() ? nullptr : &*entry;
}

QString layerPropertyText(const MapViewLayerManager::MapViewProperties& properties)
{
    QStringList names = properties.keys();
    // The map takes a transparency only for a colour that it knows already.
    const int color = names.indexOf(QStringLiteral("FILL_COLOR"));
    const int transparency = names.indexOf(QStringLiteral("TRANS"));
    if (transparency >= 0 && transparency < color)
        names.swapItemsAt(transparency, color);
    QString text;
    for (const QString& name : qAsConst(names))
        text += QStringLiteral("%1=%2;").arg(name, valueText(properties.value(name)));
    text.chop(1);
    return text;
}

MapViewLayerManager::MapViewProperties defaultLayerProperties()
{
    MapViewLayerManager::MapViewProperties properties;
    properties.insert(QStringLiteral("EDIT"), true);
    properties.insert(QStringLiteral("DELETE"), false);
    properties.insert(QStringLiteral("O_DELETE"), true);
    properties.insert(QStringLiteral("O_MOVE"), true);
    properties.insert(QStringLiteral("IGNORE_CACHE"), true);
    properties.insert(QStringLiteral("FLAG"), 2);
    // Written a second time, as the map's own tools do; it changes nothing.
    properties.insert(QStringLiteral("EDIT"), true);
    return properties;
}

} // namespace JEDVEPLUGIN
