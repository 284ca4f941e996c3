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

bool assignNumber(ValueBase* value, const Field* field, const QString& text, QString* reason)
{
    const QString unit = unitOf(field);
    qint64 whole = 0;
    double number = 0;
    const bool wantsWhole = isWhole(*value);
    if (wantsWhole ? !JobXml::parseWholeQuantity(text, unit, &whole)
                   : !JobXml::parseQuantity(text, unit, &number)) {
        const QString kind =
            wantsWhole ? Texts::tr("\"%1\" is no whole number") : Texts::tr("\"%1\" is no number");
        const QString units = JobXml::unitsFor(unit).join(QLatin1String(", "));
        return refuse(reason,
                      kind.arg(text) + (units.isEmpty() ? QString() : Texts::tr(" in %1").arg(units)));
    }
    const Range range = rangeOf(*value, field);
    const double size = wantsWhole ? double(whole) : number;
    if (size < range.minimum || size > range.maximum)
        return refuse(reason, Texts::tr("%1 is outside %2")
                                  .arg(JobXml::readableQuantity(ValueText::fromDouble(size), unit),
                                       rangeText(range, unit)));
    return value->SetText(wantsWhole ? QString::number(whole) : ValueText::fromDouble(number));
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

bool assignList(StringList* list, const QString& text)
{
    QVector<QString> items;
    for (const QString& item : text.split(QLatin1Char(','))) {
        if (!item.trimmed().isEmpty())
            items.append(item.trimmed());
    }
    return list->SetItems(items);
}

QString readableList(const StringList& list)
{
    QStringList items;
    for (const QString& item : list.GetItems())
        items.append(item);
    return items.join(QLatin1String(", "));
}
} // namespace

namespace JobXml {

bool assignText(ValueBase* value, const Field* field, const QString& text, QString* reason)
{
    if (auto* selection = dynamic_cast<ValueSelection*>(value))
        return assignSelection(selection, field, text, reason);
    if (auto* list = dynamic_cast<StringList*>(value))
        return assignList(list, text);
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
        return readableList(*list);
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
