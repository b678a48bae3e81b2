#include <gtest/gtest.h>

#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"

namespace qor {
namespace {

void expectNewValues(const MenuProject& p)
{
    EXPECT_EQ(p.filePath, "");
    EXPECT_EQ(p.authorName + p.authorEmail + p.authorWebSite + p.notes, "");
    EXPECT_EQ(p.backgroundImage + p.backgroundMusic + p.clickSound + p.hoverSound + p.transparencyImage, "");
    EXPECT_FALSE(p.fullScreen);
    EXPECT_TRUE(p.border);
    EXPECT_EQ(p.backgroundColor, 0xFFFFFF);
    EXPECT_TRUE(p.contextMenu);
    EXPECT_TRUE(p.handCursor);
    EXPECT_FALSE(p.timerEnabled);
    EXPECT_EQ(p.timerInterval, "1000");
    EXPECT_EQ(p.startupAction + p.timerScript + p.globalScript + p.windowHoverScript, "");
    EXPECT_TRUE(p.shapePoints.empty());
    EXPECT_EQ(p.textCount(), 0);
    EXPECT_TRUE(p.liveButtons().empty());
    EXPECT_EQ(p.buttonElementCount(), 1);
    EXPECT_EQ(p.textElementCount(), 1);
    for (int n = 0; n <= 100; ++n) {
        const MenuButton& b = p.button(n);
        EXPECT_EQ(b.number, n);
        EXPECT_EQ(b.normalImage + b.hoverImage + b.pressedImage + b.kind + b.action + b.hoverScript, "") << n;
        EXPECT_FALSE(b.transparent);
        EXPECT_EQ(b.transparentColor, 0);
    }
}

TEST(MenuProject, ResetRestoresEveryNewValueButKeepsTheWindowSize)
{
    MenuProject p;
    expectNewValues(p);
    EXPECT_EQ(p.icon, "(Icône par défaut)");

    p.filePath = "/p/menu.qor";
    p.authorName = p.authorEmail = p.authorWebSite = p.notes = "x";
    p.backgroundImage = p.backgroundMusic = p.clickSound = p.hoverSound = p.transparencyImage = "x.bmp";
    p.fullScreen = true;
    p.border = p.contextMenu = p.handCursor = false;
    p.backgroundColor = 0xFF;
    p.timerEnabled = true;
    p.timerInterval = "50";
    p.startupAction = p.timerScript = p.globalScript = p.windowHoverScript = "MsgBox 1";
    p.icon = "/p/cd.ico";
    p.width = 4500;
    p.height = 3000.5f;
    p.shapePoints = {{1, 2}};
    for (int i = 0; i < 3; ++i) {
        auto& b = p.button(*p.addButton());
        b = {b.number, 1, 2, "n", "h", "p", "code", "a", "s", true, 5};
    }
    (void)p.addText();

    p.reset();
    expectNewValues(p);
    EXPECT_EQ(p.icon, "(Icône par défaut)");
    EXPECT_EQ(p.width, 4500);
    EXPECT_EQ(p.height, 3000.5f);
}

TEST(MenuProject, ResetTakesTheIconMarkerOfTheInterfaceLanguage)
{
    Phrases phrases;
    EXPECT_EQ(defaultIconMarker(phrases), "(Icône par défaut)");
    std::vector<std::string> english(30, "?");
    english[24] = "Default icon";
    phrases.useLanguage(english);
    MenuProject p;
    p.reset(defaultIconMarker(phrases));
    EXPECT_EQ(p.icon, "(Default icon)");
}

TEST(MenuProject, AnyValueInParenthesesIsTheDefaultIcon)
{
    struct Case { const char* icon; bool marker; };
    const Case cases[] = {
        {"(Icône par défaut)", true}, {"(Icone par défaut)", true}, {"(Default icon)", true}, {"()", true},
        {"", false}, {"(", false}, {")", false}, {"cd.ico", false}, {"(cd).ico", false}, {"/p/(a)", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(isDefaultIconMarker(c.icon), c.marker) << c.icon;
}

TEST(MenuProject, ResolvesBareNamesAgainstTheProjectFolder)
{
    struct Case { const char* stored; const char* filePath; const char* resolved; };
    const Case cases[] = {
        {"fond.jpg", "/home/a/menu.qor", "/home/a/fond.jpg"},
        {"fond.jpg", "C:\\menus\\menu.qor", "C:\\menus\\fond.jpg"},
        {"fond.jpg", "", "fond.jpg"},
        {"/img/fond.jpg", "/home/a/menu.qor", "/img/fond.jpg"},
        {"C:\\img\\fond.jpg", "/home/a/menu.qor", "C:\\img\\fond.jpg"},
        {"", "/home/a/menu.qor", ""},
    };
    MenuProject p;
    for (const auto& c : cases) {
        p.filePath = c.filePath;
        EXPECT_EQ(p.resolve(c.stored), c.resolved) << c.stored << " in " << c.filePath;
    }
}

TEST(MenuProject, NumbersCountDeletedElementsAndAreNotReused)
{
    MenuProject p;
    for (int i = 0; i < 3; ++i)
        p.button(*p.addButton()).kind = "code";
    p.deleteButton(2);
    auto fourth = p.addButton();
    ASSERT_TRUE(fourth.ok());
    EXPECT_EQ(*fourth, 4);
    p.button(4).kind = "vidéo";
    std::vector<int> live;
    for (const auto* b : p.liveButtons())
        live.push_back(b->number);
    EXPECT_EQ(live, (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(p.button(2).kind, "suppr");

    EXPECT_EQ(*p.addText(), 1);
    EXPECT_EQ(*p.addText(), 2);
    p.deleteText(1);
    EXPECT_EQ(*p.addText(), 3);
    p.text(3).content = "SUPPR";   // typed by the user: deleted all the same
    ASSERT_EQ(p.liveTexts().size(), 1u);
    EXPECT_EQ(p.liveTexts()[0]->number, 2);
    EXPECT_FALSE(p.text(1).visible);
}

TEST(MenuProject, TheTableHoldsAHundredButtonsThenReportsSubscriptOutOfRange)
{
    MenuProject p;
    for (int n = 1; n <= 100; ++n)
        ASSERT_EQ(*p.addButton(), n);
    auto beyond = p.addButton();
    ASSERT_FALSE(beyond.ok());
    EXPECT_EQ(beyond.error().number, err::SubscriptOutOfRange);
    EXPECT_EQ(p.buttonElementCount(), 101);
    p.reset();
    EXPECT_EQ(*p.addButton(), 1);
}

TEST(MenuProject, NewTextBoxesTakeTheTemplateValues)
{
    MenuProject p;
    const MenuText& t = p.text(*p.addText());
    EXPECT_EQ(t.number, 1);
    EXPECT_EQ(t.width, 2895);
    EXPECT_EQ(t.height, 1455);
    EXPECT_EQ(t.backColor, 0xFFFFFF);
    EXPECT_EQ(t.foreColor, 0);
    EXPECT_EQ(t.fontName, "MS Sans Serif");
    EXPECT_EQ(t.settings, "10");
    EXPECT_TRUE(t.showsScrollBar());
    EXPECT_FALSE(t.isLocked());
    EXPECT_TRUE(t.isLive());
}

TEST(MenuProject, OnlyLiveButtonsWithThreeImagesAreSavable)
{
    struct Case { const char* kind; const char* normal; const char* hover; const char* pressed; bool live, savable; };
    const Case cases[] = {
        {"code", "n", "h", "p", true, true},
        {"vidéo", "n", "h", "p", true, true},
        {"quitter", "n", "h", "p", true, true},
        {"code", "n", "", "p", true, false},
        {"quitter", "", "h", "p", true, false},
        {"vidéo", "n", "h", "", true, false},
        {"suppr", "n", "h", "p", false, false},
        {"", "n", "h", "p", false, false},
        {"Code", "n", "h", "p", false, true},   // a kind from a hand-edited file is written back as read
    };
    for (const auto& c : cases) {
        MenuButton b;
        b.kind = c.kind;
        b.normalImage = c.normal;
        b.hoverImage = c.hover;
        b.pressedImage = c.pressed;
        EXPECT_EQ(b.isLive(), c.live) << c.kind << c.normal << c.hover << c.pressed;
        EXPECT_EQ(b.isSavable(), c.savable) << c.kind << c.normal << c.hover << c.pressed;
    }
}

}  // namespace
}  // namespace qor
