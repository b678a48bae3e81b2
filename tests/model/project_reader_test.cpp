#include <gtest/gtest.h>

#include <algorithm>

#include "model/project_writer.h"
#include "project_test_env.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

using test::joined;
using test::projectDataLines;
using test::withRow;

const RelativePathRule kAsRead("", "", [](const std::string&) { return false; });

TEST(ProjectReader, FlagLinesFollowTheirOwnRules)
{
    // border: greater than 0; contextMenu: not 0; transparent and fontBold: exactly 1.
    struct Case { const char* line; bool border, contextMenu, transparent, bold; };
    const Case cases[] = {
        {" 1 ", true, true, true, true},   {" 0 ", false, false, false, false},
        {"-1 ", false, true, false, false}, {" 2 ", true, true, false, false},
        {" 1.0 ", true, true, true, true},  {" 0.5 ", true, true, false, false},
        {"abc", false, false, false, false}, {"1,5", true, true, true, true},
        {"", false, false, false, false},
    };
    for (const auto& c : cases) {
        auto lines = projectDataLines("full_v11.qor");
        lines = withRow(lines, "[Général]", 5, c.line);
        lines = withRow(lines, "[ParamsPlus]", 4, c.line);
        lines = withRow(lines, "[Bouton]", 10, c.line);
        lines = withRow(lines, "[Texte]", 5, c.line);
        test::ProjectEnv env;
        env.read(joined(lines));
        EXPECT_EQ(env.project.border, c.border) << c.line;
        EXPECT_EQ(env.project.contextMenu, c.contextMenu) << c.line;
        EXPECT_EQ(env.project.button(1).transparent, c.transparent) << c.line;
        EXPECT_EQ(env.project.text(1).fontBold, c.bold) << c.line;
        EXPECT_TRUE(env.dialogs.messages.empty()) << c.line;
    }
}

TEST(ProjectReader, TheStartupActionLineSetsTheChoiceUnderTheLoadingFlag)
{
    struct Case { const char* line; const char* action; const char* choice; };
    const Case cases[] = {
        {"", "", "choice Rien"},
        {"intro.avi", "intro.avi", "choice Média"},
        {"VBS:MsgBox 1¤MsgBox 2", "VBS:MsgBox 1\r\nMsgBox 2", "choice VBS"},
        {"vbs:x", "vbs:x", "choice VBS"},
        {"VBS:", "VBS:", "choice Média"},
        {"film¤1.avi", "film¤1.avi", "choice Média"},
    };
    for (const auto& c : cases) {
        test::ProjectEnv env;
        env.read(joined(withRow(projectDataLines("full_v11.qor"), "[ParamsPlus]", 2, c.line)));
        EXPECT_EQ(env.project.startupAction, c.action) << c.line;
        EXPECT_EQ(env.hooks.eventsStartingWith("loading").size(), 2u);
        auto on = std::find(env.hooks.events.begin(), env.hooks.events.end(), "loading on");
        ASSERT_LE(on + 3, env.hooks.events.end());
        EXPECT_EQ(*(on + 1), c.choice) << c.line;
        EXPECT_EQ(*(on + 2), "loading off") << c.line;
    }
}

TEST(ProjectReader, TheTimerIntervalIsTheNumberReadWrittenBackAsText)
{
    struct Case { const char* line; const char* interval; };
    const Case cases[] = {
        {"1000", "1000"}, {" 250 ", "250"}, {"abc", "0"}, {"12.5", "12.5"}, {"8,25", "8"}, {"&H10", "16"}, {"", "0"},
    };
    for (const auto& c : cases) {
        test::ProjectEnv env;
        env.read(joined(withRow(projectDataLines("full_v11.qor"), "[ParamsPlus]", 6, c.line)));
        EXPECT_EQ(env.project.timerInterval, c.interval) << c.line;
    }
}

TEST(ProjectReader, Version10ButtonBlocksEndAfterTheActionLine)
{
    for (const char* file : {"v10_no_format.qor", "v10_empty_version.qor"}) {
        test::ProjectEnv env;
        env.load(test::projectData(file));
        EXPECT_TRUE(env.dialogs.messages.empty()) << file;
        ASSERT_EQ(env.project.savableButtons().size(), 2u) << file;
        const MenuButton& second = env.project.button(2);
        EXPECT_EQ(second.hoverScript, "") << file;
        EXPECT_FALSE(second.transparent) << file;
        EXPECT_EQ(second.kind, file == std::string("v10_no_format.qor") ? "code" : "vidéo");
    }
    test::ProjectEnv env;
    env.load(test::projectData("v10_no_format.qor"));
    const MenuProject& p = env.project;
    EXPECT_EQ(p.backgroundMusic, "");    // a placeholder line keeps the reset value
    EXPECT_EQ(p.timerScript, "");
    EXPECT_EQ(p.clickSound, "");
    EXPECT_FALSE(p.border);
    EXPECT_TRUE(p.timerEnabled);
    EXPECT_EQ(p.timerInterval, "500");
    EXPECT_EQ(p.startupAction, "intro.avi");
    EXPECT_EQ(p.backgroundColor, 12632256);
    EXPECT_EQ(p.button(1).kind, "quitter");
    EXPECT_EQ(p.text(1).fontName, "Arial");
    EXPECT_EQ(p.text(1).left, 200);
    EXPECT_EQ(p.text(1).top, 100);
}

TEST(ProjectReader, EveryKindOfLineEndReadsTheSame)
{
    std::string crLf = test::readBytes(test::projectData("full_v11.qor"));
    std::string lf = replaceAll(crLf, "\r\n", "\n");
    std::string cr = replaceAll(crLf, "\r\n", "\r");
    std::string written[3];
    int i = 0;
    for (const std::string* bytes : {&crLf, &lf, &cr}) {
        test::ProjectEnv env;
        env.read(decodeCp1252(*bytes));
        written[i++] = projectFileText(env.project, kAsRead);
    }
    EXPECT_EQ(written[1], written[0]);
    EXPECT_EQ(written[2], written[0]);
    EXPECT_NE(written[0].find("Jeanne Dupré"), std::string::npos);
}

TEST(ProjectReader, CommentLinesCanChangeOrGoWithoutEffect)
{
    auto lines = projectDataLines("full_v11.qor");
    test::ProjectEnv original;
    original.read(joined(lines));

    lines.erase(lines.begin(), lines.begin() + 3);   // the preamble
    lines.resize(lines.size() - 2);                   // the trailer
    // Lines between sections are passed over.
    lines.insert(std::find(lines.begin(), lines.end(), "[Général]"), "Une ligne qu'une version future aurait ajoutée");
    for (auto& l : lines)
        if (l.rfind("Gestion de la forme", 0) == 0)
            l = "Autre commentaire";
    test::ProjectEnv changed;
    changed.read(joined(lines));
    EXPECT_EQ(projectFileText(changed.project, kAsRead), projectFileText(original.project, kAsRead));
}

TEST(ProjectReader, QuirksOfHandWrittenFilesAreReadAsTheRulesSay)
{
    test::ProjectEnv env;
    env.read(decodeCp1252(test::readBytes(test::projectData("quirks.qor"))), "");
    EXPECT_TRUE(env.dialogs.messages.empty());
    const MenuProject& p = env.project;
    EXPECT_TRUE(p.fullScreen);
    EXPECT_EQ(p.width, 9600);                       // kept: "plein" sets only the flag
    EXPECT_EQ(p.authorEmail, "'para1");             // not a placeholder-aware line
    EXPECT_EQ(p.globalScript, "'para");             // not longer than "'para": a value
    EXPECT_EQ(p.button(1).transparentColor, 255);
    EXPECT_EQ(p.button(3).transparentColor, -256);  // "&HFF00" is a 16-bit number
    EXPECT_EQ(p.text(1).content, "SUPPR");
    EXPECT_EQ(p.text(2).fontName, "Police Inconnue Ltd");
    EXPECT_EQ(p.text(2).fontSize, 8);               // "8,25" stops at the comma
    // Saved, the button without hover image and the deleted text box are gone.
    EXPECT_EQ(projectFileText(p, kAsRead), test::expectedText("quirks_saved.qor"));
}

TEST(ProjectReader, ElementsAreNumberedInFileOrderAndAnnouncedToTheEditor)
{
    test::ProjectEnv env;
    const std::string path = test::projectData("full_v11.qor");
    const std::string folder = folderOf(path);
    env.load(path);
    const std::vector<std::string> expected = {
        "resetViews", "folder " + folder, "background " + folder + "fond.jpg",
        "loading on", "choice VBS", "loading off",
        "image 1 " + folder + "b1_normal.gif", "button 1 code",
        "image 2 C:\\images\\quitter.gif", "button 2 quitter",
        "image 3 " + folder + "b3.gif", "button 3 vidéo",
        "text 1", "text 2", "recent " + path,
    };
    EXPECT_EQ(env.hooks.events, expected);

    // Read again without a reset, numbering goes on.
    loadProject(env.project, path, false, env.services);
    EXPECT_EQ(env.project.button(6).kind, "vidéo");
    EXPECT_EQ(env.project.textCount(), 4);
}

}  // namespace
}  // namespace qor
