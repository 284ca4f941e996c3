#include "lexical_p.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <QVarLengthArray>

namespace REPORTGENERATOR {

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t') ||
           c == QLatin1Char('\r');
}

QStringRef withoutBlanks(QStringRef text)
{
    int first = 0;
    int end = text.size();
    while (first < end && isBlank(text.at(first)))
        ++first;
    while (end > first && isBlank(text.at(end - 1)))
        --end;
    return text.mid(first, end - first);
}

bool parseInteger(const QStringRef& text, qint64* value)
{
    const int size = text.size();
    const bool negative = size > 0 && text.at(0) == QLatin1Char('-');
    int i = negative || (size > 0 && text.at(0) == QLatin1Char('+')) ? 1 : 0;
    if (i == size)
        return false;
    // Gathered below zero, where there is one number more.
    qint64 gathered = 0;
    for (; i < size; ++i) {
        const int digit = text.at(i).unicode() - '0';
        if (digit < 0 || digit > 9 || gathered < (std::numeric_limits<qint64>::min() + digit) / 10)
            return false;
        gathered = gathered * 10 - digit;
    }
    if (!negative && gathered == std::numeric_limits<qint64>::min())
        return false;
    *value = negative ? gathered : -gathered;
    return true;
}

struct SpecialReal
{
    const char* text;
    int length;
    double value;
};

const SpecialReal SPECIAL_REALS[] = {
    {"INF", 3, std::numeric_limits<double>::infinity()},
    {"-INF", 4, -std::numeric_limits<double>::infinity()},
    {"NaN", 3, std::numeric_limits<double>::quiet_NaN()},
};

bool parseSpecialReal(const QStringRef& text, double* value)
{
    for (const SpecialReal& special : SPECIAL_REALS) {
        if (isSame(text, special.text, special.length)) {
            *value = special.value;
            return true;
        }
    }
    return false;
}

bool isOfReal(ushort code)
{
    return (code >= '0' && code <= '9') || code == '.' || code == '-' || code == '+' || code == 'e' ||
           code == 'E';
}

template <class Real>
bool parseReal(const QStringRef& text, double* value)
{
    QVarLengthArray<char, 64> bytes;
    for (const QChar c : text) {
        if (!isOfReal(c.unicode()))
            return parseSpecialReal(text, value);
        bytes.append(static_cast<char>(c.unicode()));
    }
    const char* first = bytes.constData();
    const char* const end = first + bytes.size();
    if (bytes.size() > 1 && *first == '+' && first[1] != '-')
        ++first;
    Real number = 0;
    const std::from_chars_result result = std::from_chars(first, end, number);
    *value = number;
    return result.ec == std::errc() && result.ptr == end;
}

bool parseBoolean(const QStringRef& text, qint64* value)
{
    *value = isSame(text, "true", 4) || isSame(text, "1", 1) ? 1 : 0;
    return *value == 1 || isSame(text, "false", 5) || isSame(text, "0", 1);
}

bool parseEnumeration(const EnumTable& table, const QStringRef& text, qint64* value)
{
    *value = 0;
    while (*value < table.count && text != QLatin1String(table.names[*value]))
        ++*value;
    return *value < table.count;
}

bool parseNumber(FieldKind kind, const QStringRef& text, FieldValue* value)
{
    switch (kind) {
    case FieldKind::Int:
        return parseInteger(text, &value->integer) && value->integer >= std::numeric_limits<int>::min() &&
               value->integer <= std::numeric_limits<int>::max();
    case FieldKind::Long:
        return parseInteger(text, &value->integer);
    case FieldKind::Float:
        return parseReal<float>(text, &value->real);
    case FieldKind::Double:
        return parseReal<double>(text, &value->real);
    default:
        return parseBoolean(text, &value->integer);
    }
}

/// The shortest text that gives the same number again; whole numbers are written in full, since few people
/// take "1e+05" for a frequency.
template <class Real>
QString formatReal(Real value)
{
    constexpr double LARGEST_EXACT = 9007199254740992.0; // 2^53
    if (std::isnan(value))
        return QStringLiteral("NaN");
    if (std::isinf(value))
        return value > 0 ? QStringLiteral("INF") : QStringLiteral("-INF");
    char buffer[64];
    const bool isWhole = std::abs(value) <= LARGEST_EXACT && value == std::trunc(value);
    const std::to_chars_result result =
        isWhole ? std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed)
                : std::to_chars(buffer, buffer + sizeof buffer, value);
    return QString::fromLatin1(buffer, static_cast<int>(result.ptr - buffer));
}

bool isAllowed(const QString& text, int at)
{
    const QChar c = text.at(at);
    if (c.isHighSurrogate())
        return at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return at > 0 && text.at(at - 1).isHighSurrogate();
    return c.unicode() >= 0x20 ? c.unicode() < 0xfffe : isBlank(c);
}

struct Escape
{
    ushort character;
    QLatin1String text;
    bool inAttributesOnly;
};

const Escape ESCAPES[] = {
    {'&', QLatin1String("&amp;"), false}, {'<', QLatin1String("&lt;"), false},
    {'>', QLatin1String("&gt;"), false},  {'\r', QLatin1String("&#13;"), false},
    {'"', QLatin1String("&quot;"), true}, {'\n', QLatin1String("&#10;"), true},
    {'\t', QLatin1String("&#9;"), true},
};

} // namespace

bool parseValue(const Field& field, const QStringRef& text, FieldValue* value)
{
    switch (field.kind) {
    case FieldKind::String:
    case FieldKind::DateTime:
        value->text = text.toString();
        return true;
    case FieldKind::Enumeration:
        return parseEnumeration(*field.enumeration, text, &value->integer);
    case FieldKind::Element:
        return false;
    default:
        break;
    }
    const bool blanks = !text.isEmpty() && (isBlank(text.at(0)) || isBlank(text.at(text.size() - 1)));
    return parseNumber(field.kind, blanks ? withoutBlanks(text) : text, value);
}

QString formatValue(const Field& field, const FieldValue& value)
{
    switch (field.kind) {
    case FieldKind::Boolean:
        return value.integer != 0 ? QStringLiteral("true") : QStringLiteral("false");
    case FieldKind::Int:
    case FieldKind::Long:
        return QString::number(value.integer);
    case FieldKind::Float:
        return formatReal(static_cast<float>(value.real));
    case FieldKind::Double:
        return formatReal(value.real);
    case FieldKind::Enumeration:
        return field.enumeration->name(static_cast<int>(value.integer));
    case FieldKind::String:
    case FieldKind::DateTime:
        return value.text;
    case FieldKind::Element:
        break;
    }
    return QString();
}

void appendEscaped(QString* out, const QString& text, bool attribute)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const auto same = [c, attribute](const Escape& escape) {
            return escape.character == c.unicode() && (attribute || !escape.inAttributesOnly);
        };
        const auto* escape = std::find_if(std::begin(ESCAPES), std::end(ESCAPES), same);
        if (escape != std::end(ESCAPES))
            out->append(escape->text);
        else
            out->append(isAllowed(text, i) ? c : QChar(QChar::ReplacementCharacter));
    }
}

QString attributeText(const QString& name, const QString& value)
{
    QString result = QLatin1Char(' ') + name + QLatin1String("=\"");
    appendEscaped(&result, value, true);
    return result + QLatin1Char('"');
}

} // namespace REPORTGENERATOR
