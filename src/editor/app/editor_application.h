#pragma once

#include <QDateTime>
#include <QPointer>

#include <functional>

#include "core/app/application.h"
#include "editor/app/editor_build_view.h"
#include "editor/app/editor_button_baker.h"
#include "editor/app/editor_designer_view.h"
#include "editor/app/editor_document_view.h"
#include "editor/app/editor_script_editor_view.h"
#include "editor/app/editor_shape_view.h"
#include "editor/app/editor_shell_view.h"
#include "editor/app/editor_windows.h"
#include "editor/app/project_views.h"
#include "editor/ui/print_preview_window.h"
#include "editor/ui/about_window.h"
#include "editor/app/appearance_editor_panel.h"
#include "editor/wizard/editor_wizard.h"

namespace qor {

// The ports the editor runs with: the Qt ones in the program, scripted ones
// in the tests.
struct EditorPorts {
    Dialogs& dialogs;
    SettingsStore& settings;
    Desktop& desktop;
    Screen& screen;
    FileTypeRegistry& fileTypes;
    QmbConverter& qmbConverter;
};

// One run of the editor: the windows, the views that show the core's
// decisions on them, and the core's Application, wired together. The main
// window's commands go to the shell's one dispatch point, its close box to
// quit, its title events to the main window's flows; the properties panel's
// first activation opens the project named on the command line.
class EditorApplication {
public:
    explicit EditorApplication(EditorPorts ports, WindowHooks& hooks = WindowHooks::none());
    EditorApplication(const EditorApplication&) = delete;
    EditorApplication& operator=(const EditorApplication&) = delete;
    // An open preview closes with the editor (its capture file goes).
    ~EditorApplication();

    // The start-up routine: Running when the windows are shown and the
    // event loop should run, Quit when it is over already.
    StartOutcome start(const StartupInputs& inputs);

    Application& core() { return core_; }
    EditorWindows& windows() { return windows_; }
    EditorShellView& shellView() { return shellView_; }
    ProjectViews& projectViews() { return projectViews_; }
    EditorWizard& wizard() { return wizard_; }
    EditorBuildView& buildView() { return buildView_; }
    EditorButtonBaker& baker() { return baker_; }
    // The menu picture's preview for the "Imprimer" entry of that index: the
    // buttons baked, the worksheet captured, a fresh window each time.
    void openPrintPreview(int entry);
    PrintPreviewWindow* printPreview() const { return printPreview_; }
    EditorShapeView& shapeView() { return shapeView_; }
    // The about window, once opened.
    AboutWindow* aboutWindow() { return about_.get(); }

private:
    void connectWindow(WindowId window);
    void connectWorksheet();
    void connectToolbox();

    Dialogs& dialogs_;
    WindowHooks& hooks_;
    QPointer<PrintPreviewWindow> printPreview_;

    EditorWindows windows_;
    EditorShellView shellView_;
    ProjectViews projectViews_;
    EditorDocumentView documentView_;
    EditorBuildView buildView_;
    EditorButtonBaker baker_;
    Application core_;
    EditorScriptEditorView scriptEditorView_;
    EditorWizard wizard_;
    EditorDesignerView designerView_;
    EditorShapeView shapeView_;
    std::unique_ptr<AboutWindow> about_;
    std::unique_ptr<AppearanceEditorPanel> appearancePanel_;
};

// What start-up needs from the platform: the executable's path, the
// argument text (the program's arguments, Qt's own taken out already) and
// this start's time and date in the system's formats.
StartupInputs startupInputs(int argc, const char* const* argv, const QDateTime& now);

}  // namespace qor
