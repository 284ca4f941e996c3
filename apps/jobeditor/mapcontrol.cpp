#include "mapcontrol.h"

#include <mapviewlayermanager.h>
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>
#include <session/installation.h>
#include <session/jobsession.h>

using JEDVEPLUGIN::MapViewLayerManager;
using Session::JobSession;

namespace {
constexpr int END_TIME = 2000; // ms
constexpr const char* SERVER_VARIABLE = "JED_MAPVIEW";
} // namespace

MapControl::MapControl(QMainWindow* window, JobSession* session, const QString& program)
    : QObject(window)
    , m_window(window)
    , m_program(program)
    , m_map(MapViewLayerManager::getInstance(QCoreApplication::applicationName()))
    , m_action(new QAction(tr("&Map"), this))
    , m_state(new QLabel(window))
{
    m_action->setObjectName(QStringLiteral("openMap"));
    m_action->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_M));
    m_action->setToolTip(tr("Opens the map with the regions of the settings."));
    m_state->setObjectName(QStringLiteral("mapState"));
    window->statusBar()->addPermanentWidget(m_state);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    connect(m_action, &QAction::triggered, this, &MapControl::open);
    connect(m_map, &MapViewLayerManager::linkStateChanged, this, &MapControl::showLink);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            tellFailure();
    });
    // The next change of the same setting is another step of undo.
    const auto beginStep = [session] {
        session->flushEdits();
        session->endEditStep();
    };
    connect(m_map, &MapViewLayerManager::rectMoved, session, beginStep);
    connect(m_map, &MapViewLayerManager::polygonMoved, session, beginStep);
    connect(m_map, &MapViewLayerManager::polygonCreated, session, beginStep);
    connect(m_map, &MapViewLayerManager::objectDeleted, session, beginStep);
    showLink(m_map->isConnected());
}

MapControl::~MapControl()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    m_process.waitForFinished(END_TIME);
}

QString MapControl::defaultProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("mapview"));
}

QStringList MapControl::arguments()
{
    return {QStringLiteral("--installation"), Session::installationFolder()};
}

void MapControl::useMapOfItsOwn()
{
    if (!qEnvironmentVariableIsSet(SERVER_VARIABLE))
        qputenv(SERVER_VARIABLE,
                QStringLiteral("jobeditorve-%1").arg(QCoreApplication::applicationPid()).toUtf8());
}

void MapControl::open()
{
    if (m_map && m_map->isConnected()) {
        m_window->statusBar()->showMessage(tr("The map is open in a window of its own."), 5000);
        return;
    }
    if (m_process.state() == QProcess::NotRunning)
        m_process.start(m_program, arguments());
    m_window->statusBar()->showMessage(tr("The map is being opened."), 5000);
}

void MapControl::showLink(bool isLinked)
{
    m_state->setText(isLinked ? tr("Map: linked") : tr("Map: none"));
    m_state->setToolTip(isLinked ? tr("Regions of settings are shown on the map.")
                                 : tr("There is no map. View > Map opens one."));
}

void MapControl::tellFailure()
{
    QMessageBox box(QMessageBox::Warning, tr("Job editor"), tr("The map program could not be started."),
                    QMessageBox::Ok, m_window);
    box.setInformativeText(tr("It is expected as %1. Install it there, or start a map program by hand: the "
                              "editor finds it by itself.")
                               .arg(QDir::toNativeSeparators(m_program)));
    box.exec();
}
