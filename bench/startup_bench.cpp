// The editor's start-up routine, from its first step to the windows shown,
// beside a bare window shown the same way, on Qt's offscreen platform.
//
// The editor's start is the real one: the windows, the views and the core's
// Application built, then the shell's start-up routine with the Qt ports
// (settings store, screen, desktop), in a program folder of its own under
// the temporary folder so that the user's settings are never touched.
//
// Two measures of each:
//  - Cold: one start in a fresh process, as a user starts the editor. The
//    first window of a process pays for fonts, style and platform set-up,
//    whatever that window is. Each iteration runs this program again with
//    --qor-cold=<what> and takes the time it reports. "editor" is a later
//    run (the settings files exist), "first-run" the very first one (they
//    are written, the file type registered).
//  - Warm: the same steps repeated in one process, where Qt is set up
//    already: what the editor's own work costs.
//
// The target compares the editor with the bare window. A third window, the
// bare one with one line of text, is there only to show the share of the
// first text of a process (fonts found and loaded, glyphs drawn), which the
// bare window never pays and no window of the editor can avoid.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "core/app/options_file.h"
#include "core/ports/qmb_converter.h"
#include "core/ui/appearances_file.h"
#include "editor/app/editor_application.h"
#include "editor/app/main_window.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_desktop.h"
#include "editor/platform/qt_screen.h"
#include "editor/platform/qt_settings_store.h"
#include "text/line_file.h"

#include "qt_benchmarks.h"
#include "silent_dialogs.h"

namespace {

using namespace qor;
using qor::bench::SilentDialogs;

void settle()
{
    QCoreApplication::processEvents();
}

// A program folder, settings folder and data folder of the benchmark's own.
struct Folders {
    QTemporaryDir root;
    QString program() const { return root.filePath(QStringLiteral("program")); }
    QString settings() const { return root.filePath(QStringLiteral("settings")); }
    QString data() const { return root.filePath(QStringLiteral("data")); }
    Folders() { QDir().mkpath(program()); }

    // The files a first run leaves, written without Qt so that a cold start
    // stays cold.
    void writeSettingsFiles() const
    {
        const std::string folder = QDir(program()).path().toStdString() + "/";
        AppState state;
        (void)writeLineFile(folder + kOptionsFileName, optionsFileLines(state.options, state.appearance));
        (void)writeDefaultAppearancesFile(folder);
    }
};

// One editor start with the Qt ports.
struct EditorRun {
    SilentDialogs dialogs;
    QtSettingsStore settings;
    QtDesktop desktop;
    QtScreen screen;
    DesktopFileTypeRegistry fileTypes;
    MissingQmbConverter qmb;
    EditorApplication editor;

    explicit EditorRun(const Folders& f)
        : settings(f.settings()), fileTypes(f.data()),
          editor(EditorPorts{dialogs, settings, desktop, screen, fileTypes, qmb})
    {
        // The desktop's database tools are not part of the start's cost.
        fileTypes.startProgram = [](const QString&, const QStringList&) {};
    }

    bool start(const Folders& f)
    {
        StartupInputs in;
        in.executablePath = QDir(f.program()).filePath(QStringLiteral("qor")).toStdString();
        in.facts = {"12:00:00", "23/11/2026"};
        const bool running = editor.start(in) == StartOutcome::Running;
        settle();
        return running && dialogs.asked == 0 && editor.windows().main().isVisible();
    }

    void quit()
    {
        editor.shellView().endEventLoop = nullptr;
        editor.windows().closeAll();
    }
};

// The bare window: one empty window, shown.
std::unique_ptr<QWidget> showBareWindow()
{
    auto window = std::make_unique<QWidget>();
    window->resize(640, 48);
    window->show();
    settle();
    return window;
}

// The bare window with one line of text in it.
std::unique_ptr<QWidget> showTextWindow()
{
    auto window = std::make_unique<QLabel>(QStringLiteral("QOR v2.0 - créateur de menus"));
    window->resize(640, 48);
    window->show();
    settle();
    return window;
}

// Child mode: one cold start, its nanoseconds on standard output.
int runColdStart(const char* what, int argc, char** argv)
{
    QApplication app(argc, argv);
    Folders folders;
    const bool firstRun = std::strcmp(what, "first-run") == 0;
    const bool bare = std::strcmp(what, "bare") == 0 || std::strcmp(what, "text") == 0;
    if (!bare && !firstRun)
        folders.writeSettingsFiles();
    QElapsedTimer timer;
    bool shown = false;
    if (bare) {
        timer.start();
        auto w = std::strcmp(what, "bare") == 0 ? showBareWindow() : showTextWindow();
        shown = w->isVisible();
    } else {
        timer.start();
        EditorRun run(folders);
        shown = run.start(folders);
        const qint64 ns = timer.nsecsElapsed();
        run.quit();
        std::printf("%lld\n", static_cast<long long>(ns));
        return shown ? 0 : 1;
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
void BM_ColdTextWindowShown(benchmark::State& state) { coldStart(state, "text"); }
void BM_ColdEditorStart(benchmark::State& state) { coldStart(state, "editor"); }
void BM_ColdEditorFirstRun(benchmark::State& state) { coldStart(state, "first-run"); }
BENCHMARK(BM_ColdBareWindowShown)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColdTextWindowShown)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColdEditorStart)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColdEditorFirstRun)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

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

void BM_WarmEditorStart(benchmark::State& state)
{
    Folders folders;
    folders.writeSettingsFiles();
    for (auto _ : state) {
        auto run = std::make_unique<EditorRun>(folders);
        if (!run->start(folders)) {
            state.SkipWithError("the editor did not start");
            return;
        }
        state.PauseTiming();
        run->quit();
        run.reset();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_WarmEditorStart)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    // Benchmarks run headless unless told otherwise; the cold starts inherit it.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const char* coldFlag = "--qor-cold=";
    if (argc == 2 && std::strncmp(argv[1], coldFlag, std::strlen(coldFlag)) == 0)
        return runColdStart(argv[1] + std::strlen(coldFlag), argc, argv);

    return qor::bench::runQtBenchmarks(argc, argv);
}
