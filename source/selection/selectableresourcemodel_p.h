#pragma once

#include "resourcedescription.h"

#include <QHash>
#include <QMap>

#include <vector>

namespace JEDVEPLUGIN {

/// The int that is nearest to \p number.
int saturated(qint64 number);

/// The resources behind the table, and the arithmetic of their counts.
///
/// What the counts and reservations of a subtree have left of its root's quantity is kept for each row, so
/// that a change costs no more than the way up: the maximum of a resource is the least that is left of it
/// and of its ancestors, plus its own count.
class SelectableResourceModelPrivate
{
public:
    using DescriptionPtr = std::shared_ptr<ResourceDescription>;

    struct SelectableResource
    {
        QList<std::shared_ptr<SelectableResource>> children; // in the order in which they were attached
        std::weak_ptr<SelectableResource> parent;            // empty for a root
        DescriptionPtr description;                          // never null
        int count = 0;                                       // below 0 only after a reservation
        bool enabled = true;
        int reservationCount = 0; // 0 to the quantity
    };
    using ResourcePtr = std::shared_ptr<SelectableResource>;

    SelectableResourceModelPrivate() = default;
    ~SelectableResourceModelPrivate();
    Q_DISABLE_COPY(SelectableResourceModelPrivate)

    void setResources(const QList<DescriptionPtr>& descriptions);

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    const SelectableResource& at(int row) const { return *m_rows[row]; }
    /// \return -1 for a root
    int parentRow(int row) const { return m_balances[row].parentRow; }
    /// \return -1 if it is unknown
    int findResourceIndex(const DescriptionPtr& description) const;
    /// \return null if it is unknown
    const SelectableResource* findResource(const DescriptionPtr& description) const;

    /// Costs the way up to the root.
    int getMaxCount(int row) const;
    /// The same for questions about many rows: the first one after a change costs a pass over all of them.
    int getCachedMaxCount(int row) const;
    bool isCreateable(int row) const;
    /// Counts of each row and of all rows below it.
    std::vector<qint64> occupiedCounts() const;

    /// \return false, with nothing changed, if \p count is not within 0 to the maximum
    bool setCount(int row, int count);
    /// Makes the count the maximum, unless that is below 0.
    void selectMaximum(int row);
    /// Lowers the count to the maximum where it has to.
    /// \return false, with nothing changed, if \p count is not within 0 to the quantity
    bool setReservationCount(int row, int count);
    void setEnabled(int row, bool enabled);

private:
    /// Kept apart from the resources, close together for the way up to the root.
    struct Balance
    {
        qint64 remaining; // the quantity without the counts and reservations of the row and of all below it
        int parentRow;    // -1 for a root
    };
    using ResourceMap = QMap<QString, ResourcePtr>;

    void clear();
    void addResource(const ResourcePtr& root, ResourceMap* resources);
    void storeCount(int row, int count);
    void take(int row, qint64 instances);

    std::vector<ResourcePtr> m_rows; // each resource followed by its subtree
    std::vector<Balance> m_balances; // one per row
    QHash<const ResourceDescription*, int> m_rowsByDescription;
    mutable std::vector<qint64> m_chainMinima; // what is left of the scarcest quantity up to the root
    mutable bool m_chainMinimaValid = false;
};

} // namespace JEDVEPLUGIN
