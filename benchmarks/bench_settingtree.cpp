#include "abstractsubsetting.h"
#include "naivesettingtree.h"

#include <support/samplenode.h>

#include <QStandardItem>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

// Appending children whose types take turns. Each round appends 10 000 children in all, to as many parents as
// the argument (children of one parent) makes necessary, so that the rounds' times compare as times per child
// do.

namespace {

const int CHILDREN = 10000;
const int TYPES = 20;

/// The nodes that are appended, made once. They belong to nobody else. As with nodes that answer with a
/// literal, those of one type share the text.
const std::vector<std::unique_ptr<SampleNode>>& sampleChildren()
{
    static const std::vector<std::unique_ptr<SampleNode>> children = [] {
        QStringList types;
        for (int i = 0; i < TYPES; ++i)
            types << QString("SettingType%1").arg(i);
        std::vector<std::unique_ptr<SampleNode>> made;
        for (int i = 0; i < CHILDREN; ++i)
            made.push_back(std::make_unique<SampleNode>(types.at(i % TYPES)));
        return made;
    }();
    return children;
}

void appendToNode(benchmark::State& state)
{
    const int perParent = int(state.range(0));
    const auto& children = sampleChildren();
    for (auto _ : state) {
        for (int first = 0; first < CHILDREN; first += perParent) {
            SampleNode parent("Parent");
            for (int i = first; i < first + perParent; ++i)
                parent.appendSubsetting(children[i].get());
            benchmark::DoNotOptimize(parent.childCount());
            parent.removeAllSubSettings();
        }
    }
}

void appendNaively(benchmark::State& state)
{
    const int perParent = int(state.range(0));
    const auto& children = sampleChildren();
    for (auto _ : state) {
        for (int first = 0; first < CHILDREN; first += perParent) {
            NaiveChildren parent;
            for (int i = first; i < first + perParent; ++i)
                parent.append(children[i].get());
            benchmark::DoNotOptimize(parent.m_children.size());
        }
    }
}

/// The peer: Qt's own tree of items. It is told the place, which it need not look for.
void insertStandardItems(benchmark::State& state)
{
    const int perParent = int(state.range(0));
    for (auto _ : state) {
        for (int first = 0; first < CHILDREN; first += perParent) {
            state.PauseTiming();
            auto parent = std::make_unique<QStandardItem>();
            std::vector<std::unique_ptr<QStandardItem>> items(perParent);
            for (auto& item : items)
                item = std::make_unique<QStandardItem>();
            state.ResumeTiming();
            for (int i = 0; i < perParent; ++i) {
                const int groupEnd = (i % TYPES + 1) * (i / TYPES) + i % TYPES;
                parent->insertRow(groupEnd, items[i].release());
            }
            state.PauseTiming();
            parent.reset();
            state.ResumeTiming();
        }
    }
}

} // namespace

BENCHMARK(appendToNode)->Arg(100)->Arg(CHILDREN);
BENCHMARK(appendNaively)->Arg(100)->Arg(CHILDREN);
BENCHMARK(insertStandardItems)->Arg(100)->Arg(CHILDREN);

BENCHMARK_MAIN();
