// Load and save speed of a large project, beside a plain line split of the
// same bytes. Figures are bytes of the project file per second.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "text/cp1252.h"
#include "text/line_file.h"

#include "silent_dialogs.h"

namespace qor {
namespace {

// Answers Yes and counts: a well-formed project must not ask anything.
class CountingDialogs : public SilentDialogs {
public:
    int asked = 0;
    Answer message(const Message&) override { ++asked; return Answer::Yes; }
};

// 100 buttons with 2 KB scripts, 5,000 text boxes, a 1,000-point shape.
MenuProject largeProject()
{
    MenuProject p;
    p.authorName = "Benchmark";
    p.notes = "Une ligne\r\nUne autre ligne";
    p.backgroundImage = "/srv/menus/images/fond.jpg";
    p.globalScript = "Sub Ouvrir(page)\r\n  CreateObject(\"WScript.Shell\").Run page\r\nEnd Sub";
    std::string script;
    while (script.size() < 2048)
        script += "MsgBox \"Bouton cliqué : \" & Compteur\r\nCompteur = Compteur + 1\r\n";
    script.resize(2048);
    for (int i = 1; i <= 100; ++i) {
        int n = *p.addButton();
        auto& b = p.button(n);
        b.left = float(100 * i);
        b.top = float(37.5 * i);
        b.normalImage = "/srv/menus/images/bouton" + std::to_string(n) + "_normal.gif";
        b.hoverImage = "/srv/menus/images/bouton" + std::to_string(n) + "_survol.gif";
        b.pressedImage = "/srv/menus/images/bouton" + std::to_string(n) + "_clique.gif";
        b.kind = "code";
        b.action = script;
        b.hoverScript = "Survol " + std::to_string(n);
    }
    for (int i = 1; i <= 5000; ++i) {
        int n = *p.addText();
        auto& t = p.text(n);
        t.content = "Texte numéro " + std::to_string(n) + "\r\nDeuxième ligne du texte";
        t.left = float(i % 640) * 15.0f;
        t.top = float(i % 480) * 15.0f + 0.25f;
        t.fontSize = 8.25f;
        t.fontBold = i % 2 == 0;
    }
    for (int i = 0; i < 1000; ++i)
        p.shapePoints.push_back({i * 12, (i * 7919) % 9000 - 200});
    return p;
}

RelativePathRule noFilesBeside()
{
    return RelativePathRule("/nonexistent/bench.qor", "", [](const std::string&) { return false; });
}

const std::string& largeProjectBytes()
{
    static const std::string bytes = projectFileBytes(largeProject(), noFilesBeside());
    return bytes;
}

void BM_SaveToMemory(benchmark::State& state)
{
    MenuProject p = largeProject();
    RelativePathRule rule = noFilesBeside();
    std::size_t size = 0;
    for (auto _ : state) {
        std::string bytes = projectFileBytes(p, rule);
        size = bytes.size();
        benchmark::DoNotOptimize(bytes.data());
    }
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(size));
    state.counters["file_bytes"] = double(size);
}
BENCHMARK(BM_SaveToMemory)->Unit(benchmark::kMillisecond);

void BM_SaveToFile(benchmark::State& state)
{
    auto folder = std::filesystem::temp_directory_path() / "qor-project-bench";
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "bench.qor").string();
    MenuProject p = largeProject();
    p.filePath = path;   // same path: no read-back after the save
    CountingDialogs dialogs;
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    for (auto _ : state)
        saveProject(p, path, services);
    if (dialogs.asked != 0 || p.filePath != path)
        state.SkipWithError("the save failed");
    state.SetBytesProcessed(std::int64_t(state.iterations()) *
                            std::int64_t(std::filesystem::file_size(path)));
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_SaveToFile)->Unit(benchmark::kMillisecond);

void BM_LoadFromMemory(benchmark::State& state)
{
    const std::string& bytes = largeProjectBytes();
    MenuProject p;
    CountingDialogs dialogs;
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    for (auto _ : state) {
        p.reset();
        loadProjectText(p, decodeCp1252(bytes), "/nonexistent/bench.qor", services);
        benchmark::DoNotOptimize(p.textCount());
    }
    if (dialogs.asked != 0 || p.textCount() != 5000 || p.savableButtons().size() != 100 ||
        p.shapePoints.size() != 1000)
        state.SkipWithError("the project did not load whole");
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(bytes.size()));
}
BENCHMARK(BM_LoadFromMemory)->Unit(benchmark::kMillisecond);

void BM_LoadFromFile(benchmark::State& state)
{
    const std::string& bytes = largeProjectBytes();
    auto folder = std::filesystem::temp_directory_path() / "qor-project-bench-load";
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "bench.qor").string();
    if (!writeFileAtomically(path, bytes))
        state.SkipWithError("cannot write the project");
    MenuProject p;
    CountingDialogs dialogs;
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    for (auto _ : state) {
        loadProject(p, path, true, services);
        benchmark::DoNotOptimize(p.textCount());
    }
    if (dialogs.asked != 0 || p.textCount() != 5000)
        state.SkipWithError("the project did not load whole");
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(bytes.size()));
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_LoadFromFile)->Unit(benchmark::kMillisecond);

// The yardstick: the same bytes decoded and split into lines, as any line
// file of the editor is read.
void BM_PlainLineSplit(benchmark::State& state)
{
    const std::string& bytes = largeProjectBytes();
    for (auto _ : state) {
        auto lines = splitLines(decodeCp1252(bytes));
        benchmark::DoNotOptimize(lines.data());
    }
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(bytes.size()));
}
BENCHMARK(BM_PlainLineSplit)->Unit(benchmark::kMillisecond);

// A tighter yardstick: decoded, then walked line by line without a copy.
void BM_PlainLineWalk(benchmark::State& state)
{
    const std::string& bytes = largeProjectBytes();
    for (auto _ : state) {
        std::size_t count = 0;
        forEachLine(decodeCp1252(bytes), [&](std::string_view line) { count += line.size() > 0; });
        benchmark::DoNotOptimize(count);
    }
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(bytes.size()));
}
BENCHMARK(BM_PlainLineWalk)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor

BENCHMARK_MAIN();
