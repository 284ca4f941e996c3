#pragma once

#include "finding.h"

namespace Session {

/// What the check of a rule script came to.
struct RuleCheck
{
    Findings findings; ///< in order of their lines, with codes of the table in rulefindings.h
};

/// Looks at a rule script as its author should. GUI thread only.
/// \param file  path of the script, which findings name
RuleCheck checkRules(const QString& file);

} // namespace Session
