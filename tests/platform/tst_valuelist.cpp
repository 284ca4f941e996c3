#include <support/changerecorder.h>
#include <values/valuelist.h>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstValueList : public QObject
{
    Q_OBJECT
private slots:
    void freshList();
    void pushBackKeepsTheOrder();
    void itemsOutsideAreEmpty();
    void setters_data();
    void setters();
    void whoMadeTheChangeIsNotTold();
    void textForm_data();
    void textForm();
    void leaving();
};

namespace {

QVector<QString> split(const QString& text)
{
    return text.isEmpty() ? QVector<QString>() : text.split(',').toVector();
}

QString join(const StringList& list)
{
    return QStringList(list.GetItems().toList()).join(',');
}

} // namespace

void TstValueList::freshList()
{
    const StringList list;
    QCOMPARE(list.GetItemCount(), 0);
    QVERIFY(list.GetItems().isEmpty());
    QCOMPARE(list.GetText(), QString());
}

void TstValueList::pushBackKeepsTheOrder()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    StringList list;
    list.AddObserver(&a);
    for (const char* item : {"b", "a", "b", ""})
        QVERIFY(list.PushBack(item));
    QCOMPARE(list.GetItemCount(), 4);
    QCOMPARE(join(list), QString("b,a,b,"));
    QCOMPARE(takeAll(&log), QString("a:5 a:5 a:5 a:5"));
    list.DeleteObserver(&a);
}

void TstValueList::itemsOutsideAreEmpty()
{
    StringList list;
    list.PushBack("x");
    QCOMPARE(list.GetItem(0), QString("x"));
    QVERIFY(list.GetItem(-1).isNull());
    QVERIFY(list.GetItem(1).isNull());
}

/// Each row begins with the items a, b, c.
void TstValueList::setters_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<QString>("after");
    QTest::newRow("other items") << "items x,y" << true << "x,y";
    QTest::newRow("no items") << "items " << true << "";
    QTest::newRow("same items") << "items a,b,c" << true << "a,b,c";
    QTest::newRow("item in the middle") << "item 1 x" << true << "a,x,c";
    QTest::newRow("same item") << "item 1 b" << true << "a,b,c";
    QTest::newRow("item before") << "item -1 x" << false << "a,b,c";
    QTest::newRow("item behind") << "item 3 x" << false << "a,b,c";
    QTest::newRow("delete the first") << "delete 0" << true << "b,c";
    QTest::newRow("delete the last") << "delete 2" << true << "a,b";
    QTest::newRow("delete before") << "delete -1" << false << "a,b,c";
    QTest::newRow("delete behind") << "delete 3" << false << "a,b,c";
    QTest::newRow("delete all") << "clear" << true << "";
}

namespace {

bool perform(StringList& list, const QString& call, IObserver* except)
{
    const QStringList words = call.split(' ');
    if (words.first() == "items")
        return list.SetItems(split(words.value(1)), except);
    if (words.first() == "item")
        return list.SetItem(words.value(1).toInt(), words.value(2), except);
    if (words.first() == "delete")
        return list.DeleteItem(words.value(1).toInt(), except);
    return list.DeleteItems(except);
}

} // namespace

void TstValueList::setters()
{
    QFETCH(QString, call);
    QFETCH(bool, isTaken);
    QFETCH(QString, after);
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    StringList list;
    list.SetItems({"a", "b", "c"});
    list.AddObserver(&a);
    list.AddObserver(&b);
    QCOMPARE(perform(list, call, &b), isTaken);
    QCOMPARE(join(list), after);
    QCOMPARE(takeAll(&log), QString(after == "a,b,c" ? "" : "a:5"));
    list.DeleteObserver(&a);
    list.DeleteObserver(&b);
}

void TstValueList::whoMadeTheChangeIsNotTold()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    StringList list;
    list.AddObserver(&a);
    list.AddObserver(&b);
    list.PushBack("x", &a);
    list.SetText("y\n", &b);
    QCOMPARE(takeAll(&log), QString("b:5 a:5"));
    list.DeleteObserver(&a);
    list.DeleteObserver(&b);
}

void TstValueList::textForm_data()
{
    QTest::addColumn<QVector<QString>>("items");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QVector<QString>() << "";
    QTest::newRow("one empty item") << QVector<QString>{""} << "\n";
    QTest::newRow("two items") << QVector<QString>{"a", "b c"} << "a\nb c\n";
    QTest::newRow("awkward items") << QVector<QString>{"a\nb", "\\n", "\r", ""} << "a\\nb\n\\\\n\n\\r\n\n";
    QTest::newRow("not ASCII") << QVector<QString>{QString::fromUtf8("Küste €")}
                               << QString::fromUtf8("Küste €\n");
}

void TstValueList::textForm()
{
    QFETCH(QVector<QString>, items);
    QFETCH(QString, text);
    StringList list;
    list.SetItems(items);
    QCOMPARE(list.GetText(), text);
    StringList copy;
    copy.PushBack("old");
    QVERIFY(copy.SetText(text));
    QCOMPARE(copy.GetItems(), items);
}

void TstValueList::leaving()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    int count = 0;
    a.setAction([&](Observable* sender, TChangeCode) {
        const auto* const list = dynamic_cast<StringList*>(sender);
        QVERIFY(list != nullptr);
        QCOMPARE(list->GetState(), STATE_LEAVING);
        count = list->GetItemCount();
    });
    {
        StringList list;
        list.PushBack("x");
        list.AddObserver(&a);
    }
    QCOMPARE(takeAll(&log), QString("a:2"));
    QCOMPARE(count, 1);
}

QTEST_GUILESS_MAIN(TstValueList)
#include "tst_valuelist.moc"
