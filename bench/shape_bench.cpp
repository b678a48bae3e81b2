// The shape editor's targets, on Qt's offscreen platform:
//  - loading a 100 000-point shape file and drawing its edges on the surface;
//  - the preview's mask for those points (cut of an 800 x 600 surface);
//  - the rubber band following the pointer over 1 000 edges: one move and
//    the repaint it causes.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>
#include <string>

#include "core/shape/shape_file.h"
#include "core/shape/shape_flows.h"
#include "core/shape/shape_pixels.h"
#include "editor/shape/shape_surface.h"
#include "text/line_file.h"

#include "qt_benchmarks.h"
#include "silent_dialogs.h"

namespace {

using namespace qor;

constexpr int kWidthPx = 800;
constexpr int kHeightPx = 600;

struct FixedScreen : Screen {
    ScreenMetrics metrics() override { return {kWidthPx * 15.0, kHeightPx * 15.0, 15, 15}; }
};

// "Charger" always answers with the one file.
struct OpenDialogs : bench::SilentDialogs {
    std::string path;
    std::optional<std::string> openFile(const FileDialogRequest&) override { return path; }
};

// The surface alone, as the editor's view drives it.
struct SurfaceView : ShapeView {
    ShapeSurface& surface;
    const ShapeFlows* flows = nullptr;
    explicit SurfaceView(ShapeSurface& s) : surface(s) {}
    void showEditor() override {}
    void closeEditor() override {}
    void refresh() override { surface.showState(flows->editor()); }
    void rubberBandMoved() override { surface.moveBand(flows->editor()); }
    void cutSurface(const std::vector<PixelPoint>& outline) override { surface.cutTo(outline); }
    void dragSurface() override {}
    std::string editorCaption() override { return "Editeur"; }
};

// A closed star of n points over the whole surface: each spike runs a
// third of the height, so thousands of edges cross every row; the worst
// case rather than a drawn outline.
ShapePoints star(int n)
{
    ShapePoints points;
    if (n <= 0)
        return points;
    const double cx = kWidthPx * 7.5, cy = kHeightPx * 7.5;
    for (int i = 0; i < n; ++i) {
        const double a = 2 * std::numbers::pi * i / n;
        const double r = (i % 2 ? 0.45 : 0.9) * cy;
        points.push_back({std::int32_t(cx + r * std::cos(a)), std::int32_t(cy + r * std::sin(a))});
    }
    points.push_back(points.front());
    return points;
}

// A closed outline of n points traced round the surface with a wavy
// edge, as a shape traced from a picture would be: neighbouring points
// a fraction of a pixel apart.
ShapePoints contour(int n)
{
    ShapePoints points;
    const double cx = kWidthPx * 7.5, cy = kHeightPx * 7.5;
    for (int i = 0; i < n; ++i) {
        const double a = 2 * std::numbers::pi * i / n;
        const double r = 0.8 + 0.1 * std::sin(40 * a);
        points.push_back({std::int32_t(cx + r * cx * std::cos(a)), std::int32_t(cy + r * cy * std::sin(a))});
    }
    if (n > 0)
        points.push_back(points.front());
    return points;
}

// Shape 0: the traced outline; 1: the star.
ShapePoints shapeOf(benchmark::State& state)
{
    return state.range(1) ? star(int(state.range(0))) : contour(int(state.range(0)));
}

struct Rig {
    QTemporaryDir dir;
    MenuProject project;
    OpenDialogs dialogs;
    FixedScreen screen;
    Phrases phrases;
    ShapeSurface surface{screen.metrics()};
    SurfaceView view{surface};
    ShapeFlows flows{project, ShapePorts{dialogs, screen, phrases}};

    explicit Rig(const ShapePoints& shape)
    {
        dialogs.path = dir.filePath(QStringLiteral("forme.ffl")).toStdString();
        (void)writeFileAtomically(dialogs.path, shapeFileBytes(shape, {}));
        surface.resize(kWidthPx, kHeightPx);
        view.flows = &flows;
        flows.setView(&view);
        flows.open();
        surface.show();
    }
};

void BM_LoadAndDrawEdges(benchmark::State& state)
{
    Rig rig(shapeOf(state));
    for (auto _ : state) {
        rig.flows.load();
        rig.surface.repaint();
    }
    state.counters["points"] = double(rig.flows.editor().points().size());
    if (rig.dialogs.asked)
        state.SkipWithError("the load asked something");
}
BENCHMARK(BM_LoadAndDrawEdges)->Args({100000, 0})->Args({100000, 1})->Unit(benchmark::kMillisecond);

void BM_PreviewMask(benchmark::State& state)
{
    Rig rig(shapeOf(state));
    rig.flows.load();
    const auto pixels = shapeInPixels(rig.flows.editor().points(), 15, 15);
    for (auto _ : state)
        rig.surface.cutTo(pixels);
    state.counters["runs"] = double(polygonRuns(pixels, kWidthPx, kHeightPx).size());
}
BENCHMARK(BM_PreviewMask)->Args({100000, 0})->Args({100000, 1})->Unit(benchmark::kMillisecond);

void BM_MaskRunsAlone(benchmark::State& state)
{
    const auto pixels = shapeInPixels(shapeOf(state), 15, 15);
    for (auto _ : state)
        benchmark::DoNotOptimize(polygonRuns(pixels, kWidthPx, kHeightPx));
}
BENCHMARK(BM_MaskRunsAlone)->Args({100000, 0})->Args({100000, 1})->Unit(benchmark::kMillisecond);

void BM_RubberBandRepaint(benchmark::State& state)
{
    Rig rig(ShapePoints{});
    // 1 000 edges drawn by hand, the band then left open.
    const ShapePoints points = star(int(state.range(0)));
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        rig.flows.press(kLeftButton, {double(points[i].x), double(points[i].y)});
    int step = 0;
    for (auto _ : state) {
        step = (step + 7) % 400;
        rig.flows.move({3000.0 + step * 15, 4000.0 + step * 10}, false);
        QCoreApplication::processEvents();
    }
    state.counters["edges"] = double(rig.flows.editor().newEdges().size());
}
BENCHMARK(BM_RubberBandRepaint)->Arg(1001)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    return qor::bench::runQtBenchmarks(argc, argv);
}
