#include "editor/ui/run_time_texts.h"

#include "editor/ui/window_hooks.h"

namespace qor {
namespace {

// A whole text and its phrase (shown in parentheses when the French text is).
struct WholeText {
    const char* french;
    int phrase;
};

constexpr WholeText kWholeTexts[] = {
    {"Feuille de travail", 39},
    {"(Icône par défaut)", 24},
    {"(Icone par défaut)", 24},
    {"Aucun fichier récent", 44},
    {"Aucun plugin installé", 45},
    {"Procédures", 46},
    {"Bienvenue dans l'assistant création de projet QOR !", 47},
    {"Au démarrage...", 48},
    {"Création des boutons...", 49},
    {"A quoi servent ces boutons ?", 50},
    {"La fin approche...", 51},
    {"Sans Titre", 52},
    {"MAJ + clique pour déplacer", 53},
    {"MAJ + clique pour déplacer - Clique droit pour redimensionner", 54},
    {"<inconnu>", 55},
    {"Code VBS :", 57},
    {"Code VBS à exécuter au démarrage du projet", 58},
    {"Code VBS du minuteur", 59},
    {"Code VBS global", 60},
    {"Actions au survol de la feuille", 61},
    {"En attente de validation du répertoire...", 64},
    {"Dossier OK. Copie des fichiers :", 65},
    {"Terminé.", 66},
    {"Copie du filtre pour la transparence...", 69},
    {"Copie d'aurorun.exe...", 70},
    {"Création de l'Autorun...", 71},
    {"Création du répertoire 'qor'...", 72},
    {"Copie des fichiers RUNTIME...", 73},
    {"Copie de l'icône...", 74},
    {"Copie des fichiers images...", 75},
    {"Copie des fichiers sons...", 76},
    {"Compilation en cours...", 77},
};

// A text of fixed parts around a value, with their phrases (-1: no such part).
struct TextAroundValue {
    const char* before;
    int beforePhrase;
    const char* after;
    int afterPhrase;
};

constexpr TextAroundValue kTextsAroundValue[] = {
    {"Bouton ", 80, " (code)", 82},
    {"Bouton ", 80, " (vidéo)", 83},
    {"Bouton ", 80, " (quitter)", 84},
    {"Texte ", 81, "", -1},
    {"Code VBS sur bouton ", 62, "", -1},
    {"Actions au survol du bouton ", 63, "", -1},
    {"Copie de ", 67, "...", 68},
    {"Compilation terminée :\n\nVous pouvez fermer cette fenêtre et graver à partir du répertoire ", 78,
     " vers la racine du CD-R (et n'oubliez pas de graver votre (vos) fichier(s) multimédia(s) !).", 79},
    {"", -1, " octets )", 56},
};

}  // namespace

QString inInterfaceLanguage(const WindowHooks& hooks, const QString& french)
{
    for (const WholeText& t : kWholeTexts) {
        if (french != QString::fromUtf8(t.french))
            continue;
        if (!french.startsWith('('))
            return hooks.phrase(t.phrase, french);
        const QString inside = french.mid(1, french.size() - 2);
        return '(' + hooks.phrase(t.phrase, inside) + ')';
    }
    for (const TextAroundValue& t : kTextsAroundValue) {
        const QString before = QString::fromUtf8(t.before), after = QString::fromUtf8(t.after);
        if (french.size() < before.size() + after.size() || !french.startsWith(before) || !french.endsWith(after))
            continue;
        const QString value = french.mid(before.size(), french.size() - before.size() - after.size());
        return (t.beforePhrase < 0 ? before : hooks.phrase(t.beforePhrase, before)) + value +
               (t.afterPhrase < 0 ? after : hooks.phrase(t.afterPhrase, after));
    }
    return french;
}

}  // namespace qor
