#pragma once

#include "jedvepb_export.h"

#include <QtCore/QSignalMapper>
#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

class QAction;
class QMenu;

namespace VelmoGui {

class TabWidgetEx;

namespace TABWIDGET_INTERNAL {

/// The button of a TabWidgetEx that opens the menu of what can be added. Enabled as long as the menu has entries and
/// the widget is not read-only. GUI thread only.
class JEDVEPB_EXPORT AddButton : public QPushButton
{
    Q_OBJECT
public:
    explicit AddButton(TabWidgetEx* parent);

protected:
    /// The icon is brighter under the mouse, while the button is enabled.
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QIcon normalIcon;
    QIcon activeIcon;
};

} // namespace TABWIDGET_INTERNAL

/// A tab widget with a button in its corner that offers kinds of tabs to add, and with tabs that can be closed one by
/// one. It adds and closes nothing by itself: si_addTab() and tabCloseRequested() ask the owner. GUI thread only.
class JEDVEPB_EXPORT TabWidgetEx : public QTabWidget
{
    Q_OBJECT
public:
    explicit TabWidgetEx(QWidget* parent);

    /// Adds an entry to the button's menu.
    /// \param text    what si_addTab() tells when the entry is chosen
    /// \param sorted  true: in front of the first entry whose text is greater, by the codes of the characters;
    ///                false: at the end
    void appendAddAction(const QString& text, bool sorted);
    void appendAddAction(const QString& text, const QIcon& icon, bool sorted);
    /// Removes all entries of that text.
    void removeAddAction(const QString& text);
    bool hasAddAction(const QString& text) const;
    void clearAddActions();
    /// Shows or hides the close button of a tab. An index that does not exist is ignored.
    void setTabClosable(int index, bool closable);
    /// Read-only: neither can tabs be added nor closed.
    void setReadOnly(bool readOnly);

signals:
    /// The user has chosen what to add.
    void si_addTab(const QString& text);

private:
    void insertAddAction(QMenu* menu, QAction* action, bool sorted);
    void enableCloseButton(QWidget* button);
    void disableCloseButton(QWidget* button);

    TABWIDGET_INTERNAL::AddButton* addButton;
    QSignalMapper signalMapper;
    bool readOnly;
};

} // namespace VelmoGui
