#pragma once

#include <mapviewinterface/mapmessage.h>

#include <QLocalServer>
#include <QLocalSocket>

#include <memory>

namespace JedTest {

/// A map program without a map: greets one client at a time and writes down what it says.
class RecordingMap : public QObject
{
public:
    explicit RecordingMap(const QString& server)
        : m_name(server)
    {
        QObject::connect(&m_server, &QLocalServer::newConnection, this, [this] { accept(); });
    }
    ~RecordingMap() override { stop(); }

    bool start()
    {
        QLocalServer::removeServer(m_name);
        return m_server.listen(m_name);
    }
    void stop()
    {
        m_server.close();
        if (m_socket)
            m_socket->abort();
        m_socket.reset();
    }
    bool hasClient() const { return m_socket && m_socket->state() == QLocalSocket::ConnectedState; }
    QString clientName() const { return m_clientName; }

    void send(MapMessageKind kind, int id, const QVector<QPointF>& points = {}, int code = 0)
    {
        MapMessage message;
        message.kind = kind;
        message.id = id;
        message.code = code;
        message.points = points;
        sendBytes(message.toFrame());
    }
    void sendBytes(const QByteArray& bytes)
    {
        m_socket->write(bytes);
        m_socket->flush();
    }

    /// What the client said since the last call.
    QVector<MapMessage> take()
    {
        QVector<MapMessage> messages;
        messages.swap(m_messages);
        return messages;
    }
    int messageCount() const { return m_messages.size(); }

    int m_version = MAP_PROTOCOL_VERSION;
    bool m_greets = true;

private:
    void accept()
    {
        m_socket.reset(m_server.nextPendingConnection());
        m_reader.clear();
        QObject::connect(m_socket.get(), &QLocalSocket::readyRead, this, [this] { read(); });
    }
    void read()
    {
        m_reader.append(m_socket->readAll());
        MapMessage message;
        while (m_reader.next(&message) == MapMessageReader::MESSAGE) {
            if (message.kind != MAP_HELLO) {
                m_messages.append(message);
                continue;
            }
            m_clientName = message.text;
            if (m_greets)
                send(MAP_WELCOME, 1, {}, m_version);
        }
    }

    QString m_name;
    QLocalServer m_server;
    std::unique_ptr<QLocalSocket> m_socket;
    MapMessageReader m_reader;
    QVector<MapMessage> m_messages;
    QString m_clientName;
};

} // namespace JedTest
