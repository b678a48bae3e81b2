#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdlib>

namespace qor::bench {

// The benchmarks of this program, run with a Qt application alive. They run
// on Qt's offscreen platform, so a machine without a screen runs them too;
// QT_QPA_PLATFORM set by the caller still chooses another.
inline int runQtBenchmarks(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

}  // namespace qor::bench
