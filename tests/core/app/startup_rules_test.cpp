#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "core/app/command_line.h"
#include "core/app/menu_titles.h"
#include "core/app/screen_check.h"
#include "core/app/window_arrangement.h"

namespace qor {
namespace {

TEST(CommandLine, QuotesGoAndOnlyExistingDotQorPathsCount)
{
    const std::set<std::string> existing = {"/home/u/menu.qor", "/home/u/MENU.QOR", "/home/u/mon menu.qor"};
    auto exists = [&](const std::string& p) { return existing.count(p) > 0; };
    struct Case { const char* raw; bool maintenance; const char* project; };
    const Case cases[] = {
        {"", false, ""},
        {"maintien", true, ""},
        {"\"maintien\"", true, ""},
        {"Maintien", false, ""},
        {"maintien ", false, ""},
        {"\"/home/u/menu.qor\"", false, "/home/u/menu.qor"},
        {"/home/u/menu.qor", false, "/home/u/menu.qor"},
        {"\"/home/u/mon menu.qor\"", false, "/home/u/mon menu.qor"},
        {"/home/u/MENU.QOR", false, ""},       // exists, but ".QOR" is not ".qor"
        {"/home/u/absent.qor", false, ""},
        {"/home/u/menu.qmb", false, ""},
        {".qor", false, ""},
    };
    for (const auto& c : cases) {
        CommandLineRequest r = readCommandLine(c.raw, exists);
        EXPECT_EQ(r.maintenance, c.maintenance) << c.raw;
        EXPECT_EQ(r.startupProject, c.project) << c.raw;
    }
    // A path given from the working folder is remembered whole.
    auto here = [](const std::string& p) { return p == "menu.qor" || p == "./sous/../menu.qor"; };
    const std::string full = (std::filesystem::current_path() / "menu.qor").string();
    EXPECT_EQ(readCommandLine("menu.qor", here).startupProject, full);
    EXPECT_EQ(readCommandLine("\"./sous/../menu.qor\"", here).startupProject, full);
    const char* argv[] = {"qor", "/home/u/mon", "menu.qor"};
    EXPECT_EQ(joinArguments(3, argv), "/home/u/mon menu.qor");
    EXPECT_EQ(joinArguments(1, argv), "");
}

TEST(ScreenCheck, DefaultMenuSizeFollowsTheScreenWidth)
{
    struct Case { double widthPixels, tpp; bool refused; double w, h; };
    const Case cases[] = {
        {640, 15, true, 0, 0},
        {800, 15, false, 9600, 7200},
        {720, 15, false, 12000, 9000},
        {1024, 15, false, 12000, 9000},
        {800, 12, false, 7680, 5760},  // 120 dots per inch
        {639, 15, false, 12000, 9000},
    };
    for (const auto& c : cases) {
        ScreenMetrics m{c.widthPixels * c.tpp, 768 * c.tpp, c.tpp, c.tpp};
        auto size = defaultMenuSizeFor(m);
        ASSERT_EQ(!size, c.refused) << c.widthPixels;
        if (size) {
            EXPECT_EQ(*size, (TwipsSize{c.w, c.h})) << c.widthPixels;
        }
    }
    EXPECT_EQ(screenTooSmallMessage(),
              (Message{"Votre résolution est insuffisante pour démarrer QOR, vous devez être en 800x600 minimum !",
                       "Erreur de chargement", MessageIcon::Critical}));
}

TEST(WindowArrangement, WindowsAreArrangedAroundTheScreenCentre)
{
    // 1024 x 768 pixels at 15 twips per pixel.
    const ScreenMetrics screen{15360, 11520, 15, 15};
    WindowSizes sizes;
    sizes.toolbox = {1500, 3000};
    sizes.main = {9000, 615};
    const WindowArrangement a = arrangeWindows(sizes, screen, {12000, 9000});
    EXPECT_EQ(a.worksheetSize, (TwipsSize{12000, 9000}));
    EXPECT_EQ(a.worksheet, (WindowPosition{830, 1260}));     // (15360 - 13700) / 2, (11520 - 9000) / 2
    EXPECT_EQ(a.toolbox, (WindowPosition{13030, 1260}));     // 830 + 12000 + 200
    EXPECT_EQ(a.main, (WindowPosition{3180, 445}));          // (15360 - 9000) / 2, 1260 - 615 - 200
    EXPECT_EQ(a.properties, (WindowPosition{13030, 4460}));  // 1260 + 3000 + 200
    EXPECT_EQ(a.propertiesHeight, 6560);                     // 11520 - 4460 - 500
    EXPECT_EQ(a.mousePosition, (WindowPosition{12680, 445})); // 3180 + 9000 + 500
}

TEST(MenuTitleColours, AHighlightedTitleSwapsTheAppearanceColours)
{
    EXPECT_EQ(highlightedTitleColours(Appearance{1, 2, 3, ""}), (TitleColours{3, 1}));
}

}  // namespace
}  // namespace qor

#include "core/designer/mouse_position.h"

namespace qor {
namespace {

TEST(MousePosition, ReadOutsInTwipsAndPixels)
{
    EXPECT_EQ(restingMousePositionTexts(), (MousePositionTexts{"X=0000", "Y=0000", "X=0000", "Y=0000"}));
    struct Case { float x, y; double tpp; MousePositionTexts texts; };
    const Case cases[] = {
        {1000, 450, 15, {"X=1000", "Y=450", "X=66.66666px", "Y=30px"}},
        {0, 7.5f, 15, {"X=0", "Y=7.5", "X=0px", "Y=0.5px"}},
        {-30, 120, 12, {"X=-30", "Y=120", "X=-2.5px", "Y=10px"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(mousePositionTexts(c.x, c.y, c.tpp, c.tpp), c.texts) << c.x;
}

}  // namespace
}  // namespace qor
