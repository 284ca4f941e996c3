#pragma once

#include "jedvepb_export.h"

#include <QList>
#include <QTreeView>

namespace JEDVEPLUGIN {

/// Tree view used as a flat list of frequencies: the Delete key removes the selected rows from the model, any
/// character key starts editing, the current row can be painted bold, a context menu on the header shows and
/// hides columns. Sorting is off. The rows are those under the root index. Screen readers call it "Frequencies"
/// until it is given another accessible name. GUI thread only.
class JEDVEPB_EXPORT FrequencyListView : public QTreeView
{
    Q_OBJECT
public:
    /// \param parent             owner, may be null
    /// \param headerContextMenu  whether the header has a menu that shows and hides columns; the last visible
    ///                           column cannot be hidden
    /// \param boldCurrentRow     whether the row of the current index is painted bold (under any parent: only
    ///                           row numbers are compared)
    explicit FrequencyListView(QWidget* parent, bool headerContextMenu, bool boldCurrentRow);

    /// Nothing when \p model is set already. A model that was set before stays connected: the view goes on
    /// announcing the rows that it loses and its new layouts.
    /// \param model  not owned, may be null
    void setModel(QAbstractItemModel* model) override;
    /// Nothing when \p index is the root already, otherwise followed by si_rootIndexChanged().
    void setRootIndex(const QModelIndex& index) override;
    /// Takes the model's rows anew. The layout follows with the next event.
    void reset() override;

signals:
    /// The current row has changed from \p prevIndex to \p curIndex; -1 stands for none. A new layout of the
    /// model announces itself by (-1, row) before and (row, -1) after, also when the row stays the same.
    void si_currentFrequencyChanged(int curIndex, int prevIndex);
    /// Data has changed, rows are gone, or the model has a new layout.
    void si_dataChanged();
    /// After the root index has changed.
    void si_rootIndexChanged(const QModelIndex& index);

protected slots:
    /// Paints the previous row anew, emits si_currentFrequencyChanged() and brings a valid current index into
    /// view.
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void layoutAboutToChange();
    void layoutChanged();
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QVector<int>& roles = QVector<int>()) override;
    void slotHeaderContextMenu(const QPoint& pos);
    void _rowsRemoved(const QModelIndex& parent, int first, int last);

protected:
    /// Delete removes every row with a selected cell, the runs of consecutive rows from the last to the
    /// first, one removeRows() each; then, as with any other key, the base has the event.
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    /// A run of consecutive rows under one parent.
    struct tRowRange
    {
        int firstRow;
        int rowCount;
        QModelIndex parent;
    };

    QList<tRowRange> getRowsToRemove();
    bool isShown(QModelIndex index) const;
    bool isRowSelected(const QItemSelectionRange& range, int row) const;
    int getLastVisibleSection();
    void toggleSection(int section);
    void updateRow(const QModelIndex& index);
    bool isInView(const QModelIndex& index);
    void scrollToCurrent();

    bool m_boldCurrentRow;
};

} // namespace JEDVEPLUGIN
