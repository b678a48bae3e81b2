// Feeds arbitrary bytes to the player as the file holding its menu: the data
// is found and read, and a menu that reads is built and started through
// ports that answer everything, then every button is entered, pressed and
// released, the background is hovered and the timer ticks. Scripts run with
// a small step budget, so a runaway one costs little.
#include <cstdint>
#include <string>
#include <string_view>

#include "player/core/player.h"

namespace {

using namespace qor;
using namespace qor::player;

class QuietView : public PlayerView {
public:
    ScreenInfo screen() const override { return {800, 600, 15, 15}; }
    std::optional<ImageSize> imageSize(const std::string& path) override
    {
        if (path.ends_with(".bmp"))
            return ImageSize{16, 16};
        return std::nullopt;
    }
    void show(const Scene&) override {}
    void windowChanged(const WindowScene&) override {}
    void buttonChanged(std::size_t, const ButtonScene&) override {}
    void textChanged(std::size_t, const TextScene&) override {}
    void timerChanged(const TimerScene&) override {}
    void close() override {}
    int messageBox(const MessageRequest& r) override { return (r.buttons & 7) == 4 ? 7 : 1; }
    std::optional<std::string> inputBox(const script::InputBoxRequest& r) override { return r.defaultText; }
};

class QuietMedia : public MediaPort {
public:
    void playMusic(const std::string&) override {}
    void playSound(const std::string&) override {}
    void playVideo(const std::string&) override {}
    void stopAll() override {}
};

// Files beside the menu exist when their name says so; nothing starts.
class QuietSystem : public SystemPort {
public:
    char separator() const override { return '/'; }
    std::string driveLetterOf(const std::string&) const override { return "D"; }
    bool fileExists(const std::string& path) const override { return path.find("ok") != std::string::npos; }
    std::optional<std::string> readFile(const std::string& path) const override
    {
        if (!fileExists(path))
            return std::nullopt;
        return std::string("texte\r\nligne 2");
    }
    bool openWithDesktop(const std::string&) override { return true; }
    bool startProgram(const std::string&, const std::string&) override { return false; }
    bool startMenu(const std::string&) override { return true; }
    void ejectTray(const std::string&, bool) override {}
};

void play(MenuData menu)
{
    QuietView view;
    QuietMedia media;
    QuietSystem system;
    Player player(std::move(menu), MenuPlace::of("/cd/qor/autorun.exe", '/', "D"), view, media, system);
    player.setScriptStepBudget(20000);
    player.start();
    const std::size_t buttons = player.scene().buttons.size();
    for (std::size_t i = 0; i < buttons && !player.closed(); ++i) {
        player.pointerEntersButton(i);
        player.pressButton(i);
        player.releaseButton(i, true);
        player.pointerLeavesButton(i);
    }
    player.pointerOverBackground();
    for (int tick = 0; tick < 3; ++tick)
        player.timerTick();
    if (!player.contextMenuEntries().empty())
        player.chooseContextEntry(2);
    player.close();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    MenuDataResult read = readMenuData(bytes);
    if (auto* menu = std::get_if<MenuData>(&read))
        play(std::move(*menu));
    else if (std::get<MenuDataError>(read).message().empty())
        __builtin_trap();   // every failure has words for the user
    return 0;
}
