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
    /// Disabled, with an empty menu.
    /// \param parent  owner, may be null
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
    /// No tabs, no entries, not read-only.
    /// \param parent  owner, may be null
    explicit TabWidgetEx(QWidget* parent);

    /// Adds an entry to the button's menu. The first one enables the button, save while the widget is read-only.
    /// \param text    what si_addTab() tells when the entry is chosen; may occur several times
    /// \param sorted  true: in front of the first entry whose text is greater, by the codes of the characters ("B"
    ///                comes before "a"); false: at the end
    void appendAddAction(const QString& text, bool sorted);
    /// The same with an icon.
    void appendAddAction(const QString& text, const QIcon& icon, bool sorted);
    /// Removes all entries of exactly that text. Their actions live on, without effect, as children of the menu.
    void removeAddAction(const QString& text);
    /// Whether there is an entry of exactly that text.
    bool hasAddAction(const QString& text) const;
    /// Deletes all entries.
    void clearAddActions();
    /// Shows or hides the close button of a tab, which keeps the slot for it. An index that does not exist is
    /// ignored.
    void setTabClosable(int index, bool closable);
    /// Read-only: neither can tabs be added nor closed. Concerns the tabs that there are now; one that is added
    /// meanwhile can be closed until setTabClosable() or the next change says otherwise.
    void setReadOnly(bool readOnly);

signals:
    /// The user has chosen what to add.
    void si_addTab(const QString& text);

private:
    void insertAddAction(QMenu* menu, QAction* action, bool sorted);
    void enableCloseButton(QWidget* button);
    void disableCloseButton(QWidget* button);

    TABWIDGET_INTERNAL::AddButton* addButton; // Child of this widget.
    QSignalMapper signalMapper;               // From each entry to its text.
    bool readOnly;
};

} // namespace VelmoGui
