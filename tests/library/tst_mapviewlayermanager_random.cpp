#include "mapviewlayermanager.h"
#include "naivemaplayers.h"

#include <support/recordingmap.h>

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>

using JedTest::RecordingMap;
using JEDVEPLUGIN::MapViewLayerManager;

namespace {
QString serverName(const char* user)
{
    return QString("jed-random-map-%1-%2").arg(user).arg(QCoreApplication::applicationPid());
}

// The properties of a layer are in no order that the manager promises.
QStringList texts(RecordingMap* map)
{
    QStringList lines;
    for (const MapMessage& message : map->take()) {
        QStringList properties = message.text.split(';');
        properties.sort();
        QString line = QString("%1 %2 %3 %4 %5")
                           .arg(message.kind)
                           .arg(message.id)
                           .arg(message.parent)
                           .arg(message.code)
                           .arg(properties.join(';'));
        for (const QPointF& point : message.points)
            line += QString(" %1,%2").arg(point.x()).arg(point.y());
        lines << line;
    }
    return lines;
}

// Nor is what is deleted at once.
void sortDeletions(QStringList* lines)
{
    const QString deletion = QString("%1 ").arg(MAP_DELETE);
    for (auto from = lines->begin(); from != lines->end(); ++from) {
        const auto to = std::find_if_not(from, lines->end(),
                                         [&](const QString& line) { return line.startsWith(deletion); });
        std::sort(from, to);
        from = to == lines->end() ? to - 1 : to;
    }
}
} // namespace

// The manager with its tables says the same to the map as one that searches everything each time.
class TstMapViewLayerManagerRandom : public QObject
{
    Q_OBJECT
private slots:
    void saysWhatTheNaiveOneSays();
};

void TstMapViewLayerManagerRandom::saysWhatTheNaiveOneSays()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const auto text = [&](const char* what) {
        return qPrintable(QString("seed %1: %2").arg(seed).arg(what));
    };
    RecordingMap map(serverName("ours"));
    RecordingMap naiveMap(serverName("naive"));
    QVERIFY(map.start() && naiveMap.start());
    qputenv("JED_MAPVIEW", serverName("ours").toUtf8());
    MapViewLayerManager& manager = *MapViewLayerManager::getInstance(serverName("user"));
    NaiveMapLayers naive(serverName("naive"), "naive",
                         "EDIT=TRUE;DELETE=FALSE;O_DELETE=TRUE;O_MOVE=TRUE;IGNORE_CACHE=TRUE;FLAG=2");
    QTRY_VERIFY(manager.isConnected() && naive.isConnected());
    QTest::qWait(50);
    texts(&map);
    texts(&naiveMap);
    QVector<quint64> deleted;
    connect(&manager, &MapViewLayerManager::objectDeleted, this, [&](quint64 id) { deleted.append(id); });

    quint64 lastId = 0;
    for (int step = 0; step < 3000; ++step) {
        const quint64 id = random.bounded(int(lastId) + 1);
        const QString layer = QString("Layer %1").arg(random.bounded(4));
        const QString name = QString("Name %1").arg(step);
        const QRectF rect(random.bounded(90), random.bounded(45), random.bounded(1, 5), random.bounded(1, 5));
        const int what = random.bounded(100);
        if (what < 50) {
            lastId = manager.addRect(layer, name, rect, "tip");
            QCOMPARE(naive.addRect(layer, name, rect, "tip"), lastId);
        } else if (what < 70 && id != 0) {
            // An update of an object that is gone makes it anew, in a layer without a name.
            manager.updateRect(id, name, rect, "");
            naive.updateRect(id, name, rect, "");
        } else if (what < 85) {
            manager.removeObject(id);
            naive.removeObject(id);
        } else if (what < 90) {
            const QVector<quint64> ids{id, quint64(random.bounded(int(lastId) + 1))};
            manager.removeObjects(ids);
            naive.removeObjects(ids);
        } else if (what < 92) {
            manager.deleteLayer(layer);
            naive.deleteLayer(layer);
        } else if (what < 98) {
            // The user deletes something, of whatever kind.
            const int mapId = random.bounded(1, 3 * int(lastId) + 10);
            const MapMessageKind kinds[] = {MAP_GROUP_DELETED, MAP_LAYER_DELETED, MAP_SHAPE_DELETED};
            const MapMessageKind kind = kinds[random.bounded(3)];
            map.send(kind, mapId);
            naiveMap.send(kind, mapId);
        }
        if (what < 92 && step % 10 != 0)
            continue;
        // Both have read what was sent before when they know the new area.
        for (RecordingMap* each : {&map, &naiveMap})
            each->send(MAP_VISIBLE_AREA, 0, {QPointF(-1 - step, 0), QPointF(0, 0)});
        QPointF first;
        QPointF second;
        QTRY_VERIFY2(manager.visibleWW(first, second) && first.x() == -1 - step && naive.m_west == -1 - step,
                     text("no answer"));
    }
    QStringList ours;
    QStringList theirs;
    manager.addRect("End", "End", QRectF(0, 0, 1, 1), "end");
    naive.addRect("End", "End", QRectF(0, 0, 1, 1), "end");
    const auto isComplete = [](QStringList* lines, RecordingMap* from) {
        *lines += texts(from);
        return !lines->isEmpty() && lines->last().endsWith(" end");
    };
    QTRY_VERIFY2(isComplete(&ours, &map) && isComplete(&theirs, &naiveMap), text("no end"));
    sortDeletions(&ours);
    sortDeletions(&theirs);
    QVERIFY2(ours == theirs, text("something else is said"));
    std::sort(deleted.begin(), deleted.end());
    std::sort(naive.m_deleted.begin(), naive.m_deleted.end());
    QVERIFY2(deleted == naive.m_deleted, text("others were deleted"));
}

QTEST_GUILESS_MAIN(TstMapViewLayerManagerRandom)
#include "tst_mapviewlayermanager_random.moc"
