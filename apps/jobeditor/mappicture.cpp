#include "mappicture.h"

#include <mapviewlayermanager.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QPalette>
#include <QProcess>
#include <QTimer>

using JEDVEPLUGIN::MapViewLayerManager;

namespace {
constexpr int MOST_TIME = 30000; // ms
constexpr int POLL_TIME = 10;    // ms

// Runs the event loop until something is so, or the program ends.
template <class Condition>
bool waitFor(const QProcess& process, Condition condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        if (process.state() == QProcess::NotRunning || time.elapsed() > MOST_TIME)
            return false;
        QEventLoop loop;
        QTimer::singleShot(POLL_TIME, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}
} // namespace

bool writeMapPicture(const QString& file, const QString& program)
{
    const auto* const map = MapViewLayerManager::getInstance(QCoreApplication::applicationName());
    QStringList arguments = MapControl::arguments();
    arguments << QStringLiteral("--picture") << QFileInfo(file).absoluteFilePath();
    if (QApplication::palette().color(QPalette::Window).lightness() < 128)
        arguments << QStringLiteral("--dark");
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForStarted(MOST_TIME) || !waitFor(process, [map] { return map->isConnected(); }))
        return false;
    // The picture is taken when a client leaves. What the plug-ins have drawn is on its way before this one comes.
    auto visitor = std::make_unique<MapViewInterface>(QString(), QCoreApplication::applicationName());
    if (!waitFor(process, [&visitor] { return visitor->isConnected(); }))
        return false;
    visitor.reset();
    return process.waitForFinished(MOST_TIME) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}
