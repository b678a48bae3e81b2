// The designer's targets, on Qt's offscreen platform:
//  - a project of 99 buttons (200 x 60 pixel images, each button its own)
//    and 500 text boxes loaded onto the worksheet, beside the same file
//    loaded into the model alone;
//  - the worksheet repainted after one element moved;
//  - selecting an element: the refresh in the core alone, and with the
//    real properties panel.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

#include "core/designer/designer.h"
#include "core/ports/qmb_converter.h"
#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "editor/app/editor_application.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_desktop.h"
#include "editor/platform/qt_screen.h"
#include "editor/platform/qt_settings_store.h"
#include "model/project_writer.h"
#include "text/line_file.h"

#include "bench_editor.h"
#include "qt_benchmarks.h"
#include "silent_dialogs.h"

namespace {

using namespace qor;
using qor::bench::SilentDialogs;

constexpr int kButtons = 99;
constexpr int kTexts = 500;

using qor::bench::FixedScreen;

std::string picture(const QDir& dir, const QString& name, QColor colour)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(colour);
    const QString path = dir.filePath(name);
    image.save(path, "PNG");
    return path.toStdString();
}

// The project file and its pictures, written once.
struct BigProject {
    QTemporaryDir root;
    std::string path;

    BigProject()
    {
        const QDir dir(root.path());
        MenuProject p;
        p.width = 12000;
        p.height = 9000;
        for (int i = 0; i < kButtons; ++i) {
            const int n = *p.addButton();
            MenuButton& b = p.button(n);
            b.kind = "code";
            b.left = float(120 * (n % 10) * 10);
            b.top = float(900 * (n / 10));
            b.normalImage = picture(dir, QStringLiteral("n%1.png").arg(n), QColor::fromHsv(n * 3, 200, 200));
            b.hoverImage = picture(dir, QStringLiteral("s%1.png").arg(n), Qt::green);
            b.pressedImage = picture(dir, QStringLiteral("c%1.png").arg(n), Qt::blue);
            b.action = "MsgBox \"Bouton " + std::to_string(n) + "\"";
        }
        for (int i = 0; i < kTexts; ++i) {
            const int n = *p.addText();
            MenuText& t = p.text(n);
            t.content = "Texte " + std::to_string(n) + "\r\nsur deux lignes";
            t.left = float(15 * (i % 700));
            t.top = float(15 * (i % 500));
            t.width = 1500;
            t.height = 600;
        }
        path = dir.filePath(QStringLiteral("grand.qor")).toStdString();
        (void)writeFileAtomically(path, projectFileBytes(p, RelativePathRule(path, "")));
    }
};

BigProject& bigProject()
{
    static BigProject project;
    return project;
}

// One editor, started once, with the Qt ports in folders of its own.
struct EditorRun : qor::bench::BenchEditor<QtScreen> {
    bool open(const std::string& path)
    {
        return openPath(path) && editor.core().designer().entries().size() == 1 + kButtons + kTexts;
    }
};

EditorRun& editorRun()
{
    // Kept to the end of the process on purpose: its windows must not be
    // destroyed after the application object that the benchmark's main owns.
    static EditorRun* run = new EditorRun;
    return *run;
}

// The editor with the big project open, or nothing (the run refused).
EditorRun* openedRun(benchmark::State& state)
{
    EditorRun& run = editorRun();
    if (run.open(bigProject().path))
        return &run;
    state.SkipWithError("the project did not load cleanly");
    return nullptr;
}

void BM_LoadIntoModelAlone(benchmark::State& state)
{
    const std::string& path = bigProject().path;
    SilentDialogs dialogs;
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    MenuProject project;
    for (auto _ : state)
        loadProject(project, path, true, services);
    if (dialogs.asked != 0 || project.liveTexts().size() != kTexts)
        state.SkipWithError("the project did not load cleanly");
}
BENCHMARK(BM_LoadIntoModelAlone)->Unit(benchmark::kMillisecond);

void BM_LoadOntoTheWorksheet(benchmark::State& state)
{
    EditorRun& run = editorRun();
    const std::string& path = bigProject().path;
    for (auto _ : state)
        if (!run.open(path)) {
            state.SkipWithError("the project did not load cleanly");
            return;
        }
}
BENCHMARK(BM_LoadOntoTheWorksheet)->Unit(benchmark::kMillisecond);

void BM_RepaintAfterOneElementMoved(benchmark::State& state)
{
    EditorRun* opened = openedRun(state);
    if (!opened)
        return;
    EditorRun& run = *opened;
    WorksheetFlows& sheet = run.editor.core().designer().worksheet();
    run.editor.windows().worksheet().raise();
    (void)sheet.pressButton(42, true, {0, 0});
    double x = 3000;
    for (auto _ : state) {
        x = x == 3000 ? 3300 : 3000;
        sheet.drop(WorksheetTarget::button(42), WorksheetTarget::background(), {x, 2000});
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_RepaintAfterOneElementMoved)->Unit(benchmark::kMicrosecond);

void BM_SelectInTheCore(benchmark::State& state)
{
    const std::string& path = bigProject().path;
    MenuProject project;
    Selection selection;
    SilentDialogs dialogs;
    FixedScreen screen;
    Phrases phrases;
    NoProjectHooks pictures;
    NoProjectRoutes routes;
    ScriptEditorFlow scripts(project, selection, dialogs);
    const bool handles = true;
    Designer designer(project, selection, {dialogs, screen, phrases, pictures, scripts, handles});
    ProjectServices services{dialogs, phrases, designer, routes};
    loadProject(project, path, true, services);
    int i = 0;
    for (auto _ : state) {
        // A code button (its script loaded), then a text box.
        designer.select(++i % 2 ? 42 : kButtons + 300);
    }
    if (designer.entries().size() != 1 + kButtons + kTexts || selection.currentButton != 42)
        state.SkipWithError("the selection did not follow");
}
BENCHMARK(BM_SelectInTheCore)->Unit(benchmark::kMicrosecond);

void BM_SelectWithTheQtPanel(benchmark::State& state)
{
    EditorRun* opened = openedRun(state);
    if (!opened)
        return;
    EditorRun& run = *opened;
    Designer& designer = run.editor.core().designer();
    int i = 0;
    for (auto _ : state) {
        designer.select(++i % 2 ? 42 : kButtons + 300);
        QCoreApplication::processEvents();
    }
    if (run.editor.core().selection().currentButton != 42)
        state.SkipWithError("the selection did not follow");
}
BENCHMARK(BM_SelectWithTheQtPanel)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    return qor::bench::runQtBenchmarks(argc, argv);
}
