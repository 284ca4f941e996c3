#include <jobxml/quantity.h>

#include <cmath>
#include <QLocale>
#include <QRegularExpression>

namespace {
struct Suffix
{
    QLatin1String unit; // Of the field.
    QLatin1String text; // Behind the number.
    double factor;
    bool isSpelledOut; // With the unit, the way in which numbers are shown.
};

const Suffix SUFFIXES[] = {
    {QLatin1String("Hz"), QLatin1String("kHz"), 1e3, true},
    {QLatin1String("Hz"), QLatin1String("MHz"), 1e6, true},
    {QLatin1String("Hz"), QLatin1String("GHz"), 1e9, true},
    {QLatin1String("Hz"), QLatin1String("k"), 1e3, false},
    {QLatin1String("Hz"), QLatin1String("M"), 1e6, false},
    {QLatin1String("Hz"), QLatin1String("G"), 1e9, false},
    {QLatin1String("ms"), QLatin1String("s"), 1e3, true},
    {QLatin1String("ms"), QLatin1String("min"), 6e4, true},
    {QLatin1String("ms"), QLatin1String("h"), 3.6e6, true},
};

// 0 if the suffix does not go with the unit.
double factorOf(const QString& suffix, const QString& unit)
{
    if (suffix.isEmpty() || suffix == unit)
        return 1;
    for (const Suffix& row : SUFFIXES) {
        if (row.unit == unit && row.text == suffix)
            return row.factor;
    }
    return 0;
}

// A decimal number divided by a power of ten or another factor, if that takes few digits.
QString divided(double number, double factor)
{
    return QString::number(number / factor, 'g', 12);
}
// Without an exponent, where that is not too long.
QString plain(const QString& number, double value)
{
    constexpr double LONGEST = 1e15;
    if (!number.contains(QLatin1Char('e'), Qt::CaseInsensitive) || std::abs(value) >= LONGEST ||
        std::abs(value) < 1 / LONGEST)
        return number;
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}
} // namespace

namespace JobXml {

bool parseQuantity(const QString& text, const QString& unit, double* number)
{
    static const QRegularExpression FORM(
        QStringLiteral("^([+-]?(?:[0-9]+[.,]?[0-9]*|[.,][0-9]+)(?:[eE][+-]?[0-9]+)?)\\s*(\\S*)$"));
    const QRegularExpressionMatch match = FORM.match(text.trimmed());
    const double factor = match.hasMatch() ? factorOf(match.captured(2), unit) : 0;
    const double result = match.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble() * factor;
    if (factor == 0 || !std::isfinite(result))
        return false;
    *number = result;
    return true;
}

bool parseWholeQuantity(const QString& text, const QString& unit, qint64* number)
{
    bool isPlain = false;
    const qint64 plain = text.trimmed().toLongLong(&isPlain);
    if (isPlain) {
        *number = plain;
        return true;
    }
    double quantity = 0;
    constexpr double LIMIT = 9.2e18; // Within 64 bits with room for rounding.
    if (!parseQuantity(text, unit, &quantity) || std::abs(quantity) > LIMIT)
        return false;
    // 433.92 times a million is not whole in binary; what a person means is.
    const double whole = std::round(quantity);
    if (std::abs(quantity - whole) > 1e-12 * std::abs(quantity))
        return false;
    *number = qint64(whole);
    return true;
}

QString readableQuantity(const QString& number, const QString& unit)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    if (!isNumber)
        return number;
    if (unit.isEmpty())
        return plain(number, value);
    const Suffix* best = nullptr;
    for (const Suffix& row : SUFFIXES) {
        const bool fits = row.unit == unit && row.isSpelledOut && std::abs(value) >= row.factor;
        // Only where nothing is rounded away.
        if (fits && divided(value, row.factor).toDouble() * row.factor == value)
            best = &row;
    }
    const QString shown = best ? divided(value, best->factor) : plain(number, value);
    return shown + QLatin1Char(' ') + (best ? QString(best->text) : unit);
}

QStringList unitsFor(const QString& unit)
{
    QStringList result;
    if (!unit.isEmpty())
        result.append(unit);
    for (const Suffix& row : SUFFIXES) {
        if (row.unit == unit && row.isSpelledOut)
            result.append(row.text);
    }
    return result;
}

} // namespace JobXml
