#include "textfile_p.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace JEDVEPLUGIN {

namespace {
const qint64 MAX_BYTES = 64 * 1024 * 1024;
const qint64 CHUNK_BYTES = 64 * 1024;
} // namespace

std::optional<QString> readTextFile(const QString& path)
{
    // Opening a pipe may never return, so the kind of file is looked at before.
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > MAX_BYTES)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    // What a file says of its size need not hold: it may grow meanwhile, and files of the system say 0.
    QByteArray bytes;
    for (QByteArray chunk = file.read(CHUNK_BYTES); !chunk.isEmpty(); chunk = file.read(CHUNK_BYTES)) {
        bytes += chunk;
        if (bytes.size() > MAX_BYTES)
            return std::nullopt;
    }
    if (file.error() != QFileDevice::NoError)
        return std::nullopt; // cut off by a fault, so not what the file holds
    // With the size, since a NUL would end the text otherwise.
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

} // namespace JEDVEPLUGIN
