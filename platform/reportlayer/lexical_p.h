#pragma once

#include <QString>
#include <QStringRef>
#include <reportlayer/fieldlist.h>

namespace REPORTGENERATOR {

/// Compares in place, which is faster for the short names of a table than the general comparison.
inline bool isSame(const QStringRef& text, const char* latin, int length)
{
    if (text.size() != length)
        return false;
    const QChar* const data = text.data();
    for (int i = 0; i < length; ++i) {
        if (data[i] != QLatin1Char(latin[i]))
            return false;
    }
    return true;
}

/// Converts the text of a field as the schema's types define it: blanks round numbers are allowed, nothing
/// else is. \return false, with \p value in no defined state, for text of another form and numbers that do
/// not fit
bool parseValue(const Field& field, const QStringRef& text, FieldValue* value);

/// The one text of a value: the shortest that gives the same number again.
QString formatValue(const Field& field, const FieldValue& value);

/// Text as it is written between tags or into an attribute. Characters that XML cannot hold become U+FFFD.
void appendEscaped(QString* out, const QString& text, bool attribute);

/// Attribute as it is written, with a blank before it.
QString attributeText(const QString& name, const QString& value);

} // namespace REPORTGENERATOR
