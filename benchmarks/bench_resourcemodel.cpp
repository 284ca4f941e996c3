#include "filterintegerrangeproxymodel.h"
#include "naiveresourcemodel.h"
#include "selectableresourcemodel.h"
#include "widgetbenchmarks.h"

#include <support/resourcesamples.h>

#include <benchmark/benchmark.h>

#include <QStandardItemModel>

#include <algorithm>
#include <climits>
#include <memory>
#include <random>
#include <vector>

namespace {

using JedTest::DescriptionPtr;
using JEDVEPLUGIN::FilterIntegerRangeProxyModel;
using JEDVEPLUGIN::SelectableResourceModel;

const int CHILDREN = 4; // of each resource, all of them in one tree

/// Descriptions of a tree, made once: they never change.
const QList<DescriptionPtr>& tree(int rows)
{
    static QMap<int, QList<DescriptionPtr>> s_trees;
    QList<DescriptionPtr>& descriptions = s_trees[rows];
    const auto name = [](int number) { return QString("r%1").arg(number, 5, 10, QChar('0')); };
    while (descriptions.size() < rows) {
        const int number = descriptions.size();
        const QString parent = number > 0 ? name((number - 1) / CHILDREN) : QString();
        descriptions << JedTest::resource("T", name(number), parent, 100000);
    }
    return descriptions;
}

/// The same tree as a model of items keeps it, the count in column 1.
class ItemTree : public QStandardItemModel
{
public:
    explicit ItemTree(const QList<DescriptionPtr>& descriptions)
    {
        QVector<QStandardItem*> firstItems;
        for (int row = 0; row < descriptions.size(); ++row) {
            QList<QStandardItem*> items{new QStandardItem(descriptions.at(row)->getBaseResource())};
            for (int number : {0, 100000}) {
                items << new QStandardItem;
                items.last()->setData(number, Qt::EditRole);
            }
            if (row == 0)
                appendRow(items);
            else
                firstItems.at((row - 1) / CHILDREN)->appendRow(items);
            firstItems << items.first();
            m_counts << items.at(1);
        }
    }
    QModelIndex countIndex(int row) const { return indexFromItem(m_counts.at(row)); }

private:
    QVector<QStandardItem*> m_counts; // Owned by the model.
};

/// What a model without arithmetic does: texts and numbers as they were stored, two signals per change.
class StoredModel : public QStandardItemModel
{
public:
    explicit StoredModel(const QList<DescriptionPtr>& descriptions)
        : QStandardItemModel(descriptions.size(), 3)
    {
        for (int row = 0; row < descriptions.size(); ++row) {
            setItem(row, 0, new QStandardItem(descriptions.at(row)->getBaseResource()));
            for (int column = 1; column < 3; ++column) {
                setItem(row, column, new QStandardItem);
                item(row, column)->setData(column == 1 ? 0 : 100000, Qt::EditRole);
            }
        }
    }

    /// Stores a count, and announces what the table of resources announces.
    void click(int row, int count)
    {
        {
            const QSignalBlocker quiet(this);
            setData(index(row, 1), count);
        }
        emit dataChanged(index(0, 0), index(rowCount() - 1, 2));
        emit headerDataChanged(Qt::Vertical, 0, row);
    }
};

void click(QAbstractItemModel* model, int row, int count)
{
    model->setData(model->index(row, 1), count);
}

void click(StoredModel* model, int row, int count)
{
    model->click(row, count);
}

std::unique_ptr<QAbstractItemModel> hierarchicalCopy(SelectableResourceModel* model)
{
    return std::unique_ptr<QAbstractItemModel>(model->getHierarchicalModel(nullptr));
}

std::unique_ptr<QAbstractItemModel> hierarchicalCopy(NaiveResourceModel* model)
{
    return std::unique_ptr<QAbstractItemModel>(model->hierarchicalModel());
}

void selectAllMax(SelectableResourceModel* model)
{
    model->slotSelectAllMax();
    model->slotDeselectAll();
}

void selectAllMax(NaiveResourceModel* model)
{
    model->selectAllMax();
    model->deselectAll();
}

template <typename Model>
std::unique_ptr<Model> made(int rows)
{
    if constexpr (std::is_same_v<Model, SelectableResourceModel>)
        return std::make_unique<Model>(tree(rows), nullptr);
    else
        return std::make_unique<Model>(tree(rows));
}

qint64 readTable(const QAbstractItemModel& model)
{
    qint64 sum = 0;
    const int rows = model.rowCount();
    for (int row = 0; row < rows; ++row) {
        sum += model.data(model.index(row, 0)).toString().size();
        sum += model.data(model.index(row, 1)).toInt();
        sum += model.data(model.index(row, 2)).toInt();
    }
    return sum;
}

QModelIndex countIndex(const QAbstractItemModel& model, int row)
{
    return model.index(row, 1);
}

QModelIndex countIndex(const ItemTree& model, int row)
{
    return model.countIndex(row);
}

/// Another count for one row after the other, in random order; nobody listens.
template <typename Model>
void changeCount(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const std::unique_ptr<Model> model = made<Model>(rows);
    std::vector<QModelIndex> indexes;
    for (int row = 0; row < rows; ++row)
        indexes.push_back(countIndex(*model, row));
    std::shuffle(indexes.begin(), indexes.end(), std::mt19937(1));
    size_t next = 0;
    int count = 1;
    for (auto _ : state) {
        if (!model->setData(indexes[next], count)) {
            state.SkipWithError("a count was refused");
            break;
        }
        if (++next == indexes.size()) {
            next = 0;
            count = count % 10 + 1;
        }
    }
}

/// One more of a resource, by its description, and one less of it the next time.
template <typename Model>
void selectResource(benchmark::State& state)
{
    const std::unique_ptr<Model> model = made<Model>(static_cast<int>(state.range(0)));
    std::vector<DescriptionPtr> descriptions(tree(model->rowCount()).begin(), tree(model->rowCount()).end());
    std::shuffle(descriptions.begin(), descriptions.end(), std::mt19937(1));
    size_t next = 0;
    int n = 1;
    for (auto _ : state) {
        if (!model->selectResource(descriptions[next], n)) {
            state.SkipWithError("a resource was refused");
            break;
        }
        if (++next == descriptions.size()) {
            next = 0;
            n = -n;
        }
    }
}

/// One change, then every cell is read.
template <typename Model>
void readAll(benchmark::State& state)
{
    const std::unique_ptr<Model> model = made<Model>(static_cast<int>(state.range(0)));
    int count = 0;
    for (auto _ : state) {
        click(model.get(), 50, count = 1 - count);
        benchmark::DoNotOptimize(readTable(*model));
    }
}

/// One change with the filter attached that hides what has no maximum left.
template <typename Model>
void clickWithFilter(benchmark::State& state)
{
    const std::unique_ptr<Model> model = made<Model>(static_cast<int>(state.range(0)));
    FilterIntegerRangeProxyModel filter(nullptr);
    filter.setSourceModel(model.get());
    filter.setFilterKeyColumn(2);
    filter.setDynamicSortFilter(true);
    filter.setRange(1, INT_MAX);
    filter.enableRangeFilter();
    int count = 0;
    for (auto _ : state)
        click(model.get(), 50, count = 1 - count);
}

template <typename Model>
void selectAndDeselectAll(benchmark::State& state)
{
    const std::unique_ptr<Model> model = made<Model>(static_cast<int>(state.range(0)));
    for (auto _ : state)
        selectAllMax(model.get());
    // Two passes over all records.
    state.counters["per record"] =
        benchmark::Counter(2.0 * static_cast<double>(state.iterations() * state.range(0)),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <typename Model>
void copyHierarchically(benchmark::State& state)
{
    const std::unique_ptr<Model> model = made<Model>(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(hierarchicalCopy(model.get()));
}

/// The bare items of the copy: eight per row with their texts, made and deleted.
void makeItems(benchmark::State& state)
{
    const QString text("r00000");
    for (auto _ : state) {
        std::vector<std::unique_ptr<QStandardItem>> items;
        items.reserve(static_cast<size_t>(state.range(0)) * 8);
        for (int item = 0; item < state.range(0) * 8; ++item) {
            items.push_back(std::make_unique<QStandardItem>(text));
            items.back()->setEditable(false);
        }
        benchmark::DoNotOptimize(items.data());
    }
}

BENCHMARK_TEMPLATE(changeCount, SelectableResourceModel)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(changeCount, NaiveResourceModel)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(changeCount, ItemTree)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(changeCount, StoredModel)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(selectResource, SelectableResourceModel)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(selectResource, NaiveResourceModel)->Arg(100)->Arg(5000);
BENCHMARK_TEMPLATE(readAll, SelectableResourceModel)->Arg(5000);
BENCHMARK_TEMPLATE(readAll, StoredModel)->Arg(5000);
BENCHMARK_TEMPLATE(clickWithFilter, SelectableResourceModel)->Arg(5000);
BENCHMARK_TEMPLATE(clickWithFilter, NaiveResourceModel)->Arg(5000);
BENCHMARK_TEMPLATE(clickWithFilter, StoredModel)->Arg(5000);
BENCHMARK_TEMPLATE(selectAndDeselectAll, SelectableResourceModel)->Arg(500)->Arg(5000);
BENCHMARK_TEMPLATE(selectAndDeselectAll, NaiveResourceModel)->Arg(5000);
BENCHMARK_TEMPLATE(copyHierarchically, SelectableResourceModel)->Arg(500)->Arg(5000);
BENCHMARK_TEMPLATE(copyHierarchically, NaiveResourceModel)->Arg(5000);
BENCHMARK(makeItems)->Arg(500)->Arg(5000);

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
