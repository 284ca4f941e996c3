#include <support/testmain.h>

#include "rulesamples.h"

#include <support/changerecorder.h>

#include <cmath>

using namespace JEDVEPLUGIN;
using JedTest::ChangeRecorder;
using JedTest::RuleBench;
using JedTest::RuleSetup;

namespace {
const double INFINITE = std::numeric_limits<double>::infinity();
const double UNKNOWN = std::numeric_limits<double>::quiet_NaN();
} // namespace

class TstScriptableNumeric : public QObject
{
    Q_OBJECT
private slots:
    void floatAccessors();
    void intAccessors();
    void int64Accessors();
    void settersTellEverybody();
    void truncation_data();
    void truncation();
    void intStepTruncation_data();
    void intStepTruncation();
    void beyondPrecision();
    void copiesValueMinimumMaximum();
    void copiesIntegers();
    void copiesInt64ThroughDoubles();
    void copyOrderShowsInTheResult();
    void boundsThatMoveTheValueRunTheRule();
    void copyRunsTheRule();
    void scriptConversions_data();
    void scriptConversions();
};

void TstScriptableNumeric::floatAccessors()
{
    RuleBench bench;
    NumericDouble* const value = bench.value<NumericDouble>("real");
    value->SetMinMax(-10.5, 20.25, 0.5);
    ScriptableNumericFloat object(value, QString(), nullptr);
    QCOMPARE(object.floatMinValue(), -10.5);
    QCOMPARE(object.floatMaxValue(), 20.25);
    QCOMPARE(object.stepValue(), 0.5);

    object.setFloatValue(3.75);
    object.setFloatMinValue(-1.5);
    object.setFloatMaxValue(8.5);
    object.setStepValue(0.25);
    QCOMPARE(value->GetValue(), 3.75);
    QCOMPARE(object.floatValue(), 3.75);
    QCOMPARE(value->GetMin(), -1.5);
    QCOMPARE(value->GetMax(), 8.5);
    QCOMPARE(value->GetStep(), 0.25);
    object.setFloatValue(9.0);
    QCOMPARE(object.floatValue(), 8.5);
}

void TstScriptableNumeric::intAccessors()
{
    RuleBench bench;
    NumericInt* const value = bench.value<NumericInt>("number");
    value->SetMinMax(-10, 20, 5);
    ScriptableNumericInt object(value, QString(), nullptr);
    QCOMPARE(object.minValue(), -10);
    QCOMPARE(object.maxValue(), 20);
    QCOMPARE(object.stepValue(), 5.0);

    object.setValue(3);
    object.setMinValue(-1);
    object.setMaxValue(8);
    object.setStepValue(2.9);
    QCOMPARE(value->GetValue(), 3);
    QCOMPARE(object.value(), 3);
    QCOMPARE(value->GetMin(), -1);
    QCOMPARE(value->GetMax(), 8);
    QCOMPARE(value->GetStep(), 2);
    QCOMPARE(object.stepValue(), 2.0);
}

void TstScriptableNumeric::int64Accessors()
{
    RuleBench bench;
    NumericInt64* const value = bench.value<NumericInt64>("large");
    value->SetMinMax(-9000000000, 9000000000, 25000);
    ScriptableNumericInt64 object(value, QString(), nullptr);
    QCOMPARE(object.floatMinValue(), -9e9);
    QCOMPARE(object.floatMaxValue(), 9e9);
    QCOMPARE(object.stepValue(), 25000.0);

    object.setFloatValue(8414500000.75);
    object.setFloatMinValue(-1.7);
    object.setFloatMaxValue(8500000000.9);
    object.setStepValue(12500.5);
    QCOMPARE(value->GetValue(), 8414500000LL);
    QCOMPARE(object.floatValue(), 8414500000.0);
    QCOMPARE(value->GetMin(), -1LL);
    QCOMPARE(value->GetMax(), 8500000000LL);
    QCOMPARE(value->GetStep(), 12500LL);
    object.setFloatValue(-1.7);
    QCOMPARE(value->GetValue(), -1LL);
}

void TstScriptableNumeric::settersTellEverybody()
{
    RuleBench bench;
    QStringList log;
    ChangeRecorder recorder("seen", &log);
    NumericDouble* const real = bench.value<NumericDouble>("real");
    NumericInt* const number = bench.value<NumericInt>("number");
    NumericInt64* const large = bench.value<NumericInt64>("large");
    ScriptableNumericFloat realObject(real, QString(), nullptr);
    ScriptableNumericInt numberObject(number, QString(), nullptr);
    ScriptableNumericInt64 largeObject(large, QString(), nullptr);
    for (Observable* value : std::initializer_list<Observable*>{real, number, large})
        value->AddObserver(&recorder);

    for (QObject* object : std::initializer_list<QObject*>{&realObject, &numberObject, &largeObject}) {
        const bool isInt = object == &numberObject;
        object->setProperty(isInt ? "value" : "floatValue", 5);
        object->setProperty(isInt ? "minValue" : "floatMinValue", 1);
        object->setProperty(isInt ? "maxValue" : "floatMaxValue", 9);
        object->setProperty("stepValue", 2);
        object->setProperty("stateNormal", false);
        QCOMPARE(JedTest::takeAll(&log), QString("seen:3 seen:4 seen:4 seen:4 seen:2"));
    }
    for (Observable* value : std::initializer_list<Observable*>{real, number, large})
        value->DeleteObserver(&recorder);
}

void TstScriptableNumeric::truncation_data()
{
    const qint64 most = std::numeric_limits<qint64>::max();
    const qint64 least = std::numeric_limits<qint64>::min();
    QTest::addColumn<double>("given");
    QTest::addColumn<qint64>("stored");
    QTest::newRow("toward zero from above") << 1.9 << qint64(1);
    QTest::newRow("toward zero from below") << -1.9 << qint64(-1);
    QTest::newRow("2^53") << 9007199254740992.0 << qint64(9007199254740992);
    QTest::newRow("largest below 2^63") << 9223372036854774784.0 << qint64(9223372036854774784);
    QTest::newRow("2^63") << 9223372036854775808.0 << most;
    QTest::newRow("1e19") << 1e19 << most;
    QTest::newRow("infinite") << INFINITE << most;
    QTest::newRow("-2^63") << -9223372036854775808.0 << least;
    QTest::newRow("minus infinite") << -INFINITE << least;
    QTest::newRow("not a number") << UNKNOWN << qint64(0);
}

void TstScriptableNumeric::truncation()
{
    QFETCH(double, given);
    QFETCH(qint64, stored);
    RuleBench bench;
    NumericInt64* const value = bench.value<NumericInt64>("large");
    ScriptableNumericInt64 object(value, QString(), nullptr);
    value->SetValue(77);
    object.setFloatValue(given);
    QCOMPARE(qint64(value->GetValue()), stored);
    object.setFloatMinValue(given);
    QCOMPARE(qint64(value->GetMin()), stored);
    object.setFloatMaxValue(given);
    QCOMPARE(qint64(value->GetMax()), stored);
    value->SetStep(1);
    object.setStepValue(given);
    QCOMPARE(qint64(value->GetStep()), stored >= 0 ? stored : 1); // steps below 0 are refused
}

void TstScriptableNumeric::intStepTruncation_data()
{
    QTest::addColumn<double>("given");
    QTest::addColumn<int>("stored");
    QTest::newRow("fraction") << 2.9 << 2;
    QTest::newRow("below one") << 0.9 << 0;
    QTest::newRow("largest") << 2147483647.9 << 2147483647;
    QTest::newRow("2^31") << 2147483648.0 << 2147483647;
    QTest::newRow("1e12") << 1e12 << 2147483647;
    QTest::newRow("refused") << -2.0 << 4;
    QTest::newRow("-1e12, refused") << -1e12 << 4;
    QTest::newRow("not a number") << UNKNOWN << 0;
}

void TstScriptableNumeric::intStepTruncation()
{
    QFETCH(double, given);
    QFETCH(int, stored);
    RuleBench bench;
    NumericInt* const value = bench.value<NumericInt>("number");
    value->SetStep(4);
    ScriptableNumericInt object(value, QString(), nullptr);
    object.setStepValue(given);
    QCOMPARE(value->GetStep(), stored);
}

void TstScriptableNumeric::beyondPrecision()
{
    RuleBench bench;
    NumericInt64* const value = bench.value<NumericInt64>("large");
    ScriptableNumericInt64 object(value, QString(), nullptr);
    value->SetValue(9007199254740993);
    QCOMPARE(object.floatValue(), 9007199254740992.0);
    object.setFloatValue(object.floatValue());
    QCOMPARE(qint64(value->GetValue()), qint64(9007199254740992));
}

void TstScriptableNumeric::copiesValueMinimumMaximum()
{
    RuleBench bench;
    NumericDouble* const from = bench.value<NumericDouble>("from");
    NumericDouble* const to = bench.value<NumericDouble>("to");
    from->SetMinMax(-2.5, 7.5, 0.5);
    from->SetValue(3.5);
    to->SetStep(0.125);
    ScriptableNumericFloat source(from, QString(), nullptr);
    ScriptableNumericFloat target(to, QString(), nullptr);
    target.SetValue(&source);
    QCOMPARE(to->GetValue(), 3.5);
    QCOMPARE(to->GetMin(), -2.5);
    QCOMPARE(to->GetMax(), 7.5);
    QCOMPARE(to->GetStep(), 0.125);
}

void TstScriptableNumeric::copiesIntegers()
{
    RuleBench bench;
    NumericInt* const from = bench.value<NumericInt>("from");
    NumericInt* const to = bench.value<NumericInt>("to");
    from->SetMinMax(-2, 7, 3);
    from->SetValue(4);
    to->SetStep(5);
    ScriptableNumericInt source(from, QString(), nullptr);
    ScriptableNumericInt target(to, QString(), nullptr);
    target.SetValue(&source);
    QCOMPARE(to->GetValue(), 4);
    QCOMPARE(to->GetMin(), -2);
    QCOMPARE(to->GetMax(), 7);
    QCOMPARE(to->GetStep(), 5);
}

void TstScriptableNumeric::copiesInt64ThroughDoubles()
{
    RuleBench bench;
    NumericInt64* const from = bench.value<NumericInt64>("from");
    NumericInt64* const to = bench.value<NumericInt64>("to");
    from->SetMinMax(-9007199254740993, 9007199254740995, 3);
    from->SetValue(9007199254740993);
    to->SetStep(5);
    ScriptableNumericInt64 source(from, QString(), nullptr);
    ScriptableNumericInt64 target(to, QString(), nullptr);
    target.SetValue(&source);
    QCOMPARE(qint64(to->GetValue()), qint64(9007199254740992));
    QCOMPARE(qint64(to->GetMin()), qint64(-9007199254740992));
    QCOMPARE(qint64(to->GetMax()), qint64(9007199254740996));
    QCOMPARE(qint64(to->GetStep()), qint64(5));
}

/// The value is written while the old bounds hold.
namespace {
/// The value comes first, and is cut by the bounds that are still the old ones; then the minimum, which takes the
/// old maximum along, and the value with it.
template <class Object, class T>
QString changesOfACopy()
{
    RuleBench bench;
    T* const from = bench.value<T>("from");
    T* const to = bench.value<T>("to");
    from->SetMinMax(200, 1000, 1);
    from->SetValue(500);
    to->SetMinMax(1, 100, 2);
    QStringList log;
    ChangeRecorder recorder("to", &log);
    to->AddObserver(&recorder);
    Object source(from, QString(), nullptr);
    Object target(to, QString(), nullptr);
    target.SetValue(&source);
    to->DeleteObserver(&recorder);
    return QString("%1 in %2 to %3, step %4: ")
               .arg(to->GetDoubleValue())
               .arg(to->GetDoubleMin())
               .arg(to->GetDoubleMax())
               .arg(to->GetDoubleStep()) +
           JedTest::takeAll(&log);
}
} // namespace

void TstScriptableNumeric::copyOrderShowsInTheResult()
{
    const QString expected = "200 in 200 to 1000, step 2: to:3 to:4 to:3 to:4";
    QCOMPARE((changesOfACopy<ScriptableNumericInt, NumericInt>()), expected);
    QCOMPARE((changesOfACopy<ScriptableNumericInt64, NumericInt64>()), expected);
    QCOMPARE((changesOfACopy<ScriptableNumericFloat, NumericDouble>()), expected);
}

namespace {
/// How often the rule of a value runs that its own bounds move along.
template <class Object, class T>
QString runsByBounds(const char* minimum, const char* maximum)
{
    RuleSetup setup("function rule() { Log.stringValue += 'x'; }");
    T* const value = setup.add<Object, T>("Number", "rule");
    value->SetMinMax(0, 100, 1);
    value->SetValue(50);
    setup->InitFinished();
    QObject* const object = setup->GetScriptableObject("Number");
    object->setProperty(minimum, 60);
    QString log = QString("%1%2 ").arg(value->GetDoubleValue()).arg(setup.takeLog());
    object->setProperty(minimum, 0);
    object->setProperty(maximum, 40);
    log += QString("%1%2").arg(value->GetDoubleValue()).arg(setup.takeLog());
    return log;
}
} // namespace

void TstScriptableNumeric::boundsThatMoveTheValueRunTheRule()
{
    QCOMPARE((runsByBounds<ScriptableNumericInt, NumericInt>("minValue", "maxValue")), QString("60x 40x"));
    QCOMPARE((runsByBounds<ScriptableNumericInt64, NumericInt64>("floatMinValue", "floatMaxValue")),
             QString("60x 40x"));
    QCOMPARE((runsByBounds<ScriptableNumericFloat, NumericDouble>("floatMinValue", "floatMaxValue")),
             QString("60x 40x"));
}

void TstScriptableNumeric::copyRunsTheRule()
{
    RuleSetup setup("function rule() { Log.stringValue += Number.value + ';'; }");
    NumericInt* const value = setup.addInt("Number", "rule");
    NumericInt* const other = setup.addInt("Other");
    setup->InitFinished();
    other->SetValue(6);
    setup->GetScriptableObject("Number")->SetValue(setup->GetScriptableObject("Other"));
    QCOMPARE(value->GetValue(), 6);
    QCOMPARE(setup.takeLog(), QString("6;"));
}

void TstScriptableNumeric::scriptConversions_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::addColumn<QString>("seen");
    QTest::newRow("fraction to int") << QByteArray("N.value = 3.9") << "3 0 0";
    QTest::newRow("negative fraction to int") << QByteArray("N.value = -1.9") << "-1 0 0";
    QTest::newRow("text to int") << QByteArray("N.value = '7'") << "7 0 0";
    QTest::newRow("2^32 + 1 to int") << QByteArray("N.value = 4294967297") << "1 0 0";
    QTest::newRow("undefined to float") << QByteArray("F.floatValue = undefined") << "0 0 0";
    QTest::newRow("text to float") << QByteArray("F.floatValue = '2.5'") << "0 2.5 0";
    QTest::newRow("fraction to 64 bits") << QByteArray("L.floatValue = -2.9") << "0 0 -2";
    QTest::newRow("undefined to 64 bits")
        << QByteArray("L.floatValue = 5; L.floatValue = undefined") << "0 0 0";
    QTest::newRow("step of an int") << QByteArray("N.stepValue = 3.9; N.value = N.stepValue") << "3 0 0";
}

void TstScriptableNumeric::scriptConversions()
{
    QFETCH(QByteArray, statement);
    QFETCH(QString, seen);
    RuleSetup setup("function f() { " + statement +
                    "; Log.stringValue = N.value + ' ' + F.floatValue + ' ' + L.floatValue; }");
    setup.addInt("N");
    setup.add<ScriptableNumericFloat, NumericDouble>("F");
    setup.add<ScriptableNumericInt64, NumericInt64>("L");
    QCOMPARE(setup.run("f"), seen);
}

JED_TEST_MAIN(TstScriptableNumeric)

#include "tst_scriptablenumeric.moc"
