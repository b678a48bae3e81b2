#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/ports/desktop.h"
#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "core/project/document.h"
#include "core/wizard/button_pictures.h"
#include "core/wizard/preview_rules.h"
#include "core/wizard/wizard_form.h"
#include "core/wizard/wizard_messages.h"
#include "core/wizard/wizard_steps.h"
#include "core/ui/file_filters.h"

namespace qor {

// What the wizard's flows ask of its window.
class WizardView {
public:
    virtual ~WizardView() = default;
    // The caption as the window shows it (a translation may change it):
    // every message of the wizard is titled with it.
    virtual std::string caption() = 0;
    // Shows the form as it now stands.
    virtual void refresh() = 0;
    // "&Terminer" hides the window before the new project opens.
    virtual void hideWindow() = 0;
    // Closes the window for good, without asking.
    virtual void closeWindow() = 0;
};

// What the wizard reaches outside itself.
struct WizardPorts {
    Dialogs& dialogs;
    Desktop& desktop;
    ButtonPictures& pictures;
    // Opens the written project (with reset first).
    Document& document;
};

// Facts of the platform the wizard starts from.
struct WizardSetup {
    std::string documentsFolder;   // the default of "Etape 5"
    std::string programFolder;     // ends with a separator; holds the button assistant
    ScreenMetrics screen;          // picture sizes in twips
};

// The external program that makes button pictures, in the program folder.
inline constexpr std::string_view kButtonAssistantProgram = "assistant_bouton";

// The creation wizard: five steps that build a small menu and write it as
// a project, then open it. The window calls one operation per user action
// and shows form() again; every rule and message is here.
class CreationWizard {
public:
    // wizardOpen is the flag the main window reads before quitting.
    CreationWizard(bool& wizardOpen, WizardPorts ports, WizardView& view, WizardSetup setup);

    // Opening: the flag set, step 0 shown.
    void open();
    const WizardForm& form() const { return form_; }
    // The buttons made, in order, deleted ones included (marked).
    const std::vector<WizardButton>& buttons() const { return buttons_; }
    bool finished() const { return finished_; }

    // Navigation.
    void next();
    void previous();
    void finish();          // "&Terminer"
    // "Annuler" and the close box: true when the window may close.
    bool requestClose();

    // "Etape 1"
    void setMenuName(const std::string& name);
    void chooseBackgroundImage(bool image);   // "Image :" or "Couleur :"
    void pickBackgroundColor();               // the swatch
    void pickBackgroundImage();               // "..."
    void setBorder(bool on);
    void setMusic(bool on);
    void pickMusic();

    // "Etape 2"
    void chooseStartup(WizardStartup choice);
    void setStartupMediaFile(const std::string& name);
    void previewStartupMessage();

    // "Etape 3"
    void addButton();
    void chooseButtonType(ButtonType type);
    void backToTypeChoice();                  // "<---"
    void cancelAdd();                         // "Annuler" of the frame
    void setCaption(const std::string& text);
    void pickTextColor();
    void pickBackColor();
    void pickFont();
    void setTransparentBackground(bool on);
    void showTextPreview();                   // "Aperçu"
    void pickGraphicImage(GraphicImage which);
    void showGraphicPreview();                // "Apercu"
    void hidePreview();                       // "X"
    // The pointer over the preview: true when it must draw again.
    bool previewPointer(PreviewEvent event, bool buttonHeld);
    void validateTextButton();
    void validateGraphicButton();
    void selectButtonLine(int index);
    void deleteSelectedButton();              // "Supprimer"
    void previewButtonLine(int index);        // double click
    void startButtonAssistant();              // the picture of the graphic panel

    // "Etape 4"
    void selectFunctionLine(int index);
    void chooseFunction(int function);
    void setFunctionMediaFile(const std::string& name);
    void previewFunctionMessage();
    // What "Etape 4" lets the user do for the selected line.
    FunctionControls functionControls() const;

    // "Etape 5"
    void pickFolder();

private:
    void showStep();
    void close();
    void say(const Message& message);
    void refuse(wizard_message::Refusal which);
    // The entry a list line names (k - 1), if it exists.
    WizardButton* entryOfLine(const std::vector<std::string>& lines, int index);
    WizardButton* selectedFunctionEntry();
    const WizardButton* entryOfLine(const std::vector<std::string>& lines, int index) const;
    void appendButton(WizardButton entry);
    std::optional<std::string> pickImage(const std::string& title, const std::string& current,
                                         std::string_view handler);
    void pickColour(Colour& colour);

    bool& wizardOpen_;
    WizardPorts ports_;
    WizardView& view_;
    WizardSetup setup_;
    WizardForm form_;
    std::vector<WizardButton> buttons_;
    bool finished_ = false;
};

// The wizard's sound filter (the designer's takes WAV only).
inline constexpr std::string_view kSoundFilter =
    "Son *.wav, *.mp3, *.mid, *.aif, *.wma | *.wav;*.mp3;*.mid;*.aif;*.wma";

}  // namespace qor
