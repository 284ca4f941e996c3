#pragma once

#include <QString>
#include <QVector>

namespace RuleChecking {

/// A word or sign of a rule script. Comments and blanks are none.
struct RuleToken
{
    enum Type {
        NAME, ///< also a word of the language
        NUMBER,
        TEXT,     ///< with its quotes
        REGEX,    ///< with its slashes and flags
        TEMPLATE, ///< a text in backticks, which the engine does not know
        SIGN,     ///< the longest that fits: "===" and not "=="
        UNCLOSED, ///< a text, regular expression or comment that does not end; the last token
    };

    Type type = SIGN;
    QString text;
    int line = 0;   ///< from 1
    int column = 0; ///< from 1

    bool is(const char* wanted) const { return text == QLatin1String(wanted); }
    /// A name that is no word of the language.
    bool isOwnName() const;
    bool isTextLike() const { return type == TEXT || type == REGEX || type == TEMPLATE; }
};

/// The tokens of a script, whatever it is: nothing is refused.
QVector<RuleToken> ruleTokens(const QString& script);

/// Whether the language keeps the word for itself.
bool isRuleKeyword(const QString& word);

} // namespace RuleChecking
