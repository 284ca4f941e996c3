#pragma once

#include "finding.h"

#include <QString>
#include <QStringList>

namespace Session {

/// A job composed step by step, as a small text that people read and write:
///
///     # marine channel 16 in the morning
///     new Search "Morning watch"
///     add HT720/HF-1 Automatic
///     set TunerSettings/CenterFrequency 156.8M
///     expect subjobs 1
///     save job.xml
///
/// One step a line: a verb and its arguments between blanks. An argument with blanks stands in double quotes,
/// in which
/// \" and \\ stand for the character itself. Empty lines and lines that begin with "#" say nothing.
class Scenario
{
public:
    struct Step
    {
        int line = 0; // In the text, from 1.
        QString verb;
        QStringList arguments;
    };

    /// Reads a scenario; the steps so far are replaced.
    /// \param name     what the text is called in findings, usually the file's name
    /// \param finding  receives the first fault, with its line; may not be null
    /// \return false, without steps, if a verb is unknown, arguments are missing or too many, or a quote is
    /// open
    bool parse(const QString& text, const QString& name, Finding* finding);

    /// Appends a step; its line is that in which toText() puts it.
    void append(const QString& verb, const QStringList& arguments);

    const QList<Step>& steps() const { return m_steps; }
    const QString& name() const { return m_name; }

    /// The text that parse() reads: one step a line, arguments quoted where they must be.
    QString toText() const;

    /// The verbs with their arguments, one a line, for help texts.
    static QString verbsHelp();

private:
    QList<Step> m_steps;
    QString m_name;
};

} // namespace Session
