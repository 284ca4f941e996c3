#pragma once

#include <QCoreApplication>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>
#include <session/finding.h>

namespace JEDVEPLUGIN {
class JEDSubSettingFactory;
}
namespace Session {
class PluginHost;
}

/// The frame of jedtool: nouns with verbs, their options, help and exit codes. A noun is a table in a source file of
/// its own.
namespace JedTool {

/// tr() for the texts of the program, also those of its tables.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(jedtool)
};

enum ExitCode {
    CLEAN = 0,    ///< done, nothing to tell
    FINDINGS = 1, ///< done or refused; what was found is told
    USAGE = 2,    ///< the command line or the scenario is wrong; nothing was done
    INTERNAL = 3, ///< a fault of the program or its surroundings
};

/// One option of a verb.
struct Option
{
    const char* name;
    const char* valueName; ///< null for a switch
    const char* help;
};

/// What the command line says to a verb.
class Invocation
{
public:
    QStringList arguments;                    ///< those behind the verb
    QVector<QPair<QString, QString>> options; ///< name and value of each given option, in order
    bool isJson = false;                      ///< --format json
    bool isHtml = false;                      ///< --format html

    bool isSet(const QString& option) const;
    /// The last value given, or \p fallback.
    QString value(const QString& option, const QString& fallback = QString()) const;
};

/// One verb of a noun.
struct Verb
{
    const char* name;
    const char* synopsis; ///< what stands behind noun and verb on the command line
    const char* summary;  ///< one line
    const char* details;  ///< what it does, examples and what to do next
    int minimumArguments;
    int maximumArguments; ///< -1: any number
    QVector<Option> options;
    ExitCode (*run)(const Invocation& invocation);
    QString (*appendix)(); ///< what the help says at the end; null: nothing
    bool hasHtml = false;  ///< whether it knows the format html
};

/// One noun: a file of the program.
struct Noun
{
    const char* name;
    const char* summary;
    QVector<Verb> verbs;
};

Noun resourcesNoun();
Noun jobNoun();
Noun pluginNoun();
Noun rulesNoun();
Noun frequenciesNoun();

/// Runs what the arguments (without the program's name) ask for.
ExitCode runCommandLine(const QStringList& arguments);

/// The folders with plug-ins: those of the options "plugin-dir", then the usual ones.
QStringList pluginFolders(const Invocation& invocation);
/// The plug-in of that name; null, which is told on the error output, if there is none.
JEDVEPLUGIN::JEDSubSettingFactory* namedPlugin(const Session::PluginHost& host, const QString& name);

/// Writes to the standard output.
void print(const QString& text);
/// Writes one line to the error output.
void printError(const QString& text);
/// Writes findings to the error output, one after the other.
void printFindings(const Session::Findings& findings);

} // namespace JedTool
