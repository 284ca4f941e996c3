#pragma once

#include <values/values_export.h>

#include <QString>
#include <QTextStream>

#include <limits>

#if !defined(_MSC_VER) && !defined(__MINGW32__)
/// The 64-bit integer of the value types' names, for compilers that have no such word.
using __int64 = long long; // NOLINT(bugprone-reserved-identifier)
#endif

/// Text to value and back, as in XML documents and independent of the locale. Blanks around a value are not
/// taken. The parsing functions leave *\p out alone when they return false.
namespace ValueText {
/// "true" and "false"; "1" and "0" are taken too.
VALUES_EXPORT QString fromBool(bool value);
VALUES_EXPORT bool toBool(const QString& text, bool* out);
/// Base 10. False beyond 64 bits.
VALUES_EXPORT bool toInt64(const QString& text, __int64* out);
/// The shortest text that gives the same number, whole numbers up to 2^53 without exponent; "INF", "-INF"
/// and "NaN" for those.
VALUES_EXPORT QString fromDouble(double value);
VALUES_EXPORT bool toDouble(const QString& text, double* out);
/// One line: backslash, carriage return and line feed are escaped.
VALUES_EXPORT QString escapedLine(const QString& text);
VALUES_EXPORT QString unescapedLine(const QString& line);
} // namespace ValueText

/// How a truth value reads as text.
template <class T>
struct VALUES_EXPORT FormatBool
{
    static QString ToText(const T& value) { return ValueText::fromBool(value); }
    /// False, with \p out unchanged, if the text is no such value.
    static bool FromText(const QString& text, T* out) { return ValueText::toBool(text, out); }
};

/// How an integer of up to 64 bits reads as text.
template <class T>
struct VALUES_EXPORT FormatInt64
{
    static QString ToText(const T& value) { return QString::number(value); }
    /// False, with \p out unchanged, if the text is no integer of the type's range.
    static bool FromText(const QString& text, T* out)
    {
        __int64 number = 0;
        if (!ValueText::toInt64(text, &number))
            return false;
        if (number < std::numeric_limits<T>::min() || number > std::numeric_limits<T>::max())
            return false;
        *out = static_cast<T>(number);
        return true;
    }
};

/// How an integer reads as text.
template <class T>
struct VALUES_EXPORT FormatInt : FormatInt64<T>
{
};

/// How a number reads as text.
template <class T>
struct VALUES_EXPORT FormatFloat
{
    static QString ToText(const T& value) { return ValueText::fromDouble(value); }
    /// False, with \p out unchanged, if the text is no number.
    static bool FromText(const QString& text, T* out) { return ValueText::toDouble(text, out); }
};

/// A text stands for itself.
template <class T>
struct VALUES_EXPORT FormatString
{
    static QString ToText(const T& value) { return value; }
    static bool FromText(const QString& text, T* out)
    {
        *out = text;
        return true;
    }
};

/// How a value of format F is written to a text stream: one line each, ended by a line feed, so that several
/// can follow one another.
template <class T, class F>
struct VALUES_EXPORT StreamFormat
{
    static void Write(QTextStream& stream, const T& value)
    {
        stream << ValueText::escapedLine(F::ToText(value)) << '\n';
    }
    /// False, with \p out unchanged, at the end of the stream and if the line is no such value.
    static bool Read(QTextStream& stream, T* out)
    {
        const QString line = stream.readLine();
        return !line.isNull() && F::FromText(ValueText::unescapedLine(line), out);
    }
};
