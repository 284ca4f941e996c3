#pragma once

#include "jedvepb_export.h"

#include <QSortFilterProxyModel>

namespace JEDVEPLUGIN {

/// Filter that can also hide rows by a closed range of integers. The range is tested on the filter key
/// column, or on every column when that is -1, with the data for filterRole(): a row stays when each of them
/// is within the range or does not convert to an int. What the base class filters stays filtered. GUI thread
/// only.
class JEDVEPB_EXPORT FilterIntegerRangeProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    /// The range filter is disabled, its range is 0 to 0.
    /// \param parent  owner, may be null
    explicit FilterIntegerRangeProxyModel(QObject* parent);

    /// Sets the range and switches the range filter off; enableRangeFilter() switches it on.
    /// \param minimum  smallest value that stays
    /// \param maximum  largest value that stays; below \p minimum no integer stays
    void setRange(int minimum, int maximum)
    {
        m_rangeFilterEnabled = false;
        m_rangeMinimum = minimum;
        m_rangeMaximum = maximum;
        invalidateFilter();
    }
    bool isRangeFilterEnabled() const { return m_rangeFilterEnabled; }

public slots:
    /// Switches the range filter and filters anew.
    void enableRangeFilter(bool enable = true);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    bool acceptsValue(const QVariant& value) const;

    bool m_rangeFilterEnabled = false;
    int m_rangeMinimum = 0;
    int m_rangeMaximum = 0;
};

} // namespace JEDVEPLUGIN
