#pragma once

#include <tabwidgetex.h>

namespace PluginKit {

class SettingNode;

/// The editors of a setting that can carry several parameter sets, a page for each. The button in the corner offers
/// those that the setting could carry besides; pages that it can do without can be closed, by Control+W too. GUI
/// thread only.
class SettingPages : public VelmoGui::TabWidgetEx
{
    Q_OBJECT
public:
    /// \param node    has to outlive the pages
    /// \param parent  owner, may be null
    SettingPages(SettingNode& node, QWidget* parent);

    /// Brings the pages in line with the sets that the setting carries now.
    void refresh();

private:
    void add(const QString& label);
    void close(int index);
    void removeForeignPages();
    void insertMissingPages();

    SettingNode& m_node;
};

} // namespace PluginKit
