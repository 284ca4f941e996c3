#pragma once

#include "ruleobject.h"
#include <session/finding.h>

namespace RuleChecking {

/// What the check of a rule script came to.
struct RuleCheck
{
    Session::Findings findings; ///< in order of their lines, with codes of the table in rulefindings.h
    Session::Findings notes;    ///< what could not be tried
    int rules = 0;              ///< functions that objects run
    int runs = 0;               ///< how often rules were run to try them
};

/// Looks at a rule script as its author should: at its syntax, then at each of its rules, run with recorders in place of
/// the objects. No value of anybody is changed. GUI thread only.
/// \param file    path of the script, which findings name
/// \param scopes  the objects of the settings that the script is for; empty: what the script itself lets guess
RuleCheck checkRules(const QString& file, const QVector<RuleScope>& scopes);

} // namespace RuleChecking
