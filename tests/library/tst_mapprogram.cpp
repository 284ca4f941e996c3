#include <ctime>
#include <mapviewlayermanager.h>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLocalSocket>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>
#include <support/drivenmap.h>
#include <support/testmain.h>
#include <sys/resource.h>

using JedTest::DrivenMap;
using JEDVEPLUGIN::MapViewLayerManager;
using Id = MapViewLayerManager::tObjectID;

namespace {
const QString SERVER = QString("jed-test-program-%1").arg(QCoreApplication::applicationPid());

// The sanitizer keeps for a while what was freed.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool CAN_MEASURE_MEMORY = false;
#else
constexpr bool CAN_MEASURE_MEMORY = true;
#endif

bool isSlow()
{
    return qEnvironmentVariableIsSet("JED_SLOW_TESTS");
}

QString rectText(const QString& name, const QRectF& rect)
{
    return QString("%1 %2,%3 %4,%5")
        .arg(name)
        .arg(rect.left())
        .arg(rect.bottom())
        .arg(rect.right())
        .arg(rect.top());
}

struct Moment
{
    qint64 time; // ns
    qint64 work; // ns of this thread
    long waits;  // How often the thread has waited for something.
};

Moment now()
{
    const auto nanoseconds = [](clockid_t clock) {
        timespec time{};
        clock_gettime(clock, &time);
        return time.tv_sec * 1000000000LL + time.tv_nsec;
    };
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return {nanoseconds(CLOCK_MONOTONIC), nanoseconds(CLOCK_THREAD_CPUTIME_ID), usage.ru_nvcsw};
}

/// Kilobytes that a process holds in memory.
qint64 memoryOf(qint64 processId)
{
    QFile file(QString("/proc/%1/status").arg(processId));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').first().toLongLong();
    }
    return 0;
}
} // namespace

// The layer manager and the map program, each in a process of its own.
class TstMapProgram : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void shapesAreDrawnUpdatedAndRemoved();
    void layerIsHiddenAndDeleted();
    void objectIsShown();
    void userMovesShapes();
    void userDeletesAShape();
    void userDrawsAPolygon();
    void userGivesADrawingUp();
    void visibleAreaFollows();

    void stoppedMapHoldsNobodyUp();
    void shapesAreBackAfterEachKill();
    void movesBeforeAKillAreKept();
    void floodDoesNotFillTheMemory();
    void programWritesAPicture();

private:
    MapViewLayerManager& manager() { return *MapViewLayerManager::getInstance("editor"); }
    bool link();
    /// Waits until the map shows it; what it shows instead.
    QString shown(const QString& expected);

    std::unique_ptr<DrivenMap> m_map;
};

void TstMapProgram::initTestCase()
{
    qputenv("JED_MAPVIEW", SERVER.toUtf8());
}

void TstMapProgram::init()
{
    m_map = std::make_unique<DrivenMap>(SERVER);
    QVERIFY(m_map->start());
    QVERIFY(link());
}

void TstMapProgram::cleanup()
{
    delete &manager();
    m_map.reset();
}

bool TstMapProgram::link()
{
    return QTest::qWaitFor([this] { return manager().isConnected(); }, 20000);
}

QString TstMapProgram::shown(const QString& expected)
{
    QString text;
    QElapsedTimer timer;
    for (timer.start(); text != expected && timer.elapsed() < 20000;) {
        QTest::qWait(5);
        text = m_map->ask("show");
    }
    return text;
}

void TstMapProgram::shapesAreDrawnUpdatedAndRemoved()
{
    const Id box = manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "tip");
    const Id polygon =
        manager().addPolygon("Areas", "South", QPolygonF({QPointF(0, 0), QPointF(5, 0), QPointF(0, 5)}), "");
    QString text = "Regions: | North 1,6 4,2 || Areas: | South 0,0 5,0 0,5";
    QCOMPARE(shown(text), text);
    manager().updateRect(box, "Moved", QRectF(10, 20, 1, 1), "");
    text = "Regions: | Moved 10,21 11,20 || Areas: | South 0,0 5,0 0,5";
    QCOMPARE(shown(text), text);
    manager().updateRect(polygon, "Now a box", QRectF(7, 7, 1, 1), "");
    manager().removeObject(box);
    text = "Regions: || Areas: | Now a box 7,8 8,7";
    QCOMPARE(shown(text), text);
    manager().removeObjects({polygon});
    text = "Regions: || Areas:";
    QCOMPARE(shown(text), text);
}

void TstMapProgram::layerIsHiddenAndDeleted()
{
    manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "");
    QString text = "Regions: | North 1,6 4,2";
    QCOMPARE(shown(text), text);
    m_map->ask("layer Regions off");
    manager().addRect("Regions", "New", QRectF(1, 2, 3, 4), "");
    text = "Regions (hidden): | North 1,6 4,2 | New 1,6 4,2";
    QCOMPARE(shown(text), text);
    m_map->ask("layer Regions on");
    manager().deleteLayer("Regions");
    QCOMPARE(shown(""), QString());
}

void TstMapProgram::objectIsShown()
{
    manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "");
    const Id south = manager().addRect("Regions", "South", QRectF(100, -42, 2, 2), "");
    m_map->ask("zoom 20");
    manager().showInMapView(south);
    const QString text = "Regions: | North 1,6 4,2 | South 100,-40 102,-42*";
    QCOMPARE(shown(text), text);
    const auto isCentred = [this] {
        QPointF first;
        QPointF second;
        return manager().visibleWW(first, second) &&
               ((first + second) / 2 - QPointF(101, -41)).manhattanLength() < 0.1;
    };
    QTRY_VERIFY(isCentred());
}

void TstMapProgram::userMovesShapes()
{
    const Id box = manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "");
    const QPolygonF triangle({QPointF(0, 0), QPointF(5, 0), QPointF(0, 5)});
    const Id polygon = manager().addPolygon("Areas", "South", triangle, "");
    QSignalSpy boxes(&manager(), &MapViewLayerManager::rectMoved);
    QSignalSpy polygons(&manager(), &MapViewLayerManager::polygonMoved);
    QString text = "Regions: | North 1,6 4,2 || Areas: | South 0,0 5,0 0,5";
    QCOMPARE(shown(text), text);

    m_map->ask("key Tab");
    m_map->ask("key Right alt");
    QTRY_COMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0][0].value<Id>(), box);
    const QRectF moved = boxes[0][1].toRectF();
    QVERIFY(moved.left() > 1 && qFuzzyCompare(moved.right() - moved.left(), 3.0));
    // The manager knows it: what it draws next is where the user has put it.
    m_map->kill();
    QTRY_VERIFY(!manager().isConnected());
    QVERIFY(m_map->start());
    QVERIFY(link());
    text = QString("%1 || Areas: | South 0,0 5,0 0,5")
               .arg("Regions: | " + rectText("North", moved.normalized()));
    QCOMPARE(shown(text), text);

    m_map->ask("key Tab");
    m_map->ask("key Tab");
    m_map->ask("key Down ctrl");
    QTRY_COMPARE(polygons.size(), 1);
    QCOMPARE(polygons[0][0].value<Id>(), polygon);
    const auto points = polygons[0][1].value<QPolygonF>();
    QCOMPARE(points.size(), 3);
    QVERIFY(points[0].y() < 0);
    QCOMPARE(points, triangle.translated(points[0]));
    QCOMPARE(boxes.size(), 1);
}

void TstMapProgram::userDeletesAShape()
{
    const Id box = manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "");
    manager().addRect("Regions", "South", QRectF(1, -20, 3, 4), "");
    QSignalSpy deleted(&manager(), &MapViewLayerManager::objectDeleted);
    QString text = "Regions: | North 1,6 4,2 | South 1,-16 4,-20";
    QCOMPARE(shown(text), text);
    m_map->ask("key Tab");
    m_map->ask("key Del");
    QTRY_COMPARE(deleted.size(), 1);
    QCOMPARE(deleted[0][0].value<Id>(), box);
    text = "Regions: | South 1,-16 4,-20";
    QCOMPARE(shown(text), text);
    manager().updateTooltip(box, "gone");
    QCOMPARE(shown(text), text);
}

void TstMapProgram::userDrawsAPolygon()
{
    const Id drawn = manager().createPolygonByUser("Areas", "Drawn");
    QVERIFY(drawn != 0);
    QSignalSpy created(&manager(), &MapViewLayerManager::polygonCreated);
    QCOMPARE(shown("Areas: | Drawn"), QString("Areas: | Drawn"));
    m_map->ask("key Return");
    m_map->ask("key Right");
    m_map->ask("key Return");
    m_map->ask("key Up");
    m_map->ask("key Return");
    m_map->ask("key Return");
    QTRY_COMPARE(created.size(), 1);
    QCOMPARE(created[0][0].value<Id>(), drawn);
    const auto points = created[0][1].value<QPolygonF>();
    QCOMPARE(points.size(), 3);
    QVERIFY(points[1].x() > points[0].x() && points[2].y() > points[1].y());
    // It is an ordinary polygon now, there and here.
    manager().updatePolygon(drawn, "Changed", QPolygonF({QPointF(0, 0), QPointF(5, 0), QPointF(0, 5)}), "");
    QCOMPARE(shown("Areas: | Changed 0,0 5,0 0,5"), QString("Areas: | Changed 0,0 5,0 0,5"));
    QVERIFY(manager().createPolygonByUser("Areas", "Next") != 0);
}

void TstMapProgram::userGivesADrawingUp()
{
    const Id drawn = manager().createPolygonByUser("Areas", "Drawn");
    QSignalSpy deleted(&manager(), &MapViewLayerManager::objectDeleted);
    QCOMPARE(shown("Areas: | Drawn"), QString("Areas: | Drawn"));
    m_map->ask("key Escape");
    QTRY_COMPARE(deleted.size(), 1);
    QCOMPARE(deleted[0][0].value<Id>(), drawn);
    QVERIFY(manager().createPolygonByUser("Areas", "Again") != 0);
}

void TstMapProgram::visibleAreaFollows()
{
    QPointF first;
    QPointF second;
    const auto width = [&] {
        manager().visibleWW(first, second);
        return second.x() - first.x();
    };
    QTRY_COMPARE(width(), 360.0);
    m_map->ask("zoom 4");
    QTRY_VERIFY(width() > 80 && width() < 100);
    QVERIFY(first.y() > second.y());
}

void TstMapProgram::stoppedMapHoldsNobodyUp()
{
    constexpr int SHAPES = 10000;
    constexpr int WATCHDOG = 50; // ms; ten times the goal
    const int stoppedTime = isSlow() ? 10000 : 1000;
    m_map->suspend();
    qint64 longest = 0;
    const auto timed = [&longest](const auto& call) {
        const Moment before = now();
        call();
        const Moment after = now();
        // On a busy machine a call is interrupted; that is not its time, unless it waited for something.
        const bool hasWaited = after.waits != before.waits;
        longest = std::max(longest, hasWaited ? after.time - before.time : after.work - before.work);
    };
    QElapsedTimer stopped;
    stopped.start();
    QVector<Id> ids;
    for (int i = 0; i < SHAPES; ++i)
        timed([&] { ids << manager().addRect("Regions", "R", QRectF(i % 90, i % 45, 1, 1), "tip"); });
    const qint64 memory = memoryOf(QCoreApplication::applicationPid());
    int updates = 0;
    for (; stopped.elapsed() < stoppedTime || updates < 3 * SHAPES; ++updates) {
        const int i = updates % SHAPES;
        timed([&] { manager().updateRect(ids[i], "R", QRectF(i % 90, i % 45, 2, 2), "tip"); });
        if (i % 100 == 0)
            timed([] { QCoreApplication::processEvents(); });
    }
    const qint64 growth = memoryOf(QCoreApplication::applicationPid()) - memory;
    qInfo("%d calls, the longest took %.2f ms; %lld KB more after %d updates", SHAPES + updates,
          double(longest) / 1e6, growth, updates);
    QVERIFY(longest < WATCHDOG * 1000000LL);
    // The newest state of each object waits, however often it changed: nothing that grows with the updates.
    QVERIFY2(growth < 12 * 1024 || !CAN_MEASURE_MEMORY, qPrintable(QString::number(growth)));
    m_map->resume();
    manager().removeObjects(ids.mid(2));
    const QString text = "Regions: | R 0,2 2,0 | R 1,3 3,1";
    QCOMPARE(shown(text), text);
}

void TstMapProgram::shapesAreBackAfterEachKill()
{
    constexpr int SHAPES = 20;
    const int rounds = isSlow() ? 100 : 10;
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    QMap<Id, QRectF> rects;
    for (int i = 1; i <= SHAPES; ++i) {
        const QRectF rect(i, i, 1, 1);
        QCOMPARE(manager().addRect("Regions", QString::number(i), rect, ""), Id(i));
        rects.insert(Id(i), rect);
    }
    QTimer mover;
    connect(&mover, &QTimer::timeout, this, [&] {
        const Id id = rects.keys()[random.bounded(SHAPES)];
        rects[id].moveTo(random.bounded(170), random.bounded(80));
        manager().updateRect(id, QString::number(id), rects[id], "");
    });
    for (int round = 0; round < rounds; ++round) {
        mover.start(0);
        QTest::qWait(random.bounded(40));
        m_map->kill();
        QTest::qWait(random.bounded(40));
        QVERIFY(m_map->start());
        QVERIFY(link());
        QTest::qWait(random.bounded(40));
        mover.stop();
        // They lie in the order in which they were drawn last.
        QStringList expected;
        for (auto rect = rects.cbegin(); rect != rects.cend(); ++rect)
            expected << rectText(QString::number(rect.key()), *rect);
        expected.sort();
        QStringList text;
        QElapsedTimer timer;
        for (timer.start(); text != expected && timer.elapsed() < 20000;) {
            QTest::qWait(5);
            text = m_map->ask("show").split(" | ").mid(1);
            text.sort();
        }
        QVERIFY2(text == expected, qPrintable(QString("seed %1, round %2").arg(seed).arg(round)));
    }
}

void TstMapProgram::movesBeforeAKillAreKept()
{
    const int rounds = isSlow() ? 100 : 10;
    manager().addRect("Regions", "North", QRectF(-170, 0, 3, 4), "");
    QSignalSpy boxes(&manager(), &MapViewLayerManager::rectMoved);
    for (int round = 1; round <= rounds; ++round) {
        QTRY_VERIFY(m_map->ask("show").startsWith("Regions: | North"));
        m_map->ask("key Tab");
        // The answer says that the map has done it; that the client has heard of it is not said.
        m_map->ask("key Right ctrl");
        m_map->kill();
        QTRY_COMPARE(boxes.size(), round);
        QVERIFY(m_map->start());
        QVERIFY(link());
    }
    const QRectF last = boxes.last()[1].toRectF();
    QTRY_COMPARE(m_map->ask("show"), "Regions: | " + rectText("North", last.normalized()));
}

void TstMapProgram::floodDoesNotFillTheMemory()
{
    constexpr int LIMIT =
        40 * 1024; // KB: the largest frame once as it came and once as what it says, and a little
    const qint64 before = memoryOf(m_map->processId());
    QLocalSocket flood;
    flood.connectToServer(SERVER);
    QVERIFY(flood.waitForConnected());
    MapMessage hello;
    hello.code = MAP_PROTOCOL_VERSION;
    flood.write(hello.toFrame());
    // A frame of the largest length that never ends, and its like after it.
    const QByteArray frame = QByteArray("\x01\0\0\0", 4) + QByteArray(MAX_FRAME_BYTES - 1, 'x');
    qint64 most = 0;
    flood.write(frame);
    QElapsedTimer timer;
    for (timer.start(); flood.bytesToWrite() > 0 && timer.elapsed() < 20000;) {
        QTest::qWait(10);
        most = std::max(most, memoryOf(m_map->processId()) - before);
    }
    QCOMPARE(flood.bytesToWrite(), 0);
    most = std::max(most, memoryOf(m_map->processId()) - before);
    QCOMPARE(flood.state(), QLocalSocket::ConnectedState);
    qInfo("the map took %lld KB more", most);
    QVERIFY2(most < LIMIT || !CAN_MEASURE_MEMORY, qPrintable(QString::number(most)));
    flood.write("xxxx");
    QTRY_COMPARE(flood.state(), QLocalSocket::UnconnectedState);
    // And it goes on with others.
    manager().addRect("Regions", "North", QRectF(1, 2, 3, 4), "");
    QCOMPARE(shown("Regions: | North 1,6 4,2"), QString("Regions: | North 1,6 4,2"));
}

void TstMapProgram::programWritesAPicture()
{
    m_map->kill();
    QTRY_VERIFY(!manager().isConnected());
    QTemporaryDir folder;
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // What Qt's platform keeps until the process ends is not ours.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    program.setProcessEnvironment(environment);
    program.start(JED_BINARY_DIR "/bin/mapview",
                  {"--server", SERVER, "--picture", folder.filePath("map.png"), "--size", "800x500"});
    QVERIFY(program.waitForStarted());
    QVERIFY(link());
    MapViewLayerManager::MapViewProperties& properties = manager().getLayerProperties("Regions");
    properties.insert("FILL_COLOR", QColor(255, 0, 255));
    properties.insert("TRANS", 0);
    manager().addRect("Regions", "", QRectF(4, 58, 3, 3), "");
    QTest::qWait(50);
    delete &manager();
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitCode(), 0);
    const QImage picture(folder.filePath("map.png"));
    QCOMPARE(picture.size(), QSize(800, 500));
    int painted = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            painted += picture.pixelColor(x, y) == QColor(255, 0, 255);
    }
    // The one shape fills the map nearly.
    QVERIFY2(painted > 50000, qPrintable(QString::number(painted)));
}

int main(int argc, char** argv)
{
    if (argc > 2 && qstrcmp(argv[1], DrivenMap::ARGUMENT) == 0)
        return JedTest::runDrivenMap(argc, argv);
    return JedTest::run<TstMapProgram>(argc, argv);
}

#include "tst_mapprogram.moc"
