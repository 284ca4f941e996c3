#include <support/testmain.h>

#include "rulesamples.h"

#include <support/changerecorder.h>

using namespace JEDVEPLUGIN;
using JedTest::ChangeRecorder;
using JedTest::RuleBench;
using JedTest::RuleSetup;

namespace {

QString items(const ValueSelection& selection)
{
    QStringList texts;
    for (int i = 0; i < selection.GetItemCount(); ++i) {
        const SelectionItem* const item = selection.GetItem(i);
        texts << QString("%1=%2/%3")
                     .arg(QString::number(item->GetKey()), item->GetName(),
                          QString::number(item->GetValue(), 'g', 12));
    }
    return texts.join(' ');
}

/// Keys that are no positions.
void fill(ValueSelection* selection)
{
    selection->AddItem("AM", 9000.0, 10);
    selection->AddItem("FM", 12000.0, 30);
    selection->AddItem("USB", 2400.0, 20);
}

} // namespace

class TstScriptableSelection : public QObject
{
    Q_OBJECT
private slots:
    void addsAndRemovesItems();
    void selectsByKey();
    void currentItem();
    void looksItemsUpByKey();
    void copiesTheKeyOnly();
    void copiesNothingSelected();
    void deletingItemsDoesNotRunTheOwnRule();
    void removingTheCurrentItemRunsTheRule();
    void scriptUsesEveryMethod();
    void wrongNumberOfArguments();
};

void TstScriptableSelection::addsAndRemovesItems()
{
    RuleBench bench;
    ValueSelection* const value = bench.value<ValueSelection>("choice");
    ScriptableSelection object(value, QString(), nullptr);
    QStringList log;
    ChangeRecorder recorder("seen", &log);
    value->AddObserver(&recorder);

    object.AddItemToSelection(7, "wide", 250000.5);
    object.AddItemToSelection(-3, "narrow", 500.0);
    QCOMPARE(items(*value), QString("7=wide/250000.5 -3=narrow/500"));
    QCOMPARE(value->GetItemByKey(7)->GetValue(), 250000.5);
    QCOMPARE(JedTest::takeAll(&log), QString("seen:5 seen:5"));
    QCOMPARE(object.GetItemCount(), 2);

    object.RemoveItemFromSelection(7, "wide", 1.0);
    object.RemoveItemFromSelection(7, "narrow", 250000.5);
    object.RemoveItemFromSelection(8, "wide", 250000.5);
    QCOMPARE(object.GetItemCount(), 2);
    object.RemoveItemFromSelection(7, "wide", 250000.5);
    QCOMPARE(items(*value), QString("-3=narrow/500"));
    QCOMPARE(JedTest::takeAll(&log), QString("seen:5"));
    object.DeleteItems();
    QCOMPARE(object.GetItemCount(), 0);
    QCOMPARE(JedTest::takeAll(&log), QString("seen:5")); // others hear of it
    value->DeleteObserver(&recorder);
}

void TstScriptableSelection::selectsByKey()
{
    RuleBench bench;
    ValueSelection* const value = bench.value<ValueSelection>("choice");
    fill(value);
    ScriptableSelection object(value, QString(), nullptr);
    object.SelectItemByIndex(20);
    QCOMPARE(value->GetCurrentIndex(), 2); // its position
    object.SelectItemByIndex(1);           // a position, but no key
    QCOMPARE(value->GetCurrentItem()->GetKey(), 20L);
}

void TstScriptableSelection::currentItem()
{
    RuleBench bench;
    ValueSelection* const value = bench.value<ValueSelection>("choice");
    fill(value);
    ScriptableSelection object(value, QString(), nullptr);
    QCOMPARE(object.GetCurrentIndex(), -1);
    QCOMPARE(object.GetCurrentName(), QString());
    QCOMPARE(object.GetCurrentValue(), 0.0);
    value->Select(30);
    QCOMPARE(object.GetCurrentIndex(), 30);
    QCOMPARE(object.GetCurrentName(), QString("FM"));
    QCOMPARE(object.GetCurrentValue(), 12000.0);
}

void TstScriptableSelection::looksItemsUpByKey()
{
    RuleBench bench;
    ValueSelection* const value = bench.value<ValueSelection>("choice");
    fill(value);
    ScriptableSelection object(value, QString(), nullptr);
    QCOMPARE(object.GetItemName(20), QString("USB"));
    QCOMPARE(object.GetItemValue(20), 2400.0);
    QCOMPARE(object.GetItemName(2), QString());
    QCOMPARE(object.GetItemValue(2), 0.0);
}

void TstScriptableSelection::copiesTheKeyOnly()
{
    RuleBench bench;
    ValueSelection* const from = bench.value<ValueSelection>("from");
    ValueSelection* const to = bench.value<ValueSelection>("to");
    fill(from);
    to->AddItem("thirty", 3.0, 30);
    from->Select(30);
    ScriptableSelection source(from, QString(), nullptr);
    ScriptableSelection target(to, QString(), nullptr);
    target.SetValue(&source);
    QCOMPARE(items(*to), QString("30=thirty/3"));
    QCOMPARE(to->GetCurrentItem()->GetName(), QString("thirty"));
    from->Select(10); // a key that the target does not have
    target.SetValue(&source);
    QCOMPARE(to->GetCurrentItem()->GetKey(), 30L);
}

void TstScriptableSelection::copiesNothingSelected()
{
    RuleBench bench;
    ValueSelection* const to = bench.value<ValueSelection>("to");
    to->AddItem("some", 1.0, 1);
    to->Select(1);
    ScriptableSelection nothing(nullptr, QString(), nullptr);
    ScriptableSelection target(to, QString(), nullptr);
    target.SetValue(&nothing);
    QCOMPARE(to->GetCurrentItem()->GetKey(), 1L);
    to->AddItem("none", 0.0, -1);
    target.SetValue(&nothing);
    QCOMPARE(to->GetCurrentItem()->GetName(), QString("none"));
}

void TstScriptableSelection::deletingItemsDoesNotRunTheOwnRule()
{
    RuleSetup setup("function own() { Log.stringValue += 'own '; }"
                    "function other() { Log.stringValue += 'other '; }"
                    "function empty() { Choice.DeleteItems(); }");
    ValueSelection* const value = setup.add<ScriptableSelection, ValueSelection>("Choice", "own");
    fill(value);
    ScriptableSelection second(value, "other", setup.m_manager.get());
    value->Select(10);
    setup->InitFinished();

    // The current item goes with the others, which is a change of the value for everybody else.
    QCOMPARE(setup.run("empty"), QString("other "));
    QCOMPARE(value->GetItemCount(), 0);
}

void TstScriptableSelection::removingTheCurrentItemRunsTheRule()
{
    RuleSetup setup("function own() { Log.stringValue += 'own'; }"
                    "function removeIt() { Choice.RemoveItemFromSelection(10, 'AM', 9000); }");
    ValueSelection* const value = setup.add<ScriptableSelection, ValueSelection>("Choice", "own");
    fill(value);
    value->Select(10);
    setup->InitFinished();
    QCOMPARE(setup.run("removeIt"), QString("own"));
}

void TstScriptableSelection::scriptUsesEveryMethod()
{
    RuleSetup setup(
        "function f() {"
        " Choice.AddItemToSelection(5, 'five', 5.5); Choice.AddItemToSelection(6, 'six', 6.5);"
        " Choice.AddItemToSelection(7, 'seven', 7.5); Choice.RemoveItemFromSelection(6, 'six', 6.5);"
        " Choice.SelectItemByIndex(7);"
        " Log.stringValue = [Choice.GetCurrentValue(), Choice.GetCurrentName(),"
        " Choice.GetCurrentIndex(), Choice.GetItemCount(), Choice.GetItemValue(5),"
        " Choice.GetItemName(5), Choice.GetItemName(6) === ''].join(' ');"
        " Choice.DeleteItems(); Log.stringValue += ' ' + Choice.GetItemCount(); }");
    setup.add<ScriptableSelection, ValueSelection>("Choice");
    QCOMPARE(setup.run("f"), QString("7.5 seven 7 2 5.5 five true 0"));
}

void TstScriptableSelection::wrongNumberOfArguments()
{
    RuleSetup setup("function f() { try { Choice.AddItemToSelection(5, 'five'); }"
                    " catch (e) { Log.stringValue = e.name; } }");
    ValueSelection* const value = setup.add<ScriptableSelection, ValueSelection>("Choice");
    QCOMPARE(setup.run("f"), QString("SyntaxError"));
    QCOMPARE(value->GetItemCount(), 0);
}

JED_TEST_MAIN(TstScriptableSelection)

#include "tst_scriptableselection.moc"
