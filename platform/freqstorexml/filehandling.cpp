#include <freqstorexml/filehandling.h>
#include <freqstorexml/frequencystore.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <reportlayer/rgexception.h>

namespace FreqStoreXml {

namespace {
constexpr qint64 MAX_BYTES = 64 * 1024 * 1024;
constexpr qint64 HEAD_BYTES = 64 * 1024; // Comments before the first element may be long.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(FreqStoreXml::FileHandling)
};

// Opening a pipe may never return, so the kind of file is looked at before.
bool isReadable(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() <= MAX_BYTES;
}

[[noreturn]] void refuse(const QString& file, const QString& reason)
{
    throw REPORTGENERATOR::RGException(QStringLiteral("%1: %2").arg(file, reason));
}

QString textOf(const QString& path)
{
    QFile file(path);
    if (!isReadable(path))
        refuse(path, Texts::tr("is no file that can be read, or above 64 MiB"));
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    const QByteArray bytes = file.read(MAX_BYTES);
    if (file.error() != QFileDevice::NoError)
        refuse(path, file.errorString());
    // With the size, since a NUL would end the text otherwise.
    return QString::fromUtf8(bytes.constData(), bytes.size());
}
} // namespace

FileHandling::FileHandling(const REPORTGENERATOR::ReadProgress& progress)
    : m_progress(progress)
{
}

bool FileHandling::IsValidFormat(const QString& file) const
{
    QFile source(file);
    if (!isReadable(file) || !source.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(source.read(HEAD_BYTES));
    while (!reader.atEnd() && !reader.isStartElement()) {
        if (reader.readNext() == QXmlStreamReader::DTD)
            return false;
    }
    return reader.isStartElement() && FrequencyStoreList::fieldTable().accepts(reader.name().toString());
}

void FileHandling::ImportXml(const QString& file, FrequencyStoreList& list) const
{
    FrequencyStoreList loaded;
    if (!loaded.SetXmlString(textOf(file), true, m_progress))
        refuse(file,
               Texts::tr("line %1: %2").arg(QString::number(loaded.GetCheckLine()), loaded.GetCheckReason()));
    list = loaded;
}

} // namespace FreqStoreXml
