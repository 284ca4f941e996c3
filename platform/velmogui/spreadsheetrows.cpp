#include <velmogui/spreadsheetrows.h>

namespace VelmoGui {

namespace {
// Takes one cell off the text from a position on, which then stands on what ended it.
QString takeCell(const QString& text, QChar separator, int* position)
{
    const auto isEnd = [&text, separator](int at) {
        return at >= text.size() || text[at] == separator || text[at] == QLatin1Char('\n');
    };
    QString cell;
    int at = *position;
    if (at < text.size() && text[at] == QLatin1Char('"')) {
        for (++at; at < text.size(); ++at) {
            // A quote within quotes is doubled.
            if (text[at] == QLatin1Char('"') && (++at >= text.size() || text[at] != QLatin1Char('"')))
                break;
            cell += text[at];
        }
    }
    for (; !isEnd(at); ++at)
        cell += text[at];
    *position = at;
    return cell.trimmed();
}
} // namespace

QVector<QStringList> spreadsheetRows(const QString& text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QChar separator = QLatin1Char(lines.contains(QLatin1Char('\t')) ? '\t' : ';');
    QVector<QStringList> rows;
    QStringList row;
    for (int position = 0; position < lines.size(); ++position) {
        row.append(takeCell(lines, separator, &position));
        if (position >= lines.size() || lines[position] == QLatin1Char('\n')) {
            rows.append(row);
            row.clear();
        }
    }
    if (!row.isEmpty())
        rows.append(row + QStringList(QString()));
    while (!rows.isEmpty() && rows.last().join(QString()).isEmpty())
        rows.removeLast();
    return rows;
}

} // namespace VelmoGui
