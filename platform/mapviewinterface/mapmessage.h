#pragma once

#include <mapviewinterface/mapviewinterface_export.h>
#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

/// What is said between a client and the map program, over a local socket. Each side sends frames: the number of
/// bytes that follow (32 bits, at most MAX_FRAME_BYTES), the kind (16 bits) and the content, all of it big endian.
/// The content is the same for all kinds: id, parent and code (32 bits, signed), the length of the text in bytes
/// and the text (UTF-8), the number of points and the points (two doubles each).
///
/// A client begins with MAP_HELLO; the map program answers MAP_WELCOME or MAP_REFUSE and closes. What breaks these
/// rules ends the link.
enum MapMessageKind : quint16 {
    // Of the client.
    MAP_HELLO = 1,        ///< code: protocol version; text: the client's name
    MAP_CREATE_LAYER = 2, ///< id; parent: the overlay; text: name
    MAP_LAYER_PROPERTIES, ///< id; text: NAME=VALUE joined by ";"
    MAP_CREATE_GROUP,     ///< id; parent: the layer; text: name
    MAP_CREATE_RECT,      ///< id; parent: the group; text: name; points: left top, right bottom
    MAP_CREATE_POLYGON,   ///< id; parent: the group; text: name; points
    MAP_CREATE_EDITABLE,  ///< id; parent: the group; text: name. The user draws the points.
    MAP_TOOL_TIP,         ///< id of the group; text: empty for none
    MAP_DELETE,           ///< id; code: 171 layer, 172 group, 173 shape
    MAP_SELECT,           ///< id of the group; code: how. The map shows it.
    MAP_PAINT,            ///< code: 0 to stop painting, 1 to go on
    MAP_TELL_VISIBLE,     ///< code: 1 to be told the visible area, 0 not to be
    MAP_TELL_WORLD,       ///< code: the same for the whole map

    // Of the map program.
    MAP_WELCOME = 101,    ///< code: protocol version; id: the overlay
    MAP_REFUSE,           ///< code: protocol version of the map program
    MAP_GROUP_DELETED,    ///< id. What lies below is gone, too.
    MAP_LAYER_DELETED,    ///< the same
    MAP_SHAPE_DELETED,    ///< the same
    MAP_GROUP_MOVED,      ///< id; points: the offset. Of polygons.
    MAP_GROUP_RESIZED,    ///< id; points: left top, right bottom. Of rectangles.
    MAP_GROUP_SELECTED,   ///< id
    MAP_GROUP_DESELECTED, ///< id
    MAP_VISIBLE_AREA,     ///< points: two corners
    MAP_WORLD_AREA,       ///< the same
    MAP_POLYGON_DRAWN,    ///< id of the shape; points
};

/// The version of these rules. Both sides must have the same.
constexpr int MAP_PROTOCOL_VERSION = 1;
/// What a frame may hold behind its length.
constexpr int MAX_FRAME_BYTES = 16 * 1024 * 1024;

/// One message. What a kind does not use is empty or 0.
struct MAPVIEWINTERFACE_EXPORT MapMessage
{
    MapMessageKind kind = MAP_HELLO;
    qint32 id = 0;
    qint32 parent = 0;
    qint32 code = 0;
    QString text;
    QVector<QPointF> points;

    /// The message as a frame.
    QByteArray toFrame() const;
    /// The name of the local socket: \p name, else that of the environment variable JED_MAPVIEW, else the usual one.
    static QString serverName(const QString& name);
};

/// Takes messages out of the bytes that arrive, in whatever pieces.
class MAPVIEWINTERFACE_EXPORT MapMessageReader
{
public:
    enum Result {
        INCOMPLETE, ///< more bytes are needed
        MESSAGE,    ///< there is one
        BROKEN      ///< not by the rules; the link is of no use any more
    };

    void append(const QByteArray& bytes) { m_buffer += bytes; }
    Result next(MapMessage* message);
    void clear() { m_buffer.clear(); }

private:
    QByteArray m_buffer;
};
