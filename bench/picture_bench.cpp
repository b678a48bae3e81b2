// The menu picture's targets, on Qt's offscreen platform:
//  - bake all buttons of a project of 99 transparent buttons (three 200 x 60
//    pictures each) on the editor's worksheet, and the same without a
//    window as qorbake does;
//  - open the print preview of an 800 x 600 pixel worksheet (bake all
//    buttons, capture, temporary file, window shown), with no transparent
//    button and with the 99 of the first project.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "editor/app/editor_application.h"
#include "model/project_writer.h"
#include "picture/worksheet_scene.h"
#include "text/line_file.h"

#include "bench_editor.h"
#include "qt_benchmarks.h"

namespace {

using namespace qor;
using qor::bench::SilentDialogs;

constexpr int kButtons = 99;

using qor::bench::FixedScreen;

std::string picture(const QDir& dir, const QString& name, QColor colour)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(colour);
    // A band of the key colour, so that every bake mixes both sources.
    for (int y = 20; y < 40; ++y)
        for (int x = 0; x < 200; ++x)
            image.setPixelColor(x, y, Qt::magenta);
    const QString path = dir.filePath(name);
    image.save(path, "PNG");
    return path.toStdString();
}

// An 800 x 600 pixel menu; with `transparent`, 99 transparent buttons.
struct MenuFile {
    QTemporaryDir root;
    std::string path;

    explicit MenuFile(bool transparent)
    {
        const QDir dir(root.path());
        MenuProject p;
        p.width = 12000;
        p.height = 9000;
        p.backgroundColor = 0x00804020;
        const int buttons = transparent ? kButtons : 0;
        for (int i = 0; i < buttons; ++i) {
            const int n = *p.addButton();
            MenuButton& b = p.button(n);
            b.kind = "code";
            b.left = float(15 * 60 * (n % 10));
            b.top = float(15 * 55 * (n / 10));
            b.transparent = true;
            b.transparentColor = 0x00FF00FF;
            b.normalImage = picture(dir, QStringLiteral("n%1.png").arg(n), QColor::fromHsv(n * 3, 200, 200));
            b.hoverImage = picture(dir, QStringLiteral("s%1.png").arg(n), Qt::green);
            b.pressedImage = picture(dir, QStringLiteral("c%1.png").arg(n), Qt::blue);
        }
        const int t = *p.addText();
        p.text(t).content = "Bienvenue";
        path = dir.filePath(QStringLiteral("menu.qor")).toStdString();
        (void)writeFileAtomically(path, projectFileBytes(p, RelativePathRule(path, "")));
    }
};

MenuFile& menuFile(bool transparent)
{
    static MenuFile plain(false);
    static MenuFile baked(true);
    return transparent ? baked : plain;
}

struct EditorRun : qor::bench::BenchEditor<FixedScreen> {
    bool open(bool transparent) { return openPath(menuFile(transparent).path); }
};

EditorRun& editorRun()
{
    // Kept to the end of the process on purpose: its windows must not be
    // destroyed after the application object that the benchmark's main owns.
    static EditorRun* run = new EditorRun;
    return *run;
}

void BM_BakeAllButtonsOnTheWorksheet(benchmark::State& state)
{
    EditorRun& run = editorRun();
    if (!run.open(true)) {
        state.SkipWithError("the project did not load cleanly");
        return;
    }
    for (auto _ : state)
        run.editor.baker().bakeAllButtons();
    if (run.dialogs.asked != 0)
        state.SkipWithError("baking asked something");
}
BENCHMARK(BM_BakeAllButtonsOnTheWorksheet)->Unit(benchmark::kMillisecond);

void BM_BakeAllButtonsWithoutAWindow(benchmark::State& state)
{
    SilentDialogs dialogs;
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    MenuProject project;
    loadProject(project, menuFile(true).path, true, services);
    for (auto _ : state) {
        WorksheetScene scene(project, ScreenMetrics{}, QPalette());
        const BakeOutcome out = bakeButtons(project, ScreenMetrics{}, QPalette(), scene);
        if (out.written.size() != 3 * kButtons)
            state.SkipWithError("not every picture was baked");
    }
}
BENCHMARK(BM_BakeAllButtonsWithoutAWindow)->Unit(benchmark::kMillisecond);

void BM_OpenPrintPreview(benchmark::State& state)
{
    EditorRun& run = editorRun();
    if (!run.open(state.range(0) != 0)) {
        state.SkipWithError("the project did not load cleanly");
        return;
    }
    for (auto _ : state) {
        run.editor.openPrintPreview(0);
        QCoreApplication::processEvents();
    }
    PrintPreviewWindow* preview = run.editor.printPreview();
    if (!preview || preview->capture().isNull()) {
        state.SkipWithError("the preview did not show a capture");
        return;
    }
    // The capture is the worksheet's inner area: the window less its frame.
    state.counters["width"] = preview->capture().width();
    state.counters["height"] = preview->capture().height();
}
BENCHMARK(BM_OpenPrintPreview)->Arg(0)->Arg(1)->ArgNames({"transparent"})->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    return qor::bench::runQtBenchmarks(argc, argv);
}
