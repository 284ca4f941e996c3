#include <jobxml/valuetext.h>

#include <jobxml/quantity.h>
#include <jobxml/suggestion.h>

#include <algorithm>
#include <QCoreApplication>
#include <QVector>
#include <reportlayer/elementtable.h>
#include <values/value.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

using REPORTGENERATOR::Field;

namespace {
struct Truth
{
    QLatin1String text;
    bool value;
};

const Truth TRUTHS[] = {
    {QLatin1String("true"), true}, {QLatin1String("false"), false}, {QLatin1String("yes"), true},
    {QLatin1String("no"), false},  {QLatin1String("on"), true},     {QLatin1String("off"), false},
    {QLatin1String("1"), true},    {QLatin1String("0"), false},
};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(JobXml::ValueText)
};

QString unitOf(const Field* field)
{
    return field ? field->unit() : QString();
}

bool refuse(QString* reason, const QString& text)
{
    *reason = text;
    return false;
}

struct Range
{
    double minimum;
    double maximum;
};

// What value and field both allow.
Range rangeOf(const ValueBase& value, const Field* field)
{
    Range range{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
    if (const auto* numeric = dynamic_cast<const NumericView*>(&value))
        range = {numeric->GetDoubleMin(), numeric->GetDoubleMax()};
    if (field && field->isNumber()) {
        range.minimum = std::max(range.minimum, field->minimum().toDouble());
        range.maximum = std::min(range.maximum, field->maximum().toDouble());
    }
    return range;
}

QString rangeText(const Range& range, const QString& unit)
{
    const auto readable = [&unit](double bound) {
        return JobXml::readableQuantity(ValueText::fromDouble(bound), unit);
    };
    return QStringLiteral("%1 … %2").arg(readable(range.minimum), readable(range.maximum));
}

bool isWhole(const ValueBase& value)
{
    return dynamic_cast<const ValueInt*>(&value) || dynamic_cast<const ValueInt64*>(&value);
}

// The number that a text says, as a value takes it.
bool readNumber(const QString& text, const QString& unit, bool wantsWhole, const Range& range,
                QString* number, QString* reason)
{
    qint64 whole = 0;
    double real = 0;
    if (wantsWhole ? !JobXml::parseWholeQuantity(text, unit, &whole)
                   : !JobXml::parseQuantity(text, unit, &real)) {
        const QString kind =
            wantsWhole ? Texts::tr("\"%1\" is no whole number") : Texts::tr("\"%1\" is no number");
        const QString units = JobXml::unitsFor(unit).join(QLatin1String(", "));
        return refuse(reason,
                      kind.arg(text) + (units.isEmpty() ? QString() : Texts::tr(" in %1").arg(units)));
    }
    const double size = wantsWhole ? double(whole) : real;
    if (size < range.minimum || size > range.maximum)
        return refuse(reason, Texts::tr("%1 is outside %2")
                                  .arg(JobXml::readableQuantity(ValueText::fromDouble(size), unit),
                                       rangeText(range, unit)));
    *number = wantsWhole ? QString::number(whole) : ValueText::fromDouble(real);
    return true;
}

bool assignNumber(ValueBase* value, const Field* field, const QString& text, QString* reason)
{
    QString number;
    return readNumber(text, unitOf(field), isWhole(*value), rangeOf(*value, field), &number, reason) &&
           value->SetText(number);
}

bool assignTruth(ValueBase* value, const QString& text, QString* reason)
{
    for (const Truth& truth : TRUTHS) {
        if (text.compare(truth.text, Qt::CaseInsensitive) == 0)
            return value->SetText(ValueText::fromBool(truth.value));
    }
    return refuse(reason, Texts::tr("\"%1\" is neither true nor false").arg(text));
}

// The name that is written into files, for a name or for the text that the user is shown for it.
QString enumerationName(const Field* field, const QString& text)
{
    const int position = field && field->enumeration ? field->enumeration->allGuiTexts().indexOf(text) : -1;
    return position < 0 ? text : field->enumeration->name(position);
}

QStringList itemNames(const ValueSelection& selection)
{
    QStringList names;
    for (int i = 0; i < selection.GetItemCount(); ++i)
        names.append(selection.GetItem(i)->GetName());
    return names;
}

bool assignSelection(ValueSelection* selection, const Field* field, const QString& text, QString* reason)
{
    if (selection->SetText(enumerationName(field, text)))
        return true;
    double number = 0;
    const bool isNumber =
        !(field && field->enumeration) && JobXml::parseQuantity(text, unitOf(field), &number);
    for (int i = 0; isNumber && i < selection->GetItemCount(); ++i) {
        if (selection->GetItem(i)->GetValue() == number)
            return selection->SelectIndex(i);
    }
    const QStringList names = itemNames(*selection);
    return refuse(reason, Texts::tr("\"%1\" is none of %2").arg(text, names.join(QLatin1String(", "))) +
                              (JobXml::nearest(text, names).isNull()
                                   ? QString()
                                   : QLatin1Char('.') + JobXml::suggestion(text, names)));
}

// One item of a list of the field's values, as it is written into files.
bool readItem(const Field* field, const QString& text, QString* item, QString* reason)
{
    using REPORTGENERATOR::FieldKind;
    if (field && field->isNumber()) {
        const bool wantsWhole = field->kind == FieldKind::Int || field->kind == FieldKind::Long;
        const Range range{field->minimum().toDouble(), field->maximum().toDouble()};
        return readNumber(text, field->unit(), wantsWhole, range, item, reason);
    }
    *item = enumerationName(field, text);
    if (!field || !field->enumeration || field->enumeration->number(*item) >= 0)
        return true;
    return refuse(reason, Texts::tr("\"%1\" is none of %2")
                              .arg(text, field->enumeration->allGuiTexts().join(QLatin1String(", "))));
}
} // namespace

namespace JobXml {

bool assignItems(StringList* list, const Field* field, const QStringList& texts, QString* reason)
{
    QVector<QString> items;
    for (const QString& text : texts) {
        const QString trimmed = text.trimmed();
        QString item;
        if (!trimmed.isEmpty() && !readItem(field, trimmed, &item, reason))
            return false;
        if (!trimmed.isEmpty())
            items.append(item);
    }
    return list->SetItems(items);
}

QStringList readableItems(const StringList& list, const Field* field)
{
    QStringList texts;
    const QVector<QString> items = list.GetItems();
    for (const QString& item : items) {
        const int number = field && field->enumeration ? field->enumeration->number(item) : -1;
        texts.append(number < 0 ? readableQuantity(item, unitOf(field))
                                : field->enumeration->guiText(number));
    }
    return texts;
}

bool assignText(ValueBase* value, const Field* field, const QString& text, QString* reason)
{
    if (auto* selection = dynamic_cast<ValueSelection*>(value))
        return assignSelection(selection, field, text, reason);
    if (auto* list = dynamic_cast<StringList*>(value))
        return assignItems(list, field, text.split(QLatin1Char(',')), reason);
    if (dynamic_cast<ValueBool*>(value))
        return assignTruth(value, text, reason);
    if (isWhole(*value) || dynamic_cast<ValueDouble*>(value))
        return assignNumber(value, field, text, reason);
    const QString name = enumerationName(field, text);
    if (field && field->enumeration && field->enumeration->number(name) < 0)
        return refuse(reason, Texts::tr("\"%1\" is none of %2")
                                  .arg(text, field->enumeration->allNames().join(QLatin1String(", "))));
    return value->SetText(name);
}

QString readableValue(const ValueBase& value, const Field* field)
{
    if (const auto* list = dynamic_cast<const StringList*>(&value))
        return QStringList(list->GetItems().toList()).join(QLatin1String(", "));
    return readableQuantity(value.GetText(), unitOf(field));
}

QString readableRange(const ValueBase& value, const Field* field)
{
    if (const auto* selection = dynamic_cast<const ValueSelection*>(&value))
        return itemNames(*selection).join(QLatin1String(", "));
    if (dynamic_cast<const NumericView*>(&value))
        return rangeText(rangeOf(value, field), unitOf(field));
    return QString();
}

} // namespace JobXml
