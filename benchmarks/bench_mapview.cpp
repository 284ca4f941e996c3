#include "mapviewlayermanager.h"
#include "naivemaplayers.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <support/recordingmap.h>

#include <benchmark/benchmark.h>

// Drawing and removing shapes, with a map that is linked but does not read meanwhile. Measured by a manager that
// searches every time, by the client's calls alone, and by the same work on fewer shapes.

namespace {
using JEDVEPLUGIN::MapViewLayerManager;

constexpr int LAYERS = 10;

QString serverName(const char* client)
{
    return QString("jed-bench-map-%1-%2").arg(client).arg(QCoreApplication::applicationPid());
}

void waitFor(const MapViewInterface& client)
{
    QElapsedTimer timer;
    for (timer.start(); !client.isConnected() && timer.elapsed() < 10000;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    if (!client.isConnected())
        qFatal("there is no link to the map");
}

/// Linked to a map in this process, which reads when events are processed.
MapViewLayerManager& manager()
{
    static JedTest::RecordingMap map(serverName("manager"));
    static MapViewLayerManager* const linked = [] {
        qputenv("JED_MAPVIEW", serverName("manager").toUtf8());
        map.start();
        MapViewLayerManager* const made = MapViewLayerManager::getInstance(serverName("bench"));
        waitFor(*made);
        return made;
    }();
    QCoreApplication::processEvents();
    map.take();
    return *linked;
}

class Client : public MapViewInterface
{
public:
    Client()
        : MapViewInterface(serverName("client"), "client")
    {
    }
};

/// The same, with a map of its own.
NaiveMapLayers& naiveManager()
{
    static JedTest::RecordingMap map(serverName("naive"));
    static NaiveMapLayers* const linked = [] {
        map.start();
        auto* const made = new NaiveMapLayers(serverName("naive"), "bench", "EDIT=TRUE");
        waitFor(*made);
        return made;
    }();
    QCoreApplication::processEvents();
    map.take();
    return *linked;
}

template <typename Target>
QVector<quint64> draw(Target& target, int count)
{
    QVector<quint64> ids;
    ids.reserve(count);
    for (int i = 0; i < count; ++i)
        ids.append(target.addRect(QString("Layer %1").arg(i % LAYERS), "Region", QRectF(i % 90, i % 45, 1, 1),
                                  "tip"));
    return ids;
}

template <typename Target>
void drawShapesBy(benchmark::State& state, Target& target)
{
    for (auto _ : state) {
        const auto ids = draw(target, int(state.range(0)));
        state.PauseTiming();
        target.removeObjects(ids);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void drawShapes(benchmark::State& state)
{
    drawShapesBy(state, manager());
}

void drawShapesNaive(benchmark::State& state)
{
    drawShapesBy(state, naiveManager());
}

void drawShapesByTheClient(benchmark::State& state)
{
    JedTest::RecordingMap map(serverName("client"));
    map.start();
    Client client;
    waitFor(client);
    for (auto _ : state) {
        QVector<int> groups;
        const int layer = client.createMapViewLayer(client.getOverlay(), L"Layer");
        for (int i = 0; i < state.range(0); ++i) {
            const int group = client.createMapViewGroup(layer, QString("Region").toStdWString());
            client.createMapViewRect(group, QString("Region").toStdWString(), i % 90, i % 45 + 1, i % 90 + 1,
                                     i % 45, 1);
            client.setToolTip(group, true, QString("tip").toStdWString());
            groups.append(group);
        }
        state.PauseTiming();
        for (const int group : groups) {
            client.deleteMapViewObj(group, 172);
            client.deleteMapViewObj(group + 1, 173);
        }
        QCoreApplication::processEvents();
        map.take();
        state.ResumeTiming();
    }
}

void removeShapes(benchmark::State& state)
{
    constexpr int REMOVED = 1000;
    MapViewLayerManager& target = manager();
    for (auto _ : state) {
        state.PauseTiming();
        const auto ids = draw(target, int(state.range(0)));
        state.ResumeTiming();
        target.removeObjects(ids.mid(0, REMOVED));
        state.PauseTiming();
        target.removeObjects(ids.mid(REMOVED));
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(drawShapes)->Arg(10000);
BENCHMARK(drawShapesNaive)->Arg(10000)->Iterations(1);
BENCHMARK(drawShapesByTheClient)->Arg(10000);
BENCHMARK(removeShapes)->Arg(1000)->Arg(10000);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
