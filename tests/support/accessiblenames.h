#pragma once

#include <QAccessible>
#include <QLabel>
#include <QStringList>
#include <QWidget>

namespace JedTest {

/// Class and object name of each control at or below the widget that takes the focus but has no name for a
/// screen reader.
inline QStringList namelessControls(QWidget* widget)
{
    QStringList result;
    QList<QWidget*> controls = widget->findChildren<QWidget*>();
    controls.prepend(widget);
    for (QWidget* control : qAsConst(controls)) {
        // Parts of a control hand the focus on to it; the list of a combo box is a window of its own.
        if (control->focusPolicy() == Qt::NoFocus || control->focusProxy() ||
            control->window() != widget->window() || control->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(control);
        if (!element || !element->text(QAccessible::Name).isEmpty())
            continue;
        result << QStringLiteral("%1 %2").arg(control->metaObject()->className(), control->objectName());
    }
    return result;
}

/// The controls at or below the widget that Tab leads to, in that order.
inline QList<QWidget*> tabChain(QWidget* widget)
{
    QList<QWidget*> result;
    const QWidget* const window = widget->window();
    QWidget* next = window->nextInFocusChain();
    for (; next != window; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && !next->focusProxy() && next->isEnabled() &&
            next->window() == window && next->isVisibleTo(window) &&
            (next == widget || widget->isAncestorOf(next)))
            result << next;
    }
    return result;
}

/// Where Tab jumps against the eye: to a control that stands above the one before it and not to the right of it.
inline QStringList tabJumps(QWidget* widget)
{
    QStringList result;
    const QWidget* const window = widget->window();
    const QList<QWidget*> chain = tabChain(widget);
    for (int i = 1; i < chain.size(); ++i) {
        const QRect before(chain[i - 1]->mapTo(window, QPoint()), chain[i - 1]->size());
        const QRect after(chain[i]->mapTo(window, QPoint()), chain[i]->size());
        if (after.bottom() <= before.top() && after.left() < before.right())
            result << QStringLiteral("%1 after %2").arg(chain[i]->objectName(), chain[i - 1]->objectName());
    }
    return result;
}

/// Texts beside fields that belong to none of them: a screen reader does not read them with the field.
inline QStringList strayLabels(QWidget* widget)
{
    QStringList result;
    for (const QLabel* label : widget->findChildren<QLabel*>()) {
        if (!label->text().isEmpty() && !label->buddy())
            result << label->text();
    }
    return result;
}

} // namespace JedTest
