#include <gtest/gtest.h>

#include <filesystem>

#include "core/project/project_format.h"
#include "project_test_env.h"
#include "temp_dir.h"

namespace qor {
namespace {

using test::projectData;

TEST(ProjectRoundTrip, ReadsEveryFieldOfAVersion11File)
{
    test::ProjectEnv env;
    const std::string path = projectData("full_v11.qor");
    env.load(path);
    const MenuProject& p = env.project;
    EXPECT_TRUE(env.dialogs.messages.empty());
    EXPECT_EQ(p.filePath, path);

    EXPECT_EQ(p.authorName, "Jeanne Dupré");
    EXPECT_EQ(p.authorEmail, "jeanne@example.org");
    EXPECT_EQ(p.authorWebSite, "http://jeanne.example.org/");
    EXPECT_EQ(p.notes, "Première ligne\r\nDeuxième ligne\r\nTroisième ligne");
    EXPECT_EQ(p.backgroundImage, "fond.jpg");
    EXPECT_FALSE(p.fullScreen);
    EXPECT_EQ(p.width, 9600);
    EXPECT_EQ(p.height, 7200);
    EXPECT_TRUE(p.border);
    EXPECT_EQ(p.icon, "(Icône par défaut)");
    EXPECT_EQ(p.backgroundMusic, "C:\\musique\\intro.mp3");
    EXPECT_EQ(p.startupAction, "VBS:MsgBox \"Bienvenue\"\r\nDim a\r\na = 1");
    EXPECT_EQ(p.backgroundColor, 0xFFFFFF);
    EXPECT_TRUE(p.contextMenu);
    EXPECT_FALSE(p.timerEnabled);
    EXPECT_EQ(p.timerInterval, "1000");
    EXPECT_EQ(p.timerScript, "");
    EXPECT_EQ(p.globalScript, "Sub Ouvrir(page)\r\n  CreateObject(\"WScript.Shell\").Run page\r\nEnd Sub");
    EXPECT_TRUE(p.handCursor);
    EXPECT_EQ(p.clickSound, "clic.wav");
    EXPECT_EQ(p.hoverSound, "");
    EXPECT_EQ(p.transparencyImage, "");
    EXPECT_EQ(p.windowHoverScript, "Sub Survol()\r\nEnd Sub");

    ASSERT_EQ(p.liveButtons().size(), 3u);
    const MenuButton& b1 = p.button(1);
    EXPECT_EQ(b1.number, 1);
    EXPECT_EQ(b1.left, 200);
    EXPECT_EQ(b1.top, 200);
    EXPECT_EQ(b1.normalImage, "b1_normal.gif");
    EXPECT_EQ(b1.hoverImage, "b1_survol.gif");
    EXPECT_EQ(b1.pressedImage, "b1_clique.gif");
    EXPECT_EQ(b1.kind, "code");
    EXPECT_EQ(b1.action, "MsgBox \"Bouton 1\"\r\n' fin");
    EXPECT_EQ(b1.hoverScript, "Survol 1");
    EXPECT_FALSE(b1.transparent);
    const MenuButton& b2 = p.button(2);
    EXPECT_EQ(b2.left, 1500.5f);
    EXPECT_EQ(b2.top, -15);
    EXPECT_EQ(b2.kind, "quitter");
    EXPECT_TRUE(b2.transparent);
    EXPECT_EQ(b2.transparentColor, 0xFF00FF);
    EXPECT_EQ(p.button(3).kind, "vidéo");
    EXPECT_EQ(p.button(3).action, "videos\\intro.avi");
    EXPECT_EQ(p.button(4).kind, "");

    ASSERT_EQ(p.textCount(), 2);
    const MenuText& t1 = p.text(1);
    EXPECT_EQ(t1.number, 1);
    EXPECT_EQ(t1.content, "Bienvenue sur ce CD\r\nCliquez sur un bouton");
    EXPECT_EQ(t1.backColor, 0xFFFFFF);
    EXPECT_EQ(t1.foreColor, 0);
    EXPECT_TRUE(t1.fontBold);
    EXPECT_FALSE(t1.fontItalic);
    EXPECT_EQ(t1.fontName, "MS Sans Serif");
    EXPECT_EQ(t1.fontSize, 8.25f);
    EXPECT_FALSE(t1.fontStrikethru);
    EXPECT_TRUE(t1.fontUnderline);
    EXPECT_EQ(t1.top, 600);
    EXPECT_EQ(t1.left, 700);
    EXPECT_EQ(t1.width, 2895);
    EXPECT_EQ(t1.height, 1455);
    EXPECT_EQ(t1.settings, "10");
    const MenuText& t2 = p.text(2);
    EXPECT_EQ(t2.content, "Œuvres complètes – € 5");
    EXPECT_EQ(t2.backColor, std::int32_t(0x8000000F));
    EXPECT_EQ(t2.left, 4500.25f);
    EXPECT_EQ(t2.settings, "01");

    EXPECT_EQ(p.shapePoints, (ShapePoints{{300, 300}, {3000, 450}, {1200, -2400}, {300, 300}}));
}

TEST(ProjectRoundTrip, SavingBesideItsFilesWritesTheSameBytes)
{
    test::ProjectEnv env;
    env.load(projectData("full_v11.qor"));
    test::TempDir dir;
    for (const char* name : {"fond.jpg", "clic.wav", "b1_normal.gif", "b1_survol.gif", "b1_clique.gif",
                             "b3.gif", "b3_s.gif", "b3_c.gif"})
        dir.write(name, "x");
    env.save(dir.file("copie.qor"));
    EXPECT_TRUE(env.dialogs.messages.empty());
    EXPECT_EQ(decodeCp1252(dir.read("copie.qor")), test::expectedText("full_v11.qor"));
}

}  // namespace
}  // namespace qor
