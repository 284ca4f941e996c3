#pragma once

#include <kit/plugindeclaration.h>

#include <QWidget>

class QLabel;
class QPushButton;

namespace PluginKit {

class MapRegions;
class SettingNode;

/// Above the editor of a parameter set with a region: shows the region on the map, lets the user draw a polygon for it.
/// The region is selected on the map when the bar or the map comes into view.
class RegionBar : public QWidget
{
    Q_OBJECT
public:
    /// \param regions  must outlive the bar, and \p node too
    RegionBar(MapRegions& regions, SettingNode& node, const RegionFields& fields, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void follow();
    void showState();
    void drawPolygon();

    MapRegions& m_regions;
    SettingNode& m_node;
    const RegionFields m_fields;
    QPushButton* m_show;
    QPushButton* m_draw;
    QLabel* m_state;
};

} // namespace PluginKit
