#pragma once

#include <string>
#include <vector>

#include "core/app/app_state.h"
#include "core/app/menu_titles.h"
#include "core/app/window_arrangement.h"
#include "core/app/windows.h"
#include "core/ui/commands.h"

namespace qor {

// One command of the recent files list as the "&Fichier" menu shows it.
struct RecentFileEntry {
    int position = 0;       // n of the store's "Fichier" + n; 0 for "Aucun fichier récent"
    std::string caption;
    std::string path;       // empty for the disabled "Aucun fichier récent"
    bool enabled = true;

    friend bool operator==(const RecentFileEntry&, const RecentFileEntry&) = default;
};

// One plug-in command of the "&Divers" menu.
struct PluginCommand {
    std::string caption;
    std::string commandText;

    friend bool operator==(const PluginCommand&, const PluginCommand&) = default;
};

// What the shell's flows change on screen. The main window implements it;
// every call states what the screen must show, never how.
class ShellView {
public:
    virtual ~ShellView() = default;

    // Windows.
    virtual void showSplash() = 0;
    virtual void hideSplash() = 0;
    // Creates the window (not shown); it runs the translate and appearance hooks.
    virtual void loadWindow(WindowId window) = 0;
    // The outer size (twips) of a loaded window.
    virtual TwipsSize windowSize(WindowId window) = 0;
    // Moves the windows; the worksheet takes its size and its background area
    // its inner size, and the element selector shows "Feuille de travail", selected.
    virtual void arrangeWindows(const WindowArrangement& arrangement) = 0;
    virtual void showWindow(WindowId window) = 0;
    // Quitting: every window hidden, then every window unloaded, the main
    // window last; closing it ends the editor's event loop.
    virtual void hideAllWindows() = 0;
    virtual void unloadAllWindows() = 0;

    // The main window.
    virtual void setApplicationTitle(const std::string& title) = 0;
    virtual void setMainCaption(const std::string& caption) = 0;
    // The widths (twips) of the six title captions' texts, titles 0 to 5.
    virtual std::vector<double> menuTitleTextWidths() = 0;
    virtual void placeMenuTitles(const std::vector<TitleBox>& boxes) = 0;
    // Every title in its normal colours, then title index (if >= 0) in colours.
    virtual void highlightMenuTitle(int index, const TitleColours& colours) = 0;
    // Pops up menu index with its top-left corner at (left, top) of the main window.
    virtual void popUpMenu(int index, double left, double top) = 0;

    // Options.
    virtual void setOptionMark(CommandId option, bool checked) = 0;
    // A cross-hair pointer over the whole editor, or the normal pointer.
    virtual void setPrecisePointer(bool on) = 0;
    virtual void setMousePositionWindowVisible(bool visible) = 0;
    virtual void setSelectionHandlesVisible(bool visible) = 0;

    // The lists of the menus. The recent files list always has at least one
    // entry; the plug-in placeholder "Aucun plugin installé" stays at position 0.
    virtual void showRecentFiles(const std::vector<RecentFileEntry>& entries) = 0;
    virtual void showPlugins(const std::vector<PluginCommand>& commands, bool placeholderVisible) = 0;
    // "Langue/Language": the captions ("Français" first) and the checked one.
    virtual void showLanguages(const std::vector<std::string>& captions, int checked) = 0;

    // Colours a loaded window with an appearance.
    virtual void applyAppearance(WindowId, const Appearance&) {}
    // Opens the about window "Crédits" anew.
    virtual void openAboutWindow() {}
    // Panels that later parts fill in.
    virtual void openAppearancePanel() = 0;
    virtual void openCreationWizard() = 0;
    // The menu picture's preview, opened by the "Imprimer" entry of that index.
    virtual void openPrintPreview(int entry) = 0;
};

}  // namespace qor
