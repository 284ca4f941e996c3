#pragma once

#include "commandline.h"

namespace JedTool {

/// "jedtool rules trace".
Verb ruleTraceVerb();

} // namespace JedTool
