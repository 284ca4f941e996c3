#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QStyle>
#include <QTabBar>
#include <QtTest/qtest_gui.h>
#include <QtTest/qtest_widgets.h>
#include <support/testmain.h>
#include <tabwidgetex.h>

using VelmoGui::TabWidgetEx;
using VelmoGui::TABWIDGET_INTERNAL::AddButton;

namespace {
AddButton* buttonOf(const TabWidgetEx& widget)
{
    return widget.findChild<AddButton*>("JEDTabWidget_AddButton");
}

QStringList entriesOf(const TabWidgetEx& widget)
{
    QStringList texts;
    for (const QAction* action : buttonOf(widget)->menu()->actions())
        texts.append(action->text());
    return texts;
}

QWidget* closeButton(const TabWidgetEx& widget, int index)
{
    return widget.tabBar()->tabButton(index, QTabBar::RightSide);
}

bool isActive(const AddButton& button)
{
    const QImage active = QIcon(":/JobEditorVEPluginBase/Icons/add_tab_active.png").pixmap(16).toImage();
    return button.icon().pixmap(16).toImage() == active;
}

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace

class TstTabWidgetEx : public QObject
{
    Q_OBJECT
private slots:
    void construction();
    void buttonConstruction();
    void iconsAreCrispAndDifferent();
    void signalIsAsPluginsKnowIt();
    void entriesAreSorted();
    void entryHasItsIcon();
    void firstEntryEnablesTheButton();
    void chosenEntryIsTold();
    void renamedEntryTellsItsFirstText();
    void entriesAreRemoved();
    void removedActionLivesOn();
    void allEntriesAreRemoved();
    void closeButtonIsHidden();
    void closeButtonOfNoTab();
    void readOnlyDisables();
    void readOnlyAndCloseButtons();
    void readOnlyAndNewEntries();
    void iconFollowsTheMouse();
    void tabsWithoutCloseButtons();
};

void TstTabWidgetEx::construction()
{
    QWidget parent;
    TabWidgetEx widget(&parent);
    QCOMPARE(widget.parentWidget(), &parent);
    QCOMPARE(widget.objectName(), QString("JEDTabWidget"));
    QVERIFY(widget.tabsClosable());
    QVERIFY(widget.isMovable());
    QCOMPARE(widget.cornerWidget(Qt::TopLeftCorner), buttonOf(widget));
    QVERIFY(!widget.cornerWidget(Qt::TopRightCorner));
}

void TstTabWidgetEx::buttonConstruction()
{
    TabWidgetEx widget(nullptr);
    const AddButton* const button = buttonOf(widget);
    QVERIFY(button);
    QCOMPARE(button->toolTip(), QString("Add Tab"));
    QCOMPARE(button->text(), QString());
    QVERIFY(!button->icon().pixmap(16).isNull());
    QVERIFY(button->isFlat());
    QVERIFY(button->menu());
    QCOMPARE(button->menu()->objectName(), QString("AddButton_Menu"));
    QCOMPARE(button->menu()->parent(), button);
    QVERIFY(!button->isEnabled());
    QVERIFY(!button->autoDefault());
    QVERIFY(!button->isDefault());
    QVERIFY(button->minimumWidth() > 0);
    QCOMPARE(button->styleSheet(), QString("QPushButton::menu-indicator{ image: url(none.jpg); }"));
    QCOMPARE(button->metaObject()->className(), "VelmoGui::TABWIDGET_INTERNAL::AddButton");
}

void TstTabWidgetEx::iconsAreCrispAndDifferent()
{
    const QString folder = ":/JobEditorVEPluginBase/Icons/";
    QVector<QImage> images;
    for (const char* name : {"add_tab_normal", "add_tab_active"}) {
        const QImage single(folder + name + ".png");
        const QImage twice(folder + name + "@2x.png");
        QCOMPARE(single.size(), QSize(16, 16));
        QCOMPARE(twice.size(), QSize(32, 32));
        QVERIFY(single.hasAlphaChannel());
        images.append(single);
    }
    QVERIFY(images[0] != images[1]);
    // Middle grey and green can be told from a light and from a dark ground.
    for (const QImage& image : qAsConst(images)) {
        const int grey = qGray(image.pixel(2, 8));
        QVERIFY2(grey > 60 && grey < 180, qPrintable(QString::number(grey)));
    }
}

void TstTabWidgetEx::signalIsAsPluginsKnowIt()
{
    const QMetaObject& meta = TabWidgetEx::staticMetaObject;
    QCOMPARE(meta.className(), "VelmoGui::TabWidgetEx");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("si_addTab(QString)"));
}

void TstTabWidgetEx::entriesAreSorted()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("B", false);
    widget.appendAddAction("A", true);
    widget.appendAddAction("C", false);
    QCOMPARE(entriesOf(widget), QStringList({"A", "B", "C"}));
    widget.appendAddAction("a", true);
    QCOMPARE(entriesOf(widget), QStringList({"A", "B", "C", "a"}));
    widget.appendAddAction("B", true);
    QCOMPARE(entriesOf(widget), QStringList({"A", "B", "B", "C", "a"}));
    widget.appendAddAction("A", false);
    // In front of the first that is greater, whatever stands behind it.
    widget.appendAddAction("AA", true);
    QCOMPARE(entriesOf(widget), QStringList({"A", "AA", "B", "B", "C", "a", "A"}));
}

void TstTabWidgetEx::entryHasItsIcon()
{
    TabWidgetEx widget(nullptr);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    widget.appendAddAction("with", QIcon(pixmap), true);
    widget.appendAddAction("without", true);
    const QList<QAction*> actions = buttonOf(widget)->menu()->actions();
    QVERIFY(!actions[0]->icon().isNull());
    QVERIFY(actions[1]->icon().isNull());
    QCOMPARE(actions[0]->parent(), buttonOf(widget)->menu());
}

void TstTabWidgetEx::firstEntryEnablesTheButton()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("A", false);
    QVERIFY(buttonOf(widget)->isEnabled());
}

void TstTabWidgetEx::chosenEntryIsTold()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("Scan && more", false);
    widget.appendAddAction("FFT", true);
    QSignalSpy added(&widget, SIGNAL(si_addTab(QString)));
    for (QAction* action : buttonOf(widget)->menu()->actions())
        action->trigger();
    QCOMPARE(added.size(), 2);
    QCOMPARE(added[0][0].toString(), QString("FFT"));
    QCOMPARE(added[1][0].toString(), QString("Scan && more"));
    QCOMPARE(widget.count(), 0);
}

void TstTabWidgetEx::renamedEntryTellsItsFirstText()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("old", false);
    QSignalSpy added(&widget, SIGNAL(si_addTab(QString)));
    QAction* const action = buttonOf(widget)->menu()->actions().first();
    action->setText("new");
    action->trigger();
    QCOMPARE(added[0][0].toString(), QString("old"));
}

void TstTabWidgetEx::entriesAreRemoved()
{
    TabWidgetEx widget(nullptr);
    for (const char* text : {"A", "B", "A"})
        widget.appendAddAction(text, false);
    QVERIFY(widget.hasAddAction("A"));
    QVERIFY(!widget.hasAddAction("a"));
    widget.removeAddAction("A");
    QCOMPARE(entriesOf(widget), QStringList({"B"}));
    QVERIFY(!widget.hasAddAction("A"));
    QVERIFY(buttonOf(widget)->isEnabled());
    widget.removeAddAction("unknown");
    QVERIFY(buttonOf(widget)->isEnabled());
    widget.removeAddAction("B");
    QVERIFY(!buttonOf(widget)->isEnabled());
}

void TstTabWidgetEx::removedActionLivesOn()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("A", false);
    const QPointer<QAction> action = buttonOf(widget)->menu()->actions().first();
    QSignalSpy added(&widget, SIGNAL(si_addTab(QString)));
    widget.removeAddAction("A");
    QVERIFY(action);
    action->trigger();
    QCOMPARE(added.size(), 0);
}

void TstTabWidgetEx::allEntriesAreRemoved()
{
    TabWidgetEx widget(nullptr);
    widget.appendAddAction("A", false);
    widget.appendAddAction("B", false);
    const QPointer<QAction> action = buttonOf(widget)->menu()->actions().first();
    widget.clearAddActions();
    QCOMPARE(entriesOf(widget), QStringList());
    QVERIFY(!action);
    QVERIFY(!buttonOf(widget)->isEnabled());
}

void TstTabWidgetEx::closeButtonIsHidden()
{
    TabWidgetEx widget(nullptr);
    widget.addTab(new QLabel("1"), "one");
    widget.addTab(new QLabel("2"), "two");
    const QSize before = closeButton(widget, 0)->size();
    const int width = widget.tabBar()->tabRect(0).width();
    widget.setTabClosable(0, false);
    QCOMPARE(closeButton(widget, 0)->size(), QSize(0, 0));
    QCOMPARE(closeButton(widget, 1)->size(), before);
    QVERIFY(widget.tabBar()->tabRect(0).width() < width);
    QCOMPARE(widget.tabText(0), QString("one"));
    widget.setTabClosable(0, true);
    QCOMPARE(closeButton(widget, 0)->size(), closeButton(widget, 0)->sizeHint());
    QCOMPARE(widget.tabBar()->tabRect(0).width(), width);
}

void TstTabWidgetEx::closeButtonOfNoTab()
{
    TabWidgetEx widget(nullptr);
    widget.addTab(new QLabel("1"), "one");
    const QSize before = closeButton(widget, 0)->size();
    widget.setTabClosable(-1, false);
    widget.setTabClosable(1, false);
    QCOMPARE(closeButton(widget, 0)->size(), before);
}

void TstTabWidgetEx::readOnlyDisables()
{
    TabWidgetEx widget(nullptr);
    widget.addTab(new QLabel("1"), "one");
    widget.appendAddAction("A", false);
    widget.setReadOnly(true);
    QVERIFY(!buttonOf(widget)->isEnabled());
    QVERIFY(!closeButton(widget, 0)->isEnabled());
    // The second call does nothing.
    closeButton(widget, 0)->setEnabled(true);
    buttonOf(widget)->setEnabled(true);
    widget.setReadOnly(true);
    QVERIFY(closeButton(widget, 0)->isEnabled());
    QVERIFY(buttonOf(widget)->isEnabled());
    widget.setReadOnly(false);
    QVERIFY(buttonOf(widget)->isEnabled());
    QVERIFY(closeButton(widget, 0)->isEnabled());
}

void TstTabWidgetEx::readOnlyAndCloseButtons()
{
    TabWidgetEx widget(nullptr);
    widget.addTab(new QLabel("1"), "one");
    widget.addTab(new QLabel("2"), "two");
    widget.setTabClosable(0, false);
    widget.setReadOnly(true);
    widget.setTabClosable(1, false);
    QVERIFY(!closeButton(widget, 1)->isEnabled());
    widget.setReadOnly(false);
    QVERIFY(closeButton(widget, 0)->isEnabled());
    QCOMPARE(closeButton(widget, 0)->size(), QSize(0, 0));
    QVERIFY(!buttonOf(widget)->isEnabled());
}

void TstTabWidgetEx::readOnlyAndNewEntries()
{
    TabWidgetEx widget(nullptr);
    widget.setReadOnly(true);
    widget.appendAddAction("A", false);
    widget.appendAddAction("B", false);
    QVERIFY(!buttonOf(widget)->isEnabled());
    widget.removeAddAction("A");
    QVERIFY(!buttonOf(widget)->isEnabled());
    widget.setReadOnly(false);
    QVERIFY(buttonOf(widget)->isEnabled());
}

void TstTabWidgetEx::iconFollowsTheMouse()
{
    TabWidgetEx widget(nullptr);
    AddButton* const button = buttonOf(widget);
    send(button, QEvent::Enter);
    QVERIFY(!isActive(*button));
    widget.appendAddAction("A", false);
    send(button, QEvent::Enter);
    QVERIFY(isActive(*button));
    widget.clearAddActions();
    QVERIFY(isActive(*button));
    send(button, QEvent::Leave);
    QVERIFY(!isActive(*button));
}

void TstTabWidgetEx::tabsWithoutCloseButtons()
{
    TabWidgetEx widget(nullptr);
    widget.addTab(new QLabel("1"), "one");
    widget.setTabsClosable(false);
    widget.setTabClosable(0, false);
    widget.setReadOnly(true);
    widget.setReadOnly(false);
    QCOMPARE(widget.count(), 1);
}

JED_TEST_MAIN(TstTabWidgetEx)
#include "tst_tabwidgetex.moc"
