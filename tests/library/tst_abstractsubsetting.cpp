#include "settingnodes.h"

#include <support/testmain.h>

#include <QColor>

using namespace SettingNodes;
using JEDVEPLUGIN::Problem;

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

JED_TEST_MAIN(TstAbstractSubSetting)
#include "tst_abstractsubsetting.moc"
