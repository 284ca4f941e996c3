#include "elementaccess_p.h"
#include "elementreader_p.h"
#include "lexical_p.h"
#include <algorithm>
#include <QCoreApplication>
#include <QXmlStreamReader>
#include <reportlayer/textbounds.h>

namespace REPORTGENERATOR {

namespace {

const int MAXIMUM_PROBLEMS = 100;
const int PROGRESS_STEP = 100000; // characters between two calls
const int LONGEST_QUOTE = 60;     // characters of a wrong value in a message
const char* const NO_NAME =
    QT_TRANSLATE_NOOP("ReportLayer", "The name of an attribute holds a wrong character");
const char* const TOO_DEEP =
    QT_TRANSLATE_NOOP("ReportLayer", "Elements are nested more than 256 levels deep");

// Where reading stands within one element.
struct Place
{
    int field = -1;   // last field that was read
    int index = 0;    // of the last item, in a list
    int guess = 0;    // field that the search begins with
    quint64 seen = 0; // a bit for each field
};

// Text of a simple element, and what else stood in it.
struct SimpleContent
{
    QString attributes;
    QStringList foreign;
    bool nested = false; // there are elements in it
};

class Reader
{
public:
    Reader(const QString& text, const Prolog& prolog, const ReadProgress& progress);
    bool readRoot(IRGObject& root, bool whole);
    const Problem& failure() const { return m_failure; }

private:
    QXmlStreamReader::TokenType next();
    bool readElement(IRGObject& element);
    bool readAttributes(IRGObject& element, Place* place);
    bool readChild(IRGObject& element, Place* place);
    bool readNested(IRGObject& element, int field);
    bool mayGoOn();
    bool readSimple(IRGObject& element, int field, Place* place);
    bool readText(SimpleContent* content);
    bool acceptForeignAttributes();
    bool skipElement();
    bool keepUnknownElement(IRGObject& element, const Place& place);
    void keep(IRGObject& element, ForeignPart::Kind kind, const Place& place, const QString& text);
    bool store(IRGObject& element, int field, const QStringRef& text);
    QString slice(int begin) const;
    void reportValue(const Field& field, const QString& text);
    void report(const QString& reason);
    bool fail(const QString& reason);

    const QString m_text;
    const Prolog m_prolog;
    const ReadProgress m_progress;
    QXmlStreamReader m_reader;
    Problem m_failure;
    QVector<Problem> m_problems;
    QString m_collected; // text of the simple element that was read last
    int m_begin = 0;     // of the current token in m_text
    int m_end = 0;
    int m_level = 0;
    int m_told = 0; // where progress was told last
    bool m_followsTable = true;
};

QString withPlainLineEnds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n')).trimmed();
}

QString message(const char* text)
{
    return QCoreApplication::translate("ReportLayer", text);
}

// Fields mostly come in the order of the table, so the search begins where the last one was found.
int findField(const ElementTable& table, const QStringRef& name, int guess, bool attribute)
{
    for (int i = 0; i < table.fieldCount; ++i) {
        const int at = guess + i < table.fieldCount ? guess + i : guess + i - table.fieldCount;
        const Field& field = table.fields[at];
        if (field.attribute == attribute && isSame(name, field.name, field.nameLength))
            return at;
    }
    return -1;
}

// The XML reader lets attribute names pass that hold other characters beyond ASCII.
bool isName(const QStringRef& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() < 0x80 || c.isLetterOrNumber() || c.isMark(); });
}

bool isReal(FieldKind kind)
{
    return kind == FieldKind::Float || kind == FieldKind::Double;
}

// A value that converts may still break the schema. Dates are not looked into here, and validators do not
// agree about blanks round a number.
bool isSurelyValid(const Field& field, const QStringRef& text, const FieldValue& value)
{
    if (field.kind == FieldKind::String || field.kind == FieldKind::Enumeration)
        return true;
    if (field.kind == FieldKind::DateTime || text.at(0).isSpace() || text.at(text.size() - 1).isSpace())
        return false;
    return isReal(field.kind) ? field.isInRange(value.real) : field.isInRange(value.integer);
}

QString textOf(const QXmlStreamAttribute& attribute)
{
    return attributeText(attribute.qualifiedName().toString(), attribute.value().toString());
}

quint64 bitOf(int field)
{
    return Q_UINT64_C(1) << field;
}

Reader::Reader(const QString& text, const Prolog& prolog, const ReadProgress& progress)
    : m_text(text)
    , m_prolog(prolog)
    , m_progress(progress)
    , m_reader(text)
    , m_end(prolog.end)
{
    m_reader.setNamespaceProcessing(false);
}

bool Reader::readRoot(IRGObject& root, bool whole)
{
    while (!m_reader.atEnd() && !m_reader.isStartElement())
        m_reader.readNext();
    if (m_reader.hasError())
        return fail(m_reader.errorString());
    const QString name = m_reader.qualifiedName().toString();
    if (!root.table().accepts(name))
        return fail(message(QT_TRANSLATE_NOOP("ReportLayer", "The root is <%1> instead of <%2>"))
                        .arg(name, QLatin1String(root.table().elementName)));
    const QString version = m_reader.attributes().value(QLatin1String("version")).toString();
    m_end = static_cast<int>(m_reader.characterOffset());
    if (!readElement(root))
        return false;
    const int rootEnd = m_end;
    while (!m_reader.atEnd())
        m_reader.readNext();
    if (m_reader.hasError())
        return fail(m_reader.errorString());

    ElementAccess::Extras& extras = ElementAccess::makeExtras(root);
    extras.loaded = true;
    extras.followsTable = m_followsTable;
    extras.rootName = name;
    extras.loadedText = m_followsTable ? QString() : m_text;
    extras.problems = m_problems;
    if (whole) {
        extras.version = version;
        extras.prolog = withPlainLineEnds(m_text.mid(m_prolog.begin, m_prolog.end - m_prolog.begin));
        extras.epilog = withPlainLineEnds(m_text.mid(rootEnd));
    }
    return true;
}

QXmlStreamReader::TokenType Reader::next()
{
    const QXmlStreamReader::TokenType type = m_reader.readNext();
    m_begin = m_end;
    m_end = static_cast<int>(m_reader.characterOffset());
    // Behind text the reader has already looked at the tag that follows.
    if (type == QXmlStreamReader::Characters && m_text.at(m_end - 1) == QLatin1Char('<'))
        --m_end;
    return type;
}

bool Reader::readElement(IRGObject& element)
{
    if (++m_level > MAXIMUM_LEVELS)
        return fail(message(TOO_DEEP));
    ElementAccess::setPresent(element);
    Place place;
    if (!readAttributes(element, &place))
        return false;
    place.field = -1;
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            if (!readChild(element, &place))
                return false;
            break;
        case QXmlStreamReader::EndElement:
            if ((element.table().requiredFields & ~place.seen) != 0 ||
                (element.table().choice && place.field < 0))
                m_followsTable = false;
            --m_level;
            return true;
        case QXmlStreamReader::Characters:
            if (m_reader.isWhitespace())
                break;
            m_followsTable = false;
            keep(element, ForeignPart::Content, place, slice(m_begin));
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            keep(element, ForeignPart::Content, place, slice(m_begin));
            break;
        default:
            return fail(m_reader.errorString());
        }
    }
}

bool Reader::readAttributes(IRGObject& element, Place* place)
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const int field = findField(element.table(), attribute.qualifiedName(), place->guess, true);
        if (field >= 0) {
            place->field = field;
            place->guess = field + 1;
            place->seen |= bitOf(field);
            if (store(element, field, attribute.value()))
                continue;
            reportValue(element.table().fields[field], attribute.value().toString());
        } else if (!isName(attribute.qualifiedName())) {
            return fail(message(NO_NAME));
        }
        m_followsTable = false;
        keep(element, field >= 0 ? ForeignPart::Instead : ForeignPart::Attribute, *place, textOf(attribute));
    }
    return true;
}

bool Reader::readChild(IRGObject& element, Place* place)
{
    const ElementTable& table = element.table();
    const int field = findField(table, m_reader.qualifiedName(), place->guess, false);
    if (field < 0)
        return keepUnknownElement(element, *place);
    const Field& row = table.fields[field];
    const bool again = (place->seen & bitOf(field)) != 0 && !row.list;
    if (again || (table.choice && place->field >= 0)) {
        report(message(QT_TRANSLATE_NOOP("ReportLayer", "<%1> is one element too many"))
                   .arg(QLatin1String(row.name)));
        return keepUnknownElement(element, *place);
    }
    if (field < place->field)
        m_followsTable = false;
    place->seen |= bitOf(field);
    place->guess = field;
    if (row.kind != FieldKind::Element)
        return readSimple(element, field, place);
    place->index = ElementAccess::itemCount(element, field);
    place->field = field;
    return readNested(element, field);
}

bool Reader::readNested(IRGObject& element, int field)
{
    const Field& row = element.table().fields[field];
    ElementAccess::Cell& cell = ElementAccess::cells(element)[field];
    if (row.list) {
        if (!mayGoOn())
            return false;
        if (!cell.list)
            cell.list = row.listOperations->make();
        return readElement(*row.listOperations->appendElement(cell.list));
    }
    cell.element = row.element->create();
    if (element.table().choice)
        ElementAccess::setBit(element, field);
    return readElement(*cell.element);
}

// Only lists make a text long.
bool Reader::mayGoOn()
{
    if (!m_progress || m_begin - m_told < PROGRESS_STEP)
        return true;
    m_told = m_begin;
    return m_progress(m_begin, m_text.size()) ||
           fail(message(QT_TRANSLATE_NOOP("ReportLayer", "Reading was stopped")));
}

bool Reader::readSimple(IRGObject& element, int field, Place* place)
{
    const Field& row = element.table().fields[field];
    const int begin = m_begin;
    SimpleContent content;
    if (!acceptForeignAttributes())
        return false;
    for (const QXmlStreamAttribute& attribute : m_reader.attributes())
        content.attributes.append(textOf(attribute));
    ++m_level;
    if (!readText(&content))
        return false;
    --m_level;
    Place here = *place;
    here.field = field;
    here.index = ElementAccess::itemCount(element, field);
    const bool stored = !content.nested && store(element, field, QStringRef(&m_collected));
    if (!stored)
        reportValue(row, m_collected);
    if (!content.attributes.isEmpty() || !stored)
        m_followsTable = false;
    if (stored || !row.list)
        *place = here;
    if (!stored) {
        keep(element, row.list ? ForeignPart::Content : ForeignPart::Instead, *place, slice(begin));
        return true;
    }
    if (!content.attributes.isEmpty())
        keep(element, ForeignPart::FieldAttribute, *place, content.attributes);
    for (const QString& part : qAsConst(content.foreign))
        keep(element, ForeignPart::Content, *place, part);
    return true;
}

bool Reader::readText(SimpleContent* content)
{
    m_collected.resize(0);
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::Characters:
            m_collected.append(m_reader.text());
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            content->foreign.append(slice(m_begin));
            break;
        case QXmlStreamReader::StartElement:
            content->nested = true;
            if (!skipElement())
                return false;
            break;
        case QXmlStreamReader::EndElement:
            return true;
        default:
            return fail(m_reader.errorString());
        }
    }
}

bool Reader::store(IRGObject& element, int field, const QStringRef& text)
{
    const Field& row = element.table().fields[field];
    FieldValue value;
    if (!parseValue(row, text, &value))
        return false;
    if (!isSurelyValid(row, text, value))
        m_followsTable = false;
    ElementAccess::Cell& cell = ElementAccess::cells(element)[field];
    if (row.list) {
        if (!cell.list)
            cell.list = row.listOperations->make();
        row.listOperations->appendValue(cell.list, value);
        return true;
    }
    if (isReal(row.kind))
        cell.real = value.real;
    else if (row.kind == FieldKind::String || row.kind == FieldKind::DateTime)
        cell.text = value.text;
    else
        cell.integer = value.integer;
    ElementAccess::setBit(element, field);
    return true;
}

bool Reader::acceptForeignAttributes()
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    const auto accepted = [](const QXmlStreamAttribute& attribute) {
        return isName(attribute.qualifiedName());
    };
    return std::all_of(attributes.begin(), attributes.end(), accepted) || fail(message(NO_NAME));
}

// The start tag of the element has been read; goes on to its end, whatever is in it.
bool Reader::skipElement()
{
    if (!acceptForeignAttributes())
        return false;
    for (int level = 1; level > 0;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            if (m_level + ++level > MAXIMUM_LEVELS)
                return fail(message(TOO_DEEP));
            if (!acceptForeignAttributes())
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --level;
            break;
        case QXmlStreamReader::Invalid:
            return fail(m_reader.errorString());
        default:
            break;
        }
    }
    return true;
}

bool Reader::keepUnknownElement(IRGObject& element, const Place& place)
{
    const int begin = m_begin;
    m_followsTable = false;
    if (!skipElement())
        return false;
    keep(element, ForeignPart::Content, place, slice(begin));
    return true;
}

void Reader::keep(IRGObject& element, ForeignPart::Kind kind, const Place& place, const QString& text)
{
    ElementAccess::makeExtras(element).foreign.append({kind, place.field, place.index, text});
}

QString Reader::slice(int begin) const
{
    return withPlainLineEnds(m_text.mid(begin, m_end - begin));
}

void Reader::reportValue(const Field& field, const QString& text)
{
    report(message(QT_TRANSLATE_NOOP("ReportLayer", "\"%1\" is no value of %2"))
               .arg(text.left(LONGEST_QUOTE), QLatin1String(field.name)));
}

void Reader::report(const QString& reason)
{
    const int line = static_cast<int>(m_reader.lineNumber());
    const int column = static_cast<int>(m_reader.columnNumber());
    if (m_problems.size() < MAXIMUM_PROBLEMS)
        m_problems.append({line, column, reason});
}

bool Reader::fail(const QString& reason)
{
    m_failure = {static_cast<int>(m_reader.lineNumber()), static_cast<int>(m_reader.columnNumber()), reason};
    return false;
}

} // namespace

bool readElementText(const QString& text, IRGObject& root, bool whole, const ReadProgress& progress,
                     Problem* failure)
{
    const bool marked = text.startsWith(QChar(QChar::ByteOrderMark));
    const QString plain = marked ? text.mid(1) : text;
    Prolog prolog;
    if (!keepsBounds(plain, &prolog, failure))
        return false;
    Reader reader(plain, prolog, progress);
    if (reader.readRoot(root, whole))
        return true;
    *failure = reader.failure();
    return false;
}

} // namespace REPORTGENERATOR
