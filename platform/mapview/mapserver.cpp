#include "mapserver.h"

#include "mapscene.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QTimer>

namespace {
constexpr qint32 OVERLAY = 1;
constexpr int CHUNK = 64 * 1024;                // Bytes; small, since messages are taken from the front.
constexpr int READ_BUFFER = 1024 * 1024;        // Bytes; a client that sends more has to wait.
constexpr int WAITING_LIMIT = 16 * 1024 * 1024; // Bytes that a client may leave unread.
constexpr int TURN_TIME = 10;                   // ms of work before events of the user have their turn
} // namespace

MapConnection::MapConnection(QLocalSocket* socket, MapScene* scene, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_scene(scene)
{
    m_socket->setParent(this);
    m_socket->setReadBufferSize(READ_BUFFER);
    connect(m_socket, &QLocalSocket::readyRead, this, &MapConnection::read);
    // Not in the middle of a change of the scene that a client is told of.
    connect(m_socket, &QLocalSocket::disconnected, this, &MapConnection::read, Qt::QueuedConnection);
    connect(m_socket, &QLocalSocket::bytesWritten, this, &MapConnection::sendVisibleArea);
    connect(m_scene, &MapScene::told, this, [this](int client, const MapMessage& message) {
        if (client == m_client)
            send(message);
    });
    // It may have come with its first words.
    QTimer::singleShot(0, this, &MapConnection::read);
}

void MapConnection::send(const MapMessage& message)
{
    if (m_isClosed)
        return;
    if (m_socket->bytesToWrite() > WAITING_LIMIT)
        return drop(tr("it does not read"));
    m_socket->write(message.toFrame());
    // What the user has done is with the client, even if the map ends now.
    if (message.kind != MAP_GROUP_SELECTED && message.kind != MAP_GROUP_DESELECTED)
        m_socket->flush();
}

void MapConnection::setVisibleArea(const QRectF& area)
{
    m_isAreaNew = m_isAreaNew || area != m_visibleArea;
    m_visibleArea = area;
    sendVisibleArea();
}

void MapConnection::read()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_isClosed && m_socket->bytesAvailable() > 0) {
        m_reader.append(m_socket->read(CHUNK));
        handleArrived();
        if (timer.elapsed() >= TURN_TIME)
            return QTimer::singleShot(0, this, &MapConnection::read);
    }
    // What it said last counts.
    if (m_socket->state() == QLocalSocket::UnconnectedState)
        drop(QString());
}

void MapConnection::handleArrived()
{
    MapMessage message;
    while (!m_isClosed) {
        const MapMessageReader::Result result = m_reader.next(&message);
        if (result == MapMessageReader::INCOMPLETE)
            return;
        if (result == MapMessageReader::BROKEN)
            drop(tr("it does not keep to the rules"));
        else
            handle(message);
    }
}

void MapConnection::handle(const MapMessage& message)
{
    if (m_client == 0)
        return greet(message);
    if (message.kind == MAP_TELL_VISIBLE) {
        m_wantsVisibleArea = message.code != 0;
        m_isAreaNew = true;
        sendVisibleArea();
    } else if (message.kind == MAP_TELL_WORLD && message.code != 0) {
        send({MAP_WORLD_AREA, 0, 0, 0, QString(), cornersOf(MapScene::world())});
    } else if (!m_scene->apply(m_client, message)) {
        drop(tr("it draws more than the map can hold"));
    }
}

void MapConnection::greet(const MapMessage& message)
{
    if (message.kind != MAP_HELLO)
        return drop(tr("it does not keep to the rules"));
    if (message.code != MAP_PROTOCOL_VERSION) {
        send({MAP_REFUSE, 0, 0, MAP_PROTOCOL_VERSION, QString(), {}});
        return drop(
            tr("it speaks version %1, the map version %2").arg(message.code).arg(MAP_PROTOCOL_VERSION));
    }
    m_client = m_scene->addClient(message.text);
    send({MAP_WELCOME, OVERLAY, 0, MAP_PROTOCOL_VERSION, QString(), {}});
    emit introduced(tr("%1 has come").arg(message.text));
}

void MapConnection::sendVisibleArea()
{
    if (!m_wantsVisibleArea || !m_isAreaNew || m_socket->bytesToWrite() > 0)
        return;
    m_isAreaNew = false;
    send({MAP_VISIBLE_AREA, 0, 0, 0, QString(), cornersOf(m_visibleArea)});
}

void MapConnection::drop(const QString& reason)
{
    if (std::exchange(m_isClosed, true))
        return;
    // A refusal is still to be read by the other side.
    m_socket->disconnectFromServer();
    emit closed(reason);
}

MapServer::MapServer(MapScene* scene, QObject* parent)
    : QObject(parent)
    , m_scene(scene)
{
    // Nobody else's clients.
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &MapServer::accept);
}

bool MapServer::listen(const QString& name, QString* error)
{
    const QByteArray key = name.toUtf8().toBase64(QByteArray::Base64UrlEncoding);
    m_lock = std::make_unique<QLockFile>(
        QDir::temp().filePath(QString::fromLatin1(key) + QStringLiteral(".map.lock")));
    // Only the end of its owner makes it void.
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock()) {
        *error = tr("another map program runs already");
        return false;
    }
    // One that was killed leaves its socket.
    QLocalServer::removeServer(name);
    if (m_server.listen(name))
        return true;
    *error = m_server.errorString();
    return false;
}

void MapServer::setVisibleArea(const QRectF& area)
{
    m_visibleArea = area;
    emit visibleAreaChanged(area);
}

void MapServer::accept()
{
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        auto* const connection = new MapConnection(socket, m_scene, this);
        connection->setVisibleArea(m_visibleArea);
        connect(this, &MapServer::visibleAreaChanged, connection, &MapConnection::setVisibleArea);
        connect(connection, &MapConnection::introduced, this, &MapServer::message);
        connect(
            connection, &MapConnection::closed, this,
            [this, connection](const QString& reason) { release(connection, reason); }, Qt::QueuedConnection);
    }
}

void MapServer::release(MapConnection* connection, const QString& reason)
{
    const int client = connection->client();
    const QString name = client == 0 ? tr("a client without a name") : m_scene->clientName(client);
    connection->deleteLater();
    if (client != 0) {
        emit clientLeaves();
        m_scene->removeClient(client);
    }
    if (!reason.isEmpty())
        emit message(tr("Link to %1 closed: %2").arg(name, reason));
    else if (client != 0)
        emit message(tr("%1 has gone").arg(name));
}
