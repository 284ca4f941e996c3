#include "abstractsubsetting.h"
#include "naivesettingtree.h"

#include <support/samplenode.h>

#include <QRandomGenerator>

#include <algorithm>
#include <vector>

using JEDVEPLUGIN::ISubSetting;

namespace {

const int OPERATIONS = 10000;
const QStringList TYPES = {"SubJob", "GeneralSettings", "Scan", "Demodulator", "Alarm"};

/// What a setting node is to the test: plain data, every answer worked out from the list of children.
struct ModelNode
{
    int number;
    QString type;
    bool readOnly = false;
    std::vector<ModelNode*> children;
    ModelNode* listedBy = nullptr; // The node that lists it.
    SampleNode* real = nullptr;

    void append(ModelNode* child)
    {
        auto behind = children.end();
        for (auto it = children.begin(); it != children.end(); ++it) {
            if ((*it)->type == child->type)
                behind = it + 1;
        }
        children.insert(behind, child);
        child->listedBy = this;
    }

    void remove(ModelNode* child)
    {
        children.erase(std::find(children.begin(), children.end(), child));
        child->listedBy = nullptr;
    }

    /// \return the child that has another place now, or null
    ModelNode* move(int from, int to)
    {
        const int count = int(children.size());
        if (count < 2)
            return nullptr;
        from = std::clamp(from, 0, count - 1);
        // Leaving it out first and counting the places in front of the drop position is the same move.
        const int dropped = std::clamp(from < to ? to - 1 : to, 0, count - 1);
        ModelNode* child = children[from];
        children.erase(children.begin() + from);
        children.insert(children.begin() + dropped, child);
        return dropped == from ? nullptr : child;
    }

    void setReadOnly(bool value, bool subtree)
    {
        readOnly = value;
        for (ModelNode* child : children) {
            if (subtree)
                child->setReadOnly(value, true);
        }
    }
};

class CountingNode : public SampleNode
{
public:
    using SampleNode::SampleNode;
    void moved() override { ++m_moves; }
    int m_moves = 0;
};

/// The forest of a run: real nodes and, beside each, its model.
class Forest
{
public:
    explicit Forest(quint32 seed)
        : m_random(seed)
    {
        create();
    }

    ~Forest()
    {
        for (ModelNode* node : m_nodes) {
            if (!node->listedBy)
                delete node->real;
        }
        qDeleteAll(m_nodes);
    }

    /// One operation, on the real nodes and on the model.
    void step()
    {
        switch (m_random.bounded(20)) {
        case 0:
        case 1:
            return takeOut();
        case 2:
            return destroy();
        case 3:
            return readOnly();
        case 4:
            return forgetAll();
        case 5:
        case 6:
        case 7:
        case 8:
        case 9:
        case 10:
            return move();
        default:
            return append();
        }
    }

    QString difference() const
    {
        for (const ModelNode* node : m_nodes) {
            const QString wrong = differenceOf(*node);
            if (!wrong.isEmpty())
                return QString("node %1: %2").arg(node->number).arg(wrong);
        }
        return QString();
    }

private:
    ModelNode* any() { return m_nodes[m_random.bounded(int(m_nodes.size()))]; }

    ModelNode* create()
    {
        auto* node = new ModelNode;
        node->number = m_nextNumber++;
        node->type = TYPES.at(m_random.bounded(TYPES.size()));
        node->real = new CountingNode(node->type, QString::number(node->number));
        m_nodes.push_back(node);
        return node;
    }

    static bool isWithin(const ModelNode* node, const ModelNode* top)
    {
        while (node && node != top)
            node = node->listedBy;
        return node != nullptr;
    }

    void append()
    {
        ModelNode* above = any();
        ModelNode* child = m_nodes.size() < 60 ? create() : any();
        if (child->listedBy || isWithin(above, child))
            return;
        above->real->adopt(child->real);
        above->append(child);
    }

    void takeOut()
    {
        ModelNode* node = any();
        ModelNode* above = any();
        if (node->listedBy)
            above = node->listedBy;
        above->real->removeSubSetting(node->real);
        if (node->listedBy)
            above->remove(node);
    }

    void destroy()
    {
        ModelNode* node = any();
        if (m_nodes.size() < 20 || node->number == 0)
            return;
        if (node->listedBy) {
            node->listedBy->real->removeSubSetting(node->real);
            node->listedBy->remove(node);
        }
        delete node->real;
        const auto isGone = [node](const ModelNode* other) { return isWithin(other, node); };
        const auto gone = std::stable_partition(m_nodes.begin(), m_nodes.end(),
                                                [&isGone](const ModelNode* other) { return !isGone(other); });
        const std::vector<ModelNode*> deleted(gone, m_nodes.end());
        m_nodes.erase(gone, m_nodes.end());
        qDeleteAll(deleted);
    }

    void readOnly()
    {
        ModelNode* node = any();
        const bool value = m_random.bounded(2);
        const bool subtree = m_random.bounded(2);
        node->real->setReadOnly(value, subtree);
        node->setReadOnly(value, subtree);
    }

    void forgetAll()
    {
        ModelNode* node = any();
        if (m_random.bounded(4))
            return;
        node->real->removeAllSubSettings();
        while (!node->children.empty())
            node->remove(node->children.back());
    }

    void move()
    {
        ModelNode* node = any();
        const int count = int(node->children.size());
        const int from = m_random.bounded(-2, count + 3);
        const int to = m_random.bounded(-2, count + 3);
        ModelNode* moved = node->move(from, to);
        const int before = moved ? static_cast<CountingNode*>(moved->real)->m_moves : 0;
        node->real->moveChild(from, to);
        if (moved && static_cast<CountingNode*>(moved->real)->m_moves != before + 1)
            qFatal("moved() was not called once");
    }

    static QString differenceOf(const ModelNode& node)
    {
        SampleNode& real = *node.real;
        if (real.childCount() != int(node.children.size()))
            return QString("%1 children, not %2").arg(real.childCount()).arg(node.children.size());
        if (real.isReadOnly() != node.readOnly)
            return "read-only state";
        QHash<QString, int> ofType;
        for (int i = 0; i < real.childCount(); ++i) {
            const ModelNode* child = node.children[i];
            const int place = ofType[child->type]++;
            const bool placed = real.child(i) == child->real && real.childIndex(child->real) == i &&
                                child->real->row() == i && child->real->parent() == &real;
            const bool placedInType = real.settingTypePosition(child->type, child->real) == place &&
                                      real.settingAtTypePosition(child->type, place) == child->real;
            if (!placed || !placedInType || real.canMoveChild(child->real) == node.readOnly)
                return QString("child %1 at place %2, %3 of its type").arg(child->number).arg(i).arg(place);
        }
        for (const QString& type : TYPES) {
            const bool isEnd = !real.settingAtTypePosition(type, ofType.value(type));
            if (real.typeCount(type) != ofType.value(type) || !isEnd)
                return QString("%1 of type %2").arg(real.typeCount(type)).arg(type);
        }
        return QString();
    }

    QRandomGenerator m_random;
    std::vector<ModelNode*> m_nodes;
    int m_nextNumber = 0;
};

} // namespace

class TstSettingTreeRandom : public QObject
{
    Q_OBJECT
private slots:
    void treeIsAsTheModel_data();
    void treeIsAsTheModel();
    void placesAreThoseOfTheNaiveList_data();
    void placesAreThoseOfTheNaiveList();
};

void TstSettingTreeRandom::treeIsAsTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 20u, 300u})
        QTest::newRow(qPrintable(QString("seed %1").arg(seed))) << seed;
}

void TstSettingTreeRandom::treeIsAsTheModel()
{
    QFETCH(quint32, seed);
    Forest forest(seed);
    for (int i = 0; i < OPERATIONS; ++i) {
        forest.step();
        const QString difference = forest.difference();
        QVERIFY2(difference.isEmpty(), qPrintable(QString("operation %1: %2").arg(i).arg(difference)));
    }
}

void TstSettingTreeRandom::placesAreThoseOfTheNaiveList_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("types");
    QTest::addColumn<int>("movesInTen");
    QTest::newRow("one type") << 1u << 1 << 1;
    QTest::newRow("whole groups") << 2u << 20 << 0;
    QTest::newRow("few torn groups") << 3u << 20 << 1;
    QTest::newRow("torn groups") << 4u << 20 << 5;
    QTest::newRow("a type each") << 5u << 1000 << 2;
}

void TstSettingTreeRandom::placesAreThoseOfTheNaiveList()
{
    QFETCH(quint32, seed);
    QFETCH(int, types);
    QFETCH(int, movesInTen);
    QRandomGenerator random(seed);
    SampleNode node("top");
    NaiveChildren naive;
    for (int i = 0; i < 2000; ++i) {
        if (random.bounded(10) < movesInTen && node.childCount() > 0) {
            const int from = random.bounded(node.childCount());
            const int to = random.bounded(node.childCount() + 1);
            node.moveChild(from, to);
            naive.move(from, to);
        } else if (random.bounded(12) == 0 && node.childCount() > 0) {
            const std::unique_ptr<ISubSetting> child(node.child(random.bounded(node.childCount())));
            node.removeSubSetting(child.get());
            naive.remove(child.get());
        } else {
            auto* child = new SampleNode(QString::number(random.bounded(types)));
            node.adopt(child);
            naive.append(child);
        }
        QCOMPARE(node.childCount(), naive.m_children.size());
        for (int place = 0; place < node.childCount(); ++place)
            QVERIFY(node.child(place) == naive.m_children.at(place));
    }
    for (auto group = naive.m_typeIndex.cbegin(); group != naive.m_typeIndex.cend(); ++group) {
        QCOMPARE(node.typeCount(group.key()), group->size());
        for (int place = 0; place < group->size(); ++place)
            QVERIFY(node.settingAtTypePosition(group.key(), place) == group->at(place));
    }
}

QTEST_GUILESS_MAIN(TstSettingTreeRandom)
#include "tst_settingtree_random.moc"
