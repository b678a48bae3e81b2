// The build's two targets:
//  - the compiled menu data of a 100-button, 500-text project, built and
//    appended to a player through its intermediate file (target: under 5 ms);
//  - a compilation of 300 MB of images and sounds beside `cp` copying the
//    same files to the same disk, in one run (target: at most 1.2 times cp's
//    time, peak memory of the compiling process under 64 MB).
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/build/compiler.h"
#include "core/build/local_file_system.h"
#include "core/build/menu_data_file.h"
#include "model/menu_data_writer.h"
#include "model/menu_project.h"

namespace qor {
namespace {

namespace fs = std::filesystem;

class YesDialogs : public Dialogs {
public:
    Answer message(const Message&) override { return Answer::Yes; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> pickFolder(const std::string&) override { return {}; }
    std::optional<Colour> pickColour(Colour) override { return {}; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { return {}; }
};

MenuProject dataProject()
{
    MenuProject p;
    p.backgroundImage = "/srv/menus/fond.jpg";
    p.globalScript = "Sub Ouvrir(page)\r\n  CreateObject(\"WScript.Shell\").Run page\r\nEnd Sub";
    for (int i = 1; i <= 100; ++i) {
        MenuButton& b = p.button(*p.addButton());
        b.kind = "code";
        b.left = float(90 * i);
        b.top = float(45 * i);
        b.normalImage = "/srv/menus/b" + std::to_string(i) + ".gif";
        b.hoverImage = "/srv/menus/b" + std::to_string(i) + "_s.gif";
        b.pressedImage = "/srv/menus/b" + std::to_string(i) + "_c.gif";
        b.transparent = i % 2 == 0;
        b.action = "MsgBox \"Bouton " + std::to_string(i) + "\"\r\nFenetre.Caption = \"Menu\"";
    }
    for (int i = 1; i <= 500; ++i) {
        MenuText& t = p.text(*p.addText());
        t.content = "Texte numéro " + std::to_string(i) + "\r\nDeuxième ligne";
    }
    return p;
}

void BM_MenuDataAppended(benchmark::State& state)
{
    const MenuProject project = dataProject();
    LocalFileSystem files;
    const std::string player = (fs::temp_directory_path() / "qor_bench_player.exe").string();
    const std::string playerBytes(200 * 1024, 'P');
    for (auto _ : state) {
        state.PauseTiming();
        (void)files.writeFile(player, playerBytes);
        state.ResumeTiming();
        if (!writeMenuData(files, project, {"Banc d'essai", "QOR"}, player))
            state.SkipWithError("the data could not be written");
    }
    state.counters["appended_bytes"] = double(*files.fileSize(player) - playerBytes.size());
    fs::remove(player);
}
BENCHMARK(BM_MenuDataAppended)->Unit(benchmark::kMillisecond);

// The same data built in memory only, to tell the building from the file work.
void BM_MenuDataBuilt(benchmark::State& state)
{
    const MenuProject project = dataProject();
    for (auto _ : state)
        benchmark::DoNotOptimize(menuDataBytes(project, {"Banc d'essai", "QOR"}));
}
BENCHMARK(BM_MenuDataBuilt)->Unit(benchmark::kMillisecond);

// 25 buttons of three 4 MB images: 300 MB, in a fresh folder.
struct MediaFolder {
    fs::path root = fs::temp_directory_path() / ("qor_bench_media_" + std::to_string(::getpid()));
    MenuProject project;

    MediaFolder()
    {
        fs::create_directories(root / "proj");
        fs::create_directories(root / "prog");
        std::ofstream(root / "prog" / "compil.exe") << "MZ";
        std::ofstream(root / "prog" / "autorun.ico") << "ICO";
        std::ofstream(root / "prog" / "install.bat") << "@echo off";
        std::string block(1 << 20, '\0');
        for (std::size_t i = 0; i < block.size(); ++i)
            block[i] = char(i * 131 + i / 4096);
        for (int n = 1; n <= 25; ++n) {
            MenuButton& b = project.button(*project.addButton());
            b.kind = "code";
            for (std::string* image : {&b.normalImage, &b.hoverImage, &b.pressedImage}) {
                *image = (root / "proj" / ("img" + std::to_string(n) + "_" + std::to_string(image - &b.normalImage) +
                                           ".bmp"))
                             .string();
                std::ofstream out(*image, std::ios::binary);
                for (int mb = 0; mb < 4; ++mb)
                    out.write(block.data(), std::streamsize(block.size()));
            }
        }
    }
    ~MediaFolder() { fs::remove_all(root); }
};

// Runs work in a child process: its wall time in seconds and peak memory in MB.
template <class Work>
std::pair<double, double> inChild(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return {-1, 0};
    return {seconds, double(usage.ru_maxrss) / 1024};
}

void BM_Compile300MBBesideCp(benchmark::State& state)
{
    MediaFolder media;
    const fs::path target = media.root / "cd";
    const fs::path copy = media.root / "cp";
    double compileTotal = 0, cpTotal = 0, peak = 0;
    for (auto _ : state) {
        fs::remove_all(target);
        fs::remove_all(copy);
        fs::create_directories(target);
        fs::create_directories(copy);
        ::sync();
        const auto [cpSeconds, cpPeak] = inChild([&] {
            std::string command = "cp " + (media.root / "proj").string() + "/*.bmp " + copy.string() + "/";
            return std::system(command.c_str()) == 0 ? 0 : 1;
        });
        ::sync();
        const auto [compileSeconds, compilePeak] = inChild([&] {
            LocalFileSystem files;
            YesDialogs dialogs;
            BuildState flag;
            HiddenCompileView view;
            CompileRequest request;
            request.target = target.string() + "/";
            const auto outcome = Compiler(files, dialogs, flag)
                                     .compile(media.project, request, {(media.root / "prog").string() + "/", true},
                                              view);
            return outcome == CompileOutcome::Done ? 0 : 1;
        });
        if (compileSeconds < 0 || cpSeconds < 0) {
            state.SkipWithError("a copy failed");
            break;
        }
        state.SetIterationTime(compileSeconds);
        compileTotal += compileSeconds;
        cpTotal += cpSeconds;
        peak = std::max(peak, compilePeak);
        (void)cpPeak;
    }
    state.counters["cp_s"] = cpTotal / double(state.iterations());
    state.counters["compile_s"] = compileTotal / double(state.iterations());
    state.counters["ratio"] = compileTotal / cpTotal;
    state.counters["peak_MB"] = peak;
}
BENCHMARK(BM_Compile300MBBesideCp)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor

BENCHMARK_MAIN();
