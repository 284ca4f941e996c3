#include "settingnodes.h"

#include <support/testmain.h>

#include <QWidget>

#include <type_traits>

using namespace SettingNodes;
using JEDVEPLUGIN::AbstractSubSetting;

class TstSubSettingChanges : public QObject
{
    Q_OBJECT
private slots:
    void move_data();
    void move();
    void moveTellsTheMovedChildLast();
    void moveNeedsTwoChildren();
    void moveHonoursOverrides();
    void moveStaysInsideTheList();

    void canMoveChild();
    void canMoveChildHonoursOverrides();
    void otherTypesSameLevel();
    void otherTypesHonoursOverrides();

    void readOnlyForOneNode();
    void readOnlyForTheSubtree();
    void readOnlyHonoursOverrides();

    void destructorDeletesTheChildrenInOrder();
    void childMayLeaveWhileItIsDeleted();
    void childMayTakeALaterSiblingAway();
    void childMayEmptyTheParent();
    void copyRefersToTheSameChildren();
    void assignmentRefersToTheSameChildren();
    void nodeTravelsAsAVariant();
};

void TstSubSettingChanges::move_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("moved");
    QTest::newRow("first behind the second") << "A1 A2 A3" << 0 << 2 << "A2 A1 A3"
                                             << "A1";
    QTest::newRow("last to the front") << "A1 A2 A3" << 2 << 0 << "A3 A1 A2"
                                       << "A3";
    QTest::newRow("first to the end") << "A1 A2 A3" << 0 << 3 << "A2 A3 A1"
                                      << "A1";
    QTest::newRow("first behind the end") << "A1 A2 A3" << 0 << 99 << "A2 A3 A1"
                                          << "A1";
    QTest::newRow("from behind the end") << "A1 A2 A3" << 5 << 0 << "A3 A1 A2"
                                         << "A3";
    QTest::newRow("from behind the end, to the end") << "A1 A2 A3" << 5 << 3 << "A1 A2 A3"
                                                     << "";
    QTest::newRow("from in front") << "A1 A2 A3" << -1 << 1 << "A1 A2 A3"
                                   << "";
    QTest::newRow("from far in front") << "A1 A2 A3" << INT_MIN << 3 << "A2 A3 A1"
                                       << "A1";
    QTest::newRow("to in front") << "A1 A2 A3" << 1 << -7 << "A2 A1 A3"
                                 << "A2";
    QTest::newRow("to far in front") << "A1 A2 A3" << 1 << INT_MIN << "A2 A1 A3"
                                     << "A2";
    QTest::newRow("to far behind") << "A1 A2 A3" << 1 << INT_MAX << "A1 A3 A2"
                                   << "A2";
    QTest::newRow("onto itself") << "A1 A2 A3" << 1 << 1 << "A1 A2 A3"
                                 << "";
    QTest::newRow("behind itself") << "A1 A2 A3" << 1 << 2 << "A1 A2 A3"
                                   << "";
    QTest::newRow("two children") << "A1 A2" << 0 << 2 << "A2 A1"
                                  << "A1";
    QTest::newRow("among other types") << "A1 B1 C1" << 2 << 0 << "C1 A1 B1"
                                       << "C1";
    QTest::newRow("out of its group") << "A1 A2 B1" << 0 << 3 << "A2 B1 A1"
                                      << "A1";
    QTest::newRow("one child") << "A1" << 0 << 1 << "A1"
                               << "";
    QTest::newRow("no child") << "" << 0 << 1 << ""
                              << "";
}

void TstSubSettingChanges::move()
{
    QFETCH(QString, names);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, order);
    QFETCH(QString, moved);
    QStringList log;
    SampleNode node("P");
    for (const QString& name : names.split(' ', Qt::SkipEmptyParts))
        node.adopt(new WatchedNode(name.left(1), name, &log));
    node.moveChild(from, to);
    QCOMPARE(shown(node), order);
    QCOMPARE(log.join(' '), moved.isEmpty() ? QString() : "moved " + moved);
    for (const char* type : {"A", "B", "C"}) {
        QStringList ofType;
        for (const QString& name : order.split(' ')) {
            if (name.startsWith(type))
                ofType << name;
        }
        QCOMPARE(shownOfType(node, type), ofType.join(' '));
    }
}

void TstSubSettingChanges::moveTellsTheMovedChildLast()
{
    struct Teller : SampleNode
    {
        using SampleNode::SampleNode;
        void moved() override { m_seen = shown(*parent()) + "|" + shownOfType(*parent(), m_type); }
        QString m_seen;
    };
    SampleNode node("P");
    auto* teller = new Teller("A", "A1");
    node.adopt(teller);
    fill(node, "A2 B1");
    node.moveChild(0, 2);
    QCOMPARE(teller->m_seen, QString("A2 A1 B1|A2 A1"));
}

void TstSubSettingChanges::moveNeedsTwoChildren()
{
    WilfulNode node("P");
    fill(node, "A1 A2 A3");
    node.m_childCount = [] { return 1; };
    node.moveChild(0, 3);
    node.m_childCount = nullptr;
    QCOMPARE(shown(node), QString("A1 A2 A3"));
}

void TstSubSettingChanges::moveHonoursOverrides()
{
    QStringList log;
    WilfulNode node("P");
    fill(node, "A1 A2");
    WatchedNode standIn("A", "standIn", &log);
    node.m_child = [&standIn](int) { return &standIn; };
    node.moveChild(0, 2);
    node.m_child = [](int) { return nullptr; };
    node.moveChild(0, 2);
    node.m_child = nullptr;
    QCOMPARE(shown(node), QString("A2 A1"));
    QCOMPARE(shownOfType(node, "A"), QString("A2 A1"));
    QCOMPARE(log, QStringList("moved standIn"));
}

void TstSubSettingChanges::moveStaysInsideTheList()
{
    WilfulNode node("P");
    fill(node, "A1 A2 A3");
    node.m_childCount = [] { return 10; };
    node.moveChild(9, 0);
    node.moveChild(0, 9);
    node.m_childCount = [] { return 2; };
    node.moveChild(5, 0);
    node.m_childCount = nullptr;
    QCOMPARE(shown(node), QString("A2 A1 A3"));
}

void TstSubSettingChanges::canMoveChild()
{
    SampleNode node("P");
    SampleNode stranger("A");
    SampleNode unlisted("A", "x", &node);
    SampleNode* child = fill(node, "A1").first();
    QVERIFY(node.canMoveChild(child));
    QVERIFY(node.canMoveChild(&unlisted));
    QVERIFY(!node.canMoveChild(&stranger));
    QVERIFY(!node.canMoveChild(nullptr));
    QVERIFY(!node.canMoveChild(&node));
    node.setReadOnly(true, false);
    QVERIFY(!node.canMoveChild(child));
    node.setReadOnly(false, false);
    child->setParent(nullptr);
    QVERIFY(!node.canMoveChild(child));
}

void TstSubSettingChanges::canMoveChildHonoursOverrides()
{
    WilfulNode node("P");
    WilfulNode child("A");
    child.m_parentNode = [&node] { return &node; };
    QVERIFY(node.canMoveChild(&child));
    node.m_isReadOnly = [] { return true; };
    QVERIFY(!node.canMoveChild(&child));
}

void TstSubSettingChanges::otherTypesSameLevel()
{
    SampleNode node("P");
    auto* self = new WilfulNode("A", "self");
    self->m_category = "Own";
    QVERIFY(!self->otherTypesSameLevel());
    node.adopt(self);
    QVERIFY(!self->otherTypesSameLevel());
    SampleNode* general = fill(node, "G1").first();
    general->m_category = "GeneralSettings";
    QVERIFY(!self->otherTypesSameLevel());
    SampleNode* other = fill(node, "B1").first();
    other->m_category = "GeneralSettings";
    QVERIFY(!self->otherTypesSameLevel());
    other->m_category = "generalSettings";
    QVERIFY(self->otherTypesSameLevel());
    other->m_category.clear();
    QVERIFY(self->otherTypesSameLevel());
}

void TstSubSettingChanges::otherTypesHonoursOverrides()
{
    WilfulNode above("P");
    WilfulNode node("A");
    WilfulNode sibling("B");
    node.m_parentNode = [&above] { return &above; };
    above.m_childCount = [] { return 3; };
    above.m_child = [&node](int) { return &node; };
    QVERIFY(!node.otherTypesSameLevel());
    above.m_child = [&sibling](int index) { return index == 2 ? &sibling : nullptr; };
    QVERIFY(node.otherTypesSameLevel());
    above.m_childCount = [] { return 2; };
    QVERIFY(!node.otherTypesSameLevel());
}

void TstSubSettingChanges::readOnlyForOneNode()
{
    QWidget widget;
    SampleNode node("P");
    node.m_widget = &widget;
    SampleNode* child = fill(node, "A1").first();
    node.setReadOnly(true, false);
    QVERIFY(node.isReadOnly());
    QVERIFY(!widget.isEnabled());
    QVERIFY(!child->isReadOnly());
    node.setReadOnly(false, false);
    QVERIFY(!node.isReadOnly());
    QVERIFY(widget.isEnabled());
    node.m_widget = nullptr;
    node.setReadOnly(true, false);
    QVERIFY(widget.isEnabled());
}

void TstSubSettingChanges::readOnlyForTheSubtree()
{
    QStringList log;
    QWidget widget;
    WatchedNode node("P", "top", &log);
    auto* first = new WatchedNode("A", "first", &log);
    auto* second = new WatchedNode("A", "second", &log);
    auto* below = new WatchedNode("A", "below", &log);
    below->m_widget = &widget;
    node.adopt(first);
    node.adopt(second);
    first->adopt(below);
    node.setReadOnly(true, true);
    const QStringList inOrder = {"readOnly top 11",   "widget top",   "readOnly first 11",  "widget first",
                                 "readOnly below 11", "widget below", "readOnly second 11", "widget second"};
    QCOMPARE(log, inOrder);
    QVERIFY(node.isReadOnly() && first->isReadOnly() && second->isReadOnly() && below->isReadOnly());
    QVERIFY(!widget.isEnabled());
    node.setReadOnly(false, true);
    QVERIFY(!node.isReadOnly() && !first->isReadOnly() && !second->isReadOnly() && !below->isReadOnly());
    QVERIFY(widget.isEnabled());
}

void TstSubSettingChanges::readOnlyHonoursOverrides()
{
    WilfulNode node("P");
    SampleNode elsewhere("A");
    SampleNode* hidden = fill(node, "A1").first();
    node.m_childCount = [] { return 2; };
    node.m_child = [&elsewhere](int index) { return index == 1 ? &elsewhere : nullptr; };
    node.setReadOnly(true, true);
    QVERIFY(elsewhere.isReadOnly());
    QVERIFY(!hidden->isReadOnly());
}

void TstSubSettingChanges::destructorDeletesTheChildrenInOrder()
{
    QStringList log;
    auto top = std::make_unique<WatchedNode>("P", "top", &log);
    auto* first = new WatchedNode("B", "first", &log);
    top->adopt(first);
    top->adopt(new WatchedNode("A", "second", &log));
    first->adopt(new WatchedNode("A", "below", &log));
    top.reset();
    QCOMPARE(log, QStringList({"delete top", "delete first", "delete below", "delete second"}));
}

void TstSubSettingChanges::childMayLeaveWhileItIsDeleted()
{
    QStringList log;
    {
        SampleNode node("P");
        for (const char* name : {"a", "b", "c"}) {
            auto* child = new WatchedNode("A", name, &log);
            child->m_atEnd = [&node, child] { node.removeSubSetting(child); };
            node.adopt(child);
        }
        delete node.child(1);
        QCOMPARE(shown(node), QString("a c"));
    }
    QCOMPARE(log, QStringList({"delete b", "delete a", "delete c"}));
}

void TstSubSettingChanges::childMayTakeALaterSiblingAway()
{
    QStringList log;
    std::unique_ptr<WatchedNode> kept;
    {
        SampleNode node("P");
        QList<WatchedNode*> children;
        for (const char* name : {"a", "b", "c", "d"}) {
            children << new WatchedNode("A", name, &log);
            node.adopt(children.last());
        }
        children[1]->m_atEnd = [&node, &kept, sibling = children[2]] {
            node.removeSubSetting(sibling);
            kept.reset(sibling);
        };
    }
    QCOMPARE(log, QStringList({"delete a", "delete b", "delete d"}));
    QCOMPARE(kept->getDisplayName(), QString("c"));
}

void TstSubSettingChanges::childMayEmptyTheParent()
{
    QStringList log;
    std::unique_ptr<WatchedNode> kept(new WatchedNode("A", "b", &log));
    {
        SampleNode node("P");
        auto* child = new WatchedNode("A", "a", &log);
        child->m_atEnd = [&node] { node.removeAllSubSettings(); };
        node.adopt(child);
        node.adopt(kept.get());
    }
    QCOMPARE(log, QStringList("delete a"));
}

void TstSubSettingChanges::copyRefersToTheSameChildren()
{
    SampleNode above("P");
    SampleNode node("A", "node", &above);
    fill(node, "A1 B1 A2");
    node.setReadOnly(true, false);
    SampleNode copy(node);
    QCOMPARE(copy.parent(), static_cast<ISubSetting*>(&above));
    QVERIFY(copy.isReadOnly());
    QCOMPARE(shown(copy), QString("A1 A2 B1"));
    QCOMPARE(shownOfType(copy, "A"), QString("A1 A2"));
    QCOMPARE(copy.child(0), node.child(0));
    QCOMPARE(copy.child(0)->parent(), static_cast<ISubSetting*>(&node));
    copy.removeAllSubSettings();
    QCOMPARE(shown(node), QString("A1 A2 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A1 A2"));
}

void TstSubSettingChanges::assignmentRefersToTheSameChildren()
{
    SampleNode above("P");
    SampleNode node("A", "node", &above);
    fill(node, "A1 B1");
    node.setReadOnly(true, false);
    SampleNode other("A");
    const std::unique_ptr<SampleNode> former(fill(other, "C1").first());
    other = node;
    QCOMPARE(other.parent(), static_cast<ISubSetting*>(&above));
    QVERIFY(other.isReadOnly());
    QCOMPARE(shown(other), QString("A1 B1"));
    QCOMPARE(other.typeCount("C"), 0);
    QCOMPARE(former->getDisplayName(), QString("C1"));
    other.removeAllSubSettings();
}

void TstSubSettingChanges::nodeTravelsAsAVariant()
{
    SampleNode node("A");
    ISubSetting* setting = &node;
    QCOMPARE(QVariant::fromValue(setting).value<ISubSetting*>(), setting);
    static_assert(std::is_abstract_v<ISubSetting> && std::is_abstract_v<AbstractSubSetting>);
    static_assert(std::has_virtual_destructor_v<ISubSetting>);
    static_assert(!std::is_constructible_v<AbstractSubSetting, ISubSetting*>);
    static_assert(std::is_base_of_v<ISubSetting, AbstractSubSetting>);
}

JED_TEST_MAIN(TstSubSettingChanges)
#include "tst_subsettingchanges.moc"
