#include "selectableresourcemodel.h"

#include "selectableresourcecolumns_p.h"
#include "selectableresourcemodel_p.h"

#include <QStandardItemModel>

namespace JEDVEPLUGIN {

namespace {

const int SELECT_MAXIMUM = -1; // instead of a number: as many as can be had

const int TREE_COLUMNS = 8;

const char* const HEADERS[COLUMNS] = {
    QT_TRANSLATE_NOOP("JEDVEPLUGIN::SelectableResourceModel", "Base Resource"),
    QT_TRANSLATE_NOOP("JEDVEPLUGIN::SelectableResourceModel", "Count"),
    QT_TRANSLATE_NOOP("JEDVEPLUGIN::SelectableResourceModel", "Max Count"),
};

using Private = SelectableResourceModelPrivate;

/// The items of one resource in the columns of the tree.
QList<QStandardItem*> createHierarchialModelRow(const Private& resources, int row, qint64 occupied)
{
    static const QString s_true = QStringLiteral("true");
    static const QString s_false = QStringLiteral("false");
    const Private::SelectableResource& resource = resources.at(row);
    const QString texts[TREE_COLUMNS] = {
        resource.description->getBaseResource(),
        QString::number(resource.count),
        QString::number(resources.getCachedMaxCount(row)),
        QString::number(resource.reservationCount),
        QString::number(occupied),
        resource.description->getType(),
        QString::number(resource.description->getQuantity()),
        resource.enabled ? s_true : s_false,
    };
    QList<QStandardItem*> items;
    items.reserve(TREE_COLUMNS);
    for (const QString& text : texts) {
        items.append(new QStandardItem(text));
        items.last()->setEditable(false);
    }
    return items;
}

bool isRow(const Private& resources, const QModelIndex& index)
{
    return index.isValid() && index.row() < resources.rowCount();
}

template <typename Predicate>
QList<std::shared_ptr<ResourceDescription>> descriptionsWhere(const Private& resources, Predicate isWanted)
{
    QList<std::shared_ptr<ResourceDescription>> descriptions;
    for (int row = 0; row < resources.rowCount(); ++row) {
        if (isWanted(row))
            descriptions.append(resources.at(row).description);
    }
    return descriptions;
}

} // namespace

SelectableResourceModel::SelectableResourceModel(QObject* parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<SelectableResourceModelPrivate>())
{
}

SelectableResourceModel::SelectableResourceModel(const QList<std::shared_ptr<ResourceDescription>>& resources,
                                                 QObject* parent)
    : SelectableResourceModel(parent)
{
    setResources(resources);
}

SelectableResourceModel::~SelectableResourceModel() = default;

void SelectableResourceModel::setResources(const QList<std::shared_ptr<ResourceDescription>>& resources)
{
    beginResetModel();
    d->setResources(resources);
    endResetModel();
}

QList<std::shared_ptr<ResourceDescription>> SelectableResourceModel::getResources()
{
    return descriptionsWhere(*d, [](int) { return true; });
}

QList<std::shared_ptr<ResourceDescription>> SelectableResourceModel::getSelectedResources()
{
    return descriptionsWhere(*d, [this](int row) { return d->at(row).count > 0; });
}

QList<std::shared_ptr<ResourceDescription>> SelectableResourceModel::getCreateableResources()
{
    return descriptionsWhere(*d, [this](int row) { return d->isCreateable(row); });
}

QAbstractItemModel* SelectableResourceModel::getHierarchicalModel(QObject* parent)
{
    const std::vector<qint64> occupied = d->occupiedCounts();
    std::vector<QStandardItem*> firstItems(occupied.size());
    QList<QList<QStandardItem*>> roots;
    for (int row = 0; row < d->rowCount(); ++row) {
        const QList<QStandardItem*> items = createHierarchialModelRow(*d, row, occupied[row]);
        firstItems[row] = items.first();
        if (d->parentRow(row) < 0)
            roots.append(items);
        else
            firstItems[d->parentRow(row)]->appendRow(items);
    }

    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({"Base Resource", "Count", "Max Count", "Reservation Count", "Occupied",
                                      "Type", "Quantity", "Enabled"});
    for (const QList<QStandardItem*>& items : qAsConst(roots))
        model->appendRow(items);
    return model;
}

bool SelectableResourceModel::isSelectable(std::shared_ptr<ResourceDescription> description) const
{
    const int row = d->findResourceIndex(description);
    return row >= 0 && d->getMaxCount(row) > 0; // 0 if it is disabled
}

int SelectableResourceModel::getMaxCount(std::shared_ptr<ResourceDescription> description) const
{
    const int row = d->findResourceIndex(description);
    return row < 0 ? 0 : d->getMaxCount(row);
}

bool SelectableResourceModel::selectResource(std::shared_ptr<ResourceDescription> description, int n)
{
    const int row = d->findResourceIndex(description);
    return row >= 0 && writeCount(row, qMin<qint64>(qint64(d->at(row).count) + n, d->getMaxCount(row)));
}

bool SelectableResourceModel::unselectResource(std::shared_ptr<ResourceDescription> description, int n)
{
    const int row = d->findResourceIndex(description);
    if (row < 0)
        return false;
    return writeCount(row, n == -1 ? 0 : qMax<qint64>(qint64(d->at(row).count) - n, 0));
}

bool SelectableResourceModel::setSelectionCount(std::shared_ptr<ResourceDescription> description, int n)
{
    const int row = d->findResourceIndex(description);
    return row >= 0 && writeCount(row, n);
}

int SelectableResourceModel::getSelectionCount(std::shared_ptr<ResourceDescription> description) const
{
    if (description) {
        const auto* resource = d->findResource(description);
        return resource ? resource->count : 0;
    }
    qint64 sum = 0;
    for (int row = 0; row < d->rowCount(); ++row)
        sum += d->at(row).count;
    return saturated(sum);
}

bool SelectableResourceModel::setReservationCount(std::shared_ptr<ResourceDescription> description, int n)
{
    const int row = d->findResourceIndex(description);
    if (row < 0 || d->at(row).reservationCount == n || !d->setReservationCount(row, n))
        return false;
    refreshViews(row);
    return true;
}

int SelectableResourceModel::getReservationCount(std::shared_ptr<ResourceDescription> description) const
{
    const auto* resource = d->findResource(description);
    return resource ? resource->reservationCount : 0;
}

void SelectableResourceModel::disableResource(std::shared_ptr<ResourceDescription> description)
{
    switchResource(d->findResourceIndex(description), false);
}

void SelectableResourceModel::enableResource(std::shared_ptr<ResourceDescription> description)
{
    switchResource(d->findResourceIndex(description), true);
}

int SelectableResourceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rowCount();
}

int SelectableResourceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMNS;
}

QVariant SelectableResourceModel::data(const QModelIndex& index, int role) const
{
    if (!isRow(*d, index) || (role != Qt::DisplayRole && role != Qt::EditRole))
        return QVariant();
    switch (index.column()) {
    case COLUMN_BASE_RESOURCE:
        return d->at(index.row()).description->getBaseResource();
    case COLUMN_COUNT:
        return d->at(index.row()).count;
    case COLUMN_MAX_COUNT:
        return d->getCachedMaxCount(index.row());
    default:
        return QVariant();
    }
}

bool SelectableResourceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isRow(*d, index) || index.column() != COLUMN_COUNT || role != Qt::EditRole)
        return false;
    const int count = value.toInt();
    if (count == d->at(index.row()).count || !d->setCount(index.row(), count))
        return false;
    refreshViews(index.row());
    return true;
}

QVariant SelectableResourceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < COLUMNS)
        return tr(HEADERS[section]);
    if (orientation == Qt::Vertical && role == Qt::CheckStateRole && section >= 0 && section < d->rowCount())
        return static_cast<int>(d->at(section).count >= 1 ? Qt::Checked : Qt::Unchecked);
    return QVariant();
}

bool SelectableResourceModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                            int role)
{
    if (orientation != Qt::Vertical || role != Qt::CheckStateRole || section < 0 ||
        section >= d->rowCount() || value.isNull())
        return false;
    const bool select = value.toInt() == Qt::Checked && d->at(section).count == 0;
    if (!d->setCount(section, select ? 1 : 0))
        return false;
    refreshViews(section);
    return true;
}

Qt::ItemFlags SelectableResourceModel::flags(const QModelIndex& index) const
{
    if (!isRow(*d, index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable;
    if (d->getCachedMaxCount(index.row()) > 0) {
        flags |= Qt::ItemIsEnabled;
        flags.setFlag(Qt::ItemIsEditable, index.column() == COLUMN_COUNT);
    }
    return flags;
}

void SelectableResourceModel::slotSelectAll()
{
    selectAllImplementation(1);
}

void SelectableResourceModel::slotSelectAllMax()
{
    selectAllImplementation(SELECT_MAXIMUM);
}

void SelectableResourceModel::slotDeselectAll()
{
    selectAllImplementation(0);
}

bool SelectableResourceModel::writeCount(int row, qint64 count)
{
    return setData(index(row, COLUMN_COUNT), saturated(count), Qt::EditRole);
}

void SelectableResourceModel::switchResource(int row, bool enabled)
{
    if (row < 0 || d->at(row).enabled == enabled)
        return;
    d->setEnabled(row, enabled);
    refreshViews(row);
}

void SelectableResourceModel::selectAllImplementation(int n)
{
    // In row order: a parent takes its share of the common quantity before its children.
    for (int row = 0; row < d->rowCount(); ++row) {
        if (n == SELECT_MAXIMUM)
            d->selectMaximum(row);
        else
            d->setCount(row, n);
    }
    refreshViews(-1);
}

void SelectableResourceModel::refreshViews(int row)
{
    const int last = d->rowCount() - 1;
    if (last < 0)
        return;
    emit dataChanged(createIndex(0, 0), createIndex(last, COLUMNS - 1));
    emit headerDataChanged(Qt::Vertical, 0, row == -1 ? last : row);
}

} // namespace JEDVEPLUGIN
