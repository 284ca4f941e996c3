#include "savefile.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
// Of the name of a file, for the name of the new one beside it, which must not become too long for a folder.
constexpr int MAX_NAME_PART = 50;
constexpr int MAX_LINKS = 40;
const QLatin1String PART_SUFFIX(".saving");

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

QFileInfo behindLinks(const QString& path)
{
    QFileInfo info(path);
    for (int i = 0; i < MAX_LINKS && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info;
}

// Name of the file that is written beside a target and then takes its place, without the number of the process.
QString partName(const QFileInfo& target)
{
    return QStringLiteral(".%1.").arg(target.fileName().left(MAX_NAME_PART));
}

bool isAlive(qint64 process)
{
    return kill(pid_t(process), 0) == 0 || errno != ESRCH;
}

// What processes left that were killed while they saved the target.
void removeLeftParts(const QFileInfo& target)
{
    const QDir folder = target.absoluteDir();
    const QString name = partName(target);
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (!file.startsWith(name) || !file.endsWith(PART_SUFFIX))
            continue;
        bool isNumber = false;
        const int process = file.mid(name.size()).chopped(PART_SUFFIX.size()).toInt(&isNumber);
        if (isNumber && process > 0 && !isAlive(process))
            QFile::remove(folder.absoluteFilePath(file));
    }
}

// A write that comes back short sets no error.
bool writeAll(QFile* file, const QByteArray& content)
{
    return file->write(content) == content.size() && file->flush();
}
} // namespace

namespace Session {

bool saveFile(const QString& path, const QByteArray& content, QString* error)
{
    const QFileInfo target = behindLinks(path);
    if (target.exists() && !target.isFile())
        return refuse(error, Texts::tr("it is no regular file"));
    if (!target.absoluteDir().exists())
        return refuse(error, Texts::tr("the folder %1 does not exist").arg(target.absolutePath()));
    if (target.exists() && !target.isWritable())
        return refuse(error, Texts::tr("it is write-protected"));
    removeLeftParts(target);
    const QString number = QString::number(QCoreApplication::applicationPid());
    QFile part(target.absoluteDir().absoluteFilePath(partName(target) + number + PART_SUFFIX));
    if (!part.open(QIODevice::WriteOnly))
        return refuse(error, part.errorString());
    const bool isWritten = writeAll(&part, content);
    if (target.exists())
        part.setPermissions(target.permissions());
    part.close();
    std::error_code failure;
    if (isWritten)
        std::filesystem::rename(QFile::encodeName(part.fileName()).constData(),
                                QFile::encodeName(target.absoluteFilePath()).constData(), failure);
    if (isWritten && !failure)
        return true;
    part.remove();
    return refuse(error, isWritten ? QString::fromLocal8Bit(failure.message().c_str())
                                   : Texts::tr("not everything could be written, the disk may be full"));
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
