#pragma once

#include "jedvepb_export.h"

#include <QStyledItemDelegate>

namespace JEDVEPLUGIN {

/// Delegate for views of a SelectableResourceModel, also behind one proxy model: the spin box that edits a
/// count goes from 0 to the maximum that the row has when editing starts. Other editors are those of the
/// base.
class JEDVEPB_EXPORT SelectableResourceItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// \param parent  owner, may be null
    explicit SelectableResourceItemDelegate(QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace JEDVEPLUGIN
