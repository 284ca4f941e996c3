#include "frequencylistview.h"

#include <support/listviewsamples.h>
#include <support/popupdriver.h>

#include <QHeaderView>
#include <QMenu>
#include <QPointer>

using JEDVEPLUGIN::FrequencyListView;

namespace {

QString menuText(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions()) {
        texts << action->text() + (action->isCheckable() ? "" : " uncheckable") +
                     (action->isChecked() ? " on" : " off") + (action->isEnabled() ? "" : " disabled");
    }
    return texts.join(", ");
}

} // namespace

class TstFrequencyListViewMenu : public QObject, private ListViewFixture
{
    Q_OBJECT
private slots:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void headerMenuOnlyWhenAskedFor_data();
    void headerMenuOnlyWhenAskedFor();
    void headerMenuShowsColumns();
    void headerMenuHidesAndShows();
    void lastVisibleColumnCannotBeHidden();
    void menuIsNotShownWithoutColumns();
    void closedMenuChangesNothing();
    void menuAtTheHeader();
    void formerLastColumnLosesItsStretchedWidth();
    void columnInTheMiddleKeepsTheLastWidth();
    void movedColumnsCountByTheirPlace();
    void viewThatDiesWithItsMenuOpen();

private:
};

void TstFrequencyListViewMenu::headerMenuOnlyWhenAskedFor_data()
{
    QTest::addColumn<bool>("asked");
    QTest::newRow("with menu") << true;
    QTest::newRow("without menu") << false;
}

void TstFrequencyListViewMenu::headerMenuOnlyWhenAskedFor()
{
    QFETCH(bool, asked);
    FrequencyListView view(nullptr, asked, false);
    view.setModel(m_model.get());
    QCOMPARE(view.header()->contextMenuPolicy(), asked ? Qt::CustomContextMenu : Qt::DefaultContextMenu);
    JedTest::PopupDriver driver([](QMenu*) {});
    emit view.header()->customContextMenuRequested(QPoint(1, 1));
    QCOMPARE(driver.menus(), asked ? 1 : 0);
}

void TstFrequencyListViewMenu::headerMenuShowsColumns()
{
    QString text;
    QList<QPointer<QAction>> actions;
    JedTest::PopupDriver driver([&](QMenu* menu) {
        text = menuText(menu);
        for (QAction* action : menu->actions())
            actions << action;
    });
    m_view->hideColumn(1);
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QCOMPARE(driver.menus(), 1);
    QCOMPARE(text, QString("Frequency on, Name off, Mode on"));
    QCOMPARE(actions.size(), 3);
    QVERIFY(std::all_of(actions.begin(), actions.end(), [](const auto& action) { return action.isNull(); }));
}

void TstFrequencyListViewMenu::headerMenuHidesAndShows()
{
    const auto choose = [this](int section) {
        JedTest::PopupDriver driver([section](QMenu* menu) {
            menu->setActiveAction(menu->actions().at(section));
            QTest::keyClick(menu, Qt::Key_Enter);
        });
        m_view->slotHeaderContextMenu(QPoint(5, 5));
        QCOMPARE(driver.menus(), 1);
    };
    choose(1);
    QVERIFY(m_view->isColumnHidden(1));
    choose(0);
    QVERIFY(m_view->isColumnHidden(0));
    QVERIFY(!m_view->isColumnHidden(2));
    choose(1);
    QVERIFY(!m_view->isColumnHidden(1));
    QVERIFY(m_view->isColumnHidden(0));
}

void TstFrequencyListViewMenu::lastVisibleColumnCannotBeHidden()
{
    m_view->hideColumn(0);
    m_view->hideColumn(2);
    QString text;
    JedTest::PopupDriver driver([&](QMenu* menu) {
        text = menuText(menu);
        menu->setActiveAction(menu->actions().at(1));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QCOMPARE(text, QString("Frequency off, Name on disabled, Mode off"));
    QVERIFY(!m_view->isColumnHidden(1));

    SampleListModel single(2, 1);
    single.setHorizontalHeaderLabels({"Only"});
    OpenListView view(nullptr, true, false);
    view.setModel(&single);
    JedTest::PopupDriver second([&](QMenu* menu) { text = menuText(menu); });
    view.slotHeaderContextMenu(QPoint(5, 5));
    QCOMPARE(text, QString("Only on disabled"));
}

void TstFrequencyListViewMenu::menuIsNotShownWithoutColumns()
{
    QStandardItemModel empty;
    m_view->setModel(&empty);
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!QApplication::activePopupWidget());
    m_view->setModel(nullptr);
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!QApplication::activePopupWidget());
}

void TstFrequencyListViewMenu::closedMenuChangesNothing()
{
    JedTest::PopupDriver driver([](QMenu* menu) { menu->setActiveAction(menu->actions().at(2)); });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QCOMPARE(driver.menus(), 1);
    QCOMPARE(m_view->header()->hiddenSectionCount(), 0);
}

void TstFrequencyListViewMenu::menuAtTheHeader()
{
    QPoint pos;
    JedTest::PopupDriver driver([&](QMenu* menu) { pos = menu->pos(); });
    m_view->move(60, 50);
    emit m_view->header()->customContextMenuRequested(QPoint(20, 7));
    QCOMPARE(driver.menus(), 1);
    QCOMPARE(pos, m_view->header()->mapToGlobal(QPoint(20, 7)));
}

void TstFrequencyListViewMenu::formerLastColumnLosesItsStretchedWidth()
{
    m_view->hideColumn(2);
    QVERIFY(m_view->header()->stretchLastSection());
    QTest::qWait(1);
    const int stretched = m_view->columnWidth(1);
    JedTest::PopupDriver driver([](QMenu* menu) {
        menu->setActiveAction(menu->actions().at(2));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!m_view->isColumnHidden(2));
    QVERIFY(m_view->columnWidth(1) < stretched);
    const int contents = qMax(m_view->sizeHintForColumn(1), m_view->header()->sectionSizeHint(1));
    QCOMPARE(m_view->columnWidth(1), contents);

    // Without stretching there is no width to lose.
    m_view->header()->setStretchLastSection(false);
    m_view->hideColumn(2);
    m_view->setColumnWidth(1, 171);
    JedTest::PopupDriver second([](QMenu* menu) {
        menu->setActiveAction(menu->actions().at(2));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!m_view->isColumnHidden(2));
    QCOMPARE(m_view->columnWidth(1), 171);
}

void TstFrequencyListViewMenu::columnInTheMiddleKeepsTheLastWidth()
{
    m_view->hideColumn(1);
    m_view->setColumnWidth(0, 111);
    m_view->setColumnWidth(2, 171); // as wide as it will be when it is stretched no more
    JedTest::PopupDriver driver([](QMenu* menu) {
        menu->setActiveAction(menu->actions().at(1));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!m_view->isColumnHidden(1));
    QCOMPARE(m_view->columnWidth(0), 111);
    // The last column still takes what is left.
    QCOMPARE(m_view->header()->length(), m_view->viewport()->width());
    m_view->header()->setStretchLastSection(false);
    QCOMPARE(m_view->columnWidth(2), 171);
}

void TstFrequencyListViewMenu::movedColumnsCountByTheirPlace()
{
    m_view->header()->moveSection(0, 2); // Name, Mode, Frequency
    m_view->hideColumn(0);
    m_view->setColumnWidth(2, 171);
    QTest::qWait(1);
    const int name = m_view->columnWidth(1);
    JedTest::PopupDriver driver([](QMenu* menu) {
        menu->setActiveAction(menu->actions().at(0));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    m_view->slotHeaderContextMenu(QPoint(5, 5));
    QVERIFY(!m_view->isColumnHidden(0));
    QCOMPARE(m_view->columnWidth(2),
             qMax(m_view->sizeHintForColumn(2), m_view->header()->sectionSizeHint(2)));
    QCOMPARE(m_view->columnWidth(1), name);
}

void TstFrequencyListViewMenu::viewThatDiesWithItsMenuOpen()
{
    OpenListView* view = new OpenListView(nullptr, true, false);
    view->setModel(m_model.get());
    JedTest::PopupDriver driver([&](QMenu* menu) {
        delete view;
        menu->setActiveAction(menu->actions().at(1));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    view->slotHeaderContextMenu(QPoint(5, 5));
    QCOMPARE(driver.menus(), 1);
}

JED_TEST_MAIN(TstFrequencyListViewMenu)
#include "tst_frequencylistview_menu.moc"
