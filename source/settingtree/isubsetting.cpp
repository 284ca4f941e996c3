#include "isubsetting.h"

namespace JEDVEPLUGIN {

ISubSetting::~ISubSetting() = default;

} // namespace JEDVEPLUGIN
