#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qor::test {

// The whole virtual screen, as xwd/import see it.
struct Shot {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;
    // 0xRRGGBB; 0xFF000000 off the screen.
    std::uint32_t at(int x, int y) const;
};
std::optional<Shot> screenShot();
// A screenshot once the pixel at (x, y) has that colour (the window has
// painted), or the last one taken when timeoutMs passed first.
std::optional<Shot> screenShotWhen(int x, int y, std::uint32_t rgb, int timeoutMs);

// The pointer's picture as the X server shows it.
struct PointerPicture {
    int width = 0;
    int height = 0;
    int hotX = 0;
    int hotY = 0;
    std::vector<unsigned long> argb;
    friend bool operator==(const PointerPicture&, const PointerPicture&) = default;
};
std::optional<PointerPicture> pointerPicture();

// A top-level window found by its exact title.
struct WindowBox {
    std::string title;
    std::string id;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};
std::optional<WindowBox> waitForWindow(const std::string& title, int timeoutMs);

// Pointer and keys, as a user would give them.
void clickAt(int x, int y);
void moveTo(int x, int y);
// The right button at (x, y); a drag with the left one by (dx, dy).
void rightClickAt(int x, int y);
void dragBy(int x, int y, int dx, int dy);
// Text typed to the window, given the keyboard first.
void typeText(const WindowBox& window, const std::string& text);
// A key by its X name ("Return") to the window, given the keyboard first
// (with no window manager, nothing else gives it).
void pressKey(const WindowBox& window, const std::string& key);
// The "OK" of a message box with that one button: bottom centre.
void pressOk(const WindowBox& box);

// A Windows program under wine, killed when the test ends. With a trace
// file, wine writes there what the program asks of its multimedia calls.
class WineProgram {
public:
    explicit WineProgram(const std::string& exe, const std::string& traceFile = {});
    ~WineProgram();
    WineProgram(const WineProgram&) = delete;
    WineProgram& operator=(const WineProgram&) = delete;
    // The exit status, nothing when it still runs after timeoutMs.
    std::optional<int> waitExit(int timeoutMs);

private:
    pid_t pid_ = -1;
};

}  // namespace qor::test
