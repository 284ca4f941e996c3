#pragma once

#include "mapscene.h"

#include <QMainWindow>

class MapCanvas;
class MapServer;

/// The window of the map program, with all that belongs to it.
class MapWindow : public QMainWindow
{
    Q_OBJECT
public:
    MapWindow();
    ~MapWindow() override;

    /// \param name  see MapMessage::serverName()
    /// \return false if there is another map program; \p error tells
    bool listen(const QString& name, QString* error);
    /// Writes a picture of what the first client has drawn into a file when that client leaves, and ends the program:
    /// with 0 if it could be written.
    void drawPicture(const QString& file);

    MapScene* scene() { return &m_scene; }
    MapCanvas* canvas() { return m_canvas; }

private:
    void buildMenus();
    void fillLayers();

    MapScene m_scene;
    MapCanvas* m_canvas;
    MapServer* m_server;
    QMenu* m_layers = nullptr;
};
