#include <mapview/mapcanvas.h>
#include <mapview/mapserver.h>
#include <mapview/mapwindow.h>
#include <mapviewinterface/mapviewinterface.h>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QMenu>
#include <QRandomGenerator>
#include <support/accessiblenames.h>
#include <support/testmain.h>

namespace {
const QString SERVER = QString("jed-test-server-%1").arg(QCoreApplication::applicationPid());

MapMessage command(MapMessageKind kind, int id, int parent = 0, const QString& text = QString(),
                   const QVector<QPointF>& points = {}, int code = 0)
{
    MapMessage message;
    message.kind = kind;
    message.id = id;
    message.parent = parent;
    message.code = code;
    message.text = text;
    message.points = points;
    return message;
}

QByteArray hello(const QString& name = "editor", int version = MAP_PROTOCOL_VERSION)
{
    return command(MAP_HELLO, 0, 0, name, {}, version).toFrame();
}

QByteArray rectFrames(int group, const QString& name, double left, double top, double right, double bottom)
{
    return command(MAP_CREATE_GROUP, group, 2, name).toFrame() +
           command(MAP_CREATE_RECT, group + 1, group, name, {QPointF(left, top), QPointF(right, bottom)})
               .toFrame();
}

QByteArray layerFrames(const QString& properties = "EDIT=TRUE;O_MOVE=TRUE;O_DELETE=TRUE;DELETE=TRUE")
{
    return command(MAP_CREATE_LAYER, 2, 1, "Regions").toFrame() +
           command(MAP_LAYER_PROPERTIES, 2, 0, properties).toFrame();
}

/// All that a client may say, a kind after the other.
QByteArray recordedStream()
{
    return hello() + command(MAP_TELL_VISIBLE, 0, 0, "", {}, 1).toFrame() + command(MAP_PAINT, 0).toFrame() +
           layerFrames("EDIT=TRUE;FILL_COLOR=255;TRANS=40;FLAG=2") + rectFrames(10, "North", 1, 4, 3, 2) +
           command(MAP_TOOL_TIP, 10, 0, "tip").toFrame() +
           command(MAP_CREATE_GROUP, 12, 2, "South").toFrame() +
           command(MAP_CREATE_POLYGON, 13, 12, "", {QPointF(0, 0), QPointF(5, 0), QPointF(0, 5)}).toFrame() +
           rectFrames(14, "Gone", 1, 4, 3, 2) + command(MAP_DELETE, 14, 0, "", {}, 172).toFrame() +
           command(MAP_CREATE_GROUP, 16, 2, "Drawn").toFrame() +
           command(MAP_CREATE_EDITABLE, 17, 16, "").toFrame() +
           command(MAP_DELETE, 17, 0, "", {}, 173).toFrame() +
           command(MAP_SELECT, 10, 0, "", {}, 6).toFrame() + command(MAP_PAINT, 0, 0, "", {}, 1).toFrame();
}

const QString RECORDED_SCENE = "editor Regions: North 1,4..3,2 South 0,5..5,0 Drawn 0,0..0,0";

/// Without the pauses of QTRY_VERIFY.
template <typename Condition>
bool eventually(Condition condition)
{
    QElapsedTimer timer;
    for (timer.start(); !condition() && timer.elapsed() < 10000;)
        QCoreApplication::processEvents();
    return condition();
}

/// One end of a link, without a rule of its own.
class Peer
{
public:
    Peer()
    {
        m_socket.connectToServer(SERVER);
        m_socket.waitForConnected();
    }
    ~Peer() { m_socket.abort(); }

    void say(const QByteArray& bytes)
    {
        m_socket.write(bytes);
        m_socket.flush();
    }
    bool isOpen() const { return m_socket.state() == QLocalSocket::ConnectedState; }
    void close() { m_socket.disconnectFromServer(); }
    QLocalSocket* socket() { return &m_socket; }

    /// What has arrived since forget(), as kind and id.
    QStringList heard()
    {
        m_reader.append(m_socket.readAll());
        while (m_reader.next(&m_last) == MapMessageReader::MESSAGE)
            m_heard << QString("%1 %2").arg(m_last.kind).arg(m_last.id);
        return m_heard;
    }
    void forget()
    {
        heard();
        m_heard.clear();
    }
    const MapMessage& last() const { return m_last; }

private:
    QLocalSocket m_socket;
    MapMessageReader m_reader;
    MapMessage m_last;
    QStringList m_heard;
};

QString line(MapMessageKind kind, int id)
{
    return QString("%1 %2").arg(kind).arg(id);
}
} // namespace

// What the map program takes from clients, and what it makes of those that do not keep to the rules.
class TstMapServer : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void clientIsGreeted();
    void realClientIsGreeted();
    void recordedStreamIsDrawn();
    void streamIsCutAtEveryByte();
    void clientGoesAtEveryByte();
    void lengthsEndTheLink_data();
    void lengthsEndTheLink();
    void randomBytesEndNothing();
    void otherVersionIsRefused();
    void firstWordIsHello();
    void whatMakesNoSenseIsLeftOut();
    void tooMuchEndsTheLink();

    void clientsHaveTheirOwnObjects();
    void lastWordsCount();
    void areasAreTold();
    void clientThatDoesNotReadGetsTheNewestArea();
    void clientThatNeverReadsIsDropped();
    void oneMapForAName();

    void hiddenLayerIsNotShown();
    void layerIsDeletedInItsMenu();
    void everyControlHasAName();

private:
    QString sceneText() const;
    QMenu* layerMenu(int place) const;
    QString said() const { return m_said.isEmpty() ? QString() : m_said.last(); }

    std::unique_ptr<MapWindow> m_window;
    QStringList m_said; // Of clients.
};

void TstMapServer::init()
{
    m_window = std::make_unique<MapWindow>();
    QString error;
    QVERIFY2(m_window->listen(SERVER, &error), qPrintable(error));
    connect(m_window->findChild<MapServer*>(), &MapServer::message, this,
            [this](const QString& text) { m_said << text; });
    m_window->show();
}

void TstMapServer::cleanup()
{
    m_window.reset();
    m_said.clear();
}

// "layer: group left,top..right,bottom group ..."
QString TstMapServer::sceneText() const
{
    QStringList lines;
    for (const auto& layer : m_window->scene()->layers()) {
        QStringList words{m_window->scene()->clientName(layer->client), layer->name + ":"};
        for (const auto& entry : layer->groups) {
            const QRectF& box = entry.second.box;
            words
                << entry.second.name
                << QString("%1,%2..%3,%4").arg(box.left()).arg(box.bottom()).arg(box.right()).arg(box.top());
        }
        lines << words.join(' ');
    }
    return lines.join('\n');
}

void TstMapServer::clientIsGreeted()
{
    Peer peer;
    peer.say(hello());
    QTRY_COMPARE(said(), QString("editor has come"));
    QTRY_COMPARE(peer.heard(), QStringList{line(MAP_WELCOME, 1)});
    QCOMPARE(peer.last().code, MAP_PROTOCOL_VERSION);
    peer.close();
    QTRY_COMPARE(said(), QString("editor has gone"));
    QCOMPARE(m_window->scene()->clientCount(), 0);
}

void TstMapServer::realClientIsGreeted()
{
    MapViewInterface client(SERVER, "client");
    QTRY_VERIFY(client.isConnected());
    const int layer = client.createMapViewLayer(client.getOverlay(), L"Layer");
    const int group = client.createMapViewGroup(layer, L"Group");
    client.createMapViewRect(group, L"", 1, 4, 3, 2, 1);
    QTRY_COMPARE(sceneText(), QString("client Layer: Group 1,4..3,2"));
}

void TstMapServer::recordedStreamIsDrawn()
{
    Peer peer;
    peer.say(recordedStream());
    QTRY_COMPARE(sceneText(), RECORDED_SCENE);
    const MapLayer& layer = *m_window->scene()->layers().front();
    QCOMPARE(layer.color, QColor(255, 0, 0));
    QCOMPARE(layer.transparency, 40);
    QCOMPARE(layer.groups.at(10).toolTip, QString("tip"));
    QCOMPARE(m_window->scene()->selection(), QSet<MapKey>{mapKey(layer.client, 10)});
    QVERIFY(m_window->scene()->isPainting());
    QVERIFY(!m_window->canvas()->isDrawing());
}

void TstMapServer::streamIsCutAtEveryByte()
{
    const QByteArray stream = recordedStream();
    m_window->hide();
    for (int cut = 1; cut < stream.size(); ++cut) {
        Peer peer;
        peer.say(stream.left(cut));
        QCoreApplication::processEvents();
        peer.say(stream.mid(cut));
        QVERIFY(eventually([&] { return sceneText() == RECORDED_SCENE && m_window->scene()->isPainting(); }));
        peer.close();
        QVERIFY(eventually([&] { return m_window->scene()->clientCount() == 0; }));
    }
}

void TstMapServer::clientGoesAtEveryByte()
{
    const QByteArray stream = recordedStream();
    m_window->hide();
    for (int cut = 1; cut < stream.size(); ++cut) {
        Peer peer;
        peer.say(stream.left(cut));
        peer.close();
        if (cut >= hello().size())
            QVERIFY(eventually([&] { return said() == "editor has gone"; }));
        QVERIFY(eventually([&] { return m_window->findChildren<MapConnection*>().isEmpty(); }));
        m_said.clear();
        QCOMPARE(m_window->scene()->clientCount(), 0);
        QVERIFY(m_window->scene()->layers().empty());
        QVERIFY(m_window->scene()->isPainting());
    }
}

void TstMapServer::lengthsEndTheLink_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::newRow("0") << QByteArray("\0\0\0\0", 4);
    QTest::newRow("too little for a message") << QByteArray("\0\0\0\x15", 4);
    QTest::newRow("2^31") << QByteArray("\x80\0\0\0", 4);
    QTest::newRow("-1") << QByteArray("\xFF\xFF\xFF\xFF", 4);
    QTest::newRow("one byte over the limit") << QByteArray("\x01\0\0\x01", 4);
}

void TstMapServer::lengthsEndTheLink()
{
    QFETCH(QByteArray, length);
    Peer good;
    good.say(hello("good") + layerFrames());
    Peer stranger;
    stranger.say(length);
    QTRY_VERIFY(!stranger.isOpen());
    QTRY_COMPARE(said(), QString("Link to a client without a name closed: it does not keep to the rules"));
    Peer bad;
    bad.say(hello("bad") + layerFrames() + length);
    QTRY_VERIFY(!bad.isOpen());
    QTRY_COMPARE(said(), QString("Link to bad closed: it does not keep to the rules"));
    QTRY_COMPARE(sceneText(), QString("good Regions:"));
    QVERIFY(good.isOpen());
}

void TstMapServer::randomBytesEndNothing()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const QByteArray stream = recordedStream();
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = stream;
        for (int i = 0; i < 5; ++i)
            bytes[random.bounded(bytes.size())] = char(random.bounded(256));
        Peer peer;
        peer.say(bytes);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        m_window->grab();
    }
    Peer peer;
    peer.say(recordedStream());
    QTRY_VERIFY2(sceneText().endsWith(RECORDED_SCENE), qPrintable(QString("seed %1").arg(seed)));
}

void TstMapServer::otherVersionIsRefused()
{
    Peer peer;
    peer.say(hello("newer", MAP_PROTOCOL_VERSION + 1) + layerFrames());
    QTRY_VERIFY(!peer.isOpen());
    QCOMPARE(peer.heard(), QStringList{line(MAP_REFUSE, 0)});
    QCOMPARE(peer.last().code, MAP_PROTOCOL_VERSION);
    QCOMPARE(said(),
             QString("Link to a client without a name closed: it speaks version 2, the map version 1"));
    QCOMPARE(sceneText(), QString());
}

void TstMapServer::firstWordIsHello()
{
    Peer peer;
    peer.say(layerFrames() + hello());
    QTRY_VERIFY(!peer.isOpen());
    QCOMPARE(peer.heard(), QStringList());
    QCOMPARE(sceneText(), QString());
}

void TstMapServer::whatMakesNoSenseIsLeftOut()
{
    Peer peer;
    peer.say(hello() + layerFrames() + rectFrames(10, "Good", 1, 4, 3, 2));
    const double no = qQNaN();
    const double infinite = qInf();
    for (const MapMessage& message :
         {command(MAP_CREATE_LAYER, 0, 1),
          command(MAP_CREATE_LAYER, -5, 1),
          command(MAP_CREATE_LAYER, 2, 1, "Twice"),
          command(MAP_CREATE_GROUP, 20, 99),
          command(MAP_CREATE_GROUP, 10, 2, "Twice"),
          command(MAP_CREATE_GROUP, -1, 2),
          command(MAP_CREATE_RECT, 21, 99, "", {QPointF(0, 0), QPointF(1, 1)}),
          command(MAP_CREATE_RECT, 22, 10, "", {QPointF(0, 0)}),
          command(MAP_CREATE_RECT, 22, 10, "", {QPointF(0, no), QPointF(1, 1)}),
          command(MAP_CREATE_POLYGON, 23, 10, "", {QPointF(0, 0), QPointF(infinite, 1)}),
          command(MAP_CREATE_RECT, 24, 10, "", {QPointF(-1e300, 0), QPointF(1e300, 1)}),
          command(MAP_TOOL_TIP, 99),
          command(MAP_DELETE, 10, 0, "", {}, 171),
          command(MAP_DELETE, 10, 0, "", {}, 173),
          command(MAP_DELETE, 99, 0, "", {}, 172),
          command(MAP_SELECT, 99, 0, "", {}, 6),
          command(MAP_LAYER_PROPERTIES, 99, 0, "EDIT=TRUE"),
          command(MAP_LAYER_PROPERTIES, 2, 0, ";;=;X;TRANS=TRUE=;"),
          command(MAP_GROUP_DELETED, 10),
          command(MapMessageKind(4711), 10),
          command(MAP_HELLO, 0, 0, "other", {}, 1)})
        peer.say(message.toFrame());
    peer.say(rectFrames(30, "Last", 1, 4, 3, 2));
    QTRY_COMPARE(sceneText(), QString("editor Regions: Good 1,4..3,2 Last 1,4..3,2"));
    QVERIFY(peer.isOpen());
    // Far away and of no size it may be; painting survives it.
    peer.say(rectFrames(40, "Far", -9000, 9000, 9000, -9000) + rectFrames(42, "Point", 7, 7, 7, 7) +
             command(MAP_SELECT, 40, 0, "", {}, 6).toFrame());
    QTRY_COMPARE(m_window->scene()->selection().size(), 1);
    m_window->grab();
}

void TstMapServer::tooMuchEndsTheLink()
{
    const QVector<QPointF> points(900000, QPointF(1, 1));
    Peer peer;
    peer.say(hello() + layerFrames());
    for (int group = 10; group < 16; group += 2)
        peer.say(command(MAP_CREATE_GROUP, group, 2).toFrame() +
                 command(MAP_CREATE_POLYGON, group + 1, group, "", points).toFrame());
    QTRY_VERIFY_WITH_TIMEOUT(!peer.isOpen(), 20000);
    QTRY_COMPARE(said(), QString("Link to editor closed: it draws more than the map can hold"));
    QCOMPARE(sceneText(), QString());
}

void TstMapServer::clientsHaveTheirOwnObjects()
{
    Peer first;
    first.say(hello("first") + layerFrames() + rectFrames(10, "A", 1, 4, 3, 2));
    Peer second;
    second.say(hello("second") + layerFrames() + rectFrames(10, "B", 5, 4, 7, 2));
    QTRY_COMPARE(sceneText(), QString("first Regions: A 1,4..3,2\nsecond Regions: B 5,4..7,2"));
    second.say(command(MAP_DELETE, 10, 0, "", {}, 172).toFrame());
    QTRY_COMPARE(sceneText(), QString("first Regions: A 1,4..3,2\nsecond Regions:"));
    first.forget();
    second.forget();
    m_window->canvas()->selectAll();
    QTRY_COMPARE(first.heard(), QStringList{line(MAP_GROUP_SELECTED, 10)});
    QCOMPARE(second.heard(), QStringList());
    first.close();
    QTRY_COMPARE(sceneText(), QString("second Regions:"));
    QCOMPARE(m_window->scene()->selection().size(), 0);
}

void TstMapServer::lastWordsCount()
{
    size_t shapes = 0;
    connect(m_window->findChild<MapServer*>(), &MapServer::clientLeaves, this,
            [&] { shapes = m_window->scene()->layers().front()->groups.size(); });
    QByteArray frames = hello() + layerFrames();
    for (int i = 0; i < 10000; ++i)
        frames += rectFrames(10 + 2 * i, "R", 1, 4, 3, 2);
    {
        Peer peer;
        peer.say(frames);
        QTRY_COMPARE(peer.socket()->bytesToWrite(), 0);
        peer.close();
    }
    QTRY_COMPARE(m_window->scene()->clientCount(), 0);
    QTRY_COMPARE(shapes, size_t(10000));
}

void TstMapServer::areasAreTold()
{
    Peer peer;
    peer.say(hello() + command(MAP_TELL_WORLD, 0, 0, "", {}, 1).toFrame());
    QTRY_COMPARE(peer.heard().size(), 2);
    QCOMPARE(peer.last().kind, MAP_WORLD_AREA);
    QCOMPARE(peer.last().points, QVector<QPointF>({QPointF(-180, 90), QPointF(180, -90)}));
    m_window->canvas()->zoom(2);
    peer.forget();
    peer.say(command(MAP_TELL_VISIBLE, 0, 0, "", {}, 1).toFrame());
    const auto visible = [this] {
        const QRectF area = m_window->canvas()->viewport().area();
        return QVector<QPointF>({area.bottomLeft(), area.topRight()});
    };
    QTRY_COMPARE(peer.heard(), QStringList{line(MAP_VISIBLE_AREA, 0)});
    QCOMPARE(peer.last().points, visible());
    peer.forget();
    m_window->canvas()->shift(QPoint(10, 5));
    QTRY_COMPARE(peer.heard(), QStringList{line(MAP_VISIBLE_AREA, 0)});
    QCOMPARE(peer.last().points, visible());
    peer.forget();
    peer.say(command(MAP_TELL_VISIBLE, 0).toFrame() + command(MAP_TELL_WORLD, 0, 0, "", {}, 1).toFrame());
    QTRY_COMPARE(peer.heard(), QStringList{line(MAP_WORLD_AREA, 0)});
    m_window->canvas()->shift(QPoint(10, 5));
    QTest::qWait(50);
    QCOMPARE(peer.heard(), QStringList{line(MAP_WORLD_AREA, 0)});
}

void TstMapServer::clientThatDoesNotReadGetsTheNewestArea()
{
    constexpr int SHIFTS = 4000;
    Peer peer;
    peer.socket()->setReadBufferSize(1);
    peer.say(hello() + command(MAP_TELL_VISIBLE, 0, 0, "", {}, 1).toFrame());
    QTRY_COMPARE(m_window->scene()->clientCount(), 1);
    m_window->canvas()->zoom(8);
    for (int i = 0; i < SHIFTS; ++i)
        m_window->canvas()->shift(QPoint(i % 2 ? 3 : -3, 0));
    m_window->canvas()->shift(QPoint(0, 11));
    peer.socket()->setReadBufferSize(0);
    const QRectF area = m_window->canvas()->viewport().area();
    int count = 0;
    const auto isTold = [&] {
        count = peer.heard().size();
        return peer.last().points == QVector<QPointF>({area.bottomLeft(), area.topRight()});
    };
    QTRY_VERIFY_WITH_TIMEOUT(isTold(), 20000);
    // As many as the system's own buffer holds.
    QVERIFY2(count < SHIFTS / 4, qPrintable(QString::number(count)));
}

void TstMapServer::clientThatNeverReadsIsDropped()
{
    Peer peer;
    peer.socket()->setReadBufferSize(1);
    peer.say(hello() + layerFrames());
    for (int i = 0; i < 1000; ++i)
        peer.say(rectFrames(10 + 2 * i, "R", 1, 4, 3, 2));
    QTRY_COMPARE(m_window->scene()->visibleGroups().size(), 1000);
    MapScene* const scene = m_window->scene();
    const QVector<MapKey> keys = scene->visibleGroups();
    const QSet<MapKey> all(keys.begin(), keys.end());
    constexpr int ENOUGH = 800; // Times 30 000 bytes.
    for (int i = 0; i < ENOUGH; ++i)
        scene->select(i % 2 ? QSet<MapKey>() : all);
    QCoreApplication::processEvents();
    QCOMPARE(scene->clientCount(), 0);
    QCOMPARE(said(), QString("Link to editor closed: it does not read"));
}

void TstMapServer::oneMapForAName()
{
    MapWindow second;
    QString error;
    QVERIFY(!second.listen(SERVER, &error));
    QCOMPARE(error, QString("another map program runs already"));
    // The first one is not disturbed, and its place is free when it goes.
    Peer peer;
    peer.say(hello());
    QTRY_COMPARE(m_window->scene()->clientCount(), 1);
    m_window.reset();
    QVERIFY2(second.listen(SERVER, &error), qPrintable(error));
}

// The menu of a layer, as it is when the user looks at it now.
QMenu* TstMapServer::layerMenu(int place) const
{
    auto* const layers = m_window->findChild<QMenu*>("Layers");
    emit layers->aboutToShow();
    return layers->actions()[place]->menu();
}

void TstMapServer::hiddenLayerIsNotShown()
{
    Peer peer;
    peer.say(hello() + layerFrames() + rectFrames(10, "A", 1, 4, 3, 2));
    QTRY_COMPARE(m_window->scene()->visibleGroups().size(), 1);
    m_window->canvas()->selectAll();
    const QImage before = m_window->canvas()->grab().toImage();
    QCOMPARE(layerMenu(0)->title(), QString("editor: Regions"));
    layerMenu(0)->actions()[0]->trigger();
    QCOMPARE(m_window->scene()->visibleGroups().size(), 0);
    QCOMPARE(m_window->scene()->selection().size(), 0);
    QVERIFY(m_window->canvas()->grab().toImage() != before);
    // It stays hidden when another layer comes.
    peer.say(command(MAP_CREATE_LAYER, 3, 1).toFrame());
    QTRY_COMPARE(m_window->scene()->layers().size(), size_t(2));
    QVERIFY(!layerMenu(0)->actions()[0]->isChecked());
    QVERIFY(layerMenu(1)->actions()[0]->isChecked());
    QCOMPARE(layerMenu(1)->title(), QString("editor: Layer without a name"));
    layerMenu(0)->actions()[0]->trigger();
    m_window->canvas()->selectAll();
    QCOMPARE(m_window->canvas()->grab().toImage(), before);
}

void TstMapServer::layerIsDeletedInItsMenu()
{
    Peer peer;
    peer.say(hello() + layerFrames() + command(MAP_CREATE_LAYER, 3, 1, "Stays").toFrame() +
             rectFrames(10, "A", 1, 4, 3, 2));
    QTRY_COMPARE(m_window->scene()->visibleGroups().size(), 1);
    peer.forget();
    QVERIFY(!layerMenu(1)->actions()[1]->isEnabled());
    layerMenu(0)->actions()[1]->trigger();
    QTRY_COMPARE(peer.heard(), QStringList{line(MAP_LAYER_DELETED, 2)});
    QCOMPARE(sceneText(), QString("editor Stays:"));
}

void TstMapServer::everyControlHasAName()
{
    QCOMPARE(JedTest::namelessControls(m_window.get()), QStringList());
}

JED_TEST_MAIN(TstMapServer)
#include "tst_mapserver.moc"
