#include "tableediting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QTableView>
#include <QTreeView>
#include <velmogui/spreadsheetrows.h>

namespace {
const char* const INSTALLED = "jobeditor_tableEditing";

QHeaderView* headerOf(QAbstractItemView* view)
{
    if (auto* const tree = qobject_cast<QTreeView*>(view))
        return tree->header();
    auto* const table = qobject_cast<QTableView*>(view);
    return table ? table->horizontalHeader() : nullptr;
}

// The columns from one on, in the order in which they are shown.
QVector<int> columnsFrom(QAbstractItemView* view, int first)
{
    const QHeaderView* const header = headerOf(view);
    if (!header)
        return {first};
    QVector<int> columns;
    for (int place = header->visualIndex(first); place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        if (!header->isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

bool setCell(QAbstractItemModel* model, const QModelIndex& cell, const QVariant& value)
{
    return cell.flags().testFlag(Qt::ItemIsEditable) && cell.data(Qt::EditRole) != value &&
           model->setData(cell, value);
}
} // namespace

TableEditing::TableEditing(QAbstractItemView* view)
    : QObject(view)
    , m_view(view)
{
    view->setProperty(INSTALLED, true);
    view->installEventFilter(this);
    // The view itself was connected before: the cell has its value by now.
    connect(view->itemDelegate(), &QAbstractItemDelegate::commitData, this, &TableEditing::fillColumn);
}

void TableEditing::install(QWidget* editor)
{
    for (auto* view : editor->findChildren<QAbstractItemView*>()) {
        const bool isTable = qobject_cast<QTreeView*>(view) || qobject_cast<QTableView*>(view);
        if (isTable && !view->property(INSTALLED).toBool())
            new TableEditing(view);
    }
}

bool TableEditing::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPaste = event->type() == QEvent::KeyPress &&
                         static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) &&
                         m_view->editTriggers() != QAbstractItemView::NoEditTriggers;
    return (isPaste && paste()) || QObject::eventFilter(watched, event);
}

bool TableEditing::paste()
{
    const QPersistentModelIndex first = m_view->currentIndex();
    const QVector<QStringList> rows = VelmoGui::spreadsheetRows(QApplication::clipboard()->text());
    if (!first.isValid() || rows.isEmpty())
        return false;
    QAbstractItemModel* const model = m_view->model();
    const QVector<int> columns = columnsFrom(m_view, first.column());
    bool isChanged = false;
    for (int row = 0; row < rows.size(); ++row) {
        for (int cell = 0; cell < std::min(rows[row].size(), columns.size()); ++cell)
            isChanged = setCell(model, model->index(first.row() + row, columns[cell], first.parent()),
                                rows[row][cell]) ||
                        isChanged;
    }
    return isChanged;
}

void TableEditing::fillColumn(QWidget* editor)
{
    // Another cell may be the current one already.
    const QModelIndex edited = m_view->indexAt(editor->geometry().center());
    const QItemSelectionModel* const selection = m_view->selectionModel();
    if (!selection || !selection->isSelected(edited))
        return;
    const QVariant value = edited.data(Qt::EditRole);
    QVector<QPersistentModelIndex> cells;
    for (const QModelIndex& index : selection->selectedIndexes()) {
        if (index.column() == edited.column() && index != edited)
            cells.append(index);
    }
    for (const QPersistentModelIndex& cell : qAsConst(cells))
        setCell(m_view->model(), cell, value);
}
