#include <support/changerecorder.h>
#include <values/valueselection.h>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstValueSelection : public QObject
{
    Q_OBJECT
private slots:
    void freshSelection();
    void itemsKeepTheirOrderAndNoneIsSelected();
    void sameItemsMayRepeat();
    void selectByKeyTakesTheFirst();
    void selectByPosition();
    void selectingWhatIsNotThere_data();
    void selectingWhatIsNotThere();
    void selectingTheSameTellsNobody();
    void deleteNeedsNameValueAndKey_data();
    void deleteNeedsNameValueAndKey();
    void deleteTakesTheFirstMatch();
    void deletingTheCurrentItemLeavesNone();
    void deletingAnotherItemKeepsTheCurrentOne();
    void deleteAll_data();
    void deleteAll();
    void whoMadeTheChangeIsNotTold();
    void itemsStayWhereTheyAre();
    void deletionBetweenItemsAndValue();
    void textForm();
    void leaving();
};

namespace {

void fill(ValueSelection& selection)
{
    selection.AddItem("AM", 1.5, 1);
    selection.AddItem("FM", 2.5, 2);
    selection.AddItem("USB", 3.5, 3);
}

QString describe(const ValueSelection& selection)
{
    QStringList items;
    for (int i = 0; i < selection.GetItemCount(); ++i) {
        const SelectionItem* const item = selection.GetItem(i);
        items.append(QString("%1=%2/%3%4")
                         .arg(item->GetName(), QString::number(item->GetValue()),
                              QString::number(item->GetKey()),
                              QString(item == selection.GetCurrentItem() ? "*" : "")));
    }
    return items.join(' ');
}

} // namespace

void TstValueSelection::freshSelection()
{
    const ValueSelection selection;
    QCOMPARE(selection.GetItemCount(), 0);
    QVERIFY(selection.GetCurrentItem() == nullptr);
    QCOMPARE(selection.GetCurrentValue(), 0.0);
    QCOMPARE(selection.GetCurrentIndex(), -1);
    QVERIFY(selection.GetItem(0) == nullptr);
    QVERIFY(selection.GetItemByKey(0) == nullptr);
}

void TstValueSelection::itemsKeepTheirOrderAndNoneIsSelected()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    selection.AddObserver(&a);
    QVERIFY(selection.AddItem("USB", 3.5, 3));
    QVERIFY(selection.AddItem("AM", -1.5, -1, nullptr));
    QCOMPARE(describe(selection), QString("USB=3.5/3 AM=-1.5/-1"));
    QCOMPARE(selection.GetCurrentIndex(), -1);
    QCOMPARE(takeAll(&log), QString("a:5 a:5"));
    QVERIFY(selection.GetItem(-1) == nullptr);
    QVERIFY(selection.GetItem(2) == nullptr);
    selection.DeleteObserver(&a);
}

void TstValueSelection::sameItemsMayRepeat()
{
    ValueSelection selection;
    selection.AddItem("A", 1, 1);
    selection.AddItem("A", 1, 1);
    QCOMPARE(describe(selection), QString("A=1/1 A=1/1"));
}

void TstValueSelection::selectByKeyTakesTheFirst()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    selection.AddItem("one", 1, 7);
    selection.AddItem("two", 2, 7);
    selection.AddObserver(&a);
    QVERIFY(selection.Select(7));
    QCOMPARE(describe(selection), QString("one=1/7* two=2/7"));
    QCOMPARE(takeAll(&log), QString("a:3"));
    QCOMPARE(selection.GetItemByKey(7), selection.GetItem(0));
    QCOMPARE(selection.GetCurrentValue(), 1.0);

    QVERIFY(selection.SelectIndex(1));
    QCOMPARE(selection.GetCurrentItem()->GetName(), QString("two"));
    QVERIFY(selection.Select(7));
    QCOMPARE(selection.GetCurrentItem()->GetName(), QString("one"));
    QCOMPARE(takeAll(&log), QString("a:3 a:3"));
    selection.DeleteObserver(&a);
}

void TstValueSelection::selectByPosition()
{
    ValueSelection selection;
    fill(selection);
    QVERIFY(selection.SelectIndex(2));
    QCOMPARE(describe(selection), QString("AM=1.5/1 FM=2.5/2 USB=3.5/3*"));
    QCOMPARE(selection.GetCurrentIndex(), 2);
    QCOMPARE(selection.GetCurrentItem()->GetKey(), 3L);
    QVERIFY(selection.SelectIndex(0));
    QCOMPARE(selection.GetCurrentIndex(), 0);
    QCOMPARE(selection.GetCurrentValue(), 1.5);
}

void TstValueSelection::selectingWhatIsNotThere_data()
{
    QTest::addColumn<bool>("isByKey");
    QTest::addColumn<int>("number");
    QTest::newRow("no such key") << true << 99;
    QTest::newRow("key -1") << true << -1;
    QTest::newRow("position -1") << false << -1;
    QTest::newRow("position behind the end") << false << 3;
}

void TstValueSelection::selectingWhatIsNotThere()
{
    QFETCH(bool, isByKey);
    QFETCH(int, number);
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.SelectIndex(1);
    selection.AddObserver(&a);
    QVERIFY(!(isByKey ? selection.Select(number) : selection.SelectIndex(number)));
    QCOMPARE(describe(selection), QString("AM=1.5/1 FM=2.5/2* USB=3.5/3"));
    QCOMPARE(takeAll(&log), QString());
    selection.DeleteObserver(&a);
}

void TstValueSelection::selectingTheSameTellsNobody()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.Select(2);
    selection.AddObserver(&a);
    QVERIFY(selection.Select(2));
    QVERIFY(selection.SelectIndex(1));
    QCOMPARE(takeAll(&log), QString());
    selection.DeleteObserver(&a);
}

void TstValueSelection::deleteNeedsNameValueAndKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("all equal") << "FM" << 2.5 << 2 << true;
    QTest::newRow("other name") << "fm" << 2.5 << 2 << false;
    QTest::newRow("other value") << "FM" << 2.0 << 2 << false;
    QTest::newRow("other key") << "FM" << 2.5 << 1 << false;
}

void TstValueSelection::deleteNeedsNameValueAndKey()
{
    QFETCH(QString, name);
    QFETCH(double, value);
    QFETCH(int, key);
    QFETCH(bool, isTaken);
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.AddObserver(&a);
    QCOMPARE(selection.DeleteItem(name, value, key), isTaken);
    QCOMPARE(selection.GetItemCount(), isTaken ? 2 : 3);
    QCOMPARE(takeAll(&log), QString(isTaken ? "a:5" : ""));
    selection.DeleteObserver(&a);
}

void TstValueSelection::deleteTakesTheFirstMatch()
{
    ValueSelection selection;
    selection.AddItem("A", 1, 1);
    selection.AddItem("B", 2, 2);
    selection.AddItem("A", 1, 1);
    selection.SelectIndex(2);
    QVERIFY(selection.DeleteItem("A", 1, 1));
    QCOMPARE(describe(selection), QString("B=2/2 A=1/1*"));
    selection.AddItem("odd", qQNaN(), 9);
    QVERIFY(selection.DeleteItem("odd", qQNaN(), 9));
    QCOMPARE(selection.GetItemCount(), 2);
}

void TstValueSelection::deletingTheCurrentItemLeavesNone()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.Select(2);
    selection.AddObserver(&a);
    QString seen;
    a.setAction([&](Observable*, TChangeCode) { seen += describe(selection) + ';'; });
    QVERIFY(selection.DeleteItem("FM", 2.5, 2));
    QCOMPARE(takeAll(&log), QString("a:5 a:3"));
    QCOMPARE(seen, QString("AM=1.5/1 USB=3.5/3;AM=1.5/1 USB=3.5/3;"));
    QVERIFY(selection.GetCurrentItem() == nullptr);
    QCOMPARE(selection.GetCurrentValue(), 0.0);
    QCOMPARE(selection.GetCurrentIndex(), -1);
    selection.DeleteObserver(&a);
}

void TstValueSelection::deletingAnotherItemKeepsTheCurrentOne()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.Select(3);
    selection.AddObserver(&a);
    QVERIFY(selection.DeleteItem("AM", 1.5, 1));
    QCOMPARE(describe(selection), QString("FM=2.5/2 USB=3.5/3*"));
    QCOMPARE(selection.GetCurrentIndex(), 1);
    QCOMPARE(takeAll(&log), QString("a:5"));
    selection.DeleteObserver(&a);
}

void TstValueSelection::deleteAll_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("told");
    QTest::newRow("with a current item") << 1 << "a:5 a:3";
    QTest::newRow("without a current item") << -1 << "a:5";
}

void TstValueSelection::deleteAll()
{
    QFETCH(int, current);
    QFETCH(QString, told);
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueSelection selection;
    fill(selection);
    selection.SelectIndex(current);
    selection.AddObserver(&a);
    QVERIFY(selection.DeleteItems());
    QCOMPARE(selection.GetItemCount(), 0);
    QVERIFY(selection.GetCurrentItem() == nullptr);
    QCOMPARE(takeAll(&log), told);
    QVERIFY(selection.DeleteItems());
    QCOMPARE(takeAll(&log), QString());
    selection.DeleteObserver(&a);
}

void TstValueSelection::whoMadeTheChangeIsNotTold()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueSelection selection;
    fill(selection);
    selection.AddObserver(&a);
    selection.AddObserver(&b);
    QVERIFY(selection.AddItem("LSB", 4.5, 4, &a));
    QCOMPARE(takeAll(&log), QString("b:5"));
    QVERIFY(selection.Select(4, &a));
    QCOMPARE(takeAll(&log), QString("b:3"));
    QVERIFY(selection.SelectIndex(1, &b));
    QCOMPARE(takeAll(&log), QString("a:3"));
    QVERIFY(selection.DeleteItem("FM", 2.5, 2, &a));
    QCOMPARE(takeAll(&log), QString("b:5 b:3"));
    QVERIFY(selection.Select(1));
    takeAll(&log);
    QVERIFY(selection.DeleteItems(&a));
    QCOMPARE(takeAll(&log), QString("b:5 b:3"));
    selection.DeleteObserver(&a);
    selection.DeleteObserver(&b);
}

void TstValueSelection::itemsStayWhereTheyAre()
{
    ValueSelection selection;
    fill(selection);
    selection.Select(3);
    const SelectionItem* const item = selection.GetCurrentItem();
    for (int i = 0; i < 1000; ++i)
        selection.AddItem("more", i, 100 + i);
    selection.DeleteItem("AM", 1.5, 1);
    QCOMPARE(selection.GetCurrentItem(), item);
    QCOMPARE(item->GetName(), QString("USB"));
    QCOMPARE(item->GetValue(), 3.5);
}

void TstValueSelection::deletionBetweenItemsAndValue()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    auto* const selection = new ValueSelection;
    fill(*selection);
    selection->Select(1);
    selection->AddObserver(&a);
    a.setAction([](Observable* sender, TChangeCode code) {
        if (code == CHANGE_ITEMS)
            delete sender;
    });
    QVERIFY(selection->DeleteItems());
    QCOMPARE(takeAll(&log), QString("a:5 a:2"));
}

void TstValueSelection::textForm()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueSelection selection;
    QCOMPARE(selection.GetText(), QString());
    QVERIFY(selection.SetText(QString()));
    fill(selection);
    selection.AddItem("FM", 9, 9);
    selection.AddObserver(&a);
    selection.AddObserver(&b);
    QVERIFY(selection.SetText("FM", &b));
    QCOMPARE(selection.GetCurrentIndex(), 1);
    QCOMPARE(selection.GetText(), QString("FM"));
    QCOMPARE(takeAll(&log), QString("a:3"));
    QVERIFY(!selection.SetText("CW"));
    QVERIFY(!selection.SetText(QString()));
    QCOMPARE(selection.GetText(), QString("FM"));
    QCOMPARE(takeAll(&log), QString());
    selection.DeleteObserver(&a);
    selection.DeleteObserver(&b);
}

void TstValueSelection::leaving()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    int count = 0;
    a.setAction([&](Observable* sender, TChangeCode) {
        const auto* const selection = dynamic_cast<ValueSelection*>(sender);
        QVERIFY(selection != nullptr);
        QCOMPARE(selection->GetState(), STATE_LEAVING);
        count = selection->GetItemCount();
    });
    {
        ValueSelection selection;
        fill(selection);
        selection.AddObserver(&a);
    }
    QCOMPARE(takeAll(&log), QString("a:2"));
    QCOMPARE(count, 3);
}

QTEST_GUILESS_MAIN(TstValueSelection)
#include "tst_valueselection.moc"
