// The scene a menu starts with, and the pixel rules of the window.
#include "player_fixture.h"
#include "player/core/pixels.h"

namespace qor::player::test {
namespace {

TEST(Pixels, TwipsRoundHalfToEvenAndWildValuesStayInRange)
{
    const std::pair<double, int> cases[] = {
        {100, 7}, {22.5, 2}, {37.5, 2}, {52.5, 4}, {-22.5, -2}, {9600, 640},
        {1e308, kMaxPixels}, {-1e308, -kMaxPixels}, {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const auto& [twips, pixels] : cases)
        EXPECT_EQ(twipsToPixels(twips, 15), pixels) << twips;
    EXPECT_EQ(twipsToPixels(100, 0), 7);
}

TEST(Pixels, AnOutlineNeedsThreeDistinctPoints)
{
    const ShapePoints triangle = {{0, 0}, {1500, 0}, {100, 1500}, {0, 0}};
    EXPECT_EQ(outlineInPixels(triangle, 15, 15), (std::vector<PixelPoint>{{0, 0}, {100, 0}, {7, 100}, {0, 0}}));
    EXPECT_EQ(outlineInPixels(triangle, 15, 20).back(), (PixelPoint{0, 0}));
    const ShapePoints flat[] = {{}, {{5, 5}}, {{0, 0}, {300, 300}, {0, 0}, {300, 300}}, {{0, 0}, {1, 1}, {2, 2}}};
    for (const ShapePoints& points : flat)
        EXPECT_TRUE(outlineInPixels(points, 15, 15).empty()) << points.size();
}

// The whole window grows with the screen's density and shrinks as a whole
// when it would not fit: a 1024 x 768 menu at 150 % on a 1024 x 768 screen
// (work area 1024 x 728) keeps its proportions and every button inside.
TEST(Pixels, AWindowScalesWithTheDensityAndIsReducedAsAWholeToFit)
{
    struct Case {
        double density, width, height;
        int areaWidth, areaHeight;
        double scale;
    };
    const Case cases[] = {
        {1, 640, 480, 1024, 728, 1},
        {1.25, 640, 480, 1024, 728, 1.25},
        {1.5, 640, 480, 1024, 728, 1.5},
        {2, 640, 480, 1920, 1040, 2},
        {3, 640, 480, 1920, 1040, 1040.0 / 480},
        {1.5, 1024, 768, 1024, 728, 728.0 / 768},
        {1, 1024, 768, 640, 480, 0.625},
        {1, 2000, 100, 800, 600, 0.4},
        {0, 640, 480, 1024, 728, 1},
        {std::numeric_limits<double>::quiet_NaN(), 640, 480, 1024, 728, 1},
        {1, 32767, 32767, 1, 1, 1.0 / 32767},
        {1, 640, 480, 0, 0, 1},
    };
    for (const Case& c : cases)
        EXPECT_DOUBLE_EQ(windowScale(c.density, c.width, c.height, c.areaWidth, c.areaHeight), c.scale)
            << c.density << " " << c.width << "x" << c.height << " in " << c.areaWidth << "x" << c.areaHeight;
}

TEST(Pixels, MousePointerNumbersMapToTheNearestCursor)
{
    const std::pair<int, Cursor> cases[] = {
        {0, Cursor::Default}, {1, Cursor::Arrow}, {2, Cursor::Cross}, {3, Cursor::IBeam}, {5, Cursor::SizeAll},
        {10, Cursor::UpArrow}, {11, Cursor::Wait}, {12, Cursor::NoDrop}, {99, Cursor::Custom}, {42, Cursor::Default},
    };
    for (const auto& [n, cursor] : cases)
        EXPECT_EQ(cursorFor(n), cursor) << n;
}

TEST(Pixels, TheScreenPointerWinsThenTheElementsThenTheHand)
{
    WindowScene w;
    EXPECT_EQ(pointerOver(w, {}, true).cursor, Cursor::Hand);
    EXPECT_EQ(pointerOver(w, {}, false).cursor, Cursor::Default);
    w.handOverButtons = false;
    EXPECT_EQ(pointerOver(w, {}, true).cursor, Cursor::Default);
    EXPECT_EQ(pointerOver(w, {2, ""}, true).cursor, Cursor::Cross);
    w.screenCursor = {99, "/i.ico"};
    EXPECT_EQ(pointerOver(w, {2, ""}, true), (PointerShape{Cursor::Custom, "/i.ico"}));
}

TEST_F(PlayerTest, TheWindowIsCentredAndSizedFromTheData)
{
    MenuProject p;
    p.width = 9000;
    p.height = 6000;
    p.backgroundColor = 0x00336699;
    p.backgroundImage = "C:\\images\\fond.jpg";
    p.transparencyImage = "masque.bmp";
    p.border = false;
    p.shapePoints = {{0, 0}, {9000, 0}, {4500, 6000}};
    run(p);
    const WindowScene& w = view.shown.window;
    EXPECT_EQ(w.caption, "Démo");
    EXPECT_EQ(w.width, 9000);
    EXPECT_EQ(w.left, (1024 - 600) / 2 * 15);
    EXPECT_EQ(w.top, (768 - 400) / 2 * 15);
    EXPECT_EQ(w.backColor, 0x00336699u);
    EXPECT_EQ(w.backgroundImage, "/cd/qor/fond.jpg");
    EXPECT_EQ(w.transparencyImage, "/cd/qor/masque.bmp");
    EXPECT_FALSE(w.borderVisible);
    EXPECT_EQ(w.shape, (std::vector<PixelPoint>{{0, 0}, {600, 0}, {300, 400}}));
}

TEST_F(PlayerTest, HostileSizesAreBroughtBackToTheScreen)
{
    struct Case {
        float width, height;
        double shownWidth, shownHeight;
    };
    const Case cases[] = {
        {1e30f, 1e30f, 1024 * 15, 768 * 15},
        {-500, -9000, 9600, 7200},
        {0, 7, 9600, 15},
    };
    for (const Case& c : cases) {
        MenuProject p;
        p.width = c.width;
        p.height = c.height;
        run(p);
        EXPECT_EQ(view.shown.window.width, c.shownWidth) << c.width;
        EXPECT_EQ(view.shown.window.height, c.shownHeight) << c.height;
    }
    // A front-end that reduces the whole window keeps the designed size.
    view.screenInfo.reducesWholeWindow = true;
    MenuProject big;
    big.width = 2000 * 15;
    big.height = 1e30f;
    run(big);
    EXPECT_EQ(view.shown.window.width, 2000 * 15);
    EXPECT_EQ(view.shown.window.height, kMaxPixels * 15);
}

TEST_F(PlayerTest, AFullScreenMenuCoversTheScreen)
{
    MenuProject p;
    p.fullScreen = true;
    run(p);
    EXPECT_TRUE(view.shown.window.fullScreen);
    EXPECT_EQ(view.shown.window.width, 1024 * 15);
    EXPECT_EQ(view.shown.window.left, 0);
}

TEST_F(PlayerTest, ButtonsAndTextsComeInDataOrderWithTheirSettings)
{
    MenuProject p = withButtons(3);
    p.deleteButton(2);
    MenuText& t1 = p.text(*p.addText());
    t1.content = "Bonjour\r\nà tous";
    t1.settings = "01";
    t1.fontBold = true;
    t1.fontSize = 12;
    t1.left = 30;
    t1.top = 45;
    MenuText& t2 = p.text(*p.addText());
    t2.content = std::string(kDeletedTextContent);
    p.text(*p.addText()).settings = "10";
    run(p);
    ASSERT_EQ(view.shown.buttons.size(), 2u);
    EXPECT_EQ(view.shown.buttons[1].number, 2);  // numbered again in data order
    EXPECT_EQ(view.shown.buttons[1].normalImage, "/cd/qor/b3_n.bmp");
    EXPECT_EQ(view.shown.buttons[1].left, 450);
    ASSERT_EQ(view.shown.texts.size(), 2u);
    const TextScene& s = view.shown.texts[0];
    EXPECT_EQ(s.text, "Bonjour\r\nà tous");
    EXPECT_FALSE(s.scrollBar);
    EXPECT_TRUE(s.locked);
    EXPECT_TRUE(s.fontBold);
    EXPECT_EQ(s.fontSize, 12);
    EXPECT_EQ(s.left, 30);
    EXPECT_EQ(s.top, 45);
    EXPECT_TRUE(view.shown.texts[1].scrollBar);
    EXPECT_FALSE(view.shown.texts[1].locked);
    EXPECT_EQ(eval("Texte2.Text"), "");
}

TEST_F(PlayerTest, TheTimerRunsOnlyForAWholeIntervalFromOneTo60000)
{
    const std::pair<std::string, bool> cases[] = {
        {"1000", true}, {"1", true}, {"60000", true}, {"0", false}, {"60001", false},
        {"-5", false}, {"abc", false}, {"10.5", false}, {"", false}, {"1E+308", false},
    };
    for (const auto& [interval, runs] : cases) {
        MenuProject p;
        p.timerEnabled = true;
        p.timerInterval = interval;
        run(p);
        EXPECT_EQ(view.timer.runs(), runs) << interval;
    }
}

}  // namespace
}  // namespace qor::player::test

namespace qor::player::test {
namespace {

TEST_F(PlayerTest, TenThousandTextsAndAHundredThousandPointsLoadAndAnswer)
{
    MenuProject p;
    for (int i = 0; i < 10000; ++i)
        ASSERT_TRUE(p.addText());
    for (int i = 0; i < 100000; ++i)
        p.shapePoints.push_back({i % 9000, (i * 7) % 6000});
    run(p);
    EXPECT_EQ(view.shown.texts.size(), 10000u);
    EXPECT_EQ(view.shown.window.shape.size(), 100000u);
    EXPECT_EQ(exec("Texte10000.Text = \"fin\""), "");
    EXPECT_EQ(view.shown.texts.back().text, "fin");
}

}  // namespace
}  // namespace qor::player::test
