#include <support/changerecorder.h>
#include <values/node.h>
#include <values/value.h>

#include <QRandomGenerator>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstValueNode : public QObject
{
    Q_OBJECT
private slots:
    void freshNode();
    void childNodeIsMadeOnce();
    void childNodesNeedAnId_data();
    void childNodesNeedAnId();
    void childrenKeepTheirOrder();
    void keyOrNameIsTheId();
    void renamingMovesTheId();
    void childWithoutIdIsKept();
    void refusedChildren();
    void valueAndNodeOfOneId();
    void firstOfEqualIdsIsFound_data();
    void firstOfEqualIdsIsFound();
    void lookUpEqualsAWalk();
    void deletedChildIsGone();
    void leavingOrder();
    void clearKeepsTheNode();
    void whatLeavesIsNotFound();
    void nothingIsAddedToANodeThatIsBeingDeleted();
    void siblingsDeletedMeanwhile();
    void deepChainsAreDeleted();
    void textForm();
};

namespace {

ValueInt* addValue(Node& node, const QString& name, const QString& key = QString())
{
    auto* const value = new ValueInt;
    value->SetName(name);
    if (!node.AddChild(value, key))
        qFatal("the value was not taken");
    return value;
}

QString namesOf(const Node& node)
{
    QStringList names;
    for (const ValueBase* value : node.GetValues())
        names.append(value->GetName());
    for (const Node* child : node.GetChildNodes())
        names.append('[' + child->GetName() + ']');
    return names.join(' ');
}

/// Writes down, with names, who leaves.
class LeavingRecorder : public IObserver
{
public:
    void observe(ValueBase* object) { object->AddObserver(this); }
    void observeAll(Node* node)
    {
        observe(node);
        for (ValueBase* value : node->GetValues())
            observe(value);
        for (Node* child : node->GetChildNodes())
            observeAll(child);
    }
    void Update(Observable* sender, TChangeCode code) override
    {
        const auto* const object = dynamic_cast<ValueBase*>(sender);
        if (code == CHANGE_STATE && object != nullptr && object->GetState() == STATE_LEAVING)
            names.append(object->GetName());
    }

    QStringList names;
};

} // namespace

void TstValueNode::freshNode()
{
    const Node node;
    QVERIFY(node.IsNode());
    QCOMPARE(node.GetName(), QString());
    QCOMPARE(node.GetState(), STATE_NORMAL);
    QCOMPARE(node.GetValueCount(), 0);
    QCOMPARE(node.GetChildNodeCount(), 0);
    QVERIFY(node.GetValues().isEmpty());
    QVERIFY(node.GetChildNodes().isEmpty());
    QVERIFY(node.GetChild("a") == nullptr);
    QVERIFY(node.GetChildNode("a") == nullptr);
    QVERIFY(node.GetParent() == nullptr);
}

void TstValueNode::childNodeIsMadeOnce()
{
    Node node;
    Node* const range = node.AddChildNode("Range");
    QVERIFY(range != nullptr);
    QCOMPARE(range->GetName(), QString("Range"));
    QCOMPARE(range->GetId(), QString("Range"));
    QCOMPARE(range->GetParent(), &node);
    QCOMPARE(node.AddChildNode("Range"), range);
    QCOMPARE(node.GetChildNode("Range"), range);
    QVERIFY(node.AddChildNode("range") != range);
    QCOMPARE(node.GetChildNodeCount(), 2);
}

void TstValueNode::childNodesNeedAnId_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("slash") << "/";
    QTest::newRow("slash inside") << "a/b";
}

void TstValueNode::childNodesNeedAnId()
{
    QFETCH(QString, id);
    Node node;
    QVERIFY(node.AddChildNode(id) == nullptr);
    QCOMPARE(node.GetChildNodeCount(), 0);
}

void TstValueNode::childrenKeepTheirOrder()
{
    Node node;
    for (const char* name : {"d", "b", "c", "a"}) {
        addValue(node, name);
        node.AddChildNode(name);
    }
    QCOMPARE(namesOf(node), QString("d b c a [d] [b] [c] [a]"));
    auto* const late = new Node;
    late->SetName("0");
    QVERIFY(node.AddChild(late));
    QCOMPARE(namesOf(node), QString("d b c a [d] [b] [c] [a] [0]"));
    QCOMPARE(node.GetChildNode("0"), late);
    QCOMPARE(node.GetValueCount(), 4);
    QCOMPARE(node.GetChildNodeCount(), 5);
}

void TstValueNode::keyOrNameIsTheId()
{
    Node node;
    ValueBase* const named = addValue(node, "Gain", "");
    ValueBase* const keyed = addValue(node, "Attenuation", "Att");
    QCOMPARE(named->GetId(), QString("Gain"));
    QCOMPARE(node.GetChild("Gain"), named);
    QCOMPARE(keyed->GetId(), QString("Att"));
    QCOMPARE(keyed->GetName(), QString("Attenuation"));
    QCOMPARE(node.GetChild("Att"), keyed);
    QVERIFY(node.GetChild("Attenuation") == nullptr);
}

void TstValueNode::renamingMovesTheId()
{
    Node node;
    ValueBase* const named = addValue(node, "Gain");
    ValueBase* const keyed = addValue(node, "Attenuation", "Att");
    for (int i = 0; i < 20; ++i)
        addValue(node, QString("filler %1").arg(i));
    QCOMPARE(node.GetChild("Gain"), named); // The ids are hashed by now.
    QVERIFY(named->SetName("Level"));
    QVERIFY(keyed->SetName("Other"));
    QCOMPARE(node.GetChild("Level"), named);
    QVERIFY(node.GetChild("Gain") == nullptr);
    QCOMPARE(node.GetChild("Att"), keyed);
    QVERIFY(node.GetChild("Other") == nullptr);
}

void TstValueNode::childWithoutIdIsKept()
{
    LeavingRecorder recorder;
    {
        Node node;
        auto* const value = new ValueInt;
        QVERIFY(node.AddChild(value));
        QCOMPARE(node.GetValueCount(), 1);
        QVERIFY(node.GetChild(QString()) == nullptr);
        QVERIFY(node.GetChildNode("") == nullptr);
        recorder.observe(value);
    }
    QCOMPARE(recorder.names, QStringList{""});
    Node node;
    auto* const value = new ValueInt;
    node.AddChild(value);
    QVERIFY(value->SetName("late"));
    QCOMPARE(node.GetChild("late"), value);
}

void TstValueNode::refusedChildren()
{
    Node node;
    Node other;
    Node* const child = node.AddChildNode("child");
    ValueBase* const mine = addValue(node, "mine");
    ValueBase* const theirs = addValue(other, "theirs");
    ValueInt free;
    QVERIFY(!node.AddChild(nullptr));
    QVERIFY(!node.AddChild(&node));
    QVERIFY(!child->AddChild(&node));
    QVERIFY(!node.AddChild(mine, "again"));
    QVERIFY(!node.AddChild(theirs));
    QVERIFY(!node.AddChild(&free, "a/b"));
    QVERIFY(!node.AddChild(child));
    QCOMPARE(namesOf(node), QString("mine [child]"));
    QCOMPARE(namesOf(other), QString("theirs"));
    QCOMPARE(mine->GetId(), QString("mine"));
    QVERIFY(free.GetParent() == nullptr);
    QVERIFY(node.GetParent() == nullptr);

    QStringList log;
    ChangeRecorder leaving("leaving", &log);
    bool isTaken = true;
    leaving.setAction(
        [&](Observable* sender, TChangeCode) { isTaken = node.AddChild(static_cast<ValueBase*>(sender)); });
    {
        ValueInt value;
        value.AddObserver(&leaving);
    }
    QVERIFY(!isTaken);
}

void TstValueNode::valueAndNodeOfOneId()
{
    Node node;
    ValueBase* const value = addValue(node, "Range");
    Node* const child = node.AddChildNode("Range");
    QVERIFY(child != nullptr);
    QCOMPARE(node.GetChildNode("Range"), child);
    QCOMPARE(node.GetChild("Range"), value);
    delete value;
    QCOMPARE(node.GetChild("Range"), child);
}

void TstValueNode::firstOfEqualIdsIsFound_data()
{
    QTest::addColumn<int>("others");
    QTest::newRow("few children") << 0;
    QTest::newRow("many children") << 30;
}

void TstValueNode::firstOfEqualIdsIsFound()
{
    QFETCH(int, others);
    Node node;
    for (int i = 0; i < others; ++i)
        addValue(node, QString("filler %1").arg(i));
    ValueBase* const first = addValue(node, "twin");
    ValueBase* const second = addValue(node, "other", "twin");
    ValueBase* const third = addValue(node, "twin");
    QCOMPARE(node.GetValueCount(), others + 3);
    QCOMPARE(node.GetChild("twin"), first);
    delete first;
    QCOMPARE(node.GetChild("twin"), second);
    delete third;
    QCOMPARE(node.GetChild("twin"), second);
    delete second;
    QVERIFY(node.GetChild("twin") == nullptr);
}

/// Random additions, deletions and changes of names among few ids, compared with a walk over the children.
void TstValueNode::lookUpEqualsAWalk()
{
    QRandomGenerator random(1);
    Node node;
    const auto randomId = [&] { return QString::number(random.bounded(25)); };
    int found = 0;
    for (int step = 0; step < 20000; ++step) {
        const QVector<ValueBase*> values = node.GetValues();
        const int kind = random.bounded(10);
        if (values.size() < 3 || (kind < 3 && values.size() < 60))
            addValue(node, randomId(), random.bounded(4) == 0 ? randomId() : QString());
        else if (kind < 5)
            delete values.at(random.bounded(values.size()));
        else if (kind < 6)
            values.at(random.bounded(values.size()))->SetName(randomId());
        const QString id = randomId();
        ValueBase* expected = nullptr;
        for (ValueBase* value : node.GetValues()) {
            if (expected == nullptr && value->GetId() == id)
                expected = value;
        }
        QCOMPARE(node.GetChild(id), expected);
        found += expected != nullptr ? 1 : 0;
    }
    QVERIFY2(found > 1000 && found < 19000, qPrintable(QString::number(found)));
}

void TstValueNode::deletedChildIsGone()
{
    Node node;
    addValue(node, "a");
    ValueBase* const b = addValue(node, "b");
    addValue(node, "c");
    Node* const child = node.AddChildNode("n");
    delete b;
    delete child;
    QCOMPARE(namesOf(node), QString("a c"));
    QVERIFY(node.GetChild("b") == nullptr);
    QVERIFY(node.GetChildNode("n") == nullptr);
    addValue(node, "d");
    delete node.GetChild("a");
    delete node.GetChild("d");
    QCOMPARE(namesOf(node), QString("c"));
}

void TstValueNode::leavingOrder()
{
    LeavingRecorder recorder;
    {
        Node root;
        root.SetName("root");
        Node* const first = root.AddChildNode("first");
        Node* const second = root.AddChildNode("second");
        addValue(root, "v1");
        addValue(*second, "v4");
        Node* const inner = first->AddChildNode("inner");
        addValue(*inner, "v3");
        addValue(*first, "v2");
        addValue(root, "v0");
        recorder.observeAll(&root);
    }
    QCOMPARE(recorder.names.join(' '), QString("v1 v0 v2 v3 inner first v4 second root"));
}

void TstValueNode::clearKeepsTheNode()
{
    LeavingRecorder recorder;
    Node root;
    root.SetName("root");
    addValue(root, "v");
    addValue(*root.AddChildNode("n"), "w");
    recorder.observeAll(&root);
    root.Clear();
    QCOMPARE(recorder.names.join(' '), QString("v w n"));
    QCOMPARE(namesOf(root), QString());
    root.Clear();
    QVERIFY(root.AddChildNode("n") != nullptr);
    addValue(root, "v");
    QCOMPARE(namesOf(root), QString("v [n]"));
    QCOMPARE(root.GetState(), STATE_NORMAL);
    root.DeleteObserver(&recorder);
}

void TstValueNode::whatLeavesIsNotFound()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    Node node;
    ValueBase* const first = addValue(node, "twin");
    ValueBase* const second = addValue(node, "twin");
    Node* const child = node.AddChildNode("child");
    ValueBase* const inner = addValue(*child, "inner");
    ValueBase* foundTwin = nullptr;
    a.setAction([&](Observable*, TChangeCode) { foundTwin = node.GetChild("twin"); });
    first->AddObserver(&a);
    delete first;
    QCOMPARE(foundTwin, second);

    bool isChildFound = true;
    a.setAction([&](Observable*, TChangeCode) { isChildFound = node.GetChildNode("child") != nullptr; });
    inner->AddObserver(&a); // Leaves first; the node around it is going already.
    delete child;
    QVERIFY(!isChildFound);
    QCOMPARE(takeAll(&log), QString("a:2 a:2"));
}

void TstValueNode::nothingIsAddedToANodeThatIsBeingDeleted()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    Node top;
    Node* const node = top.AddChildNode("node");
    Node* const below = node->AddChildNode("below");
    addValue(*below, "value")->AddObserver(&a);
    ValueInt late;
    QString seen;
    a.setAction([&](Observable*, TChangeCode) {
        for (Node* going : {node, below})
            seen += QString::number(going->AddChild(&late)) +
                    QString::number(going->AddChildNode("x") != nullptr);
        // The one above stays, so it makes another node of that id.
        seen += QString::number(top.AddChildNode("node") != node);
    });
    delete node;
    QCOMPARE(seen, QString("00001"));
    QCOMPARE(namesOf(top), QString("[node]"));
}

void TstValueNode::siblingsDeletedMeanwhile()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    LeavingRecorder recorder;
    auto* const node = new Node;
    ValueBase* const first = addValue(*node, "first");
    ValueBase* const second = addValue(*node, "second");
    ValueBase* const third = addValue(*node, "third");
    recorder.observeAll(node);
    first->AddObserver(&a);
    a.setAction([&](Observable*, TChangeCode) {
        delete second;
        third->SetName("renamed");
    });
    delete node;
    QCOMPARE(recorder.names.join(' '), QString("first second renamed "));
}

void TstValueNode::deepChainsAreDeleted()
{
    const int depth = 100000;
    LeavingRecorder recorder;
    auto* const root = new Node;
    Node* node = root;
    for (int i = 0; i < depth; ++i)
        node = node->AddChildNode(i + 1 == depth ? "last" : "n");
    ValueBase* const value = addValue(*node, "value");
    recorder.observe(root);
    recorder.observe(node);
    recorder.observe(value);
    QVERIFY(value->GetPathName().isEmpty()); // Walks up all levels.
    QVERIFY(!node->AddChild(root));
    delete root;
    QCOMPARE(recorder.names.join(' '), QString("value last "));
}

void TstValueNode::textForm()
{
    Node node;
    addValue(node, "a");
    QCOMPARE(node.GetText(), QString());
    QVERIFY(node.SetText(QString()));
    QVERIFY(!node.SetText("x"));
    QCOMPARE(namesOf(node), QString("a"));
}

QTEST_GUILESS_MAIN(TstValueNode)
#include "tst_valuenode.moc"
