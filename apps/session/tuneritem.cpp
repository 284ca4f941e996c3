#include "tuneritem.h"

#include <jobxml/quantity.h>

#include <iterator>
#include <jobxml/tunerproperties.h>
#include <QCoreApplication>
#include <QVariant>
#include <reportlayer/elementtable.h>
#include <values/formats.h>

using Session::TunerItem;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::TunerItem)
};

template <typename Item>
TunerItem plain(const Item& item)
{
    TunerItem result;
    result.id = item.Getid();
    return result;
}

template <typename Item>
TunerItem number(const Item& item)
{
    TunerItem result = plain(item);
    result.isNumber = true;
    result.value = double(item.Getvalue());
    return result;
}

template <typename Item>
TunerItem numeric(const Item& item)
{
    TunerItem result = number(item);
    result.hasRange = true;
    result.minimum = double(item.Getmin());
    result.maximum = double(item.Getmax());
    result.step = double(item.Getstep());
    return result;
}

TunerItem selection(const JobXml::ValueSelection& item)
{
    TunerItem result = plain(item);
    result.isSelection = true;
    result.value = item.Getindex();
    for (const JobXml::SelectionItem& choice : item.GetSelectionItem())
        result.items.append(choice.Getname());
    return result;
}

// By the number of the choice.
TunerItem (*const READERS[])(const JobXml::ValueItem&) = {
    [](const JobXml::ValueItem& item) { return plain(item.GetValueBoolean()); },
    [](const JobXml::ValueItem& item) { return number(item.GetValueFloat()); },
    [](const JobXml::ValueItem& item) { return number(item.GetValueInt()); },
    [](const JobXml::ValueItem& item) { return number(item.GetValueInt64()); },
    [](const JobXml::ValueItem& item) { return numeric(item.GetValueNumericFloat()); },
    [](const JobXml::ValueItem& item) { return numeric(item.GetValueNumericInt()); },
    [](const JobXml::ValueItem& item) { return numeric(item.GetValueNumericInt64()); },
    [](const JobXml::ValueItem& item) { return selection(item.GetValueSelection()); },
    [](const JobXml::ValueItem& item) { return plain(item.GetValueString()); },
    [](const JobXml::ValueItem& item) { return plain(item.GetValueStringList()); },
};

QString shown(double number, const REPORTGENERATOR::Field& field)
{
    return JobXml::readableQuantity(ValueText::fromDouble(number), field.unit());
}

QString shownRange(double minimum, double maximum, const REPORTGENERATOR::Field& field)
{
    return QStringLiteral("%1 … %2").arg(shown(minimum, field), shown(maximum, field));
}

QStringList rangeFaults(const TunerItem& item, const REPORTGENERATOR::Field& field)
{
    const QString range = shownRange(item.minimum, item.maximum, field);
    QStringList result;
    if (item.minimum > item.maximum)
        result.append(Texts::tr("the range %1 is empty").arg(range));
    else if (item.value < item.minimum || item.value > item.maximum)
        result.append(
            Texts::tr("the default %1 is outside the range %2").arg(shown(item.value, field), range));
    if (item.step < 0)
        result.append(Texts::tr("the step %1 is negative").arg(shown(item.step, field)));
    return result;
}

QStringList fieldRangeFaults(const TunerItem& item, const REPORTGENERATOR::Field& field)
{
    const double minimum = field.minimum().toDouble();
    const double maximum = field.maximum().toDouble();
    const double low = item.hasRange ? item.minimum : item.value;
    const double high = item.hasRange ? item.maximum : item.value;
    if (low >= minimum && high <= maximum)
        return {};
    const QString range = shownRange(minimum, maximum, field);
    if (item.hasRange)
        return {Texts::tr("the range %1 reaches beyond %2, which a job file can hold")
                    .arg(shownRange(low, high, field), range)};
    return {
        Texts::tr("the default %1 is outside %2, which a job file can hold").arg(shown(low, field), range)};
}

QStringList selectionFaults(const TunerItem& item, const REPORTGENERATOR::Field& field)
{
    QStringList result;
    if (item.value < 0 || item.value >= item.items.size())
        result.append(Texts::tr("the default is item %1 of %2")
                          .arg(ValueText::fromDouble(item.value), QString::number(item.items.size())));
    for (const QString& name : item.items) {
        if (field.enumeration && field.enumeration->number(name) < 0)
            result.append(Texts::tr("the item \"%1\" is none of %2")
                              .arg(name, field.enumeration->allNames().join(QLatin1String(", "))));
    }
    return result;
}
} // namespace

namespace Session {

TunerItem tunerItem(const JobXml::ValueItem& item)
{
    const int choice = item.GetChoiceValueItem();
    return choice >= 0 && choice < int(std::size(READERS)) ? READERS[choice](item) : TunerItem();
}

QStringList tunerItemFaults(const TunerItem& item, const REPORTGENERATOR::Field& field)
{
    QStringList result;
    if (item.isSelection)
        result += selectionFaults(item, field);
    if (item.hasRange)
        result += rangeFaults(item, field);
    if (item.isNumber && field.isNumber())
        result += fieldRangeFaults(item, field);
    return result;
}

} // namespace Session
