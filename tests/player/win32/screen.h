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

// A top-level window found by its exact title.
struct WindowBox {
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
void pressKey(const WindowBox& window, const std::string& key);

// A Windows program under wine, killed when the test ends.
class WineProgram {
public:
    explicit WineProgram(const std::string& exe);
    ~WineProgram();
    WineProgram(const WineProgram&) = delete;
    WineProgram& operator=(const WineProgram&) = delete;
    // The exit status, nothing when it still runs after timeoutMs.
    std::optional<int> waitExit(int timeoutMs);

private:
    pid_t pid_ = -1;
};

}  // namespace qor::test
