#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace qor::bench {

// The benchmarks of this program, run with a Qt application alive.
inline int runQtBenchmarks(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

}  // namespace qor::bench
