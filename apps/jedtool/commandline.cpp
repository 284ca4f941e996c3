#include "commandline.h"

#include <algorithm>
#include <cstdio>
#include <jedvepb_version.h>
#include <jobxml/suggestion.h>
#include <QCommandLineParser>
#include <session/installation.h>

namespace JedTool {

namespace {
const char* const INSTALLATION_OPTION = "installation";
const char* const FORMAT_OPTION = "format";
const QStringList FORMATS{QStringLiteral("text"), QStringLiteral("json")};
const QLatin1String HTML("html");
constexpr int NOUN_AND_VERB = 2;

const Option COMMON_OPTIONS[] = {
    {INSTALLATION_OPTION, "DIR",
     QT_TRANSLATE_NOOP("jedtool", "folder with installation.ini (else $JED_INSTALLATION, else the example)")},
    {FORMAT_OPTION, "text|json", QT_TRANSLATE_NOOP("jedtool", "what the results are written as (text)")},
    {"help", nullptr, QT_TRANSLATE_NOOP("jedtool", "show this help")},
    {"version", nullptr, QT_TRANSLATE_NOOP("jedtool", "show the version")},
};

const char* const EXAMPLES =
    QT_TRANSLATE_NOOP("jedtool", "Examples:\n"
                                 "  jedtool resources list\n"
                                 "  jedtool job new --type Search --resource HT720/HF-1 --out job.xml\n"
                                 "  jedtool job check job.xml\n");
const char* const EXIT_CODES =
    QT_TRANSLATE_NOOP("jedtool", "Exit codes: 0 clean, 1 findings, 2 wrong usage, 3 internal fault\n");

const char* const TRACES = QT_TRANSLATE_NOOP(
    "jedtool", "QT_LOGGING_RULES=jobeditorve.trace=true in the environment shows what the library traces.\n"
               "Next: jedtool NOUN --help\n");

const QVector<Noun>& nouns()
{
    static const QVector<Noun> all{resourcesNoun(), jobNoun(), pluginNoun(), rulesNoun(), frequenciesNoun()};
    return all;
}

template <typename Table>
QStringList namesOf(const Table& table)
{
    QStringList result;
    for (const auto& row : table)
        result.append(QLatin1String(row.name));
    return result;
}

template <typename Table>
auto findByName(const Table& table, const QString& name) -> decltype(&*std::begin(table))
{
    for (const auto& row : table) {
        if (QLatin1String(row.name) == name)
            return &row;
    }
    return nullptr;
}

// "  name    what it is", one row a line, the second column aligned.
QString columns(const QVector<QPair<QString, QString>>& rows)
{
    int width = 0;
    for (const auto& row : rows)
        width = std::max(width, row.first.size());
    QString result;
    for (const auto& row : rows)
        result += QLatin1String("  ") + row.first.leftJustified(width + 2) + row.second + QLatin1Char('\n');
    return result;
}

template <typename Table>
QString summaries(const Table& table)
{
    QVector<QPair<QString, QString>> rows;
    for (const auto& row : table)
        rows.append({QLatin1String(row.name), Texts::tr(row.summary)});
    return columns(rows);
}

template <typename Table>
QString optionsHelp(const Table& options)
{
    QVector<QPair<QString, QString>> rows;
    for (const Option& option : options) {
        QString name = QLatin1String("--") + QLatin1String(option.name);
        if (option.valueName)
            name += QLatin1Char(' ') + QLatin1String(option.valueName);
        rows.append({name, Texts::tr(option.help)});
    }
    return columns(rows);
}

QString programHelp()
{
    return Texts::tr(
               "Usage: jedtool NOUN VERB [ARGUMENT...] [OPTION...]\n\n"
               "Looks at the receivers of an installation; composes, shows and checks jobs; imports lists of "
               "frequencies.\n\n") +
           Texts::tr("Nouns:\n") + summaries(nouns()) + Texts::tr("\nOptions of every verb:\n") +
           optionsHelp(COMMON_OPTIONS) + QLatin1Char('\n') + Texts::tr(EXAMPLES) + QLatin1Char('\n') +
           Texts::tr(EXIT_CODES) + Texts::tr(TRACES);
}

QString nounHelp(const Noun& noun)
{
    return Texts::tr("Usage: jedtool %1 VERB [ARGUMENT...] [OPTION...]\n\nVerbs:\n")
               .arg(QLatin1String(noun.name)) +
           summaries(noun.verbs) +
           Texts::tr("\nNext: jedtool %1 VERB --help\n").arg(QLatin1String(noun.name));
}

QString commandOf(const Noun& noun, const Verb& verb)
{
    return QStringLiteral("jedtool %1 %2").arg(QLatin1String(noun.name), QLatin1String(verb.name));
}

QString verbHelp(const Noun& noun, const Verb& verb)
{
    const QString usage = (commandOf(noun, verb) + QLatin1Char(' ') + Texts::tr(verb.synopsis)).trimmed();
    QString result = Texts::tr("Usage: %1\n\n%2\n").arg(usage, Texts::tr(verb.details));
    if (!verb.options.isEmpty())
        result += Texts::tr("Options:\n") + optionsHelp(verb.options) + QLatin1Char('\n');
    result += Texts::tr("Options of every verb:\n") + optionsHelp(COMMON_OPTIONS);
    return verb.appendix ? result + QLatin1Char('\n') + verb.appendix() : result;
}

ExitCode usageError(const QString& text, const QString& next)
{
    printError(Texts::tr("jedtool: %1").arg(text));
    printError(Texts::tr("Next: %1").arg(next));
    return USAGE;
}

QCommandLineOption toQtOption(const Option& option)
{
    const QString name = QLatin1String(option.name);
    return option.valueName ? QCommandLineOption(name, QString(), QLatin1String(option.valueName))
                            : QCommandLineOption(name);
}

// Knows the options of every verb, so that nouns and verbs are found wherever they stand.
QStringList positionalArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    QStringList known;
    const auto add = [&](const auto& options) {
        for (const Option& option : options) {
            if (!known.contains(QLatin1String(option.name))) {
                known.append(QLatin1String(option.name));
                parser.addOption(toQtOption(option));
            }
        }
    };
    add(COMMON_OPTIONS);
    for (const Noun& noun : nouns()) {
        for (const Verb& verb : noun.verbs)
            add(verb.options);
    }
    parser.parse(QStringList(QString()) + arguments);
    return parser.positionalArguments();
}

// The options in the order in which they were given; the parser keeps the order of names and, per name, of values.
QVector<QPair<QString, QString>> orderedOptions(const QCommandLineParser& parser, const Verb& verb)
{
    QVector<QPair<QString, QString>> result;
    QHash<QString, int> used;
    for (const QString& name : parser.optionNames()) {
        const Option* option = findByName(verb.options, name);
        if (option)
            result.append({name, option->valueName ? parser.values(name).value(used[name]++) : QString()});
    }
    return result;
}

bool chooseInstallation(const QString& folder)
{
    QString error;
    if (Session::chooseInstallation(folder, QStringLiteral(JED_EXAMPLE_INSTALLATION), &error))
        return true;
    printError(Texts::tr("jedtool: %1").arg(error));
    printError(Texts::tr("Next: give the folder of an installation with --installation DIR"));
    return false;
}

// Why the parser does not take the arguments.
QString parserFault(const QCommandLineParser& parser, const Verb& verb)
{
    if (parser.unknownOptionNames().isEmpty())
        return parser.errorText();
    QStringList known;
    for (const QString& name : namesOf(verb.options) + namesOf(COMMON_OPTIONS))
        known.append(QLatin1String("--") + name);
    const QString unknown = QLatin1String("--") + parser.unknownOptionNames().first();
    return Texts::tr("there is no option %1.%2").arg(unknown, JobXml::suggestion(unknown, known));
}

// Null, or what is wrong with what was parsed.
QString usageFault(const QCommandLineParser& parser, const Noun& noun, const Verb& verb)
{
    const QString format = parser.value(FORMAT_OPTION);
    if (verb.hasHtml && parser.isSet(FORMAT_OPTION) && !FORMATS.contains(format) && format != HTML)
        return Texts::tr("the format is text, json or html, not \"%1\"").arg(format);
    if (!verb.hasHtml && parser.isSet(FORMAT_OPTION) && !FORMATS.contains(format))
        return Texts::tr("the format is text or json, not \"%1\"").arg(format);
    const int count = parser.positionalArguments().size() - NOUN_AND_VERB;
    if (count < verb.minimumArguments || (verb.maximumArguments >= 0 && count > verb.maximumArguments))
        return Texts::tr("usage: %1 %2").arg(commandOf(noun, verb), Texts::tr(verb.synopsis)).trimmed();
    return QString();
}

ExitCode runVerb(const Noun& noun, const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    for (const Option& option : COMMON_OPTIONS)
        parser.addOption(toQtOption(option));
    for (const Option& option : verb.options)
        parser.addOption(toQtOption(option));
    const bool isParsed = parser.parse(QStringList(QString()) + arguments);
    const QString fault = isParsed ? usageFault(parser, noun, verb) : parserFault(parser, verb);
    if (!fault.isNull())
        return usageError(fault, commandOf(noun, verb) + QLatin1String(" --help"));
    Invocation invocation;
    invocation.arguments = parser.positionalArguments().mid(NOUN_AND_VERB);
    invocation.options = orderedOptions(parser, verb);
    invocation.isJson = parser.value(FORMAT_OPTION) == QLatin1String("json");
    invocation.isHtml = parser.value(FORMAT_OPTION) == HTML;
    return chooseInstallation(parser.value(INSTALLATION_OPTION)) ? verb.run(invocation) : USAGE;
}

ExitCode printHelp(const QString& help, bool wasAskedFor)
{
    if (wasAskedFor)
        print(help);
    else
        printError(help.chopped(1));
    return wasAskedFor ? CLEAN : USAGE;
}

void write(const QString& text, std::FILE* stream)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}
} // namespace

bool Invocation::isSet(const QString& option) const
{
    return std::any_of(options.begin(), options.end(),
                       [&option](const auto& given) { return given.first == option; });
}

QString Invocation::value(const QString& option, const QString& fallback) const
{
    QString result = fallback;
    for (const auto& given : options) {
        if (given.first == option)
            result = given.second;
    }
    return result;
}

ExitCode runCommandLine(const QStringList& arguments)
{
    const bool helpAsked = arguments.contains(QLatin1String("--help"));
    if (arguments.contains(QLatin1String("--version"))) {
        print(Texts::tr("jedtool %1 (library interface %2, Qt %3)\n")
                  .arg(QStringLiteral(JED_VERSION), QString::number(JEDVEPB_INTERFACE_VERSION),
                       QLatin1String(qVersion())));
        return CLEAN;
    }
    const QStringList words = positionalArguments(arguments);
    if (words.isEmpty())
        return printHelp(programHelp(), helpAsked);
    const Noun* noun = findByName(nouns(), words.at(0));
    if (!noun)
        return usageError(Texts::tr("there is no noun \"%1\".%2")
                              .arg(words.at(0), JobXml::suggestion(words.at(0), namesOf(nouns()))),
                          QStringLiteral("jedtool --help"));
    if (words.size() == 1)
        return printHelp(nounHelp(*noun), helpAsked);
    const Verb* verb = findByName(noun->verbs, words.at(1));
    if (!verb)
        return usageError(
            Texts::tr("%1 has no verb \"%2\".%3")
                .arg(words.at(0), words.at(1), JobXml::suggestion(words.at(1), namesOf(noun->verbs))),
            QStringLiteral("jedtool %1 --help").arg(words.at(0)));
    return helpAsked ? printHelp(verbHelp(*noun, *verb), true) : runVerb(*noun, *verb, arguments);
}

void print(const QString& text)
{
    write(text, stdout);
}

void printError(const QString& text)
{
    write(text + QLatin1Char('\n'), stderr);
}

void printFindings(const Session::Findings& findings)
{
    for (const Session::Finding& finding : findings)
        printError(finding.toText());
}

} // namespace JedTool
