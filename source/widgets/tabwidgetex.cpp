#include "tabwidgetex.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>

namespace VelmoGui {

namespace {
constexpr int ICON_EXTENT = 16;
constexpr QTabBar::ButtonPosition SIDES[] = {QTabBar::RightSide, QTabBar::LeftSide};
} // namespace

namespace TABWIDGET_INTERNAL {

AddButton::AddButton(TabWidgetEx* parent)
    : QPushButton(parent)
    , normalIcon(QStringLiteral(":/JobEditorVEPluginBase/Icons/add_tab_normal.png"))
    , activeIcon(QStringLiteral(":/JobEditorVEPluginBase/Icons/add_tab_active.png"))
{
    setToolTip(tr("Add Tab"));
    setAccessibleName(tr("Add Tab"));
    setIcon(normalIcon);
    // An icon of a file that is not there is not null, its pixmap is.
    if (normalIcon.pixmap(ICON_EXTENT).isNull())
        setText(tr("Add"));
    setFlat(true);
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("AddButton_Menu"));
    setMenu(menu);
    setEnabled(false);
    setMinimumSize(sizeHint());
    setAutoDefault(false);
    setDefault(false);
    setStyleSheet(QStringLiteral("QPushButton::menu-indicator{ image: url(none.jpg); }"));
}

void AddButton::enterEvent(QEvent* event)
{
    if (isEnabled())
        setIcon(activeIcon);
    QPushButton::enterEvent(event);
}

void AddButton::leaveEvent(QEvent* event)
{
    setIcon(normalIcon);
    QPushButton::leaveEvent(event);
}

} // namespace TABWIDGET_INTERNAL

using TABWIDGET_INTERNAL::AddButton;

TabWidgetEx::TabWidgetEx(QWidget* parent)
    : QTabWidget(parent)
    , addButton(nullptr)
    , readOnly(false)
{
    setObjectName(QStringLiteral("JEDTabWidget"));
    setTabsClosable(true);
    setMovable(true);
    addButton = new AddButton(this);
    addButton->setObjectName(QStringLiteral("JEDTabWidget_AddButton"));
    setCornerWidget(addButton, Qt::TopLeftCorner);
    connect(&signalMapper, SIGNAL(mapped(const QString&)), this, SIGNAL(si_addTab(const QString&)));
}

void TabWidgetEx::appendAddAction(const QString& text, bool sorted)
{
    if (QMenu* const menu = addButton->menu())
        insertAddAction(menu, new QAction(text, menu), sorted);
}

void TabWidgetEx::appendAddAction(const QString& text, const QIcon& icon, bool sorted)
{
    if (QMenu* const menu = addButton->menu())
        insertAddAction(menu, new QAction(icon, text, menu), sorted);
}

void TabWidgetEx::removeAddAction(const QString& text)
{
    QMenu* const menu = addButton->menu();
    if (!menu)
        return;
    for (QAction* action : menu->actions()) {
        if (action->text() != text)
            continue;
        signalMapper.removeMappings(action);
        menu->removeAction(action);
    }
    addButton->setEnabled(!menu->isEmpty() && !readOnly);
}

bool TabWidgetEx::hasAddAction(const QString& text) const
{
    const QMenu* const menu = addButton->menu();
    if (!menu)
        return false;
    for (const QAction* action : menu->actions()) {
        if (action->text() == text)
            return true;
    }
    return false;
}

void TabWidgetEx::clearAddActions()
{
    QMenu* const menu = addButton->menu();
    if (!menu)
        return;
    for (QAction* action : menu->actions())
        signalMapper.removeMappings(action);
    menu->clear();
    addButton->setEnabled(false);
}

void TabWidgetEx::setTabClosable(int index, bool closable)
{
    if (index < 0 || index >= count())
        return;
    for (const QTabBar::ButtonPosition side : SIDES) {
        QWidget* const button = tabBar()->tabButton(index, side);
        if (!button)
            continue;
        button->resize(closable ? button->sizeHint() : QSize(0, 0));
        button->setEnabled(!readOnly);
    }
    // Makes the tab bar lay the tab out anew.
    setTabText(index, tabText(index));
}

void TabWidgetEx::setReadOnly(bool on)
{
    if (readOnly == on)
        return;
    for (int index = 0; index < count(); ++index) {
        for (const QTabBar::ButtonPosition side : SIDES) {
            QWidget* const button = tabBar()->tabButton(index, side);
            if (on)
                disableCloseButton(button);
            else
                enableCloseButton(button);
        }
    }
    const QMenu* const menu = addButton->menu();
    addButton->setEnabled(!on && menu && !menu->isEmpty());
    readOnly = on;
}

void TabWidgetEx::insertAddAction(QMenu* menu, QAction* action, bool sorted)
{
    QAction* before = nullptr;
    if (sorted) {
        for (QAction* present : menu->actions()) {
            if (action->text() < present->text()) {
                before = present;
                break;
            }
        }
    }
    menu->insertAction(before, action);
    connect(action, SIGNAL(triggered()), &signalMapper, SLOT(map()));
    signalMapper.setMapping(action, action->text());
    addButton->setEnabled(!readOnly);
}

void TabWidgetEx::enableCloseButton(QWidget* button)
{
    if (button)
        button->setEnabled(true);
}

void TabWidgetEx::disableCloseButton(QWidget* button)
{
    if (button)
        button->setEnabled(false);
}

} // namespace VelmoGui
