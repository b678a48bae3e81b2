#include "core/designer/designer_messages.h"

namespace qor {

Message tooManyButtonsMessage(const Phrases& phrases)
{
    return {phrases.text(0, "Nombre maximum de bouton atteind !!!"),
            phrases.text(1, "Erreur - trop de boutons :-)"), MessageIcon::Critical};
}

Message deleteButtonQuestion(int number, const Phrases& phrases)
{
    Message m{phrases.text(41, "Supprimer le bouton ") + std::to_string(number) + " ?",
              phrases.text(42, "Suppression"), MessageIcon::Question};
    m.buttons = MessageButtons::YesNo;
    return m;
}

Message deleteTextQuestion(int number)
{
    Message m{"Supprimer le texte " + std::to_string(number) + " ?", "Suppression", MessageIcon::Question};
    m.buttons = MessageButtons::YesNo;
    return m;
}

std::string newTextContent(int number, const Phrases& phrases)
{
    return phrases.text(2, "Tapez ici le contenu du ") + "Texte " + std::to_string(number);
}

Message invalidNumbersMessage()
{
    return {"Vous devez entrer des nombres valides !", "Erreur !", MessageIcon::Critical};
}

Message invalidIntervalMessage()
{
    return {"Valeur incorrect, elle doit etre entière est comprise entre 1 et 60000.", "Minuteur",
            MessageIcon::Critical};
}

Message invalidPositionMessage()
{
    return {"Valeur incorrect !", "Erreur !", MessageIcon::Critical};
}

Message globalScriptHelpMessage()
{
    return {"Cela vous permet de définir des procédures et constantes que vous pourrez appeler dans tous les "
            "autres scripts VBS du projet (démarrage, boutons, minuteur...).",
            "Aide rapide", MessageIcon::Information};
}

Message mediaFileHelpMessage()
{
    return {"Nom du fichier multimédia (avi, mp3...) à lire (par rapport au répertoire racine du future CD-R). "
            "Exemple : mon_divx.avi ou ma_playlist.m3u",
            "[?]", MessageIcon::Information};
}

Message transparencyInfoMessage()
{
    return {"Permet de rendre transparent tous les pixels de la couleur sélectionnée, en mode édition, votre "
            "bouton ne changera pas (vous pouvez quand même obtenir un aperçu en cliquant sur 'Aperçu rapide'), "
            "donc, pour tester correctement cette fonctionnalité, après avoir mis en place vos boutons cliquez "
            "sur Tester le projet dans le menu Créer.",
            "Transparence des boutons", MessageIcon::Information};
}

}  // namespace qor
