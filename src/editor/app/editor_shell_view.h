#pragma once

#include <functional>

#include "core/app/shell_view.h"

namespace qor {

class EditorWindows;

// The shell's view over the editor's windows. The core decides what the
// screen shows (title boxes and colours, lists, marks, places); this class
// only carries it out on the Qt windows.
class EditorShellView final : public ShellView {
public:
    explicit EditorShellView(EditorWindows& windows);
    ~EditorShellView() override;

    // Told after each window is loaded, so that its signals can be connected.
    std::function<void(WindowId)> windowLoaded;
    // Ends the event loop once every window is unloaded (the application's
    // own by default).
    std::function<void()> endEventLoop;
    // Opens the appearance editor.
    std::function<void()> appearancePanelRequested;
    // Opens the about window.
    std::function<void()> aboutRequested;
    // Opens a fresh creation wizard.
    std::function<void()> creationWizardRequested;
    std::function<void(int)> printPreviewRequested;

    void showSplash() override;
    void hideSplash() override;
    void loadWindow(WindowId window) override;
    TwipsSize windowSize(WindowId window) override;
    void arrangeWindows(const WindowArrangement& arrangement) override;
    void showWindow(WindowId window) override;
    void hideAllWindows() override;
    void unloadAllWindows() override;

    void setApplicationTitle(const std::string& title) override;
    void setMainCaption(const std::string& caption) override;
    std::vector<double> menuTitleTextWidths() override;
    void placeMenuTitles(const std::vector<TitleBox>& boxes) override;
    void highlightMenuTitle(int index, const TitleColours& colours) override;
    void popUpMenu(int index, double left, double top) override;

    void setOptionMark(CommandId option, bool checked) override;
    void setPrecisePointer(bool on) override;
    void setMousePositionWindowVisible(bool visible) override;
    void setSelectionHandlesVisible(bool visible) override;

    void showRecentFiles(const std::vector<RecentFileEntry>& entries) override;
    void showPlugins(const std::vector<PluginCommand>& commands, bool placeholderVisible) override;
    void showLanguages(const std::vector<std::string>& captions, int checked) override;

    void applyAppearance(WindowId window, const Appearance& appearance) override;
    void openAppearancePanel() override;
    void openAboutWindow() override
    {
        if (aboutRequested)
            aboutRequested();
    }
    void openCreationWizard() override;
    void openPrintPreview(int entry) override;

    bool precisePointer() const { return precisePointer_; }

private:
    EditorWindows& windows_;
    bool precisePointer_ = false;
    // Kept until the worksheet is loaded: the options are read before it is.
    bool handlesVisible_ = true;
};

}  // namespace qor
