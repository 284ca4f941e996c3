#include "resourceselectiondialog.h"
#include "widgetbenchmarks.h"

#include <support/resourcesamples.h>

#include <benchmark/benchmark.h>

#include <QComboBox>

#include <map>

namespace {

using JedTest::DescriptionPtr;
using JEDVEPLUGIN::ResourceSelectionDialog;

const char* const TYPES[] = {"HT720", "TRV9KScanSettings", "DirectionFinder", "MeasurementReceiver"};

/// Descriptions of all types, made once: they never change.
const QList<DescriptionPtr>& descriptions(int count)
{
    static std::map<int, QList<DescriptionPtr>> s_descriptions;
    QList<DescriptionPtr>& list = s_descriptions[count];
    while (list.size() < count)
        list << JedTest::resource(TYPES[list.size() % 4], QString("R%1").arg(list.size()), QString(), 1);
    return list;
}

/// From nothing to a dialog that is laid out, and away with it.
void openDialog(benchmark::State& state)
{
    const QList<DescriptionPtr>& resources = descriptions(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ResourceSelectionDialog dialog(resources, true, true, true, {}, nullptr);
        dialog.show();
        QCoreApplication::processEvents();
    }
}

/// The user chooses one type after the other.
void changeType(benchmark::State& state)
{
    ResourceSelectionDialog dialog(descriptions(static_cast<int>(state.range(0))), true, true, true, {},
                                   nullptr);
    dialog.show();
    auto* types = dialog.findChild<QComboBox*>("ResourceSelection_TunerType");
    for (auto _ : state) {
        types->setCurrentIndex((types->currentIndex() + 1) % types->count());
        QCoreApplication::processEvents();
    }
}

BENCHMARK(openDialog)->Arg(50)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(changeType)->Arg(50)->Arg(500)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
