#include "regionbar.h"

#include <kit/mapregions.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace PluginKit {

RegionBar::RegionBar(MapRegions& regions, SettingNode& node, const RegionFields& fields, QWidget* parent)
    : QWidget(parent)
    , m_regions(regions)
    , m_node(node)
    , m_fields(fields)
    , m_show(new QPushButton(tr("Show region on the map"), this))
    , m_draw(new QPushButton(tr("Draw region on the map"), this))
    , m_state(new QLabel(this))
{
    m_show->setObjectName(QStringLiteral("showRegion"));
    m_draw->setObjectName(QStringLiteral("drawRegion"));
    m_state->setWordWrap(true);
    m_state->setBuddy(m_draw);
    auto* const row = new QHBoxLayout(this);
    row->addWidget(m_show);
    row->addWidget(m_draw);
    row->addWidget(m_state, 1);
    connect(m_show, &QPushButton::clicked, this, [this] { m_regions.select(&m_node, m_fields); });
    connect(m_draw, &QPushButton::clicked, this, &RegionBar::drawPolygon);
    connect(&regions, &MapRegions::stateChanged, this, &RegionBar::follow);
}

void RegionBar::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    follow();
}

void RegionBar::follow()
{
    if (!isVisible())
        return;
    showState();
    if (m_regions.isLinked())
        m_regions.select(&m_node, m_fields);
}

void RegionBar::showState()
{
    const bool isLinked = m_regions.isLinked();
    const QString reason = isLinked ? QString() : tr("No map is open.");
    m_show->setEnabled(isLinked);
    m_draw->setEnabled(isLinked && canBePolygon(m_node, m_fields));
    m_show->setToolTip(isLinked ? tr("Selects the region on the map. Only active regions are there.")
                                : reason);
    m_draw->setToolTip(isLinked ? tr("Set the corners on the map; the region becomes this polygon.")
                                : reason);
    m_state->setText(reason);
}

void RegionBar::drawPolygon()
{
    m_state->setText(m_regions.drawPolygon(&m_node, m_fields)
                         ? tr("Set the corners of the region on the map.")
                         : tr("Finish the polygon that is being drawn on the map first."));
}

} // namespace PluginKit
