#include "elementaccess_p.h"
#include "elementwriter_p.h"
#include "lexical_p.h"
#include <algorithm>
#include <limits>
#include <tuple>

namespace REPORTGENERATOR {

namespace {

const int BLANKS_PER_LEVEL = 2;
const QLatin1String VERSION_FIELD("version");

// The foreign parts of one element, found by their place. They were kept in file order, which stays the order
// of those that share a place.
class ForeignParts
{
public:
    explicit ForeignParts(const IRGObject& element)
    {
        const ElementAccess::Extras* extras = ElementAccess::extras(element);
        if (extras)
            m_parts = extras->foreign;
        if (!m_parts.isEmpty())
            std::stable_sort(m_parts.begin(), m_parts.end(), isBefore);
    }
    bool isEmpty() const { return m_parts.isEmpty(); }

    /// Calls with each text at the places (field, first) to (field, last).
    template <class Callback>
    bool forEach(ForeignPart::Kind kind, int field, int first, int last, Callback callback) const
    {
        if (m_parts.isEmpty())
            return false;
        const auto begin = std::lower_bound(m_parts.begin(), m_parts.end(),
                                            ForeignPart{kind, field, first, QString()}, isBefore);
        const auto end =
            std::upper_bound(begin, m_parts.end(), ForeignPart{kind, field, last, QString()}, isBefore);
        for (auto part = begin; part != end; ++part)
            callback(part->text);
        return begin != end;
    }

private:
    static bool isBefore(const ForeignPart& a, const ForeignPart& b)
    {
        return std::tie(a.kind, a.field, a.index) < std::tie(b.kind, b.field, b.index);
    }

    QVector<ForeignPart> m_parts;
};

const int ANY_INDEX = std::numeric_limits<int>::max();

class Writer
{
public:
    void write(const IRGObject& element, QLatin1String name, int level, bool document);
    QString& text() { return m_text; }

private:
    void writeAttributes(const IRGObject& element, const ForeignParts& foreign, bool document);
    void writeFields(const IRGObject& element, const ForeignParts& foreign, int level);
    void writeList(const IRGObject& element, int field, const ForeignParts& foreign, int level);
    void writeSingle(const IRGObject& element, int field, const ForeignParts& foreign, int level);
    void writeSimple(const Field& field, int position, int index, const FieldValue& value,
                     const ForeignParts& foreign, int level);
    void beginLine(int level);
    void append(QLatin1String text) { m_text.append(text); }

    QString m_text;
    bool m_tagOpen = false; // the last start tag still lacks its end
};

QLatin1String nameOf(const Field& field)
{
    return QLatin1String(field.name, field.nameLength);
}

// A required enumeration without a value cannot be written.
bool isWritable(const IRGObject& element, int field)
{
    const Field& row = element.table().fields[field];
    if (ElementAccess::isFieldSet(element, field))
        return true;
    return row.required && (row.kind != FieldKind::Enumeration || row.defaultInteger >= 0);
}

void Writer::write(const IRGObject& element, QLatin1String name, int level, bool document)
{
    const ForeignParts foreign(element);
    m_text.append(QLatin1Char('<')).append(name);
    writeAttributes(element, foreign, document);
    m_tagOpen = true;
    const auto writeForeign = [this, level](const QString& text) {
        beginLine(level + 1);
        m_text.append(text);
    };
    foreign.forEach(ForeignPart::Content, -1, 0, ANY_INDEX, writeForeign);
    writeFields(element, foreign, level + 1);
    if (m_tagOpen) {
        append(QLatin1String("/>"));
    } else {
        beginLine(level);
        m_text.append(QLatin1String("</")).append(name).append(QLatin1Char('>'));
    }
    m_tagOpen = false;
}

void Writer::writeAttributes(const IRGObject& element, const ForeignParts& foreign, bool document)
{
    const auto writeForeign = [this](const QString& text) { m_text.append(text); };
    const ElementTable& table = element.table();
    foreign.forEach(ForeignPart::Attribute, -1, 0, ANY_INDEX, writeForeign);
    for (int i = 0; i < table.fieldCount && table.fields[i].attribute; ++i) {
        const Field& row = table.fields[i];
        const bool missing = !ElementAccess::isFieldSet(element, i);
        if (missing && foreign.forEach(ForeignPart::Instead, i, 0, ANY_INDEX, writeForeign)) {
            // Written as it was read.
        } else if (missing && document && table.schema->version && nameOf(row) == VERSION_FIELD) {
            m_text.append(attributeText(VERSION_FIELD, QString::fromLatin1(table.schema->version)));
        } else if (isWritable(element, i)) {
            m_text.append(attributeText(nameOf(row), formatValue(row, ElementAccess::value(element, i))));
        }
        foreign.forEach(ForeignPart::Attribute, i, 0, ANY_INDEX, writeForeign);
    }
}

void Writer::writeFields(const IRGObject& element, const ForeignParts& foreign, int level)
{
    const auto writeForeign = [this, level](const QString& text) {
        beginLine(level);
        m_text.append(text);
    };
    const ElementTable& table = element.table();
    for (int i = 0; i < table.fieldCount; ++i) {
        const Field& row = table.fields[i];
        if (row.attribute)
            continue;
        if (row.list) {
            writeList(element, i, foreign, level);
            continue;
        }
        const bool missing = !ElementAccess::isFieldSet(element, i);
        if (!missing || !foreign.forEach(ForeignPart::Instead, i, 0, ANY_INDEX, writeForeign))
            writeSingle(element, i, foreign, level);
        foreign.forEach(ForeignPart::Content, i, 0, ANY_INDEX, writeForeign);
    }
}

void Writer::writeList(const IRGObject& element, int field, const ForeignParts& foreign, int level)
{
    const auto writeForeign = [this, level](const QString& text) {
        beginLine(level);
        m_text.append(text);
    };
    const Field& row = element.table().fields[field];
    const ListOperations& operations = *row.listOperations;
    const void* list = ElementAccess::list(element, field);
    const int count = operations.count(list);
    for (int i = 0; i < count; ++i) {
        if (row.kind == FieldKind::Element) {
            beginLine(level);
            write(*operations.element(list, i), nameOf(row), level, false);
        } else {
            writeSimple(row, field, i, operations.value(list, i), foreign, level);
        }
        foreign.forEach(ForeignPart::Content, field, i, i, writeForeign);
    }
    // What followed items that are gone.
    foreign.forEach(ForeignPart::Content, field, count, ANY_INDEX, writeForeign);
}

void Writer::writeSingle(const IRGObject& element, int field, const ForeignParts& foreign, int level)
{
    if (!isWritable(element, field))
        return;
    const Field& row = element.table().fields[field];
    if (row.kind != FieldKind::Element) {
        writeSimple(row, field, 0, ElementAccess::value(element, field), foreign, level);
        return;
    }
    beginLine(level);
    write(ElementAccess::element(element, field), nameOf(row), level, false);
}

void Writer::writeSimple(const Field& field, int position, int index, const FieldValue& value,
                         const ForeignParts& foreign, int level)
{
    beginLine(level);
    m_text.append(QLatin1Char('<')).append(nameOf(field));
    foreign.forEach(ForeignPart::FieldAttribute, position, index, index,
                    [this](const QString& text) { m_text.append(text); });
    const QString text = formatValue(field, value);
    if (text.isEmpty()) {
        append(QLatin1String("/>"));
        return;
    }
    m_text.append(QLatin1Char('>'));
    appendEscaped(&m_text, text, false);
    m_text.append(QLatin1String("</")).append(nameOf(field)).append(QLatin1Char('>'));
}

void Writer::beginLine(int level)
{
    if (m_tagOpen)
        m_text.append(QLatin1Char('>'));
    m_tagOpen = false;
    m_text.append(QLatin1Char('\n')).append(QString(level * BLANKS_PER_LEVEL, QLatin1Char(' ')));
}

} // namespace

QString elementText(const IRGObject& element)
{
    Writer writer;
    if (element.isSet())
        writer.write(element, QLatin1String(element.table().elementName), 0, false);
    return writer.text();
}

QString documentText(const IRGObject& element)
{
    Writer writer;
    QString& text = writer.text();
    text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    const ElementAccess::Extras* extras = ElementAccess::extras(element);
    if (extras && !extras->prolog.isEmpty())
        text.append(extras->prolog).append(QLatin1Char('\n'));
    writer.write(element, QLatin1String(element.table().elementName), 0, true);
    text.append(QLatin1Char('\n'));
    if (extras && !extras->epilog.isEmpty())
        text.append(extras->epilog).append(QLatin1Char('\n'));
    return text;
}

} // namespace REPORTGENERATOR
