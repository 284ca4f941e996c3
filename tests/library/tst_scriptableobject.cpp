#include <support/testmain.h>

#include "rulesamples.h"

#include <support/changerecorder.h>

using namespace JEDVEPLUGIN;
using JedTest::ChangeRecorder;
using JedTest::RuleBench;
using JedTest::RuleSetup;

namespace {

/// Properties and methods that a class adds to the base's, as "type name" and "type signature".
QStringList ownMembers(const QMetaObject& meta)
{
    QStringList members;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        members << QString("%1 %2%3%4")
                       .arg(property.typeName(), property.name(), property.isReadable() ? " r" : "",
                            property.isWritable() ? "w" : "");
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        members << QString("%1 %2").arg(meta.method(i).typeName(), QString(meta.method(i).methodSignature()));
    return members;
}

QString outline(const QMetaObject& meta)
{
    return QString("%1 : %2").arg(meta.className(), meta.superClass()->className());
}

struct Failure
{
};

/// An object of every class, each on a value of its own.
struct AllKinds
{
    explicit AllKinds(RuleBench& bench, RuleObjectManager* manager = nullptr, const QString& rule = QString())
        : flag(bench.value<ValueBool>("flag"))
        , real(bench.value<NumericDouble>("real"))
        , number(bench.value<NumericInt>("number"))
        , large(bench.value<NumericInt64>("large"))
        , choice(bench.value<ValueSelection>("choice"))
        , text(bench.value<ValueString>("text"))
    {
        choice->AddItem("one", 1.0, 1);
        objects = {
            new ScriptableBoolean(flag, rule, manager),      new ScriptableNumericFloat(real, rule, manager),
            new ScriptableNumericInt(number, rule, manager), new ScriptableNumericInt64(large, rule, manager),
            new ScriptableSelection(choice, rule, manager),  new ScriptableString(text, rule, manager)};
        values = {flag, real, number, large, choice, text};
    }
    ~AllKinds() { qDeleteAll(objects); }

    /// Gives the value of object \p i, which changes by it.
    void change(int i)
    {
        const char* const texts[] = {"true", "1.5", "7", "8", "one", "word"};
        values.at(i)->SetText(texts[i]);
    }

    ValueBool* flag;
    NumericDouble* real;
    NumericInt* number;
    NumericInt64* large;
    ValueSelection* choice;
    ValueString* text;
    QList<ScriptableObject*> objects;
    QList<ValueBase*> values;
};

const char* const KINDS[] = {"boolean", "float", "int", "int64", "selection", "string"};

} // namespace

class TstScriptableObject : public QObject
{
    Q_OBJECT
private slots:
    void metaObjects();
    void selectionParameterNames();
    void newObjectIsEmpty();
    void takesThePathOfItsValue();
    void worksOnWhatTheTreeHolds();
    void ignoresANodeOfAnotherType();
    void withoutValueAnswersNeutrally();
    void withoutValueStoresNoPath();
    void booleanValue();
    void stringValue();
    void stateNormal_data();
    void stateNormal();
    void valueThatIsLeavingIsNotNormal();
    void setValueTreePath_data();
    void setValueTreePath();
    void valueThatGoesAway_data();
    void valueThatGoesAway();
    void objectThatGoesFirst_data();
    void objectThatGoesFirst();
    void observersInOrder();
    void setValueOfAnotherClass();
    void copiesBooleanAndString();
    void ruleOnlyForValueChanges();
    void noRuleWithoutInitialisedManager();
    void noRuleOfADeletedManager();
    void objectWithoutRuleEvaluatesTheScript();
    void ownRuleDoesNotRecurse();
    void otherRuleRunsNested();
    void mutualRulesEnd();
    void throwingObserverIsHeldBack_data();
    void throwingObserverIsHeldBack();
    void objectDeletedByItsRule();
};

void TstScriptableObject::metaObjects()
{
    QCOMPARE(outline(ScriptableObject::staticMetaObject), QString("JEDVEPLUGIN::ScriptableObject : QObject"));
    QCOMPARE(ownMembers(ScriptableObject::staticMetaObject), QStringList());

    const QStringList number = {"double floatValue rw", "double floatMinValue rw", "double floatMaxValue rw",
                                "double stepValue rw", "bool stateNormal rw"};
    const QString base = " : JEDVEPLUGIN::ScriptableObject";
    QCOMPARE(outline(ScriptableBoolean::staticMetaObject), "JEDVEPLUGIN::ScriptableBoolean" + base);
    QCOMPARE(ownMembers(ScriptableBoolean::staticMetaObject),
             QStringList({"bool boolValue rw", "bool stateNormal rw"}));
    QCOMPARE(outline(ScriptableNumericFloat::staticMetaObject), "JEDVEPLUGIN::ScriptableNumericFloat" + base);
    QCOMPARE(ownMembers(ScriptableNumericFloat::staticMetaObject), number);
    QCOMPARE(outline(ScriptableNumericInt::staticMetaObject), "JEDVEPLUGIN::ScriptableNumericInt" + base);
    QCOMPARE(ownMembers(ScriptableNumericInt::staticMetaObject),
             QStringList({"int value rw", "int minValue rw", "int maxValue rw", "double stepValue rw",
                          "bool stateNormal rw"}));
    QCOMPARE(outline(ScriptableNumericInt64::staticMetaObject), "JEDVEPLUGIN::ScriptableNumericInt64" + base);
    QCOMPARE(ownMembers(ScriptableNumericInt64::staticMetaObject), number);
    QCOMPARE(outline(ScriptableString::staticMetaObject), "JEDVEPLUGIN::ScriptableString" + base);
    QCOMPARE(ownMembers(ScriptableString::staticMetaObject), QStringList("QString stringValue rw"));
    QCOMPARE(outline(ScriptableSelection::staticMetaObject), "JEDVEPLUGIN::ScriptableSelection" + base);
    QCOMPARE(ownMembers(ScriptableSelection::staticMetaObject),
             QStringList({"void AddItemToSelection(int,QString,double)",
                          "void RemoveItemFromSelection(int,QString,double)", "void SelectItemByIndex(int)",
                          "void DeleteItems()", "double GetCurrentValue()", "QString GetCurrentName()",
                          "int GetCurrentIndex()", "int GetItemCount()", "double GetItemValue(int)",
                          "QString GetItemName(int)"}));
}

void TstScriptableObject::selectionParameterNames()
{
    const QMetaObject& meta = ScriptableSelection::staticMetaObject;
    const auto names = [&](const char* signature) {
        return meta.method(meta.indexOfMethod(signature)).parameterNames().join(',');
    };
    QCOMPARE(names("AddItemToSelection(int,QString,double)"), QByteArray("index,name,val"));
    QCOMPARE(names("RemoveItemFromSelection(int,QString,double)"), QByteArray("index,name,value"));
}

void TstScriptableObject::newObjectIsEmpty()
{
    const ScriptableString object(nullptr, "rule", nullptr);
    QCOMPARE(object.GetValueTreePath(), QString());
    QCOMPARE(object.parent(), nullptr);
}

void TstScriptableObject::takesThePathOfItsValue()
{
    RuleBench bench;
    const AllKinds kinds(bench);
    for (int i = 0; i < kinds.objects.size(); ++i)
        QCOMPARE(kinds.objects.at(i)->GetValueTreePath(), kinds.values.at(i)->GetPathName());
}

void TstScriptableObject::worksOnWhatTheTreeHolds()
{
    RuleBench bench;
    ValueBool* const standing = bench.value<ValueBool>("same");
    ValueBool* const second = bench.value<ValueBool>("same");
    QCOMPARE(second->GetPathName(), standing->GetPathName());

    ScriptableBoolean object(second, QString(), nullptr);
    object.setBoolValue(true);
    QVERIFY(standing->GetValue());
    QVERIFY(!second->GetValue());
}

void TstScriptableObject::ignoresANodeOfAnotherType()
{
    RuleBench bench;
    bench.value<ValueString>("same");
    ValueBool* const second = bench.value<ValueBool>("same");
    ScriptableBoolean object(second, QString(), nullptr);
    QCOMPARE(object.GetValueTreePath(), bench.path("same"));
    object.setBoolValue(true);
    QVERIFY(!object.boolValue());
    QVERIFY(!second->GetValue());
}

void TstScriptableObject::withoutValueAnswersNeutrally()
{
    ValueBool unnamed; // its path name is empty
    for (ValueBool* value : {static_cast<ValueBool*>(nullptr), &unnamed}) {
        ScriptableBoolean flag(value, "rule", nullptr);
        flag.setBoolValue(true);
        flag.setStateNormal(false);
        QVERIFY(!flag.boolValue());
        QVERIFY(!flag.stateNormal());
    }
    QVERIFY(!unnamed.GetValue());
    QCOMPARE(unnamed.GetState(), STATE_NORMAL);
    QVERIFY(!unnamed.HasObservers());

    ScriptableNumericFloat real(nullptr, "rule", nullptr);
    ScriptableNumericInt64 large(nullptr, "rule", nullptr);
    for (QObject* object : {static_cast<QObject*>(&real), static_cast<QObject*>(&large)}) {
        for (const char* name : {"floatValue", "floatMinValue", "floatMaxValue", "stepValue"}) {
            QVERIFY(object->setProperty(name, 3.0));
            QCOMPARE(object->property(name), QVariant(0.0));
        }
        QVERIFY(object->setProperty("stateNormal", true));
        QCOMPARE(object->property("stateNormal"), QVariant(false));
    }
    ScriptableNumericInt number(nullptr, "rule", nullptr);
    for (const char* name : {"value", "minValue", "maxValue"}) {
        QVERIFY(number.setProperty(name, 3));
        QCOMPARE(number.property(name), QVariant(0));
    }
    number.setStepValue(3.0);
    number.setStateNormal(true);
    QCOMPARE(number.stepValue(), 0.0);
    QVERIFY(!number.stateNormal());

    ScriptableString text(nullptr, "rule", nullptr);
    text.setStringValue("x");
    QCOMPARE(text.stringValue(), QString());

    ScriptableSelection choice(nullptr, "rule", nullptr);
    choice.AddItemToSelection(1, "one", 1.0);
    choice.RemoveItemFromSelection(1, "one", 1.0);
    choice.SelectItemByIndex(1);
    choice.DeleteItems();
    QCOMPARE(choice.GetCurrentValue(), 0.0);
    QCOMPARE(choice.GetCurrentName(), QString());
    QCOMPARE(choice.GetCurrentIndex(), -1);
    QCOMPARE(choice.GetItemCount(), 0);
    QCOMPARE(choice.GetItemValue(1), 0.0);
    QCOMPARE(choice.GetItemName(1), QString());
}

void TstScriptableObject::withoutValueStoresNoPath()
{
    ScriptableBoolean flag(nullptr, QString(), nullptr);
    ScriptableNumericFloat real(nullptr, QString(), nullptr);
    ScriptableNumericInt number(nullptr, QString(), nullptr);
    ScriptableNumericInt64 large(nullptr, QString(), nullptr);
    ScriptableSelection choice(nullptr, QString(), nullptr);
    ScriptableString text(nullptr, QString(), nullptr);
    for (ScriptableObject* object :
         std::initializer_list<ScriptableObject*>{&flag, &real, &number, &large, &choice, &text}) {
        object->SetValueTreePath("/rules/nothing");
        QCOMPARE(object->GetValueTreePath(), QString());
    }
    QCOMPARE(Tree::Instance()->FindByPath("/rules/nothing"), nullptr);
}

void TstScriptableObject::booleanValue()
{
    RuleBench bench;
    ValueBool* const value = bench.value<ValueBool>("flag");
    ScriptableBoolean object(value, QString(), nullptr);
    QVERIFY(!object.boolValue());
    object.setBoolValue(true);
    QVERIFY(value->GetValue());
    QVERIFY(object.boolValue());
}

void TstScriptableObject::stringValue()
{
    RuleBench bench;
    ValueString* const value = bench.value<ValueString>("text");
    ScriptableString object(value, QString(), nullptr);
    QCOMPARE(object.stringValue(), QString());
    object.setStringValue("guard channel");
    QCOMPARE(value->GetValue(), QString("guard channel"));
    QCOMPARE(object.stringValue(), QString("guard channel"));
}

void TstScriptableObject::stateNormal_data()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(KINDS[i]) << i;
}

void TstScriptableObject::stateNormal()
{
    QFETCH(int, kind);
    RuleBench bench;
    const AllKinds kinds(bench);
    QStringList log;
    ChangeRecorder recorder("value", &log);
    kinds.values.at(kind)->AddObserver(&recorder);
    QObject* const object = kinds.objects.at(kind);

    QCOMPARE(object->property("stateNormal"), QVariant(true));
    object->setProperty("stateNormal", false);
    QCOMPARE(int(kinds.values.at(kind)->GetState()), 2);
    QCOMPARE(object->property("stateNormal"), QVariant(false));
    object->setProperty("stateNormal", true);
    QCOMPARE(int(kinds.values.at(kind)->GetState()), 0);
    QCOMPARE(object->property("stateNormal"), QVariant(true));
    QCOMPARE(JedTest::takeAll(&log), QString("value:2 value:2"));
    kinds.values.at(kind)->DeleteObserver(&recorder);
}

void TstScriptableObject::valueThatIsLeavingIsNotNormal()
{
    RuleBench bench;
    ValueBool* const value = bench.value<ValueBool>("leaving");
    QStringList log;
    ChangeRecorder recorder("value", &log); // is told before the object is
    value->AddObserver(&recorder);
    const ScriptableBoolean object(value, QString(), nullptr);
    recorder.setAction([&](Observable*, TChangeCode) {
        log << QString::number(value->GetState()) << (object.stateNormal() ? "normal" : "not normal");
    });
    delete value;
    QCOMPARE(JedTest::takeAll(&log), QString("value:2 1 not normal"));
}

void TstScriptableObject::setValueTreePath_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("keepsItsRule");
    for (int i = 0; i < 6; ++i)
        QTest::newRow(KINDS[i]) << i << (i != 0);
}

void TstScriptableObject::setValueTreePath()
{
    QFETCH(int, kind);
    QFETCH(bool, keepsItsRule);
    RuleSetup setup("function rule() { Log.stringValue += 'x'; }");
    RuleBench bench;
    AllKinds kinds(bench, setup.m_manager.get(), "rule");
    setup->InitFinished();
    const QString path = QString("/rules/moved%1").arg(kind);

    kinds.objects.at(kind)->SetValueTreePath(path);
    QCOMPARE(setup.takeLog(), QString()); // the move itself runs no rule
    QCOMPARE(kinds.objects.at(kind)->GetValueTreePath(), path);
    QCOMPARE(Tree::Instance()->FindByPath(path), kinds.values.at(kind));
    QCOMPARE(kinds.values.at(kind)->GetPathName(), path);

    kinds.change(kind);
    QCOMPARE(setup.takeLog(), QString(keepsItsRule ? "x" : ""));

    // Whether or not its rule follows, the object still notices that the value goes.
    delete kinds.values.at(kind);
    kinds.objects.at(kind)->SetValueTreePath("/rules/further");
    QCOMPARE(kinds.objects.at(kind)->GetValueTreePath(), path);
}

void TstScriptableObject::valueThatGoesAway_data()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < 6; ++i)
        QTest::newRow(KINDS[i]) << i;
}

void TstScriptableObject::valueThatGoesAway()
{
    QFETCH(int, kind);
    RuleBench bench;
    AllKinds kinds(bench);
    const QMetaObject* const meta = kinds.objects.at(kind)->metaObject();
    delete kinds.values.at(kind);
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QVariant before = meta->property(i).read(kinds.objects.at(kind));
        QCOMPARE(before, QVariant(before.userType(), nullptr));
        QVERIFY(meta->property(i).write(kinds.objects.at(kind), before));
    }
    const auto* const choice = qobject_cast<ScriptableSelection*>(kinds.objects.at(kind));
    QCOMPARE(choice ? choice->GetItemCount() : 0, 0);
    kinds.objects.at(kind)->SetValueTreePath("/rules/late");
    QCOMPARE(Tree::Instance()->FindByPath("/rules/late"), nullptr);
}

void TstScriptableObject::objectThatGoesFirst_data()
{
    valueThatGoesAway_data();
}

void TstScriptableObject::objectThatGoesFirst()
{
    QFETCH(int, kind);
    RuleBench bench;
    AllKinds kinds(bench);
    QVERIFY(kinds.values.at(kind)->HasObservers());
    delete kinds.objects.takeAt(kind);
    QVERIFY(!kinds.values.at(kind)->HasObservers());
}

void TstScriptableObject::observersInOrder()
{
    RuleBench bench;
    ValueString* const first = bench.value<ValueString>("first");
    ValueString* const second = bench.value<ValueString>("second");
    QStringList log;
    ChangeRecorder owner("owner", &log);
    ChangeRecorder later("later", &log);
    ValueObservingPtr<ValueString> held(&owner);
    QVERIFY(!held);
    QCOMPARE(held.Get(), nullptr);

    held.SetByPath(bench.path("missing"));
    QVERIFY(!held);
    held.SetByPath(first->GetPathName());
    QCOMPARE(held.Get(), first);
    first->AddObserver(&later);
    first->SetValue("a");
    QCOMPARE(JedTest::takeAll(&log), QString("owner:3 later:3"));

    held.Set(second);
    first->SetValue("b");
    QCOMPARE(JedTest::takeAll(&log), QString("later:3"));
    first->DeleteObserver(&later);
    QVERIFY(!first->HasObservers());
    second->SetState(STATE_NOT_NORMAL);
    QCOMPARE(held.Get(), second);
    QCOMPARE(JedTest::takeAll(&log), QString("owner:2"));

    delete second; // the owner is told before the pointer lets go
    QCOMPARE(JedTest::takeAll(&log), QString("owner:2"));
    QVERIFY(!held);
    held.Set(first);
    held.Set(nullptr);
    QVERIFY(!first->HasObservers());
}

void TstScriptableObject::setValueOfAnotherClass()
{
    RuleBench bench;
    RuleBench other;
    const AllKinds targets(bench);
    const AllKinds sources(other);
    for (int i = 0; i < 6; ++i)
        const_cast<AllKinds&>(sources).change(i);
    for (int target = 0; target < 6; ++target) {
        const QString before = targets.values.at(target)->GetText();
        for (int source = 0; source < 6; ++source) {
            if (source != target)
                targets.objects.at(target)->SetValue(sources.objects.at(source));
        }
        targets.objects.at(target)->SetValue(nullptr);
        QCOMPARE(targets.values.at(target)->GetText(), before);
        targets.objects.at(target)->SetValue(sources.objects.at(target));
        QCOMPARE(targets.values.at(target)->GetText(), sources.values.at(target)->GetText());
    }
}

void TstScriptableObject::copiesBooleanAndString()
{
    RuleSetup setup("function rule() { Log.stringValue += 'x'; }");
    ValueBool* const flag = setup.add<ScriptableBoolean, ValueBool>("Flag", "rule");
    ValueString* const text = setup.add<ScriptableString, ValueString>("Text", "rule");
    setup->InitFinished();
    flag->SetValue(true);
    text->SetValue("before");
    setup.takeLog();

    // Of a source without a value, the neutral result is taken; rules run as for any change.
    ScriptableBoolean noFlag(nullptr, QString(), nullptr);
    ScriptableString noText(nullptr, QString(), nullptr);
    setup->GetScriptableBoolean("Flag")->SetValue(&noFlag);
    setup->GetScriptableString("Text")->SetValue(&noText);
    QVERIFY(!flag->GetValue());
    QCOMPARE(text->GetValue(), QString());
    QCOMPARE(setup.takeLog(), QString("xx"));
}

void TstScriptableObject::ruleOnlyForValueChanges()
{
    RuleSetup setup("function rule() { Log.stringValue += 'x'; }");
    setup->InitFinished();
    NumericInt* const value = setup.addInt("Number", "rule");
    ScriptableObject* const object = setup->GetScriptableObject("Number");
    for (int code = 0; code <= 7; ++code) {
        object->Update(value, TChangeCode(code));
        QCOMPARE(setup.takeLog(), QString(code == 3 ? "x" : ""));
    }
    object->Update(nullptr, CHANGE_VALUE); // who sends it does not matter
    QCOMPARE(setup.takeLog(), QString("x"));
    value->SetStep(5);
    value->SetState(STATE_NOT_NORMAL);
    QCOMPARE(setup.takeLog(), QString());
    value->SetValue(5);
    QCOMPARE(setup.takeLog(), QString("x"));
    value->SetValue(5);
    QCOMPARE(setup.takeLog(), QString());
}

void TstScriptableObject::noRuleWithoutInitialisedManager()
{
    RuleBench bench;
    NumericInt* const alone = bench.value<NumericInt>("alone");
    ScriptableNumericInt object(alone, "rule", nullptr);
    alone->SetValue(1);

    RuleSetup setup("function rule() { Log.stringValue += 'x'; }");
    NumericInt* const value = setup.addInt("Number", "rule");
    value->SetValue(1);
    QCOMPARE(setup.takeLog(), QString());
    setup->InitFinished();
    value->SetValue(2);
    QCOMPARE(setup.takeLog(), QString("x"));
}

void TstScriptableObject::noRuleOfADeletedManager()
{
    RuleBench bench;
    NumericInt* const value = bench.value<NumericInt>("Number");
    auto manager =
        std::make_unique<RuleObjectManager>(bench.script("function rule() { Number.value = 100; }"));
    ScriptableNumericInt object(value, "rule", manager.get());
    manager->RegisterScriptableObject(&object);
    manager->InitFinished();
    manager->UnregisterScriptableObject("Number");
    value->SetValue(1);
    QCOMPARE(value->GetValue(), 100);

    manager.reset();
    value->SetValue(2);
    QCOMPARE(value->GetValue(), 2);
}

/// The empty name is a function like any other that is missing.
void TstScriptableObject::objectWithoutRuleEvaluatesTheScript()
{
    RuleSetup setup("Log.stringValue += 'e';");
    NumericInt* const value = setup.m_bench.value<NumericInt>("Number");
    setup->RegisterScriptableObject(new ScriptableNumericInt(value, QString(), setup.m_manager.get()));
    setup->InitFinished();
    value->SetValue(1);
    QCOMPARE(setup.takeLog(), QString("e"));
}

void TstScriptableObject::ownRuleDoesNotRecurse()
{
    RuleSetup setup(
        "function rule() { Log.stringValue += Number.value + ' '; Number.value = Number.value + 1; }");
    NumericInt* const value = setup.addInt("Number", "rule");
    setup->InitFinished();
    value->SetValue(10);
    QCOMPARE(setup.takeLog(), QString("10 "));
    QCOMPARE(value->GetValue(), 11);
    value->SetValue(20);
    QCOMPARE(setup.takeLog(), QString("20 "));
}

void TstScriptableObject::otherRuleRunsNested()
{
    RuleSetup setup(
        "function first() { Log.stringValue += '['; Second.value = First.value; Log.stringValue += ']'; }"
        "function second() { Log.stringValue += 's'; }");
    NumericInt* const value = setup.addInt("First", "first");
    NumericInt* const second = setup.addInt("Second", "second");
    setup->InitFinished();
    value->SetValue(3);
    QCOMPARE(setup.takeLog(), QString("[s]"));
    QCOMPARE(second->GetValue(), 3);
}

void TstScriptableObject::mutualRulesEnd()
{
    RuleSetup setup("function first() { Log.stringValue += 'f'; Second.value = Second.value + 1; }"
                    "function second() { Log.stringValue += 's'; First.value = First.value + 1; }");
    NumericInt* const first = setup.addInt("First", "first");
    NumericInt* const second = setup.addInt("Second", "second");
    setup->InitFinished();
    first->SetValue(1);
    QCOMPARE(setup.takeLog(), QString("fs"));
    QCOMPARE(first->GetValue(), 2);
    QCOMPARE(second->GetValue(), 1);
}

void TstScriptableObject::throwingObserverIsHeldBack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("statement");
    QTest::newRow("boolValue") << 0 << "flag.boolValue = true";
    QTest::newRow("boolean state") << 0 << "flag.stateNormal = false";
    QTest::newRow("floatValue") << 1 << "real.floatValue = 2";
    QTest::newRow("floatMinValue") << 1 << "real.floatMinValue = 2";
    QTest::newRow("floatMaxValue") << 1 << "real.floatMaxValue = 2";
    QTest::newRow("float step") << 1 << "real.stepValue = 2";
    QTest::newRow("float state") << 1 << "real.stateNormal = false";
    QTest::newRow("value") << 2 << "number.value = 2";
    QTest::newRow("minValue") << 2 << "number.minValue = 2";
    QTest::newRow("maxValue") << 2 << "number.maxValue = 2";
    QTest::newRow("int step") << 2 << "number.stepValue = 2";
    QTest::newRow("int state") << 2 << "number.stateNormal = false";
    QTest::newRow("int64 floatValue") << 3 << "large.floatValue = 2";
    QTest::newRow("int64 floatMinValue") << 3 << "large.floatMinValue = 2";
    QTest::newRow("int64 floatMaxValue") << 3 << "large.floatMaxValue = 2";
    QTest::newRow("int64 step") << 3 << "large.stepValue = 2";
    QTest::newRow("int64 state") << 3 << "large.stateNormal = false";
    QTest::newRow("add item") << 4 << "choice.AddItemToSelection(5, 'five', 5)";
    QTest::newRow("remove item") << 4 << "choice.RemoveItemFromSelection(1, 'one', 1)";
    QTest::newRow("select item") << 4 << "choice.SelectItemByIndex(1)";
    QTest::newRow("delete items") << 4 << "choice.DeleteItems()";
    QTest::newRow("stringValue") << 5 << "text.stringValue = 'x'";
}

void TstScriptableObject::throwingObserverIsHeldBack()
{
    QFETCH(int, kind);
    QFETCH(QString, statement);
    RuleSetup setup("function rule() { " + statement.toUtf8() + "; Log.stringValue += 'after'; }");
    RuleBench bench;
    const AllKinds kinds(bench);
    for (ScriptableObject* object : kinds.objects)
        setup->RegisterScriptableObject(object);
    QStringList log;
    ChangeRecorder thrower("thrower", &log);
    thrower.setAction([](Observable*, TChangeCode) { throw Failure(); });
    kinds.values.at(kind)->AddObserver(&thrower);

    QCOMPARE(setup.run("rule"), QString("after"));
    QCOMPARE(log.size(), 1);
    kinds.values.at(kind)->DeleteObserver(&thrower);
    for (ScriptableObject* object : kinds.objects)
        setup->UnregisterScriptableObject(object->GetValueTreePath().section('/', -1));
}

void TstScriptableObject::objectDeletedByItsRule()
{
    RuleSetup setup("function rule() { Log.stringValue += 'a'; Other.value = 1; Log.stringValue += 'b'; }");
    NumericInt* const value = setup.addInt("Number", "rule");
    NumericInt* const other = setup.addInt("Other");
    QStringList log;
    ChangeRecorder deleter("deleter", &log);
    deleter.setAction([&](Observable*, TChangeCode) { delete setup->GetScriptableObject("Number"); });
    other->AddObserver(&deleter);
    setup->InitFinished();

    value->SetValue(1);
    QCOMPARE(setup.takeLog(), QString("ab"));
    QCOMPARE(setup->GetScriptableObject("Number"), nullptr);
    QVERIFY(!value->HasObservers());
    other->DeleteObserver(&deleter);
}

JED_TEST_MAIN(TstScriptableObject)

#include "tst_scriptableobject.moc"
