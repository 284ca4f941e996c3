#pragma once

#include <QString>
#include <reportlayer/irgobject.h>

namespace REPORTGENERATOR {

const int MAXIMUM_TEXT_LENGTH = 64 * 1024 * 1024; // characters
const int MAXIMUM_LEVELS = 256;
const int MAXIMUM_ATTRIBUTES = 256; // of one element

/// What stands before the root of a document.
struct Prolog
{
    int begin = 0; // behind the XML declaration
    int end = 0;   // where the root begins, or whatever is there instead
};

/// Looks at a text before the XML reader sees it: length, NUL, DOCTYPE and the number of attributes, for
/// which the reader would take quadratic time. Touches a small part of an ordinary text only. For everything that reads
/// XML by itself.
/// \return false, with \p failure filled in, for a text that must not be read
REPORTLAYER_EXPORT bool keepsBounds(const QString& text, Prolog* prolog, Problem* failure);

/// A problem at a position of the text.
Problem problemAt(const QString& text, int position, const QString& reason);

} // namespace REPORTGENERATOR
