#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLoggingCategory>

/// The main function of a program whose benchmarks use widgets or models.
inline int runWidgetBenchmarks(int argc, char** argv)
{
    QApplication application(argc, argv);
    // Without a screen Qt warns at each window of what it cannot do.
    QLoggingCategory::setFilterRules("default.warning=false");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
