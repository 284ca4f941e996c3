#pragma once

#include "jedvepb_export.h"

namespace JEDVEPLUGIN {

/// Limits how long a rule may run, with all the runs that take place inside it. Off at first: an endless
/// script then freezes the editor.
///
/// While a rule runs under a limit, events are processed about every 20 milliseconds: timers fire and windows
/// are painted. Input is held back and delivered, in its order, after the outermost run has ended; a held-back
/// key reaches the widget that has the focus then, not a shortcut; what is dragged over a window is refused
/// meanwhile. A run that reaches the limit is stopped where it is, what it has changed stays changed. A
/// single call of the engine's own functions (joining a huge array, sorting) cannot be stopped.
/// \param milliseconds  0 and below: no limit. Counts from the next outermost run on.
JEDVEPB_EXPORT void setRuleTimeLimit(int milliseconds);

/// The limit in milliseconds, 0 if there is none.
JEDVEPB_EXPORT int ruleTimeLimit();

} // namespace JEDVEPLUGIN
