#include "fieldfocus.h"

#include <kit/plugindeclaration.h>
#include <QApplication>
#include <QScrollArea>
#include <QTabWidget>

namespace {
// What the library's sub-job widget calls the fields of a sub-job.
struct SubjobField
{
    QLatin1String field;
    const char* objectName;
};
const SubjobField SUBJOB_FIELDS[] = {
    {QLatin1String("StartupMode"), "subJobWidget_StartupModes"},
    {QLatin1String("ResourceDescription.BaseResource"), "subJobWidget_BaseResource"},
    {QLatin1String("ResourceDescription.RecordLocation"), "subJobWidget_RecordLocation"},
    {QLatin1String("PreClassifier"), "subJobWidget_PreClassifier"},
    {QLatin1String("Detector"), "subjobWidget_DetectorType"},
};

bool isReachable(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled();
}

QWidget* subjobControl(const QWidget* editor, const QString& field)
{
    for (const SubjobField& row : SUBJOB_FIELDS) {
        if (row.field == field)
            return editor->findChild<QWidget*>(QLatin1String(row.objectName));
    }
    return nullptr;
}

// The first control whose name begins so, in the order in which the editor was built.
QWidget* firstControl(const QWidget* editor, const QString& start)
{
    for (QWidget* widget : editor->findChildren<QWidget*>()) {
        if (widget->objectName().startsWith(start) && isReachable(widget))
            return widget;
    }
    return nullptr;
}

QWidget* findControl(const QWidget* editor, const QString& parameterSet, const QString& field)
{
    if (parameterSet == QLatin1String(PluginKit::SUB_JOB))
        return subjobControl(editor, field);
    for (QString path = field; !path.isEmpty(); path = path.section(QLatin1Char('.'), 0, -2)) {
        const QString name = QStringLiteral("%1/%2").arg(parameterSet, path);
        if (auto* const control = editor->findChild<QWidget*>(name))
            return control;
        if (QWidget* const member = firstControl(editor, name + QLatin1Char('.')))
            return member;
    }
    return firstControl(editor, parameterSet + QLatin1Char('/'));
}

// Turns the tabs and scrolls the areas that stand round the control.
void reveal(QWidget* control, const QWidget* editor)
{
    for (QWidget* above = control; above && above != editor; above = above->parentWidget()) {
        // A page lies in the stack of its tab widget.
        QWidget* const stack = above->parentWidget();
        auto* const tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(above) >= 0)
            tabs->setCurrentIndex(tabs->indexOf(above));
    }
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (QWidget* above = control->parentWidget(); above && above != editor; above = above->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(above))
            area->ensureWidgetVisible(control);
    }
}
} // namespace

void focusField(QWidget* editor, const QString& parameterSet, const QString& field)
{
    QWidget* control = findControl(editor, parameterSet, field);
    if (control)
        reveal(control, editor);
    else
        control = editor->nextInFocusChain();
    while (control && editor->isAncestorOf(control) && !isReachable(control))
        control = control->nextInFocusChain();
    (control && editor->isAncestorOf(control) ? control : editor)->setFocus(Qt::OtherFocusReason);
}
