#pragma once

#include <string>
#include <vector>

#include "core/app/app_state.h"
#include "core/app/menu_titles.h"
#include "core/app/option_commands.h"
#include "core/app/plugins.h"
#include "core/app/recent_files.h"
#include "core/app/shell_view.h"
#include "core/app/user_settings.h"
#include "core/ports/desktop.h"
#include "core/ports/dialogs.h"
#include "core/ui/languages.h"

namespace qor {

// Facts of the platform that the load step writes down: the time and date of
// this start in the system's own formats.
struct StartFacts {
    std::string timeText;
    std::string dateText;
};

// The task list's name of the editor.
inline constexpr const char* kApplicationTitle = "QOR - création";

// The main window's own rules: its load step, its caption, the menu titles,
// and the commands of the "&?" menu.
class MainWindowFlows {
public:
    MainWindowFlows(AppState& state, ShellView& view, Dialogs& dialogs, Desktop& desktop,
               UserSettings& settings, OptionCommands& options, RecentFiles& recentFiles, Plugins& plugins)
        : state_(state), view_(view), dialogs_(dialogs), desktop_(desktop), settings_(settings),
          options_(options), recentFiles_(recentFiles), plugins_(plugins) {}

    // The load step: application title, language submenu, options, recent
    // files, menu titles, caption, start bookkeeping, plug-ins. A failure is
    // shown with its text, titled "Erreur"; the step goes on, so the menus
    // stay usable.
    void load(const StartFacts& facts);

    // "QOR v2.0 - créateur de menus" (another language: phrase 4 after "QOR v2.0 - ").
    std::string caption() const;

    // The titles laid out side by side from their captions' widths; again
    // whenever an appearance changes their font.
    void placeMenuTitles();

    // The pointer over title i: every title reset, title i highlighted.
    void pointerOverTitle(int index);
    // A press on title i: highlighted, and menu i popped up under it.
    void pressTitle(int index);
    // Every title back to its normal colours: on a click on the window, when
    // it is deactivated or loses the focus, when the pointer moves over its
    // body or the appearance frame, and once 300 ms after the load.
    void resetTitles();

    // "&Manuel": opens index.htm of the manual's folder, asking for the
    // folder when the stored one does not hold it; counts the openings.
    void openManual();
    // "&F.A.Q.", "&Télécharger des exemples", "Tru&cs et astuces".
    void openWebPage(CommandId command);
    // "Signaler un bug": asks for a description, then opens the bug page.
    void reportBug();
    // "Ai-je la dernière &version ?"
    void checkVersion();
    // "A&ssistance"
    void showSupport();

    // The "Langue/Language" submenu as the load step filled it.
    const LanguageMenu& languages() const { return languages_; }

private:
    void reportLoadFailure(const Error& error);
    void openManualIn(const std::string& folder);

    AppState& state_;
    ShellView& view_;
    Dialogs& dialogs_;
    Desktop& desktop_;
    UserSettings& settings_;
    OptionCommands& options_;
    RecentFiles& recentFiles_;
    Plugins& plugins_;
    std::vector<TitleBox> titles_;
    LanguageMenu languages_;
};

// The support message: heading, author, contacts.
Message supportMessage(const std::string& newline);

}  // namespace qor
