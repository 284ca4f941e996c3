#pragma once

#include <QString>
#include <reportlayer/irgobject.h>

namespace REPORTGENERATOR {

/// The element alone, without a line end; empty for one that is not set.
QString elementText(const IRGObject& element);

/// The element as a document, with XML declaration, version and a line end.
QString documentText(const IRGObject& element);

} // namespace REPORTGENERATOR
