#include <values/formats.h>

#include <QLocale>

#include <cmath>
#include <limits>

namespace {

constexpr double LARGEST_EXACT = 9007199254740992.0; // 2^53: all whole numbers up to it are doubles

struct BoolName
{
    QLatin1String text;
    bool value;
};
const BoolName BOOL_NAMES[] = {
    {QLatin1String("true"), true},
    {QLatin1String("false"), false},
    {QLatin1String("1"), true},
    {QLatin1String("0"), false},
};

struct NumberName
{
    QLatin1String text;
    double value;
};
const NumberName NUMBER_NAMES[] = {
    {QLatin1String("INF"), std::numeric_limits<double>::infinity()},
    {QLatin1String("-INF"), -std::numeric_limits<double>::infinity()},
    {QLatin1String("NaN"), std::numeric_limits<double>::quiet_NaN()},
};

struct Escape
{
    QChar plain;
    QChar letter;
};
const Escape ESCAPES[] = {
    {QLatin1Char('\\'), QLatin1Char('\\')},
    {QLatin1Char('\n'), QLatin1Char('n')},
    {QLatin1Char('\r'), QLatin1Char('r')},
};

/// Qt's conversions pass over blanks, these do not.
bool hasOuterBlanks(const QString& text)
{
    return text.isEmpty() || text.front().isSpace() || text.back().isSpace();
}

} // namespace

namespace ValueText {

QString fromBool(bool value)
{
    return BOOL_NAMES[value ? 0 : 1].text;
}

bool toBool(const QString& text, bool* out)
{
    for (const BoolName& name : BOOL_NAMES) {
        if (text == name.text) {
            *out = name.value;
            return true;
        }
    }
    return false;
}

bool toInt64(const QString& text, __int64* out)
{
    bool isNumber = false;
    const __int64 number = text.toLongLong(&isNumber);
    if (!isNumber || hasOuterBlanks(text))
        return false;
    *out = number;
    return true;
}

QString fromDouble(double value)
{
    if (std::isnan(value))
        return NUMBER_NAMES[2].text;
    if (std::isinf(value))
        return NUMBER_NAMES[value > 0 ? 0 : 1].text;
    const bool isWhole = std::abs(value) <= LARGEST_EXACT && value == std::trunc(value);
    return isWhole ? QString::number(value, 'f', 0)
                   : QString::number(value, 'g', QLocale::FloatingPointShortest);
}

bool toDouble(const QString& text, double* out)
{
    for (const NumberName& name : NUMBER_NAMES) {
        if (text == name.text) {
            *out = name.value;
            return true;
        }
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || hasOuterBlanks(text))
        return false;
    *out = number;
    return true;
}

QString escapedLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        QChar letter;
        for (const Escape& escape : ESCAPES) {
            if (escape.plain == character)
                letter = escape.letter;
        }
        if (letter.isNull())
            line += character;
        else
            line += QLatin1Char('\\') + letter;
    }
    return line;
}

QString unescapedLine(const QString& line)
{
    QString text;
    text.reserve(line.size());
    for (int i = 0; i < line.size(); ++i) {
        QChar character = line.at(i);
        if (character == QLatin1Char('\\') && i + 1 < line.size()) {
            character = line.at(++i);
            for (const Escape& escape : ESCAPES) {
                if (escape.letter == line.at(i))
                    character = escape.plain;
            }
        }
        text += character;
    }
    return text;
}

} // namespace ValueText
