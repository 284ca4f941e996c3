#include "selectableresourcemodel.h"

#include <support/resourcemodelfixture.h>

#include <climits>

using JedTest::DescriptionPtr;
using JedTest::names;
using JedTest::resources;
using JedTest::rows;
using JEDVEPLUGIN::SelectableResourceModel;

class TstSelectableResourceCounts : public QObject, private JedTest::ResourceModelFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void childrenShareTheQuantityOfTheirParent();
    void reservationsUseUpQuantity();
    void ownCountIsLeftOutOfTheMaximum();
    void reservationLowersTheCount();
    void maximumAndCountBelowZero();
    void quantitiesBeyondTheRangeOfAnInt();
    void settingACount_data();
    void settingACount();
    void selecting_data();
    void selecting();
    void unselecting_data();
    void unselecting();
    void reserving_data();
    void reserving();
    void countsAreWrittenThroughSetData();
    void countOfNothingIsTheSumOfAll();
};

void TstSelectableResourceCounts::childrenShareTheQuantityOfTheirParent()
{
    load({"P 4", "C1 4 P", "C2 4 P", "G 9 C2"});
    QCOMPARE(rows(*m_model), QString("P 0/4 C1 0/4 C2 0/4 G 0/4"));
    QVERIFY(m_model->setSelectionCount(find("C1"), 3));
    QCOMPARE(rows(*m_model), QString("P 0/1 C1 3/4 C2 0/1 G 0/1"));
    QVERIFY(m_model->setSelectionCount(find("G"), 1));
    QCOMPARE(rows(*m_model), QString("P 0/0 C1 3/3 C2 0/0 G 1/1"));
    QVERIFY(m_model->setSelectionCount(find("C1"), 0));
    QCOMPARE(rows(*m_model), QString("P 0/3 C1 0/3 C2 0/3 G 1/4"));
    QVERIFY(m_model->setSelectionCount(find("P"), 2));
    QCOMPARE(rows(*m_model), QString("P 2/3 C1 0/1 C2 0/1 G 1/2"));
}

void TstSelectableResourceCounts::reservationsUseUpQuantity()
{
    load({"P 5", "C1 3 P", "C2 4 P"});
    QVERIFY(m_model->setReservationCount(find("C1"), 2));
    QCOMPARE(rows(*m_model), QString("P 0/3 C1 0/1 C2 0/3"));
    QVERIFY(m_model->setReservationCount(find("P"), 2));
    QCOMPARE(rows(*m_model), QString("P 0/1 C1 0/1 C2 0/1"));
    QCOMPARE(m_model->getReservationCount(find("C1")), 2);
    QCOMPARE(m_model->getReservationCount(find("P")), 2);
    QCOMPARE(m_model->getReservationCount(find("C2")), 0);
}

void TstSelectableResourceCounts::ownCountIsLeftOutOfTheMaximum()
{
    load({"A 3"});
    for (int count = 1; count <= 3; ++count) {
        QVERIFY(m_model->setSelectionCount(find("A"), count));
        QCOMPARE(m_model->getMaxCount(find("A")), 3);
    }
    // Its own reservation is not.
    QVERIFY(m_model->setReservationCount(find("A"), 1));
    QCOMPARE(rows(*m_model), QString("A 2/2"));
}

void TstSelectableResourceCounts::reservationLowersTheCount()
{
    load({"P 4", "C1 4 P", "C2 4 P"});
    m_model->setSelectionCount(find("C1"), 3);
    QVERIFY(m_model->setReservationCount(find("C1"), 2));
    QCOMPARE(rows(*m_model), QString("P 0/0 C1 2/2 C2 0/0"));
    // Only its own count: what others have selected they keep.
    QVERIFY(m_model->setReservationCount(find("C2"), 1));
    QCOMPARE(rows(*m_model), QString("P 0/0 C1 2/2 C2 -1/-1"));
    // A smaller reservation raises no count.
    QVERIFY(m_model->setReservationCount(find("C1"), 0));
    QCOMPARE(rows(*m_model), QString("P 0/2 C1 2/4 C2 -1/1"));
}

void TstSelectableResourceCounts::maximumAndCountBelowZero()
{
    load({"P 4", "C1 4 P", "C2 4 P"});
    m_model->setSelectionCount(find("C1"), 3);
    QVERIFY(m_model->setReservationCount(find("C2"), 2));
    QCOMPARE(rows(*m_model), QString("P 0/0 C1 3/3 C2 -1/-1"));
    QCOMPARE(m_model->headerData(2, Qt::Vertical, Qt::CheckStateRole), QVariant(0));
    QCOMPARE(names(m_model->getSelectedResources()), QString("C1"));
    QCOMPARE(m_model->getSelectionCount(nullptr), 2);
    QCOMPARE(m_model->flags(m_model->index(2, 1)), Qt::ItemFlags(Qt::ItemIsSelectable));
    // Nothing is within 0 to a maximum below 0.
    QVERIFY(!m_model->setSelectionCount(find("C2"), 0));
    QVERIFY(!m_model->setSelectionCount(find("C2"), -1));
    QVERIFY(!m_model->selectResource(find("C2"), 1));
    QVERIFY(!m_model->unselectResource(find("C2"), -1));
    QVERIFY(!m_model->setHeaderData(2, Qt::Vertical, 2, Qt::CheckStateRole));
    QVERIFY(!m_model->setHeaderData(2, Qt::Vertical, 0, Qt::CheckStateRole));
    QCOMPARE(rows(*m_model), QString("P 0/0 C1 3/3 C2 -1/-1"));
    // The count stays below 0 when there is room again, until it is written.
    QVERIFY(m_model->setReservationCount(find("C2"), 0));
    QCOMPARE(rows(*m_model), QString("P 0/2 C1 3/4 C2 -1/1"));
    QCOMPARE(names(m_model->getCreateableResources()), QString("P C1 C2"));
    // A count below the maximum is not enough where that offers nothing.
    QVERIFY(m_model->setReservationCount(find("C2"), 1));
    QCOMPARE(rows(*m_model), QString("P 0/1 C1 3/4 C2 -1/0"));
    QCOMPARE(names(m_model->getCreateableResources()), QString("P C1"));
    QVERIFY(m_model->setReservationCount(find("C2"), 0));
    QVERIFY(m_model->unselectResource(find("C2"), -1));
    QCOMPARE(rows(*m_model), QString("P 0/1 C1 3/4 C2 0/1"));
}

void TstSelectableResourceCounts::quantitiesBeyondTheRangeOfAnInt()
{
    const QString most = QString::number(INT_MAX);
    load({"A " + most, "B " + most, "P 5", "Q " + most + " P", "R " + most + " P", "S " + most + " P"});
    QVERIFY(m_model->setSelectionCount(find("A"), INT_MAX));
    QVERIFY(m_model->setSelectionCount(find("B"), INT_MAX));
    QCOMPARE(m_model->getSelectionCount(nullptr), INT_MAX);
    QVERIFY(!m_model->selectResource(find("A"), INT_MAX));
    QVERIFY(!m_model->selectResource(find("A"), INT_MIN));
    QVERIFY(!m_model->unselectResource(find("A"), INT_MIN));
    QCOMPARE(m_model->getSelectionCount(find("A")), INT_MAX);
    for (const char* each : {"Q", "R", "S"}) {
        QVERIFY(m_model->setReservationCount(find(each), INT_MAX));
        m_model->disableResource(find(each));
    }
    QCOMPARE(m_model->getMaxCount(find("P")), INT_MIN);
    QVERIFY(m_model->unselectResource(find("A"), INT_MAX));
    QCOMPARE(m_model->getSelectionCount(find("A")), 0);
}

void TstSelectableResourceCounts::settingACount_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("taken");
    QTest::newRow("first") << 0 << 1 << true;
    QTest::newRow("maximum") << 0 << 4 << true;
    QTest::newRow("maximum and one") << 0 << 5 << false;
    QTest::newRow("the same") << 2 << 2 << false;
    QTest::newRow("the same 0") << 0 << 0 << false;
    QTest::newRow("back to 0") << 3 << 0 << true;
    QTest::newRow("negative") << 3 << -1 << false;
    QTest::newRow("largest") << 3 << INT_MAX << false;
}

void TstSelectableResourceCounts::settingACount()
{
    QFETCH(int, before);
    QFETCH(int, count);
    QFETCH(bool, taken);
    load({"A 4"});
    m_model->setSelectionCount(find("A"), before);
    QCOMPARE(m_model->setSelectionCount(find("A"), count), taken);
    QCOMPARE(m_model->getSelectionCount(find("A")), taken ? count : before);

    load({"A 4"});
    m_model->setData(m_model->index(0, 1), before);
    QCOMPARE(m_model->setData(m_model->index(0, 1), QString::number(count)), taken);
    QCOMPARE(m_model->getSelectionCount(find("A")), taken ? count : before);
}

void TstSelectableResourceCounts::selecting_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("after");
    // A result equal to the count before means that nothing is written, and false.
    QTest::newRow("one") << 0 << 1 << 1;
    QTest::newRow("further one") << 2 << 1 << 3;
    QTest::newRow("up to the maximum") << 1 << 3 << 4;
    QTest::newRow("beyond the maximum") << 1 << 9 << 4;
    QTest::newRow("largest") << 1 << INT_MAX << 4;
    QTest::newRow("none") << 2 << 0 << 2;
    QTest::newRow("at the maximum already") << 4 << 1 << 4;
    QTest::newRow("negative lowers") << 3 << -2 << 1;
    QTest::newRow("negative below 0") << 3 << -4 << 3;
}

void TstSelectableResourceCounts::selecting()
{
    QFETCH(int, before);
    QFETCH(int, n);
    QFETCH(int, after);
    load({"A 4"});
    m_model->setSelectionCount(find("A"), before);
    QCOMPARE(m_model->selectResource(find("A"), n), before != after);
    QCOMPARE(m_model->getSelectionCount(find("A")), after);
}

void TstSelectableResourceCounts::unselecting_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("after");
    QTest::newRow("one") << 2 << 1 << 1;
    QTest::newRow("all by number") << 2 << 2 << 0;
    QTest::newRow("more than there are") << 2 << 5 << 0;
    QTest::newRow("largest") << 2 << INT_MAX << 0;
    QTest::newRow("all by -1") << 3 << -1 << 0;
    QTest::newRow("none") << 2 << 0 << 2;
    QTest::newRow("none there") << 0 << 1 << 0;
    QTest::newRow("none there by -1") << 0 << -1 << 0;
    QTest::newRow("negative raises") << 1 << -2 << 3;
    QTest::newRow("negative beyond the maximum") << 1 << -4 << 1;
}

void TstSelectableResourceCounts::unselecting()
{
    QFETCH(int, before);
    QFETCH(int, n);
    QFETCH(int, after);
    load({"A 4"});
    m_model->setSelectionCount(find("A"), before);
    QCOMPARE(m_model->unselectResource(find("A"), n), before != after);
    QCOMPARE(m_model->getSelectionCount(find("A")), after);
}

void TstSelectableResourceCounts::reserving_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("n");
    QTest::addColumn<bool>("taken");
    QTest::newRow("one") << 0 << 1 << true;
    QTest::newRow("the quantity, though it is more than the maximum") << 0 << 4 << true;
    QTest::newRow("the quantity and one") << 0 << 5 << false;
    QTest::newRow("the same") << 2 << 2 << false;
    QTest::newRow("the same 0") << 0 << 0 << false;
    QTest::newRow("back to 0") << 2 << 0 << true;
    QTest::newRow("negative") << 2 << -1 << false;
}

void TstSelectableResourceCounts::reserving()
{
    QFETCH(int, before);
    QFETCH(int, n);
    QFETCH(bool, taken);
    load({"P 2", "C 4 P"});
    m_model->setReservationCount(find("C"), before);
    m_signals->take();
    QCOMPARE(m_model->setReservationCount(find("C"), n), taken);
    QCOMPARE(m_model->getReservationCount(find("C")), taken ? n : before);
    QCOMPARE(m_signals->take(), taken ? QString("data 0.0-1.2, vertical header 0-1") : QString());
}

void TstSelectableResourceCounts::countsAreWrittenThroughSetData()
{
    class Watched : public SelectableResourceModel
    {
    public:
        using SelectableResourceModel::SelectableResourceModel;
        bool setData(const QModelIndex& index, const QVariant& value, int role) override
        {
            m_log << QString("%1.%2 %3 %4").arg(index.row()).arg(index.column()).arg(value.toInt()).arg(role);
            return m_answer && SelectableResourceModel::setData(index, value, role);
        }
        QStringList m_log;
        bool m_answer = true;
    };
    const QList<DescriptionPtr> descriptions = resources({"A 1", "B 4"});
    Watched model(descriptions, nullptr);
    QVERIFY(model.selectResource(descriptions.at(1), 9));
    QVERIFY(model.unselectResource(descriptions.at(1), 1));
    QVERIFY(model.unselectResource(descriptions.at(1), -1));
    QVERIFY(model.setSelectionCount(descriptions.at(1), 2));
    QVERIFY(!model.setSelectionCount(descriptions.at(1), 7));
    QCOMPARE(model.m_log, QStringList({"1.1 4 2", "1.1 3 2", "1.1 0 2", "1.1 2 2", "1.1 7 2"}));
    model.m_answer = false;
    QVERIFY(!model.selectResource(descriptions.at(0), 1));
    QCOMPARE(rows(model), QString("A 0/1 B 2/4"));
}

void TstSelectableResourceCounts::countOfNothingIsTheSumOfAll()
{
    load({"A 4", "B 3", "C 2"});
    QCOMPARE(m_model->getSelectionCount(nullptr), 0);
    m_model->setSelectionCount(find("A"), 3);
    m_model->setSelectionCount(find("C"), 2);
    QCOMPARE(m_model->getSelectionCount(nullptr), 5);
    QCOMPARE(m_model->getSelectionCount(find("B")), 0);
}

QTEST_GUILESS_MAIN(TstSelectableResourceCounts)
#include "tst_selectableresourcecounts.moc"
