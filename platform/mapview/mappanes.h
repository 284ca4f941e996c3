#pragma once

#include "mapscene.h"

#include <QListWidget>
#include <QTimer>
#include <QTreeWidget>

/// Clients and their layers; a layer with its mark taken away is not shown. Delete deletes a layer, if its client allows
/// that.
class LayersPane : public QTreeWidget
{
    Q_OBJECT
public:
    /// \param scene  must outlive the pane
    LayersPane(MapScene* scene, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void applyMark(const QTreeWidgetItem* item);

    MapScene* m_scene; // Not owned.
};

/// The visible objects by name, in the order of painting; what is selected there is selected on the map. Brought up to
/// date a moment after changes.
class ObjectsPane : public QListWidget
{
    Q_OBJECT
public:
    /// \param scene  must outlive the pane
    ObjectsPane(MapScene* scene, QWidget* parent);

private:
    void fill();
    void leadMap();
    void followMap();

    MapScene* m_scene; // Not owned.
    QTimer m_wait;
};
