#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace JEDVEPLUGIN {

/// Something about a setting that its user should know or mend. A plain value, passed by copy.
struct Problem
{
    /// How much it matters, in rising order.
    enum Severity : int {
        SEVERITY_NOTE = 0,    ///< worth knowing; the job runs as it is meant
        SEVERITY_WARNING = 1, ///< the job runs, but perhaps not as it is meant
        SEVERITY_ERROR = 2    ///< the job cannot be run, or something would be lost when it is written
    };

    Severity severity = SEVERITY_ERROR;
    QString parameterSet; ///< name of the parameter set, empty if it concerns the setting as a whole
    QString field; ///< path of the field below the set ("Range.Detail.Threshold"), empty for the whole set
    QString text;  ///< one sentence for the user, in the user's language
};

} // namespace JEDVEPLUGIN

Q_DECLARE_TYPEINFO(JEDVEPLUGIN::Problem, Q_MOVABLE_TYPE);
