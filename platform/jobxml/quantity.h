#pragma once

#include <jobxml/jobxml_export.h>
#include <QString>
#include <QStringList>

/// Numbers with a unit, as people write and read them.
namespace JobXml {

/// Reads a number with an optional unit or prefix that goes with \p unit: for a field in Hz "145.5M", "145.5 MHz" and
/// "145500000" are the same, for one in ms "2s" and "2000". The decimal sign is
/// the point or the comma; digits are not grouped.
/// \param number  receives the number in \p unit; untouched on failure
/// \return false if the text is no such number
JOBXML_EXPORT bool parseQuantity(const QString& text, const QString& unit, double* number);

/// As parseQuantity, for fields that hold whole numbers; exact for texts without decimals and prefix.
/// \return false also for a number that is not whole or needs more than 64 bits
JOBXML_EXPORT bool parseWholeQuantity(const QString& text, const QString& unit, qint64* number);

/// A number as text() of a value gives it, with its unit: "156800000" in Hz reads "156.8 MHz". Text that is no number
/// stays as it is.
JOBXML_EXPORT QString readableQuantity(const QString& number, const QString& unit);

/// What may stand behind a number in \p unit, for messages: "Hz, kHz, MHz, GHz".
JOBXML_EXPORT QStringList unitsFor(const QString& unit);

} // namespace JobXml
