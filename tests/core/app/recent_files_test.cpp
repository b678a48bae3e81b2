#include <gtest/gtest.h>

#include "core/app/recent_files.h"
#include "fake_dialogs.h"
#include "fake_settings.h"
#include "fake_shell_view.h"

namespace qor {
namespace {

struct RecentFixture : ::testing::Test {
    AppState state;
    test::FakeSettings store;
    test::FakeDialogs dialogs;
    test::FakeShellView view;
    UserSettings settings{state, store, dialogs};
    RecentFiles recent{settings, view};

    std::vector<std::string> stored()
    {
        std::vector<std::string> out;
        for (int n = 1; n <= 5; ++n)
            out.push_back(store.qor("FichiersRecents", "Fichier" + std::to_string(n)));
        return out;
    }
};

TEST(RecentFilesCaption, ShortPathsInFullLongOnesCut)
{
    struct Case { const char* path; const char* caption; };
    const Case cases[] = {
        {"/a/b/c.qor", "/a/b/c.qor"},                      // ten characters
        {"/a/b/cd.qor", "/a/b/cd.qo.../cd.qor"},           // eleven
        {"/home/élodie/menus/cd.qor", "/home/élod.../cd.qor"},  // characters, not bytes
        {"C:\\Mes menus\\cd.qor", "C:\\Mes men.../cd.qor"},     // a path written on Windows
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RecentFiles::caption(c.path), c.caption) << c.path;
}

TEST_F(RecentFixture, EmptyListShowsOneDisabledEntry)
{
    recent.rebuild();
    EXPECT_EQ(view.recentFiles, (std::vector<RecentFileEntry>{{0, "Aucun fichier récent", "", false}}));
    EXPECT_EQ(recent.pathAt(1), std::nullopt);
}

TEST_F(RecentFixture, SixProjectsLeaveTheSecondToTheSixth)
{
    recent.rebuild();
    for (int i = 1; i <= 6; ++i)
        recent.add("/p/projet" + std::to_string(i) + ".qor");
    EXPECT_EQ(stored(), (std::vector<std::string>{"/p/projet2.qor", "/p/projet3.qor", "/p/projet4.qor",
                                                  "/p/projet5.qor", "/p/projet6.qor"}));
    ASSERT_EQ(view.recentFiles.size(), 5u);
    EXPECT_EQ(view.recentFiles[0], (RecentFileEntry{1, "/p/projet2.../projet2.qor", "/p/projet2.qor", true}));
    EXPECT_EQ(recent.pathAt(5), std::optional<std::string>("/p/projet6.qor"));
    EXPECT_EQ(recent.pathAt(6), std::nullopt);
}

TEST_F(RecentFixture, AListedPathKeepsItsPlace)
{
    recent.rebuild();
    recent.add("/p/a.qor");
    recent.add("/p/b.qor");
    recent.add("/p/a.qor");
    recent.add("/P/a.qor");  // another path: the comparison is exact
    EXPECT_EQ(stored(), (std::vector<std::string>{"/p/a.qor", "/p/b.qor", "/P/a.qor", "<unset>", "<unset>"}));
}

TEST_F(RecentFixture, ListReadFromTheStoreAtStart)
{
    store.values[{"QOR", "FichiersRecents", "Fichier1"}] = "/x/un.qor";
    store.values[{"QOR", "FichiersRecents", "Fichier3"}] = "/x/trois.qor";
    recent.rebuild();
    EXPECT_EQ(recent.paths(), (std::vector<std::string>{"/x/un.qor", "/x/trois.qor"}));
    // Each command stands for its own store entry, gaps included.
    EXPECT_EQ(view.recentFiles[1].position, 3);
    EXPECT_EQ(recent.pathAt(3), std::optional<std::string>("/x/trois.qor"));
    EXPECT_EQ(recent.pathAt(2), std::nullopt);
    // Without "Fichier1" the others are not shown.
    store.values[{"QOR", "FichiersRecents", "Fichier1"}] = "";
    recent.rebuild();
    EXPECT_EQ(view.recentFiles.size(), 1u);
    EXPECT_FALSE(view.recentFiles[0].enabled);
}

TEST_F(RecentFixture, AStoreThatCannotBeWrittenIsReportedOnce)
{
    store.writable = false;
    recent.rebuild();
    recent.add("/p/a.qor");
    recent.add("/p/b.qor");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.lastMessage(), settingsNotSavedMessage());
    EXPECT_EQ(view.recentFiles.size(), 1u);  // the list stays as the store has it
}

}  // namespace
}  // namespace qor
