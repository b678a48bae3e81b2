#include <gtest/gtest.h>

#include "core/build/compile_request.h"
#include "core/picture/bake_rules.h"

namespace qor {
namespace {

TEST(BakeRules, TwipsRoundToWholePixelsHalvesAwayFromZero)
{
    struct Case { double twips, ratio; int pixels; };
    const Case cases[] = {
        {1500, 15, 100}, {22.5, 15, 2}, {37.5, 15, 3}, {52.5, 15, 4}, {1000, 12, 83}, {-37.5, 15, -3}, {300, 0, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(toPixels(c.twips, c.ratio), c.pixels) << c.twips << " / " << c.ratio;
}

TEST(BakeRules, TheBakedFileStandsBesideItsSource)
{
    EXPECT_EQ(bakedImagePath("C:\\img\\b1.gif"), "C:\\img\\b1.gif_transp.bmp");
    EXPECT_EQ(bakedImagePath("/home/u/menu/fond.jpg"), "/home/u/menu/fond.jpg_transp.bmp");
}

// Buttons 1 to 5 of a project, each set up as the row says.
MenuProject projectOf(const std::vector<MenuButton>& buttons)
{
    MenuProject project;
    project.filePath = "/menus/demo.qor";
    for (const MenuButton& b : buttons) {
        const auto n = project.addButton();
        EXPECT_TRUE(n);
        MenuButton& slot = project.button(*n);
        const auto number = slot.number;
        slot = b;
        slot.number = number;
    }
    return project;
}

MenuButton button(std::string kind, bool transparent, std::string normal, std::string hover = "h.png",
                  std::string pressed = "c.png")
{
    MenuButton b;
    b.kind = std::move(kind);
    b.transparent = transparent;
    b.normalImage = std::move(normal);
    b.hoverImage = std::move(hover);
    b.pressedImage = std::move(pressed);
    return b;
}

TEST(BakeRules, OnlyLiveTransparentButtonsWithANormalImageAreBaked)
{
    const MenuProject project = projectOf({
        button("code", true, "a.png"),          // baked
        button("code", false, "b.png"),         // not transparent
        button("suppr", true, "c.png"),         // deleted
        button("vidéo", true, ""),              // no normal image
        button("quitter", true, "e.png"),       // baked
    });
    EXPECT_EQ(buttonsToBake(project), (std::vector<int>{1, 5}));
    EXPECT_TRUE(needsBaking(project));
    EXPECT_FALSE(needsBaking(projectOf({button("code", false, "b.png"), button("suppr", true, "c.png")})));
}

TEST(BakeRules, PicturesAreBakedPressedHoverNormalAndEmptyOnesAreLeftOut)
{
    struct Case { MenuButton b; std::vector<BakeStep> steps; };
    const Case cases[] = {
        {button("code", true, "n.png", "h.png", "c.png"),
         {{"/menus/c.png", "/menus/c.png_transp.bmp"},
          {"/menus/h.png", "/menus/h.png_transp.bmp"},
          {"/menus/n.png", "/menus/n.png_transp.bmp"}}},
        {button("code", true, "n.png", "", "/abs/c.gif"),
         {{"/abs/c.gif", "/abs/c.gif_transp.bmp"}, {"/menus/n.png", "/menus/n.png_transp.bmp"}}},
        {button("code", true, "n.png", "", ""), {{"/menus/n.png", "/menus/n.png_transp.bmp"}}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(bakeSteps(projectOf({c.b}), 1), c.steps) << c.b.hoverImage << "|" << c.b.pressedImage;
}

TEST(BakeRules, AButtonStandsAtItsCornerInPixels)
{
    MenuButton b;
    b.left = 1492.5f;
    b.top = 750;
    ScreenMetrics screen;
    screen.twipsPerPixelX = 15;
    screen.twipsPerPixelY = 12;
    EXPECT_EQ(buttonRect(b, 200, 60, screen), (PixelRect{100, 63, 200, 60}));
    MenuProject project;
    project.width = 12000;
    project.height = 9000;
    EXPECT_EQ(worksheetRect(project, screen), (PixelRect{0, 0, 800, 750}));
}

TEST(BakeRules, AnUnwritableFolderIsNamedInTheMessage)
{
    const Message m = bakeWriteFailedMessage("/ro/b1.png_transp.bmp");
    EXPECT_NE(m.text.find("'/ro/b1.png_transp.bmp'"), std::string::npos);
    EXPECT_EQ(m.icon, MessageIcon::Critical);
}

}  // namespace
}  // namespace qor
