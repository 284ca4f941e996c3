#include "frequencylistview.h"
#include "naivelistview.h"
#include "widgetbenchmarks.h"

#include <benchmark/benchmark.h>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QTableView>

#include <numeric>
#include <vector>

namespace {

const int ROWS = 100000;
const int COLUMNS = 4;
const int CURRENT_ROW = ROWS / 4 * 3 - 1; // the last row of a single run in the middle, and one of 100 runs

/// Frequencies in a plain vector: what is measured is the view, not its model.
class FrequencyModel : public QAbstractTableModel
{
public:
    FrequencyModel()
        : m_frequencies(ROWS)
    {
        std::iota(m_frequencies.begin(), m_frequencies.end(), 100000000);
    }
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_frequencies.size());
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : COLUMNS;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(m_frequencies[index.row()] + index.column()) : QVariant();
    }
    bool removeRows(int row, int count, const QModelIndex& parent) override
    {
        beginRemoveRows(parent, row, row + count - 1);
        m_frequencies.erase(m_frequencies.begin() + row, m_frequencies.begin() + row + count);
        endRemoveRows();
        return true;
    }

private:
    std::vector<int> m_frequencies; // Hz
};

/// The table view of the tool kit, with rows removed by selection ranges.
class PeerTable : public QTableView
{
public:
    PeerTable(QWidget* parent, bool, bool)
        : QTableView(parent)
    {
        setSelectionBehavior(QAbstractItemView::SelectRows);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Delete) {
            QItemSelection selection = selectionModel()->selection();
            std::sort(selection.begin(), selection.end(),
                      [](const auto& left, const auto& right) { return right.top() < left.top(); });
            for (const QItemSelectionRange& range : qAsConst(selection))
                model()->removeRows(range.top(), range.height(), range.parent());
        }
        QTableView::keyPressEvent(event);
    }
};

/// Half of the rows in equal runs, spread over the whole list.
QItemSelection halfOfTheRows(const QAbstractItemModel& model, int runs)
{
    QItemSelection selection;
    const int period = ROWS / runs;
    for (int run = 0; run < runs; ++run) {
        const int first = run * period + period / 4;
        selection.append(
            QItemSelectionRange(model.index(first, 0), model.index(first + period / 2 - 1, COLUMNS - 1)));
    }
    return selection;
}

template <typename View>
void deleteKey(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            FrequencyModel model;
            View view(nullptr, false, true);
            view.setSelectionMode(QAbstractItemView::ExtendedSelection);
            view.setModel(&model);
            view.resize(600, 400);
            view.show();
            view.setCurrentIndex(model.index(CURRENT_ROW, 0));
            view.selectionModel()->select(halfOfTheRows(model, static_cast<int>(state.range(0))),
                                          QItemSelectionModel::ClearAndSelect);
            QApplication::processEvents();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
            state.ResumeTiming();

            QApplication::sendEvent(&view, &press);
            QApplication::processEvents();

            state.PauseTiming();
            if (model.rowCount() != ROWS / 2)
                state.SkipWithError("wrong number of rows removed");
        }
        state.ResumeTiming();
    }
}

/// With an argument of 0 the view comes up for the first time, with 1 it has been shown and hidden before.
template <typename View>
void showAndJump(benchmark::State& state)
{
    FrequencyModel model;
    for (auto _ : state) {
        state.PauseTiming();
        {
            View view(nullptr, false, true);
            view.setModel(&model);
            view.resize(600, 400);
            if (state.range(0) > 0) {
                view.show();
                QApplication::processEvents();
                view.hide();
            }
            state.ResumeTiming();

            view.show();
            QApplication::processEvents();
            view.setCurrentIndex(model.index(ROWS - 1, 0));
            QApplication::processEvents();
            view.setCurrentIndex(model.index(0, 0));
            QApplication::processEvents();

            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

using JEDVEPLUGIN::FrequencyListView;

BENCHMARK_TEMPLATE(showAndJump, FrequencyListView)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(showAndJump, PeerTable)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(showAndJump, NaiveListView)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(deleteKey, FrequencyListView)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(deleteKey, PeerTable)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(deleteKey, NaiveListView)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
