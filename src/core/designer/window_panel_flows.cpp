#include "core/designer/window_panel_flows.h"

#include "core/designer/designer.h"
#include "core/designer/designer_messages.h"
#include "core/designer/property_checks.h"
#include "core/scripting/script_slots.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr double kZoomStep = 0.95;
constexpr int kFitPasses = 4;
constexpr std::string_view kMusicFilter =
    "Son *.wav, *.mp3, *.mid, *.aif, *.wma | *.wav;*.mp3;*.mid;*.aif;*.wma";
constexpr std::string_view kIconFilter = "Fichier icône *.ico | *.ico";
// What "X" beside the icon leaves: a default icon marker.
constexpr std::string_view kClearedIcon = "(Icone par défaut)";

}  // namespace

void WindowPanelFlows::windowChanged()
{
    ctx_.v().showWindowFields(ctx_.project);
}

void WindowPanelFlows::chooseBackground()
{
    auto chosen = askImage(ctx_.ports.dialogs, "Image de fond");
    if (!chosen)
        return;
    ctx_.project.backgroundImage = *chosen;
    // A picture that cannot be read shows nothing; the path stays.
    (void)ctx_.ports.pictures.loadBackgroundImage(ctx_.project.resolve(*chosen));
    windowChanged();
}

void WindowPanelFlows::clearBackground()
{
    ctx_.project.backgroundImage.clear();
    (void)ctx_.ports.pictures.loadBackgroundImage("");
    windowChanged();
}

void WindowPanelFlows::setFullScreen(bool on)
{
    ctx_.project.fullScreen = on;
    designer_.worksheet().updateCaption();
}

void WindowPanelFlows::applySize(const std::string& width, const std::string& height)
{
    const auto size = sizeFromFields(width, height, ctx_.screen());
    if (!size) {
        ctx_.ports.dialogs.message(invalidNumbersMessage());
        return;
    }
    // The typed size is the window's, also between two pixels.
    setWindowSize(*size);
}

void WindowPanelFlows::fitToBackground()
{
    const TwipsSize picture = ctx_.v().backgroundPictureSize();
    if (picture.width <= 0 || picture.height <= 0)
        return;
    designer_.worksheet().setStretch(false);
    ctx_.v().setBackgroundStretched(false);
    for (int pass = 0; pass < kFitPasses; ++pass) {
        const TwipsSize outer = ctx_.v().worksheetOuterSize();
        const TwipsSize inner = ctx_.v().worksheetInnerSize();
        if (inner.width <= 0 || inner.height <= 0)
            break;
        ctx_.v().setWorksheetOuterSize(
            {outer.width * picture.width / inner.width, outer.height * picture.height / inner.height});
    }
    designer_.worksheet().setStretch(true);
    ctx_.v().setBackgroundStretched(true);
    setWindowSize(ctx_.v().worksheetOuterSize());
}

void WindowPanelFlows::setWindowSize(TwipsSize size)
{
    ctx_.project.width = float(size.width);
    ctx_.project.height = float(size.height);
    ctx_.v().setWorksheetOuterSize(size);
    designer_.worksheet().updateCaption();
}

void WindowPanelFlows::zoom(bool zoomIn)
{
    const TwipsSize outer = ctx_.v().worksheetOuterSize();
    const double factor = zoomIn ? 1 / kZoomStep : kZoomStep;
    const TwipsSize size{outer.width * factor, outer.height * factor};
    // Past what a window can show, or down to nothing, the size stays.
    if (isShowableSize(size, ctx_.screen()))
        setWindowSize(size);
}

void WindowPanelFlows::setBorder(bool on)
{
    ctx_.project.border = on;
}

void WindowPanelFlows::chooseBackgroundColour()
{
    if (auto colour = ctx_.ports.dialogs.pickColour(ctx_.project.backgroundColor)) {
        ctx_.project.backgroundColor = *colour;
        ctx_.v().setBackgroundColour(*colour);
        windowChanged();
    }
}

void WindowPanelFlows::chooseMusic()
{
    if (auto path = askFile(ctx_.ports.dialogs, "Musique de fond...", std::string(kMusicFilter))) {
        ctx_.project.backgroundMusic = *path;
        windowChanged();
    }
}

void WindowPanelFlows::clearMusic()
{
    ctx_.project.backgroundMusic.clear();
    windowChanged();
}

void WindowPanelFlows::chooseIcon()
{
    if (auto path = askFile(ctx_.ports.dialogs, "Icône du CD...", std::string(kIconFilter))) {
        ctx_.project.icon = *path;
        windowChanged();
    }
}

void WindowPanelFlows::clearIcon()
{
    ctx_.project.icon = std::string(kClearedIcon);
    windowChanged();
}

void WindowPanelFlows::setHandCursor(bool on)
{
    ctx_.project.handCursor = on;
}

void WindowPanelFlows::setTimerEnabled(bool on)
{
    ctx_.project.timerEnabled = on;
    windowChanged();
}

void WindowPanelFlows::timerIntervalLeft(const std::string& field)
{
    auto checked = checkedTimerInterval(field);
    if (!checked) {
        ctx_.ports.dialogs.message(invalidIntervalMessage());
        checked = std::string(kDefaultTimerInterval);
    }
    ctx_.project.timerInterval = *checked;
    ctx_.v().setTimerIntervalField(*checked);
}

void WindowPanelFlows::setContextMenu(bool on)
{
    ctx_.project.contextMenu = on;
}

void WindowPanelFlows::editTimerScript()
{
    ctx_.ports.scriptEditor.open(ScriptSlot::Timer);
}

void WindowPanelFlows::editGlobalScript()
{
    ctx_.ports.scriptEditor.open(ScriptSlot::Global);
}

void WindowPanelFlows::editWindowHoverScript()
{
    ctx_.ports.scriptEditor.open(ScriptSlot::WindowHover);
}

void WindowPanelFlows::showGlobalHelp()
{
    ctx_.ports.dialogs.message(globalScriptHelpMessage());
}

void WindowPanelFlows::chooseStartup(StartupChoice choice)
{
    choice_ = choice;
    ctx_.ports.scriptEditor.hide();
    std::string& action = ctx_.project.startupAction;
    switch (choice) {
    case StartupChoice::Nothing: action.clear(); break;
    case StartupChoice::MediaFile:
        if (ctx_.loading)
            break;
        if (startsWithNoCase(action, kStartupScriptPrefix))
            action.clear();
        action = ctx_.ports.dialogs.inputBox(std::string(kStartupMediaPrompt), "", action);
        break;
    case StartupChoice::Script:
        if (!ctx_.loading)
            ctx_.ports.scriptEditor.open(ScriptSlot::Startup);
        break;
    }
    showChoice();
}

void WindowPanelFlows::showLoadedChoice(StartupChoice choice)
{
    choice_ = choice;
    showChoice();
}

void WindowPanelFlows::showChoice()
{
    switch (choice_) {
    case StartupChoice::Nothing: ctx_.v().showStartupChoice(choice_, "", false); break;
    case StartupChoice::MediaFile: ctx_.v().showStartupChoice(choice_, ctx_.project.startupAction, true); break;
    case StartupChoice::Script: ctx_.v().showStartupChoice(choice_, "Code VBS :", true); break;
    }
}

}  // namespace qor
