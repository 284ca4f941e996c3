#include "importmodel.h"

#include <algorithm>
#include <QApplication>
#include <QIcon>
#include <QStyle>

using Session::ListPreview;

void ImportModel::setPreview(const ListPreview& preview)
{
    beginResetModel();
    m_preview = preview;
    m_isChosen.clear();
    for (const ListPreview::Row& row : preview.rows)
        m_isChosen.append(row.entry >= 0);
    m_refusedCount = std::count(m_isChosen.cbegin(), m_isChosen.cend(), false);
    endResetModel();
    emit choiceChanged();
}

QVector<int> ImportModel::chosenEntries() const
{
    QVector<int> entries;
    for (int row = 0; row < m_isChosen.size(); ++row) {
        if (m_isChosen.at(row))
            entries.append(m_preview.rows.at(row).entry);
    }
    return entries;
}

int ImportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_preview.rows.size();
}

int ImportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(COLUMN_COUNT);
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const ListPreview::Row& row = m_preview.rows.at(index.row());
    if (role == Qt::CheckStateRole && index.column() == LINE && row.entry >= 0)
        return m_isChosen.at(index.row()) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::DecorationRole && index.column() == BECOMES && row.entry < 0)
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const QString texts[] = {QString::number(row.line), row.name, row.source, row.becomes};
    return texts[index.column()];
}

bool ImportModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !(flags(index) & Qt::ItemIsUserCheckable))
        return false;
    m_isChosen[index.row()] = value.toInt() == Qt::Checked;
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit choiceChanged();
    return true;
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QString texts[] = {tr("Line"), tr("Name"), tr("In the list"), tr("Becomes")};
    return section >= 0 && section < COLUMN_COUNT ? texts[section] : QVariant();
}

Qt::ItemFlags ImportModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isTaken = m_preview.rows.at(index.row()).entry >= 0;
    Qt::ItemFlags result = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    result.setFlag(Qt::ItemIsUserCheckable, isTaken && index.column() == LINE);
    return result;
}
