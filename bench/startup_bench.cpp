// Time from creating the editor's windows to all of them shown, beside a
// bare window shown the same way, on Qt's offscreen platform.
//
// Two measures of each:
//  - Cold: one start in a fresh process, as a user starts the editor. The
//    first window of a process pays for fonts, style and platform set-up,
//    whatever that window is. Each iteration runs this program again with
//    --qor-cold=bare or --qor-cold=editor and takes the time it reports.
//  - Warm: the same steps repeated in one process, where Qt is set up
//    already: what the windows themselves cost.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "editor/app/editor_windows.h"
#include "editor/app/main_window.h"
#include "editor/platform/qt_screen.h"

namespace {

void settle()
{
    QCoreApplication::processEvents();
}

// The bare window: one empty window, shown.
std::unique_ptr<QWidget> showBareWindow()
{
    auto window = std::make_unique<QWidget>();
    window->resize(640, 48);
    window->show();
    settle();
    return window;
}

// The editor's start: splash, the six windows in load order, shown.
std::unique_ptr<qor::EditorWindows> showEditorWindows()
{
    qor::QtScreen screen;
    auto windows = std::make_unique<qor::EditorWindows>(screen.metrics());
    windows->showSplash();
    windows->load();
    windows->showAll();
    settle();
    return windows;
}

// Child mode: one cold start, its nanoseconds on standard output.
int runColdStart(const char* what, int argc, char** argv)
{
    QApplication app(argc, argv);
    QElapsedTimer timer;
    timer.start();
    bool shown = false;
    if (std::strcmp(what, "bare") == 0) {
        auto w = showBareWindow();
        shown = w->isVisible();
    } else {
        auto w = showEditorWindows();
        shown = w->main().isVisible();
        w->closeAll();
    }
    std::printf("%lld\n", static_cast<long long>(timer.nsecsElapsed()));
    return shown ? 0 : 1;
}

void coldStart(benchmark::State& state, const char* what)
{
    const QString self = QCoreApplication::applicationFilePath();
    for (auto _ : state) {
        QProcess child;
        child.start(self, {QStringLiteral("--qor-cold=") + QString::fromLatin1(what)});
        if (!child.waitForFinished(30000) || child.exitCode() != 0) {
            state.SkipWithError("the cold start did not finish");
            return;
        }
        const double ns = QString::fromLatin1(child.readAllStandardOutput()).trimmed().toDouble();
        state.SetIterationTime(ns / 1e9);
    }
}

void BM_ColdBareWindowShown(benchmark::State& state) { coldStart(state, "bare"); }
void BM_ColdEditorWindowsShown(benchmark::State& state) { coldStart(state, "editor"); }
BENCHMARK(BM_ColdBareWindowShown)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColdEditorWindowsShown)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

void BM_WarmBareWindowShown(benchmark::State& state)
{
    for (auto _ : state) {
        auto window = showBareWindow();
        benchmark::DoNotOptimize(window->isVisible());
        state.PauseTiming();
        window.reset();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_WarmBareWindowShown)->Unit(benchmark::kMillisecond);

void BM_WarmEditorWindowsShown(benchmark::State& state)
{
    for (auto _ : state) {
        auto windows = showEditorWindows();
        benchmark::DoNotOptimize(windows->main().isVisible());
        state.PauseTiming();
        windows->closeAll();
        windows.reset();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_WarmEditorWindowsShown)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    // Benchmarks run headless unless told otherwise; the cold starts inherit it.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const char* coldFlag = "--qor-cold=";
    if (argc == 2 && std::strncmp(argv[1], coldFlag, std::strlen(coldFlag)) == 0)
        return runColdStart(argv[1] + std::strlen(coldFlag), argc, argv);

    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
