#include "componentdescriptor.h"
#include "naivevaluetree.h"

#include <QRandomGenerator>
#include <support/tracerecorder.h>
#include <support/tunersamples.h>
#include <support/valuetreetext.h>

#include <limits>

using JedTest::component;
using JedTest::contentsBelow;
using JedTest::withItems;
using JEDVEPLUGIN::ComponentDescriptor;

namespace {

QStringList treeOf(const JobXml::Component& source)
{
    Node root;
    ComponentDescriptor(source).createVTConfig(&root);
    return contentsBelow(root);
}

/// A value item of any kind, or of none, with an id that is short enough to occur more than once.
QString randomItem(QRandomGenerator& random)
{
    const char* const kinds[] = {
        "<ValueBoolean id='%1' value='true'/>",
        "<ValueFloat id='%1' value='%2.5'/>",
        "<ValueInt id='%1' value='%2'/>",
        "<ValueInt64 id='%1' value='%2000000000'/>",
        "<ValueNumericFloat id='%1' value='%2.5' min='-10' max='%3' step='0.5'/>",
        "<ValueNumericInt id='%1' value='%2' min='-10' max='%3' step='2'/>",
        "<ValueNumericInt64 id='%1' value='%2' min='-10' max='%3' step='1'/>",
        "<ValueSelection id='%1' index='%3'><SelectionItem name='a' value='%2.7'/><SelectionItem name='b' "
        "value='%3'/>"
        "</ValueSelection>",
        "<ValueString id='%1' value='%2'/>",
        "<ValueStringList id='%1'><StringItem value='%2'/><StringItem value='%3'/></ValueStringList>",
        "<ValueColour id='%1'/>",
    };
    const int kind = random.bounded(int(std::size(kinds)));
    return QStringLiteral("<ValueItem>%1</ValueItem>")
        .arg(QString::fromLatin1(kinds[kind])
                 .arg(QString(QChar('a' + random.bounded(6))), QString::number(random.bounded(-20, 20)),
                      QString::number(random.bounded(-1, 20))));
}

QString randomNodes(QRandomGenerator& random)
{
    const QStringList ids = {"Tuner", "Scan", "FFT", "Scan/1", ""};
    QString nodes;
    for (int i = random.bounded(6); i > 0; --i) {
        QString items;
        for (int j = random.bounded(12); j > 0; --j)
            items += randomItem(random);
        nodes += QStringLiteral("<Node id='%1'>%2</Node>").arg(ids.at(random.bounded(ids.size())), items);
    }
    return nodes;
}

} // namespace

class TstComponentValueTree : public QObject
{
    Q_OBJECT
private slots:
    void everyKindOfValueItem_data();
    void everyKindOfValueItem();
    void itemsKeepTheOrderOfTheFile();
    void nodesKeepTheOrderOfTheFile();
    void aComponentWithoutNodesAddsNothing();
    void aNodeWithoutItemsGivesAnEmptyChild();
    void nodesOfOneIdFillOneChild();
    void anExistingChildIsFilled();
    void aNodeIdThatTheTreeRefusesIsLeftOut();
    void aRootThatIsNotThereIsIgnored();
    void valuesAreAddedUnderAnEmptyKey();
    void theNodeOwnsTheValues();
    void everyCallMakesValuesOfItsOwn();
    void valuesAreInTheNormalState();
    void selectionKeysAreTruncated_data();
    void selectionKeysAreTruncated();
    void selectsTheItemAtTheIndex_data();
    void selectsTheItemAtTheIndex();
    void randomDescriptorsGiveTheTreesOfThePlainestCode();

    void unknownKindsAreSkippedAndTraced();
    void unknownKindsAreNotTracedWithoutTheErrorBit();
};

void TstComponentValueTree::everyKindOfValueItem_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("content");
    const auto row = [](const char* name, const char* item, const char* content) {
        QTest::newRow(name) << QString::fromUtf8(item) << QString::fromUtf8(content);
    };

    row("boolean true", "<ValueBoolean id='v' value='true'/>", "bool true");
    row("boolean false", "<ValueBoolean id='v' value='false'/>", "bool false");
    row("float", "<ValueFloat id='v' value='-2.5'/>", "double -2.5");
    row("float is widened", "<ValueFloat id='v' value='0.1'/>", "double 0.10000000149011612");
    row("int", "<ValueInt id='v' value='-2147483648'/>", "int -2147483648");
    row("int64", "<ValueInt64 id='v' value='9223372036854775807'/>", "int64 9223372036854775807");
    row("numeric float", "<ValueNumericFloat id='v' value='1.5' min='-2' max='8' step='0.5'/>",
        "double 1.5 in -2..8 by 0.5");
    row("numeric float is widened", "<ValueNumericFloat id='v' value='0.1' min='-0.1' max='0.3' step='0.2'/>",
        "double 0.10000000149011612 in -0.10000000149011612..0.30000001192092896 by 0.20000000298023224");
    row("numeric float above", "<ValueNumericFloat id='v' value='9' min='-2' max='8' step='0.5'/>",
        "double 8 in -2..8 by 0.5");
    row("numeric int", "<ValueNumericInt id='v' value='3' min='1' max='5' step='2'/>", "int 3 in 1..5 by 2");
    row("numeric int at the minimum", "<ValueNumericInt id='v' value='1' min='1' max='5' step='2'/>",
        "int 1 in 1..5 by 2");
    row("numeric int at the maximum", "<ValueNumericInt id='v' value='5' min='1' max='5' step='2'/>",
        "int 5 in 1..5 by 2");
    row("numeric int below", "<ValueNumericInt id='v' value='0' min='1' max='5' step='2'/>",
        "int 1 in 1..5 by 2");
    row("numeric int above", "<ValueNumericInt id='v' value='6' min='1' max='5' step='2'/>",
        "int 5 in 1..5 by 2");
    row("numeric int with a range that is refused",
        "<ValueNumericInt id='v' value='3' min='5' max='1' step='2'/>",
        "int 3 in -2147483648..2147483647 by 1");
    row("numeric int64",
        "<ValueNumericInt64 id='v' value='156800000' min='20000000' max='3000000000' step='12500'/>",
        "int64 156800000 in 20000000..3000000000 by 12500");
    row("numeric int64 below",
        "<ValueNumericInt64 id='v' value='1' min='20000000' max='3000000000' step='12500'/>",
        "int64 20000000 in 20000000..3000000000 by 12500");
    row("selection",
        "<ValueSelection id='v' index='1'><SelectionItem name='FM' value='3'/><SelectionItem name='AM' "
        "value='5'/>"
        "</ValueSelection>",
        "selection 1 of FM=3/3,AM=5/5");
    row("selection with equal items",
        "<ValueSelection id='v' index='2'><SelectionItem name='a' value='1'/><SelectionItem name='b' "
        "value='1'/>"
        "<SelectionItem name='a' value='1'/></ValueSelection>",
        "selection 2 of a=1/1,b=1/1,a=1/1");
    row("selection without items", "<ValueSelection id='v' index='0'/>", "selection -1 of ");
    row("string", "<ValueString id='v' value='Küste &amp; Meer'/>", "string Küste & Meer");
    row("empty string", "<ValueString id='v' value=''/>", "string ");
    row("string list",
        "<ValueStringList id='v'><StringItem value='b'/><StringItem value='a'/><StringItem "
        "value='b'/></ValueStringList>",
        "list b|a|b");
    row("empty string list", "<ValueStringList id='v'/>", "list ");
}

void TstComponentValueTree::everyKindOfValueItem()
{
    QFETCH(QString, item);
    QFETCH(QString, content);

    const QStringList tree = treeOf(withItems(QStringLiteral("<ValueItem>%1</ValueItem>").arg(item)));

    QCOMPARE(tree, QStringList({QStringLiteral("Set/v: ") + content}));
}

void TstComponentValueTree::itemsKeepTheOrderOfTheFile()
{
    const QStringList tree =
        treeOf(withItems(QStringLiteral("<ValueItem><ValueString id='z' value='1'/></ValueItem>"
                                        "<ValueItem><ValueInt id='a' value='2'/></ValueItem>"
                                        "<ValueItem><ValueInt id='m' value='3'/></ValueItem>"
                                        "<ValueItem><ValueInt id='a' value='4'/></ValueItem>")));

    QCOMPARE(tree, QStringList({"Set/z: string 1", "Set/a: int 2", "Set/m: int 3", "Set/a: int 4"}));
}

void TstComponentValueTree::nodesKeepTheOrderOfTheFile()
{
    Node root;
    ComponentDescriptor(component(QStringLiteral("<Node id='z'/><Node id='a'/><Node id='m'/>")))
        .createVTConfig(&root);

    QStringList names;
    for (const Node* const child : root.GetChildNodes())
        names.append(child->GetName());
    QCOMPARE(names, QStringList({"z", "a", "m"}));
    QCOMPARE(root.GetValueCount(), 0);
}

void TstComponentValueTree::aComponentWithoutNodesAddsNothing()
{
    Node root;
    ComponentDescriptor(component(QString())).createVTConfig(&root);

    QCOMPARE(root.GetChildNodeCount(), 0);
    QCOMPARE(root.GetValueCount(), 0);
}

void TstComponentValueTree::aNodeWithoutItemsGivesAnEmptyChild()
{
    Node root;
    ComponentDescriptor(component(QStringLiteral("<Node id='Set'/>"))).createVTConfig(&root);

    QCOMPARE(root.GetChildNodeCount(), 1);
    QCOMPARE(root.GetChildNode(QStringLiteral("Set"))->GetValueCount(), 0);
}

void TstComponentValueTree::nodesOfOneIdFillOneChild()
{
    Node root;
    ComponentDescriptor(component(QStringLiteral(
                            "<Node id='A'><ValueItem><ValueInt id='first' value='1'/></ValueItem></Node>"
                            "<Node id='B'><ValueItem><ValueInt id='middle' value='2'/></ValueItem></Node>"
                            "<Node id='A'><ValueItem><ValueInt id='last' value='3'/></ValueItem></Node>")))
        .createVTConfig(&root);

    QCOMPARE(root.GetChildNodeCount(), 2);
    QCOMPARE(contentsBelow(root), QStringList({"A/first: int 1", "A/last: int 3", "B/middle: int 2"}));
}

void TstComponentValueTree::anExistingChildIsFilled()
{
    Node root;
    Node* const before = root.AddChildNode(QStringLiteral("Set"));
    ComponentDescriptor(withItems(QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>")))
        .createVTConfig(&root);

    QCOMPARE(root.GetChildNodeCount(), 1);
    QCOMPARE(before->GetValueCount(), 1);
}

void TstComponentValueTree::aNodeIdThatTheTreeRefusesIsLeftOut()
{
    const QString item = QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>");
    Node root;
    ComponentDescriptor(
        component(
            QStringLiteral("<Node id='a/b'>%1</Node><Node id=''>%1</Node><Node id='c'>%1</Node>").arg(item)))
        .createVTConfig(&root);

    QCOMPARE(contentsBelow(root), QStringList({"c/v: int 1"}));
    QCOMPARE(root.GetChildNodeCount(), 1);
}

void TstComponentValueTree::aRootThatIsNotThereIsIgnored()
{
    const ComponentDescriptor descriptor(
        withItems(QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>")));

    descriptor.createVTConfig(nullptr);

    QCOMPARE(descriptor.getVtNodes().size(), 1);
}

void TstComponentValueTree::valuesAreAddedUnderAnEmptyKey()
{
    Node root;
    ComponentDescriptor(withItems(QStringLiteral("<ValueItem><ValueInt id='before' value='1'/></ValueItem>")))
        .createVTConfig(&root);
    Node* const set = root.GetChildNode(QStringLiteral("Set"));
    ValueBase* const value = set->GetChild(QStringLiteral("before"));
    QVERIFY(value != nullptr);

    // With a key of its own the value would still be found under the old name.
    value->SetName(QStringLiteral("after"));

    QCOMPARE(set->GetChild(QStringLiteral("after")), value);
    QVERIFY(set->GetChild(QStringLiteral("before")) == nullptr);
}

void TstComponentValueTree::theNodeOwnsTheValues()
{
    struct Farewell : IObserver
    {
        void Update(Observable* sender, TChangeCode code) override
        {
            const auto* const value = static_cast<ValueBase*>(sender);
            m_isGone = code == CHANGE_STATE && value->GetState() == STATE_LEAVING;
        }
        bool m_isGone = false;
    } observer;
    auto root = std::make_unique<Node>();
    ComponentDescriptor(withItems(QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>")))
        .createVTConfig(root.get());
    Node* const set = root->GetChildNode(QStringLiteral("Set"));
    ValueBase* const value = set->GetChild(QStringLiteral("v"));
    QCOMPARE(value->GetParent(), set);
    value->AddObserver(&observer);

    root.reset();

    QVERIFY(observer.m_isGone);
}

void TstComponentValueTree::everyCallMakesValuesOfItsOwn()
{
    const ComponentDescriptor descriptor(
        withItems(QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>")));
    Node first;
    Node second;
    descriptor.createVTConfig(&first);
    descriptor.createVTConfig(&second);

    auto* const changed =
        dynamic_cast<ValueInt*>(first.GetChildNode(QStringLiteral("Set"))->GetChild(QStringLiteral("v")));
    QVERIFY(changed != nullptr);
    changed->SetValue(2);
    QCOMPARE(contentsBelow(second), QStringList({"Set/v: int 1"}));

    descriptor.createVTConfig(&first);
    QCOMPARE(contentsBelow(first), QStringList({"Set/v: int 2", "Set/v: int 1"}));
}

void TstComponentValueTree::valuesAreInTheNormalState()
{
    Node root;
    ComponentDescriptor(withItems(QStringLiteral("<ValueItem><ValueInt id='v' value='1'/></ValueItem>")))
        .createVTConfig(&root);

    QCOMPARE(root.GetChildNode(QStringLiteral("Set"))->GetChild(QStringLiteral("v"))->GetState(),
             STATE_NORMAL);
}

void TstComponentValueTree::selectionKeysAreTruncated_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("key");
    constexpr int LARGEST = std::numeric_limits<int>::max();
    constexpr int SMALLEST = std::numeric_limits<int>::min();

    QTest::newRow("whole") << 4.0 << 4;
    QTest::newRow("above") << 2.7 << 2;
    QTest::newRow("below zero") << -2.7 << -2;
    QTest::newRow("between zero and one") << 0.999 << 0;
    QTest::newRow("between minus one and zero") << -0.999 << 0;
    QTest::newRow("largest") << 2147483647.9 << LARGEST;
    QTest::newRow("smallest") << -2147483648.9 << SMALLEST;
    QTest::newRow("too large") << 2147483648.0 << LARGEST;
    QTest::newRow("too small") << -1e300 << SMALLEST;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << LARGEST;
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << SMALLEST;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TstComponentValueTree::selectionKeysAreTruncated()
{
    QFETCH(double, value);
    QFETCH(int, key);
    JobXml::SelectionItem item;
    item.Setname(QStringLiteral("item"));
    item.Setvalue(value);
    JobXml::ValueItem valueItem;
    valueItem.GetValueSelection().Setid(QStringLiteral("v"));
    valueItem.GetValueSelection().AppendSelectionItem(item);
    ComponentDescriptor descriptor{JobXml::Component()};
    descriptor.getvtNode(QStringLiteral("Set")).AppendValueItem(valueItem);

    Node root;
    descriptor.createVTConfig(&root);

    const auto* const selection = dynamic_cast<ValueSelection*>(
        root.GetChildNode(QStringLiteral("Set"))->GetChild(QStringLiteral("v")));
    QVERIFY(selection != nullptr);
    QCOMPARE(selection->GetItem(0)->GetKey(), static_cast<long>(key));
    QCOMPARE(selection->GetItem(0)->GetName(), QStringLiteral("item"));
    QVERIFY(qIsNaN(value) || selection->GetItem(0)->GetValue() == value);
}

void TstComponentValueTree::selectsTheItemAtTheIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");

    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 1 << 1;
    QTest::newRow("behind the last") << 2 << -1;
    QTest::newRow("none") << -1 << -1;
}

void TstComponentValueTree::selectsTheItemAtTheIndex()
{
    QFETCH(int, index);
    QFETCH(int, current);

    const QStringList tree = treeOf(withItems(
        QStringLiteral("<ValueItem><ValueSelection id='v' index='%1'><SelectionItem name='a' value='10'/>"
                       "<SelectionItem name='b' value='20'/></ValueSelection></ValueItem>")
            .arg(index)));

    QCOMPARE(tree, QStringList({QStringLiteral("Set/v: selection %1 of a=10/10,b=20/20").arg(current)}));
}

void TstComponentValueTree::randomDescriptorsGiveTheTreesOfThePlainestCode()
{
    JedTest::TraceRecorder traces;
    QRandomGenerator random(20240611);
    int values = 0;
    for (int round = 0; round < 300; ++round) {
        const QString nodes = randomNodes(random);
        const ComponentDescriptor descriptor(component(nodes));
        Node root;
        Node expected;
        descriptor.createVTConfig(&root);
        NaiveValueTree::create(expected, descriptor.getVtNodes());

        QVERIFY2(contentsBelow(root) == contentsBelow(expected), qPrintable(nodes));
        values += contentsBelow(root).size();
    }
    QVERIFY(values > 1000);
}

void TstComponentValueTree::unknownKindsAreSkippedAndTraced()
{
    JedTest::TraceRecorder traces;

    const QStringList tree =
        treeOf(withItems(QStringLiteral("<ValueItem><ValueInt id='a' value='1'/></ValueItem>"
                                        "<ValueItem><ValueColour id='b' value='red'/></ValueItem>"
                                        "<ValueItem/>"
                                        "<ValueItem><ValueInt id='c' value='2'/></ValueItem>")));

    QCOMPARE(tree, QStringList({"Set/a: int 1", "Set/c: int 2"}));
    const QString trace =
        QStringLiteral(
            "resourcehandling:325: %1 element not supported - maybe new TunerProperties.xsd version?")
            .arg(JobXml::ValueItem::ChoiceValueItemToName(-1));
    QCOMPARE(traces.take(), QStringList({trace, trace}));
}

void TstComponentValueTree::unknownKindsAreNotTracedWithoutTheErrorBit()
{
    JedTest::TraceRecorder traces;
    const JedTest::TraceMask mask(~ErrorHandler::TRACE_ERRORS);

    const QStringList tree =
        treeOf(withItems(QStringLiteral("<ValueItem/><ValueItem><ValueInt id='c' value='2'/>"
                                        "</ValueItem>")));

    QCOMPARE(tree, QStringList({"Set/c: int 2"}));
    QCOMPARE(traces.take(), QStringList());
}

QTEST_GUILESS_MAIN(TstComponentValueTree)
#include "tst_componentvaluetree.moc"
