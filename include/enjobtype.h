#pragma once

#include <QtCore/QMetaType>

namespace JEDVE {

/// The kinds of jobs. The numbers are part of the binary interface.
enum enJOB_TYPE : int {
    JOB_TYPE_UNKNOWN = -1, ///< what an unknown name or number is converted to
    JOB_TYPE_PRODUCTION = 0,
    JOB_TYPE_SEARCH = 1,
    JOB_TYPE_SURVEILLANCE = 2,
    JOB_TYPE_DF_SCAN = 3,
    JOB_TYPE_MEASUREMENT = 4
};

} // namespace JEDVE

Q_DECLARE_METATYPE(JEDVE::enJOB_TYPE)
