#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/app/shell_view.h"

namespace qor::test {

// Records what the flows asked the screen to show: the latest state of each
// thing, and a log of the calls in order ("load Toolbox", "show Main" ...).
class FakeShellView : public ShellView {
public:
    std::vector<std::string> log;

    // Sizes the loaded windows report (twips).
    std::map<WindowId, TwipsSize> sizes = {
        {WindowId::Toolbox, {1500, 3000}},
        {WindowId::Main, {9000, 615}},
        {WindowId::PropertiesPanel, {2985, 6000}},
        {WindowId::MousePosition, {2000, 900}},
    };
    std::vector<double> titleTextWidths = {600, 700, 500, 550, 650, 150};

    bool splashShown = false;
    std::vector<WindowId> loaded;
    std::vector<WindowId> shown;
    std::vector<WindowArrangement> arrangements;
    bool allHidden = false;
    bool allUnloaded = false;
    std::string applicationTitle;
    std::string mainCaption;
    std::vector<TitleBox> titleBoxes;
    int highlightedTitle = -1;
    TitleColours highlightColours;
    struct PopUp { int index; double left, top; };
    std::vector<PopUp> popUps;
    std::map<CommandId, bool> marks;
    bool precisePointer = false;
    bool mousePositionVisible = true;
    bool handlesVisible = true;
    std::vector<RecentFileEntry> recentFiles;
    int recentRebuilds = 0;
    std::vector<PluginCommand> plugins;
    bool pluginPlaceholderVisible = true;
    int pluginRebuilds = 0;
    std::vector<std::string> languages;
    int checkedLanguage = -1;
    int appearancePanelOpenings = 0;
    int wizardOpenings = 0;

    static std::string name(WindowId w);

    void showSplash() override { splashShown = true; log.push_back("show Splash"); }
    void hideSplash() override { splashShown = false; log.push_back("hide Splash"); }
    void loadWindow(WindowId w) override { loaded.push_back(w); log.push_back("load " + name(w)); }
    TwipsSize windowSize(WindowId w) override { return sizes[w]; }
    void arrangeWindows(const WindowArrangement& a) override { arrangements.push_back(a); log.push_back("arrange"); }
    void showWindow(WindowId w) override { shown.push_back(w); log.push_back("show " + name(w)); }
    void hideAllWindows() override { allHidden = true; log.push_back("hide all"); }
    void unloadAllWindows() override { allUnloaded = true; log.push_back("unload all"); }
    void setApplicationTitle(const std::string& t) override { applicationTitle = t; }
    void setMainCaption(const std::string& c) override { mainCaption = c; }
    std::vector<double> menuTitleTextWidths() override { return titleTextWidths; }
    void placeMenuTitles(const std::vector<TitleBox>& b) override { titleBoxes = b; }
    void highlightMenuTitle(int i, const TitleColours& c) override { highlightedTitle = i; highlightColours = c; }
    void popUpMenu(int i, double left, double top) override { popUps.push_back({i, left, top}); }
    void setOptionMark(CommandId id, bool on) override { marks[id] = on; }
    void setPrecisePointer(bool on) override { precisePointer = on; log.push_back(on ? "pointer cross" : "pointer normal"); }
    void setMousePositionWindowVisible(bool v) override { mousePositionVisible = v; log.push_back(v ? "mouse window shown" : "mouse window hidden"); }
    void setSelectionHandlesVisible(bool v) override { handlesVisible = v; log.push_back(v ? "handles shown" : "handles hidden"); }
    void showRecentFiles(const std::vector<RecentFileEntry>& e) override { recentFiles = e; ++recentRebuilds; }
    void showPlugins(const std::vector<PluginCommand>& c, bool placeholder) override
    {
        plugins = c;
        pluginPlaceholderVisible = placeholder;
        ++pluginRebuilds;
    }
    void showLanguages(const std::vector<std::string>& c, int checked) override
    {
        languages = c;
        checkedLanguage = checked;
    }
    void openAppearancePanel() override { ++appearancePanelOpenings; }
    void openCreationWizard() override { ++wizardOpenings; log.push_back("open wizard"); }
    void openPrintPreview(int entry) override { log.push_back("print preview " + std::to_string(entry)); }
};

inline std::string FakeShellView::name(WindowId w)
{
    switch (w) {
    case WindowId::Toolbox: return "Toolbox";
    case WindowId::Main: return "Main";
    case WindowId::Worksheet: return "Worksheet";
    case WindowId::PropertiesPanel: return "Properties";
    case WindowId::ScriptEditor: return "ScriptEditor";
    case WindowId::MousePosition: return "MousePosition";
    case WindowId::Splash: return "Splash";
    case WindowId::FileInfo: return "FileInfo";
    default: return std::string(windowName(w));
    }
    return "?";
}

}  // namespace qor::test
