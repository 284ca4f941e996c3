#include <QDir>
#include <rulecheck/ruleproberun.h>
#include <ruleobjectmanager.h>
#include <ruletimelimit.h>
#include <scriptableboolean.h>
#include <scriptablenumericfloat.h>
#include <scriptablenumericint.h>
#include <scriptablenumericint64.h>
#include <scriptableselection.h>
#include <scriptablestring.h>
#include <session/savefile.h>
#include <support/testmain.h>
#include <values/tree.h>

using namespace JEDVEPLUGIN;
using RuleChecking::RuleObject;
using RuleChecking::RuleScope;

// Recorders end up with what the real objects end up with, whatever a script does to them: each rule of each script of
// tests/data/rules is run once by a probe and once by the rule engine.

namespace {
const char* const RULES = JED_SOURCE_DIR "/tests/data/rules/";
constexpr int TIME_LIMIT = 300; // ms, of the scripts without an end

template <class Scriptable, class Value>
ScriptableObject* publish(Value* value, const RuleObject& object, Node* node, RuleObjectManager* manager)
{
    node->AddChild(value, object.name);
    auto* const scriptable = new Scriptable(value, QString(), manager);
    manager->RegisterScriptableObject(scriptable, object.name);
    return scriptable;
}

template <class Number>
Number* numberOf(const RuleObject& object)
{
    auto* const value = new Number;
    using Type = decltype(value->GetValue());
    if (object.isBounded())
        value->SetMinMax(Type(object.min), Type(object.max), Type(object.step));
    value->SetStep(Type(object.step));
    value->SetValue(Type(object.number));
    return value;
}

void makeReal(const RuleObject& object, Node* node, RuleObjectManager* manager)
{
    if (object.kind == RuleObject::FLOAT)
        publish<ScriptableNumericFloat>(numberOf<NumericDouble>(object), object, node, manager);
    if (object.kind == RuleObject::INT)
        publish<ScriptableNumericInt>(numberOf<NumericInt>(object), object, node, manager);
    if (object.kind == RuleObject::INT64)
        publish<ScriptableNumericInt64>(numberOf<NumericInt64>(object), object, node, manager);
    if (object.kind == RuleObject::BOOLEAN) {
        auto* const value = new ValueBool;
        value->SetValue(object.number != 0);
        publish<ScriptableBoolean>(value, object, node, manager);
    }
    if (object.kind == RuleObject::STRING) {
        auto* const value = new ValueString;
        value->SetValue(object.text);
        publish<ScriptableString>(value, object, node, manager);
    }
    if (object.kind == RuleObject::SELECTION) {
        auto* const value = new ValueSelection;
        for (const RuleObject::Item& item : object.items)
            value->AddItem(item.name, item.value, item.key);
        value->SelectIndex(object.current);
        publish<ScriptableSelection>(value, object, node, manager);
    }
}

QString line(const QString& name, const QStringList& words)
{
    return name + ' ' + words.join(' ');
}

QString text(double number)
{
    return QString::number(number, 'g', 17);
}

QString stateOf(const RuleObject& object)
{
    QStringList words{object.isNormal ? "normal" : "not-normal"};
    if (object.isNumber())
        words << text(object.number) << text(object.min) << text(object.max) << text(object.step);
    if (object.kind == RuleObject::BOOLEAN)
        words << text(object.number);
    if (object.kind == RuleObject::STRING)
        words << object.text;
    for (const RuleObject::Item& item : object.items)
        words << QString("%1=%2:%3").arg(item.name, QString::number(item.key), text(item.value));
    if (object.kind == RuleObject::SELECTION)
        words << QString::number(object.current);
    return line(object.name, words);
}

QString stateOf(ValueBase* value)
{
    QStringList words{value->GetState() == STATE_NORMAL ? "normal" : "not-normal"};
    if (const auto* const number = dynamic_cast<const NumericView*>(value))
        words << text(number->GetDoubleValue()) << text(number->GetDoubleMin())
              << text(number->GetDoubleMax()) << text(number->GetDoubleStep());
    else if (const auto* const truth = dynamic_cast<const ValueBool*>(value))
        words << text(truth->GetValue() ? 1 : 0);
    else if (const auto* const string = dynamic_cast<const ValueString*>(value))
        words << string->GetValue();
    if (const auto* const selection = dynamic_cast<const ValueSelection*>(value)) {
        for (int i = 0; i < selection->GetItemCount(); ++i) {
            const SelectionItem* const item = selection->GetItem(i);
            words << QString("%1=%2:%3")
                         .arg(item->GetName(), QString::number(item->GetKey()), text(item->GetValue()));
        }
        words << QString::number(selection->GetCurrentIndex());
    }
    return line(value->GetId(), words);
}

QStringList real(const QString& file, const QVector<RuleObject>& objects, const QString& function)
{
    Node* const node = Tree::Instance()->CreatePath("/Probe");
    RuleObjectManager manager(file);
    for (const RuleObject& object : objects)
        makeReal(object, node, &manager);
    manager.ReloadScriptAndRun(function); // Not initialised: what it writes sets off no rule.
    QStringList result;
    for (ValueBase* value : node->GetValues())
        result.append(stateOf(value));
    node->Clear();
    return result;
}

QStringList probed(const RuleChecking::RuleScript& script, const QVector<RuleObject>& objects,
                   const QString& function)
{
    RuleChecking::RuleProbeRun run(script, objects, TIME_LIMIT);
    run.run(function);
    QStringList result;
    for (const RuleObject& object : run.objects())
        result.append(stateOf(object));
    return result;
}
} // namespace

class TstRuleProbeRun : public QObject
{
    Q_OBJECT
private slots:
    void init() { setRuleTimeLimit(TIME_LIMIT); }
    void recordersEndLikeTheObjects_data();
    void recordersEndLikeTheObjects();
};

void TstRuleProbeRun::recordersEndLikeTheObjects_data()
{
    QTest::addColumn<QString>("file");
    for (const QString& folder : {QString("correct/"), QString("wrong/")}) {
        for (const QString& name : QDir(RULES + folder).entryList({"*.js"}, QDir::Files))
            QTest::newRow(qPrintable(folder + name)) << RULES + folder + name;
    }
}

void TstRuleProbeRun::recordersEndLikeTheObjects()
{
    QFETCH(QString, file);
    QByteArray content;
    QByteArray list;
    QString error;
    RuleScope scope;
    QVERIFY(Session::readFile(file, &content, &error));
    QVERIFY(Session::readFile(RULES + QString("objects.txt"), &list, &error));
    QVERIFY(RuleChecking::readRuleObjects(QString::fromUtf8(list), &scope, &error));
    const QString code = QString::fromUtf8(content);
    const RuleChecking::RuleScript script{file, code, RuleChecking::RuleOutline(code)};
    for (int trigger = 0; trigger < scope.objects.size(); ++trigger) {
        const QString function = scope.objects.at(trigger).ruleFunction;
        if (!script.outline.globals().contains(function))
            continue;
        QVector<RuleObject> objects = scope.objects;
        for (const RuleObject& probe : scope.objects.at(trigger).probes()) {
            objects[trigger] = probe;
            QCOMPARE(probed(script, objects, function), real(file, objects, function));
        }
    }
}

JED_TEST_MAIN(TstRuleProbeRun)
#include "tst_ruleproberun.moc"
