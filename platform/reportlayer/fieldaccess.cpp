#include "elementaccess_p.h"
#include "lexical_p.h"
#include <reportlayer/fieldaccess.h>

namespace REPORTGENERATOR {

namespace {

// One name of a path, with the number in brackets behind it.
struct Step
{
    QString name;
    int index = -1; // -1: no number was given
};

Step parseStep(const QString& text)
{
    const int bracket = text.indexOf(QLatin1Char('['));
    if (bracket < 0 || !text.endsWith(QLatin1Char(']')))
        return {text, -1};
    bool converted = false;
    const int index = text.midRef(bracket + 1, text.size() - bracket - 2).toInt(&converted);
    // A number that is none must not be found.
    return converted && index >= 0 ? Step{text.left(bracket), index} : Step{text, -1};
}

// A field of an element; no element means that the path does not exist.
template <class Element>
struct Place
{
    Element* element = nullptr;
    int field = -1;
    int index = -1;

    const Field& row() const { return element->table().fields[field]; }
};

const IRGObject* itemOf(const IRGObject& element, int field, int index)
{
    return element.table().fields[field].listOperations->element(ElementAccess::list(element, field), index);
}

IRGObject* itemOf(IRGObject& element, int field, int index)
{
    return element.table().fields[field].listOperations->changeableElement(
        ElementAccess::list(element, field), index);
}

int countAt(const IRGObject& element, int field)
{
    const Field& row = element.table().fields[field];
    if (row.list)
        return ElementAccess::itemCount(element, field);
    return ElementAccess::isFieldSet(element, field) ? 1 : 0;
}

// The element that a place stands for; null unless it is one.
template <class Element>
Element* elementOf(const Place<Element>& place)
{
    if (!place.element || place.row().kind != FieldKind::Element || place.row().list != (place.index >= 0))
        return nullptr;
    if (!place.row().list)
        return &ElementAccess::element(*place.element, place.field);
    return place.index < countAt(*place.element, place.field)
               ? itemOf(*place.element, place.field, place.index)
               : nullptr;
}

template <class Element>
Place<Element> resolve(Element& root, const QString& path)
{
    Place<Element> place;
    Element* element = &root;
    for (const QString& text : path.split(QLatin1Char('.'))) {
        const Step step = parseStep(text);
        if (!element)
            return Place<Element>();
        place = {element, element->table().fieldIndex(step.name), step.index};
        if (place.field < 0)
            return Place<Element>();
        element = elementOf(place);
    }
    return place;
}

// A single simple field; a place without an element else.
template <class Element>
Place<Element> resolveSimple(Element& root, const QString& path)
{
    const Place<Element> place = resolve(root, path);
    const bool simple =
        place.element && place.row().kind != FieldKind::Element && !place.row().list && place.index < 0;
    return simple ? place : Place<Element>();
}

bool isReal(const Field& field)
{
    return field.kind == FieldKind::Float || field.kind == FieldKind::Double;
}

bool parseInRange(const Field& field, const QString& text, FieldValue* value)
{
    if (!parseValue(field, QStringRef(&text), value))
        return false;
    return !field.isNumber() ||
           (isReal(field) ? field.isInRange(value->real) : field.isInRange(value->integer));
}

QString textOf(const Field& field, const QVariant& value)
{
    if (field.kind == FieldKind::Enumeration && value.userType() != QMetaType::QString)
        return field.enumeration->name(value.toInt());
    if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float)
        return formatValue(Field("", FieldKind::Double), {0, value.toDouble(), QString()});
    return value.toString();
}

void collectPaths(const ElementTable& table, const QString& prefix, QStringList* paths)
{
    for (int i = 0; i < table.fieldCount; ++i) {
        const Field& field = table.fields[i];
        const QString path = prefix + QLatin1String(field.name);
        if (field.kind != FieldKind::Element)
            paths->append(path);
        else if (!field.list)
            collectPaths(*field.element, path + QLatin1Char('.'), paths);
    }
}

} // namespace

const Field* findField(const ElementTable& table, const QString& path)
{
    const ElementTable* within = &table;
    const Field* field = nullptr;
    for (const QString& text : path.split(QLatin1Char('.'))) {
        const int index = within ? within->fieldIndex(parseStep(text).name) : -1;
        if (index < 0)
            return nullptr;
        field = &within->fields[index];
        within = field->element;
    }
    return field;
}

QStringList fieldPaths(const ElementTable& table)
{
    QStringList result;
    collectPaths(table, QString(), &result);
    return result;
}

bool isFieldSet(const IRGObject& element, const QString& path)
{
    return itemCount(element, path) > 0;
}

bool resetField(IRGObject& element, const QString& path)
{
    const Place<IRGObject> place = resolve(element, path);
    if (!place.element || place.index >= 0)
        return false;
    ElementAccess::resetField(*place.element, place.field);
    return true;
}

QString fieldText(const IRGObject& element, const QString& path)
{
    const Place<const IRGObject> place = resolveSimple(element, path);
    return place.element ? formatValue(place.row(), ElementAccess::value(*place.element, place.field))
                         : QString();
}

bool setFieldText(IRGObject& element, const QString& path, const QString& text)
{
    const Place<IRGObject> place = resolveSimple(element, path);
    FieldValue value;
    if (!place.element || !parseInRange(place.row(), text, &value))
        return false;
    ElementAccess::setValue(*place.element, place.field, value);
    return true;
}

QVariant fieldValue(const IRGObject& element, const QString& path)
{
    const Place<const IRGObject> place = resolveSimple(element, path);
    if (!place.element)
        return QVariant();
    const FieldValue value = ElementAccess::value(*place.element, place.field);
    switch (place.row().kind) {
    case FieldKind::Boolean:
        return value.integer != 0;
    case FieldKind::Long:
        return value.integer;
    case FieldKind::Float:
    case FieldKind::Double:
        return value.real;
    case FieldKind::String:
    case FieldKind::DateTime:
        return value.text;
    default:
        return static_cast<int>(value.integer);
    }
}

bool setFieldValue(IRGObject& element, const QString& path, const QVariant& value)
{
    const Place<IRGObject> place = resolveSimple(element, path);
    return place.element && setFieldText(element, path, textOf(place.row(), value));
}

QStringList fieldTexts(const IRGObject& element, const QString& path)
{
    QStringList result;
    const Place<const IRGObject> place = resolve(element, path);
    if (!place.element || place.row().kind == FieldKind::Element || place.index >= 0)
        return result;
    const int count = countAt(*place.element, place.field);
    for (int i = 0; i < count; ++i) {
        const FieldValue value =
            place.row().list
                ? place.row().listOperations->value(ElementAccess::list(*place.element, place.field), i)
                : ElementAccess::value(*place.element, place.field);
        result.append(formatValue(place.row(), value));
    }
    return result;
}

bool setFieldTexts(IRGObject& element, const QString& path, const QStringList& texts)
{
    const Place<IRGObject> place = resolve(element, path);
    if (!place.element || place.row().kind == FieldKind::Element || !place.row().list || place.index >= 0)
        return false;
    QVector<FieldValue> values(texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        if (!parseInRange(place.row(), texts.at(i), &values[i]))
            return false;
    }
    ElementAccess::resetField(*place.element, place.field);
    void* list = ElementAccess::list(*place.element, place.field);
    for (const FieldValue& value : qAsConst(values))
        place.row().listOperations->appendValue(list, value);
    return true;
}

int itemCount(const IRGObject& element, const QString& path)
{
    const Place<const IRGObject> place = resolve(element, path);
    if (!place.element)
        return 0;
    if (place.index >= 0)
        return elementOf(place) ? 1 : 0;
    return countAt(*place.element, place.field);
}

const IRGObject* childElement(const IRGObject& element, const QString& path)
{
    return path.isEmpty() ? &element : elementOf(resolve(element, path));
}

IRGObject* childElement(IRGObject& element, const QString& path)
{
    return path.isEmpty() ? &element : elementOf(resolve(element, path));
}

IRGObject* appendElement(IRGObject& element, const QString& path)
{
    const Place<IRGObject> place = resolve(element, path);
    if (!place.element || place.row().kind != FieldKind::Element || !place.row().list || place.index >= 0)
        return nullptr;
    return place.row().listOperations->appendElement(ElementAccess::list(*place.element, place.field));
}

} // namespace REPORTGENERATOR
