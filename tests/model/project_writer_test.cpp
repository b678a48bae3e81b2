#include <gtest/gtest.h>

#include <set>

#include "model/project_writer.h"
#include "project_test_env.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

const RelativePathRule kAsRead("", "", [](const std::string&) { return false; });

std::vector<std::string> writtenLines(const MenuProject& p) { return splitLines(projectFileText(p, kAsRead)); }

// The value lines of the first section `header` (the header is row 1).
std::string row(const std::vector<std::string>& lines, const std::string& header, int n)
{
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i] == header)
            return lines.at(i + std::size_t(n) - 1);
    return "<no " + header + ">";
}

TEST(ProjectWriter, PathsBesideTheTargetAreBareAndOthersFull)
{
    const std::set<std::string> files = {"/new/beside.gif", "/new/both.gif", "/old/both.gif", "/old/only_old.gif"};
    RelativePathRule rule("/new/menu.qor", "/old/menu.qor", [&](const std::string& p) { return files.count(p) > 0; });
    struct Case { const char* stored; const char* written; };
    const Case cases[] = {
        {"", ""},
        {"beside.gif", "beside.gif"},                  // bare and beside the target
        {"only_old.gif", "/old/only_old.gif"},         // bare, from the old folder
        {"both.gif", "both.gif"},
        {"/elsewhere/beside.gif", "beside.gif"},       // a file of that name lies beside the target
        {"/elsewhere/x.gif", "/elsewhere/x.gif"},
        {"C:\\images\\beside.gif", "beside.gif"},      // a path written on Windows
        {"C:\\images\\x.gif", "C:\\images\\x.gif"},
        {"/elsewhere/", "/elsewhere/"},                // no file name: never a bare name
    };
    for (const auto& c : cases)
        EXPECT_EQ(rule.apply(c.stored), c.written) << c.stored;

    RelativePathRule neverSaved("/new/menu.qor", "", [](const std::string&) { return false; });
    EXPECT_EQ(neverSaved.apply("x.gif"), "x.gif");
}

TEST(ProjectWriter, OnlySavableButtonsAndLiveTextsAreWritten)
{
    MenuProject p;
    auto addButton = [&](const char* kind, const char* hover) {
        auto& b = p.button(*p.addButton());
        b.kind = kind;
        b.normalImage = "n.gif";
        b.hoverImage = hover;
        b.pressedImage = "p.gif";
        b.action = std::string("bouton ") + kind;
    };
    addButton("code", "h.gif");
    addButton("code", "");           // hover image never chosen
    addButton("suppr", "h.gif");
    addButton("quitter", "h.gif");
    for (const char* content : {"un", "SUPPR", "trois", "quatre"})
        p.text(*p.addText()).content = content;
    p.text(3).visible = false;

    std::vector<std::string> actions, contents;
    const auto lines = writtenLines(p);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] == "[Bouton]")
            actions.push_back(lines.at(i + 7));
        if (lines[i] == "[Texte]")
            contents.push_back(lines.at(i + 1));
    }
    EXPECT_EQ(actions, (std::vector<std::string>{"bouton code", "bouton quitter"}));
    EXPECT_EQ(contents, (std::vector<std::string>{"un", "quatre"}));
}

TEST(ProjectWriter, ValuesAreEncodedAsTheFileRulesSay)
{
    MenuProject p;
    p.fullScreen = true;
    p.notes = "un\r\ndeux\r\ntrois";
    p.timerScript = "a\nb\rc";            // lone line ends too: the layout must stay positional
    p.authorName = "Jean\r\nDupont";      // a one-line field never spans two lines
    p.startupAction = "VBS:x\r\ny";
    p.backgroundColor = std::int32_t(0x8000000F);
    p.icon = "(Icone par défaut)";
    auto& t = p.text(*p.addText());
    t.content = "A ≠ B";                  // not in Windows-1252
    t.fontSize = 8.25f;
    t.left = -15;
    t.top = 200.0f / 3.0f;
    auto lines = writtenLines(p);
    EXPECT_EQ(row(lines, "[Général]", 3), "plein");
    EXPECT_EQ(row(lines, "[Général]", 4), "ecran");
    EXPECT_EQ(row(lines, "[Général]", 6), "(Icone par défaut)");
    EXPECT_EQ(row(lines, "[Auteur]", 2), "Jean Dupont");
    EXPECT_EQ(row(lines, "[Auteur]", 5), "un¤deux¤trois");
    EXPECT_EQ(row(lines, "[ParamsPlus]", 2), "VBS:x¤y");
    EXPECT_EQ(row(lines, "[ParamsPlus]", 3), "-2147483633 ");
    EXPECT_EQ(row(lines, "[ParamsPlus]", 7), "a¤b¤c");
    EXPECT_EQ(row(lines, "[ParamsPlus]", 8), "");
    EXPECT_EQ(row(lines, "[Texte]", 8), " 8.25 ");
    EXPECT_EQ(row(lines, "[Texte]", 11), " 66.66666 ");
    EXPECT_EQ(row(lines, "[Texte]", 12), "-15 ");
    EXPECT_EQ(row(splitLines(decodeCp1252(projectFileBytes(p, kAsRead))), "[Texte]", 2), "A ? B");
}

TEST(ProjectWriter, AFullScreenProjectReadsBackWithTheSizeItHad)
{
    MenuProject p;
    p.fullScreen = true;
    p.width = 1234;
    test::ProjectEnv env;
    env.project.width = 4000;
    env.project.height = 3000;
    env.read(projectFileText(p, kAsRead));
    EXPECT_TRUE(env.project.fullScreen);
    EXPECT_EQ(env.project.width, 4000);
    EXPECT_EQ(env.project.height, 3000);
}

TEST(ProjectWriter, LineBreakMarksInAScriptComeBackAsLineBreaks)
{
    MenuProject p;
    p.globalScript = "MsgBox \"a¤b\"";
    auto& b = p.button(*p.addButton());
    b = {b.number, 1, 2, "n", "h", "p", "code", "x¤y", "", false, 0};
    test::ProjectEnv env;
    env.read(projectFileText(p, kAsRead));
    EXPECT_EQ(env.project.globalScript, "MsgBox \"a\r\nb\"");
    EXPECT_EQ(env.project.button(1).action, "x\r\ny");
}

TEST(ProjectWriter, AButtonDroppedBySavingRenumbersTheOnesBehindIt)
{
    test::ProjectEnv env;
    env.read(decodeCp1252(test::readBytes(test::projectData("quirks.qor"))), "");
    test::ProjectEnv again;
    again.read(projectFileText(env.project, kAsRead));
    EXPECT_EQ(again.project.button(1).normalImage, "b.gif");
    EXPECT_EQ(again.project.button(2).normalImage, "c.gif");
    EXPECT_EQ(again.project.button(3).kind, "");
    EXPECT_EQ(again.project.textCount(), 1);
    EXPECT_EQ(again.project.text(1).content, "Texte gardé");
}

}  // namespace
}  // namespace qor
