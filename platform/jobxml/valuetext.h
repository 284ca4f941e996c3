#pragma once

#include <jobxml/jobxml_export.h>
#include <QString>

#include <QStringList>
#include <values/valuelist.h>

namespace REPORTGENERATOR {
struct Field;
}

/// Values of the value tree as people write and read them.
namespace JobXml {

/// Gives a value what a text says: numbers with an optional unit, true/false, yes/no or on/off, an item of a selection
/// by its name or by what the user is shown for it, list items between commas. Nothing is clamped.
/// \param field   the field that the value stands for: its unit, range and names count too; may be null
/// \param reason  receives why the text was refused, a part of a sentence; may not be null
/// \return false, with the value as it was, if the text does not fit
JOBXML_EXPORT bool assignText(ValueBase* value, const REPORTGENERATOR::Field* field, const QString& text,
                              QString* reason);

/// Gives a list what texts say, one for each item: numbers with an optional unit, values of an enumeration by their
/// names or by what the user is shown for them. Empty texts are left out.
/// \param field   the field that the list stands for; may be null
/// \param reason  receives why a text was refused, a part of a sentence; may not be null
/// \return false, with the list as it was, if one of the texts does not fit
JOBXML_EXPORT bool assignItems(StringList* list, const REPORTGENERATOR::Field* field,
                               const QStringList& texts, QString* reason);

/// The items of a list as the user is shown them: with units, and the texts of an enumeration. assignItems() takes them.
JOBXML_EXPORT QStringList readableItems(const StringList& list, const REPORTGENERATOR::Field* field);

/// The value, with its unit, in readable form.
JOBXML_EXPORT QString readableValue(const ValueBase& value, const REPORTGENERATOR::Field* field);

/// What the value may be: "9 kHz … 30 MHz", or the names that can be chosen; empty if anything goes.
JOBXML_EXPORT QString readableRange(const ValueBase& value, const REPORTGENERATOR::Field* field);

} // namespace JobXml
