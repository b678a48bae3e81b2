#include "core/build/build_messages.h"

namespace qor {
namespace {

constexpr const char* kNewline = "\r\n";

Message info(std::string text, std::string title)
{
    return Message{std::move(text), std::move(title), MessageIcon::Information};
}

Message warning(std::string text, std::string title)
{
    return Message{std::move(text), std::move(title), MessageIcon::Exclamation};
}

Message critical(std::string text, std::string title)
{
    return Message{std::move(text), std::move(title), MessageIcon::Critical};
}

// The runtime files as the help text lists them (its own order and case).
constexpr const char* kHelpRuntimeNames[] = {
    "Asycfilt.dll", "Comcat.dll", "Msvbvm60.dll", "Oleaut32.dll", "Vb6fr.dll",   "Olepro32.dll",
    "Stdole.tlb",   "Msdxm.ocx",  "Msscript.ocx", "Msscrfr.dll",  "Msscript.cnt",
};

}  // namespace

Message incorrectFolderMessage()
{
    return critical("Répertoire incorrect !", "Erreur !");
}

Message programIconMessage(const std::string& icon, const std::string& problem)
{
    return warning("L'icône « " + icon + " » n'a pas été donnée au programme du menu (" + problem +
                       ") : il garde celle du lecteur.",
                   "Compilation");
}

Message forgottenMediaMessage(int buttonNumber)
{
    return info("Vous avez oublié d'indiquer un fichier multimédia pour le bouton n°" + std::to_string(buttonNumber) +
                    " !",
                "Compilation");
}

Message replaceCompilationQuestion(const std::string& target)
{
    Message m{"Dans le répertoire '" + target + "' un projet QOR a déjà été compilé. Voulez-vous le remplacer ?",
              "Compilation", MessageIcon::Question, MessageButtons::YesNo};
    m.defaultButton = 1;
    return m;
}

Message noMainMenuMessage()
{
    return warning("Aucun menu principal trouvé dans ce répertoire !", "Sous menu");
}

Message subMenuExistsMessage()
{
    return warning("Un sous menu portant ce nom a déja été créé dans ce répertoire.", "Sous menu");
}

Message compilationFailedMessage(const Error& error)
{
    return critical("Erreur durant la compilation ! (" + error.description + ")", "Erreur");
}

Message subMenuCreatedMessage(const std::string& name)
{
    return info("Votre sous menu '" + name +
                    "' a été créé avec succès, pour le lancer depuis le menu principal (ou depuis un autre sous "
                    "menu), créez un bouton VBS puis cliquez sur 'Modifier le code VBS' et enfin dans 'Assistant' "
                    "choisissez 'Lancer un sous menu'.",
                "Sous menu");
}

Message runtimeHelpMessage()
{
    std::string text =
        "Si vous cochez cette case, votre menu compilé fera environ 900Ko au lieu de 4.5Mo en temps normal. "
        "Mais pour qu'il fonctionne il faut que les ordinateurs sur lesquels il sera exécuté possèdent les "
        "fichiers suivants dans le répertoire WINDOWS\\SYSTEM : ";
    for (const char* name : kHelpRuntimeNames)
        text += std::string(kNewline) + "- " + name;
    text += std::string(kNewline) + "Note : Ne cochez que si vous manquez vraiment d'espace.";
    return info(std::move(text), "Aide rapide");
}

Message qorNotAFolderMessage(const std::string& target)
{
    return warning("Dans le répertoire '" + target +
                       "', 'qor' n'est pas un dossier (c'est un fichier ou un lien symbolique). Renommez-le ou "
                       "choisissez un autre répertoire.",
                   "Compilation");
}

Message badFileNameMessage(const std::string& name, const std::string& title)
{
    return warning("Le nom '" + name +
                       "' ne convient pas : il doit être un simple nom de fichier, non vide, sans '/', '\\' ni "
                       "'..', en lettres d'Europe de l'Ouest.",
                   title);
}

Message fileNameClashMessage(const std::string& first, const std::string& second)
{
    return warning("Compilation impossible : les fichiers '" + first + "' et '" + second +
                       "' seraient copiés sous le même nom dans le dossier 'qor' (les majuscules et minuscules ne "
                       "comptent pas sur un CD). Renommez l'un des deux puis compilez à nouveau.",
                   "Compilation");
}

std::string compileFinalText(const std::string& target)
{
    return std::string("Compilation terminée :") + kNewline + kNewline +
           "Vous pouvez fermer cette fenêtre et graver à partir du répertoire " + target +
           " vers la racine du CD-R (et n'oubliez pas de graver votre (vos) fichier(s) multimédia(s) !).";
}

std::string browseTargetPrompt()
{
    return "Choisissez le dossier dans lequel votre menu sera compilé :";
}

Message testRunErrorMessage(const Error& error, const Phrases& phrases)
{
    return critical(phrases.text(30, "Erreur lors du test !!!"), error.description);
}

std::string exportKindName(const Phrases& phrases)
{
    return phrases.text(31, "exécutable");
}

std::string exportFolderPrompt(const std::string& kind, const Phrases& phrases)
{
    return phrases.text(32, "Ou sera placé l'") + kind + " ?";
}

Message incorrectPathMessage(const Phrases& phrases)
{
    return critical(phrases.text(33, "Chemin incorrect."), "Erreur");
}

std::string exportFileNamePrompt(const std::string& kind, const Phrases& phrases)
{
    return phrases.text(34, "Nom de l'") + kind + " ?";
}

Message copyRuntimeQuestion(const Phrases& phrases, const std::string& title)
{
    return Message{phrases.text(35, "Copier les fichiers 'RUNTIME' ?"), title, MessageIcon::Question,
                   MessageButtons::YesNoCancel};
}

Message exportDoneMessage(const std::string& kind, const std::string& extension, const Phrases& phrases)
{
    if (!phrases.languageActive())
        return info("L'" + kind + " a été créé ! (Plusieurs fichiers ont été placé dans le sous répertoire QOR, mais "
                                  "seul le ." +
                        extension + " est obligatoire.)",
                    "QOR");
    return info(phrases.text(36, "") + kind + phrases.text(37, "") + extension + ")", "QOR");
}

Message exportErrorMessage(const Error& error)
{
    return critical("Erreur :" + error.description, "Erreur n°" + std::to_string(error.number));
}

Message htmlNotWrittenMessage(const std::string& path, const Error& error)
{
    return critical("La page '" + path + "' n'a pas pu être écrite. (" + error.description + ")", "Erreur");
}

}  // namespace qor
