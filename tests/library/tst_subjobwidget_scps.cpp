#include "subjobwidget.h"

#include "filterintegerrangeproxymodel.h"
#include "selectableresourcemodel.h"

#include <support/popupdriver.h>
#include <support/resourcesamples.h>
#include <support/subjobwidgetfixture.h>
#include <support/testmain.h>

#include <QHeaderView>
#include <QPointer>
#include <QStandardItemModel>

using JedTest::PopupDriver;
using JedTest::resources;
using JedTest::SubJobFields;
using JedTest::SubJobSignals;
using JedTest::tuner;
using JedTest::visibleDetectorFields;
using JEDVEPLUGIN::SelectableResourceModel;
using JEDVEPLUGIN::SubJobWidget;

namespace {

QString actionTexts(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts << (action->isSeparator() ? QString("-") : action->text());
    return texts.join('|');
}

} // namespace

class TstSubJobWidgetScps : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void choiceOfScpsIsFollowed();
    void otherModelsChooseNothing();

    void menuOfTheScps();
    void menuEntryCallsTheModel_data();
    void menuEntryCallsTheModel();
    void menuRunsAtThePoint();
    void unavailableResourcesCanBeHidden();
    void tableOfHiddenScpsStays();
    void menuWithoutSuchAModel();
    void widgetMayGoWhileTheMenuIsOpen();
    void headerBoxChoosesAScp();
    void scpsAreSortedByTheHeader();

private:
    SubJobFields fields() const { return SubJobFields(*m_widget); }
    void requestMenu(const QPoint& pos) { emit fields().scps()->customContextMenuRequested(pos); }

    std::unique_ptr<SubJobWidget> m_widget;
    std::unique_ptr<SelectableResourceModel> m_scps;
    std::unique_ptr<SubJobSignals> m_signals;
};

void TstSubJobWidgetScps::init()
{
    m_scps = std::make_unique<SelectableResourceModel>(resources({"A 2", "B 3", "C 0"}), nullptr);
    m_widget = std::make_unique<SubJobWidget>(true, true, nullptr);
    m_signals = std::make_unique<SubJobSignals>(m_widget.get());
}

void TstSubJobWidgetScps::cleanup()
{
    m_signals.reset();
    m_widget.reset();
    m_scps.reset();
}

void TstSubJobWidgetScps::choiceOfScpsIsFollowed()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setSCPModel(m_scps.get());
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    m_signals->take();
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type scps"));
    m_scps->setSelectionCount(m_scps->getResources().value(1), 2);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type base scps"));
    QCOMPARE(m_signals->take(), QString("base(C1)"));
    m_scps->setResources(resources({"D 1"}));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type scps"));
    QCOMPARE(m_signals->take(), QString("base()"));
}

void TstSubJobWidgetScps::otherModelsChooseNothing()
{
    QStandardItemModel other(2, 3);
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setSCPModel(&other);
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    other.setData(other.index(0, 1), 2);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type scps"));
    QCOMPARE(m_widget->getDetectorBaseResource(), QString());
}

void TstSubJobWidgetScps::menuOfTheScps()
{
    m_widget->setSCPModel(m_scps.get());
    QString texts;
    QString properties;
    PopupDriver driver([&](QMenu* menu) {
        texts = actionTexts(menu);
        for (const QAction* action : menu->actions())
            properties += QString("%1%2%3 ")
                              .arg(action->isEnabled())
                              .arg(action->isCheckable())
                              .arg(action->isChecked());
    });
    requestMenu(QPoint(1, 1));
    QCOMPARE(driver.menus(), 1);
    QCOMPARE(texts, QString("Select All|Select All (Max)|Clear All|-|Hide unavailable resources"));
    QCOMPARE(properties, QString("100 100 100 100 110 "));
    QVERIFY(m_widget->findChildren<QMenu*>().isEmpty());
}

void TstSubJobWidgetScps::menuEntryCallsTheModel_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("counts");
    QTest::newRow("Select All") << 0 << "1 1 0";
    QTest::newRow("Select All (Max)") << 1 << "2 3 0";
    QTest::newRow("Clear All") << 2 << "0 0 0";
}

void TstSubJobWidgetScps::menuEntryCallsTheModel()
{
    QFETCH(int, entry);
    QFETCH(QString, counts);
    m_widget->setSCPModel(m_scps.get());
    m_scps->setSelectionCount(m_scps->getResources().value(1), 2);
    PopupDriver driver([entry](QMenu* menu) {
        menu->setActiveAction(menu->actions().value(entry));
        QTest::keyClick(menu, Qt::Key_Enter);
    });
    requestMenu(QPoint(1, 1));
    QCOMPARE(driver.menus(), 1);
    QStringList found;
    for (int row = 0; row < 3; ++row)
        found << m_scps->index(row, 1).data().toString();
    QCOMPARE(found.join(' '), counts);
}

void TstSubJobWidgetScps::menuRunsAtThePoint()
{
    m_widget->setSCPModel(m_scps.get());
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    m_widget->move(40, 30);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    QPoint pos;
    PopupDriver driver([&pos](QMenu* menu) { pos = menu->pos(); });
    const QPoint where(23, 31);
    QContextMenuEvent event(QContextMenuEvent::Mouse, where, fields().scps()->viewport()->mapToGlobal(where));
    QApplication::sendEvent(fields().scps()->viewport(), &event);
    QCOMPARE(driver.menus(), 1);
    QCOMPARE(pos, fields().scps()->viewport()->mapToGlobal(where));
}

void TstSubJobWidgetScps::unavailableResourcesCanBeHidden()
{
    const auto list = resources({"P 2", "A 2 P", "B 2 P", "C 1", "D 0"});
    SelectableResourceModel scps(list, nullptr);
    m_widget->setSCPModel(&scps);
    const QAbstractItemModel* shown = fields().scps()->model();
    QCOMPARE(shown->rowCount(), 5);
    const auto choose = [this](bool wasChecked) {
        PopupDriver driver([wasChecked](QMenu* menu) {
            QAction* hide = menu->actions().value(4);
            QCOMPARE(hide->isChecked(), wasChecked);
            menu->setActiveAction(hide);
            QTest::keyClick(menu, Qt::Key_Enter);
        });
        requestMenu(QPoint(1, 1));
        QCOMPARE(driver.menus(), 1);
    };
    choose(false);
    QCOMPARE(shown->rowCount(), 4);

    // What A takes, its parent and its sibling have no more: 0 for P, below 0 for B.
    QVERIFY(scps.setSelectionCount(list[1], 2));
    QVERIFY(scps.setReservationCount(list[2], 1));
    QCOMPARE(scps.getMaxCount(list[0]), 0);
    QCOMPARE(scps.getMaxCount(list[2]), -1);
    QStringList rows;
    for (int row = 0; row < shown->rowCount(); ++row)
        rows << shown->index(row, 0).data().toString() + " " + shown->index(row, 2).data().toString();
    QCOMPARE(rows.join('|'), QString("A 2|C 1"));
    choose(true);
    QCOMPARE(shown->rowCount(), 5);
}

void TstSubJobWidgetScps::tableOfHiddenScpsStays()
{
    SelectableResourceModel scps(resources({"D 0"}), nullptr);
    m_widget->setSCPModel(&scps);
    auto* shown = qobject_cast<JEDVEPLUGIN::FilterIntegerRangeProxyModel*>(fields().scps()->model());
    shown->enableRangeFilter();
    QCOMPARE(shown->rowCount(), 0);
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type scps"));
    scps.setResources({});
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type"));
}

void TstSubJobWidgetScps::menuWithoutSuchAModel()
{
    QStandardItemModel other(2, 3);
    for (QAbstractItemModel* model :
         {static_cast<QAbstractItemModel*>(nullptr), static_cast<QAbstractItemModel*>(&other)}) {
        m_widget->setSCPModel(model);
        QString enabled;
        PopupDriver driver([&enabled](QMenu* menu) {
            for (const QAction* action : menu->actions())
                enabled += action->isEnabled() ? "1" : "0";
        });
        requestMenu(QPoint(1, 1));
        QCOMPARE(driver.menus(), 1);
        QCOMPARE(enabled, QString("00011"));
    }
}

void TstSubJobWidgetScps::widgetMayGoWhileTheMenuIsOpen()
{
    m_widget->setSCPModel(m_scps.get());
    const QPointer<SubJobWidget> alive(m_widget.get());
    QTimer::singleShot(50, this, [this] {
        QVERIFY(QApplication::activePopupWidget());
        m_widget.reset();
    });
    requestMenu(QPoint(1, 1));
    QVERIFY(!alive);
    QVERIFY(!QApplication::activePopupWidget());
}

void TstSubJobWidgetScps::headerBoxChoosesAScp()
{
    m_widget->setSCPModel(m_scps.get());
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    const QHeaderView* header = fields().scps()->verticalHeader();
    const QPoint second(3, header->sectionViewportPosition(1) + 3);
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, second);
    QCOMPARE(m_scps->getSelectionCount(m_scps->getResources().value(1)), 1);
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, second);
    QCOMPARE(m_scps->getSelectionCount(nullptr), 0);
}

void TstSubJobWidgetScps::scpsAreSortedByTheHeader()
{
    m_widget->setSCPModel(m_scps.get());
    const QAbstractItemModel* shown = fields().scps()->model();
    const auto names = [shown] {
        QStringList texts;
        for (int row = 0; row < shown->rowCount(); ++row)
            texts << shown->index(row, 0).data().toString();
        return texts.join(' ');
    };
    QCOMPARE(names(), QString("A B C"));
    fields().scps()->sortByColumn(2, Qt::DescendingOrder);
    QCOMPARE(names(), QString("B A C"));
    // Sorted anew when the maxima change.
    m_scps->disableResource(m_scps->getResources().value(1));
    QCOMPARE(names().left(1), QString("A"));
}

JED_TEST_MAIN(TstSubJobWidgetScps)
#include "tst_subjobwidget_scps.moc"
