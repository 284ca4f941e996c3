#include "rulestatic.h"

#include "rulelanguage.h"

#include <algorithm>
#include <jobxml/suggestion.h>

namespace RuleChecking {

namespace {
const char* const RULE_SUFFIX = "_changed";
const QSet<QString> CONSTANT_NAMES{"NaN", "Infinity", "undefined"};
const QSet<QString> CONSTANT_OWNERS{"Math", "Number"};

class Reader
{
public:
    Reader(const RuleOutline& outline, const QVector<RuleScope>& scopes)
        : m_outline(outline)
        , m_tokens(outline.tokens())
    {
        for (const RuleScope& scope : scopes) {
            for (const RuleObject& object : scope.objects) {
                m_objects.insert(object.name);
                m_rules.insert(object.ruleFunction);
            }
        }
    }

    void findMissingFunctions(const QVector<RuleScope>& scopes);
    void findDoubleFunctions();
    void findParameters();
    void findNeverCalled();
    void findBlockConstants();
    void findUnknownNames();
    void findReplacedObjects();
    void findConstantWrites();
    void findLostState(const QSet<QString>& changedVariables);

    const QVector<RuleObservation>& found() const { return m_found; }

private:
    void add(RuleFinding number, int token, const QString& text, const QString& advice = QString())
    {
        const RuleToken& place = m_tokens.at(token);
        m_found.append({number, place.line, place.column, place.text, text, advice});
    }
    void add(RuleFinding number, const RuleOutline::Function& function, const QString& text,
             const QString& advice = QString())
    {
        m_found.append({number, function.line, function.column, function.name, text, advice});
    }
    const RuleToken& at(int token) const
    {
        static const RuleToken NONE;
        return token >= 0 && token < m_tokens.size() ? m_tokens.at(token) : NONE;
    }
    bool isMentioned(const QString& name) const;
    bool isTested(const QString& name) const;
    bool isScratch(const QString& name) const;

    const RuleOutline& m_outline;
    const QVector<RuleToken>& m_tokens;
    QSet<QString> m_objects;
    QSet<QString> m_rules;
    QVector<RuleObservation> m_found;
};

QStringList sorted(const QSet<QString>& names)
{
    QStringList result = names.values();
    result.sort();
    return result;
}

void Reader::findMissingFunctions(const QVector<RuleScope>& scopes)
{
    QSet<QString> told;
    for (const RuleScope& scope : scopes) {
        for (const RuleObject& object : scope.objects) {
            if (!object.needsRule() || m_outline.globals().contains(object.ruleFunction) ||
                told.contains(object.ruleFunction))
                continue;
            told.insert(object.ruleFunction);
            m_found.append({RuleFinding::MISSING_FUNCTION, 0, 0, object.ruleFunction,
                            QStringLiteral("%1 calls \"%2\", which the script does not have")
                                .arg(object.name, object.ruleFunction),
                            JobXml::suggestion(object.ruleFunction, sorted(m_outline.globals()))});
        }
    }
}

void Reader::findDoubleFunctions()
{
    QHash<QString, int> lines;
    for (const RuleOutline::Function& function : m_outline.functions()) {
        if (!function.isDeclaration || function.outer >= 0)
            continue;
        if (lines.contains(function.name))
            add(RuleFinding::DOUBLE_FUNCTION, function,
                QStringLiteral("\"%1\" stands in line %2, too")
                    .arg(function.name, QString::number(lines.value(function.name))));
        lines.insert(function.name, function.line);
    }
}

void Reader::findParameters()
{
    for (const RuleOutline::Function& function : m_outline.functions()) {
        if (function.outer < 0 && m_rules.contains(function.name) && !function.parameters.isEmpty() &&
            !isMentioned(function.name))
            add(RuleFinding::PARAMETERS, function,
                QStringLiteral("\"%1\" has the parameter %2, which is always undefined")
                    .arg(function.name, function.parameters.constFirst()));
    }
}

void Reader::findNeverCalled()
{
    for (const RuleOutline::Function& function : m_outline.functions()) {
        const bool isRuleLike = function.name.endsWith(QLatin1String(RULE_SUFFIX)) ||
                                !JobXml::nearest(function.name, sorted(m_rules)).isNull();
        if (function.outer < 0 && isRuleLike && !m_rules.contains(function.name) &&
            !isMentioned(function.name))
            add(RuleFinding::NEVER_CALLED, function,
                QStringLiteral("nothing calls \"%1\"").arg(function.name),
                JobXml::suggestion(function.name, sorted(m_rules)));
    }
}

void Reader::findBlockConstants()
{
    for (const int token : blockConstants(m_outline))
        add(RuleFinding::BLOCK_CONSTANT, token,
            QStringLiteral("\"%1\" is known outside of the block, too").arg(at(token + 1).text));
}

void Reader::findUnknownNames()
{
    // Inside of "with", names may be properties.
    const bool hasWith = std::any_of(m_tokens.cbegin(), m_tokens.cend(), [](const RuleToken& token) {
        return token.type == RuleToken::NAME && token.is("with");
    });
    if (hasWith)
        return;
    QSet<QString> told;
    for (int i = 0; i < m_tokens.size(); ++i) {
        const QString& name = m_tokens.at(i).text;
        if (!m_outline.isGlobalMention(i) || m_outline.globals().contains(name) || m_objects.contains(name) ||
            isRuleBuiltin(name) || told.contains(name) || isTested(name))
            continue;
        told.insert(name);
        add(RuleFinding::UNKNOWN_NAME, i,
            isForeignBuiltin(name)
                ? QStringLiteral("there is no \"%1\"; it belongs to browsers or later languages").arg(name)
                : QStringLiteral("there is no \"%1\"").arg(name),
            JobXml::suggestion(name, sorted(m_objects + m_outline.globals())));
    }
}

void Reader::findReplacedObjects()
{
    for (const RuleOutline::Function& function : m_outline.functions()) {
        if (function.isDeclaration && function.outer < 0 && m_objects.contains(function.name))
            add(RuleFinding::OBJECT_REPLACED, function,
                QStringLiteral("the function takes the place of the object %1").arg(function.name));
    }
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (m_outline.isGlobalMention(i) && m_objects.contains(m_tokens.at(i).text) &&
            m_outline.use(i) != RuleOutline::READ)
            add(RuleFinding::OBJECT_REPLACED, i,
                QStringLiteral("what is assigned takes the place of the object %1").arg(m_tokens.at(i).text));
    }
}

// "NaN = 1", "Math.PI = 3"
void Reader::findConstantWrites()
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        const bool isName = m_outline.isGlobalMention(i) && CONSTANT_NAMES.contains(m_tokens.at(i).text);
        const bool isProperty = m_tokens.at(i).isOwnName() && at(i - 1).is(".") &&
                                CONSTANT_OWNERS.contains(at(i - 2).text) &&
                                m_tokens.at(i).text == m_tokens.at(i).text.toUpper();
        if ((isName || isProperty) && m_outline.use(i) != RuleOutline::READ)
            add(RuleFinding::NOT_WRITABLE, i, QStringLiteral("%1 is a constant").arg(m_tokens.at(i).text));
    }
}

// Variables that a rule changes and that some function looks at before it gives them a value of its own.
void Reader::findLostState(const QSet<QString>& changedVariables)
{
    for (const QString& name : sorted(changedVariables)) {
        if (isScratch(name))
            continue;
        for (int i = 0; i < m_tokens.size(); ++i) {
            const bool isElement = at(i + 1).is("[") || at(i + 1).is(".");
            if (m_tokens.at(i).text != name || m_outline.functionAt(i) < 0 || !m_outline.isGlobalMention(i) ||
                (m_outline.use(i) == RuleOutline::READ && !isElement))
                continue;
            add(RuleFinding::LOST_STATE, i,
                QStringLiteral("what is kept in \"%1\" is gone at the next run").arg(name));
            break;
        }
    }
}

// A function writes the variable before it looks at it: no state, but a means to hand something over.
bool Reader::isScratch(const QString& name) const
{
    QSet<int> seen;
    for (int i = 0; i < m_tokens.size(); ++i) {
        const int function = m_outline.functionAt(i);
        if (m_tokens.at(i).text != name || function < 0 || seen.contains(function) ||
            !m_outline.isGlobalMention(i))
            continue;
        seen.insert(function);
        if (m_outline.use(i) == RuleOutline::WRITE)
            return true;
    }
    return false;
}

// Other than where it is declared.
bool Reader::isMentioned(const QString& name) const
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (m_tokens.at(i).text == name && m_outline.isGlobalMention(i) &&
            m_outline.use(i) == RuleOutline::READ)
            return true;
    }
    return false;
}

bool Reader::isTested(const QString& name) const
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (m_tokens.at(i).text == name && m_outline.isTest(i))
            return true;
    }
    return false;
}
} // namespace

QVector<RuleObservation> staticObservations(const RuleOutline& outline, const QVector<RuleScope>& scopes,
                                            bool isGuessed, const QSet<QString>& changedVariables)
{
    Reader reader(outline, scopes);
    if (!isGuessed) {
        reader.findMissingFunctions(scopes);
        reader.findNeverCalled();
    }
    reader.findParameters();
    reader.findDoubleFunctions();
    reader.findBlockConstants();
    reader.findUnknownNames();
    reader.findReplacedObjects();
    reader.findConstantWrites();
    reader.findLostState(changedVariables);
    return reader.found();
}

RuleScope guessedScope(const RuleOutline& outline)
{
    RuleScope scope;
    const QVector<RuleToken>& tokens = outline.tokens();
    for (int i = 0; i < tokens.size(); ++i) {
        RuleObject object;
        object.name = tokens.at(i).text;
        object.ruleFunction = object.name + QLatin1String(RULE_SUFFIX);
        if (!outline.isGlobalMention(i) || outline.globals().contains(object.name) ||
            isRuleBuiltin(object.name) || isForeignBuiltin(object.name) || scope.find(object.name))
            continue;
        const bool hasMember = i + 2 < tokens.size() && tokens.at(i + 1).is(".") &&
                               RuleRecorder::guessKind(tokens.at(i + 2).text, &object.kind);
        if (!hasMember && !outline.globals().contains(object.ruleFunction))
            continue;
        object.isGuessed = true;
        object.setUnbounded();
        scope.objects.append(object);
    }
    return scope;
}

QStringList looseFunctions(const RuleOutline& outline, const RuleScope& scope)
{
    QStringList result;
    for (const RuleOutline::Function& function : outline.functions()) {
        const bool isRule =
            std::any_of(scope.objects.cbegin(), scope.objects.cend(), [&function](const RuleObject& object) {
                return object.ruleFunction == function.name;
            });
        bool isCalled =
            function.outer >= 0 || function.name.isEmpty() || isRule || !function.parameters.isEmpty();
        for (int i = 0; i < outline.tokens().size() && !isCalled; ++i)
            isCalled = outline.tokens().at(i).text == function.name && outline.isGlobalMention(i) &&
                       outline.use(i) == RuleOutline::READ;
        if (!isCalled)
            result.append(function.name);
    }
    return result;
}

} // namespace RuleChecking
