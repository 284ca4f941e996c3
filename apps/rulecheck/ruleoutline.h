#pragma once

#include "ruletokens.h"

#include <QSet>
#include <QStringList>

namespace RuleChecking {

/// What a rule script declares and uses, found without running it. Good for every script that the engine takes; of
/// others, only tokens and brackets are.
class RuleOutline
{
public:
    struct Function
    {
        QString name; ///< also of the variable that it is assigned to; empty if it has none
        QStringList parameters;
        QSet<QString> locals; ///< with the parameters
        int begin = -1;       ///< token of the bracket before its body
        int end = -1;         ///< token of the bracket behind it
        int outer = -1;       ///< function that it is in; -1: none
        int line = 0;
        int column = 0;
        bool isDeclaration = false; ///< and not part of an expression
    };

    /// How a name is mentioned.
    enum Use {
        READ,
        WRITE,  ///< without being read
        UPDATE, ///< "+=", "++" and the like
    };

    explicit RuleOutline(const QString& script);

    const QVector<RuleToken>& tokens() const { return m_tokens; }
    /// The bracket that belongs to this one, -1 if there is none or it is no bracket.
    int partner(int token) const { return m_partners.at(token); }
    /// Of "{": whether it begins an object and not a block.
    bool isObject(int token) const { return m_objects.contains(token); }
    /// A bracket without a partner, -1 if there is none.
    int loneBracket() const { return m_loneBracket; }

    const QVector<Function>& functions() const { return m_functions; }
    /// The innermost function that a token is in, -1: none.
    int functionAt(int token) const { return m_functionAt.at(token); }
    /// Variables and functions of the script as a whole, also those that come to be by an assignment.
    const QSet<QString>& globals() const { return m_globals; }
    bool isGlobalFunction(const QString& name) const;

    /// Whether the token is a variable or function (no property, no label) that no function around it declares.
    bool isGlobalMention(int token) const;
    Use use(int token) const;
    /// Whether the mention only asks if the name or member is there: "typeof X", "X.y === undefined", "X && X.y".
    bool isTest(int token) const;

    /// First lines of statements that leave a trace when they run.
    const QVector<int>& statementLines() const { return m_statementLines; }
    /// The first token \p text in the statement that begins in \p line, -1 if there is none.
    int find(int line, const QString& text) const;

private:
    const RuleToken& at(int token) const;
    void pairBrackets();
    bool beginsObject(int token) const;
    bool isCaseColon(int token) const;
    bool isAccessor(int token) const;
    void findFunctions();
    void readFunction(int token);
    void findDeclarations();
    void declare(int function, const QString& name);
    void readVariables(int token);
    void findStatements();
    bool beginsStatement(int token) const;
    bool isReadBehind(int token) const;

    QVector<RuleToken> m_tokens;
    QVector<int> m_partners;
    QSet<int> m_objects;
    QVector<Function> m_functions;
    QVector<int> m_functionAt;
    QVector<int> m_brackets; // The innermost open bracket at each token, -1: none.
    QSet<QString> m_globals;
    QVector<int> m_statementLines;
    int m_loneBracket = -1;
};

} // namespace RuleChecking
