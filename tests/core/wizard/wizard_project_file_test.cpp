// The project file the wizard writes, line for line, and what our own
// reader makes of it.

#include <gtest/gtest.h>

#include "core/wizard/wizard_project_file.h"
#include "model/project_format.h"
#include "project_test_env.h"
#include "temp_dir.h"

namespace qor {
namespace {

const std::string kMark = "\u00A4";

WizardProject twoButtonMenu()
{
    WizardProject p;
    p.backgroundImage = "fond.png";
    p.imageSize = WizardProject::Size{4800, 3615};
    p.border = false;
    p.backgroundMusic = "musique.mp3";
    p.startupAction = "VBS:MsgBox \"Salut\", vbInformation, \"Été\"";
    p.backgroundColor = 0x00336699;
    WizardProjectButton text;
    text.normalImage = "bouton1_normal.bmp";
    text.hoverImage = "bouton1_survol.bmp";
    text.pressedImage = "bouton1_clique.bmp";
    text.normalHeight = 270;
    text.behaviour = {"quitter", ""};
    text.transparent = true;
    text.transparentColor = 0x00FFFFFF;
    WizardProjectButton graphic;
    graphic.normalImage = "n.gif";
    graphic.hoverImage = "s.gif";
    graphic.pressedImage = "c.gif";
    graphic.normalHeight = 600;
    graphic.behaviour = {"code", "'SITE" + kMark + "exe_f.Run(\"x\")"};
    p.buttons = {text, graphic, text};
    return p;
}

TEST(WizardProjectFile, LineForLine)
{
    const std::vector<std::string> expected = {
        "",
        "[Format]",
        "Editeur=Assistant création QOR",
        project_format::versionLine(),
        "Fichier=1.1",
        "[Général]",
        "fond.png",
        " 4800 ",
        " 3615 ",
        " 0 ",
        "'para2",
        "'para3",
        "musique.mp3",
        "[ParamsPlus]",
        "VBS:MsgBox \"Salut\", vbInformation, \"Été\"",
        " 3368601 ",
        "1",
        "0",
        "1000",
        "",
        "",
        "1",
        "'para9",
        "'para10",
        "[Bouton]", "200", " 150 ", "bouton1_normal.bmp", "bouton1_survol.bmp", "bouton1_clique.bmp",
        "quitter", "", "", " 1 ", " 16777215 ", "'para4",
        "[Bouton]", "200", " 570 ", "n.gif", "s.gif", "c.gif",
        "code", "'SITE" + kMark + "exe_f.Run(\"x\")", "", " 0 ", " 0 ", "'para4",
        "[Bouton]", "200", " 1320 ", "bouton1_normal.bmp", "bouton1_survol.bmp", "bouton1_clique.bmp",
        "quitter", "", "", " 1 ", " 16777215 ", "'para4",
    };
    EXPECT_EQ(wizardProjectText(twoButtonMenu()), test::joined(expected));
}

TEST(WizardProjectFile, WithoutPictureTheWindowIsTheUsualSize)
{
    WizardProject p;
    p.backgroundColor = -2147483633;
    const std::string text = wizardProjectText(p);
    EXPECT_NE(text.find("[Général]\r\n\r\n9600\r\n7200\r\n 1 \r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[ParamsPlus]\r\n\r\n-2147483633 \r\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("[Bouton]"), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 9), "'para10\r\n");
}

TEST(WizardProjectFile, BytesAreWindows1252)
{
    WizardProject p;
    p.startupAction = "été \u4e2d";
    const std::string bytes = wizardProjectBytes(p);
    EXPECT_NE(bytes.find("Editeur=Assistant cr\xE9" "ation QOR\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n\xE9t\xE9 ?\r\n"), std::string::npos);
}

TEST(WizardProjectFile, TopsStackTheButtonsFromTheTop)
{
    EXPECT_EQ(stackedTops({}), std::vector<double>{});
    EXPECT_EQ(stackedTops({300}), std::vector<double>{150});
    EXPECT_EQ(stackedTops({300, 450, 15}), (std::vector<double>{150, 600, 1200}));
}

TEST(WizardProjectFile, OurReaderYieldsTheMenuDescribed)
{
    test::TempDir dir;
    test::ProjectEnv env;
    const std::string path = dir.write("menu.qor", wizardProjectBytes(twoButtonMenu()));
    env.load(path);
    EXPECT_TRUE(env.dialogs.messages.empty()) << env.dialogs.lastMessage().text;

    const MenuProject& m = env.project;
    EXPECT_EQ(m.filePath, path);
    EXPECT_EQ(m.backgroundImage, "fond.png");
    EXPECT_FALSE(m.fullScreen);
    EXPECT_EQ(m.width, 4800.0f);
    EXPECT_EQ(m.height, 3615.0f);
    EXPECT_FALSE(m.border);
    EXPECT_EQ(m.icon, kDefaultIconMarker);
    EXPECT_EQ(m.backgroundMusic, "musique.mp3");
    EXPECT_EQ(m.startupAction, "VBS:MsgBox \"Salut\", vbInformation, \"Été\"");
    EXPECT_EQ(m.backgroundColor, 0x00336699);
    EXPECT_TRUE(m.contextMenu);
    EXPECT_FALSE(m.timerEnabled);
    EXPECT_EQ(m.timerInterval, "1000");
    EXPECT_TRUE(m.handCursor);
    EXPECT_EQ(m.clickSound, "");
    EXPECT_EQ(m.hoverSound, "");
    EXPECT_EQ(m.textCount(), 0);
    EXPECT_TRUE(m.shapePoints.empty());

    const auto buttons = m.savableButtons();
    ASSERT_EQ(buttons.size(), 3u);
    const float tops[] = {150, 570, 1320};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i]->number, int(i) + 1);
        EXPECT_EQ(buttons[i]->left, 200.0f);
        EXPECT_EQ(buttons[i]->top, tops[i]);
    }
    EXPECT_EQ(buttons[0]->kind, "quitter");
    EXPECT_TRUE(buttons[0]->transparent);
    EXPECT_EQ(buttons[0]->transparentColor, 0x00FFFFFF);
    EXPECT_EQ(buttons[1]->normalImage, "n.gif");
    EXPECT_EQ(buttons[1]->kind, "code");
    EXPECT_EQ(buttons[1]->action, "'SITE\r\nexe_f.Run(\"x\")");
    EXPECT_FALSE(buttons[1]->transparent);
    EXPECT_EQ(env.hooks.eventsStartingWith("button "),
              (std::vector<std::string>{"button 1 quitter", "button 2 code", "button 3 quitter"}));
    EXPECT_EQ(env.hooks.eventsStartingWith("choice"), std::vector<std::string>{"choice VBS"});
}

}  // namespace
}  // namespace qor
