#include <gtest/gtest.h>

#include <utility>

#include "core/picture/print_preview_rules.h"

namespace qor {
namespace {

namespace pp = print_preview;

TEST(PrintPreview, ScrollMaximaCountWholeStepsInSixteenBits)
{
    struct Case { double twips; int maximum; };
    const Case cases[] = {
        {8000, 10}, {7999, 9}, {800, 1}, {799, 0}, {0, 0}, {-1600, 0}, {800.0 * 40000, 32767},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pp::scrollMaximum(c.twips), c.maximum) << c.twips;
}

TEST(PrintPreview, ScrollPositionsMoveTheImageByWholeSteps)
{
    EXPECT_EQ(pp::scrollOffset(0), 0);
    EXPECT_EQ(pp::scrollOffset(3), -2400);
    // Past 40 steps the offset leaves 16 bits and keeps counting.
    EXPECT_EQ(pp::scrollOffset(50), -40000);
}

TEST(PrintPreview, ZoomStepsAreFivePercentAndUndoEachOther)
{
    EXPECT_DOUBLE_EQ(pp::zoomedOut(1000), 950);
    EXPECT_NEAR(pp::zoomedIn(1000), 1052.63, 0.01);
    EXPECT_DOUBLE_EQ(pp::zoomedOut(pp::zoomedIn(12000)), 12000);
}

TEST(PrintPreview, EachMenuEntryFocusesItsCommand)
{
    struct Case { int index; std::string_view caption; pp::Command focused; std::string_view name; };
    const Case cases[] = {
        {0, "Dans un fichier BMP", pp::Command::Save, "Command5"},
        {1, "Dans le presse papier", pp::Command::Clipboard, "Command6"},
        {2, "Sur papier", pp::Command::Print, "Command1"},
        {7, "Dans un fichier BMP", pp::Command::Save, "Command5"},
    };
    for (const Case& c : cases) {
        const pp::Entry& e = pp::entry(c.index);
        EXPECT_EQ(e.caption, c.caption);
        EXPECT_EQ(e.focused, c.focused);
        EXPECT_EQ(e.commandName, c.name);
    }
}

TEST(PrintPreview, LayoutPutsTheBarsAlongTheAreaAndTheSquareInTheirCorner)
{
    const pp::Layout l = pp::layout(600, 400, 10, 40, 16, 17);
    EXPECT_EQ(l.area, (PixelRect{10, 40, 590, 360}));
    EXPECT_EQ(l.vertical, (PixelRect{574, 0, 16, 343}));
    EXPECT_EQ(l.horizontal, (PixelRect{0, 343, 574, 17}));
    EXPECT_EQ(l.corner, (PixelRect{574, 343, 16, 17}));
}

TEST(PrintPreview, AWindowTooSmallSkipsOnlyThePartsThatDoNotFit)
{
    // Too short for the vertical bar above the horizontal one; the
    // horizontal bar and the corner are still placed.
    const pp::Layout l = pp::layout(300, 55, 10, 40, 16, 17);
    EXPECT_EQ(l.area, (PixelRect{10, 40, 290, 15}));
    EXPECT_FALSE(l.vertical);
    EXPECT_EQ(l.horizontal, (PixelRect{0, -2, 274, 17}));
    EXPECT_EQ(l.corner, (PixelRect{274, 0, 16, 17}));
    const pp::Layout none = pp::layout(5, 5, 10, 40, 16, 17);
    EXPECT_FALSE(none.area);
}

TEST(PrintPreview, SavedPictureGetsBmpWhenTheNameHasNoExtension)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/home/u/menu", "/home/u/menu.bmp"},   {"/home/u/menu.bmp", "/home/u/menu.bmp"},
        {"/home/u/menu.png", "/home/u/menu.png"}, {"/home/u.v2/menu", "/home/u.v2/menu.bmp"},
        {"C:\\img.d\\menu", "C:\\img.d\\menu.bmp"}, {"/home/u/.menu", "/home/u/.menu.bmp"},
        {"menu", "menu.bmp"},
    };
    for (const auto& [typed, written] : cases)
        EXPECT_EQ(pp::bmpSavePath(typed), written) << typed;
}

TEST(PrintPreview, SaveFailureNamesTheHandlerAndTheWindow)
{
    const Message m = pp::saveFailedMessage(75, "Accès refusé");
    EXPECT_EQ(m.text, "Erreur n°75 (Accès refusé) dans la procédure Command5_Click de Feuille Form18");
    EXPECT_EQ(m.title, "Erreur !");
    EXPECT_EQ(m.icon, MessageIcon::Critical);
    EXPECT_EQ(pp::saveRequest("/home/u/"), (FileDialogRequest{"Enregistrer", "Image *.bmp | *.bmp", "/home/u/", ""}));
    EXPECT_EQ(pp::clipboardCopiedMessage(),
              (Message{"Image copiée dans le presse papier !", "Imprimer", MessageIcon::Information}));
}

}  // namespace
}  // namespace qor
