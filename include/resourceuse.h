#pragma once

#include <QtCore/QString>
#include <QtCore/QTypeInfo>

namespace JEDVEPLUGIN {

class ISubSetting;

/// What one setting takes of the installation's receivers when the job runs. A plain value, passed by copy.
struct ResourceUse
{
    ISubSetting* setting =
        nullptr;          ///< the top-level setting that takes it; not owned, of the factory that tells it
    QString type;         ///< type of the resource, as in its description
    QString baseResource; ///< base resource, as in its description
    int count = 1;        ///< how many at the same time, 0 or more
};

} // namespace JEDVEPLUGIN

Q_DECLARE_TYPEINFO(JEDVEPLUGIN::ResourceUse, Q_MOVABLE_TYPE);
