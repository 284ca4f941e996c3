#include "maplink_p.h"

#include "mapdispatch_p.h"

#include <mapviewinterface/mapviewinterface.h>
#include <QPointer>
#include <utility>

namespace {
constexpr int RETRY_TIME = 300;           // ms, while there is no map program
constexpr int STRANGER_RETRY_TIME = 5000; // ms, when the peer is of another version or talks rubbish
constexpr int FULL_BUFFER =
    64 * 1024; // bytes that wait in the socket; the rest waits in the queue, where it can be replaced
} // namespace

MapLink::MapLink(MapViewInterface* client, const QString& server, const QString& name)
    : m_client(client)
    , m_server(MapMessage::serverName(server))
    , m_name(name)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &MapLink::connectToMap);
    connect(&m_socket, &QLocalSocket::connected, this, &MapLink::sayHello);
    connect(&m_socket, &QLocalSocket::readyRead, this, &MapLink::read);
    connect(&m_socket, &QLocalSocket::bytesWritten, this, &MapLink::write);
    connect(&m_socket, &QLocalSocket::disconnected, this, &MapLink::lost);
    connect(&m_socket, &QLocalSocket::errorOccurred, this, [this] {
        if (m_socket.state() != QLocalSocket::ConnectedState)
            lost();
    });
    // From the event loop, when the client is whole.
    m_retry.start(0);
}

MapLink::~MapLink()
{
    m_socket.disconnect(this);
}

void MapLink::send(const MapMessage& message)
{
    m_queue.push(message);
    write();
}

void MapLink::connectToMap()
{
    m_socket.connectToServer(m_server);
}

void MapLink::sayHello()
{
    MapMessage hello;
    hello.kind = MAP_HELLO;
    hello.code = MAP_PROTOCOL_VERSION;
    hello.text = m_name;
    m_socket.write(hello.toFrame());
}

void MapLink::write()
{
    while (m_isConnected && !m_queue.isEmpty() && m_socket.bytesToWrite() < FULL_BUFFER)
        m_socket.write(m_queue.takeFirst().toFrame());
}

void MapLink::read()
{
    m_reader.append(m_socket.readAll());
    MapMessage message;
    // A handler may delete the client, and this with it.
    const QPointer<MapLink> guard(this);
    for (;;) {
        const MapMessageReader::Result result = m_reader.next(&message);
        if (result == MapMessageReader::INCOMPLETE)
            return;
        if (result == MapMessageReader::BROKEN)
            return drop(STRANGER_RETRY_TIME);
        if (m_isConnected)
            MapDispatch::tell(m_client, message);
        else if (!handleGreeting(message))
            return;
        if (!guard)
            return;
    }
}

bool MapLink::handleGreeting(const MapMessage& message)
{
    if (message.kind != MAP_WELCOME || message.code != MAP_PROTOCOL_VERSION || message.id <= 0) {
        drop(STRANGER_RETRY_TIME);
        return false;
    }
    m_isConnected = true;
    m_overlay = message.id;
    m_lastId = message.id;
    const QPointer<MapLink> guard(this);
    MapDispatch::tellInitialized(m_client);
    return !guard.isNull();
}

void MapLink::drop(int retryTime)
{
    m_retry.start(retryTime);
    m_socket.abort();
}

void MapLink::lost()
{
    m_reader.clear();
    m_queue.clear();
    m_overlay = 0;
    if (!m_retry.isActive())
        m_retry.start(RETRY_TIME);
    if (std::exchange(m_isConnected, false))
        MapDispatch::tellReset(m_client);
}
