#include "filterintegerrangeproxymodel.h"

namespace JEDVEPLUGIN {

FilterIntegerRangeProxyModel::FilterIntegerRangeProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

void FilterIntegerRangeProxyModel::enableRangeFilter(bool enable)
{
    m_rangeFilterEnabled = enable;
    invalidateFilter();
}

bool FilterIntegerRangeProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (!QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent))
        return false;
    if (!m_rangeFilterEnabled)
        return true;

    const QAbstractItemModel* source = sourceModel();
    const bool everyColumn = filterKeyColumn() == -1;
    const int first = everyColumn ? 0 : filterKeyColumn();
    const int last = everyColumn ? source->columnCount(sourceParent) - 1 : first;
    for (int column = first; column <= last; ++column) {
        if (!acceptsValue(source->data(source->index(sourceRow, column, sourceParent), filterRole())))
            return false;
    }
    return true;
}

bool FilterIntegerRangeProxyModel::acceptsValue(const QVariant& value) const
{
    bool isInteger = false;
    const int number = value.toInt(&isInteger);
    return !isInteger || (m_rangeMinimum <= number && number <= m_rangeMaximum);
}

} // namespace JEDVEPLUGIN
