#pragma once

#include <QString>
#include <reportlayer/irgobject.h>

namespace REPORTGENERATOR {

/// Validates a text with libxml2 against the schema of the table's class.
/// \param rootName  name of the text's root, which stands for an element of that class
/// \param failure   receives the first thing found
bool keepsToSchema(const ElementTable& table, const QString& rootName, const QString& text, Problem* failure);

} // namespace REPORTGENERATOR
