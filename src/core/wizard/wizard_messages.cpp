#include "core/wizard/wizard_messages.h"

#include <iterator>

#include "core/ui/windows.h"
#include "model/product.h"

namespace qor::wizard_message {
namespace {

Message question(std::string text, std::string_view caption, int defaultButton)
{
    return Message{std::move(text), std::string(caption), MessageIcon::Question, MessageButtons::YesNo,
                   defaultButton};
}

constexpr std::string_view kRefusals[] = {
    "Veuillez indiquer le texte du bouton !",
    "Veuillez indiquer une image pour chaque propriétés du bouton (normal, survol et clique) !",
    "La couleur de fond et la couleur du texte doivent être différentes !",
    "Veuillez sélectionner un bouton pour le supprimer !",
    "Aucun apercu disponible quand vous éditez un autre bouton.",
    "L'assistant bouton n'est pas installé, pour le télécharger allez sur ",
    "Cliquez d'abord sur 'Enregistrer le menu...' !",
    "Répertoire invalide !",
    "Vous devez donner un nom à votre menu (étape 1) !",
    "Ce nom a déjà été utilisé dans ce répertoire ! (étape 1)",
    "Nom du projet invalide (étape1) !",
};
static_assert(std::size(kRefusals) == std::size_t(Refusal::InvalidName) + 1);

}  // namespace

Message refusal(Refusal which, std::string_view caption)
{
    std::string text(kRefusals[std::size_t(which)]);
    // The message names where the assistant can be had.
    if (which == Refusal::ButtonAssistantMissing)
        text += product::webSite;
    return Message{std::move(text), std::string(caption), MessageIcon::Exclamation};
}

Message deleteQuestion(int k, std::string_view caption)
{
    return question("Suppimer le bouton n°" + std::to_string(k) + " ?", caption, 0);
}

Message closeQuestion(std::string_view caption)
{
    return question("Quitter l'assistant ?", caption, 1);
}

Message preview(const std::string& text, const std::string& title)
{
    return Message{text, title, MessageIcon::Information};
}

bool isPathError(const Error& error)
{
    // A folder that refuses to be written to is a path access error here,
    // as it is for the platform the menus are made for.
    return error.number == err::PathNotFound || error.number == err::PathFileAccess ||
           error.number == err::PermissionDenied;
}

Message finishFailed(const Error& error, std::string_view caption)
{
    if (isPathError(error))
        return refusal(Refusal::InvalidName, caption);
    return Message{error.description, "Erreur - " + std::string(caption), MessageIcon::Critical};
}

Message finished(std::string_view caption)
{
    return Message{"Votre menu a été enregistré et ouvert avec succès !\r\n\r\n"
                   "Appuyez sur F5 pour tester ou cliquez sur Créer > Compiler > en autorun pour créer.",
                   std::string(caption), MessageIcon::Information};
}

Message dialogError(const Error& error, std::string_view handler)
{
    return Message{"Erreur n°" + std::to_string(error.number) + " (" + error.description +
                       ") dans la procédure " + std::string(handler) + " de Feuille " +
                       std::string(windowName(WindowId::Wizard)),
                   "Erreur !", MessageIcon::Critical};
}

Message musicDialogError(const Error& error)
{
    return Message{"Erreur : " + error.description, "Erreur n°" + std::to_string(error.number),
                   MessageIcon::Critical};
}

}  // namespace qor::wizard_message
