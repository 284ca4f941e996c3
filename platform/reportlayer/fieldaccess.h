#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <reportlayer/irgobject.h>

// Fields by path, for tools and for everything that handles elements of any class alike. A path names the
// way from an element down to one of its fields, without the element itself: "Range.Detail.Threshold". An
// item of a list of elements is chosen by its number: "Step[2].Frequency". A path that does not exist gives
// null, false or an empty result. The elements themselves say who may use them in which thread.

namespace REPORTGENERATOR {

/// Row of the field in its table, wherever the numbers in the path point to; null for an unknown path.
REPORTLAYER_EXPORT const Field* findField(const ElementTable& table, const QString& path);
/// Paths of all simple fields and lists of simple values, in table order. What lies below a list of
/// elements is not among them, since it has no path of its own.
REPORTLAYER_EXPORT QStringList fieldPaths(const ElementTable& table);

REPORTLAYER_EXPORT bool isFieldSet(const IRGObject& element, const QString& path);
/// Makes the field unset. \return false for an unknown path
REPORTLAYER_EXPORT bool resetField(IRGObject& element, const QString& path);

/// Value of a simple field as it is written into files: an enumeration by its name, numbers with a point. A
/// field that is not set gives its default; an enumeration without one, a list and an element give a null
/// string.
REPORTLAYER_EXPORT QString fieldText(const IRGObject& element, const QString& path);
/// Sets a simple field from such a text.
/// \return false, with nothing changed, for an unknown path, a list, an element, a text that does not
///         convert and a value outside the range of the field
REPORTLAYER_EXPORT bool setFieldText(IRGObject& element, const QString& path, const QString& text);

/// The same as a value: bool, int, qlonglong, double or QString; an enumeration by its number (int, -1:
/// none). Invalid for a list and an element.
REPORTLAYER_EXPORT QVariant fieldValue(const IRGObject& element, const QString& path);
/// Like setFieldText(); an enumeration takes its number or its name.
REPORTLAYER_EXPORT bool setFieldValue(IRGObject& element, const QString& path, const QVariant& value);

/// All items of a list of simple values; of another simple field its one text, if it is set.
REPORTLAYER_EXPORT QStringList fieldTexts(const IRGObject& element, const QString& path);
/// Replaces all items of a list of simple values.
/// \return false, with nothing changed, for anything else and if one of the texts does not convert or is
///         out of range
REPORTLAYER_EXPORT bool setFieldTexts(IRGObject& element, const QString& path, const QStringList& texts);

/// Number of items of a list; of another field 1 if it is set, else 0.
REPORTLAYER_EXPORT int itemCount(const IRGObject& element, const QString& path);
/// The element at the end of the path, one that is not set included; the empty path gives the element
/// itself. Owned by \p element. Null for an unknown path, a simple field and an item that does not exist.
REPORTLAYER_EXPORT const IRGObject* childElement(const IRGObject& element, const QString& path);
REPORTLAYER_EXPORT IRGObject* childElement(IRGObject& element, const QString& path);
/// Appends an item to a list of elements. \return the new item, owned by \p element; null for anything else
REPORTLAYER_EXPORT IRGObject* appendElement(IRGObject& element, const QString& path);

} // namespace REPORTGENERATOR
