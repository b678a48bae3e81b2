#pragma once

#include <string>

#include "core/error.h"

namespace qor {

// The startup-action choice the properties panel shows for startupAction.
enum class StartupChoice {
    Nothing,    // "Rien"
    MediaFile,  // "Lancer un fichier multimédia"
    Script,     // "Exécuter du code VBS"
};

// Everything the project reader and writer need from the rest of the editor.
// The editor implements it over its windows and settings; the model and the
// file format stay free of them.
class ProjectHooks {
public:
    virtual ~ProjectHooks() = default;

    // The views' part of a reset: remove every element but the two
    // templates from the worksheet, drop its background picture, leave the
    // element selector with "Feuille de travail" selected, set the startup
    // choice to "Rien", make currentButton 0. The model is reset apart.
    virtual void resetViews() = 0;

    // Makes folder the process's current folder, so that bare file names of
    // the project resolve against it while it loads.
    virtual void setCurrentFolder(const std::string& folder) = 0;

    // Loads the worksheet's background picture; path "" removes it. Fails
    // with InvalidPicture (481), FileNotFound (53) ...
    virtual Status loadBackgroundImage(const std::string& path) = 0;

    // Loads the picture of button element number (its normal image; the
    // element takes its size); path "" shows no picture.
    virtual Status loadButtonImage(int number, const std::string& path) = 0;

    // A loaded element now exists: the editor adds its selector entry
    // ("Bouton " & n & " (" & kind & ")" or "Texte " & n) and shows it.
    virtual void buttonCreated(int number, const std::string& kind) = 0;
    virtual void textCreated(int number) = 0;

    // The loading flag: while set, the properties panel does not react to
    // the startup choice changing under it.
    virtual void setLoading(bool loading) = 0;

    // The startup choice shown after the startup action was read.
    virtual void showStartupChoice(StartupChoice choice) = 0;

    // Puts path at the top of the recent files list.
    virtual void addRecentFile(const std::string& path) = 0;

    // Hands a QMB file to the QMB import, which converts and loads it.
    virtual void importQmb(const std::string& path) = 0;
};

}  // namespace qor
