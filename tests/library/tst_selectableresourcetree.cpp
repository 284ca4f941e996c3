#include "selectableresourcemodel.h"

#include <support/resourcemodelfixture.h>
#include <support/tracerecorder.h>

#include <QStandardItemModel>

using JedTest::DescriptionPtr;
using JedTest::names;
using JedTest::resource;
using JedTest::resources;
using JedTest::rows;

namespace {

const char OWN_PARENT[] = "selectableresourcemodel:36: SelectableResourceModel::setResources() - "
                          "configuration error base resource %1 - %2 "
                          "is it's own parent";
const char NO_PARENT[] = "selectableresourcemodel:46: SelectableResourceModel::setResources() - "
                         "configuration error base resource %1 - %2 "
                         "has a parent %3 which is not available";

/// A row of the tree and everything below it: "A(B(C) D)".
QString outline(const QAbstractItemModel& tree, const QModelIndex& parent = QModelIndex())
{
    QStringList texts;
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex index = tree.index(row, 0, parent);
        const QString below = outline(tree, index);
        texts << index.data().toString() + (below.isEmpty() ? QString() : '(' + below + ')');
    }
    return texts.join(' ');
}

QString rowText(const QAbstractItemModel& tree, const QModelIndex& first)
{
    QStringList texts;
    for (int column = 0; column < tree.columnCount(first.parent()); ++column)
        texts << first.sibling(first.row(), column).data().toString();
    return texts.join('|');
}

} // namespace

class TstSelectableResourceTree : public QObject, private JedTest::ResourceModelFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void rowsAreTheTreesInPreOrder_data();
    void rowsAreTheTreesInPreOrder();
    void childrenHangBelowParentsOfTheirType();
    void keysAreNotSubstitutedIntoEachOther();
    void laterDescriptionOfAKeyReplacesTheEarlier();
    void nullDescriptionsAreLeftOut();
    void wrongParentsAreTraced_data();
    void wrongParentsAreTraced();
    void tracesOnlyWhenTheirClassIsOn();
    void chainOfManyResources();

    void treeShowsEightColumns();
    void treeHasTheShapeOfTheParents();
    void nothingInTheTreeCanBeEdited();
    void treeBelongsToItsParent();
    void treeDoesNotFollowTheModel();
    void treeOfAnEmptyModel();
};

void TstSelectableResourceTree::rowsAreTheTreesInPreOrder_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("tree");
    QTest::newRow("roots by name") << QStringList{"C 1", "A 1", "B 1"} << "A B C"
                                   << "A B C";
    QTest::newRow("capitals first") << QStringList{"b 1", "a 1", "B 1"} << "B a b"
                                    << "B a b";
    QTest::newRow("children by name below the parent")
        << QStringList{"D 1 A", "C 1 A", "B 1", "A 1"} << "A C D B"
        << "A(C D) B";
    QTest::newRow("grandchildren before the next child")
        << QStringList{"A 1", "B 1 A", "C 1 A", "X 1 B", "Y 1 B"} << "A B X Y C"
        << "A(B(X Y) C)";
    // The tree of the first name comes first, though its root is named last.
    QTest::newRow("root behind its children") << QStringList{"A 1 Z", "M 1", "Z 1"} << "Z A M"
                                              << "Z(A) M";
    QTest::newRow("one") << QStringList{"A 1"} << "A"
                         << "A";
}

void TstSelectableResourceTree::rowsAreTheTreesInPreOrder()
{
    QFETCH(QStringList, given);
    JedTest::TraceRecorder traces;
    load(given);
    QTEST(names(m_model->getResources()), "rows");
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QTEST(outline(*tree), "tree");
    QVERIFY(traces.take().isEmpty());
}

void TstSelectableResourceTree::childrenHangBelowParentsOfTheirType()
{
    m_model->setResources({resource("One", "P", QString(), 4), resource("Two", "P", QString(), 3),
                           resource("Two", "C", "P", 9)});
    QCOMPARE(rows(*m_model), QString("P 0/4 P 0/3 C 0/3"));
}

void TstSelectableResourceTree::keysAreNotSubstitutedIntoEachOther()
{
    m_model->setResources(
        {resource("%2", "A", QString(), 4), resource("%2", "B", "A", 2), resource("%1", "%2", QString(), 1)});
    QCOMPARE(rows(*m_model), QString("%2 0/1 A 0/4 B 0/2"));
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QCOMPARE(outline(*tree), QString("%2 A(B)"));
}

void TstSelectableResourceTree::laterDescriptionOfAKeyReplacesTheEarlier()
{
    const DescriptionPtr earlier = resource("T", "A", QString(), 1);
    const DescriptionPtr later = resource("T", "A", QString(), 5);
    const DescriptionPtr child = resource("T", "B", "A", 9);
    m_model->setResources({earlier, child, later, child});
    QCOMPARE(rows(*m_model), QString("A 0/5 B 0/5"));
    QCOMPARE(m_model->getResources(), QList<DescriptionPtr>({later, child}));
    QVERIFY(!m_model->selectResource(earlier, 1));
    QVERIFY(m_model->selectResource(later, 1));
}

void TstSelectableResourceTree::nullDescriptionsAreLeftOut()
{
    m_model->setResources({nullptr, resource("T", "A", QString(), 2), nullptr});
    QCOMPARE(rows(*m_model), QString("A 0/2"));
}

void TstSelectableResourceTree::wrongParentsAreTraced_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("tree");
    const auto own = [](const char* base) { return QString(OWN_PARENT).arg("T", base); };
    const auto missing = [](const char* base, const char* parent) {
        return QString(NO_PARENT).arg("T", base, parent);
    };
    QTest::newRow("itself") << QStringList{"A 1 A"} << QStringList{own("A")} << "A";
    QTest::newRow("itself, with a child") << QStringList{"A 1 A", "B 1 A"} << QStringList{own("A")} << "A(B)";
    QTest::newRow("missing") << QStringList{"A 1 X", "B 1"} << QStringList{missing("A", "X")} << "A B";
    QTest::newRow("missing with blanks and percent")
        << QStringList{"A 1 %1 %3"} << QStringList{missing("A", "%1 %3")} << "A";
    QTest::newRow("name in other letters")
        << QStringList{"A 1", "B 1 a"} << QStringList{missing("B", "a")} << "A B";
    QTest::newRow("several, by name")
        << QStringList{"C 1 Y", "A 1 X", "B 1 B"}
        << QStringList{missing("A", "X"), own("B"), missing("C", "Y")} << "A B C";
    // In a ring the last one by name stays a root.
    QTest::newRow("ring of two") << QStringList{"A 1 B", "B 1 A"} << QStringList{missing("B", "A")} << "B(A)";
    QTest::newRow("ring of three") << QStringList{"A 1 B", "B 1 C", "C 1 A"} << QStringList{missing("C", "A")}
                                   << "C(B(A))";
    QTest::newRow("ring of three the other way round")
        << QStringList{"A 1 C", "B 1 A", "C 1 B"} << QStringList{missing("C", "B")} << "C(A(B))";
    QTest::newRow("ring with others below")
        << QStringList{"A 1 B", "B 1 A", "C 1 A", "D 1 C"} << QStringList{missing("B", "A")} << "B(A(C(D)))";
    QTest::newRow("two rings") << QStringList{"A 1 B", "B 1 A", "C 1 D", "D 1 C"}
                               << QStringList{missing("B", "A"), missing("D", "C")} << "B(A) D(C)";
}

void TstSelectableResourceTree::wrongParentsAreTraced()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, expected);
    JedTest::TraceRecorder traces;
    load(given);
    QCOMPARE(traces.take(), expected);
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QTEST(outline(*tree), "tree");
    QCOMPARE(m_model->rowCount(), given.size());

    // A parent of another type is none.
    m_model->setResources({resource("One", "P", QString(), 1), resource("Two", "C", "P", 1)});
    QCOMPARE(traces.take(), QStringList(QString(NO_PARENT).arg("Two", "C", "P")));
}

void TstSelectableResourceTree::tracesOnlyWhenTheirClassIsOn()
{
    JedTest::TraceRecorder traces;
    const JedTest::TraceMask others(~quint32(0x20));
    load({"A 1 A", "B 1 X", "C 1 D", "D 1 C"});
    QCOMPARE(traces.take(), QStringList());
    QCOMPARE(m_model->rowCount(), 4);
    const JedTest::TraceMask errors(0x20);
    m_model->setResources(m_descriptions);
    QCOMPARE(traces.take().size(), 3);
}

void TstSelectableResourceTree::chainOfManyResources()
{
    const int length = 3000;
    QStringList texts;
    for (int number = 0; number < length; ++number) {
        const QString parent = number > 0 ? QString(" r%1").arg(number - 1, 5, 10, QChar('0')) : QString();
        texts << QString("r%1 %2%3").arg(number, 5, 10, QChar('0')).arg(length - number).arg(parent);
    }
    m_tester.reset(); // asks every row several times, and would take minutes
    load(texts);
    QCOMPARE(m_model->rowCount(), length);
    QCOMPARE(m_model->index(length - 1, 0).data().toString(), QString("r02999"));
    QVERIFY(m_model->setSelectionCount(m_descriptions.last(), 1));
    QCOMPARE(m_model->index(0, 2).data().toInt(), length - 1);
    m_model->slotSelectAllMax();
    QCOMPARE(m_model->getSelectionCount(nullptr), length);
}

void TstSelectableResourceTree::treeShowsEightColumns()
{
    load({"P 4", "C 3 P", "D 2 P"});
    m_model->setSelectionCount(find("P"), 1);
    m_model->setSelectionCount(find("C"), 2);
    m_model->setReservationCount(find("D"), 1);
    m_model->disableResource(find("D"));
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QVERIFY(qobject_cast<QStandardItemModel*>(tree.get()));
    QStringList labels;
    for (int column = 0; column < tree->columnCount(); ++column)
        labels << tree->headerData(column, Qt::Horizontal).toString();
    QCOMPARE(labels.join('|'),
             QString("Base Resource|Count|Max Count|Reservation Count|Occupied|Type|Quantity|Enabled"));
    const QModelIndex parent = tree->index(0, 0);
    QCOMPARE(rowText(*tree, parent), QString("P|1|1|0|3|T|4|true"));
    QCOMPARE(rowText(*tree, tree->index(0, 0, parent)), QString("C|2|2|0|2|T|3|true"));
    QCOMPARE(rowText(*tree, tree->index(1, 0, parent)), QString("D|0|0|1|0|T|2|false"));
}

void TstSelectableResourceTree::treeHasTheShapeOfTheParents()
{
    load({"A 9", "B 9 A", "C 9 B", "D 9 A", "E 9"});
    for (const char* each : {"A", "B", "C", "E"})
        QVERIFY(m_model->setSelectionCount(find(each), 1));
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    const QAbstractItemModelTester tester(tree.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    QCOMPARE(outline(*tree), QString("A(B(C) D) E"));
    // Children hang below the first column only, and what a subtree occupies is counted in its root.
    const QModelIndex a = tree->index(0, 0);
    for (int column = 1; column < 8; ++column)
        QCOMPARE(tree->rowCount(tree->index(0, column)), 0);
    QCOMPARE(a.sibling(0, 4).data().toString(), QString("3"));
    QCOMPARE(tree->index(0, 4, a).data().toString(), QString("2"));
    QCOMPARE(tree->index(1, 4, a).data().toString(), QString("0"));
    QCOMPARE(tree->index(1, 4).data().toString(), QString("1"));
}

void TstSelectableResourceTree::nothingInTheTreeCanBeEdited()
{
    load({"A 9", "B 9 A"});
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    for (const QModelIndex& parent : {QModelIndex(), tree->index(0, 0)}) {
        for (int column = 0; column < 8; ++column)
            QVERIFY(!(tree->index(0, column, parent).flags() & Qt::ItemIsEditable));
    }
}

void TstSelectableResourceTree::treeBelongsToItsParent()
{
    load({"A 1"});
    auto owner = std::make_unique<QObject>();
    const QPointer<QAbstractItemModel> tree = m_model->getHierarchicalModel(owner.get());
    QCOMPARE(tree->parent(), owner.get());
    const QPointer<QAbstractItemModel> second = m_model->getHierarchicalModel(owner.get());
    QVERIFY(second != tree);
    owner.reset();
    QVERIFY(tree.isNull());
    QVERIFY(second.isNull());
}

void TstSelectableResourceTree::treeDoesNotFollowTheModel()
{
    load({"A 3"});
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QCOMPARE(m_signals->take(), QString());
    m_model->setSelectionCount(find("A"), 2);
    QCOMPARE(rowText(*tree, tree->index(0, 0)), QString("A|0|3|0|0|T|3|true"));
    m_model->setResources({});
    QCOMPARE(tree->rowCount(), 1);
}

void TstSelectableResourceTree::treeOfAnEmptyModel()
{
    const std::unique_ptr<QAbstractItemModel> tree(m_model->getHierarchicalModel(nullptr));
    QCOMPARE(tree->rowCount(), 0);
    QCOMPARE(tree->columnCount(), 8);
}

QTEST_GUILESS_MAIN(TstSelectableResourceTree)
#include "tst_selectableresourcetree.moc"
