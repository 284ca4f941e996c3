#pragma once

#include "commandqueue_p.h"

#include <QLocalSocket>
#include <QObject>
#include <QTimer>

class MapViewInterface;

/// The client's end of the link to the map program: finds it, says hello, sends without waiting, and hands what
/// arrives to the handlers. A link that is lost, or a peer that does not keep to the rules, is tried again.
class MapLink : public QObject
{
    Q_OBJECT
public:
    MapLink(MapViewInterface* client, const QString& server, const QString& name);
    ~MapLink() override;

    bool isConnected() const { return m_isConnected; }
    int overlay() const { return m_overlay; }
    int newId() { return ++m_lastId; }
    void send(const MapMessage& message);

private:
    void connectToMap();
    void sayHello();
    void write();
    void read();
    void drop(int retryTime);
    void lost();
    bool handleGreeting(const MapMessage& message);

    MapViewInterface* m_client; // Not owned; owns this.
    QString m_server;
    QString m_name;
    QLocalSocket m_socket;
    QTimer m_retry;
    MapMessageReader m_reader;
    CommandQueue m_queue;
    int m_overlay = 0;
    int m_lastId = 0;
    bool m_isConnected = false;
};
