#include "rulefindings.h"

#include <algorithm>
#include <QJsonObject>
#include <QVector>

namespace RuleChecking {

namespace {
const QVector<RuleFindingKind> KINDS{
    {RuleFinding::NOT_READ, Finding::FAILURE, "The file cannot be read",
     "A script that cannot be read counts as an empty one: no rule runs, and nobody is told.",
     "Give the file the name that the plug-in asks for, and let everybody read it."},
    {RuleFinding::SYNTAX, Finding::FAILURE, "Syntax error",
     "The engine takes a script as a whole. With a syntax error anywhere in it there are no functions at "
     "all.",
     "Mend the line that is named; the fault may also lie shortly before it."},
    {RuleFinding::LATER_LANGUAGE, Finding::FAILURE, "Syntax of a later language",
     "The engine knows ECMAScript 5. What came later is a syntax error, which makes the whole script void.",
     "Write it in the older way that is named."},
    {RuleFinding::BLOCK_CONSTANT, Finding::WARNING, "const inside a block",
     "The engine takes const for a kind of var: it is known in the whole function, not only in its block.",
     "Write var at the beginning of the function."},
    {RuleFinding::DOUBLE_FUNCTION, Finding::WARNING, "Function declared twice",
     "Of two functions with one name the later one counts everywhere, also above it.",
     "Give one of them another name, or put both together."},

    {RuleFinding::MISSING_FUNCTION, Finding::FAILURE, "Missing rule function",
     "An object names a rule function of its own that the script does not have. The change has no effect.",
     "Add a function of that name without parameters."},
    {RuleFinding::NEVER_CALLED, Finding::WARNING, "Rule function that nothing calls",
     "The function is named like a rule function, but there is no object that it belongs to.",
     "Compare its name with those of the objects; upper and lower case count."},
    {RuleFinding::UNKNOWN_NAME, Finding::FAILURE, "Unknown name",
     "Nothing of that name exists when the line runs. The rule ends there, without a message.",
     "Mend the name, or ask with typeof NAME !== \"undefined\" first if only some receivers have it."},
    {RuleFinding::UNKNOWN_MEMBER, Finding::FAILURE, "Unknown property or method",
     "The object has no property or method of that name. Reading it gives undefined, calling it ends the "
     "rule.",
     "Use a property or method of the object's class."},
    {RuleFinding::EXCEPTION, Finding::FAILURE, "Uncaught exception",
     "The rule ends where the exception is thrown, and nobody is told. What it has changed so far stays "
     "changed.",
     "Look for the reason in the line that is named, or catch the exception."},
    {RuleFinding::ENDLESS, Finding::FAILURE, "Rule without an end",
     "The rule did not come to an end in the time that it was given. An editor without a time limit freezes.",
     "Make sure that the loop ends for every value."},
    {RuleFinding::TOO_FEW_ARGUMENTS, Finding::FAILURE, "Too few arguments",
     "A method that is called with fewer arguments than it has throws, which ends the rule.",
     "Give all arguments of the method."},
    {RuleFinding::PARAMETERS, Finding::WARNING, "Rule function with a parameter",
     "Rule functions are called without arguments.", "Read the value from the object that was changed."},

    {RuleFinding::LOST_WRITE, Finding::FAILURE, "Write to a property that does not exist",
     "The engine makes a script property of that name; the value of the setting stays as it is.",
     "Use a property of the object's class."},
    {RuleFinding::OBJECT_REPLACED, Finding::FAILURE, "Object replaced",
     "A variable or function with the name of an object takes its place, in later runs too: the value is out "
     "of "
     "reach from then on.",
     "Give the variable another name, or write to a property of the object."},
    {RuleFinding::NOT_WRITABLE, Finding::FAILURE, "Write to what cannot be written",
     "Methods of objects and constants of the language are not there to be written to.",
     "Call the method, or use a variable of your own."},
    {RuleFinding::OUT_OF_RANGE, Finding::WARNING, "Value out of range",
     "A value outside the bounds becomes the nearest bound, and a step below 0 is refused.",
     "Compare with the minimum and the maximum of the object before you write."},
    {RuleFinding::WRONG_TYPE, Finding::FAILURE, "Value of the wrong type",
     "The engine converts what it gets: undefined and texts become NaN or 0, any text but the empty one "
     "becomes true.",
     "Write a value of the property's own type."},
    {RuleFinding::FRACTION_LOST, Finding::WARNING, "Fraction lost",
     "An integer takes no fraction: 3.9 becomes 3, -1.9 becomes -1.",
     "Use Math.round, or whichever rounding is meant."},
    {RuleFinding::INEXACT, Finding::WARNING, "Number beyond 2^53",
     "Scripts have floating-point numbers only. Beyond 9007199254740992 not every integer is one of them, so "
     "a 64-bit "
     "value arrives as a neighbour.",
     "Keep such values out of rules, or below 2^53."},
    {RuleFinding::WRAPS_AROUND, Finding::FAILURE, "Number beyond 32 bits",
     "A number for a 32-bit integer loses its upper part: 4294967297 becomes 1.",
     "Compare with the minimum and the maximum of the object before you write."},

    {RuleFinding::POSITION_AS_KEY, Finding::FAILURE, "Position taken for a key",
     "What the methods of a selection call index is the key of an item, not its position in the list.",
     "Use keys, as GetCurrentIndex() gives them."},
    {RuleFinding::NO_SUCH_KEY, Finding::WARNING, "No item has this key",
     "Selecting does nothing then, and asking gives 0 or the empty text.",
     "Use a key that the selection has, or ask GetItemName(key) first whether it is there."},
    {RuleFinding::DOUBLE_KEY, Finding::WARNING, "Second item with a key",
     "Only the first item with a key is found. A rule that adds items at each run makes the list longer each "
     "time.",
     "Remove the items first, or ask GetItemName(key) whether it is there."},

    {RuleFinding::CYCLE, Finding::WARNING, "Rules that write each other's values",
     "Each rule sets off the next one, inside itself, until the first one is reached again. What comes out "
     "depends on "
     "which value was changed first.",
     "Let one value follow the other, not both each other."},
    {RuleFinding::LOST_STATE, Finding::WARNING, "State that each run resets",
     "The whole script is evaluated before each run, so script variables start from their initial values "
     "every time.",
     "Keep what has to last in a value of the setting."},
    {RuleFinding::CHANGE_AT_TOP, Finding::WARNING, "Change outside a function",
     "What stands outside of functions is done before each run of any rule, not once.",
     "Move it into a rule function."},
};

QString markdownCell(const char* text)
{
    return QString::fromUtf8(text).replace(QLatin1Char('|'), QLatin1String("\\|"));
}
} // namespace

QString RuleFindingKind::code() const
{
    return QStringLiteral("R%1").arg(int(number), 2, 10, QLatin1Char('0'));
}

const QVector<RuleFindingKind>& ruleFindingKinds()
{
    return KINDS;
}

const RuleFindingKind& ruleFindingKind(RuleFinding number)
{
    return *std::find_if(KINDS.cbegin(), KINDS.cend(),
                         [number](const RuleFindingKind& kind) { return kind.number == number; });
}

QString ruleFindingsText()
{
    QString result;
    for (const RuleFindingKind& kind : KINDS)
        result += QStringLiteral("%1 %2: %3\n    %4\n    %5\n")
                      .arg(kind.code(), severityName(kind.severity), QLatin1String(kind.title),
                           QLatin1String(kind.explanation), QLatin1String(kind.advice));
    return result;
}

QString ruleFindingsMarkdown()
{
    QString result = QStringLiteral("| number | what | why | what to do |\n|---|---|---|---|\n");
    for (const RuleFindingKind& kind : KINDS)
        result += QStringLiteral("| %1 %2 | %3 | %4 | %5 |\n")
                      .arg(kind.code(), severityName(kind.severity), markdownCell(kind.title),
                           markdownCell(kind.explanation), markdownCell(kind.advice));
    return result;
}

QJsonArray ruleFindingsJson()
{
    QJsonArray result;
    for (const RuleFindingKind& kind : KINDS)
        result.append(QJsonObject{{QStringLiteral("number"), kind.code()},
                                  {QStringLiteral("severity"), severityName(kind.severity)},
                                  {QStringLiteral("title"), QLatin1String(kind.title)},
                                  {QStringLiteral("explanation"), QLatin1String(kind.explanation)},
                                  {QStringLiteral("advice"), QLatin1String(kind.advice)}});
    return result;
}

} // namespace RuleChecking
