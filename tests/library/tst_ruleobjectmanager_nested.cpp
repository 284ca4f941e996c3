#include <support/testmain.h>

#include "rulesamples.h"

#include <support/changerecorder.h>

#include <functional>

using namespace JEDVEPLUGIN;
using JedTest::ChangeRecorder;
using JedTest::RuleSetup;

namespace {

/// Two settings on one script file. "Bridge" of the outer one is watched by the inner one, whose rule "inner" therefore
/// runs inside a rule of the outer one. Both have numbers "Same" and texts "Log" of their own.
class TwoSettings
{
public:
    explicit TwoSettings(const QByteArray& script)
        : outer(script)
        , path(outer.m_bench.script(script))
        , inner(QByteArray(), path)
    {
        // Both on one file.
        outer.m_manager = std::make_unique<RuleObjectManager>(path);
        outer->RegisterScriptableObject(new ScriptableString(outer.m_log, QString(), nullptr));
        bridge = outer.addInt("Bridge");
        choice = outer.add<ScriptableSelection, ValueSelection>("Choice");
        choice->AddItem("one", 1.0, 1);
        outerSame = outer.addInt("Same");
        innerSame = inner.addInt("Same");
        inner->RegisterScriptableObject(new ScriptableNumericInt(bridge, "inner", inner.m_manager.get()),
                                        "Watched");
        inner->RegisterScriptableObject(new ScriptableSelection(choice, "inner", inner.m_manager.get()),
                                        "WatchedChoice");
        outer->InitFinished();
        inner->InitFinished();
    }

    RuleSetup outer;
    QString path;
    RuleSetup inner;
    NumericInt* bridge;
    ValueSelection* choice;
    NumericInt* outerSame;
    NumericInt* innerSame;
};

} // namespace

class TstRuleObjectManagerNested : public QObject
{
    Q_OBJECT
private slots:
    void sameManager_data();
    void sameManager();
    void otherManager_data();
    void otherManager();
    void otherEngine();
    void thereAndBack();
    void backToTheFirstEngine();
    void innerExceptionStaysInside_data();
    void innerExceptionStaysInside();
    void innerFunctionIsFoundFromAMethod();
    void innerVariablesDoNotTouchLocalsOfTheCaller();
    void nestedInsideTheEvaluation();
    void exceptionOfTheEvaluationStaysPending();
    void hostVariablesInsideAndOutside();
    void deepNesting();
    void managerDeletedByItsRule();
    void managerDeletedByItsEvaluation();
    void innerManagerDeletedByItsRule();
    void outerManagerDeletedInside();
    void valueDeletedByARule();
    void executionSwitchedOffInside();
};

void TstRuleObjectManagerNested::sameManager_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::newRow("property") << QByteArray("Other.value = 1");
    QTest::newRow("method") << QByteArray("Choice.SelectItemByIndex(1)");
}

/// The nested evaluation resets the script's variables in the middle of the outer rule.
void TstRuleObjectManagerNested::sameManager()
{
    QFETCH(QByteArray, statement);
    RuleSetup setup("var count = 0; function note(text) { Log.stringValue += text + count + ' '; }"
                    "function outer() { var local = 5; count = 1; note('a'); " +
                    statement +
                    "; note('c'); Log.stringValue += local; }"
                    "function inner() { note('i'); count = 100; note('j'); }");
    setup.addInt("Other", "inner");
    ValueSelection* const choice = setup.add<ScriptableSelection, ValueSelection>("Choice", "inner");
    choice->AddItem("one", 1.0, 1);
    setup->InitFinished();
    QCOMPARE(setup.run("outer"), QString("a1 i0 j100 c100 5"));
}

void TstRuleObjectManagerNested::otherManager_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::newRow("property") << QByteArray("Bridge.value = 1");
    QTest::newRow("method") << QByteArray("Choice.SelectItemByIndex(1)");
}

void TstRuleObjectManagerNested::otherManager()
{
    QFETCH(QByteArray, statement);
    TwoSettings two(
        "var mine = 0; function outer() { var local = 'l'; mine = 1; Same.value = 10; " + statement +
        "; Same.value = Same.value + 5; Log.stringValue += [mine, local, typeof Watched].join(' '); }"
        "function inner() { mine += 7; Same.value = 100 + mine; Log.stringValue += typeof Bridge; }");
    QCOMPARE(two.outer.run("outer"), QString("1 l undefined"));
    QCOMPARE(two.outerSame->GetValue(), 15);
    QCOMPARE(two.innerSame->GetValue(), 107);
    QCOMPARE(two.inner.takeLog(), QString("undefined"));
}

void TstRuleObjectManagerNested::otherEngine()
{
    RuleSetup outer("var x = 1; function outer() { x = 2; Bridge.value = 1; Log.stringValue += x; }");
    RuleSetup inner("var x = 10; function inner() { x = 20; Log.stringValue += x; throw 'lost'; }");
    NumericInt* const bridge = outer.addInt("Bridge");
    inner->RegisterScriptableObject(new ScriptableNumericInt(bridge, "inner", inner.m_manager.get()));
    inner->InitFinished();
    QCOMPARE(outer.run("outer"), QString("2"));
    QCOMPARE(inner.takeLog(), QString("20"));
}

void TstRuleObjectManagerNested::thereAndBack()
{
    TwoSettings two(
        "var depth = 0;"
        "function outer() { depth = 1; Bridge.value = 1; Log.stringValue += '|' + depth + Same.value; }"
        "function inner() { depth = 2; Back.value = 1; Log.stringValue += '|' + depth + Same.value; }"
        "function again() { depth += 3; Same.value = 8; Log.stringValue += '|' + depth; }");
    NumericInt* const back = two.inner.addInt("Back");
    two.outer->RegisterScriptableObject(new ScriptableNumericInt(back, "again", two.outer.m_manager.get()));
    two.innerSame->SetValue(4);
    QCOMPARE(two.outer.run("outer"), QString("|3|38"));
    QCOMPARE(two.inner.takeLog(), QString("|24"));
}

/// The run in the middle has an engine of its own; the innermost is still inside the outermost.
void TstRuleObjectManagerNested::backToTheFirstEngine()
{
    RuleSetup outer("var x = 1; function outer() { x = 2; Bridge.value = 1; Log.stringValue += 'end' + x; }"
                    "function again() { x = 9; Log.stringValue += 'again '; throw 'lost'; }");
    RuleSetup middle("function inner() { Back.value = 1; Log.stringValue = 'whole'; }");
    NumericInt* const bridge = outer.addInt("Bridge");
    middle->RegisterScriptableObject(new ScriptableNumericInt(bridge, "inner", middle.m_manager.get()));
    NumericInt* const back = middle.addInt("Back");
    outer->RegisterScriptableObject(new ScriptableNumericInt(back, "again", outer.m_manager.get()));
    outer->InitFinished();
    middle->InitFinished();
    QCOMPARE(outer.run("outer"), QString("again end9"));
    QCOMPARE(middle.takeLog(), QString("whole"));
}

void TstRuleObjectManagerNested::innerExceptionStaysInside_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::newRow("thrown") << QByteArray("function inner() { throw 'x'; }");
    QTest::newRow("unknown name") << QByteArray("function inner() { unknown.name = 1; }");
    QTest::newRow("missing function") << QByteArray("");
    QTest::newRow("no function") << QByteArray("var inner = 5;");
    QTest::newRow("throws while it is evaluated")
        << QByteArray("if (typeof Watched != 'undefined') throw 'x'; function inner() { }");
}

void TstRuleObjectManagerNested::innerExceptionStaysInside()
{
    QFETCH(QByteArray, inner);
    for (const QByteArray& statement :
         {QByteArray("Bridge.value = 1"), QByteArray("Choice.SelectItemByIndex(1)")}) {
        TwoSettings two("function outer() { Log.stringValue += 'a'; " + statement +
                        "; Log.stringValue += 'b'; Same.value = 3; } " + inner);
        QCOMPARE(two.outer.run("outer"), QString("ab"));
        QCOMPARE(two.outerSame->GetValue(), 3);
    }
}

void TstRuleObjectManagerNested::innerFunctionIsFoundFromAMethod()
{
    RuleSetup outer("function outer() { Choice.SelectItemByIndex(1); }");
    ValueSelection* const choice = outer.add<ScriptableSelection, ValueSelection>("Choice");
    choice->AddItem("one", 1.0, 1);
    RuleSetup inner("function other() { return 'found'; } function inner() { Log.stringValue = other(); }");
    inner->RegisterScriptableObject(new ScriptableSelection(choice, "inner", inner.m_manager.get()));
    inner->InitFinished();
    outer->ReloadScriptAndRun("outer");
    QCOMPARE(inner.takeLog(), QString("found"));
}

void TstRuleObjectManagerNested::innerVariablesDoNotTouchLocalsOfTheCaller()
{
    RuleSetup setup(
        "var shared = 'script';"
        "function outer() { var shared = 'local'; Choice.SelectItemByIndex(1); Log.stringValue += shared; }"
        "function inner() { Log.stringValue += shared + ' '; shared = 'changed'; }");
    ValueSelection* const choice = setup.add<ScriptableSelection, ValueSelection>("Choice", "inner");
    choice->AddItem("one", 1.0, 1);
    setup->InitFinished();
    QCOMPARE(setup.run("outer"), QString("script local"));
}

void TstRuleObjectManagerNested::nestedInsideTheEvaluation()
{
    RuleSetup setup("var count = 1; Log.stringValue += 'e' + Other.value; if (Other.value < 2) Other.value = "
                    "Other.value + 1;"
                    "count += 1; function outer() { Log.stringValue += 'o' + count; }"
                    "function inner() { Log.stringValue += 'i'; }");
    setup.addInt("Other", "inner");
    setup->InitFinished();
    // The object's own rule is held back while it runs, so the evaluations end. The outer one goes on with the
    // variables that the inner one has left.
    QCOMPARE(setup.run("outer"), QString("e0e1io3"));
}

void TstRuleObjectManagerNested::exceptionOfTheEvaluationStaysPending()
{
    RuleSetup setup(
        "var mark = 'v'; Other.value = 1; throw 'after'; mark = 'unreached';"
        "function outer() { Log.stringValue += 'o' + mark; } function inner() { Log.stringValue += 'i'; }");
    setup.addInt("Other", "inner");
    setup->InitFinished();
    QCOMPARE(setup.run("outer"), QString("iov"));
}

void TstRuleObjectManagerNested::hostVariablesInsideAndOutside()
{
    TwoSettings two(
        "var limit = 1; function outer() { Bridge.value = Bridge.value + 1; Log.stringValue += limit; }"
        "function inner() { Log.stringValue += limit; }");
    two.outer->ReloadScriptAndRun("outer");
    QVERIFY(two.outer->setScriptValue("limit", 5.0));
    QVERIFY(two.inner->setScriptValue("limit", 6.0));
    two.inner.takeLog();
    QCOMPARE(two.outer.run("outer"), QString("5"));
    QCOMPARE(two.inner.takeLog(), QString("6"));
}

void TstRuleObjectManagerNested::deepNesting()
{
    QByteArray script("function end() { Log.stringValue += '.'; }");
    const int depth = 40;
    for (int i = 0; i < depth; ++i) {
        const QByteArray next = i + 1 < depth ? QByteArray::number(i + 1) : QByteArray("Last");
        script += "function rule" + QByteArray::number(i) + "() { N" + next + ".value = N" + next +
                  ".value + 1; Log.stringValue += '" + QByteArray::number(i) + " '; }";
    }
    RuleSetup setup(script);
    for (int i = 1; i < depth; ++i)
        setup.addInt(QString("N%1").arg(i), QString("rule%1").arg(i));
    setup.addInt("NLast", "end");
    setup->InitFinished();
    QString expected(".");
    for (int i = depth - 1; i >= 0; --i)
        expected += QString("%1 ").arg(i);
    QCOMPARE(setup.run("rule0"), expected);
}

void TstRuleObjectManagerNested::managerDeletedByItsRule()
{
    RuleSetup setup("function f() { Log.stringValue += 'a'; Gain.value = 1; try { Gain.value = 2; }"
                    " catch (e) { kept = e.name; } }");
    NumericInt* const value = setup.addInt("Gain");
    QStringList log;
    ChangeRecorder deleter("gain", &log);
    deleter.setAction([&setup](Observable*, TChangeCode) { setup.m_manager.reset(); });
    value->AddObserver(&deleter);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(setup.takeLog(), QString("a"));
    QVERIFY(!setup.m_manager);
    QCOMPARE(value->GetValue(), 1);
    value->DeleteObserver(&deleter);
}

void TstRuleObjectManagerNested::managerDeletedByItsEvaluation()
{
    RuleSetup setup("Gain.value = 1; function f() { Math.unwanted = true; }");
    NumericInt* const value = setup.addInt("Gain", "f");
    const QString path = setup.m_bench.script("Gain.value = 1; function f() { Math.unwanted = true; }");
    QStringList log;
    ChangeRecorder deleter("gain", &log);
    deleter.setAction([&setup](Observable*, TChangeCode) { setup.m_manager.reset(); });
    value->AddObserver(&deleter);
    setup->ReloadScriptAndRun("f");
    QVERIFY(!setup.m_manager);
    QCOMPARE(log.size(), 1);
    value->DeleteObserver(&deleter);
}

void TstRuleObjectManagerNested::innerManagerDeletedByItsRule()
{
    TwoSettings two("function outer() { Bridge.value = 1; Log.stringValue += 'end'; Same.value = 4; }"
                    "function inner() { Same.value = 1; }");
    QStringList log;
    ChangeRecorder deleter("same", &log);
    deleter.setAction([&two](Observable*, TChangeCode) { two.inner.m_manager.reset(); });
    two.innerSame->AddObserver(&deleter);
    QCOMPARE(two.outer.run("outer"), QString("end"));
    QCOMPARE(two.outerSame->GetValue(), 4);
    two.innerSame->DeleteObserver(&deleter);
}

void TstRuleObjectManagerNested::outerManagerDeletedInside()
{
    TwoSettings two("function outer() { Bridge.value = 1; Same.value = 4; }"
                    "function inner() { Same.value = 1; Log.stringValue += 'inner end'; }");
    QStringList log;
    ChangeRecorder deleter("same", &log);
    deleter.setAction([&two](Observable*, TChangeCode) { two.outer.m_manager.reset(); });
    two.innerSame->AddObserver(&deleter);
    two.outer->ReloadScriptAndRun("outer");
    QCOMPARE(two.inner.takeLog(), QString("inner end"));
    QCOMPARE(two.outerSame->GetValue(), 0); // its object went with the manager
    two.innerSame->DeleteObserver(&deleter);
}

void TstRuleObjectManagerNested::valueDeletedByARule()
{
    RuleSetup setup("function f() { Other.value = 1; Gain.value = 7; Log.stringValue += Gain.value; }");
    NumericInt* const gain = setup.addInt("Gain", "f");
    NumericInt* const other = setup.addInt("Other");
    QStringList log;
    ChangeRecorder deleter("other", &log);
    deleter.setAction([gain](Observable*, TChangeCode) { delete gain; });
    other->AddObserver(&deleter);
    setup->InitFinished();
    gain->SetValue(3); // the value whose change runs the rule goes while the rule is running
    QCOMPARE(setup.takeLog(), QString("0"));
    other->DeleteObserver(&deleter);
}

void TstRuleObjectManagerNested::executionSwitchedOffInside()
{
    RuleSetup setup("function f() { Switch.value = 1; Other.value = 1; Log.stringValue += 'end'; }"
                    "function inner() { Log.stringValue += 'inner '; }");
    NumericInt* const off = setup.addInt("Switch");
    setup.addInt("Other", "inner");
    QStringList log;
    ChangeRecorder switcher("off", &log);
    switcher.setAction([&setup](Observable*, TChangeCode) { setup->setRuleExecutionActive(false); });
    off->AddObserver(&switcher);
    setup->InitFinished();
    QCOMPARE(setup.run("f"), QString("end"));
    off->DeleteObserver(&switcher);
}

JED_TEST_MAIN(TstRuleObjectManagerNested)

#include "tst_ruleobjectmanager_nested.moc"
