// The menu window told its screen's density changed (as when it moves to
// another screen): it takes the suggested place, its size at the new
// factor, and its buttons and text boxes follow, where a click finds them.
#include <gtest/gtest.h>

#include <windows.h>

#include "model/menu_data_writer.h"
#include "player/win32/menu_window.h"
#include "player/win32/win32_system.h"

namespace qor::player {
namespace {

#ifndef WM_DPICHANGED
constexpr UINT WM_DPICHANGED = 0x02E0;
#endif

std::wstring caption(HWND window)
{
    std::wstring text(std::size_t(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), int(text.size() + 1));
    return text;
}

// A press that misses every button drags the window, in a loop that ends
// at the next release: one waits in the queue so that a miss fails the
// check instead of hanging it, and is dropped after a hit.
void click(HWND window, int x, int y)
{
    SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    MSG left;
    while (PeekMessageW(&left, window, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE)) {
    }
}

TEST(DensityChange, TheWindowAndItsLayoutFollow)
{
    Win32System system;
    // 400 x 300 as designed; a button at 40, 40 whose picture is missing
    // (75 x 25 then) adds "+" to the caption; a text box at 200, 150.
    MenuProject project;
    project.width = 6000;
    project.height = 4500;
    MenuButton& b = project.button(*project.addButton());
    b.kind = std::string(button_kind::code);
    b.normalImage = b.hoverImage = b.pressedImage = "absent.bmp";
    b.left = 600;
    b.top = 600;
    b.action = "Fenetre.Caption = Fenetre.Caption & \"+\"";
    MenuText& t = project.text(*project.addText());
    t.left = 3000;
    t.top = 2250;
    MenuDataResult read = readMenuData(menuDataBytes(project, {"densite", "Moi"}));
    ASSERT_TRUE(std::holds_alternative<MenuData>(read));
    Pictures pictures(system);
    Win32Media media;
    MenuWindow window(pictures, media);
    Player player(std::get<MenuData>(std::move(read)), MenuPlace::of("C:\\qor\\autorun.exe", '\\', "C"), window,
                  media, system);
    window.attach(player);
    player.start();
    const HWND hwnd = window.handle();
    HWND edit = FindWindowExW(hwnd, nullptr, L"EDIT", nullptr);
    ASSERT_TRUE(edit);

    std::size_t clicks = 0;
    for (const int dpi : {144, 192, 120, 96}) {
        const double f = dpi / 96.0;
        RECT suggested{30 + dpi / 4, 20 + dpi / 8, 0, 0};
        suggested.right = suggested.left + LONG(400 * f);
        suggested.bottom = suggested.top + LONG(300 * f);
        SendMessageW(hwnd, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), LPARAM(&suggested));
        RECT at{};
        GetWindowRect(hwnd, &at);
        EXPECT_EQ(at.left, suggested.left) << dpi;
        EXPECT_EQ(at.top, suggested.top) << dpi;
        EXPECT_NEAR(at.right - at.left, 400 * f, 1) << dpi;
        EXPECT_NEAR(at.bottom - at.top, 300 * f, 1) << dpi;
        RECT box{};
        GetWindowRect(edit, &box);
        EXPECT_NEAR(box.left - at.left, 200 * f, 1) << dpi;
        EXPECT_NEAR(box.top - at.top, 150 * f, 1) << dpi;
        // Inside the button only at its new size (past its 96-dpi corner
        // above 96 dpi), then just past its new corner.
        click(hwnd, int(112 * f), int(63 * f));
        EXPECT_EQ(caption(hwnd), L"densite" + std::wstring(++clicks, L'+')) << dpi;
        click(hwnd, int(117 * f), int(67 * f));
        EXPECT_EQ(caption(hwnd), L"densite" + std::wstring(clicks, L'+')) << dpi << ": a click past the button";
    }
    player.close();
}

}  // namespace
}  // namespace qor::player
