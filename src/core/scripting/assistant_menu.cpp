#include "core/scripting/assistant_menu.h"

namespace qor {
namespace {

using Entries = std::vector<AssistantEntry>;

AssistantEntry item(std::string caption, std::string name, int index = -1)
{
    return {std::move(caption), std::move(name), index, {}};
}

// A submenu has a control name too, so a translation can retitle it; the
// titles that recur in several menus are one family, told apart by index.
AssistantEntry sub(std::string caption, std::string name, int index, Entries children)
{
    return {std::move(caption), std::move(name), index, std::move(children)};
}

AssistantEntry sub(std::string caption, std::string name, Entries children)
{
    return sub(std::move(caption), std::move(name), -1, std::move(children));
}

// "Oui" and "Non" under a caption, the pair most switches come as.
AssistantEntry yesNo(std::string caption, std::string name, int index, std::string yes, std::string no)
{
    return sub(std::move(caption), std::move(name), index, {item("Oui", std::move(yes)), item("Non", std::move(no))});
}

AssistantEntry xy(int index, std::string x, std::string y)
{
    return sub("Changer la position", "position_smnu", index, {item("X", std::move(x)), item("Y", std::move(y))});
}

AssistantEntry windowMenu()
{
    return sub(
        "Menu/Fenêtre", "fenetre_smnu",
        {item("Maximiser", "max_mnu"), item("Minimiser", "min_mnu"), item("Taille normale", "normtaille_mnu"),
         item("Fermer", "fermer_mnu"), item("Changer le titre", "chgertitre_mnu"),
         item("Changer le couleur", "chger_coul_mnu0"), xy(0, "xp_mnu", "yp_mnu"),
         item("Changer le curseur", "curseur_menu0"), yesNo("Visible", "visible_smnu", 0, "ouiv_mnu", "nonv_mnu"),
         sub("Bordure", "bordure_smnu",
             {item("Changer l'épaisseur", "epaisseur_mnu"), item("Changer la couleur", "chger_coul_mnu1"),
              sub("Changer la forme", "forme_smnu",
                  {item("Rectangle", "forme_sousmenu", 0), item("Oval", "forme_sousmenu", 2),
                   item("Rectangle arrondi", "forme_sousmenu", 4)}),
              yesNo("Visible", "visible_smnu", 1, "ouibordure", "nonbordure")}),
         sub("Image de fond", "image_fond_smnu",
             {item("Changer", "img_changer_mnu"), yesNo("Etirer", "etirer_smnu", -1, "ouie_mnu", "none_mnu")})});
}

AssistantEntry textBoxMenu()
{
    return sub("Boîte de texte", "texte_smnu",
               {sub("Alignement", "alignement_smnu",
                    {item("A gauche", "aligntxt_mnu", 0), item("A droite", "aligntxt_mnu", 1),
                     item("Centré", "aligntxt_mnu", 2)}),
                item("Changer la police", "chger_police_mnu"),
                sub("Changer la couleur", "couleur_texte_smnu",
                    {item("Du texte", "coul_txt_mnu"), item("De fond", "fond_coul_txt_mnu")}),
                item("Changer le curseur", "curseur_chger1_mnu"),
                yesNo("Verrouiller", "verrou_smnu", -1, "ouiverrou_mnu", "nonverrou_mnu"),
                yesNo("Visible", "visible_smnu", 2, "ouitxtvmenu", "nontxtvmenu"),
                sub("Changer la taille", "taille_texte_smnu",
                    {item("Largeur", "largtailletxt_mnu"), item("Hauteur", "hauteurtailletxt_mnu")}),
                xy(1, "xpos_txt_mnu", "ypos_txt_mnu"),
                yesNo("Barre de défilement", "barre_smnu", -1, "ouibarretxt_mnu", "nonbarretxt_mnu"),
                item("Changer le texte", "chgertxt_mnu")});
}

AssistantEntry buttonMenu()
{
    return sub("Bouton", "bouton_smnu",
               {yesNo("Activer", "activer_smnu", 0, "ouiactive_mnu", "nonactive_mnu"),
                xy(2, "xchger_pos_bmnu", "ychger_pos_bmnu"), item("Changer le curseur", "changer_curseur_bouton"),
                item("Changer l'image", "chger_img_botuon"),
                yesNo("Visible", "visible_smnu", 3, "ouivisible_bouton_mnu", "nonvisible_bouton_mnu")});
}

Entries buildAssistantMenu()
{
    return {
        item("Afficher un message", "msg"),
        item("Lancer un sous menu", "sousmenu_princ"),
        sub("Internet", "internet_smnu",
            {item("Ouvrir une page web", "web"), item("Ouvrir une page HTML", "html_ouvr_mnu"),
             item("Envoyer un email", "email")}),
        sub("Ouvrir/Exécuter", "ouvrir_smnu",
            {item("Un fichier texte", "texte_mnu"), item("Un document", "doc_mnu"), item("Un répertoire", "rep_mnu"),
             item("Un programme", "exe_")}),
        sub("Lecteur CD", "lecteur_cd_smnu", {item("Ouvrir", "ouvCD_mnu"), item("Fermer", "fermercd_mnu")}),
        sub("Multimédia", "multimedia_smnu",
            {item("Jouer un son", "jouerunson_mnu"), item("Jouer un son WAV", "jouerunsonwav_menu"),
             item("Jouer une vidéo", "jouerunevideo_mnu")}),
        windowMenu(),
        sub("Ecran", "ecran_smnu", {item("Changer le curseur", "curseur_menu1")}),
        sub("Minuteur", "minuteur_smnu",
            {yesNo("Activer", "activer_smnu", 1, "ouiam_mnu", "nonam_mnu"),
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
