#include "tabwidgetex.h"

#include <support/popupdriver.h>
#include <support/testmain.h>

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QTabBar>

#include <algorithm>
#include <cmath>
#include <type_traits>

using JedTest::PopupDriver;
using VelmoGui::TabWidgetEx;
using VelmoGui::TABWIDGET_INTERNAL::AddButton;

namespace {

const QString NORMAL_ICON = ":/JobEditorVEPluginBase/Icons/add_tab_normal.png";
const QString ACTIVE_ICON = ":/JobEditorVEPluginBase/Icons/add_tab_active.png";

AddButton* buttonOf(const TabWidgetEx& tabs)
{
    return tabs.findChild<AddButton*>("JEDTabWidget_AddButton");
}

QMenu* menuOf(const TabWidgetEx& tabs)
{
    return buttonOf(tabs)->menu();
}

QString actionsOf(const TabWidgetEx& tabs)
{
    QStringList texts;
    for (const QAction* action : menuOf(tabs)->actions())
        texts << action->text();
    return texts.join(' ');
}

QAction* action(const TabWidgetEx& tabs, const QString& text)
{
    for (QAction* action : menuOf(tabs)->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

QWidget* closeButton(const TabWidgetEx& tabs, int index, QTabBar::ButtonPosition side = QTabBar::RightSide)
{
    return tabs.tabBar()->tabButton(index, side);
}

/// "normal", "active" or "other": which of the two pictures the button shows.
QString shownIcon(const AddButton* button)
{
    const QImage shown = button->icon().pixmap(16).toImage();
    if (shown == QIcon(NORMAL_ICON).pixmap(16).toImage())
        return "normal";
    return shown == QIcon(ACTIVE_ICON).pixmap(16).toImage() ? "active" : "other";
}

void enter(QWidget* widget)
{
    QEvent event(QEvent::Enter);
    QApplication::sendEvent(widget, &event);
}

void leave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(widget, &event);
}

double luminance(QColor colour)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(QColor one, QColor other)
{
    const double brighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (brighter + 0.05) / (darker + 0.05);
}

} // namespace

class TstTabWidgetEx : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void classesAreKnownToQt();
    void freshWidget();
    void freshButton();
    void buttonIsAsSmallAsItMayBe();
    void buttonOfADialogIsNotItsDefault();
    void buttonShowsTheActiveIconUnderTheMouse();
    void disabledButtonKeepsTheNormalIcon();
    void disabledMeanwhileTheButtonGetsTheNormalIcon();
    void actionsAreInserted_data();
    void actionsAreInserted();
    void equalTextIsSortedBehind();
    void actionsHaveTheirIcon();
    void firstActionEnablesTheButton();
    void chosenActionIsTold();
    void renamedActionTellsItsFirstText();
    void actionIsChosenInTheMenu();
    void actionsOfThatTextAreRemoved();
    void removedActionIsSilentAndLivesOn();
    void lastRemovedActionDisablesTheButton();
    void actionIsFoundByItsWholeText();
    void clearedActionsAreDeleted();
    void clearedActionOfAnotherOwnerIsSilent();
    void actionsAfterClearingWork();
    void withoutMenuNothingHappens();
    void tabIsMadeUnclosableAndBack();
    void closableOutsideTheTabsDoesNothing();
    void buttonsOfBothSidesAreTreated();
    void closableKeepsTheLock_data();
    void closableKeepsTheLock();
    void tabWithoutButtonsIsAccepted();
    void readOnlyLocksAndUnlocks();
    void readOnlyWithoutActions();
    void readOnlyTwiceWorksOnce();
    void unlockedTabStaysUnclosable();
    void actionsOfALockedWidget();
    void closeButtonCloses();
    void iconsAreCrispAndLegible_data();
    void iconsAreCrispAndLegible();

private:
    AddButton* button() const { return buttonOf(*m_tabs); }

    std::unique_ptr<TabWidgetEx> m_tabs;
};

void TstTabWidgetEx::init()
{
    m_tabs = std::make_unique<TabWidgetEx>(nullptr);
}

void TstTabWidgetEx::cleanup()
{
    m_tabs.reset();
}

void TstTabWidgetEx::classesAreKnownToQt()
{
    const QMetaObject& meta = TabWidgetEx::staticMetaObject;
    QCOMPARE(meta.className(), "VelmoGui::TabWidgetEx");
    QCOMPARE(meta.superClass(), &QTabWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod told = meta.method(meta.methodOffset());
    QCOMPARE(told.methodSignature(), QByteArray("si_addTab(QString)"));
    QCOMPARE(told.methodType(), QMetaMethod::Signal);
    QVERIFY((std::is_base_of<QPushButton, AddButton>::value));
    QCOMPARE(AddButton::staticMetaObject.className(), "VelmoGui::TABWIDGET_INTERNAL::AddButton");
}

void TstTabWidgetEx::freshWidget()
{
    QCOMPARE(m_tabs->objectName(), QString("JEDTabWidget"));
    QVERIFY(m_tabs->tabsClosable());
    QVERIFY(m_tabs->isMovable());
    QCOMPARE(m_tabs->count(), 0);
    QVERIFY(button());
    QCOMPARE(m_tabs->cornerWidget(Qt::TopLeftCorner), button());
    QVERIFY(!m_tabs->cornerWidget(Qt::TopRightCorner));
    QVERIFY(!m_tabs->parentWidget());

    QWidget parent;
    QCOMPARE((new TabWidgetEx(&parent))->parentWidget(), &parent);
}

void TstTabWidgetEx::freshButton()
{
    QCOMPARE(button()->toolTip(), QString("Add Tab"));
    QCOMPARE(button()->accessibleName(), QString("Add Tab"));
    QCOMPARE(shownIcon(button()), QString("normal"));
    QCOMPARE(button()->text(), QString());
    QVERIFY(button()->isFlat());
    QVERIFY(menuOf(*m_tabs));
    QCOMPARE(menuOf(*m_tabs)->objectName(), QString("AddButton_Menu"));
    QCOMPARE(menuOf(*m_tabs)->parent(), button());
    QVERIFY(menuOf(*m_tabs)->isEmpty());
    QVERIFY(!button()->isEnabled());
    QVERIFY(button()->minimumWidth() >= 16 && button()->minimumHeight() >= 16);
    QVERIFY(!button()->autoDefault());
    QVERIFY(!button()->isDefault());
    QCOMPARE(button()->styleSheet(), QString("QPushButton::menu-indicator{ image: url(none.jpg); }"));
    m_tabs->show();
    QVERIFY(button()->isVisible());
}

void TstTabWidgetEx::buttonIsAsSmallAsItMayBe()
{
    QPushButton like(QIcon(NORMAL_ICON), "");
    like.setFlat(true);
    like.setMenu(new QMenu(&like));
    QCOMPARE(button()->minimumSize(), like.sizeHint());
}

void TstTabWidgetEx::buttonOfADialogIsNotItsDefault()
{
    QDialog dialog;
    const TabWidgetEx tabs(&dialog);
    QPushButton other(&dialog);
    QVERIFY(other.autoDefault());
    QVERIFY(!buttonOf(tabs)->autoDefault());
    QVERIFY(!buttonOf(tabs)->isDefault());
}

void TstTabWidgetEx::buttonShowsTheActiveIconUnderTheMouse()
{
    m_tabs->appendAddAction("A", false);
    enter(button());
    QCOMPARE(shownIcon(button()), QString("active"));
    leave(button());
    QCOMPARE(shownIcon(button()), QString("normal"));
}

void TstTabWidgetEx::disabledButtonKeepsTheNormalIcon()
{
    enter(button());
    QCOMPARE(shownIcon(button()), QString("normal"));
    leave(button());
    QCOMPARE(shownIcon(button()), QString("normal"));
}

void TstTabWidgetEx::disabledMeanwhileTheButtonGetsTheNormalIcon()
{
    m_tabs->appendAddAction("A", false);
    enter(button());
    m_tabs->clearAddActions();
    leave(button());
    QCOMPARE(shownIcon(button()), QString("normal"));
}

void TstTabWidgetEx::actionsAreInserted_data()
{
    QTest::addColumn<QStringList>("texts"); // those with a "+" are sorted in
    QTest::addColumn<QString>("order");
    QTest::newRow("one") << QStringList({"A"}) << "A";
    QTest::newRow("sorted into an empty menu") << QStringList({"+A"}) << "A";
    QTest::newRow("as they come") << QStringList({"C", "A", "B"}) << "C A B";
    QTest::newRow("sorted before the greater") << QStringList({"B", "+A", "C"}) << "A B C";
    QTest::newRow("small letters after capitals") << QStringList({"B", "+A", "C", "+a"}) << "A B C a";
    QTest::newRow("before the first that is greater") << QStringList({"C", "A", "D", "+B"}) << "B C A D";
    QTest::newRow("equal texts keep their order") << QStringList({"A", "C", "+A", "+B"}) << "A A B C";
    QTest::newRow("part of a text") << QStringList({"AB", "+A", "+ABC"}) << "A AB ABC";
    QTest::newRow("code units") << QStringList({QString::fromUtf8("Ä"), "+Z"}) << QString::fromUtf8("Z Ä");
}

void TstTabWidgetEx::actionsAreInserted()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, order);
    for (const QString& text : texts) {
        const bool sorted = text.startsWith('+');
        m_tabs->appendAddAction(sorted ? text.mid(1) : text, sorted);
    }
    QCOMPARE(actionsOf(*m_tabs), order);
    for (const QAction* action : menuOf(*m_tabs)->actions())
        QCOMPARE(action->parent(), menuOf(*m_tabs));

    // With an icon nothing is different.
    TabWidgetEx other(nullptr);
    for (const QString& text : texts) {
        const bool sorted = text.startsWith('+');
        other.appendAddAction(sorted ? text.mid(1) : text, QIcon(NORMAL_ICON), sorted);
    }
    QCOMPARE(actionsOf(other), order);
}

void TstTabWidgetEx::equalTextIsSortedBehind()
{
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("B", false);
    const QAction* former = action(*m_tabs, "A");
    m_tabs->appendAddAction("A", true);
    QCOMPARE(actionsOf(*m_tabs), QString("A A B"));
    QCOMPARE(menuOf(*m_tabs)->actions().first(), former);
}

void TstTabWidgetEx::actionsHaveTheirIcon()
{
    m_tabs->appendAddAction("with", QIcon(ACTIVE_ICON), false);
    m_tabs->appendAddAction("without", false);
    QCOMPARE(action(*m_tabs, "with")->icon().pixmap(16).toImage(), QIcon(ACTIVE_ICON).pixmap(16).toImage());
    QVERIFY(action(*m_tabs, "without")->icon().isNull());
}

void TstTabWidgetEx::firstActionEnablesTheButton()
{
    m_tabs->appendAddAction("A", true);
    QVERIFY(button()->isEnabled());
    m_tabs->appendAddAction("B", true);
    QVERIFY(button()->isEnabled());
}

void TstTabWidgetEx::chosenActionIsTold()
{
    const QStringList texts = {"Scan", "scan", "A & B", " blank ", ""};
    for (const QString& text : texts)
        m_tabs->appendAddAction(text, false);
    QSignalSpy told(m_tabs.get(), SIGNAL(si_addTab(QString)));
    for (const QString& text : texts) {
        action(*m_tabs, text)->trigger();
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.takeFirst().value(0).toString(), text);
    }
    QCOMPARE(m_tabs->count(), 0);
}

void TstTabWidgetEx::renamedActionTellsItsFirstText()
{
    m_tabs->appendAddAction("old", false);
    QSignalSpy told(m_tabs.get(), &TabWidgetEx::si_addTab);
    QAction* renamed = action(*m_tabs, "old");
    renamed->setText("new");
    renamed->trigger();
    QCOMPARE(told.value(0).value(0).toString(), QString("old"));
}

void TstTabWidgetEx::actionIsChosenInTheMenu()
{
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("B", false);
    m_tabs->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tabs.get()));
    QSignalSpy told(m_tabs.get(), &TabWidgetEx::si_addTab);
    PopupDriver driver([](QMenu* menu) {
        menu->setActiveAction(menu->actions().value(1));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    QTest::mouseClick(button(), Qt::LeftButton);
    QTRY_COMPARE(driver.menus(), 1);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.value(0).value(0).toString(), QString("B"));
}

void TstTabWidgetEx::actionsOfThatTextAreRemoved()
{
    for (const char* text : {"A", "B", "A", "a", "AB", "A"})
        m_tabs->appendAddAction(text, false);
    m_tabs->removeAddAction("A");
    QCOMPARE(actionsOf(*m_tabs), QString("B a AB"));
    QVERIFY(button()->isEnabled());
    m_tabs->removeAddAction("missing");
    QCOMPARE(actionsOf(*m_tabs), QString("B a AB"));
    QVERIFY(button()->isEnabled());
}

void TstTabWidgetEx::removedActionIsSilentAndLivesOn()
{
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("B", false);
    const QPointer<QAction> removed = action(*m_tabs, "A");
    m_tabs->removeAddAction("A");
    QVERIFY(removed);
    QCOMPARE(removed->parent(), menuOf(*m_tabs));
    QSignalSpy told(m_tabs.get(), &TabWidgetEx::si_addTab);
    removed->trigger();
    QCOMPARE(told.count(), 0);
    action(*m_tabs, "B")->trigger();
    QCOMPARE(told.count(), 1);
    m_tabs.reset();
    QVERIFY(!removed);
}

void TstTabWidgetEx::lastRemovedActionDisablesTheButton()
{
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("A", false);
    m_tabs->removeAddAction("A");
    QVERIFY(!button()->isEnabled());
    m_tabs->appendAddAction("B", false);
    QVERIFY(button()->isEnabled());
}

void TstTabWidgetEx::actionIsFoundByItsWholeText()
{
    QVERIFY(!m_tabs->hasAddAction("Scan"));
    QVERIFY(!m_tabs->hasAddAction(""));
    m_tabs->appendAddAction("Scan", false);
    m_tabs->appendAddAction("Fixed", false);
    QVERIFY(m_tabs->hasAddAction("Scan"));
    QVERIFY(m_tabs->hasAddAction("Fixed"));
    QVERIFY(!m_tabs->hasAddAction("scan"));
    QVERIFY(!m_tabs->hasAddAction("Sca"));
    QVERIFY(!m_tabs->hasAddAction("Scan "));
    m_tabs->removeAddAction("Scan");
    QVERIFY(!m_tabs->hasAddAction("Scan"));
}

void TstTabWidgetEx::clearedActionsAreDeleted()
{
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("B", false);
    const QPointer<QAction> one = action(*m_tabs, "A");
    const QPointer<QAction> two = action(*m_tabs, "B");
    m_tabs->clearAddActions();
    QVERIFY(!one && !two);
    QVERIFY(menuOf(*m_tabs)->isEmpty());
    QVERIFY(!button()->isEnabled());
    QVERIFY(!m_tabs->hasAddAction("A"));
    m_tabs->clearAddActions();
    QVERIFY(!button()->isEnabled());
}

void TstTabWidgetEx::clearedActionOfAnotherOwnerIsSilent()
{
    m_tabs->appendAddAction("A", false);
    QObject owner;
    QAction* const kept = action(*m_tabs, "A");
    kept->setParent(&owner);
    QSignalSpy told(m_tabs.get(), &TabWidgetEx::si_addTab);
    kept->trigger();
    QCOMPARE(told.count(), 1);
    m_tabs->clearAddActions();
    QVERIFY(menuOf(*m_tabs)->isEmpty());
    kept->trigger();
    QCOMPARE(told.count(), 1);
}

void TstTabWidgetEx::actionsAfterClearingWork()
{
    m_tabs->appendAddAction("A", false);
    // One that is not the menu's own survives.
    QAction stranger("S");
    menuOf(*m_tabs)->addAction(&stranger);
    m_tabs->clearAddActions();
    QCOMPARE(stranger.text(), QString("S"));
    m_tabs->appendAddAction("B", false);
    QSignalSpy told(m_tabs.get(), &TabWidgetEx::si_addTab);
    action(*m_tabs, "B")->trigger();
    QCOMPARE(told.value(0).value(0).toString(), QString("B"));
}

void TstTabWidgetEx::withoutMenuNothingHappens()
{
    m_tabs->appendAddAction("A", false);
    button()->setMenu(nullptr);
    m_tabs->appendAddAction("B", false);
    m_tabs->appendAddAction("C", QIcon(), true);
    QVERIFY(!m_tabs->hasAddAction("A"));
    QVERIFY(!m_tabs->hasAddAction("B"));
    m_tabs->removeAddAction("A");
    m_tabs->clearAddActions();
    m_tabs->setReadOnly(true);
    m_tabs->setReadOnly(false);
    QVERIFY(!button()->isEnabled());
}

void TstTabWidgetEx::tabIsMadeUnclosableAndBack()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->addTab(new QWidget, "two");
    m_tabs->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tabs.get()));
    const QSize size = closeButton(*m_tabs, 0)->size();
    const int width = m_tabs->tabBar()->tabRect(0).width();
    QVERIFY(!size.isEmpty());

    m_tabs->setTabClosable(0, false);
    QCOMPARE(closeButton(*m_tabs, 0)->size(), QSize(0, 0));
    QVERIFY(closeButton(*m_tabs, 0)->isEnabled());
    QVERIFY(!closeButton(*m_tabs, 0)->isHidden());
    QCOMPARE(m_tabs->tabText(0), QString("one"));
    QVERIFY(m_tabs->tabBar()->tabRect(0).width() < width);
    QCOMPARE(closeButton(*m_tabs, 1)->size(), size);
    QCOMPARE(m_tabs->tabBar()->tabRect(1).left(), m_tabs->tabBar()->tabRect(0).right() + 1);

    m_tabs->setTabClosable(0, true);
    QCOMPARE(closeButton(*m_tabs, 0)->size(), closeButton(*m_tabs, 0)->sizeHint());
    QCOMPARE(closeButton(*m_tabs, 0)->size(), size);
    QCOMPARE(m_tabs->tabBar()->tabRect(0).width(), width);
}

void TstTabWidgetEx::closableOutsideTheTabsDoesNothing()
{
    m_tabs->setTabClosable(0, false);
    m_tabs->addTab(new QWidget, "one");
    m_tabs->addTab(new QWidget, "two");
    const QSize size = closeButton(*m_tabs, 0)->size();
    for (const int index : {-1, 2, 3, -1000}) {
        m_tabs->setTabClosable(index, false);
        QCOMPARE(closeButton(*m_tabs, 0)->size(), size);
        QCOMPARE(closeButton(*m_tabs, 1)->size(), size);
    }
}

void TstTabWidgetEx::buttonsOfBothSidesAreTreated()
{
    m_tabs->addTab(new QWidget, "one");
    auto* left = new QPushButton("own");
    m_tabs->tabBar()->setTabButton(0, QTabBar::LeftSide, left);
    QWidget* right = closeButton(*m_tabs, 0, QTabBar::RightSide);
    QVERIFY(right);

    m_tabs->setTabClosable(0, false);
    QCOMPARE(left->size(), QSize(0, 0));
    QCOMPARE(right->size(), QSize(0, 0));
    m_tabs->setTabClosable(0, true);
    QCOMPARE(left->size(), left->sizeHint());
    QCOMPARE(right->size(), right->sizeHint());
    m_tabs->setReadOnly(true);
    QVERIFY(!left->isEnabled());
    QVERIFY(!right->isEnabled());
    m_tabs->setReadOnly(false);
    QVERIFY(left->isEnabled());
    QVERIFY(right->isEnabled());
}

void TstTabWidgetEx::closableKeepsTheLock_data()
{
    QTest::addColumn<bool>("closable");
    QTest::newRow("closable") << true;
    QTest::newRow("not closable") << false;
}

void TstTabWidgetEx::closableKeepsTheLock()
{
    QFETCH(bool, closable);
    m_tabs->addTab(new QWidget, "one");
    m_tabs->setReadOnly(true);
    m_tabs->setTabClosable(0, closable);
    QVERIFY(!closeButton(*m_tabs, 0)->isEnabled());
    // Enables what somebody else has disabled, when nothing is locked.
    m_tabs->setReadOnly(false);
    closeButton(*m_tabs, 0)->setEnabled(false);
    m_tabs->setTabClosable(0, closable);
    QVERIFY(closeButton(*m_tabs, 0)->isEnabled());
}

void TstTabWidgetEx::tabWithoutButtonsIsAccepted()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->setTabsClosable(false);
    m_tabs->setTabClosable(0, false);
    m_tabs->setReadOnly(true);
    QCOMPARE(m_tabs->tabText(0), QString("one"));
    QVERIFY(!closeButton(*m_tabs, 0));
}

void TstTabWidgetEx::readOnlyLocksAndUnlocks()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->addTab(new QWidget, "two");
    m_tabs->appendAddAction("A", false);
    for (const bool readOnly : {true, false, true}) {
        m_tabs->setReadOnly(readOnly);
        QCOMPARE(closeButton(*m_tabs, 0)->isEnabled(), !readOnly);
        QCOMPARE(closeButton(*m_tabs, 1)->isEnabled(), !readOnly);
        QCOMPARE(button()->isEnabled(), !readOnly);
    }
}

void TstTabWidgetEx::readOnlyWithoutActions()
{
    m_tabs->setReadOnly(true);
    QVERIFY(!button()->isEnabled());
    m_tabs->setReadOnly(false);
    QVERIFY(!button()->isEnabled());
}

void TstTabWidgetEx::readOnlyTwiceWorksOnce()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->setReadOnly(false);
    closeButton(*m_tabs, 0)->setEnabled(false);
    m_tabs->setReadOnly(false);
    QVERIFY(!closeButton(*m_tabs, 0)->isEnabled());
    m_tabs->setReadOnly(true);
    closeButton(*m_tabs, 0)->setEnabled(true);
    m_tabs->setReadOnly(true);
    QVERIFY(closeButton(*m_tabs, 0)->isEnabled());
}

void TstTabWidgetEx::unlockedTabStaysUnclosable()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->setTabClosable(0, false);
    m_tabs->setReadOnly(true);
    m_tabs->setReadOnly(false);
    QVERIFY(closeButton(*m_tabs, 0)->isEnabled());
    QCOMPARE(closeButton(*m_tabs, 0)->size(), QSize(0, 0));
}

void TstTabWidgetEx::actionsOfALockedWidget()
{
    m_tabs->setReadOnly(true);
    m_tabs->appendAddAction("A", false);
    m_tabs->appendAddAction("B", true);
    QVERIFY(!button()->isEnabled());
    m_tabs->removeAddAction("A");
    QVERIFY(!button()->isEnabled());
    m_tabs->setReadOnly(false);
    QVERIFY(button()->isEnabled());
}

void TstTabWidgetEx::closeButtonCloses()
{
    m_tabs->addTab(new QWidget, "one");
    m_tabs->addTab(new QWidget, "two");
    m_tabs->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tabs.get()));
    QSignalSpy closing(m_tabs.get(), &QTabWidget::tabCloseRequested);
    QTest::mouseClick(closeButton(*m_tabs, 1), Qt::LeftButton);
    QCOMPARE(closing.count(), 1);
    QCOMPARE(closing.takeFirst().value(0).toInt(), 1);
    m_tabs->setReadOnly(true);
    QTest::mouseClick(closeButton(*m_tabs, 1), Qt::LeftButton);
    QCOMPARE(closing.count(), 0);
}

void TstTabWidgetEx::iconsAreCrispAndLegible_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("normal") << NORMAL_ICON;
    QTest::newRow("active") << ACTIVE_ICON;
}

void TstTabWidgetEx::iconsAreCrispAndLegible()
{
    QFETCH(QString, path);
    const QImage small(path);
    const QImage large(QString(path).replace(".png", "@2x.png"));
    QCOMPARE(small.size(), QSize(16, 16));
    QCOMPARE(large.size(), QSize(32, 32));

    // What is drawn, all of it and not only an edge, stands out from a light and from a dark window.
    for (const QImage& image : {small, large}) {
        double onLight = 0;
        double onDark = 0;
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.alpha() < 255 || colour == Qt::white)
                    continue;
                ++drawn;
                onLight += contrast(colour, QColor(239, 239, 239));
                onDark += contrast(colour, QColor(45, 45, 45));
            }
        }
        QVERIFY(drawn >= image.width());
        QVERIFY2(
            onLight / drawn >= 3 && onDark / drawn >= 3,
            qPrintable(QString("contrast %1 on light, %2 on dark").arg(onLight / drawn).arg(onDark / drawn)));
    }
}

JED_TEST_MAIN(TstTabWidgetEx)
#include "tst_tabwidgetex.moc"
