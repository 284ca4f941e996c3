#include "frequencylistview.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <memory>
#include <vector>

namespace JEDVEPLUGIN {

namespace {

struct RowSpan
{
    int first;
    int last;
};

/// The same rows in ascending order, with a gap between any two spans.
std::vector<RowSpan> sortedAndJoined(std::vector<RowSpan> spans)
{
    std::sort(spans.begin(), spans.end(),
              [](RowSpan left, RowSpan right) { return left.first < right.first; });
    std::vector<RowSpan> joined;
    for (RowSpan span : spans) {
        if (joined.empty() || span.first > joined.back().last + 1)
            joined.push_back(span);
        else
            joined.back().last = std::max(joined.back().last, span.last);
    }
    return joined;
}

} // namespace

FrequencyListView::FrequencyListView(QWidget* parent, bool headerContextMenu, bool boldCurrentRow)
    : QTreeView(parent)
    , m_boldCurrentRow(boldCurrentRow)
{
    setAccessibleName(tr("Frequencies"));
    setSortingEnabled(false);
    setRootIsDecorated(false);
    setEditTriggers(editTriggers() | QAbstractItemView::AnyKeyPressed);
    if (header() && headerContextMenu) {
        header()->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(header(), &QHeaderView::customContextMenuRequested, this,
                &FrequencyListView::slotHeaderContextMenu);
    }
}

void FrequencyListView::setModel(QAbstractItemModel* model)
{
    const QAbstractItemModel* previous = this->model();
    if (model == previous)
        return;
    if (previous && model) {
        // Against the new model, on purpose: only connections left over from an earlier use of it go.
        disconnect(model, &QAbstractItemModel::rowsRemoved, this, &FrequencyListView::_rowsRemoved);
        disconnect(model, &QAbstractItemModel::layoutAboutToBeChanged, this,
                   &FrequencyListView::layoutAboutToChange);
        disconnect(model, &QAbstractItemModel::layoutChanged, this, &FrequencyListView::layoutChanged);
    }
    QTreeView::setModel(model);
    if (model) {
        connect(model, &QAbstractItemModel::rowsRemoved, this, &FrequencyListView::_rowsRemoved);
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this,
                &FrequencyListView::layoutAboutToChange);
        connect(model, &QAbstractItemModel::layoutChanged, this, &FrequencyListView::layoutChanged);
    }
}

void FrequencyListView::setRootIndex(const QModelIndex& index)
{
    if (index == rootIndex())
        return;
    QTreeView::setRootIndex(index);
    emit si_rootIndexChanged(index);
}

void FrequencyListView::reset()
{
    QTreeView::reset();
    // The base leaves laying out to setRootIndex(), which does nothing here when the root stays the same.
    scheduleDelayedItemsLayout();
}

void FrequencyListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    const QPersistentModelIndex shown = current; // whatever the receivers of the signal do to the model
    updateRow(previous);
    emit si_currentFrequencyChanged(current.row(), previous.row());
    if (!shown.isValid())
        return;
    // While rows go, nothing is laid out: only afterwards it is known what brings the current row into view.
    if (state() == QAbstractItemView::CollapsingState) {
        QMetaObject::invokeMethod(this, &FrequencyListView::scrollToCurrent, Qt::QueuedConnection);
        return;
    }
    scrollTo(shown, QAbstractItemView::EnsureVisible);
    updateRow(shown); // which may have become bold without a change of the selection
}

void FrequencyListView::layoutAboutToChange()
{
    emit si_currentFrequencyChanged(-1, currentIndex().row());
}

void FrequencyListView::layoutChanged()
{
    emit si_currentFrequencyChanged(currentIndex().row(), -1);
    emit si_dataChanged();
}

void FrequencyListView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                    const QVector<int>& roles)
{
    QTreeView::dataChanged(topLeft, bottomRight, roles);
    emit si_dataChanged();
}

void FrequencyListView::slotHeaderContextMenu(const QPoint& pos)
{
    if (!header() || !header()->model())
        return;

    const bool mayHide = header()->count() - header()->hiddenSectionCount() >= 2;
    std::vector<std::unique_ptr<QAction>> owners;
    QList<QAction*> actions;
    for (int section = 0; section < header()->count(); ++section) {
        const bool visible = !header()->isSectionHidden(section);
        const QVariant title = header()->model()->headerData(section, header()->orientation());
        owners.push_back(std::make_unique<QAction>(title.toString()));
        actions << owners.back().get();
        actions.last()->setCheckable(true);
        actions.last()->setChecked(visible);
        actions.last()->setEnabled(!visible || mayHide);
    }
    if (actions.isEmpty())
        return;

    const QPointer<FrequencyListView> alive(this);
    const int section = actions.indexOf(QMenu::exec(actions, header()->mapToGlobal(pos)));
    if (alive && section >= 0)
        toggleSection(section);
}

void FrequencyListView::_rowsRemoved(const QModelIndex&, int, int)
{
    emit si_dataChanged();
}

void FrequencyListView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && model()) {
        const QPointer<QAbstractItemModel> target = model(); // not whatever a slot may set meanwhile
        const QList<tRowRange> ranges = getRowsToRemove();
        for (auto range = ranges.rbegin(); target && range != ranges.rend(); ++range)
            target->removeRows(range->firstRow, range->rowCount, range->parent);
    }
    QTreeView::keyPressEvent(event);
}

void FrequencyListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    if (!isVisible() || uniformRowHeights()) {
        QTreeView::selectionChanged(selected, deselected);
        return;
    }
    // To find what to paint, the base asks the heights of all rows between the visible and the selected ones.
    executeDelayedItemsLayout();
    setUniformRowHeights(true);
    QTreeView::selectionChanged(selected, deselected);
    setUniformRowHeights(false);
    viewport()->update();
}

void FrequencyListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    QStyleOptionViewItem rowOption = option;
    if (m_boldCurrentRow && index.row() == currentIndex().row())
        rowOption.font.setBold(true);
    QTreeView::drawRow(painter, rowOption, index);
}

QList<FrequencyListView::tRowRange> FrequencyListView::getRowsToRemove()
{
    // By ranges instead of selectedIndexes(), which would list every cell.
    std::vector<RowSpan> spans;
    QModelIndex parent;
    const QItemSelection selection = selectionModel() ? selectionModel()->selection() : QItemSelection();
    for (const QItemSelectionRange& range : selection) {
        if (!isShown(range.parent()))
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!isRowSelected(range, row))
                continue;
            if (spans.empty())
                parent = range.parent();
            if (spans.empty() || row != spans.back().last + 1)
                spans.push_back({row, row});
            spans.back().last = row;
        }
    }

    QList<tRowRange> ranges;
    for (RowSpan span : sortedAndJoined(std::move(spans)))
        ranges << tRowRange{span.first, span.last - span.first + 1, parent};
    return ranges;
}

bool FrequencyListView::isShown(QModelIndex index) const
{
    while (index.isValid() && !isIndexHidden(index))
        index = index.parent();
    return !index.isValid();
}

bool FrequencyListView::isRowSelected(const QItemSelectionRange& range, int row) const
{
    const Qt::ItemFlags needed = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (int column = range.left(); column <= range.right(); ++column) {
        const QModelIndex index = range.model()->index(row, column, range.parent());
        if ((range.model()->flags(index) & needed) == needed && !isIndexHidden(index))
            return true;
    }
    return false;
}

int FrequencyListView::getLastVisibleSection()
{
    if (!header())
        return -1;
    for (int visual = header()->count() - 1; visual >= 0; --visual) {
        const int logical = header()->logicalIndex(visual);
        if (!header()->isSectionHidden(logical))
            return logical;
    }
    return -1;
}

void FrequencyListView::toggleSection(int section)
{
    if (!header()->isSectionHidden(section)) {
        header()->hideSection(section);
        return;
    }
    const int lastVisible = getLastVisibleSection();
    header()->showSection(section);
    // What was stretched to the right edge would keep that width in the middle of the list.
    if (header()->stretchLastSection() && lastVisible != getLastVisibleSection())
        resizeColumnToContents(lastVisible);
}

void FrequencyListView::updateRow(const QModelIndex& index)
{
    if (!model() || !index.isValid() || !isInView(index))
        return;
    const QModelIndex parent = index.parent();
    for (int column = 0; column < model()->columnCount(parent); ++column)
        update(model()->index(index.row(), column, parent));
}

void FrequencyListView::scrollToCurrent()
{
    if (!currentIndex().isValid())
        return;
    scrollTo(currentIndex(), QAbstractItemView::EnsureVisible);
    updateRow(currentIndex());
}

bool FrequencyListView::isInView(const QModelIndex& index)
{
    const int section = getLastVisibleSection();
    if (section < 0)
        return false;
    // Down from the topmost row: to find a distant one, the base asks the heights of all rows in between.
    QModelIndex shown = indexAt(QPoint(header()->sectionViewportPosition(section), 0));
    while (shown.isValid() && visualRect(shown).top() < viewport()->height()) {
        if (shown.row() == index.row() && shown.parent() == index.parent())
            return true;
        shown = indexBelow(shown);
    }
    return false;
}

} // namespace JEDVEPLUGIN
