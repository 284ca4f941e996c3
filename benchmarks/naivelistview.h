#pragma once

#include <QKeyEvent>
#include <QSet>
#include <QTreeView>

#include <algorithm>

/// The list view in its most straightforward form: what the tree view does on its own, the current row
/// repainted cell by cell, the Delete key by way of every selected index. Yardstick of the benchmark and
/// oracle of the random test.
class NaiveListView : public QTreeView
{
public:
    struct Run
    {
        int firstRow;
        int rowCount;
        QModelIndex parent;
    };

    NaiveListView(QWidget* parent, bool, bool boldCurrentRow)
        : QTreeView(parent)
        , m_boldCurrentRow(boldCurrentRow)
    {
        setSortingEnabled(false);
        setRootIsDecorated(false);
    }

    QList<Run> runsToRemove() const
    {
        QList<Run> runs;
        const QModelIndexList indexes = selectedIndexes();
        QSet<int> rowSet;
        for (const QModelIndex& index : indexes)
            rowSet.insert(index.row());
        QList<int> rows = rowSet.values();
        std::sort(rows.begin(), rows.end());
        for (int row : rows) {
            if (runs.isEmpty() || row != runs.last().firstRow + runs.last().rowCount)
                runs.append({row, 0, indexes.first().parent()});
            ++runs.last().rowCount;
        }
        return runs;
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Delete && model()) {
            const QList<Run> runs = runsToRemove();
            for (int i = runs.size() - 1; i >= 0; --i)
                model()->removeRows(runs.at(i).firstRow, runs.at(i).rowCount, runs.at(i).parent);
        }
        QTreeView::keyPressEvent(event);
    }

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override
    {
        for (int column = 0; column < model()->columnCount(previous.parent()); ++column)
            update(model()->index(previous.row(), column, previous.parent()));
        if (current.isValid())
            scrollTo(current, QAbstractItemView::EnsureVisible);
    }

    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override
    {
        QStyleOptionViewItem rowOption = option;
        if (m_boldCurrentRow && index.row() == currentIndex().row())
            rowOption.font.setBold(true);
        QTreeView::drawRow(painter, rowOption, index);
    }

private:
    bool m_boldCurrentRow;
};
