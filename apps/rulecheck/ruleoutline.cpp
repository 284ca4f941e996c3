#include "ruleoutline.h"

#include <algorithm>

namespace RuleChecking {

namespace {
const QSet<QString> WORDS_BEFORE_BLOCKS{"else", "do", "try", "finally"};
const QSet<QString> WORDS_WITH_HEAD{"if", "for", "while", "with"};
const QSet<QString> UPDATES{"+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>=", ">>>=", "++", "--"};
const QSet<QString> COMPARISONS{"===", "!==", "==", "!="};
// What begins a statement without leaving a trace of its own.
const QSet<QString> SILENT{"function", "else", "case", "default", "catch", "finally",
                           "try",      "do",   "{",    "}",       ";",     "break"};
// Signs behind "}" that belong to the same statement.
const QSet<QString> GOES_ON{")", "]", ",", ".", "(", ";", ":", "["};
// Signs with which an expression may end.
const QSet<QString> CLOSING{")", "]", "}", "++", "--"};

bool endsExpression(const RuleToken& token)
{
    return token.type != RuleToken::SIGN || CLOSING.contains(token.text);
}
} // namespace

RuleOutline::RuleOutline(const QString& script)
    : m_tokens(ruleTokens(script))
    , m_partners(m_tokens.size(), -1)
    , m_functionAt(m_tokens.size(), -1)
    , m_brackets(m_tokens.size(), -1)
{
    pairBrackets();
    findFunctions();
    findDeclarations();
    findStatements();
}

// A sign of no meaning outside of the script.
const RuleToken& RuleOutline::at(int token) const
{
    static const RuleToken NONE;
    return token >= 0 && token < m_tokens.size() ? m_tokens.at(token) : NONE;
}

void RuleOutline::pairBrackets()
{
    const QString OPENING = QStringLiteral("([{");
    const QString CLOSED_BY = QStringLiteral(")]}");
    QVector<int> open;
    for (int i = 0; i < m_tokens.size(); ++i) {
        m_brackets[i] = open.isEmpty() ? -1 : open.constLast();
        if (m_tokens.at(i).type != RuleToken::SIGN || m_tokens.at(i).text.size() != 1)
            continue;
        const QChar sign = m_tokens.at(i).text.at(0);
        if (OPENING.contains(sign)) {
            if (sign == QLatin1Char('{') && beginsObject(i))
                m_objects.insert(i);
            open.append(i);
        } else if (CLOSED_BY.contains(sign)) {
            if (open.isEmpty() ||
                OPENING.indexOf(m_tokens.at(open.constLast()).text) != CLOSED_BY.indexOf(sign)) {
                m_loneBracket = i;
                return;
            }
            m_partners[i] = open.takeLast();
            m_partners[m_partners.at(i)] = i;
            m_brackets[i] = open.isEmpty() ? -1 : open.constLast();
        }
    }
    m_loneBracket = open.isEmpty() ? -1 : open.constLast();
}

bool RuleOutline::beginsObject(int token) const
{
    if (token == 0)
        return false;
    const RuleToken& before = at(token - 1);
    if (before.is(":"))
        return !isCaseColon(token - 1);
    if (before.type == RuleToken::NAME)
        return before.is("return") || before.is("typeof") || before.is("in");
    if (before.is("}") || before.is(";") || before.is(")") || before.is("=>"))
        return false;
    return !before.is("{");
}

bool RuleOutline::isCaseColon(int token) const
{
    for (int i = token - 1; i >= 0; --i) {
        if (at(i).is("case") || at(i).is("default"))
            return true;
        if (at(i).is(";") || at(i).is("{") || at(i).is("}") || at(i).is("?") || at(i).is(","))
            return false;
    }
    return false;
}

void RuleOutline::findFunctions()
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        const bool isFunction = m_tokens.at(i).is("function") && !at(i - 1).is(".");
        if (m_tokens.at(i).type == RuleToken::NAME && (isFunction || isAccessor(i)))
            readFunction(i);
    }
    // Inner functions come later and take their tokens from the outer ones.
    for (int f = 0; f < m_functions.size(); ++f) {
        m_functions[f].outer = m_functionAt.at(m_functions.at(f).begin);
        for (int i = m_functions.at(f).begin + 1; i < m_functions.at(f).end; ++i)
            m_functionAt[i] = f;
    }
}

void RuleOutline::readFunction(int token)
{
    Function function;
    int head = token + 1;
    function.line = at(token).line;
    function.column = at(token).column;
    function.isDeclaration = beginsStatement(token);
    if (isAccessor(token)) {
        ++head;
    } else if (at(head).type == RuleToken::NAME) {
        function.name = at(head).text;
        function.line = at(head).line;
        function.column = at(head).column;
        ++head;
    } else if (at(token - 1).is("=") && at(token - 2).type == RuleToken::NAME && !at(token - 3).is(".")) {
        function.name = at(token - 2).text;
    }
    if (!at(head).is("(") || m_partners.at(head) < 0 || !at(m_partners.at(head) + 1).is("{") ||
        m_partners.at(m_partners.at(head) + 1) < 0)
        return;
    for (int i = head + 1; i < m_partners.at(head); ++i) {
        if (at(i).isOwnName() && (at(i - 1).is("(") || at(i - 1).is(","))) {
            function.parameters.append(at(i).text);
            function.locals.insert(at(i).text);
        }
    }
    if (!function.isDeclaration && !function.name.isEmpty() && at(token + 1).type == RuleToken::NAME)
        function.locals.insert(function.name);
    function.begin = m_partners.at(head) + 1;
    function.end = m_partners.at(function.begin);
    m_functions.append(function);
}

void RuleOutline::findDeclarations()
{
    for (const Function& function : qAsConst(m_functions)) {
        if (function.isDeclaration)
            declare(function.outer, function.name);
    }
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (m_tokens.at(i).type != RuleToken::NAME || at(i - 1).is("."))
            continue;
        if (m_tokens.at(i).is("var") || m_tokens.at(i).is("const"))
            readVariables(i);
        if (m_tokens.at(i).is("catch") && at(i + 1).is("("))
            declare(m_functionAt.at(i), at(i + 2).text);
    }
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (isGlobalMention(i) && use(i) == WRITE)
            m_globals.insert(m_tokens.at(i).text);
    }
}

void RuleOutline::declare(int function, const QString& name)
{
    if (function < 0)
        m_globals.insert(name);
    else
        m_functions[function].locals.insert(name);
}

// "var a = f(1, 2), b" declares a and b.
void RuleOutline::readVariables(int token)
{
    int i = token + 1;
    while (at(i).isOwnName()) {
        declare(m_functionAt.at(token), at(i).text);
        for (++i; i < m_tokens.size() && !at(i).is(",") && !at(i).is(";") && !at(i).is(")"); ++i) {
            const bool isNewLine = at(i).line > at(i - 1).line;
            if (isNewLine && endsExpression(at(i - 1)) && at(i).type != RuleToken::SIGN)
                return;
            if (at(i).is("}"))
                return;
            if (m_partners.at(i) > i)
                i = m_partners.at(i);
        }
        if (!at(i).is(","))
            return;
        ++i;
    }
}

void RuleOutline::findStatements()
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        const RuleToken& token = m_tokens.at(i);
        if (!beginsStatement(i) || SILENT.contains(token.text) || at(i + 1).is(":"))
            continue;
        if (token.is("while") && at(i - 1).is("}") && m_partners.at(i - 1) > 0 &&
            at(m_partners.at(i - 1) - 1).is("do"))
            continue;
        if (token.is("var") && !at(i + 2).is("="))
            continue;
        if (m_statementLines.isEmpty() || m_statementLines.constLast() != token.line)
            m_statementLines.append(token.line);
    }
}

bool RuleOutline::beginsStatement(int token) const
{
    const int bracket = m_brackets.at(token);
    if (bracket >= 0 && (!at(bracket).is("{") || isObject(bracket)))
        return false;
    const RuleToken& before = at(token - 1);
    if (token == 0 || before.is(";") || before.is("{") || before.is("else") || before.is("do"))
        return true;
    if (before.is("}") && (at(token).line > before.line || !GOES_ON.contains(at(token).text)))
        return m_partners.at(token - 1) >= 0 && !isObject(m_partners.at(token - 1));
    if (before.is(":"))
        return isCaseColon(token - 1);
    if (before.is(")")) {
        const int head = m_partners.at(token - 1);
        if (head > 0 && WORDS_WITH_HEAD.contains(at(head - 1).text))
            return !at(token).is(";");
    }
    return at(token).line > before.line && endsExpression(before) && at(token).type != RuleToken::SIGN;
}

// "get name() {" in an object.
bool RuleOutline::isAccessor(int token) const
{
    const int bracket = token >= 0 ? m_brackets.at(token) : -1;
    return bracket >= 0 && isObject(bracket) && (at(token).is("get") || at(token).is("set")) &&
           (at(token - 1).is("{") || at(token - 1).is(",")) && at(token + 1).type == RuleToken::NAME &&
           at(token + 2).is("(");
}

bool RuleOutline::isGlobalFunction(const QString& name) const
{
    return std::any_of(m_functions.cbegin(), m_functions.cend(), [&name](const Function& function) {
        return function.outer < 0 && function.name == name;
    });
}

bool RuleOutline::isGlobalMention(int token) const
{
    const RuleToken& word = m_tokens.at(token);
    if (!word.isOwnName() || at(token - 1).is("."))
        return false;
    const int bracket = m_brackets.at(token);
    const bool isInObject = bracket >= 0 && isObject(bracket);
    if (isAccessor(token) || isAccessor(token - 1))
        return false;
    if (isInObject && at(token + 1).is(":") && (at(token - 1).is("{") || at(token - 1).is(",")))
        return false;
    if (at(token + 1).is(":") && beginsStatement(token))
        return false;
    if (at(token - 1).is("break") || at(token - 1).is("continue") || at(token - 1).is("function"))
        return false;
    // A parameter is declared by the function behind it.
    if (bracket >= 0 && at(bracket).is("(") &&
        (at(bracket - 1).is("function") || at(bracket - 2).is("function") || at(bracket - 1).is("catch") ||
         isAccessor(bracket - 2)))
        return false;
    for (int f = m_functionAt.at(token); f >= 0; f = m_functions.at(f).outer) {
        if (m_functions.at(f).locals.contains(word.text) || word.is("arguments"))
            return false;
    }
    return true;
}

RuleOutline::Use RuleOutline::use(int token) const
{
    if (at(token + 1).is("=") && isReadBehind(token))
        return UPDATE;
    if (at(token + 1).is("=") || (at(token + 1).is("in") && at(m_brackets.at(token) - 1).is("for") &&
                                  (at(token - 1).is("(") || at(token - 1).is("var"))))
        return WRITE;
    const bool isUpdate =
        UPDATES.contains(at(token + 1).text) || at(token - 1).is("++") || at(token - 1).is("--");
    return isUpdate ? UPDATE : READ;
}

// "x = x + 1"
bool RuleOutline::isReadBehind(int token) const
{
    const RuleToken& name = m_tokens.at(token);
    for (int i = token + 2; i < m_tokens.size() && !at(i).is(";") && !beginsStatement(i); ++i) {
        if (m_tokens.at(i).text == name.text && m_tokens.at(i).type == RuleToken::NAME && !at(i - 1).is("."))
            return true;
    }
    return false;
}

bool RuleOutline::isTest(int token) const
{
    int begin = token; // Of "A.b.c".
    while (at(begin - 1).is("."))
        begin -= 2;
    if (at(begin - 1).is("typeof") || (at(begin - 1).is("(") && at(begin - 2).is("typeof")) ||
        at(begin - 1).is("in") || at(token + 1).is("in"))
        return true;
    if (COMPARISONS.contains(at(token + 1).text) &&
        (at(token + 2).is("undefined") || at(token + 2).is("null")))
        return true;
    const bool isCondition = at(begin - 1).is("!") || at(begin - 1).is("(") || at(begin - 1).is("&&");
    return isCondition && (at(token + 1).is("&&") || (at(token + 1).is(")") && at(begin - 1).is("!")));
}

int RuleOutline::find(int line, const QString& text) const
{
    const auto next = std::upper_bound(m_statementLines.cbegin(), m_statementLines.cend(), line);
    const int end = next == m_statementLines.cend() ? line + 1 : std::max(line + 1, *next);
    for (int i = 0; i < m_tokens.size() && m_tokens.at(i).line < end; ++i) {
        const RuleToken& token = m_tokens.at(i);
        const bool isMeant = token.text == text || (token.type == RuleToken::TEXT &&
                                                    token.text.mid(1, token.text.size() - 2) == text);
        if (token.line >= line && isMeant)
            return i;
    }
    return -1;
}

} // namespace RuleChecking
