#include "savefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {
bool refuse(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    return false;
}

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::SaveFile)
};
} // namespace

namespace Session {

bool saveFile(const QString& path, const QByteArray& content, QString* error)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return refuse(error, Texts::tr("it is no regular file"));
    if (!target.absoluteDir().exists())
        return refuse(error, Texts::tr("the folder %1 does not exist").arg(target.absolutePath()));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return refuse(error, file.errorString());
    // A short write sets no error, and commit() does not look at what its own flush gives.
    if (file.write(content) != content.size() || !file.flush()) {
        file.cancelWriting();
        return refuse(error, Texts::tr("not everything could be written, the disk may be full"));
    }
    return file.commit() || refuse(error, file.errorString());
}

bool readFile(const QString& path, QByteArray* content, QString* error)
{
    content->clear();
    const QFileInfo source(path);
    if (!source.exists())
        return refuse(error, Texts::tr("there is no such file"));
    if (!source.isFile())
        return refuse(error, Texts::tr("it is no regular file"));
    if (source.size() > MAX_FILE_SIZE)
        return refuse(error, Texts::tr("it is larger than %1 MiB").arg(MAX_FILE_SIZE / (1024 * 1024)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(error, file.errorString());
    *content = file.read(MAX_FILE_SIZE);
    return true;
}

QString decodedText(const QByteArray& content)
{
    return QString::fromUtf8(content.constData(), content.size());
}

} // namespace Session
