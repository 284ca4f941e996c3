#include <support/changerecorder.h>
#include <values/tree.h>
#include <values/value.h>

#include <cstdlib>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstValueTree : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void instanceIsOne();
    void root();
    void createPathMakesTheMissingNodes();
    void createPathWithoutIds_data();
    void createPathWithoutIds();
    void lookUp_data();
    void lookUp();
    void pathNames();
    void pathNameNeedsEveryId();
    void pathIsToldWhenItChanges();
    void registeringGivesASecondAddress();
    void registeredValueOutsideTheTree();
    void refusedRegistrations();
    void newestAddressIsThePathName();
    void unregistering();
    void newcomerTakesARegisteredPath();
    void newcomerHidesWhoStandsThere();
    void registeringTellsThePath();
    void formerHolderMayBeDeletedMeanwhile();
    void registeredNodes();
    void createPathBelowARegisteredNode();
    void nodesBesideValues();
    void whatLeavesIsNotFound();
    void pathNameWhileLeaving();
};

namespace {

Tree& tree()
{
    return *Tree::Instance();
}

ValueInt* addValue(Node* node, const QString& name)
{
    auto* const value = new ValueInt;
    value->SetName(name);
    if (!node->AddChild(value))
        qFatal("the value was not taken");
    return value;
}

/// Looks at the tree when all static objects of this program go, which it has to outlive.
class AtTheEnd
{
public:
    ~AtTheEnd()
    {
        if (m_isArmed && tree().FindNode("/kept to the end") == nullptr)
            std::_Exit(EXIT_FAILURE);
    }
    void arm()
    {
        tree().CreatePath("/kept to the end");
        m_isArmed = true;
    }

private:
    bool m_isArmed = false;
};

AtTheEnd s_atTheEnd; // Made before the tree, so it goes after everything static that the tree could be.

} // namespace

void TstValueTree::cleanup()
{
    tree().GetRoot()->Clear();
    QVERIFY(tree().FindByPath("/kept to the end") == nullptr);
    s_atTheEnd.arm();
}

void TstValueTree::instanceIsOne()
{
    QVERIFY(Tree::Instance() != nullptr);
    QCOMPARE(Tree::Instance(), Tree::Instance());
}

void TstValueTree::root()
{
    QCOMPARE(tree().FindByPath("/"), tree().GetRoot());
    QCOMPARE(tree().FindNode("/"), tree().GetRoot());
    QCOMPARE(tree().GetRoot()->GetPathName(), QString("/"));
    QVERIFY(!Node().AddChild(tree().GetRoot()));
}

void TstValueTree::createPathMakesTheMissingNodes()
{
    Node* const plugin = tree().CreatePath("JobEditor/Search/");
    QVERIFY(plugin != nullptr);
    QCOMPARE(plugin->GetPathName(), QString("/JobEditor/Search"));
    QCOMPARE(plugin->GetParent()->GetParent(), tree().GetRoot());
    QCOMPARE(tree().CreatePath("/JobEditor/Search"), plugin);
    Node* const other = tree().CreatePath("JobEditor/Search/SubJob");
    QCOMPARE(other->GetParent(), plugin);
    QCOMPARE(plugin->GetChildNodeCount(), 1);
    QCOMPARE(tree().CreatePath("JobEditor"), plugin->GetParent());
}

void TstValueTree::createPathWithoutIds_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("slash") << "/";
    QTest::newRow("slashes") << "//";
    QTest::newRow("empty id at the beginning") << "//new";
    QTest::newRow("empty id in the middle") << "new//b";
    QTest::newRow("empty id at the end") << "new/b//";
}

void TstValueTree::createPathWithoutIds()
{
    QFETCH(QString, path);
    const int before = tree().GetRoot()->GetChildNodeCount();
    QVERIFY(tree().CreatePath(path) == nullptr);
    QCOMPARE(tree().GetRoot()->GetChildNodeCount(), before);
}

void TstValueTree::lookUp_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("found");
    QTest::newRow("value") << "/A/B/value"
                           << "value";
    QTest::newRow("value without the first slash") << "A/B/value"
                                                   << "value";
    QTest::newRow("value with a last slash") << "/A/B/value/"
                                             << "value";
    QTest::newRow("node") << "/A/B"
                          << "B";
    QTest::newRow("node with a last slash") << "/A/B/"
                                            << "B";
    QTest::newRow("first node") << "A"
                                << "A";
    QTest::newRow("no such child") << "/A/B/other"
                                   << "";
    QTest::newRow("no such node") << "/A/C/value"
                                  << "";
    QTest::newRow("other case") << "/a/b/value"
                                << "";
    QTest::newRow("below a value") << "/A/B/value/x"
                                   << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("two slashes at the end") << "/A/B//"
                                            << "";
    QTest::newRow("two slashes inside") << "/A//B"
                                        << "";
    QTest::newRow("two slashes at the beginning") << "//A/B"
                                                  << "";
    QTest::newRow("two slashes") << "//"
                                 << "";
}

void TstValueTree::lookUp()
{
    QFETCH(QString, path);
    QFETCH(QString, found);
    addValue(tree().CreatePath("A/B"), "value");
    const ValueBase* const object = tree().FindByPath(path);
    QCOMPARE(object == nullptr ? QString() : object->GetName(), found);
    const bool isNode = found == "A" || found == "B";
    QCOMPARE(static_cast<const ValueBase*>(tree().FindNode(path)), isNode ? object : nullptr);
}

void TstValueTree::pathNames()
{
    ValueInt* const value = addValue(tree().CreatePath("A/B"), "Gain");
    QCOMPARE(value->GetPathName(), QString("/A/B/Gain"));
    auto* const keyed = new ValueInt;
    keyed->SetName("name");
    QVERIFY(tree().FindNode("A/B")->AddChild(keyed, "key"));
    QCOMPARE(keyed->GetPathName(), QString("/A/B/key"));
    QCOMPARE(tree().FindByPath("/A/B/key"), keyed);
    QCOMPARE(tree().FindByPath(value->GetPathName()), value);

    Node outside;
    outside.SetName("outside");
    QCOMPARE(addValue(&outside, "v")->GetPathName(), QString());
    QCOMPARE(outside.AddChildNode("n")->GetPathName(), QString());
    QCOMPARE(outside.GetPathName(), QString());
}

void TstValueTree::pathNameNeedsEveryId()
{
    auto* const nameless = new Node;
    QVERIFY(tree().GetRoot()->AddChild(nameless));
    ValueInt* const value = addValue(nameless, "v");
    QCOMPARE(nameless->GetPathName(), QString());
    QCOMPARE(value->GetPathName(), QString());
    QVERIFY(tree().FindByPath("//v") == nullptr);
    nameless->SetName("N");
    QCOMPARE(value->GetPathName(), QString("/N/v"));
}

void TstValueTree::pathIsToldWhenItChanges()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    auto* const value = new ValueInt;
    value->AddObserver(&a);
    value->SetName("v");
    QCOMPARE(takeAll(&log), QString());
    Node* const node = tree().CreatePath("A");
    node->AddChild(value);
    QCOMPARE(takeAll(&log), QString("a:6"));
    value->SetName("w");
    QCOMPARE(takeAll(&log), QString("a:6"));
    QCOMPARE(tree().FindByPath("/A/w"), value);
    value->SetName("w");
    QVERIFY(!value->SetName("x/y"));
    QCOMPARE(takeAll(&log), QString());

    Node outside;
    ChangeRecorder b("b", &log);
    auto* const other = new ValueInt;
    other->SetName("o");
    other->AddObserver(&b);
    outside.AddChild(other, "key");
    QCOMPARE(takeAll(&log), QString());
    auto* const keyed = new ValueInt;
    keyed->AddObserver(&b);
    node->AddChild(keyed, "key");
    QCOMPARE(takeAll(&log), QString("b:6"));
    keyed->SetName("no part of the path");
    QCOMPARE(takeAll(&log), QString());
    value->DeleteObserver(&a);
    other->DeleteObserver(&b);
    keyed->DeleteObserver(&b);
}

void TstValueTree::registeringGivesASecondAddress()
{
    Node* const node = tree().CreatePath("A");
    ValueInt* const value = addValue(node, "v");
    QVERIFY(tree().RegisterValue(value, "/Rules/Gain"));
    QCOMPARE(tree().FindByPath("/Rules/Gain"), value);
    QCOMPARE(tree().FindByPath("Rules/Gain/"), value);
    QCOMPARE(tree().FindByPath("/A/v"), value);
    QCOMPARE(value->GetPathName(), QString("/Rules/Gain"));
    QCOMPARE(value->GetParent(), node);
    QCOMPARE(value->GetId(), QString("v"));
    QVERIFY(tree().FindNode("/Rules") == nullptr);
    QVERIFY(tree().FindByPath("/Rules") == nullptr);
}

void TstValueTree::registeredValueOutsideTheTree()
{
    {
        ValueInt value;
        QVERIFY(tree().RegisterValue(&value, "free/value/"));
        QCOMPARE(value.GetPathName(), QString("/free/value"));
        QCOMPARE(tree().FindByPath("/free/value"), &value);
        QVERIFY(value.GetParent() == nullptr);
    }
    QVERIFY(tree().FindByPath("/free/value") == nullptr);
}

void TstValueTree::refusedRegistrations()
{
    ValueInt value;
    QVERIFY(!tree().RegisterValue(nullptr, "/a"));
    QVERIFY(!tree().RegisterValue(tree().GetRoot(), "/a"));
    for (const char* path : {"", "/", "//", "a//b", "/a//"})
        QVERIFY2(!tree().RegisterValue(&value, path), path);
    QCOMPARE(value.GetPathName(), QString());
    QVERIFY(!tree().UnregisterValue(nullptr));
    QVERIFY(!tree().UnregisterValue(&value));

    QStringList log;
    ChangeRecorder a("a", &log);
    bool isTaken = true;
    a.setAction([&](Observable* sender, TChangeCode) {
        isTaken = tree().RegisterValue(static_cast<ValueBase*>(sender), "/late");
    });
    auto* const leaving = new ValueInt;
    leaving->AddObserver(&a);
    delete leaving;
    QVERIFY(!isTaken);
    QVERIFY(tree().FindByPath("/late") == nullptr);
}

void TstValueTree::newestAddressIsThePathName()
{
    ValueInt* const value = addValue(tree().CreatePath("A"), "v");
    tree().RegisterValue(value, "/first");
    tree().RegisterValue(value, "/second");
    QCOMPARE(value->GetPathName(), QString("/second"));
    for (const char* path : {"/first", "/second", "/A/v"})
        QCOMPARE(tree().FindByPath(path), value);
    tree().RegisterValue(value, "/first");
    QCOMPARE(value->GetPathName(), QString("/first"));
    tree().RegisterValue(value, "/A/v");
    QCOMPARE(value->GetPathName(), QString("/A/v"));
    for (const char* path : {"/first", "/second", "/A/v"})
        QCOMPARE(tree().FindByPath(path), value);
}

void TstValueTree::unregistering()
{
    ValueInt* const value = addValue(tree().CreatePath("A"), "v");
    tree().RegisterValue(value, "/first");
    tree().RegisterValue(value, "/second");
    QVERIFY(tree().UnregisterValue(value));
    QCOMPARE(value->GetPathName(), QString("/A/v"));
    QVERIFY(tree().FindByPath("/first") == nullptr);
    QVERIFY(tree().FindByPath("/second") == nullptr);
    QCOMPARE(tree().FindByPath("/A/v"), value);
    QVERIFY(!tree().UnregisterValue(value));
}

void TstValueTree::newcomerTakesARegisteredPath()
{
    ValueInt* const former = addValue(tree().CreatePath("A"), "former");
    ValueInt* const newcomer = addValue(tree().CreatePath("A"), "newcomer");
    tree().RegisterValue(former, "/own");
    tree().RegisterValue(former, "/shared");
    tree().RegisterValue(newcomer, "/shared");
    QCOMPARE(tree().FindByPath("/shared"), newcomer);
    QCOMPARE(newcomer->GetPathName(), QString("/shared"));
    QCOMPARE(former->GetPathName(), QString("/own"));
    tree().RegisterValue(newcomer, "/own");
    QCOMPARE(former->GetPathName(), QString("/A/former"));
    QVERIFY(!tree().UnregisterValue(former));
    delete newcomer;
    QVERIFY(tree().FindByPath("/shared") == nullptr);
    QCOMPARE(tree().FindByPath("/A/former"), former);
}

void TstValueTree::newcomerHidesWhoStandsThere()
{
    ValueInt* const resident = addValue(tree().CreatePath("A"), "v");
    auto newcomer = std::make_unique<ValueInt>();
    tree().RegisterValue(newcomer.get(), "/A/v");
    QCOMPARE(tree().FindByPath("/A/v"), newcomer.get());
    newcomer.reset();
    QCOMPARE(tree().FindByPath("/A/v"), resident);
    QCOMPARE(resident->GetPathName(), QString("/A/v"));
}

void TstValueTree::registeringTellsThePath()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    ValueInt first;
    ValueInt second;
    first.AddObserver(&a);
    second.AddObserver(&b);
    tree().RegisterValue(&first, "/x");
    QCOMPARE(takeAll(&log), QString("a:6"));
    tree().RegisterValue(&first, "/x");
    QCOMPARE(takeAll(&log), QString());
    QString seen;
    b.setAction([&](Observable*, TChangeCode) { seen = first.GetPathName() + '|' + second.GetPathName(); });
    tree().RegisterValue(&second, "/x");
    QCOMPARE(takeAll(&log), QString("b:6 a:6"));
    QCOMPARE(seen, QString("|/x"));
    b.setAction(nullptr);
    tree().UnregisterValue(&second);
    QCOMPARE(takeAll(&log), QString("b:6"));
    first.DeleteObserver(&a);
    second.DeleteObserver(&b);
}

void TstValueTree::formerHolderMayBeDeletedMeanwhile()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    auto* const former = new ValueInt;
    ValueInt newcomer;
    tree().RegisterValue(former, "/x");
    former->AddObserver(&a);
    newcomer.AddObserver(&b);
    b.setAction([&](Observable*, TChangeCode) { delete former; });
    QVERIFY(tree().RegisterValue(&newcomer, "/x"));
    QCOMPARE(takeAll(&log), QString("b:6 a:2"));
    QCOMPARE(tree().FindByPath("/x"), &newcomer);
    newcomer.DeleteObserver(&b);
}

void TstValueTree::registeredNodes()
{
    Node component; // A component's own parameters, outside of the tree.
    Node* const inner = component.AddChildNode("Range");
    ValueInt* const value = addValue(inner, "Gain");
    QVERIFY(tree().RegisterValue(&component, "/Components/HT720"));
    QCOMPARE(tree().FindByPath("/Components/HT720"), &component);
    QCOMPARE(tree().FindNode("/Components/HT720"), &component);
    QCOMPARE(tree().FindByPath("/Components/HT720/Range/Gain"), value);
    QCOMPARE(tree().FindNode("/Components/HT720/Range"), inner);
    QCOMPARE(value->GetPathName(), QString("/Components/HT720/Range/Gain"));
    tree().UnregisterValue(&component);
    QCOMPARE(value->GetPathName(), QString());
    QVERIFY(tree().FindByPath("/Components/HT720/Range/Gain") == nullptr);
}

void TstValueTree::createPathBelowARegisteredNode()
{
    Node component;
    tree().RegisterValue(&component, "/Top");
    Node* const made = tree().CreatePath("Top/New");
    QCOMPARE(made->GetParent(), &component);
    QCOMPARE(tree().FindNode("/Top/New"), made);
    QCOMPARE(tree().CreatePath("Top"), &component);
    ValueInt value;
    tree().RegisterValue(&value, "/Plain"); // No node, so a node is made where the path leads.
    Node* const plain = tree().CreatePath("Plain/Below")->GetParent();
    QCOMPARE(tree().FindByPath("/Plain"), static_cast<ValueBase*>(&value));
    QCOMPARE(tree().FindNode("/Plain"), plain);
}

void TstValueTree::nodesBesideValues()
{
    Node* const node = tree().CreatePath("A");
    ValueInt* const value = addValue(node, "both");
    QVERIFY(tree().FindNode("/A/both") == nullptr);
    Node* const made = tree().CreatePath("A/both");
    QVERIFY(made != nullptr);
    QCOMPARE(tree().FindByPath("/A/both"), value);
    QCOMPARE(tree().FindNode("/A/both"), made);
    ValueInt* const below = addValue(made, "v");
    QCOMPARE(tree().FindByPath("/A/both/v"), below);
}

void TstValueTree::whatLeavesIsNotFound()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueInt* const value = addValue(tree().CreatePath("A"), "v");
    tree().RegisterValue(value, "/second");
    value->AddObserver(&a);
    int found = -1;
    a.setAction([&](Observable*, TChangeCode) {
        found = int(tree().FindByPath("/A/v") != nullptr) + int(tree().FindByPath("/second") != nullptr);
    });
    delete value;
    QCOMPARE(found, 0);
    QVERIFY(tree().FindByPath("/A/v") == nullptr);
    QVERIFY(tree().FindByPath("/second") == nullptr);

    Node* const node = tree().CreatePath("A/B");
    addValue(node, "inner")->AddObserver(&a);
    tree().RegisterValue(node, "/node");
    a.setAction([&](Observable*, TChangeCode) {
        found = 0;
        for (const char* path : {"/A/B", "/A/B/inner", "/node", "/node/inner"})
            found += int(tree().FindByPath(path) != nullptr);
    });
    found = -1;
    delete node;
    QCOMPARE(found, 0);
}

void TstValueTree::pathNameWhileLeaving()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    ValueInt* const value = addValue(tree().CreatePath("A"), "v");
    value->AddObserver(&a);
    QString path;
    a.setAction(
        [&](Observable* sender, TChangeCode) { path = static_cast<ValueBase*>(sender)->GetPathName(); });
    delete value;
    QCOMPARE(path, QString("/A/v"));
}

QTEST_GUILESS_MAIN(TstValueTree)
#include "tst_valuetree.moc"
