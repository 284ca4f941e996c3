#include <limits>
#include <QCoreApplication>
#include <reportlayer/elementtable.h>

namespace REPORTGENERATOR {

namespace {

QString translated(const char* context, const char* text)
{
    return text ? QCoreApplication::translate(context, text) : QString();
}

struct IntegerLimits
{
    qint64 least;
    qint64 greatest;
};

IntegerLimits integerLimits(const Field& field)
{
    const bool wide = field.kind == FieldKind::Long;
    const qint64 least = wide ? std::numeric_limits<qint64>::min() : std::numeric_limits<int>::min();
    const qint64 greatest = wide ? std::numeric_limits<qint64>::max() : std::numeric_limits<int>::max();
    return {field.hasMinimum ? field.minimumInteger : least,
            field.hasMaximum ? field.maximumInteger : greatest};
}

double greatestReal(FieldKind kind)
{
    return kind == FieldKind::Float ? std::numeric_limits<float>::max() : std::numeric_limits<double>::max();
}

bool isReal(FieldKind kind)
{
    return kind == FieldKind::Float || kind == FieldKind::Double;
}

QVariant integerVariant(FieldKind kind, qint64 value)
{
    return kind == FieldKind::Long ? QVariant(value) : QVariant(static_cast<int>(value));
}

} // namespace

QString EnumTable::name(int number) const
{
    return number >= 0 && number < count ? QString::fromLatin1(names[number]) : QString();
}

QString EnumTable::guiText(int number) const
{
    return number >= 0 && number < count ? translated(context, guiTexts[number]) : QString();
}

int EnumTable::number(const QString& name) const
{
    for (int i = 0; i < count; ++i) {
        if (name == QLatin1String(names[i]))
            return i;
    }
    return -1;
}

QStringList EnumTable::allNames() const
{
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result.append(name(i));
    return result;
}

QStringList EnumTable::allGuiTexts() const
{
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result.append(guiText(i));
    return result;
}

QString Field::label() const
{
    return labelText ? translated(context, labelText) : QString::fromLatin1(name);
}

QString Field::unit() const
{
    return QString::fromUtf8(unitText);
}

QString Field::help() const
{
    return translated(context, helpText);
}

QVariant Field::defaultValue() const
{
    if (list || kind == FieldKind::Element)
        return QVariant();
    switch (kind) {
    case FieldKind::Boolean:
        return defaultInteger != 0;
    case FieldKind::Float:
    case FieldKind::Double:
        return defaultReal;
    case FieldKind::String:
    case FieldKind::DateTime:
        return QString::fromUtf8(defaultText);
    default:
        return integerVariant(kind, defaultInteger);
    }
}

QVariant Field::minimum() const
{
    if (!isNumber())
        return QVariant();
    if (isReal(kind))
        return hasMinimum ? minimumReal : -greatestReal(kind);
    return integerVariant(kind, integerLimits(*this).least);
}

QVariant Field::maximum() const
{
    if (!isNumber())
        return QVariant();
    if (isReal(kind))
        return hasMaximum ? maximumReal : greatestReal(kind);
    return integerVariant(kind, integerLimits(*this).greatest);
}

bool Field::isInRange(qint64 value) const
{
    const IntegerLimits limits = integerLimits(*this);
    return value >= limits.least && value <= limits.greatest;
}

bool Field::isInRange(double value) const
{
    return !(hasMinimum && !(value >= minimumReal)) && !(hasMaximum && !(value <= maximumReal));
}

QByteArray SchemaText::text() const
{
    QByteArray result;
    for (int i = 0; i < lineCount; ++i)
        result.append(lines[i]).append('\n');
    return result;
}

int ElementTable::fieldIndex(const QString& name) const
{
    for (int i = 0; i < fieldCount; ++i) {
        if (name == QLatin1String(fields[i].name, fields[i].nameLength))
            return i;
    }
    return -1;
}

bool ElementTable::accepts(const QString& rootName) const
{
    for (int i = 0; i < acceptedNameCount; ++i) {
        if (rootName == QLatin1String(acceptedNames[i]))
            return true;
    }
    return false;
}

int ElementTable::firstElement() const
{
    int field = 0;
    while (field < fieldCount && fields[field].attribute)
        ++field;
    return field;
}

QString ElementTable::alternativeName(int number) const
{
    const int first = firstElement();
    return number >= 0 && number < fieldCount - first ? QString::fromLatin1(fields[first + number].name)
                                                      : QString();
}

QString ParameterSet::label() const
{
    return labelText ? translated(context, labelText) : QString::fromLatin1(name);
}

} // namespace REPORTGENERATOR
