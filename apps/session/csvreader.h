#pragma once

#include <QString>
#include <QStringList>

namespace Session {

/// The text with LF in place of each line end CRLF and CR, so that lines count alike.
QString withLineFeeds(QString text);

/// Reads records of fields between separators, line after line: the form that RFC 4180 describes, with any of the line
/// ends LF, CRLF and CR. Nothing is left out silently: a record that is damaged is given with its fault.
class CsvReader
{
public:
    enum Quoting {
        WITH_QUOTES, ///< a field may stand in double quotes, and then holds anything; a quote in it is doubled
        WITHOUT_QUOTES, ///< a quote is a character like others
    };

    /// \param text  kept
    explicit CsvReader(const QString& text, QChar separator, Quoting quoting);

    /// Goes on to the next record; empty lines are records with one empty field.
    /// \return false at the end of the text
    bool next();

    /// Line in which the record begins, from 1.
    int line() const { return m_line; }
    /// Of the record; blanks belong to the fields.
    const QStringList& fields() const { return m_fields; }
    /// Why the record is damaged, for a person to read; empty for a good one.
    const QString& fault() const { return m_fault; }
    /// How far reading has come, in characters.
    int position() const { return m_position; }

private:
    QString quotedField();
    QString plainField();
    void skipLine();
    bool isAt(QChar character) const;
    bool isAtLineEnd() const;

    QString m_text;
    QChar m_separator;
    Quoting m_quoting;
    int m_position = 0;
    int m_line = 0;
    int m_nextLine = 1;
    QStringList m_fields;
    QString m_fault;
};

} // namespace Session
