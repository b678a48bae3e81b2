#pragma once

#include <QMargins>
#include <QStringList>

#include <memory>

#include "core/app/app_state.h"
#include "core/app/windows.h"
#include "core/ports/screen.h"
#include "editor/platform/twips.h"
#include "editor/ui/window_hooks.h"

class QWidget;

namespace qor {

class FileInfoWindow;
class MainWindow;
class MousePositionWindow;
class PropertiesPanel;
class ScriptEditorWindow;
class SplashWindow;
class ToolboxWindow;
class WorksheetWindow;

// The editor's windows for the whole run, each loaded when start-up asks for
// it. Places come from outside in twips; this class only carries them out.
//
// Two windows are built only when first needed, because nothing shows them
// at start: the script editor (loaded with the others, opened later by a
// script) and the project information window "Propriétés". Their load hooks
// run when they are built.
class EditorWindows {
public:
    // The frame assumed around a window before the window system has drawn
    // one (twips): a caption bar and thin borders, the allowance the main
    // window's layout is drawn with.
    static constexpr double kAssumedBorder = 60;
    static constexpr double kAssumedCaption = 300;

    EditorWindows(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());
    ~EditorWindows();

    // The splash, shown and painted before anything else loads; a window
    // system that has not shown it after this long is not waited for.
    static constexpr int kSplashPaintWaitMs = 300;
    void showSplash();

    // Loads one window (nothing when it is loaded already).
    void loadWindow(WindowId id);
    bool isLoaded(WindowId id) const;
    // Loads the toolbox, the main window, the worksheet, the properties
    // panel, the script editor and the mouse-position window, in that order.
    void load();
    bool loaded() const { return main_ != nullptr; }
    // Object names of the windows in the order they were loaded.
    const QStringList& loadOrder() const { return loadOrder_; }

    // A loaded window (the script editor and "Propriétés" are built on the
    // spot); nullptr for a window not loaded.
    QWidget* window(WindowId id);

    // Shows the main window, the toolbox, the worksheet, the properties
    // panel and the mouse-position window, then hides the splash.
    void showAll();

    // Quitting: every window is hidden, then every window is released and
    // closed, the main window last.
    void hideAll();
    void closeAll();

    SplashWindow& splash() { return *splash_; }
    ToolboxWindow& toolbox() { return *toolbox_; }
    MainWindow& main() { return *main_; }
    WorksheetWindow& worksheet() { return *worksheet_; }
    PropertiesPanel& properties() { return *properties_; }
    ScriptEditorWindow& scriptEditor();
    MousePositionWindow& mousePosition() { return *mousePosition_; }
    FileInfoWindow& fileInfo();
    bool scriptEditorBuilt() const { return scriptEditor_ != nullptr; }
    bool fileInfoBuilt() const { return fileInfo_ != nullptr; }

    // A window's place in twips: frame position, inner size.
    void place(QWidget& window, const TwipsRect& rect);
    TwipsRect placeOf(const QWidget& window) const;

    // The frame around a window in pixels: the window system's own once it
    // has drawn one, the assumed one before.
    QMargins frameOf(const QWidget& window) const;
    // Outer size in twips: the inner size and the frame.
    TwipsSize outerSize(const QWidget& window) const;
    // Gives a window an outer size in twips; the frame takes its share.
    void setOuterSize(QWidget& window, double width, double height);
    void setOuterHeight(QWidget& window, double height);
    // Moves a window's frame to (left, top) twips.
    void moveTo(QWidget& window, double left, double top);

    const ScreenMetrics& screen() const { return screen_; }
    // The run's load hooks, also the way to the texts set after loading.
    const WindowHooks& hooks() const { return hooks_; }

private:
    template <class W, class... Args>
    std::unique_ptr<W> create(Args&&... args);

    ScreenMetrics screen_;
    WindowHooks& hooks_;
    QStringList loadOrder_;
    bool scriptEditorLoaded_ = false;
    std::unique_ptr<SplashWindow> splash_;
    std::unique_ptr<ToolboxWindow> toolbox_;
    std::unique_ptr<MainWindow> main_;
    std::unique_ptr<WorksheetWindow> worksheet_;
    std::unique_ptr<PropertiesPanel> properties_;
    std::unique_ptr<ScriptEditorWindow> scriptEditor_;
    std::unique_ptr<MousePositionWindow> mousePosition_;
    std::unique_ptr<FileInfoWindow> fileInfo_;
};

}  // namespace qor
