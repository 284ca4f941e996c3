#pragma once

#include <isubsetting.h>

namespace Session {

/// Calls \p visit for a setting and everything below it.
template <typename Visitor>
void walk(JEDVEPLUGIN::ISubSetting* setting, const Visitor& visit)
{
    visit(setting);
    for (int i = 0; i < setting->childCount(); ++i)
        walk(setting->child(i), visit);
}

} // namespace Session
