#include "frequencylistview.h"
#include "naivelistview.h"

#include <support/listviewsamples.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QRandomGenerator>

using JEDVEPLUGIN::FrequencyListView;

namespace {

/// Makes a list of random size, some cells of which cannot be selected or are disabled, and hides rows and columns.
void shuffle(QRandomGenerator* random, SampleListModel* model, const QModelIndex& parent,
             const QList<QTreeView*>& views)
{
    const Qt::ItemFlags usual = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable;
    const Qt::ItemFlags unusual[] = {Qt::ItemIsSelectable, Qt::ItemIsEnabled, Qt::NoItemFlags};
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const bool hidden = random->bounded(10) == 0;
        for (QTreeView* view : views)
            view->setRowHidden(row, parent, hidden);
        for (int column = 0; column < model->columnCount(parent); ++column) {
            const bool odd = random->bounded(4) == 0;
            model->itemFromIndex(model->index(row, column, parent))
                ->setFlags(odd ? unusual[random->bounded(3)] : usual);
        }
    }
    for (int column = 0; column < 3; ++column) {
        const bool hidden = random->bounded(4) == 0;
        for (QTreeView* view : views)
            view->setColumnHidden(column, hidden);
    }
}

/// Selects, deselects and toggles a few random blocks of cells.
void selectBlocks(QRandomGenerator* random, QItemSelectionModel* selection, const QModelIndex& parent)
{
    const QItemSelectionModel::SelectionFlag commands[] = {
        QItemSelectionModel::Select, QItemSelectionModel::Toggle, QItemSelectionModel::Deselect};
    const QAbstractItemModel* model = selection->model();
    for (int block = random->bounded(8); block > 0; --block) {
        const int top = random->bounded(model->rowCount(parent));
        const int bottom = qMin(top + random->bounded(6), model->rowCount(parent) - 1);
        const int left = random->bounded(3);
        const int right = left + random->bounded(3 - left);
        selection->select({model->index(top, left, parent), model->index(bottom, right, parent)},
                          commands[random->bounded(3)]);
    }
}

} // namespace

class TstFrequencyListViewDelete : public QObject, private ListViewFixture
{
    Q_OBJECT
private slots:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void deleteRemovesRunsFromTheLast();
    void deleteRemovesSelectedRows_data();
    void deleteRemovesSelectedRows();
    void deleteWithoutSelectionRemovesNothing();
    void deleteWithoutModelDoesNothing();
    void deleteGoesToTheBaseToo();
    void otherKeysGoToTheBase();
    void deleteUnderTheRootIndex();
    void rowsOfSeveralParentsCountAsOneList();
    void rowsThatTheModelKeepsStay();
    void modelSetWhileRowsGoKeepsItsRows();
    void deleteMovesTheCurrentRow();
    void rangesGiveTheSameRowsAsIndexes();

private:
    void select(const QString& cells);
    void pressDelete() { QTest::keyClick(m_view.get(), Qt::Key_Delete); }
};

void TstFrequencyListViewDelete::select(const QString& cells)
{
    m_view->clearSelection();
    for (const QString& cell : cells.split(' ', Qt::SkipEmptyParts)) {
        const QModelIndex index = m_model->index(cell.section('.', 0, 0).toInt(),
                                                 cell.section('.', 1).toInt(), m_view->rootIndex());
        m_view->selectionModel()->select(index, QItemSelectionModel::Select);
    }
}

void TstFrequencyListViewDelete::deleteRemovesRunsFromTheLast()
{
    select("2.0 2.1 2.2 3.0 3.1 3.2 5.0 5.1 5.2");
    m_signals->take();
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList({"5,1", "2,2"}));
    QCOMPARE(m_model->rowCount(), 5);
    QCOMPARE(m_model->item(2)->text(), QString("4.0"));
    QCOMPARE(m_signals->take(), QString("data, data"));
}

void TstFrequencyListViewDelete::deleteRemovesSelectedRows_data()
{
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("removed");
    QTest::newRow("one cell") << "4.1"
                              << "4,1";
    QTest::newRow("first row") << "0.0"
                               << "0,1";
    QTest::newRow("last row") << "7.2"
                              << "7,1";
    QTest::newRow("cells of one row") << "4.2 4.0"
                                      << "4,1";
    QTest::newRow("neighbours, later one first") << "5.0 4.1"
                                                 << "4,2";
    QTest::newRow("neighbours in different columns") << "1.0 2.1 3.2"
                                                     << "1,3";
    QTest::newRow("every second") << "0.0 2.0 4.0 6.0"
                                  << "6,1 4,1 2,1 0,1";
    QTest::newRow("gap closed by another column") << "1.0 3.0 2.2"
                                                  << "1,3";
    QTest::newRow("all") << "0.0 1.0 2.0 3.0 4.0 5.0 6.0 7.0"
                         << "0,8";
}

void TstFrequencyListViewDelete::deleteRemovesSelectedRows()
{
    QFETCH(QString, cells);
    QFETCH(QString, removed);
    select(cells);
    pressDelete();
    QCOMPARE(m_model->m_removed.join(' '), removed);
}

void TstFrequencyListViewDelete::deleteWithoutSelectionRemovesNothing()
{
    m_view->setCurrentIndex(m_model->index(3, 0));
    m_view->clearSelection();
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList());
}

void TstFrequencyListViewDelete::deleteWithoutModelDoesNothing()
{
    m_view->setModel(nullptr);
    m_signals->take();
    pressDelete();
    QCOMPARE(m_signals->take(), QString());
    QCOMPARE(m_model->rowCount(), 8);
}

void TstFrequencyListViewDelete::deleteGoesToTheBaseToo()
{
    select("1.0");
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f");
    QApplication::sendEvent(m_view.get(), &press);
    QCOMPARE(m_model->rowCount(), 7);
    // The base has no use for the key and says so, hence it has had it.
    QVERIFY(!press.isAccepted());
    QVERIFY(!m_view->findChild<QLineEdit*>());
}

void TstFrequencyListViewDelete::otherKeysGoToTheBase()
{
    m_view->setCurrentIndex(m_model->index(2, 0));
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QCOMPARE(m_view->currentIndex().row(), 3);
    QTest::keyClick(m_view.get(), Qt::Key_Backspace);
    QCOMPARE(m_model->m_removed, QStringList());
    // A character starts editing.
    QTest::keyClick(m_view.get(), Qt::Key_7);
    auto* editor = m_view->findChild<QLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QString("7"));
}

void TstFrequencyListViewDelete::deleteUnderTheRootIndex()
{
    for (int row = 0; row < 4; ++row)
        m_model->item(1)->appendRow({new QStandardItem("a"), new QStandardItem("b")});
    m_view->setRootIndex(m_model->index(1, 0));
    select("0.0 2.1 3.0");
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList({"2,2 under 1.0", "0,1 under 1.0"}));
    QCOMPARE(m_model->rowCount(), 8);
}

void TstFrequencyListViewDelete::rowsOfSeveralParentsCountAsOneList()
{
    // The view is a flat list: with rows of two parents, the first selected one says whose rows are removed.
    for (int row = 0; row < 3; ++row)
        m_model->item(1)->appendRow(new QStandardItem("child"));
    m_view->expand(m_model->index(1, 0));
    m_view->clearSelection();
    m_view->selectionModel()->select(m_model->index(1, 0, m_model->index(1, 0)), QItemSelectionModel::Select);
    m_view->selectionModel()->select(m_model->index(2, 0), QItemSelectionModel::Select);
    QCOMPARE(m_view->selectionModel()->selectedIndexes().size(), 2);
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList("1,2 under 1.0"));
}

void TstFrequencyListViewDelete::rowsThatTheModelKeepsStay()
{
    class Stubborn : public SampleListModel
    {
    public:
        using SampleListModel::SampleListModel;
        bool removeRows(int row, int count, const QModelIndex&) override
        {
            m_removed << QString("%1,%2").arg(row).arg(count);
            return false;
        }
    };
    Stubborn model(4, 1);
    m_view->setModel(&model);
    m_view->selectAll();
    m_view->selectionModel()->select(model.index(1, 0), QItemSelectionModel::Deselect);
    m_signals->take();
    pressDelete();
    QCOMPARE(model.m_removed, QStringList({"2,2", "0,1"}));
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(m_signals->take(), QString());
    m_view->setModel(nullptr);
}

void TstFrequencyListViewDelete::modelSetWhileRowsGoKeepsItsRows()
{
    SampleListModel other(8, 1);
    connect(m_view.get(), &FrequencyListView::si_dataChanged, &other, [&] { m_view->setModel(&other); });
    select("1.0 5.0");
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList({"5,1", "1,1"}));
    QCOMPARE(other.rowCount(), 8);
    m_view->setModel(nullptr);
}

void TstFrequencyListViewDelete::deleteMovesTheCurrentRow()
{
    m_view->setCurrentIndex(m_model->index(5, 0));
    m_signals->take();
    m_view->m_scrolled.clear();
    pressDelete();
    QCOMPARE(m_model->m_removed, QStringList("5,1"));
    // Before the row goes, the one above it becomes the current one; it is shown when its place is known.
    QCOMPARE(m_signals->take(), QString("current 4 5, data"));
    QTest::qWait(1);
    QCOMPARE(m_view->m_scrolled, QStringList("4:0"));
}

void TstFrequencyListViewDelete::rangesGiveTheSameRowsAsIndexes()
{
    QRandomGenerator random(20240607);
    int withRows = 0;
    for (int round = 0; round < 600; ++round) {
        SampleListModel model(1 + random.bounded(40), 3);
        QModelIndex parent;
        if (random.bounded(3) == 0) {
            parent = model.index(0, 0);
            for (int row = 0; row < 20; ++row)
                model.item(0)->appendRow({new QStandardItem, new QStandardItem, new QStandardItem});
        }
        OpenListView view(nullptr, false, false);
        NaiveListView naive(nullptr, false, false);
        for (QTreeView* each : QList<QTreeView*>{&view, &naive})
            each->setModel(&model);
        naive.setSelectionModel(view.selectionModel());
        view.setRootIndex(parent);
        naive.setRootIndex(parent);
        shuffle(&random, &model, parent, {&view, &naive});
        selectBlocks(&random, view.selectionModel(), parent);

        QStringList expected;
        for (const NaiveListView::Run& run : naive.runsToRemove()) {
            QCOMPARE(run.parent, parent);
            expected.prepend(QString("%1,%2").arg(run.firstRow).arg(run.rowCount) +
                             (parent.isValid() ? " under 0.0" : ""));
        }
        QTest::keyClick(&view, Qt::Key_Delete);
        QVERIFY2(model.m_removed == expected,
                 qPrintable(QString("round %1: %2 instead of %3")
                                .arg(QString::number(round), model.m_removed.join(' '), expected.join(' '))));
        withRows += !expected.isEmpty();
    }
    QVERIFY(withRows > 300);
}

JED_TEST_MAIN(TstFrequencyListViewDelete)
#include "tst_frequencylistview_delete.moc"
