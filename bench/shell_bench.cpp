// The core's share of starting the editor: the start-up routine with views
// and ports that do nothing, from the command line to the windows "shown",
// on a first run (the settings files are written) and on a later one (the
// options, plug-ins and language folders are read).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "core/app/application.h"
#include "core/app/options_file.h"
#include "core/project/no_project_hooks.h"
#include "core/ui/appearances_file.h"

namespace {

using namespace qor;

struct NullDialogs : Dialogs {
    Answer message(const Message&) override { return Answer::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> pickFolder(const std::string&) override { return std::nullopt; }
    std::optional<Colour> pickColour(Colour) override { return std::nullopt; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { return std::nullopt; }
};
struct MemorySettings : SettingsStore {
    std::map<std::string, std::string> values;
    std::string get(const std::string& a, const std::string& s, const std::string& k, const std::string& d) override
    {
        auto it = values.find(a + "/" + s + "/" + k);
        return it == values.end() ? d : it->second;
    }
    bool save(const std::string& a, const std::string& s, const std::string& k, const std::string& v) override
    {
        values[a + "/" + s + "/" + k] = v;
        return true;
    }
};
struct NullDesktop : Desktop {
    bool open(const std::string&, WindowShow) override { return true; }
    std::optional<ProcessId> start(const std::string&, WindowShow) override { return 1; }
    bool isRunning(ProcessId) override { return false; }
    void terminate(ProcessId) override {}
    bool editText(const std::string&) override { return true; }
};
struct FixedScreen : Screen {
    ScreenMetrics metrics() override { return {1920 * 15, 1080 * 15, 15, 15}; }
};
struct NullRegistry : FileTypeRegistry {
    void registerProjectFiles(const std::string&, const std::string&) override {}
};
struct NullShellView : ShellView {
    void showSplash() override {}
    void hideSplash() override {}
    void loadWindow(WindowId) override {}
    TwipsSize windowSize(WindowId) override { return {3000, 3000}; }
    void arrangeWindows(const WindowArrangement&) override {}
    void showWindow(WindowId) override {}
    void hideAllWindows() override {}
    void unloadAllWindows() override {}
    void setApplicationTitle(const std::string&) override {}
    void setMainCaption(const std::string&) override {}
    std::vector<double> menuTitleTextWidths() override { return {600, 700, 500, 550, 650, 150}; }
    void placeMenuTitles(const std::vector<TitleBox>&) override {}
    void highlightMenuTitle(int, const TitleColours&) override {}
    void popUpMenu(int, double, double) override {}
    void setOptionMark(CommandId, bool) override {}
    void setPrecisePointer(bool) override {}
    void setMousePositionWindowVisible(bool) override {}
    void setSelectionHandlesVisible(bool) override {}
    void showRecentFiles(const std::vector<RecentFileEntry>&) override {}
    void showPlugins(const std::vector<PluginCommand>&, bool) override {}
    void showLanguages(const std::vector<std::string>&, int) override {}
    void openAppearancePanel() override {}
    void openCreationWizard() override {}
    void openPrintPreview(int) override {}
};
struct NullDocumentView : DocumentView {
    void showFileInfo(const FileInfo&, const AuthorFields&) override {}
    void projectReplaced(const MenuProject&) override {}
};

void startOnce(benchmark::State& state, const std::filesystem::path& folder, bool firstRun)
{
    NullDialogs dialogs;
    MemorySettings settings;
    NullDesktop desktop;
    FixedScreen screen;
    NullRegistry registry;
    MissingQmbConverter converter;
    NullShellView view;
    NoProjectHooks views;
    NullDocumentView documentView;
    for (auto _ : state) {
        if (firstRun) {
            state.PauseTiming();
            std::filesystem::remove(folder / kOptionsFileName);
            std::filesystem::remove(folder / kAppearancesFileName);
            state.ResumeTiming();
        }
        Application app(Platform{dialogs, settings, desktop, screen, registry, converter, view, views, documentView});
        benchmark::DoNotOptimize(app.shell().start({(folder / "qor").string(), "", {"12:00:00", "23/11/2026"}}));
    }
}

std::filesystem::path programFolder()
{
    auto folder = std::filesystem::temp_directory_path() / "qor-shell-bench";
    std::filesystem::create_directories(folder / "langues" / "English");
    std::ofstream(folder / "plugins.ini", std::ios::binary)
        << "[DEBUT]\r\nCalculatrice\r\ns1:gnome-calculator\r\nSite\r\nse:http://qor.example.org\r\n";
    return folder;
}

void BM_ShellStartFirstRun(benchmark::State& state) { startOnce(state, programFolder(), true); }
void BM_ShellStartLaterRun(benchmark::State& state) { startOnce(state, programFolder(), false); }

BENCHMARK(BM_ShellStartFirstRun)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ShellStartLaterRun)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
