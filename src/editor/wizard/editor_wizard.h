#pragma once

#include <memory>
#include <string>

#include "core/wizard/creation_wizard.h"
#include "editor/ui/window_hooks.h"
#include "editor/wizard/qt_button_pictures.h"

class QWidget;

namespace qor {

class CreationWizardWindow;

// The creation wizard as the editor runs it: one window and its flows at a
// time, over the editor's ports and document.
class EditorWizard {
public:
    struct Needs {
        bool& wizardOpen;                   // read by the main window before quitting
        Dialogs& dialogs;
        Desktop& desktop;
        Document& document;
        ScreenMetrics screen;
        const std::string& programFolder;   // known once start-up has run
        WindowHooks& hooks;
    };

    explicit EditorWizard(Needs needs);
    ~EditorWizard();
    EditorWizard(const EditorWizard&) = delete;
    EditorWizard& operator=(const EditorWizard&) = delete;

    // A fresh wizard over parent (any open one is dropped without asking).
    void open(QWidget* parent);
    // The splash has closed: an open wizard is hidden and shown again as a
    // modal window, above the windows start-up showed after it.
    void handOverAsModal();

    // The wizard open now, or nullptr.
    CreationWizardWindow* window() { return window_.get(); }
    CreationWizard* flows() { return flows_.get(); }

private:
    void drop();

    Needs needs_;
    QtButtonPictures pictures_;
    std::unique_ptr<CreationWizardWindow> window_;
    std::unique_ptr<CreationWizard> flows_;
};

}  // namespace qor
