#include <support/testmain.h>

#include "rulesamples.h"

#include <rulemonitor.h>
#include <ruletimelimit.h>

#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QTimer>

using namespace JEDVEPLUGIN;
using JedTest::RuleBench;
using JedTest::RuleSetup;

namespace {
constexpr int LIMIT = 200; // ms

/// Writes down what it is told, one line each.
class Recorder : public IRuleMonitor
{
public:
    Recorder()
        : m_before(setRuleMonitor(this))
    {
    }
    ~Recorder() override { setRuleMonitor(m_before); }

    void managerConstructed(const RuleObjectManager*, const QString&) override
    {
        m_lines.append("constructed");
    }
    void managerDestroyed(const RuleObjectManager*) override { m_lines.append("destroyed"); }
    void objectRegistered(const RuleRegistration& registration) override
    {
        m_lines.append(QString("registered %1 %2 %3")
                           .arg(registration.name, registration.className, registration.ruleFunction));
    }
    void objectRemoved(const RuleObjectManager*, const QString& name) override
    {
        m_lines.append("removed " + name);
    }
    void runBegins(const RuleRunInfo& run) override
    {
        m_lines.append(QString("begin %1 %2").arg(run.function, QString::number(run.nesting)));
    }
    void runEnds(const RuleRunInfo& run) override
    {
        m_lines.append(QString("end %1 %2").arg(run.function, QString::number(run.nesting)));
        m_runs.append(run);
    }

    QStringList m_lines;
    QVector<RuleRunInfo> m_runs;

private:
    IRuleMonitor* m_before;
};

qint64 residentBytes()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * 4096 : 0;
}
} // namespace

// What a host may add to the rule engine: a monitor, and a limit for the time of a run.
class TstRuleLimits : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { setRuleTimeLimit(0); }

    void nothingIsInstalledAtFirst();
    void monitorIsToldOfObjects();
    void monitorIsToldOfRuns();
    void monitorIsToldOfNestedRuns();
    void monitorIsToldOfFaults_data();
    void monitorIsToldOfFaults();
    void throwingMonitorEndsNothing();

    void limitIsKept();
    void endlessScriptIsStopped_data();
    void endlessScriptIsStopped();
    void eventsGoOnMeanwhile();
    void inputWaitsForTheEnd();
    void nestedRunIsStoppedWithTheOuterOne();
    void manyRunsDoNotGrow();
};

void TstRuleLimits::nothingIsInstalledAtFirst()
{
    QCOMPARE(ruleTimeLimit(), 0);
    QVERIFY(!setRuleMonitor(nullptr));
}

void TstRuleLimits::monitorIsToldOfObjects()
{
    Recorder recorder;
    {
        RuleSetup setup("function f() {}");
        QCOMPARE(recorder.m_lines.takeFirst(), QString("constructed"));
        QCOMPARE(recorder.m_lines.takeFirst(), QString("registered Log JEDVEPLUGIN::ScriptableString "));
        setup.addInt("Gain", "f");
        QCOMPARE(recorder.m_lines.takeFirst(),
                 QString("registered Gain JEDVEPLUGIN::ScriptableNumericInt f"));
        setup->UnregisterScriptableObject("Log");
        QCOMPARE(recorder.m_lines.takeFirst(), QString("removed Log"));
        QCOMPARE(recorder.m_lines, QStringList());
    }
    QVERIFY(recorder.m_lines.contains("destroyed"));
}

void TstRuleLimits::monitorIsToldOfRuns()
{
    RuleSetup setup("function f() { Log.stringValue = 'ran'; }");
    NumericInt* const gain = setup.addInt("Gain", "f");
    setup->InitFinished();
    Recorder recorder;
    gain->SetValue(5);
    QCOMPARE(recorder.m_lines, QStringList({"begin f 0", "end f 0"}));
    QCOMPARE(recorder.m_runs[0].manager, setup.m_manager.get());
    QCOMPARE(recorder.m_runs[0].trigger, setup.m_bench.path("Gain"));
    QVERIFY(recorder.m_runs[0].nanoseconds > 0);
    QVERIFY(recorder.m_runs[0].errors.isEmpty());
    QVERIFY(!recorder.m_runs[0].isFunctionMissing);
    QVERIFY(!recorder.m_runs[0].isStopped);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(recorder.m_runs[1].trigger, QString());
    setup->setRuleExecutionActive(false);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(recorder.m_runs.size(), 2);
}

void TstRuleLimits::monitorIsToldOfNestedRuns()
{
    RuleSetup setup("function outer() { Inner.value = 7; } function inner() {}");
    setup.addInt("Inner", "inner");
    setup->InitFinished();
    Recorder recorder;
    setup->ReloadScriptAndRun("outer");
    QCOMPARE(recorder.m_lines, QStringList({"begin outer 0", "begin inner 1", "end inner 1", "end outer 0"}));
}

void TstRuleLimits::monitorIsToldOfFaults_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("isSyntax");
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("exception") << QByteArray("var a = 1;\nfunction f() {\n    unknown.thing = 1;\n}") << 3
                               << false << false;
    QTest::newRow("at program level")
        << QByteArray("\nthrow new Error('x');\nfunction f() {}") << 2 << false << false;
    QTest::newRow("syntax") << QByteArray("function f() {\n  let x = 1;\n}") << 2 << true << true;
    QTest::newRow("missing") << QByteArray("function g() {}") << 0 << false << true;
}

void TstRuleLimits::monitorIsToldOfFaults()
{
    QFETCH(QByteArray, script);
    QFETCH(int, line);
    QFETCH(bool, isSyntax);
    RuleSetup setup(script);
    Recorder recorder;
    setup->ReloadScriptAndRun("f");
    QCOMPARE(recorder.m_runs.size(), 1);
    const RuleRunInfo& run = recorder.m_runs.first();
    QTEST(run.isFunctionMissing, "isMissing");
    QCOMPARE(run.errors.size(), line > 0 ? 1 : 0);
    if (line > 0) {
        QCOMPARE(run.errors[0].line, line);
        QCOMPARE(run.errors[0].isSyntaxError, isSyntax);
        QVERIFY(!run.errors[0].text.isEmpty());
    }
}

void TstRuleLimits::throwingMonitorEndsNothing()
{
    struct Thrower : IRuleMonitor
    {
        void runBegins(const RuleRunInfo&) override { throw 1; }
        void runEnds(const RuleRunInfo&) override { throw 2; }
    } thrower;
    RuleSetup setup("function f() { Log.stringValue = 'ran'; }");
    setRuleMonitor(&thrower);
    QCOMPARE(setup.run("f"), QString("ran"));
    setRuleMonitor(nullptr);
}

void TstRuleLimits::limitIsKept()
{
    setRuleTimeLimit(50);
    QCOMPARE(ruleTimeLimit(), 50);
    setRuleTimeLimit(-7);
    QCOMPARE(ruleTimeLimit(), 0);
    setRuleTimeLimit(LIMIT);
    RuleSetup setup("function f() { Log.stringValue = 'ran'; }");
    QCOMPARE(setup.run("f"), QString("ran"));
    QCOMPARE(setup.run("g"), QString());
}

void TstRuleLimits::endlessScriptIsStopped_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("while") << QByteArray("while (true) {}");
    QTest::newRow("for") << QByteArray("for (;;) {}");
    QTest::newRow("do") << QByteArray("do { var x = 1; } while (x)");
    QTest::newRow("counting") << QByteArray("var i = 0; while (i >= 0) ++i;");
    QTest::newRow("calls") << QByteArray("function g() { return 1; } while (g()) {}");
    QTest::newRow("writes") << QByteArray("var n = 0; while (true) Log.stringValue = 'n' + (++n % 10);");
    QTest::newRow("reads") << QByteArray("while (Log.stringValue !== 'never') {}");
    QTest::newRow("exceptions") << QByteArray("while (true) { try { throw 1; } catch (e) {} }");
    QTest::newRow("strings") << QByteArray("while (true) { 'abc'.toUpperCase(); }");
    QTest::newRow("mathematics") << QByteArray("while (true) { Math.sqrt(2); }");
}

void TstRuleLimits::endlessScriptIsStopped()
{
    QFETCH(QByteArray, body);
    RuleSetup setup("function f() { " + body + " } function g2() { Log.stringValue = 'alive'; }");
    Recorder recorder;
    setRuleTimeLimit(LIMIT);
    QElapsedTimer timer;
    timer.start();
    setup->ReloadScriptAndRun("f");
    QVERIFY2(timer.elapsed() < LIMIT + 500, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(recorder.m_runs.value(0).isStopped);
    // The engine is of use afterwards.
    QCOMPARE(setup.run("g2"), QString("alive"));
}

void TstRuleLimits::eventsGoOnMeanwhile()
{
    RuleSetup setup("function f() { while (true) {} }");
    setRuleTimeLimit(LIMIT);
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(10);
    setup->ReloadScriptAndRun("f");
    QVERIFY2(ticks >= 2, qPrintable(QString::number(ticks)));
}

void TstRuleLimits::inputWaitsForTheEnd()
{
    RuleSetup setup("function f() { while (true) {} }");
    setRuleTimeLimit(LIMIT);
    QLineEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    edit.setFocus();
    QString meanwhile = "untold";
    // From the window system, as keys come.
    QTimer::singleShot(30, &edit, [&edit] { QTest::keyClick(edit.windowHandle(), Qt::Key_A); });
    QTimer::singleShot(LIMIT / 2, &edit, [&] { meanwhile = edit.text(); });
    setup->ReloadScriptAndRun("f");
    QCOMPARE(meanwhile, QString());
    QTRY_COMPARE(edit.text(), QString("a"));
}

void TstRuleLimits::nestedRunIsStoppedWithTheOuterOne()
{
    RuleSetup setup(
        "function outer() { Inner.value = 7; while (true) {} } function inner() { while (true) {} }");
    setup.addInt("Inner", "inner");
    setup->InitFinished();
    setRuleTimeLimit(LIMIT);
    QElapsedTimer timer;
    timer.start();
    setup->ReloadScriptAndRun("outer");
    QVERIFY2(timer.elapsed() < LIMIT + 700, qPrintable(QString::number(timer.elapsed())));
}

void TstRuleLimits::manyRunsDoNotGrow()
{
    RuleSetup setup("var n = 0; function f() { n = n + 1; Log.stringValue = 'n' + n; }");
    const int runs = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? 1000000 : 50000;
    for (int i = 0; i < 20000; ++i)
        setup->ReloadScriptAndRun("f");
    const qint64 before = residentBytes();
    for (int i = 0; i < runs; ++i)
        setup->ReloadScriptAndRun("f");
    const qint64 growth = residentBytes() - before;
    QVERIFY2(growth <= 1024 * 1024, qPrintable(QString::number(growth)));
}

JED_TEST_MAIN(TstRuleLimits)
#include "tst_rulelimits.moc"
