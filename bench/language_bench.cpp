// The interface language and appearance targets, on Qt's offscreen platform:
// loading a window with its English translation script (target: within 2 ms
// of loading it in French, the wizard and the properties panel above all),
// and colouring the toolbox, the main window, the properties
// panel and the mouse-position window with an appearance (target: under
// 10 ms for the four).
#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

#include "core/app/app_state.h"
#include "core/ui/appearance_rules.h"
#include "editor/app/main_window.h"
#include "editor/build/test_run_watcher.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/twips.h"
#include "editor/project/file_info_window.h"
#include "editor/scripting/script_editor_window.h"
#include "editor/ui/about_window.h"
#include "editor/ui/live_window_hooks.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/widget_control_node.h"
#include "editor/wizard/creation_wizard_window.h"
#include "qt_benchmarks.h"
#include "silent_dialogs.h"

namespace qor {
namespace {

const ScreenMetrics kScreen = screenMetricsOf(QSize(1024, 768), 96, 96);

using Maker = std::function<std::unique_ptr<QWidget>(WindowHooks&)>;

const std::vector<std::pair<const char*, Maker>> kWindows = {
    {"Form1", [](WindowHooks& h) { return std::make_unique<ToolboxWindow>(kScreen, h); }},
    {"Form2", [](WindowHooks& h) { return std::make_unique<MainWindow>(kScreen, h); }},
    {"Form3", [](WindowHooks& h) { return std::make_unique<WorksheetWindow>(kScreen, h); }},
    {"Form4", [](WindowHooks& h) { return std::make_unique<PropertiesPanel>(kScreen, h); }},
    {"Form5", [](WindowHooks& h) { return std::make_unique<ScriptEditorWindow>(kScreen, h); }},
    {"Form7", [](WindowHooks& h) { return std::make_unique<AboutWindow>(kScreen, h); }},
    {"Form10", [](WindowHooks& h) { return std::make_unique<MousePositionWindow>(h); }},
    {"Form14", [](WindowHooks& h) { return std::make_unique<CreationWizardWindow>(h); }},
    {"Form15", [](WindowHooks& h) { return std::make_unique<TestRunWatcher>(h); }},
    {"Form19", [](WindowHooks& h) { return std::make_unique<FileInfoWindow>(h); }},
};

// One window loaded, French (range 1 = 0) or English (1): the difference is
// what the translation script costs.
void BM_LoadWindow(benchmark::State& state)
{
    const auto& [name, make] = kWindows[std::size_t(state.range(0))];
    bench::SilentDialogs dialogs;
    AppState app;
    app.programFolder = QOR_PROGRAM_RESOURCES;
    LiveWindowHooks hooks;
    hooks.attach(app, dialogs);
    for (auto _ : state) {
        app.interfaceLanguage = state.range(1) ? "English" : "";
        auto window = make(hooks);
        benchmark::DoNotOptimize(window.get());
    }
    if (app.interfaceLanguage.empty() && state.range(1))
        state.SkipWithError("the translation failed");
    state.SetLabel(std::string(name) + (state.range(1) ? " English" : " French"));
}
BENCHMARK(BM_LoadWindow)->ArgsProduct({benchmark::CreateDenseRange(0, 9, 1), {0, 1}})->Unit(benchmark::kMillisecond);

// The four main windows coloured, two appearances in turn.
void BM_AppearanceOnMainWindows(benchmark::State& state)
{
    ToolboxWindow toolbox(kScreen);
    MainWindow main(kScreen);
    PropertiesPanel properties(kScreen);
    MousePositionWindow mouse;
    QWidget* windows[] = {&toolbox, &main, &properties, &mouse};
    const Appearance appearances[] = {{16755370, 10461183, 0, ""}, {6392715, 2208689, 16777215, "Arial"}};
    int turn = 0;
    for (auto _ : state) {
        for (QWidget* w : windows) {
            auto node = windowNode(*w);
            applyAppearance(*node, appearances[turn]);
        }
        turn ^= 1;
    }
}
BENCHMARK(BM_AppearanceOnMainWindows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor

int main(int argc, char** argv)
{
    return qor::bench::runQtBenchmarks(argc, argv);
}
