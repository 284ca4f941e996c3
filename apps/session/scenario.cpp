#include "scenario.h"

#include <jobxml/suggestion.h>

#include <algorithm>
#include <iterator>
#include <QCoreApplication>

namespace {
struct Verb
{
    QLatin1String name;
    int minimum; // Arguments.
    int maximum;
    const char* usage;
};

const Verb VERBS[] = {
    {QLatin1String("new"), 1, 2, QT_TRANSLATE_NOOP("Session::Scenario", "new TYPE [NAME]")},
    {QLatin1String("open"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "open FILE (job editor)")},
    {QLatin1String("add"), 1, 2, QT_TRANSLATE_NOOP("Session::Scenario", "add TYPE/BASE [STARTUP-MODE]")},
    {QLatin1String("set"), 2, 2, QT_TRANSLATE_NOOP("Session::Scenario", "set SET/FIELD VALUE")},
    {QLatin1String("select"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "select NUMBER")},
    {QLatin1String("expect"), 2, 2, QT_TRANSLATE_NOOP("Session::Scenario", "expect subjobs|SET/FIELD VALUE")},
    {QLatin1String("import"), 1, 2,
     QT_TRANSLATE_NOOP("Session::Scenario", "import FILE [FORMAT] (job editor, --plugin)")},
    {QLatin1String("save"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "save FILE")},
    {QLatin1String("picture"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "picture FILE (job editor)")},
    {QLatin1String("dialog"), 3, 3,
     QT_TRANSLATE_NOOP("Session::Scenario", "dialog TYPE DETECTOR FILE (job editor)")},
    {QLatin1String("dock"), 2, 2, QT_TRANSLATE_NOOP("Session::Scenario", "dock NAME FILE (job editor)")},
    {QLatin1String("map"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "map FILE (job editor)")},
    {QLatin1String("preview"), 2, 2,
     QT_TRANSLATE_NOOP("Session::Scenario", "preview LIST FILE (job editor)")},
    {QLatin1String("window"), 2, 2,
     QT_TRANSLATE_NOOP("Session::Scenario", "window summary|apply|plugins FILE (job editor)")},
    {QLatin1String("wait"), 1, 1, QT_TRANSLATE_NOOP("Session::Scenario", "wait SECONDS (job editor)")},
};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::Scenario)
};

const Verb* findVerb(const QString& name)
{
    const auto found = std::find_if(std::begin(VERBS), std::end(VERBS),
                                    [&name](const Verb& verb) { return verb.name == name; });
    return found == std::end(VERBS) ? nullptr : found;
}

QStringList verbNames()
{
    QStringList result;
    for (const Verb& verb : VERBS)
        result.append(verb.name);
    return result;
}

// Splits a line into words; false if a quote is not closed.
bool splitWords(const QString& line, QStringList* words)
{
    QString word;
    bool inWord = false;
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (quoted && c == QLatin1Char('\\') && i + 1 < line.size()) {
            word += line.at(++i);
        } else if (c == QLatin1Char('"')) {
            quoted = !quoted;
            inWord = true;
        } else if (c.isSpace() && !quoted) {
            if (inWord)
                words->append(word);
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words->append(word);
    return !quoted;
}

QString quoteWord(const QString& word)
{
    const bool plain = !word.isEmpty() && !word.startsWith(QLatin1Char('#')) &&
                       std::none_of(word.begin(), word.end(), [](QChar c) {
                           return c.isSpace() || c == QLatin1Char('"') || c == QLatin1Char('\\');
                       });
    if (plain)
        return word;
    QString inner = word;
    inner.replace(QLatin1String("\\"), QLatin1String("\\\\"))
        .replace(QLatin1String("\""), QLatin1String("\\\""));
    return QLatin1Char('"') + inner + QLatin1Char('"');
}

QString adviceFor(const QString& word)
{
    if (const Verb* verb = findVerb(word))
        return Texts::tr("Write: %1").arg(Texts::tr(verb->usage));
    return Texts::tr("Verbs are %1.%2")
        .arg(verbNames().join(QLatin1String(", ")), JobXml::suggestion(word, verbNames()));
}

// Null if the words are a step, else what is wrong with them.
QString faultOf(const QStringList& words)
{
    const Verb* verb = findVerb(words.first());
    if (!verb)
        return Texts::tr("\"%1\" is no verb of a scenario").arg(words.first());
    const int count = words.size() - 1;
    if (count < verb->minimum || count > verb->maximum)
        return Texts::tr("\"%1\" does not go with %2 arguments").arg(verb->name, QString::number(count));
    return QString();
}
} // namespace

namespace Session {

bool Scenario::parse(const QString& text, const QString& name, Finding* finding)
{
    m_steps.clear();
    m_name = name;
    QList<Step> steps;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).trimmed().startsWith(QLatin1Char('#')))
            continue;
        QStringList words;
        if (!splitWords(lines.at(i), &words)) {
            *finding = {Finding::FAILURE, name, i + 1, 0, Texts::tr("a quote is not closed"), QString()};
            return false;
        }
        if (words.isEmpty())
            continue;
        const QString fault = faultOf(words);
        if (!fault.isNull()) {
            *finding = {Finding::FAILURE, name, i + 1, 0, fault, adviceFor(words.first())};
            return false;
        }
        steps.append({i + 1, words.first(), words.mid(1)});
    }
    m_steps = steps;
    return true;
}

void Scenario::append(const QString& verb, const QStringList& arguments)
{
    m_steps.append({m_steps.size() + 1, verb, arguments});
}

QString Scenario::toText() const
{
    QString result;
    for (const Step& step : m_steps) {
        result += step.verb;
        for (const QString& argument : step.arguments)
            result += QLatin1Char(' ') + quoteWord(argument);
        result += QLatin1Char('\n');
    }
    return result;
}

QString Scenario::verbsHelp()
{
    QString result;
    for (const Verb& verb : VERBS)
        result += QLatin1String("  ") + Texts::tr(verb.usage) + QLatin1Char('\n');
    return result;
}

} // namespace Session
