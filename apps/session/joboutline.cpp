#include "joboutline.h"

#include <jobxml/quantity.h>

#include <algorithm>
#include <kit/jobplaces.h>
#include <QJsonArray>
#include <reportlayer/fieldaccess.h>

using REPORTGENERATOR::childElement;
using REPORTGENERATOR::Field;
using REPORTGENERATOR::FieldKind;
using REPORTGENERATOR::IRGObject;

namespace {
constexpr int INDENT = 2;
constexpr int VALUE_COLUMN = 36;

QString readable(const Field& field, const QString& text)
{
    const int number = field.enumeration ? field.enumeration->number(text) : -1;
    return number < 0 ? JobXml::readableQuantity(text, field.unit()) : field.enumeration->guiText(number);
}

QString line(int indent, const QString& label, const QString& value)
{
    const QString start = QString(indent, QLatin1Char(' ')) + label;
    if (value.isEmpty())
        return start + QLatin1Char('\n');
    return start.leftJustified(std::max(VALUE_COLUMN, start.size() + 2)) + value + QLatin1Char('\n');
}

// "Tuner (TunerSettings)" for a parameter set, else the field's label.
QString title(const Field& field)
{
    const REPORTGENERATOR::ParameterSet* set =
        field.element ? PluginKit::findParameterSet(*field.element) : nullptr;
    return set ? QStringLiteral("%1 (%2)").arg(set->label(), QLatin1String(set->name)) : field.label();
}

QStringList readableTexts(const IRGObject& element, const Field& field, const QString& name)
{
    QStringList result;
    for (const QString& text : REPORTGENERATOR::fieldTexts(element, name))
        result.append(readable(field, text));
    return result;
}

QString itemName(const QString& list, int number)
{
    return QStringLiteral("%1[%2]").arg(list, QString::number(number));
}

void appendRows(const IRGObject& element, int level, QVector<Session::OutlineRow>* rows)
{
    for (int i = 0; i < element.table().fieldCount; ++i) {
        const Field& field = element.table().fields[i];
        const QString name = QLatin1String(field.name);
        if (!REPORTGENERATOR::isFieldSet(element, name))
            continue;
        if (!field.element) {
            const QString value = readableTexts(element, field, name).join(QLatin1String(", "));
            rows->append({level, title(field), value.simplified(), false, &field});
            continue;
        }
        const int count = field.list ? REPORTGENERATOR::itemCount(element, name) : 1;
        for (int item = 0; item < count; ++item) {
            const QString number = QString::number(item + 1);
            rows->append({level, field.list ? title(field) + QLatin1Char(' ') + number : title(field),
                          QString(), true, &field});
            appendRows(*childElement(element, field.list ? itemName(name, item) : name), level + 1, rows);
        }
    }
}

QJsonValue jsonValue(const Field& field, const QString& text)
{
    if (field.kind == FieldKind::Boolean)
        return text == QLatin1String("true");
    return field.isNumber() ? QJsonValue(text.toDouble()) : QJsonValue(text);
}

QJsonValue jsonOfField(const IRGObject& element, const Field& field, const QString& name)
{
    if (!field.list && field.element)
        return Session::outlineJson(*childElement(element, name));
    QJsonArray items;
    for (int i = 0; field.element && i < REPORTGENERATOR::itemCount(element, name); ++i)
        items.append(Session::outlineJson(*childElement(element, itemName(name, i))));
    if (field.element)
        return items;
    for (const QString& text : REPORTGENERATOR::fieldTexts(element, name))
        items.append(jsonValue(field, text));
    return field.list ? QJsonValue(items) : items.at(0);
}
} // namespace

namespace Session {

QVector<OutlineRow> outlineRows(const IRGObject& element)
{
    QVector<OutlineRow> rows;
    appendRows(element, 0, &rows);
    return rows;
}

QString outlineText(const IRGObject& element, int indent)
{
    QString result;
    for (const OutlineRow& row : outlineRows(element))
        result += line(indent + row.level * INDENT, row.label, row.value);
    return result;
}

QJsonObject outlineJson(const IRGObject& element)
{
    QJsonObject result;
    for (int i = 0; i < element.table().fieldCount; ++i) {
        const Field& field = element.table().fields[i];
        const QString name = QLatin1String(field.name);
        if (REPORTGENERATOR::isFieldSet(element, name))
            result.insert(name, jsonOfField(element, field, name));
    }
    return result;
}

} // namespace Session
