#pragma once

#include <string>
#include <vector>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ui/appearances_file.h"

namespace qor {

class OptionCommands;
class Shell;

// The main window's "Apparences" frame as the appearance editor drives it.
class AppearanceEditorView {
public:
    virtual ~AppearanceEditorView() = default;
    // Shows or hides the frame by making the main window tall or the menu bar only.
    virtual void setAppearanceEditorVisible(bool visible) = 0;
    virtual void showAppearanceList(const std::vector<std::string>& names, int selected) = 0;
    // The list's selected entry, -1 for none.
    virtual int selectedAppearance() = 0;
    // The three swatches and the font field.
    virtual void showEditorFields(const Appearance& fields) = 0;
    virtual Appearance editorFields() = 0;
    // The "Nom :" field.
    virtual std::string newAppearanceName() = 0;
    virtual void clearNewAppearanceName() = 0;
};

// The main window height with the frame shown, and with the menu bar only (twips).
inline constexpr double kAppearanceEditorHeight = 5085;
inline constexpr double kMenuBarOnlyHeight = 615;

// "&Apparences...": the list of saved appearances, trying colours out,
// loading one for good and saving new ones into "apparences.ini".
class AppearanceEditor {
public:
    AppearanceEditor(AppState& state, Dialogs& dialogs, Shell& shell, OptionCommands& options)
        : state_(state), dialogs_(dialogs), shell_(shell), options_(options) {}

    void setView(AppearanceEditorView* view) { view_ = view; }

    // "&Apparences...": the frame shown, the list reloaded, the fields from the current appearance.
    void open();
    // "&Fermer".
    void close();
    // "&Charger": the selected appearance applied to the four main windows and stored.
    void load();
    // "&Tester": the fields applied to the four main windows, nothing stored.
    void test();
    // "&Sauver": the fields saved under the typed name, then loaded.
    void save();
    // A swatch clicked (0 window background, 1 field background, 2 text).
    void pickColour(int swatch);
    // "Modif.": the font dialog on the font field's font.
    void pickFont();

    // The list as last read: "Par défaut" first.
    const std::vector<AppearanceRecord>& records() const { return records_; }

private:
    void reloadList(int selected);
    Appearance selected() const;

    AppState& state_;
    Dialogs& dialogs_;
    Shell& shell_;
    OptionCommands& options_;
    AppearanceEditorView* view_ = nullptr;
    std::vector<AppearanceRecord> records_;
};

// "Champs nom vide !!!" (phrase 10) and "Ce nom est déjà utilisé !!!"
// (phrase 11): exclamation icon, no title.
Message emptyAppearanceNameMessage(const Phrases& phrases);
Message appearanceNameUsedMessage(const Phrases& phrases);

// The seven lines a saved appearance adds to "apparences.ini".
std::vector<std::string> appearanceRecordLines(const AppearanceRecord& record);

}  // namespace qor
