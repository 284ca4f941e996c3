#include "mapwindow.h"

#include "mapcanvas.h"
#include "mapserver.h"

#include <QApplication>
#include <QMenuBar>
#include <QStatusBar>

MapWindow::MapWindow()
    : m_canvas(new MapCanvas(&m_scene, this))
    , m_server(new MapServer(&m_scene, this))
{
    setWindowTitle(tr("Map"));
    setCentralWidget(m_canvas);
    buildMenus();
    connect(m_canvas, &MapCanvas::viewChanged, m_server, &MapServer::setVisibleArea);
    const auto showMessage = [this](const QString& text) { statusBar()->showMessage(text); };
    connect(m_server, &MapServer::message, this, showMessage);
    connect(m_canvas, &MapCanvas::hint, this, showMessage);
    m_canvas->setFocus();
    resize(1100, 700);
}

// All that looks at the scene goes before it.
MapWindow::~MapWindow()
{
    delete m_server;
    delete m_canvas;
}

bool MapWindow::listen(const QString& name, QString* error)
{
    m_server->setVisibleArea(m_canvas->viewport().area());
    return m_server->listen(name, error);
}

void MapWindow::drawPicture(const QString& file)
{
    connect(m_server, &MapServer::clientLeaves, this, [this, file] {
        m_canvas->showObjects();
        QApplication::exit(grab().save(file, "PNG") ? 0 : 1);
    });
}

void MapWindow::buildMenus()
{
    menuBar()->addMenu(tr("&Map"))->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);

    QMenu* const edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(tr("Select &all"), m_canvas, &MapCanvas::selectAll, QKeySequence::SelectAll);
    edit->addAction(tr("&Delete"), m_canvas, &MapCanvas::eraseSelection, QKeySequence::Delete);

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("Whole &world"), m_canvas, &MapCanvas::showWorld, Qt::CTRL + Qt::Key_0);
    view->addAction(tr("All &objects"), m_canvas, &MapCanvas::showObjects, Qt::CTRL + Qt::Key_1);

    m_layers = menuBar()->addMenu(tr("&Layers"));
    m_layers->setObjectName(QStringLiteral("Layers"));
    connect(m_layers, &QMenu::aboutToShow, this, &MapWindow::fillLayers);
}

// A menu for each layer, in which the user hides or deletes it.
void MapWindow::fillLayers()
{
    m_layers->clear();
    for (const auto& layer : m_scene.layers()) {
        const int client = layer->client;
        const qint32 id = layer->id;
        QMenu* const menu = m_layers->addMenu(QStringLiteral("%1: %2").arg(
            m_scene.clientName(client), layer->name.isEmpty() ? tr("Layer without a name") : layer->name));
        QAction* const shown = menu->addAction(tr("&Shown"));
        shown->setCheckable(true);
        shown->setChecked(layer->isVisible);
        connect(shown, &QAction::toggled, this,
                [=](bool isOn) { m_scene.setLayerVisible(client, id, isOn); });
        menu->addAction(tr("&Delete"), this, [=] { m_scene.eraseLayer(client, id); })
            ->setEnabled(layer->canBeDeleted);
    }
}
