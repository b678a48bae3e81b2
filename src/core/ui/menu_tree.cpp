#include "core/ui/menu_tree.h"

#include <map>

namespace qor {
namespace {

using K = MenuEntry::Kind;

MenuEntry command(CommandId id, std::string caption, std::string name, bool checkable = false)
{
    MenuEntry e;
    e.kind = K::Command;
    e.id = id;
    e.caption = std::move(caption);
    e.name = std::move(name);
    e.checkable = checkable;
    return e;
}

MenuEntry submenu(std::string caption, std::string name, std::vector<MenuEntry> children)
{
    MenuEntry e;
    e.kind = K::Submenu;
    e.caption = std::move(caption);
    e.name = std::move(name);
    e.children = std::move(children);
    return e;
}

MenuEntry special(K kind, std::string name)
{
    MenuEntry e;
    e.kind = kind;
    e.name = std::move(name);
    return e;
}

MenuEntry separator() { return special(K::Separator, ""); }

std::vector<MainMenu> buildMenus()
{
    using C = CommandId;
    std::vector<MainMenu> menus;
    menus.push_back({"Fichier", "&Fichier", "fichier_princ", {
        submenu("&Nouveau", "nouveau_mnu", {
            command(C::NewWizard, "&Assistant création", "assistant_mnu"),
            command(C::NewBlank, "Projet &vierge", "nouv_fich"),
        }),
        command(C::Open, "&Ouvrir", "ouvrir_fich"),
        command(C::Save, "&Enregistrer", "enr_fich"),
        command(C::SaveAs, "Enregistrer &Sous", "enrsous_fich"),
        submenu("Imprimer", "imprimer_mnu", {
            command(C::PrintToBmp, "Dans un fichier BMP", "impr_bmp_mnu"),
            command(C::PrintToClipboard, "Dans le presse papier", "impr_pp_mnu"),
            command(C::PrintToPaper, "Sur papier", "impr_papier_mnu"),
        }),
        command(C::FileProperties, "Propriétés", "proprietes_mnu"),
        separator(),
        special(K::RecentFiles, "fichrecent_mnu"),
        separator(),
        command(C::Quit, "&Quitter", "quitter_mnu"),
    }});
    menus.push_back({"Source", "&Source", "source_princ", {
        command(C::EditSource, "&Modidifier la source", "modif_source_mnu"),
        separator(),
        command(C::ReloadProject, "&Actualiser le projet", "actualiser_mnu"),
    }});
    menus.push_back({"Créer", "&Créer", "creer_princ", {
        command(C::TestProject, "&Tester le projet", "test_projet"),
        separator(),
        submenu("&Compiler/Créer", "compiler_mnu", {
            command(C::CompileAutorun, "En autorun (pour vos CDs)", "autorun_mnu"),
            command(C::CompileExecutable, "En exécutable simple", "exe_mnu"),
            command(C::CompileScreenSaver, "En ecran de veille", "ecranveille_mnu"),
            command(C::CompileHtml, "En page web (html)", "html_mnu"),
        }),
    }});
    menus.push_back({"Divers", "&Divers", "divers_princ", {
        special(K::Plugins, "plugin_mnu"),
    }});
    menus.push_back({"Options", "&Options", "options_princ", {
        command(C::PrecisePointer, "&Pointeur précis", "pointeur_mnu", true),
        command(C::MousePosition, "&Position de la souris", "possouris_mnu", true),
        command(C::ShowHandles, "Afficher les points &délimitant les objets", "points_mnu", true),
        command(C::WizardAtStart, "Afficher l'assistant &création au démarrage de QOR", "assistant_dem_mnu", true),
        command(C::AssociateFiles, "Associer les fichiers .qor à &QOR", "associer_mnu"),
        command(C::RequireMediaFile, "Obliger à configurer un fichier pour chaque bouton multimédia", "oblig_multimedia_mnu", true),
        separator(),
        submenu("Langue/Language", "langue_princ", {
            special(K::Languages, "langue_selection"),
        }),
        separator(),
        command(C::Appearances, "&Apparences...", "chg_coul_mnu"),
    }});
    menus.push_back({"?", "&?", "aide_princ", {
        command(C::Manual, "&Manuel", "manuel_mnu"),
        command(C::Faq, "&F.A.Q.", "faq_mnu"),
        command(C::Examples, "&Télécharger des exemples", "exemples_mnu"),
        command(C::Tips, "Tru&cs et astuces", "astuces_mnu"),
        command(C::Support, "A&ssistance", "assistance_mnu"),
        separator(),
        command(C::BugReport, "Signaler un bug", "bug_mnu"),
        command(C::VersionCheck, "Ai-je la dernière &version ?", "version_mnu"),
        separator(),
        command(C::About, "A &propos...", "apropos_mnu"),
    }});
    return menus;
}

void collectCaptions(const std::vector<MenuEntry>& entries, std::map<CommandId, std::string>& out)
{
    for (const auto& e : entries) {
        if (e.kind == K::Command)
            out.emplace(e.id, e.caption);
        collectCaptions(e.children, out);
    }
}

}  // namespace

const std::vector<MainMenu>& mainMenus()
{
    static const std::vector<MainMenu> menus = buildMenus();
    return menus;
}

namespace {

std::map<CommandId, std::string>& shownCaptions()
{
    static std::map<CommandId, std::string> shown;
    return shown;
}

}  // namespace

void showCommandCaptions(std::map<CommandId, std::string> shown)
{
    shownCaptions() = std::move(shown);
}

const std::string& commandCaption(CommandId id)
{
    if (auto it = shownCaptions().find(id); it != shownCaptions().end())
        return it->second;
    static const std::map<CommandId, std::string> captions = [] {
        std::map<CommandId, std::string> out;
        for (const auto& m : mainMenus())
            collectCaptions(m.entries, out);
        out.emplace(CommandId::OpenRecent, "");
        out.emplace(CommandId::RunPlugin, kNoPluginCaption);
        out.emplace(CommandId::ChooseLanguage, "Langue/Language");
        return out;
    }();
    static const std::string none;
    auto it = captions.find(id);
    return it == captions.end() ? none : it->second;
}

}  // namespace qor
