#include "checkedheaderview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace JEDVEPLUGIN {

namespace {
const int EXTRA_WIDTH = 12; // pixels beside the check box, so that neighbouring boxes do not touch
} // namespace

CheckedHeaderView::CheckedHeaderView(Qt::Orientation orientation, QWidget* parent)
    : QHeaderView(orientation, parent)
{
}

void CheckedHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();

    QStyleOptionButton option;
    option.rect = checkBoxRect(rect);
    option.state = isOn(logicalIndex) ? QStyle::State_On : QStyle::State_Off;
    option.state.setFlag(QStyle::State_Enabled, isEnabled());
    style()->drawControl(QStyle::CE_CheckBox, &option, painter);
}

void CheckedHeaderView::mousePressEvent(QMouseEvent* event)
{
    const int section = logicalIndexAt(event->pos());
    if (!isEnabled() || !model() || section < 0)
        return;
    const Qt::CheckState state = isOn(section) ? Qt::Unchecked : Qt::Checked;
    model()->setHeaderData(section, orientation(), static_cast<int>(state), Qt::CheckStateRole);
}

QSize CheckedHeaderView::sectionSizeFromContents(int) const
{
    const QStyleOptionButton option;
    const QSize box = style()->sizeFromContents(QStyle::CT_CheckBox, &option, QSize());
    return box + QSize(EXTRA_WIDTH, 0);
}

bool CheckedHeaderView::isOn(int logicalIndex) const
{
    if (!model())
        return false;
    const QVariant state = model()->headerData(logicalIndex, orientation(), Qt::CheckStateRole);
    return state.isValid() && !state.isNull() && state.toInt() == Qt::Checked;
}

QRect CheckedHeaderView::checkBoxRect(const QRect& sectionRect) const
{
    const QStyleOptionButton option;
    QRect box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option);
    box.moveTo(sectionRect.left() + (sectionRect.width() - box.width()) / 2,
               sectionRect.top() + (sectionRect.height() - box.height()) / 2);
    return box;
}

} // namespace JEDVEPLUGIN
