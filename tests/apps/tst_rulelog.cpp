#include <support/testmain.h>

#include <library/rulesamples.h>

#include <ruletimelimit.h>
#include <session/rulelog.h>

using namespace JEDVEPLUGIN;
using JedTest::RuleSetup;
using Session::RuleChange;
using Session::RuleLog;
using Session::RuleMark;
using Session::RuleRun;

namespace {
QString nameOf(const QString& path)
{
    return path.section('/', -1);
}

QString textOf(const RuleChange& change)
{
    return QString("%1 %2->%3").arg(nameOf(change.path), change.before, change.after);
}

// The oldest signal that a spy has; empty if there is none.
QVariantList take(QSignalSpy* spy)
{
    return spy->isEmpty() ? QVariantList() : spy->takeFirst();
}

// A run and those inside it: trigger, function, changes.
QString textOf(const RuleRun& run)
{
    QStringList parts{run.trigger.path.isEmpty() ? QString("host") : textOf(run.trigger), run.function};
    for (const RuleChange& change : run.changes)
        parts.append(textOf(change));
    for (const auto& inner : run.inner)
        parts.append('(' + textOf(*inner) + ')');
    return parts.join(", ");
}

QStringList textOf(const RuleLog& log)
{
    QStringList result;
    for (const RuleLog::Run& run : log.runs())
        result.append(textOf(*run));
    return result;
}

QStringList marksOf(const RuleLog& log)
{
    QStringList result;
    for (auto mark = log.marks().cbegin(); mark != log.marks().cend(); ++mark)
        result.append(
            QString("%1 %2: %3->%4").arg(nameOf(mark.key()), mark->function, mark->before, mark->after));
    result.sort();
    return result;
}
} // namespace

// What rules did, kept for people to see.
class TstRuleLog : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { setRuleTimeLimit(0); }

    void isTheMonitorWhileItLives();
    void runHasTriggerAndChanges();
    void runOfTheHostHasNoTrigger();
    void innerRunsStandInsideOuterOnes();
    void changeBackIsNone();
    void valueChangedTwiceIsListedOnce();
    void triggerChangedByItsOwnRule();
    void faultsAreKept_data();
    void faultsAreKept();
    void stoppedRunIsKept();
    void timesAreUtc();
    void numberOfRunsIsLimited();
    void innerRunsAreLimited();
    void clearedLogIsEmpty();
    void markStaysUntilSomebodySetsTheValue();
    void markGoesWithTheValue();
    void markGoesWithTheManager();
    void unregisteredValueIsNotSeen();
};

void TstRuleLog::isTheMonitorWhileItLives()
{
    IRuleMonitor before;
    setRuleMonitor(&before);
    {
        const RuleLog log;
        IRuleMonitor* const installed = setRuleMonitor(nullptr);
        QVERIFY(installed && installed != &before);
        setRuleMonitor(installed);
    }
    QCOMPARE(setRuleMonitor(nullptr), &before);
}

void TstRuleLog::runHasTriggerAndChanges()
{
    RuleLog log;
    RuleSetup setup("function f() { Width.value = Gain.value * 2; Other.value = 7; }");
    NumericInt* const gain = setup.addInt("Gain", "f");
    setup.addInt("Width");
    setup.addInt("Other");
    setup->InitFinished();
    QSignalSpy added(&log, &RuleLog::runAdded);
    gain->SetValue(5);
    QCOMPARE(textOf(log), QStringList("Gain 0->5, f, Width 0->10, Other 0->7"));
    QCOMPARE(added.size(), 1);
    QVERIFY(log.runs()[0]->nanoseconds > 0);
    QVERIFY(!log.runs()[0]->scriptFile.isEmpty());
    QVERIFY(log.runs()[0]->errors.isEmpty());
    gain->SetValue(6);
    QCOMPARE(textOf(log).last(), QString("Gain 5->6, f, Width 10->12"));
}

void TstRuleLog::runOfTheHostHasNoTrigger()
{
    RuleLog log;
    RuleSetup setup("function f() { Log.stringValue = 'ran'; }");
    setup->ReloadScriptAndRun("f");
    QCOMPARE(textOf(log), QStringList("host, f, Log ->ran"));
}

void TstRuleLog::innerRunsStandInsideOuterOnes()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = 1; Log.stringValue = 'f'; } function g() { C.value = 2; }"
                    "function h() { Log.stringValue = 'h'; }");
    NumericInt* const a = setup.addInt("A", "f");
    setup.addInt("B", "g");
    setup.addInt("C", "h");
    setup->InitFinished();
    a->SetValue(9);
    QCOMPARE(textOf(log),
             QStringList("A 0->9, f, B 0->1, Log h->f, (B 0->1, g, C 0->2, (C 0->2, h, Log ->h))"));
}

void TstRuleLog::changeBackIsNone()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = 1; B.value = 0; }");
    NumericInt* const a = setup.addInt("A", "f");
    setup.addInt("B");
    setup->InitFinished();
    a->SetValue(9);
    QCOMPARE(textOf(log), QStringList("A 0->9, f"));
}

void TstRuleLog::valueChangedTwiceIsListedOnce()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = 1; C.value = 3; B.value = 2; }");
    NumericInt* const a = setup.addInt("A", "f");
    setup.addInt("B");
    setup.addInt("C");
    setup->InitFinished();
    a->SetValue(9);
    QCOMPARE(textOf(log), QStringList("A 0->9, f, B 0->2, C 0->3"));
}

void TstRuleLog::triggerChangedByItsOwnRule()
{
    RuleLog log;
    RuleSetup setup("function f() { A.value = 4; }");
    NumericInt* const a = setup.addInt("A", "f");
    setup->InitFinished();
    a->SetValue(9);
    QCOMPARE(textOf(log), QStringList("A 0->9, f, A 9->4"));
    QCOMPARE(marksOf(log), QStringList("A f: 9->4"));
}

void TstRuleLog::faultsAreKept_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("isSyntax");
    QTest::addColumn<bool>("isMissing");
    QTest::addColumn<bool>("isEmpty");
    QTest::newRow("exception") << QByteArray("function f() {\n unknown.x = 1;\n}") << 2 << false << false
                               << false;
    QTest::newRow("syntax") << QByteArray("function f() {\n let x = 1;\n}") << 2 << true << true << false;
    QTest::newRow("missing") << QByteArray("function g() {}") << 0 << false << true << true;
    QTest::newRow("none") << QByteArray("function f() {}") << 0 << false << false << false;
}

void TstRuleLog::faultsAreKept()
{
    QFETCH(QByteArray, script);
    QFETCH(int, line);
    RuleLog log;
    RuleSetup setup(script);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(log.runs().size(), 1);
    const RuleRun& run = *log.runs()[0];
    QTEST(run.isFunctionMissing, "isMissing");
    QTEST(run.isEmpty(), "isEmpty");
    QCOMPARE(run.errors.size(), line > 0 ? 1 : 0);
    if (line > 0) {
        QCOMPARE(run.errors[0].line, line);
        QTEST(run.errors[0].isSyntaxError, "isSyntax");
    }
}

void TstRuleLog::stoppedRunIsKept()
{
    RuleLog log;
    RuleSetup setup("function f() { Log.stringValue = 'begun'; while (true) {} }");
    setRuleTimeLimit(50);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(textOf(log), QStringList("host, f, Log ->begun"));
    QVERIFY(log.runs()[0]->isStopped);
}

void TstRuleLog::timesAreUtc()
{
    RuleLog log;
    RuleSetup setup("function f() {}");
    const QDateTime before = QDateTime::currentDateTimeUtc();
    setup->ReloadScriptAndRun("f");
    const QDateTime time = log.runs()[0]->time;
    QCOMPARE(time.timeSpec(), Qt::UTC);
    QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc());
}

void TstRuleLog::numberOfRunsIsLimited()
{
    RuleLog log(3);
    RuleSetup setup(
        "function f() { Log.stringValue = B.value; } function g() { C.value = B.value; } function h() {}");
    NumericInt* const b = setup.addInt("B", "g");
    setup.addInt("C", "h");
    setup->InitFinished();
    QSignalSpy dropped(&log, &RuleLog::runsDropped);
    for (int i = 0; i < 3; ++i)
        setup->ReloadScriptAndRun("f");
    QCOMPARE(log.runs().size(), 3);
    QCOMPARE(dropped.size(), 0);
    setup->ReloadScriptAndRun("h");
    QCOMPARE(log.runs().size(), 3);
    QCOMPARE(take(&dropped), QVariantList{1});
    // Two runs in one another need two places.
    b->SetValue(5);
    QCOMPARE(take(&dropped), QVariantList{2});
    QCOMPARE(textOf(log), QStringList({"host, h", "B 0->5, g, C 0->5, (C 0->5, h)"}));
}

void TstRuleLog::innerRunsAreLimited()
{
    RuleLog log(4);
    RuleSetup setup("function f() { for (var i = 1; i <= 10; ++i) B.value = i; } function g() {}");
    setup.addInt("B", "g");
    setup->InitFinished();
    setup->ReloadScriptAndRun("f");
    QCOMPARE(log.runs().size(), 1);
    QCOMPARE(int(log.runs()[0]->inner.size()), 3);
    QCOMPARE(log.runs()[0]->droppedRuns, 7);
    QCOMPARE(textOf(log.runs()[0]->changes[0]), QString("B 0->10"));
    // What comes afterwards is counted anew.
    setup->ReloadScriptAndRun("g");
    QCOMPARE(textOf(log), QStringList("host, g"));
}

void TstRuleLog::clearedLogIsEmpty()
{
    RuleLog log;
    RuleSetup setup("function f() {}");
    setup->ReloadScriptAndRun("f");
    setup->ReloadScriptAndRun("f");
    QSignalSpy dropped(&log, &RuleLog::runsDropped);
    log.clear();
    QVERIFY(log.runs().isEmpty());
    QCOMPARE(take(&dropped), QVariantList{2});
    log.clear();
    QCOMPARE(dropped.size(), 0);
}

void TstRuleLog::markStaysUntilSomebodySetsTheValue()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = A.value + 1; }");
    NumericInt* const a = setup.addInt("A", "f");
    NumericInt* const b = setup.addInt("B");
    setup->InitFinished();
    QSignalSpy changed(&log, &RuleLog::markChanged);
    a->SetValue(1);
    QCOMPARE(marksOf(log), QStringList("B f: 0->2"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(nameOf(take(&changed).value(0).toString()), QString("B"));
    b->SetValue(8);
    QCOMPARE(marksOf(log), QStringList());
    QCOMPARE(changed.size(), 1);
    b->SetValue(9);
    QCOMPARE(changed.size(), 1);
    a->SetValue(3);
    QCOMPARE(marksOf(log), QStringList("B f: 9->4"));
}

void TstRuleLog::markGoesWithTheValue()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = 1; }");
    NumericInt* const b = setup.addInt("B");
    setup->ReloadScriptAndRun("f");
    QCOMPARE(log.marks().size(), 1);
    QSignalSpy changed(&log, &RuleLog::markChanged);
    delete b;
    QVERIFY(log.marks().isEmpty());
    QCOMPARE(changed.size(), 1);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(textOf(log).last(), QString("host, f"));
}

void TstRuleLog::markGoesWithTheManager()
{
    RuleLog log;
    RuleSetup setup("function f() { B.value = 1; }");
    NumericInt* const b = setup.addInt("B");
    setup->ReloadScriptAndRun("f");
    setup.m_manager.reset();
    QVERIFY(log.marks().isEmpty());
    QVERIFY(b->SetValue(7)); // nobody is left to look at it
}

void TstRuleLog::unregisteredValueIsNotSeen()
{
    RuleSetup setup("function f() { B.value = 1; }");
    setup.addInt("B");
    RuleLog log;
    setup->ReloadScriptAndRun("f");
    QCOMPARE(textOf(log), QStringList("host, f"));
}

JED_TEST_MAIN(TstRuleLog)
#include "tst_rulelog.moc"
