#include <mapviewinterface/mapmessage.h>
#include <mapviewinterface/mapviewinterface.h>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <support/recordingmap.h>

using JedTest::RecordingMap;

namespace {
const QString SERVER = QString("jed-test-messages-%1").arg(QCoreApplication::applicationPid());

MapMessage sample()
{
    MapMessage message;
    message.kind = MAP_CREATE_POLYGON;
    message.id = 17;
    message.parent = -3;
    message.code = 172;
    message.text = QString::fromUtf8("Søk \xF0\x9F\x93\xA1");
    message.points = {QPointF(-180, 90), QPointF(0.1, -1e-9)};
    return message;
}

bool isEqual(const MapMessage& a, const MapMessage& b)
{
    return a.kind == b.kind && a.id == b.id && a.parent == b.parent && a.code == b.code && a.text == b.text &&
           a.points == b.points;
}

/// Writes down what it is told.
class Client : public MapViewInterface
{
public:
    Client()
        : MapViewInterface(SERVER, "client")
    {
    }

    int m_initialized = 0;
    int m_reset = 0;
    int m_moves = 0;

protected:
    void onInitializeMapView() override { ++m_initialized; }
    void onResetMapView() override { ++m_reset; }
    void on_MST_EVENT_GROUP_MOVE(const MST_EVENT_GROUP_MOVE&) override { ++m_moves; }
};
} // namespace

// The protocol between a client and the map program, and what a client does when the other side does not keep to it.
class TstMapMessages : public QObject
{
    Q_OBJECT
private slots:
    void messageGoesThereAndBack();
    void streamIsCutAtEveryByte();
    void lengthsAreChecked_data();
    void lengthsAreChecked();
    void contentIsChecked_data();
    void contentIsChecked();
    void randomBytesEndNothing();

    void callsWithoutALinkDoNothing();
    void otherVersionIsNotSpokenTo();
    void rubbishEndsTheLink_data();
    void rubbishEndsTheLink();
    void eventsWithoutTheirPointsAreLeftOut();
    void mapThatDoesNotReadHoldsNobodyUp();
    void linkComesBackManyTimes();
};

void TstMapMessages::messageGoesThereAndBack()
{
    MapMessageReader reader;
    MapMessage empty;
    reader.append(sample().toFrame() + empty.toFrame());
    MapMessage message;
    QCOMPARE(reader.next(&message), MapMessageReader::MESSAGE);
    QVERIFY(isEqual(message, sample()));
    QCOMPARE(reader.next(&message), MapMessageReader::MESSAGE);
    QVERIFY(isEqual(message, empty));
    QCOMPARE(reader.next(&message), MapMessageReader::INCOMPLETE);
}

void TstMapMessages::streamIsCutAtEveryByte()
{
    const QByteArray frame = sample().toFrame();
    for (int cut = 0; cut < frame.size(); ++cut) {
        MapMessageReader reader;
        MapMessage message;
        reader.append(frame.left(cut));
        QCOMPARE(reader.next(&message), MapMessageReader::INCOMPLETE);
        reader.append(frame.mid(cut));
        QCOMPARE(reader.next(&message), MapMessageReader::MESSAGE);
        QVERIFY(isEqual(message, sample()));
    }
}

void TstMapMessages::lengthsAreChecked_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::newRow("0") << QByteArray("\0\0\0\0", 4);
    QTest::newRow("too little for a message") << QByteArray("\0\0\0\x15", 4);
    QTest::newRow("2^31") << QByteArray("\x80\0\0\0", 4);
    QTest::newRow("-1") << QByteArray("\xFF\xFF\xFF\xFF", 4);
    QTest::newRow("one byte over the limit") << QByteArray("\x01\0\0\x01", 4);
}

void TstMapMessages::lengthsAreChecked()
{
    QFETCH(QByteArray, length);
    MapMessageReader reader;
    MapMessage message;
    reader.append(length);
    QCOMPARE(reader.next(&message), MapMessageReader::BROKEN);
}

void TstMapMessages::contentIsChecked_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("bytes");
    // Behind length, kind, id, parent and code stands the length of the text.
    const int textLength = 4 + 2 + 12;
    QTest::newRow("text longer than the frame") << textLength << QByteArray("\0\0\x10\0", 4);
    QTest::newRow("text of length -1") << textLength << QByteArray("\xFF\xFF\xFF\xFF", 4);
    QTest::newRow("text a byte longer") << textLength << QByteArray("\0\0\0\x0A", 4);
    const int pointCount = textLength + 4 + sample().text.toUtf8().size();
    QTest::newRow("too many points") << pointCount << QByteArray("\x10\0\0\0", 4);
    QTest::newRow("-1 points") << pointCount << QByteArray("\xFF\xFF\xFF\xFF", 4);
    QTest::newRow("too few points") << pointCount << QByteArray("\0\0\0\x01", 4);
}

void TstMapMessages::contentIsChecked()
{
    QFETCH(int, place);
    QFETCH(QByteArray, bytes);
    MapMessageReader reader;
    MapMessage message;
    reader.append(sample().toFrame().replace(place, bytes.size(), bytes));
    QCOMPARE(reader.next(&message), MapMessageReader::BROKEN);
}

void TstMapMessages::randomBytesEndNothing()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes = sample().toFrame();
        for (int i = 0; i < 3; ++i)
            bytes[int(random.bounded(bytes.size()))] = char(random.bounded(256));
        MapMessageReader reader;
        MapMessage message;
        reader.append(bytes);
        const MapMessageReader::Result result = reader.next(&message);
        QVERIFY2(result != MapMessageReader::MESSAGE || message.text.size() <= bytes.size(),
                 qPrintable(QString("seed %1").arg(seed)));
    }
}

void TstMapMessages::callsWithoutALinkDoNothing()
{
    Client client;
    QVERIFY(!client.isConnected());
    QCOMPARE(client.getOverlay(), 0);
    QCOMPARE(client.createMapViewLayer(1, L"l"), 0);
    QCOMPARE(client.createMapViewGroup(1, L"g"), 0);
    QCOMPARE(client.createMapViewRect(1, L"r", 0, 1, 1, 0, 1), 0);
    QCOMPARE(client.createMapViewPolygon(1, L"p", 0, nullptr, 1), 0);
    QCOMPARE(client.createMapViewEditablePoly(1, L"e", 1), 0);
    client.setToolTip(1, true, L"t");
    client.deleteMapViewObj(1, 172);
    client.selectInMap(1, 6);
    client.setPaint(true);
    QCOMPARE(client.m_initialized, 0);
}

void TstMapMessages::otherVersionIsNotSpokenTo()
{
    RecordingMap map(SERVER);
    map.m_version = MAP_PROTOCOL_VERSION + 1;
    QVERIFY(map.start());
    Client client;
    QTRY_COMPARE(map.clientName(), QString("client"));
    QTest::qWait(100);
    QVERIFY(!client.isConnected());
    QCOMPARE(client.m_initialized, 0);
}

void TstMapMessages::rubbishEndsTheLink_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("length 0") << QByteArray("\0\0\0\0", 4);
    QTest::newRow("length -1") << QByteArray("\xFF\xFF\xFF\xFF", 4);
    QTest::newRow("length 2^31") << QByteArray("\x80\0\0\0", 4);
    QTest::newRow("text") << QByteArray("HTTP/1.1 200 OK\r\n\r\n");
}

void TstMapMessages::rubbishEndsTheLink()
{
    QFETCH(QByteArray, bytes);
    RecordingMap map(SERVER);
    QVERIFY(map.start());
    Client client;
    QTRY_VERIFY(client.isConnected());
    map.sendBytes(bytes);
    QTRY_VERIFY(!client.isConnected());
    QCOMPARE(client.m_reset, 1);
}

void TstMapMessages::eventsWithoutTheirPointsAreLeftOut()
{
    RecordingMap map(SERVER);
    QVERIFY(map.start());
    Client client;
    QTRY_VERIFY(client.isConnected());
    map.send(MAP_GROUP_MOVED, 2);
    map.send(MAP_GROUP_MOVED, 2, {QPointF(), QPointF()});
    map.send(static_cast<MapMessageKind>(999), 2);
    map.send(MAP_GROUP_MOVED, 2, {QPointF(1, 1)});
    QTRY_COMPARE(client.m_moves, 1);
    QVERIFY(client.isConnected());
}

void TstMapMessages::mapThatDoesNotReadHoldsNobodyUp()
{
    RecordingMap map(SERVER);
    QVERIFY(map.start());
    Client client;
    QTRY_VERIFY(client.isConnected());
    map.take();
    // No event is processed, so the map reads nothing meanwhile.
    qint64 longest = 0;
    int group = 0;
    QElapsedTimer timer;
    for (int i = 0; i < 100000; ++i) {
        timer.start();
        if (group != 0)
            client.deleteMapViewObj(group, 172);
        group = client.createMapViewGroup(2, L"one object that changes");
        client.setToolTip(group, true, L"its newest text");
        longest = qMax(longest, timer.elapsed());
    }
    QVERIFY2(longest < 50, qPrintable(QString::number(longest)));
    MapMessage last;
    const auto isTold = [&] {
        const QVector<MapMessage> messages = map.take();
        if (!messages.isEmpty())
            last = messages.last();
        return last.kind == MAP_TOOL_TIP && last.id == group;
    };
    QTRY_VERIFY(isTold());
}

void TstMapMessages::linkComesBackManyTimes()
{
    Client client;
    for (int round = 1; round <= 5; ++round) {
        RecordingMap map(SERVER);
        QVERIFY(map.start());
        QTRY_COMPARE(client.m_initialized, round);
        map.stop();
        QTRY_COMPARE(client.m_reset, round);
        QCOMPARE(client.createMapViewGroup(1, L"g"), 0);
    }
}

QTEST_GUILESS_MAIN(TstMapMessages)
#include "tst_mapmessages.moc"
