#include <gtest/gtest.h>

#include "core/app/plugins.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "fake_shell_view.h"
#include "temp_dir.h"
#include "text/cp1252.h"

namespace qor {
namespace {

struct PluginsFixture : ::testing::Test {
    test::TempDir dir;
    AppState state;
    test::FakeShellView view;
    test::FakeDialogs dialogs;
    test::FakeDesktop desktop;
    Plugins plugins{state, view, dialogs, desktop};

    PluginsFixture() { state.programFolder = dir.folder(); }

    void loadWith(const std::string& commandText)
    {
        dir.write(kPluginsFileName, "[DEBUT]\r\nMon plugin\r\n" + commandText + "\r\n");
        ASSERT_TRUE(plugins.load().ok());
    }
};

TEST(PluginLines, PairsAfterTheStartLine)
{
    struct Case {
        const char* what;
        std::vector<std::string> lines;
        std::vector<PluginCommand> commands;
        bool started;
        bool error;
    };
    const Case cases[] = {
        {"no start line", {"Calc", "s1:calc"}, {}, false, false},
        {"start line only", {"texte libre", "[DEBUT]"}, {}, true, false},
        {"pairs", {"libre", "[DEBUT]", "Calc", "s1:calc", "Site", "se:http://x"},
         {{"Calc", "s1:calc"}, {"Site", "se:http://x"}}, true, false},
        {"only the first start line counts", {"[DEBUT]", "[DEBUT]", "x"}, {{"[DEBUT]", "x"}}, true, false},
        {"the start line must match exactly", {"[debut]", "Calc", "s1:calc"}, {}, false, false},
        {"an unpaired last line keeps the pairs before it", {"[DEBUT]", "Calc", "s1:calc", "Orphelin"},
         {{"Calc", "s1:calc"}}, true, true},
    };
    for (const auto& c : cases) {
        PluginList list = readPluginLines(c.lines);
        EXPECT_EQ(list.commands, c.commands) << c.what;
        EXPECT_EQ(list.started, c.started) << c.what;
        EXPECT_EQ(list.error.has_value(), c.error) << c.what;
        if (list.error) {
            EXPECT_EQ(list.error->number, err::InputPastEnd);
        }
    }
}

TEST_F(PluginsFixture, TheMenuFollowsTheFile)
{
    ASSERT_TRUE(plugins.load().ok());  // no file
    EXPECT_TRUE(view.plugins.empty());
    EXPECT_TRUE(view.pluginPlaceholderVisible);

    dir.write(kPluginsFileName, "Calc\r\ns1:calc\r\n");
    ASSERT_TRUE(plugins.load().ok());
    EXPECT_TRUE(view.pluginPlaceholderVisible);

    dir.write(kPluginsFileName, "[DEBUT]\r\n");
    ASSERT_TRUE(plugins.load().ok());
    EXPECT_TRUE(view.plugins.empty());
    EXPECT_FALSE(view.pluginPlaceholderVisible);

    dir.write(kPluginsFileName, "[DEBUT]\r\nCalc\r\ns1:calc\r\nOrphelin\r\n");
    Status s = plugins.load();
    ASSERT_FALSE(s.ok());
    EXPECT_EQ(s.error().number, err::InputPastEnd);
    EXPECT_EQ(view.plugins, (std::vector<PluginCommand>{{"Calc", "s1:calc"}}));
    EXPECT_FALSE(view.pluginPlaceholderVisible);
}

TEST_F(PluginsFixture, VerbsActOnTheirArgument)
{
    using Opened = test::FakeDesktop::Opened;
    using Started = test::FakeDesktop::Started;
    struct Case {
        const char* text;
        std::vector<Started> started;
        std::vector<Opened> opened;
        std::vector<std::string> messages;
        int panels;
    };
    const Case cases[] = {
        {"s1:gedit /tmp/a.txt", {{"gedit /tmp/a.txt", WindowShow::Normal}}, {}, {}, 0},
        {"S1:calc", {{"calc", WindowShow::Normal}}, {}, {}, 0},
        {"MB:Bonjour¤à tous", {}, {}, {"Bonjour\r\nà tous"}, 0},
        {"se:index.htm", {}, {{"index.htm", WindowShow::Normal}}, {}, 0},
        {"sh|http://qor.example.org", {}, {{"http://qor.example.org", WindowShow::Hidden}}, {}, 0},
        {"cl", {}, {}, {"Impossible de démarrer le plugin !"}, 0},
        {"cl:", {}, {}, {}, 1},
        {"xx:rien", {}, {}, {}, 0},
        {"s1", {}, {}, {"Impossible de démarrer le plugin !"}, 0},
        {"é", {}, {}, {"Impossible de démarrer le plugin !"}, 0},
        {"mb:", {}, {}, {""}, 0},
    };
    for (const auto& c : cases) {
        test::FakeDesktop d;
        test::FakeDialogs dl;
        test::FakeShellView v;
        Plugins p{state, v, dl, d};
        dir.write(kPluginsFileName, encodeCp1252(std::string("[DEBUT]\r\nMon plugin\r\n") + c.text + "\r\n"));
        ASSERT_TRUE(p.load().ok());
        p.run(1);
        EXPECT_EQ(d.started, c.started) << c.text;
        EXPECT_EQ(d.opened, c.opened) << c.text;
        std::vector<std::string> texts;
        for (const auto& m : dl.messages)
            texts.push_back(m.text);
        EXPECT_EQ(texts, c.messages) << c.text;
        EXPECT_EQ(v.appearancePanelOpenings, c.panels) << c.text;
    }
}

TEST_F(PluginsFixture, MessagesTitlesAndFailures)
{
    loadWith("mb:Salut");
    plugins.run(1);
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Salut", "Information", MessageIcon::Information}));

    plugins.run(0);
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"Aucun plugin installé", "Aucun plugin installé", MessageIcon::Information}));

    loadWith("s1:introuvable");
    desktop.startSucceeds = false;
    plugins.run(1);
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Impossible de démarrer le plugin !", "Erreur", MessageIcon::Critical}));

    std::vector<std::string> list(18, "?");
    list[7] = "Error";
    list[17] = "Cannot start the plug-in!";
    state.phrases.useLanguage(list);
    plugins.run(1);
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Cannot start the plug-in!", "Error", MessageIcon::Critical}));
}

}  // namespace
}  // namespace qor
