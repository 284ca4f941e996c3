#include <mapviewlayermanager.h>
#include <QColor>
#include <QCoreApplication>
#include <QMetaMethod>
#include <QRandomGenerator>
#include <QSet>
#include <support/recordingmap.h>

using JedTest::RecordingMap;
using JEDVEPLUGIN::MapViewLayerManager;
using Id = MapViewLayerManager::tObjectID;

namespace {
const QString SERVER = QString("jed-test-map-%1").arg(QCoreApplication::applicationPid());

QSet<QString> entries(const QString& text)
{
    const QStringList list = text.split(';');
    return QSet<QString>(list.begin(), list.end());
}

QPolygonF triangle(double x)
{
    return QPolygonF({QPointF(x, 50), QPointF(x + 1, 50), QPointF(x, 51)});
}
} // namespace

class TstMapViewLayerManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void isOneForTheProcess();
    void signalsAreAsPluginsKnowThem();
    void idsBeginAtOneAndRise();
    void rectIsDrawn();
    void polygonIsDrawn();
    void toolTipIsTold();
    void layerIsMadeOnce();
    void layerPropertiesAsText();
    void layerPropertiesHaveTheirOrder();
    void layerPropertyValues();
    void emptyLayerProperties();
    void updateDrawsAnew();
    void updateChangesTheType();
    void updateOfNothing();
    void updateOfAnUnknownIdMakesIt();
    void newObjectReplacesOneMadeUnderItsId();
    void updateOfTheToolTip();
    void removal();
    void removalOfMany();
    void deletedLayer();
    void objectTypeIsThatOnTheMap();

    void rectIsMoved_data();
    void rectIsMoved();
    void rectOfNoSizeIsMoved();
    void rectStaysWithoutAChange();
    void moveOfOtherObjects();
    void polygonIsMoved();
    void userDrawsAPolygon();
    void oneUserPolygonAtATime();
    void groupIsDeletedOnTheMap();
    void shapeIsDeletedOnTheMap();
    void layerOfAnObjectDrawnTwiceIsDeleted();
    void layerIsDeletedOnBothSides();
    void layerIsDeletedOnTheMap();
    void visibleAreaIsKept();
    void placesThatAreNoNumbersAreIgnored_data();
    void placesThatAreNoNumbersAreIgnored();
    void objectIsShown();

    void everythingIsDrawnAfterTheLinkCame();
    void withoutALink();
    void linkIsLostAndComesBack();
    void signalsComeWithTheObjectsStillDrawn();

private:
    MapViewLayerManager& manager() { return *MapViewLayerManager::getInstance("editor"); }
    QStringList lines();
    int lastId(MapMessageKind kind) const { return m_lastIds.value(kind); }

    std::unique_ptr<RecordingMap> m_map;
    QVector<Id> m_ids;         // Taken away after each test.
    QHash<int, int> m_lastIds; // Of the map objects that lines() has seen, by kind.
};

void TstMapViewLayerManager::initTestCase()
{
    qputenv("JED_MAPVIEW", SERVER.toUtf8());
    // Of several tests that run at the same time each has a name of its own.
    MapViewLayerManager::getInstance("editor " + SERVER);
}

void TstMapViewLayerManager::init()
{
    if (!m_map) {
        m_map = std::make_unique<RecordingMap>(SERVER);
        QVERIFY(m_map->start());
    }
    QTRY_VERIFY(manager().isConnected());
    lines();
}

void TstMapViewLayerManager::cleanup()
{
    manager().removeObjects(m_ids);
    m_ids.clear();
}

// What the manager said since the last call, each as "kind text code points"; ids and parents are checked here.
QStringList TstMapViewLayerManager::lines()
{
    const int marker = 1000000 + int(QRandomGenerator::global()->bounded(1000000));
    manager().selectInMap(marker, 1);
    QVector<MapMessage> messages;
    const auto isComplete = [&] {
        messages += m_map->take();
        return !messages.isEmpty() && messages.last().id == marker;
    };
    [&] { QTRY_VERIFY(isComplete()); }();
    if (!messages.isEmpty())
        messages.removeLast();
    static const QHash<int, QString> NAMES = {
        {MAP_CREATE_LAYER, "layer"},     {MAP_LAYER_PROPERTIES, "properties"},
        {MAP_CREATE_GROUP, "group"},     {MAP_CREATE_RECT, "rect"},
        {MAP_CREATE_POLYGON, "polygon"}, {MAP_CREATE_EDITABLE, "editable"},
        {MAP_TOOL_TIP, "tooltip"},       {MAP_DELETE, "delete"},
        {MAP_SELECT, "select"},          {MAP_PAINT, "paint"},
        {MAP_TELL_VISIBLE, "visible"},   {MAP_TELL_WORLD, "world"}};
    QStringList result;
    for (const MapMessage& message : qAsConst(messages)) {
        m_lastIds.insert(message.kind, message.id);
        QString line = QString("%1 %2 %3").arg(NAMES.value(message.kind), message.text).arg(message.code);
        for (const QPointF& point : message.points)
            line += QString(" %1,%2").arg(point.x()).arg(point.y());
        result.append(line);
    }
    return result;
}

void TstMapViewLayerManager::isOneForTheProcess()
{
    QCOMPARE(MapViewLayerManager::getInstance("other"), &manager());
    QCOMPARE(manager().parent(), QCoreApplication::instance());
    QCOMPARE(m_map->clientName(), "editor " + SERVER);
}

void TstMapViewLayerManager::signalsAreAsPluginsKnowThem()
{
    const QMetaObject& meta = MapViewLayerManager::staticMetaObject;
    const QList<QPair<QByteArray, QList<QByteArray>>> expected = {
        {"linkStateChanged(bool)", {"connected"}},
        {"objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)", {"id"}},
        {"rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID,QRectF)", {"id", "rect"}},
        {"polygonMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID,QPolygonF)", {"id", "polygon"}},
        {"polygonCreated(JEDVEPLUGIN::MapViewLayerManager::tObjectID,QPolygonF)", {"id", "polygon"}}};
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), expected[i].first);
        QCOMPARE(method.parameterNames(), expected[i].second);
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
    }
    static_assert(std::is_same_v<Id, quint64>);
    QVERIFY(QMetaType::type("JEDVEPLUGIN::MapViewLayerManager::tObjectID") != QMetaType::UnknownType);
}

void TstMapViewLayerManager::idsBeginAtOneAndRise()
{
    for (Id i = 0; i < 3; ++i)
        m_ids.append(manager().addRect("l", "n", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(m_ids[0], Id(1));
    QCOMPARE(m_ids[1], Id(2));
    QCOMPARE(m_ids[2], Id(3));
}

void TstMapViewLayerManager::rectIsDrawn()
{
    m_ids.append(manager().addRect("rects", "Search", QRectF(8, 54, 2, 1), "Band A"));
    const QStringList said = lines();
    QCOMPARE(said.size(), 5);
    QCOMPARE(said[0], QString("layer rects 0"));
    QVERIFY(said[1].startsWith("properties "));
    // Left, top (the northern edge), right, bottom.
    QCOMPARE(said.mid(2), QStringList({"group Search 0", "rect Search 0 8,55 10,54", "tooltip Band A 0"}));
}

void TstMapViewLayerManager::polygonIsDrawn()
{
    m_ids.append(manager().addPolygon("polygons", "Area", triangle(8), "Area B"));
    QCOMPARE(lines().mid(2),
             QStringList({"group Area 0", "polygon Area 0 8,50 9,50 8,51", "tooltip Area B 0"}));
}

void TstMapViewLayerManager::toolTipIsTold()
{
    m_ids.append(manager().addRect("rects", "n", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(lines().last(), QString("tooltip  0"));
}

void TstMapViewLayerManager::layerIsMadeOnce()
{
    m_ids.append(manager().addRect("once", "a", QRectF(0, 0, 1, 1), ""));
    lines();
    m_ids.append(manager().addRect("once", "b", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(lines().first(), QString("group b 0"));
}

void TstMapViewLayerManager::layerPropertiesAsText()
{
    m_ids.append(manager().addRect("defaults", "n", QRectF(0, 0, 1, 1), ""));
    const QString text = lines().value(1).section(' ', 1, 1);
    QVERIFY(!text.endsWith(';'));
    QCOMPARE(text.split(';').size(), 6);
    QCOMPARE(entries(text), QSet<QString>({"EDIT=TRUE", "DELETE=FALSE", "O_DELETE=TRUE", "O_MOVE=TRUE",
                                           "IGNORE_CACHE=TRUE", "FLAG=2"}));
}

void TstMapViewLayerManager::layerPropertiesHaveTheirOrder()
{
    // The order of a hash differs from set to set: with many sets both orders occur.
    for (int i = 0; i < 40; ++i) {
        const QString layer = QString("order %1").arg(i);
        MapViewLayerManager::MapViewProperties& properties = manager().getLayerProperties(layer);
        for (int extra = 0; extra < i; ++extra)
            properties.insert(QString("P%1").arg(extra), extra);
        properties.insert("TRANS", 50);
        properties.insert("FILL_COLOR", QColor(1, 2, 3));
        // The two change places at most, the others keep theirs.
        QStringList names = properties.keys();
        const int color = names.indexOf("FILL_COLOR");
        const int transparency = names.indexOf("TRANS");
        names[qMin(color, transparency)] = "FILL_COLOR";
        names[qMax(color, transparency)] = "TRANS";
        m_ids.append(manager().addRect(layer, "n", QRectF(0, 0, 1, 1), ""));
        const QString text = lines().value(1).section(' ', 1, 1);
        QStringList found;
        for (const QString& entry : text.split(';'))
            found.append(entry.section('=', 0, 0));
        QCOMPARE(found, names);
    }
}

void TstMapViewLayerManager::layerPropertyValues()
{
    MapViewLayerManager::MapViewProperties& properties = manager().getLayerProperties("values");
    properties = {
        {"COLOR", QColor(10, 20, 30)}, {"ON", true}, {"NUMBER", 1}, {"REAL", 2.5}, {"TEXT", "false"}};
    m_ids.append(manager().addRect("values", "n", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(entries(lines().value(1).section(' ', 1, 1)),
             QSet<QString>({QString("COLOR=%1").arg(30 * 65536 + 20 * 256 + 10), "ON=TRUE", "NUMBER=1",
                            "REAL=2.5", "TEXT=false"}));
    QCOMPARE(manager().getLayerProperties("values").size(), 5);
}

void TstMapViewLayerManager::emptyLayerProperties()
{
    manager().getLayerProperties("empty").clear();
    m_ids.append(manager().addRect("empty", "n", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(lines().value(1), QString("properties  0"));
}

void TstMapViewLayerManager::updateDrawsAnew()
{
    m_ids.append(manager().addRect("up", "old", QRectF(0, 0, 1, 1), "x"));
    lines();
    const int group = lastId(MAP_CREATE_GROUP);
    manager().updateRect(m_ids[0], "new", QRectF(2, 3, 1, 1), "y");
    QCOMPARE(lines(),
             QStringList({"delete  172", "delete  173", "group new 0", "rect new 0 2,4 3,3", "tooltip y 0"}));
    QVERIFY(lastId(MAP_CREATE_GROUP) != group);
}

void TstMapViewLayerManager::updateChangesTheType()
{
    m_ids.append(manager().addRect("up", "n", QRectF(0, 0, 1, 1), ""));
    lines();
    manager().updatePolygon(m_ids[0], "p", triangle(1), "");
    QCOMPARE(lines().value(3), QString("polygon p 0 1,50 2,50 1,51"));
    manager().updateRect(m_ids[0], "r", QRectF(0, 0, 1, 1), "");
    QCOMPARE(lines().value(3), QString("rect r 0 0,1 1,0"));
}

void TstMapViewLayerManager::updateOfNothing()
{
    manager().updateRect(0, "n", QRectF(0, 0, 1, 1), "");
    manager().updatePolygon(0, "n", triangle(0), "");
    manager().removeObject(0);
    manager().removeObject(987654);
    manager().updateTooltip(0, "t");
    manager().updateTooltip(987654, "t");
    QCOMPARE(lines(), QStringList());
}

void TstMapViewLayerManager::updateOfAnUnknownIdMakesIt()
{
    m_ids.append(4000);
    manager().updateRect(4000, "made", QRectF(0, 0, 1, 1), "t");
    QVERIFY(lines().contains("rect made 0 0,1 1,0"));
    manager().updateTooltip(4000, "u");
    QCOMPARE(lines(), QStringList({"tooltip u 0"}));
}

void TstMapViewLayerManager::newObjectReplacesOneMadeUnderItsId()
{
    const Id id = manager().addRect("up", "a", QRectF(0, 0, 1, 1), "");
    m_ids.append(id);
    manager().updateRect(id + 1, "made", QRectF(0, 0, 1, 1), "");
    lines();
    m_ids.append(manager().addRect("up", "b", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(m_ids.last(), id + 1);
    QCOMPARE(lines(),
             QStringList({"delete  172", "delete  173", "group b 0", "rect b 0 0,1 1,0", "tooltip  0"}));
}

void TstMapViewLayerManager::updateOfTheToolTip()
{
    m_ids.append(manager().addRect("up", "n", QRectF(0, 0, 1, 1), "a"));
    lines();
    manager().updateTooltip(m_ids[0], "b");
    manager().updateTooltip(m_ids[0], "");
    // Only the newest is sent if the first was not on its way yet.
    QCOMPARE(lines().last(), QString("tooltip  0"));
    QCOMPARE(lastId(MAP_TOOL_TIP), lastId(MAP_CREATE_GROUP));
}

void TstMapViewLayerManager::removal()
{
    const Id id = manager().addRect("rm", "n", QRectF(0, 0, 1, 1), "");
    lines();
    manager().removeObject(id);
    QCOMPARE(lines(), QStringList({"delete  172", "delete  173"}));
    manager().removeObject(id);
    QCOMPARE(lines(), QStringList());
}

void TstMapViewLayerManager::removalOfMany()
{
    const Id a = manager().addRect("rm", "a", QRectF(0, 0, 1, 1), "");
    const Id b = manager().addRect("rm", "b", QRectF(0, 0, 1, 1), "");
    lines();
    manager().removeObjects({a, 0, b});
    const QStringList said = lines();
    QCOMPARE(said.count("delete  172"), 2);
    QCOMPARE(said.count("delete  173"), 2);
    QCOMPARE(said.first(), QString("paint  0"));
    QCOMPARE(said.last(), QString("paint  1"));
}

void TstMapViewLayerManager::deletedLayer()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id gone = manager().addRect("gone", "a", QRectF(0, 0, 1, 1), "");
    m_ids.append(manager().addRect("stays", "b", QRectF(0, 0, 1, 1), ""));
    lines();
    manager().deleteLayer("gone");
    QCOMPARE(lines(), QStringList({"delete  172", "delete  173", "delete  171"}));
    QCOMPARE(deleted.size(), 0);
    manager().removeObject(gone);
    manager().deleteLayer("gone");
    manager().deleteLayer("never");
    QCOMPARE(lines(), QStringList());
    m_ids.append(manager().addRect("gone", "c", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(lines().first(), QString("layer gone 0"));
}

void TstMapViewLayerManager::objectTypeIsThatOnTheMap()
{
    m_ids.append(manager().addRect("type", "n", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(int(manager().getObjectType(m_ids[0])), 1);
    QCOMPARE(int(manager().getObjectType(987654)), 0);
    QCOMPARE(int(MapViewLayerManager::OBJ_SHAPE), 2);
}

void TstMapViewLayerManager::rectIsMoved_data()
{
    QTest::addColumn<QRectF>("before");
    QTest::addColumn<QRectF>("edges"); // Left and top, right and bottom as a second point.
    QTest::addColumn<QRectF>("expected");
    const auto edges = [](double left, double top, double right, double bottom) {
        return QRectF(QPointF(left, top), QPointF(right, bottom));
    };
    QTest::newRow("all edges") << QRectF(1, 2, 3, 4) << edges(10, 30, 20, 25) << edges(10, 25, 20, 30);
    QTest::newRow("left only") << QRectF(1, 2, 3, 4) << edges(0, 6, 4, 2) << edges(0, 2, 4, 6);
    QTest::newRow("top only") << QRectF(1, 2, 3, 4) << edges(1, 9, 4, 2) << edges(1, 2, 4, 9);
    QTest::newRow("right only") << QRectF(1, 2, 3, 4) << edges(1, 6, 7, 2) << edges(1, 2, 7, 6);
    QTest::newRow("bottom only") << QRectF(1, 2, 3, 4) << edges(1, 6, 4, 1) << edges(1, 1, 4, 6);
    QTest::newRow("negative size") << QRectF(4, 6, -3, -4) << edges(0, 7, 5, 1) << edges(5, 7, 0, 1);
    QTest::newRow("just enough") << QRectF(0, 0, 1, 1) << edges(2e-7, 1, 1, 0) << edges(2e-7, 0, 1, 1);
}

void TstMapViewLayerManager::rectIsMoved()
{
    QFETCH(QRectF, before);
    QFETCH(QRectF, edges);
    QSignalSpy moved(&manager(), SIGNAL(rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QRectF)));
    m_ids.append(manager().addRect("move", "n", before, ""));
    lines();
    const QVector<QPointF> points = {edges.topLeft(), edges.bottomRight()};
    m_map->send(MAP_GROUP_RESIZED, lastId(MAP_CREATE_GROUP), points);
    QTRY_COMPARE(moved.size(), 1);
    QCOMPARE(moved[0][0].toULongLong(), m_ids[0]);
    QTEST(moved[0][1].toRectF(), "expected");
    m_map->send(MAP_GROUP_RESIZED, lastId(MAP_CREATE_GROUP), points);
    lines();
    QCOMPARE(moved.size(), 1);
}

void TstMapViewLayerManager::rectOfNoSizeIsMoved()
{
    QSignalSpy moved(&manager(), SIGNAL(rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QRectF)));
    m_ids.append(manager().addRect("move", "n", QRectF(1, 1, 0, 0), ""));
    lines();
    m_map->send(MAP_GROUP_RESIZED, lastId(MAP_CREATE_GROUP), {QPointF(0, 3), QPointF(2, 1)});
    QTRY_COMPARE(moved.size(), 1);
    QCOMPARE(moved[0][1].toRectF(), QRectF(QPointF(0, 3), QPointF(2, 1)));
}

void TstMapViewLayerManager::rectStaysWithoutAChange()
{
    QSignalSpy moved(&manager(), SIGNAL(rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QRectF)));
    m_ids.append(manager().addRect("move", "n", QRectF(1, 2, 3, 4), ""));
    lines();
    m_map->send(MAP_GROUP_RESIZED, lastId(MAP_CREATE_GROUP), {QPointF(1 + 9e-8, 6 - 9e-8), QPointF(4, 2)});
    m_map->send(MAP_GROUP_RESIZED, 999999, {QPointF(0, 9), QPointF(9, 0)});
    QTest::qWait(50);
    lines();
    QCOMPARE(moved.size(), 0);
}

void TstMapViewLayerManager::moveOfOtherObjects()
{
    QSignalSpy rect(&manager(), SIGNAL(rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QRectF)));
    QSignalSpy polygon(&manager(),
                       SIGNAL(polygonMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QPolygonF)));
    m_ids.append(manager().addPolygon("move", "p", triangle(0), ""));
    lines();
    m_map->send(MAP_GROUP_RESIZED, lastId(MAP_CREATE_GROUP), {QPointF(0, 9), QPointF(9, 0)});
    m_ids.append(manager().addRect("move", "r", QRectF(0, 0, 1, 1), ""));
    lines();
    m_map->send(MAP_GROUP_MOVED, lastId(MAP_CREATE_GROUP), {QPointF(1, 1)});
    QTest::qWait(50);
    QCOMPARE(rect.size() + polygon.size(), 0);
}

void TstMapViewLayerManager::polygonIsMoved()
{
    QSignalSpy moved(&manager(),
                     SIGNAL(polygonMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QPolygonF)));
    m_ids.append(manager().addPolygon("move", "p", triangle(8), ""));
    lines();
    m_map->send(MAP_GROUP_MOVED, lastId(MAP_CREATE_GROUP), {QPointF(9e-8, -9e-8)});
    m_map->send(MAP_GROUP_MOVED, lastId(MAP_CREATE_GROUP), {QPointF(1, 0)});
    QTRY_COMPARE(moved.size(), 1);
    QCOMPARE(moved[0][0].toULongLong(), m_ids[0]);
    QCOMPARE(moved[0][1].value<QPolygonF>(), triangle(9));
    // The stored points have moved along.
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    QVERIFY(m_map->start());
    QTRY_VERIFY(manager().isConnected());
    QVERIFY(lines().contains("polygon p 0 9,50 10,50 9,51"));
}

void TstMapViewLayerManager::userDrawsAPolygon()
{
    QSignalSpy created(&manager(),
                       SIGNAL(polygonCreated(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QPolygonF)));
    QSignalSpy moved(&manager(),
                     SIGNAL(polygonMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID, QPolygonF)));
    const Id id = manager().createPolygonByUser("user", "Drawn");
    QVERIFY(id != 0);
    m_ids.append(id);
    QCOMPARE(lines().mid(2), QStringList({"group Drawn 0", "editable Drawn 0", "tooltip  0"}));
    const QPolygonF polygon = triangle(3);
    // As long as it has no points, nothing of it moves.
    m_map->send(MAP_GROUP_MOVED, lastId(MAP_CREATE_GROUP), {QPointF(1, 0)});
    m_map->send(MAP_POLYGON_DRAWN, lastId(MAP_CREATE_EDITABLE), polygon);
    QTRY_COMPARE(created.size(), 1);
    QCOMPARE(created[0][0].toULongLong(), id);
    QCOMPARE(created[0][1].value<QPolygonF>(), polygon);
    QCOMPARE(moved.size(), 0);
    // From now on it is a polygon like others.
    m_map->send(MAP_POLYGON_DRAWN, lastId(MAP_CREATE_EDITABLE), triangle(4));
    m_map->send(MAP_GROUP_MOVED, lastId(MAP_CREATE_GROUP), {QPointF(1, 0)});
    QTRY_COMPARE(moved.size(), 1);
    QCOMPARE(created.size(), 1);
    // The user may draw the next one, and the first is drawn again as it was moved.
    const Id next = manager().createPolygonByUser("user", "Next");
    QVERIFY(next != 0);
    m_ids.append(next);
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    QVERIFY(m_map->start());
    QTRY_VERIFY(manager().isConnected());
    const QStringList said = lines();
    QVERIFY2(said.contains("polygon Drawn 0 4,50 5,50 4,51"), qPrintable(said.join('|')));
    QVERIFY(said.contains("editable Next 0"));
}

void TstMapViewLayerManager::oneUserPolygonAtATime()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id first = manager().createPolygonByUser("user", "a");
    QVERIFY(first != 0);
    QCOMPARE(manager().createPolygonByUser("user", "b"), Id(0));
    manager().removeObject(first);
    const Id second = manager().createPolygonByUser("user", "c");
    QVERIFY(second != 0);
    lines();
    m_map->send(MAP_GROUP_DELETED, lastId(MAP_CREATE_GROUP));
    QTRY_COMPARE(deleted.size(), 1);
    const Id third = manager().createPolygonByUser("user", "d");
    QVERIFY(third != 0);
    manager().updatePolygon(third, "d", triangle(0), "");
    const Id fourth = manager().createPolygonByUser("user", "e");
    QVERIFY(fourth != 0);
    m_ids = {third, fourth};
}

void TstMapViewLayerManager::groupIsDeletedOnTheMap()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id id = manager().addRect("del", "n", QRectF(0, 0, 1, 1), "");
    lines();
    m_map->send(MAP_GROUP_DELETED, lastId(MAP_CREATE_GROUP));
    QTRY_COMPARE(deleted.size(), 1);
    QCOMPARE(deleted[0][0].toULongLong(), id);
    manager().removeObject(id);
    manager().updateTooltip(id, "t");
    m_map->send(MAP_GROUP_DELETED, lastId(MAP_CREATE_GROUP));
    QTest::qWait(50);
    QCOMPARE(lines(), QStringList());
    QCOMPARE(deleted.size(), 1);
}

void TstMapViewLayerManager::shapeIsDeletedOnTheMap()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id id = manager().addPolygon("del", "n", triangle(0), "");
    lines();
    m_map->send(MAP_SHAPE_DELETED, lastId(MAP_CREATE_POLYGON));
    QTRY_COMPARE(deleted.size(), 1);
    QCOMPARE(deleted[0][0].toULongLong(), id);
    m_map->send(MAP_GROUP_DELETED, lastId(MAP_CREATE_GROUP));
    QTest::qWait(50);
    QCOMPARE(deleted.size(), 1);
}

// The group of a shape that the user deleted stays, and its object may be drawn anew in the same layer.
void TstMapViewLayerManager::layerOfAnObjectDrawnTwiceIsDeleted()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id id = 4000000;
    for (int i = 0; i < 4; ++i) {
        manager().updateRect(id, "n", QRectF(0, 0, 1, 1), "");
        lines();
        if (i == 3)
            break;
        m_map->send(MAP_SHAPE_DELETED, lastId(MAP_CREATE_RECT));
        QTRY_COMPARE(deleted.size(), i + 1);
    }
    manager().deleteLayer("");
    QCOMPARE(lines(), QStringList({"delete  172", "delete  173", "delete  171"}));
    QCOMPARE(int(manager().getObjectType(id)), 0);
    QCOMPARE(deleted.size(), 3);
}

void TstMapViewLayerManager::layerIsDeletedOnBothSides()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id id = manager().addRect("both", "n", QRectF(0, 0, 1, 1), "");
    lines();
    const int layer = lastId(MAP_CREATE_LAYER);
    m_map->send(MAP_SHAPE_DELETED, lastId(MAP_CREATE_RECT));
    QTRY_COMPARE(deleted.size(), 1);
    manager().deleteLayer("both");
    manager().updateRect(id, "n", QRectF(0, 0, 1, 1), "");
    m_map->send(MAP_LAYER_DELETED, layer);
    QTRY_COMPARE(deleted.size(), 2);
    QCOMPARE(deleted[1][0].toULongLong(), id);
}

void TstMapViewLayerManager::layerIsDeletedOnTheMap()
{
    QSignalSpy deleted(&manager(), SIGNAL(objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID)));
    const Id first = manager().addRect("all", "a", QRectF(0, 0, 1, 1), "");
    const Id second = manager().addPolygon("all", "b", triangle(0), "");
    m_ids.append(manager().addRect("others", "c", QRectF(0, 0, 1, 1), ""));
    lines();
    const int other = lastId(MAP_CREATE_LAYER);
    // "all" was made just before "others": layer, two groups with a shape each.
    m_map->send(MAP_LAYER_DELETED, other - 5);
    QTRY_COMPARE(deleted.size(), 2);
    QCOMPARE(QSet<quint64>({deleted[0][0].toULongLong(), deleted[1][0].toULongLong()}),
             QSet<quint64>({first, second}));
    m_ids.append(manager().addRect("all", "d", QRectF(0, 0, 1, 1), ""));
    QCOMPARE(lines().first(), QString("layer all 0"));
}

void TstMapViewLayerManager::visibleAreaIsKept()
{
    QPointF first;
    QPointF second;
    m_map->send(MAP_VISIBLE_AREA, 0, {QPointF(-10, 60), QPointF(20, 40)});
    QTRY_VERIFY(manager().visibleWW(first, second) && first == QPointF(-10, 60));
    QCOMPARE(second, QPointF(20, 40));
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    first = second = QPointF(1, 1);
    QVERIFY(!manager().visibleWW(first, second));
    QCOMPARE(first, QPointF(1, 1));
    QCOMPARE(second, QPointF(1, 1));
    QVERIFY(m_map->start());
    QTRY_VERIFY(manager().isConnected());
    QVERIFY(manager().visibleWW(first, second));
    QCOMPARE(first, QPointF());
    QCOMPARE(second, QPointF());
}

void TstMapViewLayerManager::placesThatAreNoNumbersAreIgnored_data()
{
    QTest::addColumn<double>("bad");
    QTest::newRow("NaN") << qQNaN();
    QTest::newRow("infinity") << qInf();
    QTest::newRow("minus infinity") << -qInf();
}

void TstMapViewLayerManager::placesThatAreNoNumbersAreIgnored()
{
    QFETCH(double, bad);
    QSignalSpy rects(&manager(), &MapViewLayerManager::rectMoved);
    QSignalSpy polygons(&manager(), &MapViewLayerManager::polygonMoved);
    QSignalSpy created(&manager(), &MapViewLayerManager::polygonCreated);
    m_map->send(MAP_VISIBLE_AREA, 0, {QPointF(-10, 60), QPointF(20, 40)});
    m_ids.append(manager().addRect("numbers", "r", QRectF(1, 2, 3, 4), ""));
    lines();
    const int rect = lastId(MAP_CREATE_GROUP);
    m_ids.append(manager().addPolygon("numbers", "p", triangle(8), ""));
    lines();
    const int polygon = lastId(MAP_CREATE_GROUP);
    m_ids.append(manager().createPolygonByUser("numbers", "u"));
    lines();
    const int drawn = lastId(MAP_CREATE_EDITABLE);
    // Each coordinate of each event in turn.
    for (int i = 0; i < 4; ++i) {
        double at[] = {0, 8, 9, 1};
        at[i] = bad;
        const QVector<QPointF> points{{at[0], at[1]}, {at[2], at[3]}};
        m_map->send(MAP_GROUP_RESIZED, rect, points);
        m_map->send(MAP_VISIBLE_AREA, 0, points);
        m_map->send(MAP_GROUP_MOVED, polygon, points.mid(i / 2, 1));
        m_map->send(MAP_POLYGON_DRAWN, drawn, points + QVector<QPointF>{{5, 5}});
    }
    // The next ones count, and begin where things were.
    m_map->send(MAP_GROUP_RESIZED, rect, {QPointF(1, 6), QPointF(5, 2)});
    m_map->send(MAP_GROUP_MOVED, polygon, {QPointF(1, 0)});
    m_map->send(MAP_POLYGON_DRAWN, drawn, triangle(3));
    QTRY_COMPARE(created.size(), 1);
    QCOMPARE(created[0][1].value<QPolygonF>(), triangle(3));
    QCOMPARE(rects.size(), 1);
    QCOMPARE(rects[0][1].toRectF().normalized(), QRectF(1, 2, 4, 4));
    QCOMPARE(polygons.size(), 1);
    QCOMPARE(polygons[0][1].value<QPolygonF>(), triangle(9));
    QPointF first;
    QPointF second;
    QVERIFY(manager().visibleWW(first, second));
    QCOMPARE(first, QPointF(-10, 60));
    QCOMPARE(second, QPointF(20, 40));
}

void TstMapViewLayerManager::objectIsShown()
{
    m_ids.append(manager().addRect("show", "n", QRectF(0, 0, 1, 1), ""));
    lines();
    manager().showInMapView(m_ids[0]);
    QTRY_VERIFY(m_map->messageCount() == 1);
    const MapMessage message = m_map->take().first();
    QCOMPARE(int(message.kind), int(MAP_SELECT));
    QCOMPARE(message.id, lastId(MAP_CREATE_GROUP));
    QCOMPARE(message.code, 6);
    manager().showInMapView(987654);
    QCOMPARE(lines(), QStringList());
}

void TstMapViewLayerManager::everythingIsDrawnAfterTheLinkCame()
{
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    m_ids.append(manager().addRect("later", "a", QRectF(0, 0, 1, 1), ""));
    m_ids.append(manager().addPolygon("later", "b", triangle(0), ""));
    QSignalSpy link(&manager(), SIGNAL(linkStateChanged(bool)));
    QObject receiver;
    connect(&manager(), &MapViewLayerManager::linkStateChanged, &receiver,
            [this] { manager().selectInMap(1, 3); });
    QVERIFY(m_map->start());
    QTRY_VERIFY(manager().isConnected());
    QCOMPARE(link.size(), 1);
    QCOMPARE(link[0][0].toBool(), true);
    QStringList said = lines();
    QVERIFY(said.value(4).startsWith("properties "));
    said.removeAt(4);
    QCOMPARE(said, QStringList({"visible  1", "world  0", "paint  0", "layer later 0", "group a 0",
                                "rect a 0 0,1 1,0", "tooltip  0", "group b 0", "polygon b 0 0,50 1,50 0,51",
                                "tooltip  0", "paint  1", "select  3"}));
}

void TstMapViewLayerManager::withoutALink()
{
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    QCOMPARE(manager().createPolygonByUser("user", "n"), Id(0));
    const Id id = manager().addRect("none", "n", QRectF(0, 0, 1, 1), "");
    QVERIFY(id != 0);
    manager().updateRect(id, "m", QRectF(0, 0, 2, 2), "t");
    manager().updateTooltip(id, "u");
    manager().showInMapView(id);
    manager().deleteLayer("none");
    QCOMPARE(int(manager().getObjectType(id)), 0);
    QVERIFY(m_map->start());
    QTRY_VERIFY(manager().isConnected());
    const QStringList said = lines();
    QVERIFY(said.contains("rect m 0 0,2 2,0"));
    QVERIFY(said.contains("tooltip u 0"));
    m_ids.append(id);
}

void TstMapViewLayerManager::linkIsLostAndComesBack()
{
    m_ids.append(manager().addRect("again", "n", QRectF(0, 0, 1, 1), ""));
    lines();
    QSignalSpy link(&manager(), SIGNAL(linkStateChanged(bool)));
    m_map->stop();
    QTRY_COMPARE(link.size(), 1);
    QCOMPARE(link[0][0].toBool(), false);
    QVERIFY(m_map->start());
    QTRY_COMPARE(link.size(), 2);
    QCOMPARE(link[1][0].toBool(), true);
    QCOMPARE(lines().filter("rect n").size(), 1);
}

// Who hears of the link finds everything drawn, and who hears of a deletion still finds the object.
void TstMapViewLayerManager::signalsComeWithTheObjectsStillDrawn()
{
    const Id id = manager().addRect("order", "n", QRectF(0, 0, 1, 1), "");
    lines();
    QVector<int> types;
    const auto note = [&] { types.append(manager().getObjectType(id)); };
    QObject receiver;
    connect(&manager(), &MapViewLayerManager::linkStateChanged, &receiver, note);
    connect(&manager(), &MapViewLayerManager::objectDeleted, &receiver, note);
    m_map->stop();
    QTRY_VERIFY(!manager().isConnected());
    note();
    QVERIFY(m_map->start());
    QTRY_COMPARE(types.size(), 3);
    lines();
    m_map->send(MAP_GROUP_DELETED, lastId(MAP_CREATE_GROUP));
    QTRY_COMPARE(types.size(), 4);
    note();
    const int drawn = MapViewLayerManager::OBJ_GROUP;
    QCOMPARE(types, QVector<int>({drawn, 0, drawn, drawn, 0}));
}

QTEST_GUILESS_MAIN(TstMapViewLayerManager)
#include "tst_mapviewlayermanager.moc"
