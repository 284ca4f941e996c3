#include "mapwindow.h"

#include "mapcanvas.h"
#include "mappainter.h"
#include "mappanes.h"
#include "mapserver.h"

#include <QApplication>
#include <QDockWidget>
#include <QEventLoop>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTimer>
#include <QWhatsThis>

namespace {
constexpr int PICTURE_TIME = 300; // ms
} // namespace

MapWindow::MapWindow()
    : m_canvas(new MapCanvas(&m_scene, this))
    , m_server(new MapServer(&m_scene, this))
    , m_place(new QLabel(this))
    , m_clients(new QLabel(this))
{
    setWindowTitle(tr("Map"));
    setCentralWidget(m_canvas);
    addPane(new LayersPane(&m_scene, this), tr("Layers"));
    addPane(new ObjectsPane(&m_scene, this), tr("Objects"));
    buildMenus();
    buildStatusBar();
    connect(m_canvas, &MapCanvas::viewChanged, m_server, &MapServer::setVisibleArea);
    m_canvas->setFocus();
    resize(1100, 700);
}

// All that looks at the scene goes before it.
MapWindow::~MapWindow()
{
    delete m_server;
    delete m_canvas;
    qDeleteAll(findChildren<QDockWidget*>());
}

bool MapWindow::listen(const QString& name, QString* error)
{
    m_server->setVisibleArea(m_canvas->viewport().area());
    return m_server->listen(name, error);
}

void MapWindow::drawPicture(const QString& file)
{
    connect(m_server, &MapServer::clientLeaves, this, [this, file] { leaveWithPicture(file); });
}

void MapWindow::useDarkWindows()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
}

void MapWindow::buildMenus()
{
    QMenu* const map = menuBar()->addMenu(tr("&Map"));
    map->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);

    QMenu* const edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(tr("Select &all"), m_canvas, &MapCanvas::selectAll, QKeySequence::SelectAll);
    edit->addAction(tr("Select &next"), m_canvas, [this] { m_canvas->selectNext(true); });
    edit->addAction(tr("Select &previous"), m_canvas, [this] { m_canvas->selectNext(false); });
    QAction* const erase =
        edit->addAction(tr("&Delete"), m_canvas, &MapCanvas::eraseSelection, QKeySequence::Delete);
    // In the list of layers the key means a layer.
    erase->setShortcutContext(Qt::WidgetShortcut);
    m_canvas->addAction(erase);

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    view->addAction(
        tr("Zoom &in"), m_canvas, [this] { m_canvas->zoom(MapCanvas::ZOOM_STEP); }, QKeySequence::ZoomIn);
    view->addAction(
        tr("Zoom &out"), m_canvas, [this] { m_canvas->zoom(1 / MapCanvas::ZOOM_STEP); },
        QKeySequence::ZoomOut);
    view->addAction(tr("Whole &world"), m_canvas, &MapCanvas::showWorld, QKeySequence(Qt::CTRL + Qt::Key_0));
    view->addAction(tr("All &objects"), m_canvas, &MapCanvas::showObjects,
                    QKeySequence(Qt::CTRL + Qt::Key_1));
    view->addAction(tr("&Selected objects"), m_canvas, &MapCanvas::showSelection,
                    QKeySequence(Qt::CTRL + Qt::Key_2));
    view->addSeparator();
    for (QDockWidget* pane : findChildren<QDockWidget*>())
        view->addAction(pane->toggleViewAction());
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&Mouse and keys"), this, [this] {
        QWhatsThis::showText(m_canvas->mapToGlobal(m_canvas->rect().center()), m_canvas->whatsThis(),
                             m_canvas);
    });
}

void MapWindow::buildStatusBar()
{
    m_place->setObjectName(QStringLiteral("Place"));
    statusBar()->addPermanentWidget(m_place);
    statusBar()->addPermanentWidget(m_clients);
    const auto showMessage = [this](const QString& text) { statusBar()->showMessage(text); };
    connect(m_server, &MapServer::message, this, showMessage);
    connect(m_canvas, &MapCanvas::hint, this, showMessage);
    connect(m_canvas, &MapCanvas::pointed, this, [this](const QPointF& place) {
        m_place->setText(MapPainter::placeText(place, m_canvas->viewport().scale()));
    });
    const auto countClients = [this] { m_clients->setText(tr("Clients: %1").arg(m_scene.clientCount())); };
    connect(&m_scene, &MapScene::layersChanged, this, countClients);
    countClients();
}

void MapWindow::addPane(QWidget* pane, const QString& title)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(pane->objectName() + QStringLiteral("Dock"));
    dock->setWidget(pane);
    addDockWidget(Qt::RightDockWidgetArea, dock);
}

void MapWindow::leaveWithPicture(const QString& file)
{
    m_canvas->showObjects();
    // The list of objects is filled with a delay.
    QEventLoop loop;
    QTimer::singleShot(PICTURE_TIME, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeSocketNotifiers);
    QApplication::exit(grab().save(file, "PNG") ? 0 : 1);
}
