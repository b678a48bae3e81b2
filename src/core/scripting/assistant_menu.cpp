#include "core/scripting/assistant_menu.h"

namespace qor {
namespace {

using Entries = std::vector<AssistantEntry>;

AssistantEntry item(std::string caption, std::string name, int index = -1)
{
    return {std::move(caption), std::move(name), index, {}};
}

AssistantEntry sub(std::string caption, Entries children)
{
    return {std::move(caption), {}, -1, std::move(children)};
}

// "Oui" and "Non" under a caption, the pair most switches come as.
AssistantEntry yesNo(std::string caption, std::string yes, std::string no)
{
    return sub(std::move(caption), {item("Oui", std::move(yes)), item("Non", std::move(no))});
}

AssistantEntry xy(std::string x, std::string y)
{
    return sub("Changer la position", {item("X", std::move(x)), item("Y", std::move(y))});
}

AssistantEntry windowMenu()
{
    return sub("Menu/Fenêtre",
               {item("Maximiser", "max_mnu"), item("Minimiser", "min_mnu"), item("Taille normale", "normtaille_mnu"),
                item("Fermer", "fermer_mnu"), item("Changer le titre", "chgertitre_mnu"),
                item("Changer le couleur", "chger_coul_mnu0"), xy("xp_mnu", "yp_mnu"),
                item("Changer le curseur", "curseur_menu0"), yesNo("Visible", "ouiv_mnu", "nonv_mnu"),
                sub("Bordure", {item("Changer l'épaisseur", "epaisseur_mnu"),
                                item("Changer la couleur", "chger_coul_mnu1"),
                                sub("Changer la forme", {item("Rectangle", "forme_sousmenu", 0),
                                                         item("Oval", "forme_sousmenu", 2),
                                                         item("Rectangle arrondi", "forme_sousmenu", 4)}),
                                yesNo("Visible", "ouibordure", "nonbordure")}),
                sub("Image de fond",
                    {item("Changer", "img_changer_mnu"), yesNo("Etirer", "ouie_mnu", "none_mnu")})});
}

AssistantEntry textBoxMenu()
{
    return sub("Boîte de texte",
               {sub("Alignement", {item("A gauche", "aligntxt_mnu", 0), item("A droite", "aligntxt_mnu", 1),
                                   item("Centré", "aligntxt_mnu", 2)}),
                item("Changer la police", "chger_police_mnu"),
                sub("Changer la couleur",
                    {item("Du texte", "coul_txt_mnu"), item("De fond", "fond_coul_txt_mnu")}),
                item("Changer le curseur", "curseur_chger1_mnu"),
                yesNo("Verrouiller", "ouiverrou_mnu", "nonverrou_mnu"),
                yesNo("Visible", "ouitxtvmenu", "nontxtvmenu"),
                sub("Changer la taille",
                    {item("Largeur", "largtailletxt_mnu"), item("Hauteur", "hauteurtailletxt_mnu")}),
                xy("xpos_txt_mnu", "ypos_txt_mnu"),
                yesNo("Barre de défilement", "ouibarretxt_mnu", "nonbarretxt_mnu"),
                item("Changer le texte", "chgertxt_mnu")});
}

AssistantEntry buttonMenu()
{
    return sub("Bouton", {yesNo("Activer", "ouiactive_mnu", "nonactive_mnu"),
                          xy("xchger_pos_bmnu", "ychger_pos_bmnu"),
                          item("Changer le curseur", "changer_curseur_bouton"),
                          item("Changer l'image", "chger_img_botuon"),
                          yesNo("Visible", "ouivisible_bouton_mnu", "nonvisible_bouton_mnu")});
}

Entries buildAssistantMenu()
{
    return {
        item("Afficher un message", "msg"),
        item("Lancer un sous menu", "sousmenu_princ"),
        sub("Internet", {item("Ouvrir une page web", "web"), item("Ouvrir une page HTML", "html_ouvr_mnu"),
                         item("Envoyer un email", "email")}),
        sub("Ouvrir/Exécuter", {item("Un fichier texte", "texte_mnu"), item("Un document", "doc_mnu"),
                                item("Un répertoire", "rep_mnu"), item("Un programme", "exe_")}),
        sub("Lecteur CD", {item("Ouvrir", "ouvCD_mnu"), item("Fermer", "fermercd_mnu")}),
        sub("Multimédia", {item("Jouer un son", "jouerunson_mnu"), item("Jouer un son WAV", "jouerunsonwav_menu"),
                           item("Jouer une vidéo", "jouerunevideo_mnu")}),
        windowMenu(),
        sub("Ecran", {item("Changer le curseur", "curseur_menu1")}),
        sub("Minuteur", {yesNo("Activer", "ouiam_mnu", "nonam_mnu"),
                         item("Changer l'ntervalle", "intervalle_mnu")}),
        textBoxMenu(),
        buttonMenu(),
        item("Annuler", std::string(kAssistantCancelName)),
    };
}

Entries buildCursorMenu()
{
    Entries entries;
    for (auto [caption, cursor] : {std::pair{"Curseur par défaut", 0}, std::pair{"Flèche", 1},
                                   std::pair{"Croix", 2}, std::pair{"Curseur texte (I)", 3},
                                   std::pair{"Curseur de redimensionnement", 5}, std::pair{"Flèche haut", 10},
                                   std::pair{"Sablier", 11}, std::pair{"Interdit", 12},
                                   std::pair{"Personnalisé...", kCustomCursor}})
        entries.push_back(item(caption, "ccu_mnu", cursor));
    return entries;
}

}  // namespace

const std::vector<AssistantEntry>& assistantMenu()
{
    static const Entries menu = buildAssistantMenu();
    return menu;
}

const std::vector<AssistantEntry>& cursorMenu()
{
    static const Entries menu = buildCursorMenu();
    return menu;
}

}  // namespace qor
