#include "abstractsubsetting.h"

#include <support/samplenode.h>
#include <support/testmain.h>

#include <QColor>
#include <QWidget>

#include <functional>
#include <type_traits>

using JEDVEPLUGIN::AbstractSubSetting;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;

namespace {

/// Tells the test what it is asked for, in the order of the questions.
class WatchedNode : public SampleNode
{
public:
    WatchedNode(const QString& type, const QString& name, QStringList* log)
        : SampleNode(type, name)
        , m_log(log)
    {
    }
    ~WatchedNode() override
    {
        *m_log << "delete " + m_name;
        if (m_atEnd)
            m_atEnd();
    }
    void moved() override { *m_log << "moved " + m_name; }
    QWidget* getWidget() override
    {
        *m_log << "widget " + m_name;
        return m_widget;
    }
    void setReadOnly(bool readOnly, bool subtree) override
    {
        *m_log << QString("readOnly %1 %2%3").arg(m_name).arg(readOnly).arg(subtree);
        SampleNode::setReadOnly(readOnly, subtree);
    }

    QStringList* m_log;
    std::function<void()> m_atEnd;
};

/// Answers as it is told, where the base would answer from its own members.
class WilfulNode : public SampleNode
{
public:
    using SampleNode::otherTypesSameLevel;
    using SampleNode::SampleNode;
    static int charsPerIndent() { return CHARS_PER_INDENT; }

    ISubSetting* child(int index) override { return m_child ? m_child(index) : SampleNode::child(index); }
    int childIndex(ISubSetting* child) const override
    {
        return m_childIndex ? m_childIndex(child) : SampleNode::childIndex(child);
    }
    int childCount() const override { return m_childCount ? m_childCount() : SampleNode::childCount(); }
    ISubSetting* parent() const override { return m_parentNode ? m_parentNode() : SampleNode::parent(); }
    bool isReadOnly() const override { return m_isReadOnly ? m_isReadOnly() : SampleNode::isReadOnly(); }
    int typeCount(const QString& type) const override
    {
        return m_typeCount ? m_typeCount() : SampleNode::typeCount(type);
    }

    std::function<ISubSetting*(int)> m_child;
    std::function<int(ISubSetting*)> m_childIndex;
    std::function<int()> m_childCount;
    std::function<ISubSetting*()> m_parentNode;
    std::function<bool()> m_isReadOnly;
    std::function<int()> m_typeCount;
};

/// The children's names in display order.
QString shown(ISubSetting& node)
{
    QStringList names;
    for (int i = 0; i < node.childCount(); ++i)
        names << node.child(i)->getDisplayName();
    return names.join(' ');
}

/// The names of the children of a type, by their positions.
QString shownOfType(const ISubSetting& node, const QString& type)
{
    QStringList names;
    for (int i = 0; i < node.typeCount(type); ++i)
        names << node.settingAtTypePosition(type, i)->getDisplayName();
    return names.join(' ');
}

/// Appends a child for each name; its type is the first letter.
QList<SampleNode*> fill(SampleNode& node, const QString& names)
{
    QList<SampleNode*> children;
    for (const QString& name : names.split(' ', Qt::SkipEmptyParts)) {
        children << new SampleNode(name.left(1), name);
        node.adopt(children.last());
    }
    return children;
}

} // namespace

class TstAbstractSubSetting : public QObject
{
    Q_OBJECT
private slots:
    void freshNodeIsNeutral();
    void constructorStoresTheParentOnly();
    void treeColorIsOneYellow();
    void indentIsFour();
    void toolTipFollowsTheDisplayName();
    void problemIsAnErrorUntilSaidOtherwise();

    void childOutsideTheListIsNull();
    void childIndex();
    void setParentTouchesNoList();
    void rowOfANode();
    void rowAsksTheParentThroughTheInterface();
    void childHonoursAnOverriddenCount();

    void append_data();
    void append();
    void appendLeavesTheParentLink();
    void appendBehindTornGroups();
    void appendAsksForTheTypeOfTheMoment();
    void nullIsNeverTaken();

    void removedChildIsTheCallers();
    void removingKeepsTheOthers();
    void removingAStrangerChangesNothing();
    void removeTakesEveryOccurrence();
    void removedChildCanComeBack();
    void removeAllDeletesNobody();

    void typeQuestions();
    void settingAtTypePositionHonoursAnOverriddenCount();

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

void TstAbstractSubSetting::freshNodeIsNeutral()
{
    SampleNode node("A", "name");
    QVERIFY(!node.overwriteTreeColor());
    QVERIFY(!node.getPixmap());
    QVERIFY(node.isDragEnabled());
    QVERIFY(node.isDropEnabled());
    QVERIFY(node.getMimeText(0).isEmpty());
    QVERIFY(node.getMimeText(3).isEmpty());
    QVERIFY(!node.supportsMimeText());
    QVERIFY(!node.isReadOnly());
    QVERIFY(!node.parent());
    QCOMPARE(node.childCount(), 0);
    QCOMPARE(node.row(), 0);
    QCOMPARE(node.typeCount("A"), 0);
    node.moved();
    node.debugEvent();
    QCOMPARE(node.childCount(), 0);
    QVERIFY(!node.isReadOnly());
}

void TstAbstractSubSetting::constructorStoresTheParentOnly()
{
    SampleNode parent("P");
    SampleNode node("A", "a", &parent);
    QCOMPARE(node.parent(), static_cast<ISubSetting*>(&parent));
    QCOMPARE(parent.childCount(), 0);
    QCOMPARE(node.row(), -1);
}

void TstAbstractSubSetting::treeColorIsOneYellow()
{
    SampleNode first("A");
    SampleNode second("B");
    QCOMPARE(first.getTreeColor(), QColor(255, 255, 0, 255));
    QCOMPARE(&first.getTreeColor(), &second.getTreeColor());
}

void TstAbstractSubSetting::indentIsFour()
{
    QCOMPARE(WilfulNode::charsPerIndent(), 4);
}

void TstAbstractSubSetting::toolTipFollowsTheDisplayName()
{
    SampleNode node("A", "old");
    QCOMPARE(node.getToolTip(), QString("old"));
    node.setDisplayName("new");
    QCOMPARE(node.getToolTip(), QString("new"));
}

void TstAbstractSubSetting::problemIsAnErrorUntilSaidOtherwise()
{
    const Problem problem;
    QCOMPARE(int(problem.severity), int(Problem::SEVERITY_ERROR));
    QVERIFY(problem.parameterSet.isEmpty() && problem.field.isEmpty() && problem.text.isEmpty());
    QVERIFY(Problem::SEVERITY_NOTE < Problem::SEVERITY_WARNING);
    QVERIFY(Problem::SEVERITY_WARNING < Problem::SEVERITY_ERROR);
}

void TstAbstractSubSetting::childOutsideTheListIsNull()
{
    SampleNode node("P");
    QVERIFY(!node.child(0));
    const QList<SampleNode*> children = fill(node, "A1 A2");
    QVERIFY(!node.child(-1));
    QCOMPARE(node.child(0), static_cast<ISubSetting*>(children[0]));
    QCOMPARE(node.child(1), static_cast<ISubSetting*>(children[1]));
    QVERIFY(!node.child(2));
    QVERIFY(!node.child(INT_MAX));
    QVERIFY(!node.child(INT_MIN));
}

void TstAbstractSubSetting::childIndex()
{
    SampleNode node("P");
    SampleNode stranger("A");
    const QList<SampleNode*> children = fill(node, "A1 B1 A2");
    QCOMPARE(node.childIndex(children[0]), 0);
    QCOMPARE(node.childIndex(children[2]), 1);
    QCOMPARE(node.childIndex(children[1]), 2);
    QCOMPARE(node.childIndex(&stranger), -1);
    QCOMPARE(node.childIndex(nullptr), -1);
}

void TstAbstractSubSetting::setParentTouchesNoList()
{
    SampleNode first("P");
    SampleNode second("P");
    SampleNode* child = fill(first, "A1").first();
    child->setParent(&second);
    QCOMPARE(child->parent(), static_cast<ISubSetting*>(&second));
    QCOMPARE(shown(first), QString("A1"));
    QCOMPARE(second.childCount(), 0);
    QCOMPARE(child->row(), -1);
    child->setParent(nullptr);
    QVERIFY(!child->parent());
    QCOMPARE(child->row(), 0);
}

void TstAbstractSubSetting::rowOfANode()
{
    SampleNode node("P");
    const QList<SampleNode*> children = fill(node, "A1 B1 A2");
    QCOMPARE(node.row(), 0);
    QCOMPARE(children[0]->row(), 0);
    QCOMPARE(children[2]->row(), 1);
    QCOMPARE(children[1]->row(), 2);
    SampleNode unlisted("A", "x", &node);
    QCOMPARE(unlisted.row(), -1);
}

void TstAbstractSubSetting::rowAsksTheParentThroughTheInterface()
{
    WilfulNode above("P");
    WilfulNode node("A");
    ISubSetting* asked = nullptr;
    above.m_childIndex = [&asked](ISubSetting* child) {
        asked = child;
        return 42;
    };
    QCOMPARE(node.row(), 0);
    node.m_parentNode = [&above] { return &above; };
    QCOMPARE(node.row(), 42);
    QCOMPARE(asked, static_cast<ISubSetting*>(&node));
}

void TstAbstractSubSetting::childHonoursAnOverriddenCount()
{
    WilfulNode node("P");
    fill(node, "A1 A2 A3");
    node.m_childCount = [] { return 2; };
    QCOMPARE(shown(node), QString("A1 A2"));
    QVERIFY(!node.child(2));
    node.m_childCount = [] { return 5; };
    QVERIFY(node.child(2));
    QVERIFY(!node.child(3));
}

void TstAbstractSubSetting::append_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("order");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("one") << "A1"
                         << "A1";
    QTest::newRow("one type") << "A1 A2 A3"
                              << "A1 A2 A3";
    QTest::newRow("joins its group") << "A1 B1 A2"
                                     << "A1 A2 B1";
    QTest::newRow("new type at the end") << "A1 B1 C1"
                                         << "A1 B1 C1";
    QTest::newRow("middle group") << "A1 B1 C1 B2"
                                  << "A1 B1 B2 C1";
    QTest::newRow("last group") << "A1 B1 C1 C2"
                                << "A1 B1 C1 C2";
    QTest::newRow("in turn") << "A1 B1 C1 A2 B2 C2 A3 B3 C3"
                             << "A1 A2 A3 B1 B2 B3 C1 C2 C3";
    QTest::newRow("case counts") << "A1 a1 A2 a2"
                                 << "A1 A2 a1 a2";
}

void TstAbstractSubSetting::append()
{
    QFETCH(QString, names);
    QFETCH(QString, order);
    SampleNode node("P");
    const QList<SampleNode*> children = fill(node, names);
    QCOMPARE(shown(node), order);
    QHash<QString, int> next;
    for (SampleNode* child : children)
        QCOMPARE(node.settingTypePosition(child->m_type, child), next[child->m_type]++);
}

void TstAbstractSubSetting::appendLeavesTheParentLink()
{
    SampleNode node("P");
    SampleNode other("P");
    auto* child = new SampleNode("A", "a", &other);
    node.appendSubsetting(child);
    QCOMPARE(child->parent(), static_cast<ISubSetting*>(&other));
    auto* root = new SampleNode("A", "b");
    node.appendSubsetting(root);
    QVERIFY(!root->parent());
    QCOMPARE(shown(node), QString("a b"));
}

void TstAbstractSubSetting::appendBehindTornGroups()
{
    SampleNode node("P");
    fill(node, "A1 A2 A3 B1 B2 C1 C2");
    node.moveChild(1, 5); // A1 A3 B1 B2 A2 C1 C2
    node.moveChild(6, 1); // A1 C2 A3 B1 B2 A2 C1
    QCOMPARE(shown(node), QString("A1 C2 A3 B1 B2 A2 C1"));
    fill(node, "B3");
    QCOMPARE(shown(node), QString("A1 C2 A3 B1 B2 B3 A2 C1"));
    fill(node, "A4");
    QCOMPARE(shown(node), QString("A1 C2 A3 B1 B2 B3 A2 A4 C1"));
    fill(node, "C3 D1 A5");
    QCOMPARE(shown(node), QString("A1 C2 A3 B1 B2 B3 A2 A4 A5 C1 C3 D1"));
    QCOMPARE(shownOfType(node, "A"), QString("A1 A3 A2 A4 A5"));
    QCOMPARE(shownOfType(node, "C"), QString("C2 C1 C3"));
}

void TstAbstractSubSetting::appendAsksForTheTypeOfTheMoment()
{
    SampleNode node("P");
    fill(node, "A1 B1");
    auto* child = new SampleNode("C", "x");
    child->m_type = "A";
    node.adopt(child);
    QCOMPARE(shown(node), QString("A1 x B1"));
    QCOMPARE(node.typeCount("C"), 0);
    QCOMPARE(node.typeCount("A"), 2);
}

void TstAbstractSubSetting::nullIsNeverTaken()
{
    SampleNode node("P");
    fill(node, "A1");
    node.appendSubsetting(nullptr);
    QCOMPARE(node.childCount(), 1);
    node.removeSubSetting(nullptr);
    QCOMPARE(shown(node), QString("A1"));
}

void TstAbstractSubSetting::removedChildIsTheCallers()
{
    QStringList log;
    auto node = std::make_unique<SampleNode>("P");
    auto* child = new WatchedNode("A", "a", &log);
    node->adopt(child);
    node->removeSubSetting(child);
    QCOMPARE(node->childCount(), 0);
    QCOMPARE(node->typeCount("A"), 0);
    QCOMPARE(child->parent(), static_cast<ISubSetting*>(node.get()));
    node.reset();
    QCOMPARE(log, QStringList());
    delete child;
    QCOMPARE(log, QStringList("delete a"));
}

void TstAbstractSubSetting::removingKeepsTheOthers()
{
    SampleNode node("P");
    const QList<SampleNode*> children = fill(node, "A1 A2 A3 B1");
    node.removeSubSetting(children[1]);
    const std::unique_ptr<SampleNode> removed(children[1]);
    QCOMPARE(shown(node), QString("A1 A3 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A1 A3"));
    QCOMPARE(node.settingTypePosition("A", children[2]), 1);
    QCOMPARE(node.settingTypePosition("A", removed.get()), -1);
    QCOMPARE(children[3]->row(), 2);
}

void TstAbstractSubSetting::removingAStrangerChangesNothing()
{
    SampleNode node("P");
    fill(node, "A1 B1");
    SampleNode sameType("A");
    SampleNode otherType("Z");
    node.removeSubSetting(&sameType);
    node.removeSubSetting(&otherType);
    QCOMPARE(shown(node), QString("A1 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A1"));
    QCOMPARE(node.typeCount("Z"), 0);
}

void TstAbstractSubSetting::removeTakesEveryOccurrence()
{
    SampleNode node("P");
    const std::unique_ptr<SampleNode> twice(new SampleNode("A", "A1"));
    node.adopt(twice.get());
    fill(node, "A2 B1");
    node.adopt(twice.get());
    QCOMPARE(shown(node), QString("A1 A2 A1 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A1 A2 A1"));
    QCOMPARE(twice->row(), 0);
    node.removeSubSetting(twice.get());
    QCOMPARE(shown(node), QString("A2 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A2"));
}

void TstAbstractSubSetting::removedChildCanComeBack()
{
    SampleNode node("P");
    const QList<SampleNode*> children = fill(node, "A1 A2 B1");
    node.removeSubSetting(children[0]);
    node.adopt(children[0]);
    QCOMPARE(shown(node), QString("A2 A1 B1"));
    QCOMPARE(shownOfType(node, "A"), QString("A2 A1"));
}

void TstAbstractSubSetting::removeAllDeletesNobody()
{
    QStringList log;
    QList<WatchedNode*> children;
    {
        SampleNode node("P");
        for (const char* name : {"a", "b"}) {
            children << new WatchedNode("A", name, &log);
            node.adopt(children.last());
        }
        node.removeAllSubSettings();
        QCOMPARE(node.childCount(), 0);
        QCOMPARE(node.typeCount("A"), 0);
        QVERIFY(!node.settingAtTypePosition("A", 0));
        QCOMPARE(children[0]->parent(), static_cast<ISubSetting*>(&node));
    }
    QCOMPARE(log, QStringList());
    QCOMPARE(children[0]->getDisplayName(), QString("a"));
    qDeleteAll(children);
}

void TstAbstractSubSetting::typeQuestions()
{
    SampleNode node("P");
    const QList<SampleNode*> children = fill(node, "A1 B1 A2");
    QCOMPARE(node.typeCount("A"), 2);
    QCOMPARE(node.typeCount("B"), 1);
    QCOMPARE(node.typeCount("C"), 0);
    QCOMPARE(node.typeCount(""), 0);
    QCOMPARE(node.settingTypePosition("A", children[0]), 0);
    QCOMPARE(node.settingTypePosition("A", children[2]), 1);
    QCOMPARE(node.settingTypePosition("B", children[2]), -1);
    QCOMPARE(node.settingTypePosition("C", children[2]), -1);
    QCOMPARE(node.settingTypePosition("A", nullptr), -1);
    QCOMPARE(node.settingAtTypePosition("A", 1), static_cast<ISubSetting*>(children[2]));
    QVERIFY(!node.settingAtTypePosition("A", 2));
    QVERIFY(!node.settingAtTypePosition("A", -1));
    QVERIFY(!node.settingAtTypePosition("C", 0));
    QCOMPARE(node.typeCount("C"), 0);
}

void TstAbstractSubSetting::settingAtTypePositionHonoursAnOverriddenCount()
{
    WilfulNode node("P");
    fill(node, "A1 A2");
    node.m_typeCount = [] { return 1; };
    QVERIFY(node.settingAtTypePosition("A", 0));
    QVERIFY(!node.settingAtTypePosition("A", 1));
    node.m_typeCount = [] { return 9; };
    QVERIFY(!node.settingAtTypePosition("A", 2));
}

void TstAbstractSubSetting::move_data()
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

void TstAbstractSubSetting::move()
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

void TstAbstractSubSetting::moveTellsTheMovedChildLast()
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

void TstAbstractSubSetting::moveNeedsTwoChildren()
{
    WilfulNode node("P");
    fill(node, "A1 A2 A3");
    node.m_childCount = [] { return 1; };
    node.moveChild(0, 3);
    node.m_childCount = nullptr;
    QCOMPARE(shown(node), QString("A1 A2 A3"));
}

void TstAbstractSubSetting::moveHonoursOverrides()
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

void TstAbstractSubSetting::moveStaysInsideTheList()
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

void TstAbstractSubSetting::canMoveChild()
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

void TstAbstractSubSetting::canMoveChildHonoursOverrides()
{
    WilfulNode node("P");
    WilfulNode child("A");
    child.m_parentNode = [&node] { return &node; };
    QVERIFY(node.canMoveChild(&child));
    node.m_isReadOnly = [] { return true; };
    QVERIFY(!node.canMoveChild(&child));
}

void TstAbstractSubSetting::otherTypesSameLevel()
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

void TstAbstractSubSetting::otherTypesHonoursOverrides()
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

void TstAbstractSubSetting::readOnlyForOneNode()
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

void TstAbstractSubSetting::readOnlyForTheSubtree()
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

void TstAbstractSubSetting::readOnlyHonoursOverrides()
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

void TstAbstractSubSetting::destructorDeletesTheChildrenInOrder()
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

void TstAbstractSubSetting::childMayLeaveWhileItIsDeleted()
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

void TstAbstractSubSetting::childMayTakeALaterSiblingAway()
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

void TstAbstractSubSetting::childMayEmptyTheParent()
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

void TstAbstractSubSetting::copyRefersToTheSameChildren()
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

void TstAbstractSubSetting::assignmentRefersToTheSameChildren()
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

void TstAbstractSubSetting::nodeTravelsAsAVariant()
{
    SampleNode node("A");
    ISubSetting* setting = &node;
    QCOMPARE(QVariant::fromValue(setting).value<ISubSetting*>(), setting);
    static_assert(std::is_abstract_v<ISubSetting> && std::is_abstract_v<AbstractSubSetting>);
    static_assert(std::has_virtual_destructor_v<ISubSetting>);
    static_assert(!std::is_constructible_v<AbstractSubSetting, ISubSetting*>);
    static_assert(std::is_base_of_v<ISubSetting, AbstractSubSetting>);
}

JED_TEST_MAIN(TstAbstractSubSetting)
#include "tst_abstractsubsetting.moc"
