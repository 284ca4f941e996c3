#include "jedvepb_version.h"

namespace JEDVEPLUGIN {

int interfaceVersion()
{
    return JEDVEPB_INTERFACE_VERSION;
}

} // namespace JEDVEPLUGIN
