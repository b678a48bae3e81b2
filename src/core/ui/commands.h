#pragma once

namespace qor {

// Every command of the main window's menus. The editor's menus carry these
// ids and hand them to one dispatch point; the recent files, plug-in and
// language entries also carry their position in their list.
enum class CommandId {
    // "&Fichier"
    NewWizard,          // "&Nouveau" > "&Assistant création"
    NewBlank,           // "&Nouveau" > "Projet &vierge"
    Open,               // "&Ouvrir"
    Save,               // "&Enregistrer"
    SaveAs,             // "Enregistrer &Sous"
    PrintToBmp,         // "Imprimer" > "Dans un fichier BMP"
    PrintToClipboard,   // "Imprimer" > "Dans le presse papier"
    PrintToPaper,       // "Imprimer" > "Sur papier"
    FileProperties,     // "Propriétés"
    OpenRecent,         // one entry of the recent files list (with its position)
    Quit,               // "&Quitter"
    // "&Source"
    EditSource,         // "&Modidifier la source"
    ReloadProject,      // "&Actualiser le projet"
    // "&Créer"
    TestProject,        // "&Tester le projet"
    CompileAutorun,     // "&Compiler/Créer" > "En autorun (pour vos CDs)"
    CompileExecutable,  // "&Compiler/Créer" > "En exécutable simple"
    CompileScreenSaver, // "&Compiler/Créer" > "En ecran de veille" (no action)
    CompileHtml,        // "&Compiler/Créer" > "En page web (html)"
    // "&Divers"
    RunPlugin,          // position 0 is "Aucun plugin installé"
    // "&Options"
    PrecisePointer,     // "&Pointeur précis"
    MousePosition,      // "&Position de la souris"
    ShowHandles,        // "Afficher les points &délimitant les objets"
    WizardAtStart,      // "Afficher l'assistant &création au démarrage de QOR"
    AssociateFiles,     // "Associer les fichiers .qor à &QOR"
    RequireMediaFile,   // "Obliger à configurer un fichier pour chaque bouton multimédia"
    ChooseLanguage,     // "Langue/Language" > item (0 = "Français")
    Appearances,        // "&Apparences..."
    // "&?"
    Manual,             // "&Manuel"
    Faq,                // "&F.A.Q."
    Examples,           // "&Télécharger des exemples"
    Tips,               // "Tru&cs et astuces"
    Support,            // "A&ssistance"
    BugReport,          // "Signaler un bug"
    VersionCheck,       // "Ai-je la dernière &version ?"
    About,              // "A &propos..."
};

}  // namespace qor
