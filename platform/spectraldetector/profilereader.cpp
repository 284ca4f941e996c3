#include <spectraldetector/profilereader_p.h>

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace SpectralDetector {

namespace {

const char* const PROFILE = "SpectralProfile";
const char* const CATEGORY = "Category";
const char* const PARAMETER = "Parameter";
const char* const NO_ELEMENT = "";
const QLatin1String PARAMETERS("Parameters");
const QLatin1String CATEGORY_OF_PARAMETERS("category");

const char* const NAME = "name";
const char* const VERSION = "version";
const char* const UNIT = "unit";
const char* const MINIMUM = "minimum";
const char* const MAXIMUM = "maximum";

const int MAX_TAG_LENGTH = 16 * 1024; // characters

// The XML reader's time grows with the square of the number of attributes of one element. No tag can hold a
// "<", so this bounds the length of tags and with it the number of attributes.
bool hasEndlessTag(const QString& text)
{
    int last = 0;
    for (int next = text.indexOf(QLatin1Char('<')); next >= 0;
         next = text.indexOf(QLatin1Char('<'), next + 1)) {
        if (next - last > MAX_TAG_LENGTH)
            return true;
        last = next;
    }
    return text.size() - last > MAX_TAG_LENGTH;
}

bool isKnownVersion(const QString& version)
{
    return version == QLatin1String("1") || version.startsWith(QLatin1String("1."));
}

} // namespace

bool ProfileReader::read(const QString& fileName, qint64 maxSize)
{
    QString text;
    if (!readText(fileName, maxSize, &text))
        return false;
    if (hasEndlessTag(text)) {
        m_problem = QString("%1: a tag or text of more than 16384 characters").arg(fileName);
        return false;
    }
    m_xml.addData(text);
    if (readChild(PROFILE))
        readProfile();
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (!m_xml.hasError())
        return true;
    m_problem = QString("%1: line %2, column %3: %4")
                    .arg(fileName, QString::number(m_xml.lineNumber()), QString::number(m_xml.columnNumber()),
                         m_xml.errorString());
    return false;
}

bool ProfileReader::readText(const QString& fileName, qint64 maxSize, QString* text)
{
    // Opening a pipe may never return, so the kind of file is looked at before.
    const QFileInfo info(fileName);
    QFile file(fileName);
    if (!info.exists())
        m_problem = QString("%1: there is no such file").arg(fileName);
    else if (!info.isFile())
        m_problem = QString("%1: not a regular file").arg(fileName);
    else if (!file.open(QIODevice::ReadOnly))
        m_problem = QString("%1: %2").arg(fileName, file.errorString());
    else {
        // What a file says of its size need not hold, so one byte more than allowed is asked for.
        const QByteArray bytes = file.read(maxSize + 1);
        if (bytes.size() > maxSize)
            m_problem = QString("%1: larger than %2 bytes").arg(fileName, QString::number(maxSize));
        *text = QString::fromUtf8(bytes);
    }
    return m_problem.isEmpty();
}

// Goes on to the next child element of the present one; anything but blank text and comments before it is
// an error.
bool ProfileReader::readChild(const char* element)
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (m_xml.name() == QLatin1String(element) && m_xml.namespaceUri().isEmpty())
                return true;
            reject(QString("<%1> is not allowed here").arg(m_xml.qualifiedName().toString()));
            return false;
        case QXmlStreamReader::EndElement:
            return false;
        case QXmlStreamReader::DTD:
            reject(QString("a document type is not allowed"));
            return false;
        case QXmlStreamReader::Characters:
            if (m_xml.isWhitespace())
                break;
            reject(QString("text is not allowed here"));
            return false;
        default:
            break;
        }
    }
    return false;
}

void ProfileReader::readProfile()
{
    expectAttributes({VERSION, NAME});
    const QString version = attribute(VERSION);
    if (!isKnownVersion(version))
        reject(QString("version \"%1\" is not known, only 1.x is").arg(version));
    m_name = attribute(NAME);
    while (readChild(CATEGORY))
        readCategory();
}

void ProfileReader::readCategory()
{
    expectAttributes({NAME});
    Category category;
    category.name = takeName(&m_categoryNames);
    QXmlStreamWriter writer(&category.parameters);
    writer.writeStartElement(PARAMETERS);
    writer.writeAttribute(CATEGORY_OF_PARAMETERS, category.name);
    QSet<QString> names;
    while (readChild(PARAMETER))
        readParameter(&writer, &names);
    writer.writeEndElement();
    m_categories.append(category);
}

void ProfileReader::readParameter(QXmlStreamWriter* writer, QSet<QString>* names)
{
    expectAttributes({NAME, UNIT, MINIMUM, MAXIMUM});
    takeName(names);
    if (number(MINIMUM) > number(MAXIMUM))
        reject(QString("the minimum is above the maximum"));
    writer->writeEmptyElement(QLatin1String(PARAMETER));
    writer->writeAttributes(m_xml.attributes());
    readChild(NO_ELEMENT);
}

void ProfileReader::expectAttributes(std::initializer_list<const char*> allowed)
{
    for (const QXmlStreamAttribute& attribute : m_xml.attributes()) {
        const auto isIt = [&attribute](const char* name) {
            return attribute.qualifiedName() == QLatin1String(name);
        };
        if (std::none_of(allowed.begin(), allowed.end(), isIt))
            reject(QString("attribute \"%1\" is not known here").arg(attribute.qualifiedName().toString()));
    }
}

QString ProfileReader::takeName(QSet<QString>* names)
{
    const QString name = attribute(NAME);
    if (name.isEmpty())
        reject(QString("a name is missing"));
    else if (names->contains(name))
        reject(QString("the name \"%1\" is there twice").arg(name));
    names->insert(name);
    return name;
}

double ProfileReader::number(const char* attributeName)
{
    bool ok = false;
    const QString text = attribute(attributeName);
    const double value = text.toDouble(&ok);
    if (ok && std::isfinite(value))
        return value;
    reject(QString("%1=\"%2\" is not a number").arg(QLatin1String(attributeName), text));
    return 0;
}

QString ProfileReader::attribute(const char* name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

// The first reason is the one to tell.
void ProfileReader::reject(const QString& reason)
{
    if (!m_xml.hasError())
        m_xml.raiseError(reason);
}

} // namespace SpectralDetector
