#include "naiveresourcemodel.h"
#include "selectableresourcemodel.h"

#include <support/resourcesamples.h>
#include <support/tracerecorder.h>

#include <QRandomGenerator>

using JedTest::DescriptionPtr;
using JEDVEPLUGIN::SelectableResourceModel;

namespace {

const int FORESTS = 250;
const int OPERATIONS = 40;

/// Resources of two types with parents that may be missing, of the other type, themselves or their own descendants.
QList<DescriptionPtr> randomForest(QRandomGenerator* random)
{
    QList<DescriptionPtr> descriptions;
    const int size = 1 + random->bounded(24);
    for (int number = 0; number < size; ++number) {
        const QString parent =
            random->bounded(4) == 0 ? QString() : QString("r%1").arg(random->bounded(size + 1));
        descriptions << JedTest::resource(random->bounded(5) == 0 ? "Other" : "Usual",
                                          QString("r%1").arg(number), parent, random->bounded(7));
    }
    return descriptions;
}

QString tableText(const QAbstractItemModel& model)
{
    QString text;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < 3; ++column) {
            const QModelIndex index = model.index(row, column);
            text += QString("%1 (%2) ").arg(index.data().toString()).arg(int(index.flags()));
        }
        text += model.headerData(row, Qt::Vertical, Qt::CheckStateRole).toString() + '\n';
    }
    return text;
}

QString treeText(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex(),
                 const QString& indent = {})
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        text += indent;
        for (int column = 0; column < 8; ++column)
            text += model.index(row, column, parent).data().toString() + ' ';
        text += '\n' + treeText(model, model.index(row, 0, parent), indent + "  ");
    }
    return text;
}

/// The table and its straightforward twin over the same resources.
class Pair
{
public:
    explicit Pair(const QList<DescriptionPtr>& descriptions)
        : m_model(descriptions, nullptr)
        , m_naive(descriptions)
        , m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal)
        , m_changed(&m_model, &QAbstractItemModel::dataChanged)
        , m_headerChanged(&m_model, &QAbstractItemModel::headerDataChanged)
    {
    }

    /// Does the same random thing to both. \return what differs, empty if nothing does
    QString step(QRandomGenerator* random);

private:
    struct Outcome
    {
        bool ours;
        bool naive;
    };
    Outcome changeCount(QRandomGenerator* random, int row);
    Outcome changeState(QRandomGenerator* random, int row);
    Outcome changeAll(QRandomGenerator* random);
    QString difference(Outcome outcome) const;

    SelectableResourceModel m_model;
    NaiveResourceModel m_naive;
    QAbstractItemModelTester m_tester;
    QSignalSpy m_changed;
    QSignalSpy m_headerChanged;
};

QString Pair::step(QRandomGenerator* random)
{
    m_changed.clear();
    m_headerChanged.clear();
    const int row = random->bounded(m_naive.rowCount());
    const int kind = random->bounded(20);
    if (kind < 12)
        return difference(changeCount(random, row));
    return difference(kind < 19 ? changeState(random, row) : changeAll(random));
}

Pair::Outcome Pair::changeCount(QRandomGenerator* random, int row)
{
    const DescriptionPtr description = m_naive.at(row)->description;
    const QModelIndex count = m_naive.index(row, 1);
    const int n = random->bounded(-3, 8);
    const int now = m_naive.at(row)->count;
    switch (random->bounded(5)) {
    case 0:
        return {m_model.selectResource(description, n), m_naive.selectResource(description, n)};
    case 1:
        return {m_model.unselectResource(description, n),
                m_naive.setData(count, n == -1 ? 0 : qMax(now - n, 0))};
    case 2:
        return {m_model.setSelectionCount(description, n), m_naive.setData(count, n)};
    case 3: {
        const int column = random->bounded(3);
        return {m_model.setData(m_model.index(row, column), n),
                m_naive.setData(m_naive.index(row, column), n)};
    }
    default: {
        const int state = random->bounded(3);
        return {m_model.setHeaderData(row, Qt::Vertical, state, Qt::CheckStateRole),
                m_naive.setHeaderData(row, Qt::Vertical, state, Qt::CheckStateRole)};
    }
    }
}

Pair::Outcome Pair::changeState(QRandomGenerator* random, int row)
{
    const DescriptionPtr description = m_naive.at(row)->description;
    if (random->bounded(3) > 0) {
        const int n = random->bounded(-1, 8);
        return {m_model.setReservationCount(description, n), m_naive.setReservationCount(row, n)};
    }
    const bool enable = random->bounded(2) == 0;
    const bool changes = m_naive.at(row)->enabled != enable;
    if (enable)
        m_model.enableResource(description);
    else
        m_model.disableResource(description);
    if (changes)
        m_naive.setEnabled(row, enable);
    return {changes, changes};
}

Pair::Outcome Pair::changeAll(QRandomGenerator* random)
{
    switch (random->bounded(3)) {
    case 0:
        m_model.slotSelectAll();
        m_naive.selectAllOnce();
        break;
    case 1:
        m_model.slotSelectAllMax();
        m_naive.selectAllMax();
        break;
    default:
        m_model.slotDeselectAll();
        m_naive.deselectAll();
    }
    return {true, true};
}

QString Pair::difference(Outcome outcome) const
{
    if (outcome.ours != outcome.naive)
        return QString("returned %1 instead of %2").arg(outcome.ours).arg(outcome.naive);
    if (m_changed.count() != int(outcome.ours) || m_headerChanged.count() != int(outcome.ours))
        return QString("%1 and %2 signals").arg(m_changed.count()).arg(m_headerChanged.count());
    for (int row = 0; row < m_naive.rowCount(); ++row) {
        // First asked one by one, then through the table, which remembers maxima.
        const NaiveResourceModel::ResourcePtr& expected = m_naive.at(row);
        if (m_model.getMaxCount(expected->description) != NaiveResourceModel::maximum(expected) ||
            m_model.getReservationCount(expected->description) != expected->reservationCount)
            return QString("row %1 differs").arg(row);
    }
    if (tableText(m_model) != tableText(m_naive))
        return tableText(m_model) + "instead of\n" + tableText(m_naive);
    const std::unique_ptr<QAbstractItemModel> ours(
        const_cast<SelectableResourceModel&>(m_model).getHierarchicalModel(nullptr));
    const std::unique_ptr<QAbstractItemModel> naive(m_naive.hierarchicalModel());
    return treeText(*ours) == treeText(*naive) ? QString()
                                               : treeText(*ours) + "instead of\n" + treeText(*naive);
}

} // namespace

class TstSelectableResourceModelRandom : public QObject
{
    Q_OBJECT
private slots:
    void everyChangeGivesWhatCountingAfreshGives();
};

void TstSelectableResourceModelRandom::everyChangeGivesWhatCountingAfreshGives()
{
    const JedTest::TraceMask silent(0); // the forests are full of parents that are not available
    QRandomGenerator random(20240611);
    for (int forest = 0; forest < FORESTS; ++forest) {
        Pair pair(randomForest(&random));
        for (int operation = 0; operation < OPERATIONS; ++operation) {
            const QString difference = pair.step(&random);
            QVERIFY2(difference.isEmpty(),
                     qPrintable(
                         QString("forest %1, operation %2: %3").arg(forest).arg(operation).arg(difference)));
        }
    }
}

QTEST_GUILESS_MAIN(TstSelectableResourceModelRandom)
#include "tst_selectableresourcemodel_random.moc"
