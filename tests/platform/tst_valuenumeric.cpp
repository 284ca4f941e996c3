#include <support/changerecorder.h>
#include <values/valuenumeric.h>

#include <limits>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstValueNumeric : public QObject
{
    Q_OBJECT
private slots:
    void freshBounds();
    void setters_data();
    void setters();
    void settersOfSixtyFourBits();
    void settersOfDoubles();
    void notANumberIsRefused();
    void infinityEndsAtABound();
    void whoMadeTheChangeIsNotTold();
    void textIsClampedToo();
    void copyOfValueThenRangeMayEndAtABound();
    void bothChangesAreMadeBeforeTheFirstIsTold();
    void deletionBetweenRangeAndValue();
    void doubleView();
    void settingThroughTheBaseIsClamped();
};

namespace {

/// Performs "setter number number …" on a numeric.
template <class Numeric>
bool perform(Numeric& value, const QString& call, IObserver* except = nullptr)
{
    using T = decltype(value.GetValue());
    const QStringList words = call.split(' ');
    QVector<T> numbers;
    for (int i = 1; i < words.size(); ++i)
        numbers.append(static_cast<T>(words.at(i).toDouble()));
    if (words.first() == "SetValue")
        return value.SetValue(numbers.value(0), except);
    if (words.first() == "SetMin")
        return value.SetMin(numbers.value(0), except);
    if (words.first() == "SetMax")
        return value.SetMax(numbers.value(0), except);
    if (words.first() == "SetStep")
        return value.SetStep(numbers.value(0), except);
    return value.SetMinMax(numbers.value(0), numbers.value(1), numbers.value(2), except);
}

template <class Numeric>
QString describe(const Numeric& value)
{
    return QString("%1 in %2..%3 by %4")
        .arg(QString::number(value.GetValue()), QString::number(value.GetMin()),
             QString::number(value.GetMax()), QString::number(value.GetStep()));
}

} // namespace

void TstValueNumeric::freshBounds()
{
    const NumericInt whole;
    QCOMPARE(whole.GetValue(), 0);
    QCOMPARE(whole.GetMin(), std::numeric_limits<int>::min());
    QCOMPARE(whole.GetMax(), std::numeric_limits<int>::max());
    QCOMPARE(whole.GetStep(), 1);
    const NumericInt64 big;
    QCOMPARE(big.GetMin(), std::numeric_limits<__int64>::min());
    QCOMPARE(big.GetMax(), std::numeric_limits<__int64>::max());
    QCOMPARE(big.GetStep(), __int64(1));
    const NumericDouble real;
    QCOMPARE(real.GetMin(), -std::numeric_limits<double>::max());
    QCOMPARE(real.GetMax(), std::numeric_limits<double>::max());
    QCOMPARE(real.GetStep(), 0.0);
}

/// Each row begins with the value 5 in the range 0..10 by 1.
void TstValueNumeric::setters_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("told");
    const QString start = "5 in 0..10 by 1";
    QTest::newRow("value inside") << "SetValue 7" << true << "7 in 0..10 by 1"
                                  << "3";
    QTest::newRow("value at the minimum") << "SetValue 0" << true << "0 in 0..10 by 1"
                                          << "3";
    QTest::newRow("value at the maximum") << "SetValue 10" << true << "10 in 0..10 by 1"
                                          << "3";
    QTest::newRow("value below") << "SetValue -1" << true << "0 in 0..10 by 1"
                                 << "3";
    QTest::newRow("value above") << "SetValue 11" << true << "10 in 0..10 by 1"
                                 << "3";
    QTest::newRow("same value") << "SetValue 5" << true << start << "";

    QTest::newRow("minimum up to the value") << "SetMin 5" << true << "5 in 5..10 by 1"
                                             << "4";
    QTest::newRow("minimum above the value") << "SetMin 6" << true << "6 in 6..10 by 1"
                                             << "4 3";
    QTest::newRow("minimum above the maximum") << "SetMin 12" << true << "12 in 12..12 by 1"
                                               << "4 3";
    QTest::newRow("minimum down") << "SetMin -3" << true << "5 in -3..10 by 1"
                                  << "4";
    QTest::newRow("same minimum") << "SetMin 0" << true << start << "";

    QTest::newRow("maximum down to the value") << "SetMax 5" << true << "5 in 0..5 by 1"
                                               << "4";
    QTest::newRow("maximum below the value") << "SetMax 4" << true << "4 in 0..4 by 1"
                                             << "4 3";
    QTest::newRow("maximum below the minimum") << "SetMax -2" << true << "-2 in -2..-2 by 1"
                                               << "4 3";
    QTest::newRow("maximum up") << "SetMax 99" << true << "5 in 0..99 by 1"
                                << "4";
    QTest::newRow("same maximum") << "SetMax 10" << true << start << "";

    QTest::newRow("step") << "SetStep 2" << true << "5 in 0..10 by 2"
                          << "4";
    QTest::newRow("step 0") << "SetStep 0" << true << "5 in 0..10 by 0"
                            << "4";
    QTest::newRow("step wider than the range") << "SetStep 50" << true << "5 in 0..10 by 50"
                                               << "4";
    QTest::newRow("same step") << "SetStep 1" << true << start << "";
    QTest::newRow("negative step") << "SetStep -1" << false << start << "";

    QTest::newRow("range round the value") << "SetMinMax 1 9 2" << true << "5 in 1..9 by 2"
                                           << "4";
    QTest::newRow("range above") << "SetMinMax 20 30 1" << true << "20 in 20..30 by 1"
                                 << "4 3";
    QTest::newRow("range below") << "SetMinMax -9 -1 1" << true << "-1 in -9..-1 by 1"
                                 << "4 3";
    QTest::newRow("range of one number") << "SetMinMax 5 5 1" << true << "5 in 5..5 by 1"
                                         << "4";
    QTest::newRow("only the step of the range") << "SetMinMax 0 10 3" << true << "5 in 0..10 by 3"
                                                << "4";
    QTest::newRow("same range") << "SetMinMax 0 10 1" << true << start << "";
    QTest::newRow("range upside down") << "SetMinMax 10 0 1" << false << start << "";
    QTest::newRow("range with a negative step") << "SetMinMax 2 8 -1" << false << start << "";
}

void TstValueNumeric::setters()
{
    QFETCH(QString, call);
    QFETCH(bool, isTaken);
    QFETCH(QString, after);
    QFETCH(QString, told);
    const auto check = [&](auto value) {
        QStringList log;
        ChangeRecorder a("", &log);
        value->SetMinMax(0, 10, 1);
        value->SetValue(5);
        value->AddObserver(&a);
        QCOMPARE(perform(*value, call), isTaken);
        QCOMPARE(describe(*value), after);
        QCOMPARE(takeAll(&log).remove(':'), told);
        value.reset();
    };
    check(std::make_unique<NumericInt>());
    check(std::make_unique<NumericInt64>());
    check(std::make_unique<NumericDouble>());
}

void TstValueNumeric::settersOfSixtyFourBits()
{
    NumericInt64 value;
    const __int64 beyondDoubles = 9007199254740993; // 2^53 + 1
    QVERIFY(value.SetMinMax(-beyondDoubles, beyondDoubles, beyondDoubles));
    QVERIFY(value.SetValue(std::numeric_limits<__int64>::max()));
    QCOMPARE(value.GetValue(), beyondDoubles);
    QVERIFY(value.SetValue(std::numeric_limits<__int64>::min()));
    QCOMPARE(value.GetValue(), -beyondDoubles);
    QCOMPARE(value.GetStep(), beyondDoubles);
}

void TstValueNumeric::settersOfDoubles()
{
    NumericDouble value;
    QVERIFY(value.SetMinMax(0.25, 0.75, 0.125));
    QCOMPARE(value.GetValue(), 0.25);
    QVERIFY(value.SetValue(0.6)); // Between two steps.
    QCOMPARE(value.GetValue(), 0.6);
    QVERIFY(value.SetValue(0.750001));
    QCOMPARE(value.GetValue(), 0.75);
    QVERIFY(!value.SetStep(-0.001));
    QCOMPARE(value.GetStep(), 0.125);
}

void TstValueNumeric::notANumberIsRefused()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    NumericDouble value;
    value.SetMinMax(0, 10, 1);
    value.SetValue(5);
    value.AddObserver(&a);
    QVERIFY(!value.SetValue(qQNaN()));
    QVERIFY(!value.SetMin(qQNaN()));
    QVERIFY(!value.SetMax(qQNaN()));
    QVERIFY(!value.SetStep(qQNaN()));
    QVERIFY(!value.SetMinMax(qQNaN(), 10, 1));
    QVERIFY(!value.SetMinMax(0, qQNaN(), 1));
    QVERIFY(!value.SetMinMax(0, 10, qQNaN()));
    QVERIFY(!value.SetText("NaN"));
    QCOMPARE(describe(value), QString("5 in 0..10 by 1"));
    QCOMPARE(takeAll(&log), QString());
}

void TstValueNumeric::infinityEndsAtABound()
{
    NumericDouble value;
    QVERIFY(value.SetValue(qInf()));
    QCOMPARE(value.GetValue(), std::numeric_limits<double>::max());
    QVERIFY(value.SetValue(-qInf()));
    QCOMPARE(value.GetValue(), -std::numeric_limits<double>::max());
}

void TstValueNumeric::whoMadeTheChangeIsNotTold()
{
    const QStringList calls{"SetValue 2", "SetMin 3", "SetMax 2", "SetStep 2", "SetMinMax 11 12 1"};
    for (const QString& call : calls) {
        QStringList log;
        ChangeRecorder a("a", &log), b("b", &log);
        NumericInt value;
        value.SetMinMax(0, 10, 1);
        value.AddObserver(&a);
        value.AddObserver(&b);
        QVERIFY(perform(value, call, &a));
        QVERIFY2(!log.isEmpty() && log.filter("a:").isEmpty(), qPrintable(call));
        value.DeleteObserver(&a);
        value.DeleteObserver(&b);
    }
}

void TstValueNumeric::textIsClampedToo()
{
    NumericInt value;
    value.SetMinMax(-5, 5, 1);
    QVERIFY(value.SetText("77"));
    QCOMPARE(value.GetText(), QString("5"));
    QVERIFY(!value.SetText("99999999999"));
    QCOMPARE(value.GetText(), QString("5"));
}

void TstValueNumeric::copyOfValueThenRangeMayEndAtABound()
{
    NumericInt from;
    from.SetMinMax(100, 200, 1);
    from.SetValue(150);
    NumericInt to;
    to.SetMinMax(0, 10, 1);
    to.SetValue(from.GetValue());
    to.SetMin(from.GetMin());
    to.SetMax(from.GetMax());
    QCOMPARE(describe(to), QString("100 in 100..200 by 1"));
}

void TstValueNumeric::bothChangesAreMadeBeforeTheFirstIsTold()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    NumericInt value;
    QStringList seen;
    a.setAction([&](Observable* sender, TChangeCode code) {
        seen.append(
            QString("%1: %2").arg(QString::number(code), describe(*static_cast<NumericInt*>(sender))));
    });
    value.AddObserver(&a);
    value.SetMinMax(3, 4, 1);
    QCOMPARE(seen, (QStringList{"4: 3 in 3..4 by 1", "3: 3 in 3..4 by 1"}));
    value.DeleteObserver(&a);
}

void TstValueNumeric::deletionBetweenRangeAndValue()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    auto* const value = new NumericInt;
    value->AddObserver(&a);
    a.setAction([](Observable* sender, TChangeCode code) {
        if (code == CHANGE_RANGE)
            delete sender;
    });
    QVERIFY(value->SetMin(1));
    QCOMPARE(takeAll(&log), QString("a:4 a:2"));
}

void TstValueNumeric::doubleView()
{
    NumericInt64 big;
    big.SetMinMax(-3, 9007199254740993, 2);
    big.SetValue(4);
    const NumericView& bigView = big;
    QCOMPARE(bigView.GetDoubleValue(), 4.0);
    QCOMPARE(bigView.GetDoubleMin(), -3.0);
    QCOMPARE(bigView.GetDoubleMax(), 9007199254740992.0);
    QCOMPARE(bigView.GetDoubleStep(), 2.0);

    NumericDouble real;
    real.SetMinMax(0.25, 0.75, 0.5);
    ValueBase* const base = &real;
    const auto* const realView = dynamic_cast<NumericView*>(base);
    QVERIFY(realView != nullptr);
    QCOMPARE(realView->GetDoubleValue(), 0.25);
    QCOMPARE(realView->GetDoubleMin(), 0.25);
    QCOMPARE(realView->GetDoubleMax(), 0.75);
    QCOMPARE(realView->GetDoubleStep(), 0.5);
}

void TstValueNumeric::settingThroughTheBaseIsClamped()
{
    NumericInt value;
    value.SetMinMax(0, 10, 1);
    ValueInt& base = value;
    QVERIFY(base.SetValue(11));
    QCOMPARE(base.GetValue(), 10);
}

QTEST_GUILESS_MAIN(TstValueNumeric)
#include "tst_valuenumeric.moc"
