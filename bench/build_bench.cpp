// The build's targets:
//  - the compiled menu data of a 100-button, 500-text project, built and
//    appended to a player through its intermediate file (target: under 5 ms);
//  - the check of every value that data carries, for 99 buttons and 500
//    texts (target: under 1 ms);
//  - a compilation of 300 MB of images beside `cp` copying the same files to
//    the same disk, in one run (target: at most 1.2 times cp's time, peak
//    memory of the compiling process under 64 MB), and the same for 99
//    buttons whose pictures are all 4000 x 3000 pixels (target: 1.2 times
//    cp, peak memory under 256 MB).
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/build/compiler.h"
#include "core/build/local_file_system.h"
#include "core/build/menu_data_file.h"
#include "core/build/value_check.h"
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

void BM_ValueCheck99Buttons500Texts(benchmark::State& state)
{
    MenuProject project = dataProject();
    project.deleteButton(100);
    CompileRequest request;
    request.projectName = "Banc d'essai";
    request.author = "QOR";
    for (auto _ : state)
        benchmark::DoNotOptimize(firstUnwritableValue(project, request));
}
BENCHMARK(BM_ValueCheck99Buttons500Texts)->Unit(benchmark::kMicrosecond);

// A camera's JPEG as the compilation sees it: the frame header of a 4000 x
// 3000 picture behind 20 KB of metadata, then bytes up to `size`, then the
// end marker. The compilation never decodes, so the body need not be one.
void writePicture(const std::string& path, const std::string& body, std::size_t size)
{
    std::ofstream out(path, std::ios::binary);
    out << "\xFF\xD8\xFF\xE1" << char(20002 >> 8) << char(20002 & 0xFF) << std::string(20000, 'm');
    out << std::string("\xFF\xC0\x00\x11\x08\x0B\xB8\x0F\xA0", 9) << std::string(12, '\x01');
    for (std::size_t left = size; left > 0;) {
        const std::size_t n = std::min(left, body.size());
        out.write(body.data(), std::streamsize(n));
        left -= n;
    }
    out << "\xFF\xD9";
}

// `buttons` buttons of three pictures of `megabytes` each, in a fresh folder.
struct MediaFolder {
    fs::path root = fs::temp_directory_path() / ("qor_bench_media_" + std::to_string(::getpid()));
    MenuProject project;

    MediaFolder(int buttons, int megabytes)
    {
        fs::create_directories(root / "proj");
        fs::create_directories(root / "prog");
        std::ofstream(root / "prog" / "compil.exe") << "MZ";
        std::ofstream(root / "prog" / "autorun.ico") << "ICO";
        std::ofstream(root / "prog" / "install.bat") << "@echo off";
        std::string block(1 << 20, '\0');
        for (std::size_t i = 0; i < block.size(); ++i)
            block[i] = char((i * 131 + i / 4096) % 255);   // never 0xFF: no marker inside the data
        for (int n = 1; n <= buttons; ++n) {
            MenuButton& b = project.button(*project.addButton());
            b.kind = "code";
            for (std::string* image : {&b.normalImage, &b.hoverImage, &b.pressedImage}) {
                *image = (root / "proj" / ("img" + std::to_string(n) + "_" + std::to_string(image - &b.normalImage) +
                                           ".jpg"))
                             .string();
                writePicture(*image, block, std::size_t(megabytes) << 20);
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

void BM_CompileBesideCp(benchmark::State& state)
{
    MediaFolder media(int(state.range(0)), int(state.range(1)));
    const fs::path target = media.root / "cd";
    const fs::path copy = media.root / "cp";
    double compileTotal = 0, cpTotal = 0, peak = 0;
    int round = 0;
    for (auto _ : state) {
        fs::remove_all(target);
        fs::remove_all(copy);
        fs::create_directories(target);
        fs::create_directories(copy);
        const auto runCp = [&] {
            ::sync();
            return inChild([&] {
                std::string command = "cp " + (media.root / "proj").string() + "/*.jpg " + copy.string() + "/";
                return std::system(command.c_str()) == 0 ? 0 : 1;
            });
        };
        const auto runCompile = [&] {
            ::sync();
            return inChild([&] {
                LocalFileSystem files;
                YesDialogs dialogs;
                BuildState flag;
                HiddenCompileView view;
                CompileRequest request;
                request.target = target.string() + "/";
                const auto outcome = Compiler(files, dialogs, flag)
                                         .compile(media.project, request,
                                                  {(media.root / "prog").string() + "/", true}, view);
                return outcome == CompileOutcome::Done ? 0 : 1;
            });
        };
        // The second writer pays for the first one's data still going to
        // the disk: each goes first in turn.
        std::pair<double, double> cpRun, compileRun;
        if (round++ % 2 == 0) {
            cpRun = runCp();
            compileRun = runCompile();
        } else {
            compileRun = runCompile();
            cpRun = runCp();
        }
        const auto [cpSeconds, cpPeak] = cpRun;
        const auto [compileSeconds, compilePeak] = compileRun;
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
// 25 buttons of three 4 MB pictures (300 MB); 99 buttons of three 3 MB
// pictures of 4000 x 3000 pixels (891 MB).
BENCHMARK(BM_CompileBesideCp)
    ->ArgNames({"buttons", "MB"})
    ->Args({25, 4})
    ->Args({99, 3})
    ->UseManualTime()
    ->Iterations(4)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor

BENCHMARK_MAIN();
