#include "componentdescriptor.h"
#include "naivevaluetree.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

// Building the value tree of a component and deleting it again. The peer makes and deletes the same values, names,
// ranges and all, without any tree.

using JEDVEPLUGIN::ComponentDescriptor;

namespace {

const int VALUES = 10000;
const int VALUES_PER_NODE = 100;
const int NODES = 3000;

JobXml::ValueItem sampleItem(int number)
{
    JobXml::ValueItem item;
    const QString id = QStringLiteral("Field%1").arg(number);
    switch (number % 4) {
    case 0:
        item.GetValueNumericInt64().Setid(id);
        item.GetValueNumericInt64().Setmin(20000000);
        item.GetValueNumericInt64().Setmax(3000000000);
        item.GetValueNumericInt64().Setstep(12500);
        item.GetValueNumericInt64().Setvalue(156800000);
        break;
    case 1:
        item.GetValueNumericFloat().Setid(id);
        item.GetValueNumericFloat().Setmin(-30.0F);
        item.GetValueNumericFloat().Setmax(130.0F);
        item.GetValueNumericFloat().Setstep(0.5F);
        item.GetValueNumericFloat().Setvalue(20.0F);
        break;
    case 2:
        item.GetValueBoolean().Setid(id);
        item.GetValueBoolean().Setvalue(true);
        break;
    default:
        item.GetValueString().Setid(id);
        item.GetValueString().Setvalue(QStringLiteral("Channel %1").arg(number));
    }
    return item;
}

/// A descriptor of \p nodes nodes with different ids and \p values values each.
ComponentDescriptor sampleDescriptor(int nodes, int values)
{
    ComponentDescriptor descriptor{JobXml::Component()};
    for (int i = 0; i < nodes; ++i) {
        JobXml::Node node;
        node.Setid(QStringLiteral("ParameterSet%1").arg(i));
        for (int j = 0; j < values; ++j)
            node.AppendValueItem(sampleItem(i * values + j));
        descriptor.appendNode(node);
    }
    return descriptor;
}

const ComponentDescriptor& manyValues()
{
    static const ComponentDescriptor descriptor = sampleDescriptor(VALUES / VALUES_PER_NODE, VALUES_PER_NODE);
    return descriptor;
}

void treeOfValues(benchmark::State& state)
{
    const ComponentDescriptor& descriptor = manyValues();
    for (auto _ : state) {
        Node root;
        descriptor.createVTConfig(&root);
        benchmark::DoNotOptimize(root.GetChildNodeCount());
    }
}

void treeOfValuesNaively(benchmark::State& state)
{
    const ComponentDescriptor& descriptor = manyValues();
    for (auto _ : state) {
        Node root;
        NaiveValueTree::create(root, descriptor.getVtNodes());
        benchmark::DoNotOptimize(root.GetChildNodeCount());
    }
}

void valuesAlone(benchmark::State& state)
{
    const ComponentDescriptor& descriptor = manyValues();
    std::vector<std::unique_ptr<ValueBase>> values;
    values.reserve(VALUES);
    for (auto _ : state) {
        for (const JobXml::Node& node : descriptor.getVtNodes()) {
            for (const JobXml::ValueItem& item : node.GetValueItem())
                values.emplace_back(NaiveValueTree::valueOf(item));
        }
        benchmark::DoNotOptimize(values.data());
        values.clear();
    }
}

/// As many trees of the argument's number of nodes as make 3000 nodes in all.
void treeOfNodes(benchmark::State& state)
{
    const int nodes = int(state.range(0));
    const ComponentDescriptor descriptor = sampleDescriptor(nodes, 0);
    for (auto _ : state) {
        for (int built = 0; built < NODES; built += nodes) {
            Node root;
            descriptor.createVTConfig(&root);
            benchmark::DoNotOptimize(root.GetChildNodeCount());
        }
    }
}

} // namespace

BENCHMARK(treeOfValues);
BENCHMARK(treeOfValuesNaively);
BENCHMARK(valuesAlone);
BENCHMARK(treeOfNodes)->Arg(300)->Arg(3000);

BENCHMARK_MAIN();
