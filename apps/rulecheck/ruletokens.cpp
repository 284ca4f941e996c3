#include "ruletokens.h"

#include <QSet>

namespace RuleChecking {

namespace {
// Longer ones before those that they begin with.
const char* const SIGNS[] = {
    ">>>=", "===", "!==", ">>>", "<<=", ">>=", "**=", "...", "=>", "==", "!=", "<=", ">=", "&&", "||",
    "??",   "?.",  "++",  "--",  "+=",  "-=",  "*=",  "/=",  "%=", "&=", "|=", "^=", "<<", ">>", "**"};

const QSet<QString>& keywords()
{
    static const QSet<QString> WORDS{
        "break",  "case",       "catch",   "const", "continue", "debugger", "default", "delete", "do",
        "else",   "false",      "finally", "for",   "function", "if",       "in",      "new",    "null",
        "return", "instanceof", "switch",  "this",  "throw",    "true",     "try",     "typeof", "var",
        "void",   "while",      "with",    "class", "enum",     "export",   "extends", "import", "super"};
    return WORDS;
}

// Words after which a value begins, so that "/" begins a regular expression.
const QSet<QString>& wordsBeforeValues()
{
    static const QSet<QString> WORDS{"return", "typeof", "case", "in", "delete",    "void",
                                     "throw",  "new",    "else", "do", "instanceof"};
    return WORDS;
}

bool beginsName(QChar c)
{
    return c.isLetter() || c == QLatin1Char('_') || c == QLatin1Char('$');
}

class Reader
{
public:
    explicit Reader(const QString& script)
        : m_script(script)
    {
    }

    QVector<RuleToken> read()
    {
        while (skipBlanks())
            readToken();
        return m_tokens;
    }

private:
    QChar at(int offset = 0) const
    {
        return m_position + offset < m_script.size() ? m_script.at(m_position + offset) : QChar();
    }
    bool isAtEnd() const { return m_position >= m_script.size(); }
    bool startsWith(const char* text) const
    {
        return m_script.midRef(m_position).startsWith(QLatin1String(text));
    }
    void advance(int count = 1)
    {
        for (; count > 0 && !isAtEnd(); --count) {
            const bool isLineEnd = at() == QLatin1Char('\n');
            ++m_position;
            if (isLineEnd) {
                ++m_line;
                m_lineStart = m_position;
            }
        }
    }

    bool skipBlanks();
    void readToken();
    void append(RuleToken::Type type, int begin, int line, int column);
    bool isRegexPossible() const;
    bool skipText(QChar quote, bool mayContainLines);
    bool skipRegex();

    const QString& m_script;
    QVector<RuleToken> m_tokens;
    int m_position = 0;
    int m_line = 1;
    int m_lineStart = 0;
};

// Up to the next token; false at the end.
bool Reader::skipBlanks()
{
    while (!isAtEnd()) {
        if (at().isSpace() || at() == QChar(QChar::ByteOrderMark)) {
            advance();
        } else if (startsWith("//")) {
            while (!isAtEnd() && at() != QLatin1Char('\n'))
                advance();
        } else if (startsWith("/*")) {
            const int end = m_script.indexOf(QLatin1String("*/"), m_position + 2);
            if (end < 0) {
                append(RuleToken::UNCLOSED, m_position, m_line, m_position - m_lineStart + 1);
                m_tokens.last().text = QStringLiteral("/*");
                return false;
            }
            advance(end + 2 - m_position);
        } else {
            return true;
        }
    }
    return false;
}

void Reader::readToken()
{
    const int begin = m_position;
    const int line = m_line;
    const int column = m_position - m_lineStart + 1;
    const QChar first = at();
    RuleToken::Type type = RuleToken::SIGN;
    if (beginsName(first)) {
        type = RuleToken::NAME;
        while (beginsName(at()) || at().isDigit())
            advance();
    } else if (first.isDigit() || (first == QLatin1Char('.') && at(1).isDigit())) {
        type = RuleToken::NUMBER;
        const bool isHex = at(1).toLower() == QLatin1Char('x');
        while (beginsName(at()) || at().isDigit() || at() == QLatin1Char('.') ||
               ((at() == QLatin1Char('+') || at() == QLatin1Char('-')) && !isHex &&
                at(-1).toLower() == QLatin1Char('e')))
            advance();
    } else if (first == QLatin1Char('"') || first == QLatin1Char('\'')) {
        type = skipText(first, false) ? RuleToken::TEXT : RuleToken::UNCLOSED;
    } else if (first == QLatin1Char('`')) {
        type = skipText(first, true) ? RuleToken::TEMPLATE : RuleToken::UNCLOSED;
    } else if (first == QLatin1Char('/') && isRegexPossible()) {
        type = skipRegex() ? RuleToken::REGEX : RuleToken::UNCLOSED;
    } else {
        int length = 1;
        for (const char* sign : SIGNS) {
            if (startsWith(sign)) {
                length = int(qstrlen(sign));
                break;
            }
        }
        // "a ?.5 : 1" is a choice.
        advance(startsWith("?.") && at(2).isDigit() ? 1 : length);
    }
    append(type, begin, line, column);
    if (type == RuleToken::UNCLOSED) {
        m_tokens.last().text = first;
        m_position = m_script.size();
    }
}

void Reader::append(RuleToken::Type type, int begin, int line, int column)
{
    RuleToken token;
    token.type = type;
    token.text = m_script.mid(begin, m_position - begin);
    token.line = line;
    token.column = column;
    m_tokens.append(token);
}

bool Reader::isRegexPossible() const
{
    if (m_tokens.isEmpty())
        return true;
    const RuleToken& last = m_tokens.constLast();
    if (last.type == RuleToken::NAME)
        return wordsBeforeValues().contains(last.text);
    return last.type == RuleToken::SIGN && !last.is(")") && !last.is("]") && !last.is("}");
}

bool Reader::skipText(QChar quote, bool mayContainLines)
{
    advance();
    while (!isAtEnd() && at() != quote && (mayContainLines || at() != QLatin1Char('\n')))
        advance(at() == QLatin1Char('\\') ? 2 : 1);
    const bool isClosed = !isAtEnd() && at() == quote;
    advance();
    return isClosed;
}

bool Reader::skipRegex()
{
    bool isInClass = false;
    advance();
    while (!isAtEnd() && at() != QLatin1Char('\n') && (isInClass || at() != QLatin1Char('/'))) {
        if (at() == QLatin1Char('['))
            isInClass = true;
        if (at() == QLatin1Char(']'))
            isInClass = false;
        advance(at() == QLatin1Char('\\') ? 2 : 1);
    }
    const bool isClosed = !isAtEnd() && at() == QLatin1Char('/');
    advance();
    while (isClosed && beginsName(at()))
        advance();
    return isClosed;
}
} // namespace

bool RuleToken::isOwnName() const
{
    return type == NAME && !isRuleKeyword(text);
}

QVector<RuleToken> ruleTokens(const QString& script)
{
    return Reader(script).read();
}

bool isRuleKeyword(const QString& word)
{
    return keywords().contains(word);
}

} // namespace RuleChecking
