#include <gtest/gtest.h>

#include <set>

#include "core/ui/menu_tree.h"

namespace qor {
namespace {

void walk(const std::vector<MenuEntry>& entries, std::vector<const MenuEntry*>& out)
{
    for (const auto& e : entries) {
        out.push_back(&e);
        walk(e.children, out);
    }
}

TEST(MenuTree, SixMenusUnderTheirTitles)
{
    const auto& menus = mainMenus();
    ASSERT_EQ(menus.size(), 6u);
    const char* titles[] = {"Fichier", "Source", "Créer", "Divers", "Options", "?"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(menus[i].title, titles[i]);
        EXPECT_EQ(menus[i].caption, std::string("&") + titles[i]);
    }
}

TEST(MenuTree, EveryCommandIdAppearsOnceAndNamesAreUnique)
{
    std::vector<const MenuEntry*> all;
    for (const auto& m : mainMenus())
        walk(m.entries, all);
    std::set<CommandId> ids;
    std::set<std::string> names;
    for (const auto* e : all) {
        if (e->kind == MenuEntry::Kind::Command) {
            EXPECT_TRUE(ids.insert(e->id).second) << e->caption;
        }
        if (!e->name.empty()) {
            EXPECT_TRUE(names.insert(e->name).second) << e->name;
        }
    }
    // Every id but the list entries (recent files, plug-ins, languages) is a menu command.
    EXPECT_EQ(ids.size(), std::size_t(CommandId::About) + 1 - 3);
}

TEST(MenuTree, CaptionsThatDialogsUseAsTitles)
{
    struct Case { CommandId id; const char* caption; };
    const Case cases[] = {
        {CommandId::Open, "&Ouvrir"},
        {CommandId::SaveAs, "Enregistrer &Sous"},
        {CommandId::Quit, "&Quitter"},
        {CommandId::EditSource, "&Modidifier la source"},
        {CommandId::CompileScreenSaver, "En ecran de veille"},
        {CommandId::VersionCheck, "Ai-je la dernière &version ?"},
        {CommandId::RunPlugin, "Aucun plugin installé"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(commandCaption(c.id), c.caption);
}

}  // namespace
}  // namespace qor
