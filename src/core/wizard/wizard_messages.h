#pragma once

#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "text/error.h"

namespace qor {

// The wizard's internal name, by which translation scripts find it and
// which its dialog errors name.
// The wizard's caption before any translation.
inline constexpr std::string_view kWizardCaption = "Assistant création";

// Every message of the wizard. They are titled with the wizard's caption as
// the window shows it (translated or not), given as `caption`, except the
// errors of a dialog, which have their own titles.
namespace wizard_message {

// The wizard's refusals, each shown with the exclamation icon.
enum class Refusal {
    MissingCaption,         // text "Valider" with an empty "Texte :"
    MissingImages,          // graphic "Valider" without its three pictures
    SameColours,            // "Fond transparent" over one colour
    NoButtonSelected,       // "Supprimer" without a line
    NoPreviewWhileEditing,  // double click while a button is being made
    ButtonAssistantMissing, // the button assistant's program is not there
    // The four checks of "&Terminer", in their order.
    NoFolderChosen,
    FolderMissing,
    NoMenuName,
    MenuNameTaken,
    // A path error while the menu is written.
    InvalidName,
};
Message refusal(Refusal which, std::string_view caption);

// "Suppimer le bouton n°" & k & " ?", Yes/No.
Message deleteQuestion(int k, std::string_view caption);
// "Quitter l'assistant ?", Yes/No, No the default.
Message closeQuestion(std::string_view caption);

// A message as the running menu will show it: its text, its title, the
// information icon.
Message preview(const std::string& text, const std::string& title);

// A failure while the menu is written: a path error (the menu name cannot
// name a folder there, the folder cannot be written) reads "Nom du projet
// invalide (étape1) !"; any other gives its description, titled "Erreur - "
// and the caption.
Message finishFailed(const Error& error, std::string_view caption);
bool isPathError(const Error& error);

Message finished(std::string_view caption);

// An error while a dialog of the wizard was used: "Erreur n°" & n & " (" &
// description & ") dans la procédure " & handler & " de Feuille Form14",
// titled "Erreur !".
Message dialogError(const Error& error, std::string_view handler);
// The same for the music dialog: "Erreur : " & description, titled
// "Erreur n°" & n.
Message musicDialogError(const Error& error);

}  // namespace wizard_message
}  // namespace qor
