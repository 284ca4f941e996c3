#pragma once

#include <QString>

class QWidget;

/// Leads the user to a field of a setting's editor: turns the tabs above its control, scrolls to it and gives it the focus.
/// Without a control of its own the field leads to its group, its parameter set or the sub-job's page, in this order,
/// and at last to the first control of the editor.
/// \param editor  the widget of the setting, visible
/// \param field   path below the parameter set; may be empty
void focusField(QWidget* editor, const QString& parameterSet, const QString& field);
