#pragma once

#include <QAbstractItemModel>
#include <QStringList>

namespace JedTest {

/// What a row shows, cell by cell, joined by " | ".
inline QString rowText(const QAbstractItemModel& model, int row, const QModelIndex& parent = QModelIndex())
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(parent); ++column)
        cells.append(model.index(row, column, parent).data().toString());
    return cells.join(QStringLiteral(" | "));
}

/// All rows of a model, those below a row indented by two blanks.
inline QStringList modelText(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex(),
                             int level = 0)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        lines.append(QString(2 * level, QLatin1Char(' ')) + rowText(model, row, parent));
        lines += modelText(model, model.index(row, 0, parent), level + 1);
    }
    return lines;
}

} // namespace JedTest
