#pragma once

#include <QString>
#include <reportlayer/irgobject.h>

namespace REPORTGENERATOR {

/// Reads a text into a fresh element, in a single pass. While reading it finds out whether the text keeps to
/// the schema as far as the tables know it; any doubt counts as no.
/// \param whole     a document: version, prolog and epilog are kept
/// \param progress  may be empty
/// \return false with \p failure filled in; \p root is of no use then
bool readElementText(const QString& text, IRGObject& root, bool whole, const ReadProgress& progress,
                     Problem* failure);

} // namespace REPORTGENERATOR
