#pragma once

#include "ruleoutline.h"

namespace RuleChecking {

/// Syntax that the engine of rule scripts does not know.
struct LaterSyntax
{
    int token;          ///< where it stands
    const char* what;   ///< what it is called
    const char* advice; ///< how to write it instead, a whole sentence
};

/// What a script has of the language as it was defined after the engine was made, in the script's order.
QVector<LaterSyntax> laterSyntax(const RuleOutline& outline);

/// Tokens "const" inside a block, where they are no constants of the block.
QVector<int> blockConstants(const RuleOutline& outline);

/// Names that every script finds, and those that scripts elsewhere find and here do not.
bool isRuleBuiltin(const QString& name);
bool isForeignBuiltin(const QString& name);

/// What is wrong with a script that cannot be read, as far as its tokens tell.
/// \param line,column  the place that the engine names; become the place to look at
QString syntaxFault(const RuleOutline& outline, int* line, int* column);

} // namespace RuleChecking
