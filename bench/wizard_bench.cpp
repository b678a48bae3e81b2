// The creation wizard's two speed targets, on Qt's offscreen platform:
// drawing one state of a text button (target: under 1 ms), and "&Terminer"
// for a menu of 30 text buttons, its 90 pictures drawn and written, the
// project written and opened through the document lifecycle with every
// button picture read back as the worksheet reads it (target: under 300 ms).
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImageReader>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

#include "core/project/document_lifecycle.h"
#include "core/project/no_project_hooks.h"
#include "core/ui/phrases.h"
#include "core/wizard/creation_wizard.h"
#include "counting_dialogs.h"
#include "editor/wizard/qt_button_pictures.h"
#include "editor/wizard/text_button_image.h"

namespace qor {
namespace {


class NoDesktop : public Desktop {
public:
    bool open(const std::string&, WindowShow) override { return true; }
    std::optional<ProcessId> start(const std::string&, WindowShow) override { return {}; }
    bool isRunning(ProcessId) override { return false; }
    void terminate(ProcessId) override {}
    bool editText(const std::string&) override { return true; }
};

// Reads every button picture as the worksheet does when a project opens.
class PictureReadingHooks : public NoProjectHooks {
public:
    int read = 0;
    Status loadButtonImage(int, const std::string& path) override
    {
        QImageReader reader(QString::fromStdString(path));
        if (reader.read().isNull())
            return makeError(err::InvalidPicture);
        ++read;
        return {};
    }
};

class NoDocumentView : public DocumentView {
public:
    void showFileInfo(const FileInfo&, const AuthorFields&) override {}
    void projectReplaced(const MenuProject&) override {}
};

class NoWizardView : public WizardView {
public:
    std::string caption() override { return "Assistant création"; }
    void refresh() override {}
    void hideWindow() override {}
    void closeWindow() override {}
};

WizardButton benchButton(int size)
{
    WizardButton b;
    b.caption = "Jouer le film d'introduction";
    b.fontName = "DejaVu Sans";
    b.fontSize = std::int16_t(size);
    b.backColor = 0x00336699;
    b.textColor = 0x0000FFFF;
    return b;
}

void BM_DrawTextButtonState(benchmark::State& state)
{
    const WizardButton entry = benchButton(int(state.range(0)));
    const ButtonState states[] = {ButtonState::Normal, ButtonState::Hover, ButtonState::Pressed};
    std::size_t i = 0;
    for (auto _ : state) {
        QImage image = drawTextButton(entry, states[i++ % 3]);
        benchmark::DoNotOptimize(image.bits());
    }
}
BENCHMARK(BM_DrawTextButtonState)->Arg(8)->Arg(24)->Unit(benchmark::kMicrosecond);

// One editor's worth of the wizard's surroundings.
struct FinishRun {
    bench::CountingDialogs dialogs;
    NoDesktop desktop;
    Phrases phrases;
    PictureReadingHooks hooks;
    NoProjectRoutes routes;
    ProjectServices services{dialogs, phrases, hooks, routes};
    MenuProject project;
    NoDocumentView documentView;
    DocumentLifecycle lifecycle{project, services, desktop, documentView};
    QtButtonPictures pictures;
    NoWizardView view;
    bool open = false;
    std::unique_ptr<CreationWizard> wizard;

    // A wizard on its last step with 30 text buttons, saving into folder.
    FinishRun(const std::string& folder, int run)
    {
        wizard = std::make_unique<CreationWizard>(open, WizardPorts{dialogs, desktop, pictures, lifecycle}, view,
                                                  WizardSetup{folder, folder, ScreenMetrics{0, 0, 15, 15}});
        wizard->open();
        wizard->setMenuName("Menu " + std::to_string(run));
        for (int i = 1; i <= 30; ++i) {
            wizard->addButton();
            wizard->chooseButtonType(ButtonType::Text);
            wizard->setCaption("Bouton numéro " + std::to_string(i));
            wizard->validateTextButton();
        }
        for (int i = 0; i < 4; ++i)
            wizard->next();
    }
};

void BM_FinishThirtyTextButtons(benchmark::State& state)
{
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto r = std::make_unique<FinishRun>(folder, run++);
        state.ResumeTiming();
        r->wizard->finish();
        state.PauseTiming();
        if (!r->wizard->finished() || r->dialogs.asked != 1 || r->hooks.read != 30 ||
            r->project.savableButtons().size() != 30) {
            state.SkipWithError("the menu was not written and opened whole");
            return;
        }
        r.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_FinishThirtyTextButtons)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
