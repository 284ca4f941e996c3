#pragma once

#include <QWidget>

class QLabel;
class QStackedWidget;

namespace JEDVEPLUGIN {
class ISubSetting;
}

/// Shows the editor widget of the selected setting below its name. The widgets stay their settings' own.
class EditorPane : public QWidget
{
    Q_OBJECT
public:
    explicit EditorPane(QWidget* parent = nullptr);

    /// \param setting  may be null: then \p text is shown instead
    void show(JEDVEPLUGIN::ISubSetting* setting, const QString& text);
    /// Gives all widgets back to their settings.
    void clear();

private:
    QLabel* m_icon;
    QLabel* m_title;
    QLabel* m_text;
    QStackedWidget* m_stack;
};
