#include "selectableresourceitemdelegate.h"

#include "selectableresourcecolumns_p.h"
#include "selectableresourcemodel.h"

#include <QAbstractProxyModel>
#include <QSpinBox>

namespace JEDVEPLUGIN {

SelectableResourceItemDelegate::SelectableResourceItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

QWidget* SelectableResourceItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                                      const QModelIndex& index) const
{
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    auto* spinBox = qobject_cast<QSpinBox*>(editor);
    if (!spinBox)
        return editor;

    QModelIndex source = index;
    if (const auto* proxy = qobject_cast<const QAbstractProxyModel*>(index.model()))
        source = proxy->mapToSource(index);
    if (qobject_cast<const SelectableResourceModel*>(source.model()) && source.column() == COLUMN_COUNT) {
        spinBox->setMinimum(0);
        spinBox->setMaximum(source.sibling(source.row(), COLUMN_MAX_COUNT).data().toInt());
    }
    return editor;
}

} // namespace JEDVEPLUGIN
