#pragma once

#include "jedvepb_export.h"

/// Version of the binary interface that this header describes: one integer, raised by one whenever
/// the order of virtual operations, the members of an exported class or an exported symbol changes.
#define JEDVEPB_INTERFACE_VERSION 1

namespace JEDVEPLUGIN {

/// Interface version of the library that is loaded, to be compared with JEDVEPB_INTERFACE_VERSION, which is
/// the one that the caller was built with. Any thread.
JEDVEPB_EXPORT int interfaceVersion();

} // namespace JEDVEPLUGIN
