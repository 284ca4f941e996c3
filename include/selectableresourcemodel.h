#pragma once

#include "jedvepb_export.h"

#include <QAbstractTableModel>
#include <QList>

#include <memory>

namespace JEDVEPLUGIN {

class ResourceDescription;
class SelectableResourceModelPrivate;

/// Table in which a user chooses how many instances of each resource (a receiver, a processing unit) a job
/// shall use. GUI thread only.
///
/// The resources form trees by their parent base resource; a row per resource, each tree in pre-order. A
/// parent and all resources below it share the parent's quantity: the maximum of a resource is the smallest
/// number that is left of a quantity on the way from it up to its root, the counts of all others and all
/// reservations subtracted. It falls below 0 when these exceed a quantity. The maximum of a disabled
/// resource is 0.
///
/// Column 0 "Base Resource", column 1 "Count" (editable from 0 to the maximum), column 2 "Max Count". The
/// vertical header has a check box per row, checked while the count is at least 1. Each change may move the
/// maxima of other rows: dataChanged() tells the whole table, headerDataChanged() the rows from the first
/// on.
///
/// Resources are known by the description object, not by its contents. For an unknown one the getters
/// return 0 or false, the setters return false; nothing is thrown.
class JEDVEPB_EXPORT SelectableResourceModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    /// An empty table.
    /// \param parent  owner, may be null
    explicit SelectableResourceModel(QObject* parent);
    /// As above, then setResources().
    SelectableResourceModel(const QList<std::shared_ptr<ResourceDescription>>& resources, QObject* parent);
    ~SelectableResourceModel() override;

    /// Replaces all rows, as a model reset; counts and reservations are 0, everything is enabled.
    ///
    /// A parent is of the same type as its children. A resource whose parent is missing, is itself or is one
    /// of its own descendants becomes a root, which is traced. Of several descriptions of the same type and
    /// base resource the last one counts; null ones are left out.
    void setResources(const QList<std::shared_ptr<ResourceDescription>>& resources);
    /// The descriptions in row order.
    QList<std::shared_ptr<ResourceDescription>> getResources();
    /// Those with a count above 0, in row order, each once.
    QList<std::shared_ptr<ResourceDescription>> getSelectedResources();
    /// Those that are enabled and whose count is below a maximum of at least 1, in row order, each once.
    QList<std::shared_ptr<ResourceDescription>> getCreateableResources();
    /// A copy of the table as a tree, for looking at: "Base Resource", "Count", "Max Count", "Reservation
    /// Count", "Occupied" (the counts of the resource and of all below it), "Type", "Quantity", "Enabled"
    /// ("true" or "false"). Nothing in it is editable, and it does not follow later changes.
    /// \param parent  owner of the copy; if null the caller owns it
    QAbstractItemModel* getHierarchicalModel(QObject* parent);

    /// Whether it is enabled and its maximum is above 0.
    bool isSelectable(std::shared_ptr<ResourceDescription> description) const;
    int getMaxCount(std::shared_ptr<ResourceDescription> description) const;
    /// Raises the count by \p n, at most to the maximum.
    /// \return false, with nothing changed, if that is the count that it has or is below 0
    bool selectResource(std::shared_ptr<ResourceDescription> description, int n);
    /// Lowers the count by \p n, at most to 0; -1 lowers it to 0.
    /// \return false, with nothing changed, if that is the count that it has or is above the maximum
    bool unselectResource(std::shared_ptr<ResourceDescription> description, int n);
    /// \return false, with nothing changed, if the count is \p n already or \p n is not within 0 to the
    ///         maximum
    bool setSelectionCount(std::shared_ptr<ResourceDescription> description, int n);
    /// \return the count; for a null description the sum of all counts
    int getSelectionCount(std::shared_ptr<ResourceDescription> description) const;
    /// Holds back \p n instances for other purposes. A count that is above the maximum then is lowered to
    /// it, below 0 when the maximum is.
    /// \return false, with nothing changed, if it is \p n already or not within 0 to the resource's own
    ///         quantity
    bool setReservationCount(std::shared_ptr<ResourceDescription> description, int n);
    int getReservationCount(std::shared_ptr<ResourceDescription> description) const;
    /// Sets the count to 0 and the maximum with it. The reservation stays.
    void disableResource(std::shared_ptr<ResourceDescription> description);
    void enableResource(std::shared_ptr<ResourceDescription> description);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Base resource, count and maximum for Qt::DisplayRole and Qt::EditRole, otherwise nothing.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Sets the count: column 1, Qt::EditRole, as setSelectionCount() does.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Toggles a row by its check box (vertical, Qt::CheckStateRole). Qt::Checked makes a count of 0 a
    /// count of 1; any other value, and Qt::Checked on a row that is checked already, makes it 0.
    /// \return false, with nothing changed, if the maximum is below the new count or \p value is null
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                       int role = Qt::EditRole) override;
    /// Selectable; enabled, and editable in column 1, while isSelectable().
    Qt::ItemFlags flags(const QModelIndex& index) const override;

public slots:
    /// Makes every count 1 whose maximum is at least 1, also a higher one.
    void slotSelectAll();
    /// Makes every count, in row order, the maximum that the rows before have left.
    void slotSelectAllMax();
    /// Makes every count 0, save where the maximum is below 0.
    void slotDeselectAll();

private:
    bool writeCount(int row, qint64 count);
    void switchResource(int row, bool enabled);
    void selectAllImplementation(int n);
    void refreshViews(int row);

    std::unique_ptr<SelectableResourceModelPrivate> d;
};

} // namespace JEDVEPLUGIN
