#include "settingtreemodel.h"

#include "jobsession.h"

#include <algorithm>
#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QBrush>
#include <QColor>
#include <QMimeData>
#include <QPixmap>
#include <QSet>
#include <vector>

using JEDVEPLUGIN::ISubSetting;

namespace {
const char* const PLACE_FORMAT = "application/x-jobeditor-setting-place";

// The place of a setting as bytes: its positions from the top, joined by "/", behind the process's own mark.
QByteArray placeBytes(const void* session, const Session::SettingPath& path)
{
    QStringList parts{QString::number(reinterpret_cast<quintptr>(session))};
    for (int position : path)
        parts.append(QString::number(position));
    return parts.join(QLatin1Char('/')).toLatin1();
}

// Black or white, whichever can be read on a background.
QColor readableOn(const QColor& background)
{
    return qGray(background.rgb()) > 140 ? QColor(Qt::black) : QColor(Qt::white);
}

int worstProblem(const ISubSetting& setting)
{
    int worst = -1;
    for (const JEDVEPLUGIN::Problem& problem : setting.problems())
        worst = qMax(worst, int(problem.severity));
    return worst;
}

QString toolTip(const ISubSetting& setting)
{
    QString text = setting.getToolTip();
    for (const JEDVEPLUGIN::Problem& problem : setting.problems())
        text += QLatin1Char('\n') + problem.text;
    return text;
}
} // namespace

namespace Session {

struct SettingTreeModel::Item
{
    ISubSetting* setting = nullptr; // Null: the root, or a sub-job without a plug-in.
    int number = 0;                 // Of a sub-job; 0 below.
    Item* parent = nullptr;
    std::vector<std::unique_ptr<Item>> children;

    Item() = default;
    Item(const Key& key, Item* above)
        : setting(key.first)
        , number(key.second)
        , parent(above)
    {
    }

    Key key() const { return {setting, number}; }

    int row() const
    {
        for (size_t i = 0; parent && i < parent->children.size(); ++i) {
            if (parent->children[i].get() == this)
                return int(i);
        }
        return 0;
    }
};

SettingTreeModel::SettingTreeModel(JobSession* session, QObject* parent)
    : QAbstractItemModel(parent)
    , m_session(session)
{
    connect(session, &JobSession::jobLeaving, this, &SettingTreeModel::clear);
    connect(session, &JobSession::settingLeaving, this, &SettingTreeModel::removeSetting);
    connect(session, &JobSession::jobReplaced, this, &SettingTreeModel::rebuild);
    connect(session, &JobSession::structureChanged, this, [this] { synchronise(); });
    connect(session, &JobSession::settingChanged, this, &SettingTreeModel::tellChanged);
    rebuild();
}

SettingTreeModel::~SettingTreeModel() = default;

ISubSetting* SettingTreeModel::settingOf(const QModelIndex& index) const
{
    return index.isValid() ? itemOf(index)->setting : nullptr;
}

QModelIndex SettingTreeModel::indexOf(ISubSetting* setting) const
{
    const Item* const item = m_bySetting.value(setting);
    return item ? indexOf(item) : QModelIndex();
}

QModelIndex SettingTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, itemOf(parent)->children[size_t(row)].get());
}

QModelIndex SettingTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(itemOf(index)->parent) : QModelIndex();
}

int SettingTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : int(itemOf(parent)->children.size());
}

int SettingTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant SettingTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    ISubSetting* const setting = settingOf(index);
    return setting ? settingData(setting, role) : unclaimedData(index.row(), role);
}

bool SettingTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ISubSetting* const setting = settingOf(index);
    return setting && role == Qt::EditRole && m_session->rename(setting, value.toString());
}

QVariant SettingTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Setting");
    return QVariant();
}

Qt::ItemFlags SettingTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const ISubSetting* const setting = settingOf(index);
    if (!setting)
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (setting->isReadOnly())
        return flags;
    flags |= Qt::ItemIsEditable;
    flags.setFlag(Qt::ItemIsDragEnabled, setting->isDragEnabled());
    flags.setFlag(Qt::ItemIsDropEnabled, setting->isDropEnabled());
    return flags;
}

Qt::DropActions SettingTreeModel::supportedDropActions() const
{
    return Qt::MoveAction | Qt::CopyAction;
}

QStringList SettingTreeModel::mimeTypes() const
{
    return {QLatin1String(PLACE_FORMAT), QStringLiteral("text/plain")};
}

QMimeData* SettingTreeModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.size() != 1 || !settingOf(indexes.first()))
        return nullptr;
    ISubSetting* const setting = settingOf(indexes.first());
    auto* const data = new QMimeData;
    data->setData(QLatin1String(PLACE_FORMAT), placeBytes(m_session, m_session->pathOf(setting)));
    data->setText(m_session->textOf(setting));
    return data;
}

bool SettingTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                       const QModelIndex& parent) const
{
    Q_UNUSED(column)
    if (parent.isValid() && !(flags(parent) & Qt::ItemIsDropEnabled))
        return false;
    int from = -1;
    if (action == Qt::MoveAction)
        return row >= 0 && isMoveWithin(data, parent, &from);
    return action == Qt::CopyAction && data->hasText() && !data->text().isEmpty();
}

bool SettingTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                    const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    int from = -1;
    // The move is done here; a view that got true would take the source's row away.
    if (action == Qt::MoveAction && isMoveWithin(data, parent, &from)) {
        m_session->move(settingOf(parent), from, row);
        return false;
    }
    return m_session->paste(data->text(), settingOf(parent)) != nullptr;
}

void SettingTreeModel::clear()
{
    beginResetModel();
    m_bySetting.clear();
    m_root = std::make_unique<Item>();
    endResetModel();
}

void SettingTreeModel::removeSetting(ISubSetting* setting)
{
    if (Item* const item = m_bySetting.value(setting))
        removeRow(item->parent, item->row());
}

void SettingTreeModel::removeRow(Item* item, int row)
{
    beginRemoveRows(indexOf(item), row, row);
    drop(item->children[size_t(row)].get());
    item->children.erase(item->children.begin() + row);
    endRemoveRows();
}

void SettingTreeModel::rebuild()
{
    beginResetModel();
    m_bySetting.clear();
    m_root = std::make_unique<Item>();
    fill(m_root.get());
    endResetModel();
}

void SettingTreeModel::synchronise()
{
    synchronise(m_root.get(), childrenOf(m_root.get()));
}

// Brings the children of an item to those that are wanted: takes away, moves and puts in, row by row.
void SettingTreeModel::synchronise(Item* item, const QVector<Key>& wanted)
{
    auto& children = item->children;
    const QModelIndex index = indexOf(item);
    const QSet<Key> keys(wanted.cbegin(), wanted.cend());
    for (int row = int(children.size()) - 1; row >= 0; --row) {
        if (keys.contains(children[size_t(row)]->key()))
            continue;
        removeRow(item, row);
    }
    for (int row = 0; row < wanted.size(); ++row) {
        int present = row;
        while (present < int(children.size()) && children[size_t(present)]->key() != wanted[row])
            ++present;
        if (present == int(children.size())) {
            beginInsertRows(index, row, row);
            auto child = std::make_unique<Item>(wanted[row], item);
            fill(child.get());
            children.insert(children.begin() + row, std::move(child));
            endInsertRows();
        } else if (present != row) {
            beginMoveRows(index, present, present, index, row);
            std::rotate(children.begin() + row, children.begin() + present, children.begin() + present + 1);
            endMoveRows();
        }
        if (wanted[row].first)
            synchronise(children[size_t(row)].get(), childrenOf(children[size_t(row)].get()));
    }
}

void SettingTreeModel::fill(Item* item)
{
    if (item->setting)
        m_bySetting.insert(item->setting, item);
    for (const Key& key : childrenOf(item)) {
        auto child = std::make_unique<Item>(key, item);
        fill(child.get());
        item->children.push_back(std::move(child));
    }
}

QVector<SettingTreeModel::Key> SettingTreeModel::childrenOf(const Item* item) const
{
    QVector<Key> result;
    if (item == m_root.get()) {
        for (int i = 0; i < m_session->topLevelCount(); ++i)
            result.append({m_session->topLevel(i).setting, m_session->topLevel(i).number});
    } else if (item->setting) {
        for (int i = 0; i < item->setting->childCount(); ++i)
            result.append({item->setting->child(i), 0});
    }
    return result;
}

void SettingTreeModel::tellChanged(ISubSetting* setting)
{
    const QModelIndex index = indexOf(setting);
    if (index.isValid())
        emit dataChanged(index, index);
}

SettingTreeModel::Item* SettingTreeModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Item*>(index.internalPointer()) : m_root.get();
}

QModelIndex SettingTreeModel::indexOf(const Item* item) const
{
    return item->parent ? createIndex(item->row(), 0, const_cast<Item*>(item)) : QModelIndex();
}

void SettingTreeModel::drop(Item* item)
{
    m_bySetting.remove(item->setting);
    for (const auto& child : item->children)
        drop(child.get());
}

bool SettingTreeModel::isMoveWithin(const QMimeData* data, const QModelIndex& parent, int* from) const
{
    QList<QByteArray> parts = data->data(QLatin1String(PLACE_FORMAT)).split('/');
    if (parts.takeFirst() != placeBytes(m_session, {}) || parts.isEmpty())
        return false;
    SettingPath path;
    for (const QByteArray& part : qAsConst(parts))
        path.append(part.toInt());
    *from = path.takeLast();
    ISubSetting* const setting = settingOf(parent);
    return path == (setting ? m_session->pathOf(setting) : SettingPath());
}

QVariant SettingTreeModel::unclaimedData(int row, int role) const
{
    const JobSession::TopLevel& top = m_session->topLevel(row);
    switch (role) {
    case Qt::DisplayRole:
        return top.subjob.GetName();
    case Qt::ToolTipRole:
        return tr("Kept as it is in the job file. %1").arg(top.reason);
    case Qt::ForegroundRole:
        return QBrush(Qt::gray);
    case PROBLEM_ROLE:
        return int(JEDVEPLUGIN::Problem::SEVERITY_WARNING);
    case CLAIMED_ROLE:
        return false;
    default:
        return QVariant();
    }
}

QVariant SettingTreeModel::settingData(ISubSetting* setting, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return setting->getDisplayName();
    case Qt::ToolTipRole:
        return toolTip(*setting);
    case Qt::DecorationRole: {
        const QPixmap* const pixmap = setting->getPixmap();
        return pixmap ? QVariant(*pixmap) : QVariant();
    }
    case Qt::BackgroundRole:
        return setting->overwriteTreeColor() ? QVariant(QBrush(setting->getTreeColor())) : QVariant();
    case Qt::ForegroundRole:
        return setting->overwriteTreeColor() ? QVariant(QBrush(readableOn(setting->getTreeColor())))
                                             : QVariant();
    case TYPE_ROLE:
        return setting->getSettingType();
    case PROBLEM_ROLE:
        return worstProblem(*setting);
    case CLAIMED_ROLE:
        return true;
    default:
        return QVariant();
    }
}

} // namespace Session
