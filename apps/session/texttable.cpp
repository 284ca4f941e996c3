#include "texttable.h"

#include <algorithm>

namespace Session {

QString TextTable::toText() const
{
    QVector<int> widths;
    for (const QStringList& row : m_rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths.at(column), row.at(column).size());
    }
    QString result;
    for (const QStringList& row : m_rows) {
        QString line(m_indent, QLatin1Char(' '));
        for (int column = 0; column < row.size(); ++column)
            line += row.at(column).leftJustified(widths.at(column) + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        result += line + QLatin1Char('\n');
    }
    return result;
}

} // namespace Session
