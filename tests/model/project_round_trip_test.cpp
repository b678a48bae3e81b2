#include <gtest/gtest.h>

#include <filesystem>

#include "model/project_format.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "project_test_env.h"
#include "temp_dir.h"

namespace qor {
namespace {

using test::projectData;

// The byte-for-byte round trip below cannot see two fields swapped by both
// the reader and the writer; these are the lines where that could happen.
TEST(ProjectRoundTrip, ReadsEachLineIntoItsOwnField)
{
    test::ProjectEnv env;
    env.load(projectData("full_v11.qor"));
    const MenuProject& p = env.project;
    EXPECT_TRUE(env.dialogs.messages.empty());
    EXPECT_EQ(p.authorName, "Jeanne Dupré");
    EXPECT_EQ(p.authorEmail, "jeanne@example.org");
    EXPECT_EQ(p.notes, "Première ligne\r\nDeuxième ligne\r\nTroisième ligne");
    EXPECT_EQ(p.width, 9600);
    EXPECT_EQ(p.height, 7200);
    EXPECT_EQ(p.startupAction, "VBS:MsgBox \"Bienvenue\"\r\nDim a\r\na = 1");
    EXPECT_EQ(p.timerScript, "");
    EXPECT_EQ(p.globalScript, "Sub Ouvrir(page)\r\n  CreateObject(\"WScript.Shell\").Run page\r\nEnd Sub");
    EXPECT_EQ(p.clickSound, "clic.wav");
    EXPECT_EQ(p.hoverSound, "");
    EXPECT_EQ(p.windowHoverScript, "Sub Survol()\r\nEnd Sub");

    const MenuButton& b1 = p.button(1);
    EXPECT_EQ(b1.left, 200);
    EXPECT_EQ(b1.normalImage, "b1_normal.gif");
    EXPECT_EQ(b1.hoverImage, "b1_survol.gif");
    EXPECT_EQ(b1.pressedImage, "b1_clique.gif");
    EXPECT_EQ(b1.action, "MsgBox \"Bouton 1\"\r\n' fin");
    EXPECT_EQ(b1.hoverScript, "Survol 1");
    EXPECT_EQ(p.button(2).left, 1500.5f);
    EXPECT_EQ(p.button(2).top, -15);
    EXPECT_TRUE(p.button(2).transparent);
    EXPECT_EQ(p.button(2).transparentColor, 0xFF00FF);

    const MenuText& t2 = p.text(2);
    EXPECT_EQ(t2.backColor, std::int32_t(0x8000000F));
    EXPECT_EQ(t2.foreColor, 255);
    EXPECT_FALSE(t2.fontBold);
    EXPECT_TRUE(t2.fontItalic);
    EXPECT_TRUE(t2.fontStrikethru);
    EXPECT_FALSE(t2.fontUnderline);
    EXPECT_EQ(t2.top, 3000);
    EXPECT_EQ(t2.left, 4500.25f);
    EXPECT_EQ(t2.width, 4000);
    EXPECT_EQ(t2.height, 900);
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

// Every test project, read and written again without moving, gives the
// bytes the writer gave before its layout became a table (written/).
TEST(ProjectRoundTrip, EveryTestProjectIsWrittenAsBefore)
{
    const RelativePathRule asRead("", "", [](const std::string&) { return false; });
    for (const char* name : {"full_v11.qor", "quirks.qor", "quirks_saved.qor", "v10_empty_version.qor",
                             "v10_no_format.qor", "cut_in_shape.qor"}) {
        test::ProjectEnv env;
        // The file cut short in its shape block asks at every read past its end.
        env.dialogs.messageAnswers.assign(ProjectReader::kMaxReadsPastEnd, Answer::Yes);
        env.load(projectData(name));
        env.dialogs.messageAnswers.clear();
        EXPECT_EQ(projectFileBytes(env.project, asRead), encodeCp1252(test::expectedText(std::string("written/") + name)))
            << name;
    }
}

}  // namespace
}  // namespace qor
