#include "rulelanguage.h"

namespace RuleChecking {

namespace {
struct LaterSign
{
    const char* sign;
    const char* what;
    const char* advice;
};

const LaterSign LATER_SIGNS[] = {
    {"=>", "an arrow function", "Write function (x) { return ...; } instead."},
    {"...", "three dots before a list", "Name the elements, or use apply(), concat() or arguments."},
    {"**", "the power operator", "Write Math.pow(x, y)."},
    {"**=", "the power operator", "Write x = Math.pow(x, y)."},
    {"?.", "optional chaining", "Ask first: if (x) before x.y."},
    {"??", "the operator ??", "Write x !== undefined ? x : y."},
};

const QSet<QString> BUILTINS{"NaN",
                             "undefined",
                             "Infinity",
                             "JSON",
                             "Object",
                             "Array",
                             "Number",
                             "String",
                             "Boolean",
                             "Date",
                             "RegExp",
                             "Function",
                             "Math",
                             "Error",
                             "EvalError",
                             "RangeError",
                             "ReferenceError",
                             "SyntaxError",
                             "TypeError",
                             "URIError",
                             "eval",
                             "parseInt",
                             "parseFloat",
                             "isNaN",
                             "isFinite",
                             "decodeURI",
                             "encodeURI",
                             "decodeURIComponent",
                             "encodeURIComponent",
                             "escape",
                             "unescape",
                             "print",
                             "gc",
                             "version",
                             "arguments"};

const QSet<QString> FOREIGN{"console",      "window",  "document", "alert",   "setTimeout", "setInterval",
                            "clearTimeout", "require", "module",   "process", "Promise",    "Map",
                            "Set",          "WeakMap", "Symbol",   "fetch",   "globalThis", "Proxy",
                            "Reflect",      "BigInt",  "Intl"};

const QSet<QString> PLACES_OF_STATEMENTS{";", "{", "}", ")", "else", "do", ":"};

class Search
{
public:
    explicit Search(const RuleOutline& outline)
        : m_outline(outline)
    {
    }

    QVector<LaterSyntax> run()
    {
        for (int i = 0; i < m_outline.tokens().size(); ++i) {
            if (m_outline.tokens().at(i).type == RuleToken::TEMPLATE)
                add(i, "a text in backticks", "Put the text together with +.");
            if (m_outline.tokens().at(i).type == RuleToken::SIGN)
                lookAtSign(i);
            if (isReservedProperty(i))
                add(i, "a word of the language as the name of a property",
                    "Write it in quotes: object[\"name\"].");
            else if (m_outline.tokens().at(i).type == RuleToken::NAME && !at(i - 1).is("."))
                lookAtName(i);
            if (m_outline.tokens().at(i).type == RuleToken::NUMBER)
                lookAtNumber(i);
        }
        return m_found;
    }

private:
    const RuleToken& at(int token) const
    {
        static const RuleToken NONE;
        return token >= 0 && token < m_outline.tokens().size() ? m_outline.tokens().at(token) : NONE;
    }
    void add(int token, const char* what, const char* advice) { m_found.append({token, what, advice}); }
    bool beginsStatement(int token) const
    {
        return token == 0 || PLACES_OF_STATEMENTS.contains(at(token - 1).text) ||
               at(token).line > at(token - 1).line;
    }

    bool isReservedProperty(int token) const
    {
        const bool isKey = at(token + 1).is(":") && (at(token - 1).is("{") || at(token - 1).is(","));
        return at(token).type == RuleToken::NAME && isRuleKeyword(at(token).text) &&
               (isKey || at(token - 1).is("."));
    }

    void lookAtSign(int token);
    void lookAtName(int token);
    void lookAtNumber(int token);
    void lookAtFunction(int token);
    void lookAtObject(int token);

    const RuleOutline& m_outline;
    QVector<LaterSyntax> m_found;
};

void Search::lookAtSign(int token)
{
    for (const LaterSign& later : LATER_SIGNS) {
        if (at(token).is(later.sign))
            add(token, later.what, later.advice);
    }
    if (at(token).is("{") && m_outline.isObject(token))
        lookAtObject(token);
}

void Search::lookAtName(int token)
{
    const RuleToken& word = at(token);
    const RuleToken& next = at(token + 1);
    const bool isNextName = next.type == RuleToken::NAME && !next.is("in") && !next.is("instanceof");
    if (word.is("let") && (isNextName || next.is("[") || next.is("{")))
        add(token, "let", "Write var; it is known in the whole function.");
    if ((word.is("var") || word.is("const")) && (next.is("[") || next.is("{")))
        add(token + 1, "taking a value apart", "Write one var for each part.");
    if (word.is("class") && beginsStatement(token))
        add(token, "a class", "Write functions, or an object with functions in it.");
    if (word.is("of") && at(token - 1).type == RuleToken::NAME && !isRuleKeyword(at(token - 1).text) &&
        (at(token - 2).is("(") || at(token - 3).is("(")))
        add(token, "for ... of", "Write for (var i = 0; i < list.length; ++i).");
    if (word.is("function"))
        lookAtFunction(token);
    if ((word.is("import") || word.is("export")) && beginsStatement(token))
        add(token, "a module", "Put all functions into one file.");
    if ((word.is("async") && next.is("function")) || (word.is("await") && isNextName))
        add(token, "a function that waits", "A rule runs from beginning to end; call the function directly.");
    if (word.is("yield") && next.type != RuleToken::SIGN)
        add(token, "a generator", "Put the results into an array.");
}

void Search::lookAtNumber(int token)
{
    const QString text = at(token).text.toLower();
    const bool isBinary = text.startsWith(QLatin1String("0b")) || text.startsWith(QLatin1String("0o"));
    const bool isLong = !text.startsWith(QLatin1String("0x")) && text.endsWith(QLatin1Char('n'));
    if (isBinary || isLong || text.contains(QLatin1Char('_')))
        add(token, "a number in a later notation", "Write it in decimal or hexadecimal digits.");
}

void Search::lookAtFunction(int token)
{
    const int star = at(token + 1).is("*") ? 1 : 0;
    if (star)
        add(token + 1, "a generator", "Put the results into an array.");
    const int head = at(token + 1 + star).is("(") ? token + 1 + star : token + 2 + star;
    if (!at(head).is("("))
        return;
    for (int i = head + 1; i < m_outline.partner(head); ++i) {
        if (at(i).is("="))
            add(i, "a default for a parameter", "Write if (x === undefined) x = ...; in the function.");
        if (m_outline.partner(i) > i)
            i = m_outline.partner(i);
    }
}

// "{a, b}", "{f() {}}", "{[key]: 1}"
void Search::lookAtObject(int token)
{
    for (int i = token + 1; i < m_outline.partner(token); ++i) {
        const bool isAtKey = at(i - 1).is("{") || at(i - 1).is(",");
        if (isAtKey && at(i).isOwnName() && (at(i + 1).is(",") || at(i + 1).is("}")))
            add(i, "a property without a value", "Write name: name.");
        if (isAtKey && at(i).isOwnName() && at(i + 1).is("("))
            add(i, "a method without function", "Write name: function () { ... }.");
        if (isAtKey && at(i).is("["))
            add(i, "a computed key", "Write object[key] = value afterwards.");
        if (m_outline.partner(i) > i)
            i = m_outline.partner(i);
    }
}

QString described(const RuleToken& token)
{
    return QStringLiteral("unexpected %1")
        .arg(token.isTextLike() ? token.text : QLatin1Char('"') + token.text + QLatin1Char('"'));
}
} // namespace

QVector<LaterSyntax> laterSyntax(const RuleOutline& outline)
{
    return Search(outline).run();
}

QVector<int> blockConstants(const RuleOutline& outline)
{
    QVector<int> result;
    const QVector<RuleToken>& tokens = outline.tokens();
    QVector<int> bodies{-1};
    for (const RuleOutline::Function& function : outline.functions())
        bodies.append(function.begin);
    QVector<int> open{-1};
    for (int i = 0; i < tokens.size(); ++i) {
        if (tokens.at(i).is("const") && tokens.at(i).type == RuleToken::NAME &&
            !bodies.contains(open.constLast()))
            result.append(i);
        if (outline.partner(i) > i)
            open.append(i);
        else if (outline.partner(i) >= 0)
            open.removeLast();
    }
    return result;
}

bool isRuleBuiltin(const QString& name)
{
    return BUILTINS.contains(name);
}

bool isForeignBuiltin(const QString& name)
{
    return FOREIGN.contains(name);
}

QString syntaxFault(const RuleOutline& outline, int* line, int* column)
{
    const QVector<RuleToken>& tokens = outline.tokens();
    const auto goTo = [&](int token) {
        *line = tokens.at(token).line;
        *column = tokens.at(token).column;
    };
    if (!tokens.isEmpty() && tokens.constLast().type == RuleToken::UNCLOSED) {
        goTo(tokens.size() - 1);
        return QStringLiteral("what begins here with %1 is not closed").arg(tokens.constLast().text);
    }
    if (outline.loneBracket() >= 0) {
        goTo(outline.loneBracket());
        return QStringLiteral("\"%1\" has no partner").arg(tokens.at(outline.loneBracket()).text);
    }
    for (int i = 0; i < tokens.size(); ++i) {
        const RuleToken& token = tokens.at(i);
        if (token.line < *line || (token.line == *line && token.column + token.text.size() <= *column))
            continue;
        goTo(i);
        return described(token);
    }
    return QStringLiteral("the script ends too early");
}

} // namespace RuleChecking
