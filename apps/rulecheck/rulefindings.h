#pragma once

#include <session/finding.h>

namespace RuleChecking {

using Session::Finding;
using Session::Findings;

/// What the check of a rule script can find. The numbers are printed and looked up by script authors: a number that is
/// no longer used is not given again.
enum class RuleFinding {
    NOT_READ = 1,
    SYNTAX = 2,
    LATER_LANGUAGE = 3,
    BLOCK_CONSTANT = 4,
    DOUBLE_FUNCTION = 5,

    MISSING_FUNCTION = 10,
    NEVER_CALLED = 11,
    UNKNOWN_NAME = 12,
    UNKNOWN_MEMBER = 13,
    EXCEPTION = 14,
    ENDLESS = 15,
    TOO_FEW_ARGUMENTS = 16,
    PARAMETERS = 17,

    LOST_WRITE = 20,
    OBJECT_REPLACED = 21,
    NOT_WRITABLE = 22,
    OUT_OF_RANGE = 23,
    WRONG_TYPE = 24,
    FRACTION_LOST = 25,
    INEXACT = 26,
    WRAPS_AROUND = 27,

    POSITION_AS_KEY = 30,
    NO_SUCH_KEY = 31,
    DOUBLE_KEY = 32,

    CYCLE = 40,
    LOST_STATE = 41,
    CHANGE_AT_TOP = 42,
};

/// A row of the table of findings. All texts are English, which is what jedtool speaks and the guide is written in.
struct RuleFindingKind
{
    RuleFinding number;
    Finding::Severity severity;
    const char* title;       ///< what is the matter, in a few words
    const char* explanation; ///< why that is so, whole sentences
    const char* advice;      ///< what to do about it, a whole sentence

    /// "R07"
    QString code() const;
};

/// The table, in order of the numbers.
const QVector<RuleFindingKind>& ruleFindingKinds();
const RuleFindingKind& ruleFindingKind(RuleFinding number);

/// The table as integrators read it.
QString ruleFindingsText();
/// The same for docs/integrator-guide/rules.md.
QString ruleFindingsMarkdown();
QJsonArray ruleFindingsJson();

} // namespace RuleChecking
