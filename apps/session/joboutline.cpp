#include "joboutline.h"

#include "parametersets.h"
#include "quantity.h"

#include <algorithm>
#include <QCoreApplication>
#include <QJsonArray>
#include <QXmlStreamReader>
#include <reportlayer/irgobject.h>

using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;

namespace {
constexpr int INDENT = 2;
constexpr int VALUE_COLUMN = 36;

const Field* findField(const ElementTable* table, const QString& name)
{
    const int index = table ? table->fieldIndex(name) : -1;
    return index < 0 ? nullptr : &table->fields[index];
}

QString readable(const Field* field, const QString& text)
{
    const int number = field && field->enumeration ? field->enumeration->number(text) : -1;
    if (number >= 0)
        return field->enumeration->guiText(number);
    return field ? Session::readableQuantity(text, field->unit()) : text;
}

QString line(int indent, const QString& label, const QString& value)
{
    QString result = QString(indent, QLatin1Char(' ')) + label;
    if (!value.isEmpty())
        result = result.leftJustified(std::max(VALUE_COLUMN, result.size() + 2)) + value;
    return result + QLatin1Char('\n');
}

// "Tuner (TunerSettings)" for a parameter set, else the field's label; what no table knows keeps its name.
QString title(const Field* field, const QString& name)
{
    if (!field)
        return name;
    const REPORTGENERATOR::ParameterSet* set =
        field->element ? Session::findParameterSet(*field->element) : nullptr;
    return set ? QStringLiteral("%1 (%2)").arg(set->label(), QLatin1String(set->name)) : field->label();
}

// The element that the reader has just entered, down to its end.
void appendText(QXmlStreamReader* reader, const ElementTable* table, int indent, QString* result)
{
    for (const QXmlStreamAttribute& attribute : reader->attributes()) {
        const Field* field = findField(table, attribute.name().toString());
        *result += line(indent, title(field, attribute.name().toString()),
                        readable(field, attribute.value().toString()));
    }
    while (reader->readNextStartElement()) {
        const QString name = reader->name().toString();
        const Field* field = findField(table, name);
        if (field && field->element) {
            *result += line(indent, title(field, name), QString());
            appendText(reader, field->element, indent + INDENT, result);
        } else {
            const QString text = reader->readElementText(QXmlStreamReader::SkipChildElements);
            *result += line(indent, title(field, name), readable(field, text.simplified()));
        }
    }
}

void insert(QJsonObject* object, const QString& name, const QJsonValue& value, bool isList)
{
    if (!isList) {
        object->insert(name, value);
        return;
    }
    QJsonArray list = object->value(name).toArray();
    list.append(value);
    object->insert(name, list);
}

QJsonObject takeJson(QXmlStreamReader* reader, const ElementTable* table)
{
    QJsonObject result;
    for (const QXmlStreamAttribute& attribute : reader->attributes())
        result.insert(attribute.name().toString(), attribute.value().toString());
    while (reader->readNextStartElement()) {
        const QString name = reader->name().toString();
        const Field* field = findField(table, name);
        const QJsonValue value =
            field && field->element
                ? QJsonValue(takeJson(reader, field->element))
                : QJsonValue(reader->readElementText(QXmlStreamReader::SkipChildElements));
        insert(&result, name, value, field && field->list);
    }
    return result;
}
} // namespace

namespace Session {

QString outlineText(const REPORTGENERATOR::IRGObject& element, int indent)
{
    QString result;
    QXmlStreamReader reader(element.GetXmlString(false));
    if (reader.readNextStartElement())
        appendText(&reader, &element.table(), indent, &result);
    return result;
}

QJsonObject outlineJson(const REPORTGENERATOR::IRGObject& element)
{
    QXmlStreamReader reader(element.GetXmlString(false));
    return reader.readNextStartElement() ? takeJson(&reader, &element.table()) : QJsonObject();
}

} // namespace Session
