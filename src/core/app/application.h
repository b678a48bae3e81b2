#pragma once

#include "core/app/app_state.h"
#include "core/app/recent_files.h"
#include "core/app/shell.h"
#include "core/app/shell_view.h"
#include "core/app/user_settings.h"
#include "core/ports/qmb_converter.h"
#include "core/project/document_lifecycle.h"
#include "core/project/menu_project.h"
#include "core/project/project_file.h"
#include "core/project/project_hooks.h"
#include "core/project/qmb_import.h"

namespace qor {

// What the platform layer hands the core: the ports and the views.
struct Platform {
    Dialogs& dialogs;
    SettingsStore& settings;
    Desktop& desktop;
    Screen& screen;
    FileTypeRegistry& fileTypes;
    QmbConverter& qmbConverter;
    ShellView& shellView;
    // The views' side of the project hooks: reset views, pictures, elements,
    // loading flag, startup choice, current folder. Its addRecentFile and
    // importQmb are never called: the application routes those itself.
    ProjectHooks& projectViews;
    DocumentView& documentView;
};

// Everything one run of the editor holds, built in dependency order: the
// shared state, the settings, the recent files, the project and its
// lifecycle, the QMB import and the shell. The editor creates one and
// drives it: shell().start(...), shell().run(command, position) ...
class Application {
public:
    explicit Application(Platform platform);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    Shell& shell() { return shell_; }
    DocumentLifecycle& document() { return lifecycle_; }
    MenuProject& project() { return project_; }
    AppState& state() { return state_; }
    RecentFiles& recentFiles() { return recentFiles_; }
    QmbImport& qmbImport() { return qmb_; }

private:
    // Sends the recent files and the QMB files where they belong and
    // everything else to the editor's views.
    class RoutedHooks : public ProjectHooks {
    public:
        RoutedHooks(ProjectHooks& views, RecentFiles& recent, QmbImport& qmb)
            : views_(views), recent_(recent), qmb_(qmb) {}
        void resetViews() override { views_.resetViews(); }
        void setCurrentFolder(const std::string& f) override { views_.setCurrentFolder(f); }
        Status loadBackgroundImage(const std::string& p) override { return views_.loadBackgroundImage(p); }
        Status loadButtonImage(int n, const std::string& p) override { return views_.loadButtonImage(n, p); }
        void buttonCreated(int n, const std::string& kind) override { views_.buttonCreated(n, kind); }
        void textCreated(int n) override { views_.textCreated(n); }
        void setLoading(bool on) override { views_.setLoading(on); }
        void showStartupChoice(StartupChoice c) override { views_.showStartupChoice(c); }
        void addRecentFile(const std::string& path) override { recent_.add(path); }
        void importQmb(const std::string& path) override { qmb_.run(path); }

    private:
        ProjectHooks& views_;
        RecentFiles& recent_;
        QmbImport& qmb_;
    };

    AppState state_;
    UserSettings settings_;
    RecentFiles recentFiles_;
    MenuProject project_;
    RoutedHooks hooks_;
    ProjectServices services_;
    DocumentLifecycle lifecycle_;
    QmbImport qmb_;
    Shell shell_;
};

}  // namespace qor
