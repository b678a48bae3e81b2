#pragma once

#include <string>

#include "core/ports/screen.h"
#include "core/ui/appearances_file.h"
#include "core/ui/phrases.h"

namespace qor {

// The five check marks of the "&Options" menu. The initial values are the
// marks the main window has before any options file was read.
struct OptionMarks {
    bool precisePointer = false;    // "&Pointeur précis"
    bool mousePosition = true;      // "&Position de la souris"
    bool showHandles = true;        // "Afficher les points &délimitant les objets"
    bool wizardAtStart = false;     // "Afficher l'assistant &création au démarrage de QOR"
    bool requireMediaFile = true;   // "Obliger à configurer un fichier pour chaque bouton multimédia"

    friend bool operator==(const OptionMarks&, const OptionMarks&) = default;
};

// The application name of every per-user setting.
inline constexpr const char* kSettingsApplication = "QOR";

// The state that start-up sets once and that every flow shares. It lives in
// one object that the flows receive by reference, next to the ports.
struct AppState {
    // Builds multi-line messages; the project file's line-break mark stands for it.
    std::string newline = "\r\n";
    // The editor's own folder, ending with a separator: the settings files,
    // "langues/", the player and the runtime files are there.
    std::string programFolder;
    // The executable's file name as it stands on disk ("qor" here).
    std::string executableFile;
    // The project named on the command line, opened on the first activation
    // of the properties panel; empty when none.
    std::string startupProject;
    // Set early in start-up and never cleared; the worksheet reads it.
    bool starting = false;
    // The folder name under "langues/" of the interface language; empty: French.
    std::string interfaceLanguage;
    // The worksheet's first size: 800 x 600 pixels (640 x 480 on a screen
    // 800 pixels wide), in twips.
    TwipsSize defaultMenuSize;
    // True while the creation wizard is open: quitting is refused then.
    bool wizardOpen = false;
    // The messages of the interface language.
    Phrases phrases;
    // The check marks of the "&Options" menu.
    OptionMarks options;
    // Set while the options file is read, so that the option commands it
    // runs do not write the file back half read.
    bool readingOptions = false;
    // The colours and font in use, carried through the options file.
    Appearance appearance{defaultAppearance().windowBack, defaultAppearance().fieldBack,
                          defaultAppearance().textColor, kDefaultFontName};
    // A settings store that refuses writes is reported once per run.
    bool settingsFailureReported = false;

    // Files of the program folder.
    std::string programFile(const std::string& name) const { return programFolder + name; }
};

}  // namespace qor
