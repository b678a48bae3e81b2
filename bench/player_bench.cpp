// The Linux player on Qt's offscreen platform, with a menu of 99 buttons
// (three pictures each), 50 text boxes and a background picture:
//  - FirstFrame: from the start of a process to the first frame of its
//    window, for the player showing that menu and for a window showing one
//    label, each started the same way (this program run again with
//    --first-frame=player|label). The child reports the moment its first
//    paint is done and its peak memory (peak_kb) at that moment.
//  - Hover: the pointer entering a button and leaving it again, through the
//    player core and the window, the button repainted each time: two image
//    changes per iteration.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>

#include "model/menu_data_writer.h"
#include "player/core/player.h"
#include "player/qt/menu_window.h"
#include "player/qt/player_app.h"
#include "player/qt/qt_media.h"
#include "player/qt/qt_system.h"

namespace {

using namespace qor;
using namespace qor::player;

long long nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

long peakKb()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmHWM:", 0) == 0)
            return std::atol(line.c_str() + 6);
    return 0;
}

// Reports once the widget has painted its first frame, then quits.
class FirstFrame : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !seen_) {
            seen_ = true;
            QTimer::singleShot(0, [] {
                std::printf("frame %lld %ld\n", nowNs(), peakKb());
                std::fflush(stdout);
                QCoreApplication::quit();
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool seen_ = false;
};

int childMain(int argc, char** argv, const char* what)
{
    QApplication app(argc, argv);
    FirstFrame first;
    if (std::strcmp(what, "label") == 0) {
        QLabel label(QStringLiteral("QOR"));
        label.installEventFilter(&first);
        label.show();
        return QApplication::exec();
    }
    return runPlayer({QStringLiteral("qorplayer"), QString::fromLocal8Bit(argv[argc - 1])},
                     [&first](MenuWindow& window) { window.installEventFilter(&first); });
}

// The bench menu in a folder of its own: qor/menu.exe and its pictures.
class BenchMenu {
public:
    BenchMenu()
    {
        QDir(dir_.path()).mkpath(QStringLiteral("qor"));
        MenuProject p;
        p.width = 12000;
        p.height = 9000;
        p.backgroundImage = "fond.bmp";
        picture("fond.bmp", {800, 600}, Qt::darkCyan);
        for (int i = 0; i < 99; ++i) {
            MenuButton& b = p.button(*p.addButton());
            b.kind = "code";
            b.action = "MsgBox \"Bouton " + std::to_string(i + 1) + "\"";
            b.left = float((i % 9) * 1200 + 60);
            b.top = float((i / 9) * 600 + 60);
            const std::string name = "b" + std::to_string(i + 1);
            b.normalImage = name + "_n.bmp";
            b.hoverImage = name + "_s.bmp";
            b.pressedImage = name + "_c.bmp";
            picture(b.normalImage, {70, 30}, Qt::blue);
            picture(b.hoverImage, {70, 30}, Qt::green);
            picture(b.pressedImage, {70, 30}, Qt::red);
        }
        for (int i = 0; i < 50; ++i) {
            MenuText& t = p.text(*p.addText());
            t.content = "Texte " + std::to_string(i + 1) + "\r\nsur deux lignes";
            t.left = float((i % 10) * 1150 + 60);
            t.top = float(7000 + (i / 10) * 390);
            t.width = 1100;
            t.height = 380;
        }
        std::ofstream(file(), std::ios::binary) << "MZ bench\r\n" << menuDataBytes(p, {"Banc", "QOR"});
    }
    std::string file() const { return (dir_.path() + "/qor/menu.exe").toStdString(); }
    MenuData data() const
    {
        std::ifstream in(file(), std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        return std::get<MenuData>(readMenuData(bytes));
    }

private:
    void picture(const std::string& name, QSize size, Qt::GlobalColor colour)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        image.save(dir_.path() + "/qor/" + QString::fromStdString(name));
    }
    QTemporaryDir dir_;
};

BenchMenu& benchMenu()
{
    static BenchMenu menu;
    return menu;
}

void firstFrame(benchmark::State& state, const char* what)
{
    long peak = 0;
    for (auto _ : state) {
        QProcess child;
        QStringList args{QStringLiteral("--first-frame=%1").arg(what), QString::fromStdString(benchMenu().file())};
        const long long start = nowNs();
        child.start(QCoreApplication::applicationFilePath(), args);
        child.waitForFinished(30000);
        long long frame = 0;
        if (std::sscanf(child.readAllStandardOutput().constData(), "frame %lld %ld", &frame, &peak) != 2) {
            state.SkipWithError("the child showed no frame");
            return;
        }
        state.SetIterationTime(double(frame - start) / 1e9);
    }
    state.counters["peak_kb"] = double(peak);
}

void BM_FirstFrame_Player(benchmark::State& state) { firstFrame(state, "player"); }
void BM_FirstFrame_Label(benchmark::State& state) { firstFrame(state, "label"); }

void BM_Hover(benchmark::State& state)
{
    QtSystem system;
    QtMedia media;
    MenuWindow window;
    Player player(benchMenu().data(), MenuPlace::of(benchMenu().file(), '/', "D"), window, media, system);
    window.attach(player);
    player.start();
    QCoreApplication::processEvents();
    std::size_t i = 0;
    for (auto _ : state) {
        ButtonWidget* button = window.buttons()[i];
        player.pointerEntersButton(i);
        button->repaint();
        player.pointerLeavesButton(i);
        button->repaint();
        i = (i + 1) % window.buttons().size();
    }
    state.SetItemsProcessed(state.iterations() * 2);
    player.close();
}

}  // namespace

BENCHMARK(BM_FirstFrame_Player)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstFrame_Label)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Hover)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--first-frame=", 14) == 0)
            return childMain(argc, argv, argv[i] + 14);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
