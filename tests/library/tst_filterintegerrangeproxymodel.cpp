#include "filterintegerrangeproxymodel.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QStandardItemModel>

#include <climits>

using JEDVEPLUGIN::FilterIntegerRangeProxyModel;

namespace {

/// A row per list, a cell per value.
void fill(QStandardItemModel* model, const QList<QVariantList>& rows)
{
    for (const QVariantList& row : rows) {
        QList<QStandardItem*> items;
        for (const QVariant& value : row) {
            items << new QStandardItem;
            items.last()->setData(value, Qt::EditRole);
        }
        model->appendRow(items);
    }
}

QString firstColumn(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts << model.index(row, 0, parent).data().toString();
    return texts.join(' ');
}

} // namespace

class TstFilterIntegerRangeProxyModel : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void slotsAreInvokableByName();
    void disabledAtFirst();
    void valueOfTheKeyColumnDecides_data();
    void valueOfTheKeyColumnDecides();
    void rangeIsZeroToZeroAtFirst();
    void boundsBelongToTheRange();
    void rangeWithoutValuesHidesEveryNumber();
    void settingTheRangeSwitchesTheFilterOff();
    void everyColumnIsTestedWithoutKeyColumn();
    void keyColumnBeyondTheModelHidesNothing();
    void filterRoleIsUsed();
    void whatTheBaseRejectsStaysHidden();
    void childrenAreTestedUnderTheirParent();
    void columnsAreCountedUnderTheParent();
    void changedDataIsFilteredAnew();
    void switchingAnnouncesRows();

private:
    std::unique_ptr<QStandardItemModel> m_source;
    std::unique_ptr<FilterIntegerRangeProxyModel> m_filter;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TstFilterIntegerRangeProxyModel::init()
{
    m_source = std::make_unique<QStandardItemModel>();
    m_filter = std::make_unique<FilterIntegerRangeProxyModel>(nullptr);
    m_filter->setSourceModel(m_source.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_filter.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
}

void TstFilterIntegerRangeProxyModel::cleanup()
{
    m_tester.reset();
    m_filter.reset();
    m_source.reset();
}

void TstFilterIntegerRangeProxyModel::slotsAreInvokableByName()
{
    const QMetaObject& meta = FilterIntegerRangeProxyModel::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::FilterIntegerRangeProxyModel");
    QCOMPARE(meta.superClass(), &QSortFilterProxyModel::staticMetaObject);
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 2);
    QCOMPARE(meta.method(first).methodSignature(), QByteArray("enableRangeFilter(bool)"));
    QCOMPARE(meta.method(first + 1).methodSignature(), QByteArray("enableRangeFilter()"));

    fill(m_source.get(), {{1}, {0}});
    QVERIFY(QMetaObject::invokeMethod(m_filter.get(), "enableRangeFilter"));
    QCOMPARE(firstColumn(*m_filter), QString("0"));
    QVERIFY(QMetaObject::invokeMethod(m_filter.get(), "enableRangeFilter", Q_ARG(bool, false)));
    QCOMPARE(firstColumn(*m_filter), QString("1 0"));
}

void TstFilterIntegerRangeProxyModel::disabledAtFirst()
{
    fill(m_source.get(), {{-5}, {0}, {7}});
    m_filter->setRange(1, 2);
    QCOMPARE(firstColumn(*m_filter), QString("-5 0 7"));
}

void TstFilterIntegerRangeProxyModel::valueOfTheKeyColumnDecides_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("stays");
    // The range is 1 to 2147483647.
    QTest::newRow("below") << QVariant(0) << false;
    QTest::newRow("negative") << QVariant(-3) << false;
    QTest::newRow("lower bound") << QVariant(1) << true;
    QTest::newRow("inside") << QVariant(12) << true;
    QTest::newRow("upper bound") << QVariant(INT_MAX) << true;
    QTest::newRow("word") << QVariant("abc") << true;
    QTest::newRow("empty text") << QVariant("") << true;
    QTest::newRow("no data") << QVariant() << true;
    QTest::newRow("text of a number outside") << QVariant("0") << false;
    QTest::newRow("text of a number inside") << QVariant("5") << true;
    QTest::newRow("text of a number with blanks") << QVariant(" -5 ") << false;
    QTest::newRow("text of a fraction is no integer") << QVariant("-0.5") << true;
    QTest::newRow("fraction rounds up into the range") << QVariant(0.6) << true;
    QTest::newRow("fraction rounds down out of the range") << QVariant(0.4) << false;
    QTest::newRow("true is 1") << QVariant(true) << true;
    QTest::newRow("false is 0") << QVariant(false) << false;
    QTest::newRow("list is no integer") << QVariant(QStringList{"0"}) << true;
}

void TstFilterIntegerRangeProxyModel::valueOfTheKeyColumnDecides()
{
    QFETCH(QVariant, value);
    QFETCH(bool, stays);
    fill(m_source.get(), {{"row", 0, value}});
    m_filter->setRange(1, INT_MAX);
    m_filter->setFilterKeyColumn(2);
    m_filter->setDynamicSortFilter(true);
    m_filter->enableRangeFilter();
    QCOMPARE(m_filter->rowCount(), stays ? 1 : 0);
    m_filter->enableRangeFilter(false);
    QCOMPARE(m_filter->rowCount(), 1);
}

void TstFilterIntegerRangeProxyModel::rangeIsZeroToZeroAtFirst()
{
    fill(m_source.get(), {{-1}, {0}, {1}});
    m_filter->enableRangeFilter(true);
    QCOMPARE(firstColumn(*m_filter), QString("0"));
}

void TstFilterIntegerRangeProxyModel::boundsBelongToTheRange()
{
    fill(m_source.get(), {{INT_MIN}, {-4}, {-3}, {0}, {2}, {3}, {INT_MAX}});
    m_filter->setRange(-3, 2);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("-3 0 2"));
}

void TstFilterIntegerRangeProxyModel::rangeWithoutValuesHidesEveryNumber()
{
    fill(m_source.get(), {{1}, {2}, {"text"}});
    m_filter->setRange(2, 1);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("text"));
}

void TstFilterIntegerRangeProxyModel::settingTheRangeSwitchesTheFilterOff()
{
    fill(m_source.get(), {{1}, {2}, {3}});
    m_filter->setRange(1, 1);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("1"));
    m_filter->setRange(2, 3);
    QCOMPARE(firstColumn(*m_filter), QString("1 2 3"));
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("2 3"));
}

void TstFilterIntegerRangeProxyModel::everyColumnIsTestedWithoutKeyColumn()
{
    fill(m_source.get(),
         {{"inside", 2, 3}, {"first fails", 9, 2}, {"last fails", 2, 9}, {"words", "a", "b"}});
    m_filter->setRange(1, 5);
    m_filter->setFilterKeyColumn(-1);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("inside words"));
    m_filter->setFilterKeyColumn(1);
    QCOMPARE(firstColumn(*m_filter), QString("inside last fails words"));
}

void TstFilterIntegerRangeProxyModel::keyColumnBeyondTheModelHidesNothing()
{
    fill(m_source.get(), {{0}, {9}});
    m_filter->setRange(1, 5);
    m_filter->setFilterKeyColumn(4);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("0 9"));
}

void TstFilterIntegerRangeProxyModel::filterRoleIsUsed()
{
    fill(m_source.get(), {{0}, {9}});
    m_source->item(0)->setData(3, Qt::UserRole);
    m_source->item(1)->setData(7, Qt::UserRole);
    m_filter->setRange(1, 5);
    m_filter->setFilterRole(Qt::UserRole);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("0"));
}

void TstFilterIntegerRangeProxyModel::whatTheBaseRejectsStaysHidden()
{
    fill(m_source.get(), {{12}, {13}, {22}});
    m_filter->setRange(13, 30);
    m_filter->setFilterRegularExpression(QRegularExpression("2$"));
    QCOMPARE(firstColumn(*m_filter), QString("12 22"));
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("22"));
}

void TstFilterIntegerRangeProxyModel::childrenAreTestedUnderTheirParent()
{
    fill(m_source.get(), {{1}});
    m_source->item(0)->appendRow(new QStandardItem("3"));
    m_source->item(0)->appendRow(new QStandardItem("8"));
    m_filter->setRange(1, 5);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter), QString("1"));
    QCOMPARE(firstColumn(*m_filter, m_filter->index(0, 0)), QString("3"));
}

void TstFilterIntegerRangeProxyModel::columnsAreCountedUnderTheParent()
{
    fill(m_source.get(), {{1}});
    m_source->item(0)->appendRow({new QStandardItem("2"), new QStandardItem("9")});
    m_source->item(0)->appendRow({new QStandardItem("3"), new QStandardItem("4")});
    m_filter->setRange(1, 5);
    m_filter->setFilterKeyColumn(-1);
    m_filter->enableRangeFilter();
    QCOMPARE(firstColumn(*m_filter, m_filter->index(0, 0)), QString("3"));
}

void TstFilterIntegerRangeProxyModel::changedDataIsFilteredAnew()
{
    fill(m_source.get(), {{1}, {2}});
    m_filter->setRange(1, 5);
    m_filter->setDynamicSortFilter(true);
    m_filter->enableRangeFilter();
    m_source->item(0)->setData(0, Qt::EditRole);
    QCOMPARE(firstColumn(*m_filter), QString("2"));
    m_source->item(0)->setData(4, Qt::EditRole);
    QCOMPARE(firstColumn(*m_filter), QString("4 2"));
}

void TstFilterIntegerRangeProxyModel::switchingAnnouncesRows()
{
    fill(m_source.get(), {{0}, {1}, {0}});
    m_filter->setRange(1, 5);
    QSignalSpy removed(m_filter.get(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(m_filter.get(), &QAbstractItemModel::rowsInserted);
    m_filter->enableRangeFilter();
    QCOMPARE(removed.count(), 2);
    m_filter->enableRangeFilter();
    QCOMPARE(removed.count(), 2);
    QCOMPARE(inserted.count(), 0);
    m_filter->enableRangeFilter(false);
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(removed.count(), 2);
}

QTEST_GUILESS_MAIN(TstFilterIntegerRangeProxyModel)
#include "tst_filterintegerrangeproxymodel.moc"
