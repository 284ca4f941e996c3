#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <reportlayer/fieldaccess.h>
#include <values/node.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

#include <QCoreApplication>
#include <QSet>

#include <memory>

namespace JobXml {

using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;
using REPORTGENERATOR::FieldKind;
using REPORTGENERATOR::IRGObject;
using REPORTGENERATOR::ParameterSet;

namespace {

using Report = ParameterSetText::Report;

enum class Transfer { Done, Clamped, Refused };

QString placeAndReason(int line, int column, const QString& reason)
{
    return QCoreApplication::translate("JobXml", "Line %1, column %2: %3")
        .arg(QString::number(line), QString::number(column), reason);
}

/// The element of the node's set with the content of the text; null, with the failure in the report, if there is no
/// such set or it does not read the text.
std::unique_ptr<IRGObject> makeElement(const ::Node& node, const QString& text, Report* report)
{
    const ParameterSet* set = findParameterSet(node.GetId());
    if (!set) {
        report->failure = QCoreApplication::translate("JobXml", "%1 is no parameter set").arg(node.GetId());
        return nullptr;
    }
    std::unique_ptr<IRGObject> element(set->table->create());
    if (!element->SetXmlString(text, false)) {
        report->failure =
            placeAndReason(element->GetCheckLine(), element->GetCheckColumn(), element->GetCheckReason());
        return nullptr;
    }
    const QVector<REPORTGENERATOR::Problem> problems = element->problems();
    for (const REPORTGENERATOR::Problem& problem : problems)
        report->problemsOfText << placeAndReason(problem.line, problem.column, problem.reason);
    return element;
}

/// Calls with each value of the node that stands for a field, its path and the field; keeps in the report which
/// values and fields have no counterpart.
template <class Callback>
void forEachPair(const ::Node& node, const ElementTable& table, Report* report, Callback callback)
{
    const QStringList paths = REPORTGENERATOR::fieldPaths(table);
    QSet<QString> pathsWithoutValue(paths.begin(), paths.end());
    const QSet<QString> knownPaths = pathsWithoutValue;
    const QVector<ValueBase*> values = node.GetValues();
    for (ValueBase* value : values) {
        const QString path = value->GetId();
        if (!knownPaths.contains(path)) {
            report->valuesWithoutField << path;
            continue;
        }
        pathsWithoutValue.remove(path);
        callback(*value, path, *REPORTGENERATOR::findField(table, path));
    }
    const QVector<::Node*> childNodes = node.GetChildNodes();
    for (const ::Node* child : childNodes)
        report->valuesWithoutField << child->GetId();
    for (const QString& path : paths) {
        if (pathsWithoutValue.contains(path))
            report->fieldsWithoutValue << path;
    }
}

bool isNumberedSelection(const ValueBase& value, const Field& field)
{
    return field.isNumber() && dynamic_cast<const ValueSelection*>(&value);
}

bool isText(const Field& field)
{
    return field.kind == FieldKind::String;
}

QString textOf(const ValueBase& value, const Field& field)
{
    if (isNumberedSelection(value, field))
        return ValueText::fromDouble(static_cast<const ValueSelection&>(value).GetCurrentValue());
    if (const auto* number = dynamic_cast<const ValueDouble*>(&value))
        return ValueText::fromDouble(number->GetValue());
    return value.GetText();
}

/// What the field has to say, or its default.
QString textOf(const IRGObject& element, const QString& path, const Field& field)
{
    if (field.kind == FieldKind::Float || field.kind == FieldKind::Double)
        return ValueText::fromDouble(REPORTGENERATOR::fieldValue(element, path).toDouble());
    return REPORTGENERATOR::fieldText(element, path);
}

Transfer writeSingle(IRGObject& element, const QString& path, const Field& field, const ValueBase& value,
                     bool keepUnset)
{
    const auto* selection = dynamic_cast<const ValueSelection*>(&value);
    if (selection && !selection->GetCurrentItem())
        return Transfer::Refused;
    const QString text = textOf(value, field);
    if (text.isEmpty() && !isText(field)) {
        REPORTGENERATOR::resetField(element, path);
        return Transfer::Done;
    }
    if (keepUnset && !REPORTGENERATOR::isFieldSet(element, path) && text == textOf(element, path, field))
        return Transfer::Done;
    return REPORTGENERATOR::setFieldText(element, path, text) ? Transfer::Done : Transfer::Refused;
}

/// \param keepUnset  a field that is not set stays so while the value is its default
Transfer writeField(IRGObject& element, const QString& path, const Field& field, const ValueBase& value,
                    bool keepUnset)
{
    const auto* list = dynamic_cast<const StringList*>(&value);
    if (field.list != (list != nullptr))
        return Transfer::Refused;
    if (!list)
        return writeSingle(element, path, field, value, keepUnset);
    return REPORTGENERATOR::setFieldTexts(element, path, list->GetItems().toList()) ? Transfer::Done
                                                                                    : Transfer::Refused;
}

Transfer selectNumber(ValueSelection& selection, double number)
{
    for (int i = 0; i < selection.GetItemCount(); ++i) {
        if (selection.GetItem(i)->GetValue() == number)
            return selection.SelectIndex(i) ? Transfer::Done : Transfer::Refused;
    }
    return Transfer::Refused;
}

/// Whether the value is what the text says, after having taken it.
bool holdsText(const ValueBase& value, const QString& text)
{
    if (value.GetText() == text)
        return true;
    const auto* number = dynamic_cast<const NumericView*>(&value);
    return !number || number->GetDoubleValue() == text.toDouble();
}

Transfer readSingle(ValueBase& value, const Field& field, const QString& text)
{
    if (isNumberedSelection(value, field))
        return selectNumber(static_cast<ValueSelection&>(value), text.toDouble());
    if (!value.SetText(text))
        return Transfer::Refused;
    return holdsText(value, text) ? Transfer::Done : Transfer::Clamped;
}

Transfer readField(ValueBase& value, const IRGObject& element, const QString& path, const Field& field)
{
    auto* list = dynamic_cast<StringList*>(&value);
    if (field.list != (list != nullptr))
        return Transfer::Refused;
    if (list) {
        list->SetItems(REPORTGENERATOR::fieldTexts(element, path).toVector());
        return Transfer::Done;
    }
    const QString text = textOf(element, path, field);
    const bool hasNothing = text.isEmpty() && !isText(field);
    if (hasNothing && !dynamic_cast<ValueString*>(&value))
        return Transfer::Done;
    return readSingle(value, field, text);
}

} // namespace

bool ParameterSetText::Report::isClean() const
{
    return valuesWithoutField.isEmpty() && textsNotConverted.isEmpty() && valuesClamped.isEmpty() &&
           problemsOfText.isEmpty() && failure.isEmpty();
}

QString ParameterSetText::toText(const ::Node& node, const QString& base, Report* report)
{
    Report own;
    const auto finish = [&](const QString& text) {
        if (report)
            *report = own;
        return text;
    };
    const ParameterSet* set = findParameterSet(node.GetId());
    const QString emptyElement =
        set ? QStringLiteral("<%1/>").arg(QLatin1String(set->table->elementName)) : QString();
    const auto element = makeElement(node, base.isEmpty() ? emptyElement : base, &own);
    if (!element)
        return finish(QString());
    forEachPair(node, element->table(), &own, [&](ValueBase& value, const QString& path, const Field& field) {
        if (writeField(*element, path, field, value, !base.isEmpty()) == Transfer::Done)
            return;
        REPORTGENERATOR::resetField(*element, path);
        own.textsNotConverted << path;
    });
    return finish(element->GetXmlString());
}

bool ParameterSetText::fromText(::Node& node, const QString& xml, Report* report)
{
    Report own;
    const auto element = makeElement(node, xml, &own);
    if (element) {
        forEachPair(node, element->table(), &own,
                    [&](ValueBase& value, const QString& path, const Field& field) {
                        const Transfer transfer = readField(value, *element, path, field);
                        if (transfer == Transfer::Refused)
                            own.textsNotConverted << path;
                        else if (transfer == Transfer::Clamped)
                            own.valuesClamped << path;
                    });
    }
    if (report)
        *report = own;
    return element != nullptr;
}

QStringList ParameterSetText::fieldPaths(const QString& parameterSetName)
{
    const ParameterSet* set = findParameterSet(parameterSetName);
    return set ? REPORTGENERATOR::fieldPaths(*set->table) : QStringList();
}

const Field* ParameterSetText::field(const QString& parameterSetName, const QString& path)
{
    const ParameterSet* set = findParameterSet(parameterSetName);
    if (!set || !REPORTGENERATOR::fieldPaths(*set->table).contains(path))
        return nullptr;
    return REPORTGENERATOR::findField(*set->table, path);
}

} // namespace JobXml
