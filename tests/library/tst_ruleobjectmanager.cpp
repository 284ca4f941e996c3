#include <support/testmain.h>

#include "rulesamples.h"

#include <QThread>

#include <sys/stat.h>

using namespace JEDVEPLUGIN;
using JedTest::RuleBench;
using JedTest::RuleSetup;

class TstRuleObjectManager : public QObject
{
    Q_OBJECT
private slots:
    void newManager();
    void flags();
    void objectsType();
    void constructionEvaluatesNothing();
    void scopeHasTheBuiltInObjects();
    void newScopeHasNothingOfOtherManagers();
    void scriptKnowsItsFileAndItsLines();
    void registeredObjectIsNotCollected();
    void registersUnderAName();
    void registersUnderTheLastPartOfThePath_data();
    void registersUnderTheLastPartOfThePath();
    void laterObjectReplacesTheEntry();
    void registeringNullIsIgnored();
    void unregisteredObjectIsStillReachable();
    void typedLookUps();
    void iterators();
    void scriptMayReplaceARegisteredName();
    void deletesItsObjects();
    void objectUnderTwoNamesIsDeletedOnce();
    void deletedObjectLeavesTheRegistry();
    void objectDeletedByTheScript();
    void everyRunStartsAnew();
    void ruleFunctionHasNoArgumentsAndTheGlobalThis();
    void inheritedAndAssignedFunctions();
    void inactiveManagerRunsNothing();
    void failuresPassSilently_data();
    void failuresPassSilently();
    void functionRunsAfterAThrowingEvaluation();
    void fileIsReadOnce();
    void pathsDifferInCase();
    void unreadableFiles_data();
    void unreadableFiles();
    void endlessPipeIsNotOpened();
    void textIsUtf8();
    void hostVariables();
    void hostVariableWaitsForTheNextRun();
    void hostVariableTypes_data();
    void hostVariableTypes();
    void hostVariableKeepsDerivedInitialisers();
    void outermostRunLeavesItsScopeInPlace();
    void exceptionOfOneRunDoesNotReachTheNext();
    void mutexIsFreeAfterARun();
};

void TstRuleObjectManager::newManager()
{
    RuleBench bench;
    RuleObjectManager manager(bench.script(""));
    QVERIFY(!manager.IsInit());
    QVERIFY(manager.IsRuleExecutionActive());
    QCOMPARE(manager.ObjectsType(), QString());
    QVERIFY(manager.GetScriptableObjects() != nullptr);
    QVERIFY(manager.GetScriptableObjects()->isEmpty());
}

void TstRuleObjectManager::flags()
{
    RuleBench bench;
    RuleObjectManager manager(bench.script(""));
    manager.InitFinished();
    manager.InitFinished();
    QVERIFY(manager.IsInit());
    manager.setRuleExecutionActive(false);
    QVERIFY(!manager.IsRuleExecutionActive());
    manager.setRuleExecutionActive(true);
    QVERIFY(manager.IsRuleExecutionActive());
}

void TstRuleObjectManager::objectsType()
{
    RuleBench bench;
    RuleObjectManager manager(bench.script(""));
    manager.SetObjectsType("scan");
    QCOMPARE(manager.ObjectsType(), QString("scan"));
    QCOMPARE(&manager.ObjectsType(), &manager.ObjectsType());
}

void TstRuleObjectManager::constructionEvaluatesNothing()
{
    RuleSetup setup("Log.stringValue += 'evaluated '; function f() { Log.stringValue += 'called'; }");
    setup->InitFinished();
    QCOMPARE(setup.takeLog(), QString());
    QCOMPARE(setup.run("f"), QString("evaluated called"));
}

void TstRuleObjectManager::scopeHasTheBuiltInObjects()
{
    RuleSetup setup(
        "function f() { Log.stringValue = [Math.max(2, 3), JSON.stringify([1]), isNaN(NaN),"
        " new Date(0).getTime(), parseInt('12px'), typeof Infinity, typeof undefined].join(' '); }");
    QCOMPARE(setup.run("f"), QString("3 [1] true 0 12 number undefined"));
}

void TstRuleObjectManager::newScopeHasNothingOfOtherManagers()
{
    RuleBench bench;
    const QString file =
        bench.script("var limit = 5; function f() { Log.stringValue = limit + typeof Gain; }");
    RuleSetup first("", file);
    first.addInt("Gain");
    QCOMPARE(first.run("f"), QString("5object"));
    RuleSetup second("", file);
    QVERIFY(!second->setScriptValue("limit", 7.0));
    QCOMPARE(second.run("f"), QString("5undefined"));
    QVERIFY(second->setScriptValue("limit", 7.0));
}

void TstRuleObjectManager::scriptKnowsItsFileAndItsLines()
{
    RuleBench bench;
    const QString file = bench.script("function f() {\n try { missing(); }\n"
                                      " catch (e) { Log.stringValue = e.fileName + ':' + e.lineNumber; } }");
    RuleSetup setup("", file);
    QCOMPARE(setup.run("f"), file + ":2");
}

void TstRuleObjectManager::registeredObjectIsNotCollected()
{
    RuleSetup setup("function f() { Gain = 5; gc(); gc(); Log.stringValue = typeof Gain; }");
    setup.addInt("Gain");
    const QPointer<ScriptableObject> object = setup->GetScriptableObject("Gain");
    QCOMPARE(setup.run("f"), QString("number"));
    QVERIFY(object);
    QCOMPARE(setup->GetScriptableObject("Gain"), object.data());
}

void TstRuleObjectManager::registersUnderAName()
{
    RuleSetup setup("function f() { Level.value = 12; }");
    NumericInt* const value = setup.m_bench.value<NumericInt>("Gain");
    auto* const object = new ScriptableNumericInt(value, QString(), setup.m_manager.get());
    setup->RegisterScriptableObject(object, "Level");
    setup->ReloadScriptAndRun("f");
    QCOMPARE(value->GetValue(), 12);
    QCOMPARE(setup->GetScriptableObject("Level"), object);
    QCOMPARE(setup->GetScriptableObject("Gain"), nullptr);
}

void TstRuleObjectManager::registersUnderTheLastPartOfThePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("several parts") << "a/b/Gain"
                                   << "Gain";
    QTest::newRow("one part") << "Gain"
                              << "Gain";
    QTest::newRow("blank inside") << "/x/My Gain-1"
                                  << "My Gain-1";
}

void TstRuleObjectManager::registersUnderTheLastPartOfThePath()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    RuleSetup setup("function f() { Log.stringValue = this['" + name.toUtf8() + "'].value; }");
    NumericInt* const value = setup.m_bench.value<NumericInt>("number");
    value->SetValue(42);
    Tree::Instance()->RegisterValue(value, path);
    auto* const object = new ScriptableNumericInt(value, QString(), setup.m_manager.get());
    setup->RegisterScriptableObject(object);
    QCOMPARE(setup->GetScriptableObject(name), object);
    QCOMPARE(setup.run("f"), QString("42"));
}

void TstRuleObjectManager::laterObjectReplacesTheEntry()
{
    RuleSetup setup("function f() { Gain.value = 9; }");
    NumericInt* const first = setup.addInt("Gain");
    QPointer<ScriptableObject> earlier = setup->GetScriptableObject("Gain");
    NumericInt* const second = setup.m_bench.value<NumericInt>("Other");
    auto* const later = new ScriptableNumericInt(second, QString(), setup.m_manager.get());
    setup->RegisterScriptableObject(later, "Gain");
    QCOMPARE(setup->GetScriptableObject("Gain"), later);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(first->GetValue(), 0);
    QCOMPARE(second->GetValue(), 9);
    setup.m_manager.reset();
    QVERIFY(earlier); // the caller's again
    delete earlier;
}

void TstRuleObjectManager::registeringNullIsIgnored()
{
    RuleSetup setup("function f() { Log.stringValue = typeof Nothing; }");
    setup->RegisterScriptableObject(nullptr, "Nothing");
    setup->RegisterScriptableObject(nullptr);
    QCOMPARE(setup->GetScriptableObjects()->size(), 1);
    QCOMPARE(setup.run("f"), QString("undefined"));
}

void TstRuleObjectManager::unregisteredObjectIsStillReachable()
{
    RuleSetup setup("function f() { Gain.value = 9; }");
    NumericInt* const value = setup.addInt("Gain");
    QPointer<ScriptableObject> object = setup->GetScriptableObject("Gain");
    setup->UnregisterScriptableObject("Gain");
    setup->UnregisterScriptableObject("Gain");
    setup->UnregisterScriptableObject("unknown");
    QCOMPARE(setup->GetScriptableObject("Gain"), nullptr);
    setup->ReloadScriptAndRun("f");
    QCOMPARE(value->GetValue(), 9);
    setup.m_manager.reset();
    QVERIFY(object);
    delete object;
}

void TstRuleObjectManager::typedLookUps()
{
    RuleSetup setup("");
    setup.add<ScriptableBoolean, ValueBool>("B");
    setup.add<ScriptableNumericFloat, NumericDouble>("F");
    setup.add<ScriptableNumericInt, NumericInt>("I");
    setup.add<ScriptableNumericInt64, NumericInt64>("L");
    setup.add<ScriptableSelection, ValueSelection>("C");
    setup.add<ScriptableString, ValueString>("S");
    const RuleObjectManager& manager = *setup.m_manager;
    for (const char* name : {"B", "F", "I", "L", "C", "S", "none"}) {
        ScriptableObject* const object = manager.GetScriptableObject(name);
        const auto only = [&](ScriptableObject* found, const char* of) {
            return found == (*of == *name ? object : nullptr);
        };
        QVERIFY((object == nullptr) == (QString(name) == "none"));
        QVERIFY(only(manager.GetScriptableBoolean(name), "B"));
        QVERIFY(only(manager.GetScriptableNumericFloat(name), "F"));
        QVERIFY(only(manager.GetScriptableNumericInt(name), "I"));
        QVERIFY(only(manager.GetScriptableNumericInt64(name), "L"));
        QVERIFY(only(manager.GetScriptableSelection(name), "C"));
        QVERIFY(only(manager.GetScriptableString(name), "S"));
    }
}

void TstRuleObjectManager::iterators()
{
    RuleSetup setup("");
    setup.addInt("b");
    setup.addInt("a");
    QStringList names;
    for (auto it = setup->GetScriptableObjectsBegin(); it != setup->GetScriptableObjectsEnd(); ++it)
        names << it.key();
    QCOMPARE(names, QStringList({"Log", "a", "b"}));
    QCOMPARE(setup->GetScriptableObjects()->keys(), names);
}

void TstRuleObjectManager::scriptMayReplaceARegisteredName()
{
    RuleSetup setup("function shadow() { Gain = 5; } function f() { Log.stringValue = typeof Gain; }");
    NumericInt* const value = setup.addInt("Gain");
    setup->ReloadScriptAndRun("shadow");
    QCOMPARE(value->GetValue(), 0);
    QCOMPARE(setup.run("f"), QString("number")); // registration is not repeated
    setup->RegisterScriptableObject(setup->GetScriptableObject("Gain"));
    QCOMPARE(setup.run("f"), QString("object"));
}

void TstRuleObjectManager::deletesItsObjects()
{
    RuleSetup setup("");
    QStringList order;
    for (const char* name : {"c", "a", "b"}) {
        setup.addInt(name);
        connect(setup->GetScriptableObject(name), &QObject::destroyed, this,
                [&order, name] { order << name; });
    }
    setup.m_manager.reset();
    QCOMPARE(order, QStringList({"a", "b", "c"}));
    QVERIFY(!setup.m_log->HasObservers());
}

void TstRuleObjectManager::objectUnderTwoNamesIsDeletedOnce()
{
    RuleSetup setup("function f() { First.value = 4; Second.value = Second.value + 1; }");
    NumericInt* const value = setup.addInt("First");
    int deletions = 0;
    ScriptableObject* const object = setup->GetScriptableObject("First");
    connect(object, &QObject::destroyed, this, [&deletions] { ++deletions; });
    setup->RegisterScriptableObject(object, "Second");
    setup->ReloadScriptAndRun("f");
    QCOMPARE(value->GetValue(), 5);
    setup.m_manager.reset();
    QCOMPARE(deletions, 1);
}

void TstRuleObjectManager::deletedObjectLeavesTheRegistry()
{
    RuleSetup setup("function f() { try { Gain.value = 1; } catch (e) { Log.stringValue = e.name; } }");
    setup.addInt("Gain");
    ScriptableObject* const object = setup->GetScriptableObject("Gain");
    setup->RegisterScriptableObject(object, "Alias");
    delete object;
    QCOMPARE(setup->GetScriptableObject("Gain"), nullptr);
    QCOMPARE(setup->GetScriptableObjects()->keys(), QStringList("Log"));
    QCOMPARE(setup.run("f"), QString("Error"));
}

void TstRuleObjectManager::objectDeletedByTheScript()
{
    RuleSetup setup("function f() { Gain.deleteLater(); }");
    setup.addInt("Gain");
    setup->ReloadScriptAndRun("f");
    QVERIFY(setup->GetScriptableObject("Gain") != nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(setup->GetScriptableObject("Gain"), nullptr);
}

void TstRuleObjectManager::everyRunStartsAnew()
{
    RuleSetup setup("var count = 0; implicit = 0; function helper() { return 'h'; }"
                    "function f() { ++count; ++implicit; ++free; Log.stringValue = [count, implicit, "
                    "helper()].join(' '); }"
                    "function spoil() { helper = null; count = 50; }"
                    "var free;");
    QCOMPARE(setup.run("f"), QString("1 1 h"));
    QCOMPARE(setup.run("f"), QString("1 1 h"));
    setup->ReloadScriptAndRun("spoil");
    QCOMPARE(setup.run("f"), QString("1 1 h"));
}

void TstRuleObjectManager::ruleFunctionHasNoArgumentsAndTheGlobalThis()
{
    RuleSetup setup("var mark = 'm'; function f() { Log.stringValue = arguments.length + this.mark; }");
    QCOMPARE(setup.run("f"), QString("0m"));
}

void TstRuleObjectManager::inheritedAndAssignedFunctions()
{
    RuleSetup setup("var f = function() { Log.stringValue = 'assigned'; };"
                    "Object.prototype.inherited = function() { Log.stringValue = 'inherited'; };"
                    "var o = { m: function() { Log.stringValue = 'member'; } }; var seven = 7;");
    QCOMPARE(setup.run("f"), QString("assigned"));
    QCOMPARE(setup.run("inherited"), QString("inherited"));
    QCOMPARE(setup.run("o.m"), QString());
    QCOMPARE(setup.run("seven"), QString());
}

void TstRuleObjectManager::inactiveManagerRunsNothing()
{
    RuleSetup setup("Log.stringValue += 'evaluated '; function f() { Log.stringValue += 'called '; }");
    NumericInt* const value = setup.addInt("Gain", "f");
    setup->InitFinished();
    setup->setRuleExecutionActive(false);
    QCOMPARE(setup.run("f"), QString());
    value->SetValue(1);
    setup->setRuleExecutionActive(true);
    QCOMPARE(setup.takeLog(), QString()); // the change is lost
    value->SetValue(2);
    QCOMPARE(setup.takeLog(), QString("evaluated called "));
}

void TstRuleObjectManager::failuresPassSilently_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("log");
    QTest::newRow("missing function") << QByteArray("Log.stringValue = 'e';") << "e";
    QTest::newRow("syntax error") << QByteArray("Log.stringValue = 'e'; function f( {") << "";
    QTest::newRow("exception in the function")
        << QByteArray(
               "function f() { Log.stringValue = 'before'; nothing.there = 1; Log.stringValue = 'after'; }")
        << "before";
    QTest::newRow("thrown text") << QByteArray("function f() { Log.stringValue = 'before'; throw 'x'; }")
                                 << "before";
    QTest::newRow("endless recursion")
        << QByteArray("function f() { Log.stringValue = 'before'; (function g() { g(); })(); }") << "before";
    QTest::newRow("unsupported syntax")
        << QByteArray("let a = 1; function f() { Log.stringValue = 'x'; }") << "";
    QTest::newRow("empty file") << QByteArray() << "";
}

void TstRuleObjectManager::failuresPassSilently()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, log);
    RuleSetup setup(script);
    QCOMPARE(setup.run("f"), log);
    QCOMPARE(setup.run("f"), log);
}

void TstRuleObjectManager::functionRunsAfterAThrowingEvaluation()
{
    RuleSetup setup(
        "var before = 1; throw 'stop'; var after = 1;"
        "function f() { Log.stringValue = before + ' ' + typeof after; try { throw 1; } catch (e) {"
        " Log.stringValue += ' ' + e; } Log.stringValue += ' end'; }");
    QCOMPARE(setup.run("f"), QString("1 undefined 1 end"));
}

void TstRuleObjectManager::fileIsReadOnce()
{
    RuleSetup first("function f() { Log.stringValue = 'old'; }");
    const QString path = first.m_bench.script("function f() { Log.stringValue = 'old'; }");
    const auto rewrite = [&path] {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("function f() { Log.stringValue = 'new'; }") > 0;
    };
    RuleSetup second(QByteArray(), path);
    QVERIFY(rewrite()); // before the first run
    QCOMPARE(second.run("f"), QString("old"));
    const RuleSetup third(QByteArray(), path);
    QCOMPARE(second.run("f"), QString("old"));
    second.m_manager.reset();
    RuleSetup fourth(QByteArray(), path);
    QCOMPARE(fourth.run("f"), QString("old"));
}

void TstRuleObjectManager::pathsDifferInCase()
{
    // Built-in objects are shared by all managers of an engine, so they tell which one it is.
    RuleBench bench;
    const QString path =
        bench.script("function f() { Math.runs = (Math.runs || 0) + 1; Log.stringValue = Math.runs; }");
    const QString otherPath = QFileInfo(path).path() + '/' + QFileInfo(path).fileName().toUpper();
    QVERIFY(QFile::copy(path, otherPath));
    RuleSetup first(QByteArray(), path);
    RuleSetup second(QByteArray(), path);
    RuleSetup other(QByteArray(), otherPath);
    QCOMPARE(first.run("f"), QString("1"));
    QCOMPARE(second.run("f"), QString("2"));
    QCOMPARE(other.run("f"), QString("1"));
}

void TstRuleObjectManager::unreadableFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "/rules/there/is/none.js";
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("device") << "/dev/zero";
    QTest::newRow("empty path") << "";
}

void TstRuleObjectManager::unreadableFiles()
{
    QFETCH(QString, path);
    RuleSetup setup(QByteArray(), path.isEmpty() ? QString("") : path);
    RuleObjectManager manager(path);
    setup->InitFinished();
    NumericInt* const value = setup.addInt("Gain", "f");
    value->SetValue(3);
    QCOMPARE(setup.run("f"), QString());
    manager.ReloadScriptAndRun("f");
}

void TstRuleObjectManager::endlessPipeIsNotOpened()
{
    RuleBench bench;
    const QString path = bench.script("") + ".pipe";
    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    RuleObjectManager manager(path);
    manager.ReloadScriptAndRun("f");
    QVERIFY(QFile::remove(path));
}

void TstRuleObjectManager::textIsUtf8()
{
    RuleSetup setup("\xEF\xBB\xBF"
                    "function f() { Log.stringValue = '\xC2\xB5V'; }");
    QCOMPARE(setup.run("f"), QString::fromUtf8("\xC2\xB5V"));
}

void TstRuleObjectManager::hostVariables()
{
    RuleSetup setup("var limit = 5; function f() { Log.stringValue = limit; limit = 99; }");
    QVERIFY(!setup->setScriptValue("limit", 7.0));
    QCOMPARE(setup.run("f"), QString("5"));

    QVERIFY(setup->setScriptValue("limit", 7.0));
    QVERIFY(!setup->setScriptValue("limit", true));
    QVERIFY(!setup->setScriptValue("limit", QString("7")));
    QCOMPARE(setup.run("f"), QString("7"));
    QCOMPARE(setup.run("f"), QString("7")); // survives each run
    QVERIFY(setup->setScriptValue("limit", 8.5));
    QCOMPARE(setup.run("f"), QString("8.5"));

    setup->detatchScriptValue("limit");
    setup->detatchScriptValue("limit");
    setup->detatchScriptValue("unknown");
    QCOMPARE(setup.run("f"), QString("5"));
}

void TstRuleObjectManager::hostVariableWaitsForTheNextRun()
{
    // What no evaluation initialises shows when it is written.
    RuleSetup setup("function f() { if (typeof kept === 'undefined') kept = 1; Log.stringValue = kept; }");
    QCOMPARE(setup.run("f"), QString("1"));
    QVERIFY(setup->setScriptValue("kept", 9.0));
    setup->detatchScriptValue("kept");
    QCOMPARE(setup.run("f"), QString("1"));
    QVERIFY(setup->setScriptValue("kept", 9.0));
    QCOMPARE(setup.run("f"), QString("9"));
}

void TstRuleObjectManager::hostVariableTypes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("taken"); // by the overloads for text, truth value, number
    QTest::newRow("text") << "text"
                          << "text";
    QTest::newRow("truth value") << "flag"
                                 << "flag";
    QTest::newRow("number") << "number"
                            << "number";
    QTest::newRow("constant") << "fixed"
                              << "number";
    QTest::newRow("never assigned") << "empty"
                                    << "";
    QTest::newRow("null") << "nil"
                          << "";
    QTest::newRow("object") << "object"
                            << "";
    QTest::newRow("number object") << "boxed"
                                   << "";
    QTest::newRow("function") << "f"
                              << "";
    QTest::newRow("registered object") << "Log"
                                       << "";
    QTest::newRow("unknown") << "unknown"
                             << "";
    QTest::newRow("inherited number") << "inherited"
                                      << "number";
}

void TstRuleObjectManager::hostVariableTypes()
{
    QFETCH(QString, name);
    QFETCH(QString, taken);
    RuleSetup setup(
        "var text = 'a', flag = false, number = 1, empty, nil = null, object = {}, boxed = new Number(4);"
        "const fixed = 3; Object.prototype.inherited = 9; function f() { }");
    setup->ReloadScriptAndRun("f");
    QCOMPARE(setup->setScriptValue(name, QString("b")), taken == "text");
    QCOMPARE(setup->setScriptValue(name, true), taken == "flag");
    QCOMPARE(setup->setScriptValue(name, 2.0), taken == "number");
}

void TstRuleObjectManager::hostVariableKeepsDerivedInitialisers()
{
    RuleSetup setup("var limit = 5; var twice = limit * 2; var name = 'a'; var on = false;"
                    "function f() { Log.stringValue = [limit, twice, name, on].join(' '); }");
    setup->ReloadScriptAndRun("f");
    QVERIFY(setup->setScriptValue("limit", 7.0));
    QVERIFY(setup->setScriptValue("name", QString("b")));
    QVERIFY(setup->setScriptValue("on", true));
    QCOMPARE(setup.run("f"), QString("7 10 b true"));
    QVERIFY(!setup->setScriptValue("name", 3.0)); // of another type: the earlier one stays
    QCOMPARE(setup.run("f"), QString("7 10 b true"));
}

/// What a host that shares the scope sees after a run.
void TstRuleObjectManager::outermostRunLeavesItsScopeInPlace()
{
    const QByteArray script("var own = 0; function f() { own = Log.stringValue; }");
    RuleSetup first(script);
    const QString path = first.m_bench.script(script);
    RuleSetup one(QByteArray(), path);
    RuleSetup two(QByteArray(), path);
    one.m_log->SetValue("one");
    two.m_log->SetValue("two");
    one->ReloadScriptAndRun("f");
    two->ReloadScriptAndRun("f");
    QVERIFY(one->setScriptValue("own", QString("x"))); // each has its own variable
    QVERIFY(two->setScriptValue("own", QString("y")));
    QCOMPARE(one.m_log->GetValue(), QString("one"));
    QCOMPARE(two.m_log->GetValue(), QString("two"));
}

void TstRuleObjectManager::exceptionOfOneRunDoesNotReachTheNext()
{
    RuleSetup setup("function bad() { throw 'x'; } function f() { Log.stringValue = 'whole'; }");
    setup->ReloadScriptAndRun("bad");
    QCOMPARE(setup.run("f"), QString("whole"));
}

void TstRuleObjectManager::mutexIsFreeAfterARun()
{
    RuleSetup setup("function bad() { throw 'x'; }");
    setup->ReloadScriptAndRun("bad");
    setup->setRuleExecutionActive(false);
    setup->ReloadScriptAndRun("bad");
    bool isDone = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        setup->ReloadScriptAndRun("bad"); // inactive: takes the lock and gives it back
        isDone = true;
    }));
    thread->start();
    QVERIFY(thread->wait(10000));
    QVERIFY(isDone);
}

JED_TEST_MAIN(TstRuleObjectManager)

#include "tst_ruleobjectmanager.moc"
