#pragma once

#include "ruleproberun.h"

namespace RuleChecking {

/// What is found in a rule script by reading it.
/// \param scopes            the objects of the settings that it is for
/// \param isGuessed         that the script itself is all that is known of them
/// \param changedVariables  those that rules were seen to leave with another value
QVector<RuleObservation> staticObservations(const RuleOutline& outline, const QVector<RuleScope>& scopes,
                                            bool isGuessed, const QSet<QString>& changedVariables);

/// Objects that the script seems to have, from the properties and methods that it uses.
RuleScope guessedScope(const RuleOutline& outline);

/// Functions of the script that neither an object nor the script itself calls.
QStringList looseFunctions(const RuleOutline& outline, const RuleScope& scope);

} // namespace RuleChecking
