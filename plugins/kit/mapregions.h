#pragma once

#include <kit/region.h>

#include <mapviewlayermanager.h>
#include <QObject>
#include <QPointer>
#include <QSet>

namespace PluginKit {

class KitFactory;

/// The regions of a plug-in's settings on the map, both ways. The map is painted from the event loop, so that a program
/// without one has nothing to do with the map, and many changes are one; nobody looks for a map before there is a
/// region to be shown or somebody asks. GUI thread only.
///
/// - A region is drawn while it is active, in the layer of the plug-in and the type of the setting, under the name of
///   the sub-job.
/// - What the user moves there changes the numbers of the setting, as an editor would; a shape that is deleted there
///   makes the region inactive. In a setting that is read-only the shape goes back to its place.
class MapRegions : public QObject
{
    Q_OBJECT
public:
    /// \param factory  must outlive this object
    explicit MapRegions(const KitFactory& factory);
    ~MapRegions() override;

    /// Name, values or existence of a setting changed, or of one below it.
    void noteChange(SettingNode* node);
    /// A setting is about to go.
    void forget(SettingNode* node);

    /// Whether there is a map. Looks for one from now on.
    bool isLinked();
    /// Selects the region of a setting on the map and brings it into view; does nothing if it is not shown.
    void select(SettingNode* node, const RegionFields& fields);
    /// Lets the user draw a polygon that becomes the region of the setting.
    /// \return false without a map, and while another one is being drawn
    bool drawPolygon(SettingNode* node, const RegionFields& fields);

signals:
    /// A map came or went, or a polygon was drawn.
    void stateChanged();

private:
    using Id = JEDVEPLUGIN::MapViewLayerManager::tObjectID;
    struct Shape
    {
        SettingNode* node = nullptr;
        RegionFields fields;
        Region region; // As the map shows it.
        QString name;
        QString tooltip;
    };

    JEDVEPLUGIN::MapViewLayerManager* map();
    Id shapeOf(const SettingNode* node, const RegionFields& fields) const;
    QString layerOf(const SettingNode& node) const;
    void schedule();
    void paint();
    void paintBelow(SettingNode* node);
    void paintRegion(SettingNode* node, const RegionFields& fields);
    void take(Id id, const Region& region);
    void moved(Id id, const Region& place);
    void deleted(Id id);
    void drawn(Id id, const QPolygonF& polygon);

    const KitFactory& m_factory;
    QPointer<JEDVEPLUGIN::MapViewLayerManager> m_map; // The application's; null before it is needed.
    QHash<Id, Shape> m_shapes;
    QMultiHash<const SettingNode*, Id> m_ids;
    QSet<SettingNode*> m_changed;
    QVector<Id> m_leaving; // Shapes of settings that have gone.
    Shape m_drawing;       // What the polygon that the user draws is for; no node: none is being drawn.
    Id m_drawingId = 0;
    bool m_isScheduled = false;
};

} // namespace PluginKit
