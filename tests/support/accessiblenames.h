#pragma once

#include <QAccessible>
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

} // namespace JedTest
