#pragma once

#include <QStringList>

#include <memory>

#include "core/ports/screen.h"
#include "editor/platform/twips.h"
#include "editor/ui/window_hooks.h"

class QWidget;

namespace qor {

class MainWindow;
class MousePositionWindow;
class PropertiesPanel;
class ScriptEditorWindow;
class SplashWindow;
class ToolboxWindow;
class WorksheetWindow;

// The editor's windows for the whole run, loaded in the order the start-up
// needs and shown in the order it shows them. Places come from outside in
// twips; this class only carries them out.
class EditorWindows {
public:
    EditorWindows(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());
    ~EditorWindows();

    // The splash, shown and painted before anything else loads.
    void showSplash();

    // Loads the toolbox, the main window, the worksheet, the properties
    // panel, the script editor and the mouse-position window, in that order.
    void load();
    bool loaded() const { return main_ != nullptr; }
    // Object names of the windows in the order they were created.
    const QStringList& loadOrder() const { return loadOrder_; }

    // Shows the main window, the toolbox, the worksheet, the properties
    // panel and the mouse-position window, then hides the splash.
    void showAll();

    // Quitting: every window is hidden, then closed; the main window last.
    void closeAll();

    SplashWindow& splash() { return *splash_; }
    ToolboxWindow& toolbox() { return *toolbox_; }
    MainWindow& main() { return *main_; }
    WorksheetWindow& worksheet() { return *worksheet_; }
    PropertiesPanel& properties() { return *properties_; }
    ScriptEditorWindow& scriptEditor() { return *scriptEditor_; }
    MousePositionWindow& mousePosition() { return *mousePosition_; }

    // A window's place in twips: frame position, inner size.
    void place(QWidget& window, const TwipsRect& rect);
    TwipsRect placeOf(const QWidget& window) const;

    const ScreenMetrics& screen() const { return screen_; }

private:
    template <class W, class... Args>
    std::unique_ptr<W> create(Args&&... args);

    ScreenMetrics screen_;
    WindowHooks& hooks_;
    QStringList loadOrder_;
    std::unique_ptr<SplashWindow> splash_;
    std::unique_ptr<ToolboxWindow> toolbox_;
    std::unique_ptr<MainWindow> main_;
    std::unique_ptr<WorksheetWindow> worksheet_;
    std::unique_ptr<PropertiesPanel> properties_;
    std::unique_ptr<ScriptEditorWindow> scriptEditor_;
    std::unique_ptr<MousePositionWindow> mousePosition_;
};

}  // namespace qor
