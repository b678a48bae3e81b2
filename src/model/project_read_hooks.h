#pragma once

#include <string>
#include <string_view>

#include "text/error.h"

namespace qor {

// The startup-action choice the properties panel shows for startupAction.
enum class StartupChoice {
    Nothing,    // "Rien"
    MediaFile,  // "Lancer un fichier multimédia"
    Script,     // "Exécuter du code VBS"
};

// What the project reader reports while it reads: the pictures it needs,
// the elements it creates, the startup choice. Whoever shows the project
// follows these; the reader itself knows no window.
class ProjectReadHooks {
public:
    virtual ~ProjectReadHooks() = default;

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
};

// Where a reader takes a failure: the error, the last line read by the main
// loop ("Paragraphe") and the last value line read ("Ligne suivante").
// True goes on with the next step, false abandons the read.
class ReadFailures {
public:
    virtual ~ReadFailures() = default;
    virtual bool goOn(const Error& error, std::string_view paragraph, std::string_view valueLine) = 0;
};

}  // namespace qor
