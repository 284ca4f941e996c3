#include <support/testmain.h>

#include "rulesamples.h"

#include <QProcess>
#include <QtScript/QScriptable>
#include <QtScript/QScriptEngine>

#include <cstdio>
#include <cstdlib>

using namespace JEDVEPLUGIN;
using JedTest::RuleBench;
using JedTest::RuleSetup;

namespace {

const char UNLOAD_ARGUMENT[] = "--leave-a-manager-behind";

RuleObjectManager* s_leftBehind = nullptr; // Owned; destroyed after the library's static objects.

/// Tells what engine its script runs in.
class EngineFinder : public ScriptableString, protected QScriptable
{
    Q_OBJECT
    Q_PROPERTY(QString found READ found WRITE find)
public:
    using ScriptableString::ScriptableString;
    QString found() const { return QString(); }
    void find(const QString&) { m_engine = engine(); }

    QScriptEngine* m_engine = nullptr; // Not owned.
};

/// What the child process does: uses a manager, then leaves it to the end of the process.
int leaveAManagerBehind(int argc, char** argv)
{
    const auto application = JedTest::makeApplication(argc, argv);
    RuleBench bench;
    s_leftBehind = new RuleObjectManager(bench.script("function f() { Finder.found = 'x'; }"));
    auto* const finder = new EngineFinder(nullptr, QString(), s_leftBehind);
    s_leftBehind->RegisterScriptableObject(finder, "Finder");
    s_leftBehind->ReloadScriptAndRun("f");
    QObject::connect(finder->m_engine, &QObject::destroyed, [] { std::puts("engine"); });
    QObject::connect(finder, &QObject::destroyed, [] { std::puts("object"); });
    std::puts("main");
    return 0;
}

void destroyWhatWasLeftBehind(int, void*)
{
    if (!s_leftBehind)
        return;
    delete s_leftBehind;
    std::puts("end");
    std::fflush(stdout);
}

/// Called before the static objects of any library are made, so what it registers runs when they are gone.
void runAtTheVeryEnd(int, char**, char**)
{
    ::on_exit(destroyWhatWasLeftBehind, nullptr); // belongs to no library, other than std::atexit()
}
__attribute__((section(".preinit_array"), used)) void (*const s_earlyStart)(int, char**,
                                                                            char**) = runAtTheVeryEnd;

} // namespace

class TstRuleObjectManagerCopies : public QObject
{
    Q_OBJECT
private slots:
    void copyTakesEverythingOver();
    void copyHasFlagsOfItsOwn();
    void copyHasScriptValuesOfItsOwn();
    void registryIsShared();
    void lastCopyDeletesTheObjects();
    void objectsSurviveTheirManager();
    void assignmentGivesUpTheOldRegistry();
    void assignmentToItself();
    void copyMadeInsideARule();
    void enginesGoAtUnload();
};

void TstRuleObjectManagerCopies::copyTakesEverythingOver()
{
    RuleSetup setup("var limit = 1; function f() { Log.stringValue += limit; }");
    setup->SetObjectsType("scan");
    setup->InitFinished();
    setup->setRuleExecutionActive(false);
    setup->setRuleExecutionActive(true);
    setup->ReloadScriptAndRun("f");
    QVERIFY(setup->setScriptValue("limit", 3.0));
    RuleObjectManager copy(*setup.m_manager);
    QVERIFY(copy.IsInit());
    QVERIFY(copy.IsRuleExecutionActive());
    QCOMPARE(copy.ObjectsType(), QString("scan"));
    QCOMPARE(copy.GetScriptableObjects(), setup->GetScriptableObjects());
    setup.takeLog();
    copy.ReloadScriptAndRun("f");
    QCOMPARE(setup.takeLog(), QString("3"));
}

void TstRuleObjectManagerCopies::copyHasFlagsOfItsOwn()
{
    RuleSetup setup("");
    RuleObjectManager copy(*setup.m_manager);
    copy.InitFinished();
    copy.setRuleExecutionActive(false);
    copy.SetObjectsType("copy");
    QVERIFY(!setup->IsInit());
    QVERIFY(setup->IsRuleExecutionActive());
    QCOMPARE(setup->ObjectsType(), QString());
    const RuleObjectManager third(copy);
    QVERIFY(!third.IsRuleExecutionActive());
}

void TstRuleObjectManagerCopies::copyHasScriptValuesOfItsOwn()
{
    RuleSetup setup("var limit = 1; function f() { Log.stringValue += limit; }");
    setup->ReloadScriptAndRun("f");
    RuleObjectManager copy(*setup.m_manager);
    QVERIFY(copy.setScriptValue("limit", 4.0)); // it has the variable, since the scope is the same
    QCOMPARE(setup.run("f"), QString("1"));
    copy.ReloadScriptAndRun("f");
    QCOMPARE(setup.takeLog(), QString("4"));
}

void TstRuleObjectManagerCopies::registryIsShared()
{
    RuleSetup setup("function f() { Gain.value = 8; }");
    RuleObjectManager copy(*setup.m_manager);
    NumericInt* const value = setup.addInt("Gain");
    QVERIFY(copy.GetScriptableNumericInt("Gain") != nullptr);
    copy.ReloadScriptAndRun("f");
    QCOMPARE(value->GetValue(), 8);
    const std::unique_ptr<ScriptableObject> mine(copy.GetScriptableObject("Gain"));
    copy.UnregisterScriptableObject("Gain");
    QCOMPARE(setup->GetScriptableObject("Gain"), nullptr);
}

void TstRuleObjectManagerCopies::lastCopyDeletesTheObjects()
{
    RuleSetup setup("function f() { Gain.value = 8; }");
    NumericInt* const value = setup.addInt("Gain");
    const QPointer<ScriptableObject> object = setup->GetScriptableObject("Gain");
    auto copy = std::make_unique<RuleObjectManager>(*setup.m_manager);
    auto second = std::make_unique<RuleObjectManager>(*copy);
    copy.reset();
    setup.m_manager.reset();
    QVERIFY(object);
    second->ReloadScriptAndRun("f");
    QCOMPARE(value->GetValue(), 8);
    second.reset();
    QVERIFY(!object);
}

void TstRuleObjectManagerCopies::objectsSurviveTheirManager()
{
    RuleSetup setup("function f() { Log.stringValue += 'x'; }");
    NumericInt* const value = setup.addInt("Gain", "f");
    setup->InitFinished();
    const RuleObjectManager copy(*setup.m_manager);
    value->SetValue(1);
    QCOMPARE(setup.takeLog(), QString("x"));
    setup.m_manager.reset();
    value->SetValue(2); // the manager that the object was made with is gone
    QCOMPARE(setup.takeLog(), QString());
    QCOMPARE(copy.GetScriptableNumericInt("Gain")->value(), 2);
}

void TstRuleObjectManagerCopies::assignmentGivesUpTheOldRegistry()
{
    RuleSetup one("function f() { Log.stringValue += 'one'; }");
    RuleSetup two("function f() { Log.stringValue += 'two'; }");
    one.addInt("Gain");
    const QPointer<ScriptableObject> old = one->GetScriptableObject("Gain");
    *one.m_manager = *two.m_manager;
    QVERIFY(!old);
    QCOMPARE(one->GetScriptableObjects(), two->GetScriptableObjects());
    one->ReloadScriptAndRun("f");
    QCOMPARE(two.takeLog(), QString("two"));
    two.m_manager.reset();
    QVERIFY(one->GetScriptableString("Log") != nullptr);
}

void TstRuleObjectManagerCopies::assignmentToItself()
{
    RuleSetup setup("function f() { Log.stringValue += 'x'; }");
    RuleObjectManager& self = *setup.m_manager;
    *setup.m_manager = self;
    QVERIFY(setup->GetScriptableString("Log") != nullptr);
    QCOMPARE(setup.run("f"), QString("x"));
}

void TstRuleObjectManagerCopies::copyMadeInsideARule()
{
    RuleSetup setup("function f() { Log.stringValue += 'a'; Gain.value = 1; Log.stringValue += 'b'; }"
                    "function g() { Log.stringValue += 'g'; }");
    NumericInt* const value = setup.addInt("Gain");
    struct Copier : IObserver
    {
        void Update(Observable*, TChangeCode) override
        {
            RuleObjectManager(*manager).ReloadScriptAndRun("g");
        }
        RuleObjectManager* manager = nullptr; // Not owned.
    } copier;
    copier.manager = setup.m_manager.get();
    value->AddObserver(&copier);
    QCOMPARE(setup.run("f"), QString("agb"));
    value->DeleteObserver(&copier);
}

void TstRuleObjectManagerCopies::enginesGoAtUnload()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {UNLOAD_ARGUMENT});
    QVERIFY(child.waitForFinished(20000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(QString(child.readAllStandardError()), QString());
    QCOMPARE(QString(child.readAllStandardOutput()), QString("main\nengine\nobject\nend\n"));
}

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], UNLOAD_ARGUMENT) == 0)
        return leaveAManagerBehind(argc, argv);
    const auto application = JedTest::makeApplication(argc, argv);
    TstRuleObjectManagerCopies test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ruleobjectmanager_copies.moc"
