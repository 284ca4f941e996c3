#pragma once

#include <QtCore/qglobal.h>

// Marks what plug-ins link against. JEDVEPB_BUILD is defined while the library itself is built.
#if defined(JEDVEPB_BUILD)
#define JEDVEPB_EXPORT Q_DECL_EXPORT
#else
#define JEDVEPB_EXPORT Q_DECL_IMPORT
#endif
