#include "lineedittooltipadapter.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

namespace JEDVEPLUGIN {

LineEditTooltipAdapter::LineEditTooltipAdapter(QObject* parent)
    : QObject(parent)
{
}

void LineEditTooltipAdapter::addLineEdit(QLineEdit* edit)
{
    if (edit)
        edit->installEventFilter(this);
}

void LineEditTooltipAdapter::removeLineEdit(QLineEdit* edit)
{
    if (edit)
        edit->removeEventFilter(this);
}

void LineEditTooltipAdapter::addAllLineEdits(QWidget* widget)
{
    if (!widget)
        return;
    addLineEdit(qobject_cast<QLineEdit*>(widget));
    for (QLineEdit* edit : widget->findChildren<QLineEdit*>())
        addLineEdit(edit);
}

bool LineEditTooltipAdapter::eventFilter(QObject* watched, QEvent* event)
{
    auto* const edit = qobject_cast<QLineEdit*>(watched);
    const auto* const help =
        event->type() == QEvent::ToolTip ? dynamic_cast<const QHelpEvent*>(event) : nullptr;
    if (!edit || !help)
        return false;
    const QString text = edit->text();
    const bool fits = QFontMetrics(edit->font()).horizontalAdvance(text) <= edit->width();
    QToolTip::showText(help->globalPos(), fits ? edit->toolTip() : text, edit);
    return true;
}

} // namespace JEDVEPLUGIN
