#include "selectableresourcemodel.h"

#include <support/resourcemodelfixture.h>
#include <support/shoutingtranslator.h>

#include <QStandardItemModel>

using JedTest::DescriptionPtr;
using JedTest::names;
using JedTest::resource;
using JedTest::resources;
using JedTest::rows;
using JEDVEPLUGIN::ResourceDescription;
using JEDVEPLUGIN::SelectableResourceModel;

class TstSelectableResourceModel : public QObject, private JedTest::ResourceModelFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void classIsKnownToQt();
    void emptyModelStaysSilent();
    void constructorsTakeParentAndResources();
    void columnsOfARow();
    void dataForOtherRolesAndIndexes();
    void headers();
    void headersAreTranslated();
    void checkStateFollowsTheCount();
    void tableHasNoChildren();
    void resettingStartsAfresh();
    void descriptionsInRowOrder();
    void unknownDescriptionChangesNothing();
    void equalContentsAreAnotherResource();
    void onlyTheCountCanBeEdited();
    void headerBoxToggles_data();
    void headerBoxToggles();
    void headerBoxRefusesOtherRequests();
    void disabledResourceOffersNothing();
    void flagsOfARow();
    void selectableAndCreateable();
    void everyChangeRefreshesTheTable();
    void unchangedStateIsSilent();
    void viewsSeeTheNewStateInTheSignal();
    void selectAllMakesCountsOne();
    void selectAllMaxServesParentsFirst();
    void deselectAllKeepsCountsThatCannotBeZero();
    void slotsRefreshOnceEvenWithoutChange();
};

void TstSelectableResourceModel::classIsKnownToQt()
{
    const QMetaObject& meta = SelectableResourceModel::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::SelectableResourceModel");
    QCOMPARE(meta.superClass(), &QAbstractTableModel::staticMetaObject);
    QStringList own;
    for (int method = meta.methodOffset(); method < meta.methodCount(); ++method) {
        QCOMPARE(meta.method(method).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(method).access(), QMetaMethod::Public);
        own << QString::fromLatin1(meta.method(method).methodSignature());
    }
    QCOMPARE(own, QStringList({"slotSelectAll()", "slotSelectAllMax()", "slotDeselectAll()"}));
}

void TstSelectableResourceModel::emptyModelStaysSilent()
{
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_model->columnCount(), 3);
    m_model->slotSelectAll();
    m_model->slotSelectAllMax();
    m_model->slotDeselectAll();
    QCOMPARE(m_signals->take(), QString());
    QVERIFY(m_model->getResources().isEmpty());
    QVERIFY(m_model->getSelectedResources().isEmpty());
    QVERIFY(m_model->getCreateableResources().isEmpty());
    QCOMPARE(m_model->getSelectionCount(nullptr), 0);
    QVERIFY(!m_model->headerData(0, Qt::Vertical, Qt::CheckStateRole).isValid());
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, 2, Qt::CheckStateRole));
    m_model->setResources({});
    QCOMPARE(m_signals->take(), QString("about to reset, reset"));
}

void TstSelectableResourceModel::constructorsTakeParentAndResources()
{
    QObject parent;
    auto* empty = new SelectableResourceModel(&parent);
    QCOMPARE(empty->parent(), &parent);
    QCOMPARE(empty->rowCount(), 0);
    auto* filled = new SelectableResourceModel(resources({"A 2", "B 1"}), &parent);
    QCOMPARE(filled->parent(), &parent);
    QCOMPARE(rows(*filled), QString("A 0/2 B 0/1"));
}

void TstSelectableResourceModel::columnsOfARow()
{
    load({"A 3"});
    for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
        QCOMPARE(m_model->index(0, 0).data(role), QVariant(QString("A")));
        QCOMPARE(m_model->index(0, 1).data(role), QVariant(0));
        QCOMPARE(m_model->index(0, 2).data(role), QVariant(3));
    }
    // An int, so that the usual editor is a spin box.
    QCOMPARE(m_model->index(0, 1).data(Qt::EditRole).userType(), int(QMetaType::Int));
}

void TstSelectableResourceModel::dataForOtherRolesAndIndexes()
{
    load({"A 3"});
    for (const int role : {Qt::ToolTipRole, Qt::CheckStateRole, Qt::TextAlignmentRole, Qt::UserRole})
        QVERIFY(!m_model->index(0, 1).data(role).isValid());
    QVERIFY(!m_model->data(QModelIndex()).isValid());
    QStandardItemModel wide(4, 5);
    QVERIFY(!m_model->data(wide.index(0, 3)).isValid());
    QVERIFY(!m_model->data(wide.index(3, 0)).isValid());
}

void TstSelectableResourceModel::headers()
{
    load({"A 3", "B 1"});
    QCOMPARE(m_model->headerData(0, Qt::Horizontal), QVariant(QString("Base Resource")));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal), QVariant(QString("Count")));
    QCOMPARE(m_model->headerData(2, Qt::Horizontal), QVariant(QString("Max Count")));
    QVERIFY(!m_model->headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(-1, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::CheckStateRole).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QCOMPARE(m_model->headerData(1, Qt::Vertical, Qt::CheckStateRole), QVariant(0));
    QVERIFY(!m_model->headerData(2, Qt::Vertical, Qt::CheckStateRole).isValid());
    QVERIFY(!m_model->headerData(-1, Qt::Vertical, Qt::CheckStateRole).isValid());
}

void TstSelectableResourceModel::headersAreTranslated()
{
    auto translator = std::make_unique<JedTest::ShoutingTranslator>();
    const QString count = m_model->headerData(1, Qt::Horizontal).toString();
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    const QString countOfTree = tree->headerData(1, Qt::Horizontal).toString();
    translator.reset();
    QCOMPARE(count, QString("JEDVEPLUGIN::SelectableResourceModel|COUNT"));
    QCOMPARE(countOfTree, QString("Count"));
}

void TstSelectableResourceModel::checkStateFollowsTheCount()
{
    load({"A 3"});
    const auto state = [this] { return m_model->headerData(0, Qt::Vertical, Qt::CheckStateRole); };
    QCOMPARE(state(), QVariant(0));
    QVERIFY(m_model->setSelectionCount(find("A"), 1));
    QCOMPARE(state(), QVariant(2));
    QVERIFY(m_model->setSelectionCount(find("A"), 3));
    QCOMPARE(state(), QVariant(2));
    QVERIFY(m_model->setSelectionCount(find("A"), 0));
    QCOMPARE(state(), QVariant(0));
}

void TstSelectableResourceModel::tableHasNoChildren()
{
    load({"P 3", "C 2 P"});
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(m_model->rowCount(m_model->index(0, 0)), 0);
    QCOMPARE(m_model->columnCount(m_model->index(0, 0)), 0);
    QVERIFY(!m_model->index(1, 0).parent().isValid());
}

void TstSelectableResourceModel::resettingStartsAfresh()
{
    load({"A 3", "B 2"});
    m_model->setSelectionCount(find("A"), 2);
    m_model->setReservationCount(find("A"), 1);
    m_model->disableResource(find("B"));
    m_signals->take();
    m_model->setResources(m_descriptions);
    QCOMPARE(m_signals->take(), QString("about to reset, reset"));
    QCOMPARE(rows(*m_model), QString("A 0/3 B 0/2"));
    QCOMPARE(m_model->getReservationCount(find("A")), 0);
    const DescriptionPtr gone = find("A");
    m_model->setResources(resources({"C 1"}));
    QCOMPARE(rows(*m_model), QString("C 0/1"));
    QCOMPARE(m_model->getMaxCount(gone), 0);
}

void TstSelectableResourceModel::descriptionsInRowOrder()
{
    load({"B 1", "A 1", "C 1 A"});
    QCOMPARE(names(m_model->getResources()), QString("A C B"));
    QCOMPARE(m_model->getResources().first(), find("A"));
    QVERIFY(m_model->getSelectedResources().isEmpty());
    m_model->setSelectionCount(find("B"), 1);
    QCOMPARE(names(m_model->getSelectedResources()), QString("B"));
}

void TstSelectableResourceModel::unknownDescriptionChangesNothing()
{
    load({"A 3"});
    m_model->setSelectionCount(find("A"), 1);
    m_signals->take();
    for (const DescriptionPtr& unknown : {DescriptionPtr(), resource("T", "Z", QString(), 5)}) {
        QVERIFY(!m_model->isSelectable(unknown));
        QCOMPARE(m_model->getMaxCount(unknown), 0);
        QVERIFY(!m_model->selectResource(unknown, 1));
        QVERIFY(!m_model->unselectResource(unknown, 1));
        QVERIFY(!m_model->setSelectionCount(unknown, 1));
        QVERIFY(!m_model->setReservationCount(unknown, 1));
        QCOMPARE(m_model->getReservationCount(unknown), 0);
        QCOMPARE(m_model->getSelectionCount(unknown), unknown ? 0 : 1);
        m_model->disableResource(unknown);
        m_model->enableResource(unknown);
    }
    QCOMPARE(m_signals->take(), QString());
    QCOMPARE(rows(*m_model), QString("A 1/3"));
}

void TstSelectableResourceModel::equalContentsAreAnotherResource()
{
    load({"A 3"});
    const auto copy = std::make_shared<ResourceDescription>(*find("A"));
    QVERIFY(!m_model->selectResource(copy, 1));
    QCOMPARE(m_model->getMaxCount(copy), 0);
    QVERIFY(m_model->selectResource(find("A"), 1));
}

void TstSelectableResourceModel::onlyTheCountCanBeEdited()
{
    load({"A 4"});
    QVERIFY(!m_model->setData(m_model->index(0, 0), 1));
    QVERIFY(!m_model->setData(m_model->index(0, 2), 1));
    QVERIFY(!m_model->setData(m_model->index(0, 1), 1, Qt::DisplayRole));
    QVERIFY(!m_model->setData(m_model->index(0, 1), 1, Qt::CheckStateRole));
    QVERIFY(!m_model->setData(QModelIndex(), 1));
    QVERIFY(!m_model->setData(m_model->index(0, 1), "many"));
    QVERIFY(!m_model->setData(m_model->index(0, 1), QVariant()));
    QCOMPARE(m_signals->take(), QString());
    QVERIFY(m_model->setData(m_model->index(0, 1), 2));
    // What is no number counts as 0.
    QVERIFY(m_model->setData(m_model->index(0, 1), QVariant()));
    QCOMPARE(rows(*m_model), QString("A 0/4"));
}

void TstSelectableResourceModel::headerBoxToggles_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<int>("after");
    QTest::newRow("check") << 0 << QVariant(2) << 1;
    QTest::newRow("check as text") << 0 << QVariant("2") << 1;
    QTest::newRow("check when checked") << 1 << QVariant(2) << 0;
    QTest::newRow("check with several") << 2 << QVariant(2) << 0;
    QTest::newRow("uncheck") << 1 << QVariant(0) << 0;
    QTest::newRow("uncheck with several") << 3 << QVariant(0) << 0;
    QTest::newRow("partially") << 2 << QVariant(1) << 0;
    QTest::newRow("uncheck when unchecked") << 0 << QVariant(0) << 0;
}

void TstSelectableResourceModel::headerBoxToggles()
{
    QFETCH(int, before);
    QFETCH(QVariant, state);
    QFETCH(int, after);
    load({"A 1", "B 4", "C 1"});
    m_model->setSelectionCount(find("B"), before);
    m_signals->take();
    QVERIFY(m_model->setHeaderData(1, Qt::Vertical, state, Qt::CheckStateRole));
    QCOMPARE(m_model->getSelectionCount(find("B")), after);
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-1"));
}

void TstSelectableResourceModel::headerBoxRefusesOtherRequests()
{
    load({"A 4", "B 0"});
    QVERIFY(!m_model->setHeaderData(0, Qt::Horizontal, 2, Qt::CheckStateRole));
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, 2, Qt::EditRole));
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, 2));
    QVERIFY(!m_model->setHeaderData(-1, Qt::Vertical, 2, Qt::CheckStateRole));
    QVERIFY(!m_model->setHeaderData(2, Qt::Vertical, 2, Qt::CheckStateRole));
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, QVariant(), Qt::CheckStateRole));
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, QVariant(QVariant::Int), Qt::CheckStateRole));
    // Nothing there to be selected.
    QVERIFY(!m_model->setHeaderData(1, Qt::Vertical, 2, Qt::CheckStateRole));
    QCOMPARE(m_signals->take(), QString());
    QCOMPARE(rows(*m_model), QString("A 0/4 B 0/0"));
}

void TstSelectableResourceModel::disabledResourceOffersNothing()
{
    load({"P 4", "C 3 P"});
    m_model->setSelectionCount(find("C"), 2);
    m_model->setReservationCount(find("C"), 1);
    m_signals->take();
    m_model->disableResource(find("C"));
    QCOMPARE(m_signals->take(), QString("data 0.0-1.2, vertical header 0-1"));
    // Its count is given back, its reservation is not.
    QCOMPARE(rows(*m_model), QString("P 0/3 C 0/0"));
    QCOMPARE(m_model->getReservationCount(find("C")), 1);
    QVERIFY(!m_model->isSelectable(find("C")));
    QVERIFY(!m_model->selectResource(find("C"), 1));
    QVERIFY(!m_model->setHeaderData(1, Qt::Vertical, 2, Qt::CheckStateRole));
    QCOMPARE(names(m_model->getCreateableResources()), QString("P"));
    m_model->enableResource(find("C"));
    QCOMPARE(m_signals->take(), QString("data 0.0-1.2, vertical header 0-1"));
    QCOMPARE(rows(*m_model), QString("P 0/3 C 0/2"));
    // A disabled parent still lends its quantity.
    m_model->disableResource(find("P"));
    QCOMPARE(rows(*m_model), QString("P 0/0 C 0/2"));
}

void TstSelectableResourceModel::flagsOfARow()
{
    load({"A 2", "B 0"});
    const Qt::ItemFlags shown = Qt::ItemIsSelectable;
    const Qt::ItemFlags enabled = shown | Qt::ItemIsEnabled;
    const auto flags = [this](int row, int column) { return m_model->flags(m_model->index(row, column)); };
    QCOMPARE(flags(0, 0), enabled);
    QCOMPARE(flags(0, 1), enabled | Qt::ItemIsEditable);
    QCOMPARE(flags(0, 2), enabled);
    for (int column = 0; column < 3; ++column)
        QCOMPARE(flags(1, column), shown);
    QCOMPARE(m_model->flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    m_model->disableResource(find("A"));
    for (int column = 0; column < 3; ++column)
        QCOMPARE(flags(0, column), shown);
}

void TstSelectableResourceModel::selectableAndCreateable()
{
    load({"A 2", "B 0", "C 1", "D 3"});
    m_model->setSelectionCount(find("A"), 1);
    m_model->setSelectionCount(find("C"), 1);
    m_model->disableResource(find("D"));
    QVERIFY(m_model->isSelectable(find("A")));
    QVERIFY(!m_model->isSelectable(find("B")));
    QVERIFY(m_model->isSelectable(find("C")));
    QVERIFY(!m_model->isSelectable(find("D")));
    QCOMPARE(names(m_model->getCreateableResources()), QString("A"));
    m_model->setSelectionCount(find("A"), 2);
    QVERIFY(m_model->getCreateableResources().isEmpty());
    QCOMPARE(names(m_model->getSelectedResources()), QString("A C"));
}

void TstSelectableResourceModel::everyChangeRefreshesTheTable()
{
    load({"A 2", "B 3", "C 1"});
    QVERIFY(m_model->setData(m_model->index(1, 1), 2));
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-1"));
    QVERIFY(m_model->selectResource(find("A"), 1));
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-0"));
    QVERIFY(m_model->unselectResource(find("B"), 1));
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-1"));
    QVERIFY(m_model->setSelectionCount(find("C"), 1));
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-2"));
    QVERIFY(m_model->setReservationCount(find("B"), 1));
    QCOMPARE(m_signals->take(), QString("data 0.0-2.2, vertical header 0-1"));
}

void TstSelectableResourceModel::unchangedStateIsSilent()
{
    load({"A 2"});
    QVERIFY(!m_model->setData(m_model->index(0, 1), 0));
    QVERIFY(!m_model->setData(m_model->index(0, 1), 3));
    m_model->enableResource(find("A"));
    QCOMPARE(m_signals->take(), QString());
    m_model->disableResource(find("A"));
    m_signals->take();
    m_model->disableResource(find("A"));
    QVERIFY(!m_model->setReservationCount(find("A"), 3));
    QCOMPARE(m_signals->take(), QString());
}

void TstSelectableResourceModel::viewsSeeTheNewStateInTheSignal()
{
    load({"P 4", "C 4 P"});
    QStringList seen;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this, [&] { seen << rows(*m_model); });
    connect(m_model.get(), &QAbstractItemModel::headerDataChanged, this, [&] { seen << rows(*m_model); });
    m_model->setSelectionCount(find("C"), 3);
    QCOMPARE(seen, QStringList({"P 0/1 C 3/4", "P 0/1 C 3/4"}));
}

void TstSelectableResourceModel::selectAllMakesCountsOne()
{
    load({"A 4", "B 0", "P 1", "Q 2 P"});
    m_model->setSelectionCount(find("A"), 3);
    m_model->slotSelectAll();
    // The parent takes the only one that it shares with its child.
    QCOMPARE(rows(*m_model), QString("A 1/4 B 0/0 P 1/1 Q 0/0"));
}

void TstSelectableResourceModel::selectAllMaxServesParentsFirst()
{
    load({"P 3", "C 2 P", "R 5", "S 2 R", "Z 7"});
    m_model->disableResource(find("Z"));
    m_model->setSelectionCount(find("S"), 2);
    m_model->slotSelectAllMax();
    QCOMPARE(rows(*m_model), QString("P 3/3 C 0/0 R 3/3 S 2/2 Z 0/0"));
    m_model->slotDeselectAll();
    QCOMPARE(rows(*m_model), QString("P 0/3 C 0/2 R 0/5 S 0/2 Z 0/0"));
}

void TstSelectableResourceModel::deselectAllKeepsCountsThatCannotBeZero()
{
    load({"P 4", "C1 4 P", "C2 4 P", "C3 4 P"});
    m_model->setSelectionCount(find("C1"), 3);
    // Disabling takes the counts below 0 away again; what is left are reservations of twice the quantity.
    for (const char* each : {"C2", "C3"}) {
        QVERIFY(m_model->setReservationCount(find(each), 4));
        m_model->disableResource(find(each));
    }
    m_model->enableResource(find("C2"));
    const QString overbooked("P 0/-7 C1 3/-4 C2 0/-7 C3 0/0");
    QCOMPARE(rows(*m_model), overbooked);
    m_model->slotDeselectAll();
    QCOMPARE(rows(*m_model), overbooked);
    m_model->slotSelectAll();
    QCOMPARE(rows(*m_model), overbooked);
    m_model->slotSelectAllMax();
    QCOMPARE(rows(*m_model), overbooked);
    QVERIFY(m_model->setReservationCount(find("C2"), 0));
    QVERIFY(m_model->setReservationCount(find("C3"), 0));
    m_model->slotDeselectAll();
    QCOMPARE(rows(*m_model), QString("P 0/4 C1 0/4 C2 0/4 C3 0/0"));
}

void TstSelectableResourceModel::slotsRefreshOnceEvenWithoutChange()
{
    load({"A 2", "B 0"});
    const QString refreshed("data 0.0-1.2, vertical header 0-1");
    m_model->slotDeselectAll();
    QCOMPARE(m_signals->take(), refreshed);
    m_model->slotSelectAll();
    QCOMPARE(m_signals->take(), refreshed);
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "slotSelectAllMax"));
    QCOMPARE(m_signals->take(), refreshed);
}

QTEST_GUILESS_MAIN(TstSelectableResourceModel)
#include "tst_selectableresourcemodel.moc"
