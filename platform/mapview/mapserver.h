#pragma once

#include <mapviewinterface/mapmessage.h>
#include <memory>
#include <QLocalServer>
#include <QLockFile>
#include <QRectF>

class MapScene;
class QLocalSocket;

/// The link to one client: takes its messages to the scene.
class MapConnection : public QObject
{
    Q_OBJECT
public:
    /// Takes the socket over.
    MapConnection(QLocalSocket* socket, MapScene* scene, QObject* parent);

    /// 0 as long as it has not said who it is.
    int client() const { return m_client; }
    /// Tells the client, if it wants to know. While it does not read only the newest area waits.
    void setVisibleArea(const QRectF& area);

signals:
    /// It is known now; a word about that for the user.
    void introduced(const QString& text);
    /// The link has gone for a reason that is worth a word. Empty: the client closed it.
    void closed(const QString& reason);

private:
    void send(const MapMessage& message);
    void read();
    void handleArrived();
    void handle(const MapMessage& message);
    void greet(const MapMessage& message);
    void sendVisibleArea();
    void drop(const QString& reason);

    QLocalSocket* m_socket; // Child.
    MapScene* m_scene;      // Not owned.
    MapMessageReader m_reader;
    int m_client = 0;
    bool m_isClosed = false;
    bool m_wantsVisibleArea = false;
    bool m_isAreaNew = false; // Not sent yet.
    QRectF m_visibleArea;
};

/// Takes in clients and lets them draw on the scene.
class MapServer : public QObject
{
    Q_OBJECT
public:
    /// \param scene  must outlive the server
    MapServer(MapScene* scene, QObject* parent);

    /// \param name  see MapMessage::serverName()
    /// \return false if another map program has the name; \p error tells
    bool listen(const QString& name, QString* error);
    /// What is visible now; clients that want to know are told.
    void setVisibleArea(const QRectF& area);

signals:
    void visibleAreaChanged(const QRectF& area);
    /// Something for the user to know.
    void message(const QString& text);
    /// A client goes; what it has drawn is still there.
    void clientLeaves();

private:
    void accept();
    void release(MapConnection* connection, const QString& reason);

    MapScene* m_scene; // Not owned.
    QLocalServer m_server;
    std::unique_ptr<QLockFile> m_lock; // Held as long as the name is ours.
    QRectF m_visibleArea;
};
