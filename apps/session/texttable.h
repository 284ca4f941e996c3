#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Session {

/// Rows of words, set in columns for a terminal.
class TextTable
{
public:
    /// \param indent  blanks before each row
    explicit TextTable(int indent = 0)
        : m_indent(indent)
    {
    }

    void append(const QStringList& row) { m_rows.append(row); }
    bool isEmpty() const { return m_rows.isEmpty(); }

    /// One line per row, columns two blanks apart, no blanks at the end of a line.
    QString toText() const;

private:
    int m_indent;
    QVector<QStringList> m_rows;
};

} // namespace Session
