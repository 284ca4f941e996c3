#include <support/changerecorder.h>
#include <values/node.h>
#include <values/value.h>
#include <values/valuenumeric.h>

#include <QLibrary>

#include <limits>
#include <typeinfo>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

Q_DECLARE_METATYPE(TValueState)

class TstValue : public QObject
{
    Q_OBJECT
private slots:
    void freshValues();
    void settingTellsOnce();
    void settingTheSameTellsNobody();
    void settingFromInsideANotification();
    void notANumberEqualsItself();
    void deletionInsideANotification();
    void textForm_data();
    void textForm();
    void refusedText_data();
    void refusedText();
    void alternativeText();
    void doublesSurviveTheTextForm();
    void severalValuesInOneStream();
    void streamAtItsEndIsRefused();
    void name();
    void stateNumbers();
    void stateChanges_data();
    void stateChanges();
    void leavingIsToldOnceWhileTheObjectIsWhole();
    void nothingRevivesAValueThatLeaves();
    void sixtyFourBitNamesAreOneType();
    void typesAreTheSameInAllLibraries();
};

namespace {

enum Kind { BOOL, DOUBLE, INT, INT64, STRING };

std::unique_ptr<ValueBase> makeValue(int kind)
{
    switch (kind) {
    case BOOL:
        return std::make_unique<ValueBool>();
    case DOUBLE:
        return std::make_unique<ValueDouble>();
    case INT:
        return std::make_unique<ValueInt>();
    case INT64:
        return std::make_unique<ValueInt64>();
    default:
        return std::make_unique<ValueString>();
    }
}

template <class ValueType, class T>
void checkSetting(const T& first, const T& second)
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueType value;
    value.AddObserver(&a);
    value.AddObserver(&b);
    QVERIFY(value.SetValue(first));
    QCOMPARE(value.GetValue(), first);
    QCOMPARE(takeAll(&log), QString("a:3 b:3"));
    QVERIFY(value.SetValue(second, &a));
    QCOMPARE(value.GetValue(), second);
    QCOMPARE(takeAll(&log), QString("b:3"));
    QVERIFY(value.SetValue(second, nullptr));
    QCOMPARE(takeAll(&log), QString());
}

} // namespace

void TstValue::freshValues()
{
    QCOMPARE(ValueBool().GetValue(), false);
    QCOMPARE(ValueDouble().GetValue(), 0.0);
    QCOMPARE(ValueInt().GetValue(), 0);
    QCOMPARE(ValueInt64().GetValue(), __int64(0));
    QCOMPARE(ValueString().GetValue(), QString());
    const ValueInt value;
    QCOMPARE(value.GetName(), QString());
    QCOMPARE(value.GetId(), QString());
    QCOMPARE(value.GetPathName(), QString());
    QCOMPARE(value.GetState(), STATE_NORMAL);
    QVERIFY(value.GetParent() == nullptr);
    QVERIFY(!value.IsNode());
}

void TstValue::settingTellsOnce()
{
    checkSetting<ValueBool>(true, false);
    checkSetting<ValueDouble>(121.5e6, -1.25);
    checkSetting<ValueInt>(std::numeric_limits<int>::max(), std::numeric_limits<int>::lowest());
    checkSetting<ValueInt64>(std::numeric_limits<__int64>::max(), std::numeric_limits<__int64>::lowest());
    checkSetting<ValueString>(QString("marine 16"), QString());
}

void TstValue::settingTheSameTellsNobody()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueString value;
    value.AddObserver(&a);
    QVERIFY(value.SetValue(QString()));
    QVERIFY(value.SetValue(QString("")));
    QCOMPARE(takeAll(&log), QString());
    value.SetValue("x");
    takeAll(&log);
    QVERIFY(value.SetValue("x"));
    QVERIFY(value.SetText("x"));
    QCOMPARE(takeAll(&log), QString());
}

void TstValue::settingFromInsideANotification()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueInt value;
    value.AddObserver(&a);
    value.AddObserver(&b);
    int seenByB = 0;
    a.setAction([](Observable* sender, TChangeCode) { static_cast<ValueInt*>(sender)->SetValue(7); });
    b.setAction(
        [&](Observable* sender, TChangeCode) { seenByB = static_cast<ValueInt*>(sender)->GetValue(); });
    value.SetValue(1);
    QCOMPARE(value.GetValue(), 7);
    QCOMPARE(seenByB, 7);
    QCOMPARE(takeAll(&log), QString("a:3 a:3 b:3 b:3"));
}

void TstValue::notANumberEqualsItself()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueDouble value;
    value.AddObserver(&a);
    QVERIFY(value.SetValue(qQNaN()));
    QVERIFY(qIsNaN(value.GetValue()));
    QCOMPARE(takeAll(&log), QString("a:3"));
    QVERIFY(value.SetValue(qQNaN()));
    QCOMPARE(takeAll(&log), QString());
    QVERIFY(value.SetValue(0.0));
    QCOMPARE(takeAll(&log), QString("a:3"));
}

void TstValue::deletionInsideANotification()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    auto* const value = new ValueInt;
    value->AddObserver(&a);
    value->AddObserver(&b);
    a.setAction([](Observable* sender, TChangeCode code) {
        if (code == CHANGE_VALUE)
            delete sender;
    });
    QVERIFY(value->SetValue(1));
    QCOMPARE(takeAll(&log), QString("a:3 a:2 b:2"));
}

void TstValue::textForm_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::newRow("true") << int(BOOL) << "true";
    QTest::newRow("false") << int(BOOL) << "false";
    QTest::newRow("double 0") << int(DOUBLE) << "0";
    QTest::newRow("double whole") << int(DOUBLE) << "640";
    QTest::newRow("double round") << int(DOUBLE) << "121500000";
    QTest::newRow("double largest whole") << int(DOUBLE) << "-9007199254740992";
    QTest::newRow("double larger") << int(DOUBLE) << "1e+22";
    QTest::newRow("double fraction") << int(DOUBLE) << "-0.1";
    QTest::newRow("double small") << int(DOUBLE) << "2.5e-08";
    QTest::newRow("double infinite") << int(DOUBLE) << "INF";
    QTest::newRow("double minus infinite") << int(DOUBLE) << "-INF";
    QTest::newRow("double not a number") << int(DOUBLE) << "NaN";
    QTest::newRow("int") << int(INT) << "-2147483648";
    QTest::newRow("int64") << int(INT64) << "9223372036854775807";
    QTest::newRow("int64 beyond doubles") << int(INT64) << "-9007199254740993";
    QTest::newRow("string") << int(STRING) << " a/b\\n ";
    QTest::newRow("empty string") << int(STRING) << "";
}

void TstValue::textForm()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    const auto value = makeValue(kind);
    value->AddObserver(&a);
    value->AddObserver(&b);
    const bool isChange = value->GetText() != text;
    QVERIFY(value->SetText(text, &a));
    QCOMPARE(value->GetText(), text);
    QCOMPARE(takeAll(&log), isChange ? QString("b:3") : QString());
}

void TstValue::refusedText_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    for (const char* text : {"", " ", "True", "yes", "2", " true", "true "})
        QTest::addRow("bool '%s'", text) << int(BOOL) << text;
    for (const char* text :
         {"", "abc", " 1", "1 ", "1,5", "0x10", "inf", "nan", "+inf", "-nan", "1e400", "1.5f"})
        QTest::addRow("double '%s'", text) << int(DOUBLE) << text;
    for (const char* text :
         {"", " 640", "640 ", "\t7", "640\n", "6a", "1e2", "1.0", "2147483648", "-2147483649"})
        QTest::addRow("int '%s'", text) << int(INT) << text;
    for (const char* text : {"", "9223372036854775808", "-9223372036854775809", "0x1", "--1"})
        QTest::addRow("int64 '%s'", text) << int(INT64) << text;
}

void TstValue::refusedText()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QStringList log;
    ChangeRecorder a("a", &log);
    const auto value = makeValue(kind);
    QVERIFY(value->SetText("1"));
    const QString before = value->GetText();
    value->AddObserver(&a);
    QVERIFY(!value->SetText(text));
    QCOMPARE(value->GetText(), before);
    QCOMPARE(takeAll(&log), QString());
}

void TstValue::alternativeText()
{
    ValueBool flag;
    QVERIFY(flag.SetText("1"));
    QCOMPARE(flag.GetText(), QString("true"));
    QVERIFY(flag.SetText("0"));
    QCOMPARE(flag.GetText(), QString("false"));
    ValueInt number;
    QVERIFY(number.SetText("+5"));
    QCOMPARE(number.GetText(), QString("5"));
    ValueDouble real;
    QVERIFY(real.SetText("1e3"));
    QCOMPARE(real.GetText(), QString("1000"));
}

void TstValue::doublesSurviveTheTextForm()
{
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German));
    for (const double number :
         {1.0 / 3.0, 0.1 + 0.2, 1e300, 5e-324, -123456789.125, 6.02214076e23, 9007199254740993.0}) {
        ValueDouble value;
        ValueDouble copy;
        value.SetValue(number);
        QVERIFY(copy.SetText(value.GetText()));
        QCOMPARE(copy.GetValue() - number, 0.0);
    }
    QLocale::setDefault(former);
}

void TstValue::severalValuesInOneStream()
{
    const QString awkward = "two\nlines\r\\n \\";
    ValueString text;
    ValueDouble number;
    ValueBool flag;
    text.SetValue(awkward);
    number.SetValue(-2.5);
    flag.SetValue(true);
    QString written;
    QTextStream out(&written);
    text.Write(out);
    number.Write(out);
    flag.Write(out);
    out.flush();
    QCOMPARE(written, QString("two\\nlines\\r\\\\n \\\\\n-2.5\ntrue\n"));

    ValueString textCopy;
    ValueDouble numberCopy;
    ValueBool flagCopy;
    QTextStream in(&written);
    QVERIFY(textCopy.Read(in));
    QVERIFY(numberCopy.Read(in));
    QVERIFY(flagCopy.Read(in));
    QCOMPARE(textCopy.GetValue(), awkward);
    QCOMPARE(numberCopy.GetValue(), -2.5);
    QCOMPARE(flagCopy.GetValue(), true);
}

void TstValue::streamAtItsEndIsRefused()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    QString written = "3\nnonsense\n4\n";
    QTextStream in(&written);
    ValueInt value;
    value.AddObserver(&a);
    value.AddObserver(&b);
    QVERIFY(value.Read(in, &b));
    QCOMPARE(value.GetValue(), 3);
    QCOMPARE(takeAll(&log), QString("a:3"));
    QVERIFY(!value.Read(in));
    QCOMPARE(value.GetValue(), 3);
    QVERIFY(value.Read(in));
    QCOMPARE(value.GetValue(), 4);
    takeAll(&log);
    QVERIFY(!value.Read(in));
    QCOMPARE(value.GetValue(), 4);
    QCOMPARE(takeAll(&log), QString());
}

void TstValue::name()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueInt value;
    value.AddObserver(&a);
    QVERIFY(value.SetName("Range.Detail.Threshold"));
    QCOMPARE(value.GetName(), QString("Range.Detail.Threshold"));
    QVERIFY(value.SetName("Range.Detail.Threshold"));
    QVERIFY(!value.SetName("a/b"));
    QVERIFY(!value.SetName("/"));
    QCOMPARE(value.GetName(), QString("Range.Detail.Threshold"));
    QVERIFY(value.SetName(QString()));
    QCOMPARE(value.GetName(), QString());
    QCOMPARE(takeAll(&log), QString());
}

void TstValue::stateNumbers()
{
    QCOMPARE(int(STATE_NORMAL), 0);
    QCOMPARE(int(STATE_LEAVING), 1);
    QCOMPARE(int(STATE_NOT_NORMAL), 2);
}

void TstValue::stateChanges_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<QString>("told");
    QTest::newRow("to not normal") << 0 << 2 << true << "a:2";
    QTest::newRow("back to normal") << 2 << 0 << true << "a:2";
    QTest::newRow("normal again") << 0 << 0 << true << "";
    QTest::newRow("not normal again") << 2 << 2 << true << "";
    QTest::newRow("leaving is for the destructor") << 0 << 1 << false << "";
    QTest::newRow("above") << 0 << 3 << false << "";
    QTest::newRow("below") << 2 << -1 << false << "";
}

void TstValue::stateChanges()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, isTaken);
    QFETCH(QString, told);
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueInt value;
    value.SetState(TValueState(from));
    value.AddObserver(&a);
    value.AddObserver(&b);
    QCOMPARE(value.SetState(TValueState(to), &b), isTaken);
    QCOMPARE(int(value.GetState()), isTaken ? to : from);
    QCOMPARE(takeAll(&log), told);
}

void TstValue::leavingIsToldOnceWhileTheObjectIsWhole()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    QString seen;
    a.setAction([&](Observable* sender, TChangeCode) {
        const auto* const value = dynamic_cast<NumericInt*>(sender); // Not only the Value that it is made on.
        QVERIFY(value != nullptr);
        seen = QString("%1=%2 in state %3, range to %4")
                   .arg(value->GetName(), value->GetText(), QString::number(value->GetState()),
                        QString::number(value->GetDoubleMax()));
    });
    {
        NumericInt value;
        value.SetName("Gain");
        value.SetMinMax(0, 60, 2);
        value.SetValue(12);
        value.AddObserver(&a);
        takeAll(&log);
    }
    QCOMPARE(takeAll(&log), QString("a:2"));
    QCOMPARE(seen, QString("Gain=12 in state 1, range to 60"));
}

void TstValue::nothingRevivesAValueThatLeaves()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    bool isRevived = false;
    a.setAction([&](Observable* sender, TChangeCode) {
        isRevived = static_cast<ValueBase*>(sender)->SetState(STATE_NORMAL) ||
                    static_cast<ValueBase*>(sender)->SetState(STATE_NOT_NORMAL);
    });
    int stateSeenByB = -1;
    b.setAction(
        [&](Observable* sender, TChangeCode) { stateSeenByB = static_cast<ValueBase*>(sender)->GetState(); });
    {
        ValueInt value;
        value.AddObserver(&a);
        value.AddObserver(&b);
    }
    QVERIFY(!isRevived);
    QCOMPARE(stateSeenByB, int(STATE_LEAVING));
    QCOMPARE(takeAll(&log), QString("a:2 b:2"));
}

void TstValue::sixtyFourBitNamesAreOneType()
{
    using ByAlias = Value<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
    using ByType = Value<long long, FormatInt64<long long>, StreamFormat<long long, FormatInt64<long long>>>;
    static_assert(std::is_same_v<ByAlias, ByType>);
    const std::unique_ptr<ValueBase> value = std::make_unique<ByAlias>();
    QVERIFY(dynamic_cast<ByType*>(value.get()) != nullptr);
    QVERIFY(dynamic_cast<ValueInt*>(value.get()) == nullptr);
    QVERIFY(dynamic_cast<NumericInt64*>(value.get()) == nullptr);
}

void TstValue::typesAreTheSameInAllLibraries()
{
    using Maker = ValueBase* (*)(int kind);
    using Type = const std::type_info* (*)(int kind);
    QLibrary library(QStringLiteral(JED_OTHER_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    const auto make = reinterpret_cast<Maker>(library.resolve("makeNumericInOtherLibrary"));
    const auto typeOf = reinterpret_cast<Type>(library.resolve("numericTypeOfOtherLibrary"));
    QVERIFY(make != nullptr && typeOf != nullptr);

    const std::unique_ptr<ValueBase> number(make(INT64));
    QVERIFY(dynamic_cast<NumericInt64*>(number.get()) != nullptr);
    QVERIFY(dynamic_cast<ValueInt64*>(number.get()) != nullptr);
    QVERIFY(dynamic_cast<NumericView*>(number.get()) != nullptr);
    QVERIFY(dynamic_cast<NumericInt*>(number.get()) == nullptr);
    const std::unique_ptr<ValueBase> real(make(DOUBLE));
    QVERIFY(dynamic_cast<NumericDouble*>(real.get()) != nullptr);
    // One instance, not two that only carry the same name.
    QCOMPARE(typeOf(INT64), &typeid(NumericInt64));
    QCOMPARE(typeOf(DOUBLE), &typeid(NumericDouble));
}

QTEST_GUILESS_MAIN(TstValue)
#include "tst_value.moc"
