#include <mapviewinterface/mapmessage.h>
#include <QDataStream>
#include <QtEndian>

namespace {
constexpr int LENGTH_BYTES = 4;
constexpr int SMALLEST_FRAME = 2 + 5 * 4; // kind, three numbers, two lengths
constexpr int POINT_BYTES = 16;

void prepare(QDataStream* stream)
{
    stream->setVersion(QDataStream::Qt_5_12);
    stream->setByteOrder(QDataStream::BigEndian);
    stream->setFloatingPointPrecision(QDataStream::DoublePrecision);
}

// Lengths are held against what is there before anything is allocated for them.
bool parse(const QByteArray& frame, MapMessage* message)
{
    QDataStream stream(frame);
    prepare(&stream);
    quint16 kind = 0;
    qint32 textBytes = 0;
    stream >> kind >> message->id >> message->parent >> message->code >> textBytes;
    if (textBytes < 0 || textBytes > stream.device()->bytesAvailable())
        return false;
    message->kind = static_cast<MapMessageKind>(kind);
    message->text = QString::fromUtf8(stream.device()->read(textBytes));
    qint32 count = 0;
    stream >> count;
    if (stream.status() != QDataStream::Ok || count < 0 ||
        stream.device()->bytesAvailable() != qint64(count) * POINT_BYTES)
        return false;
    message->points.clear();
    message->points.reserve(count);
    for (int i = 0; i < count; ++i) {
        double x = 0;
        double y = 0;
        stream >> x >> y;
        message->points.append(QPointF(x, y));
    }
    return true;
}
} // namespace

QByteArray MapMessage::toFrame() const
{
    const QByteArray bytes = text.toUtf8();
    QByteArray frame;
    QDataStream stream(&frame, QIODevice::WriteOnly);
    prepare(&stream);
    stream << qint32(SMALLEST_FRAME + bytes.size() + points.size() * POINT_BYTES);
    stream << quint16(kind) << id << parent << code << qint32(bytes.size());
    stream.writeRawData(bytes.constData(), bytes.size());
    stream << qint32(points.size());
    for (const QPointF& point : points)
        stream << point.x() << point.y();
    return frame;
}

QString MapMessage::serverName(const QString& name)
{
    return name.isEmpty() ? qEnvironmentVariable("JED_MAPVIEW", QStringLiteral("jobeditorve-mapview")) : name;
}

MapMessageReader::Result MapMessageReader::next(MapMessage* message)
{
    if (m_buffer.size() < LENGTH_BYTES)
        return INCOMPLETE;
    const qint32 length = qFromBigEndian<qint32>(m_buffer.constData());
    if (length < SMALLEST_FRAME || length > MAX_FRAME_BYTES)
        return BROKEN;
    if (m_buffer.size() < LENGTH_BYTES + length)
        return INCOMPLETE;
    const bool isGood = parse(m_buffer.mid(LENGTH_BYTES, length), message);
    m_buffer.remove(0, LENGTH_BYTES + length);
    return isGood ? MESSAGE : BROKEN;
}
