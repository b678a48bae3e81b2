#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/menu_data_reader.h"
#include "player/core/media_port.h"
#include "player/core/player_view.h"
#include "player/core/system_port.h"

namespace qor::player::test {

// One log for every port, so a test can check the order of what happened
// across the view, the media and the system.
using Log = std::vector<std::string>;

class FakeView : public PlayerView {
public:
    explicit FakeView(Log& log) : log_(log) {}
    ScreenInfo screenInfo{1024, 768, 15, 15};
    std::map<std::string, ImageSize> images;      // the files that are pictures
    std::deque<int> answers;                      // message box answers, vbOK when none
    std::deque<std::optional<std::string>> inputs;
    std::vector<MessageRequest> messages;
    Scene shown;                                  // the scene as the view was last told
    bool closed = false;
    TimerScene timer;

    ScreenInfo screen() const override { return screenInfo; }
    std::optional<ImageSize> imageSize(const std::string& path) override;
    void show(const Scene& scene) override;
    void windowChanged(const WindowScene& window) override;
    void buttonChanged(std::size_t index, const ButtonScene& button) override;
    void textChanged(std::size_t index, const TextScene& text) override;
    void timerChanged(const TimerScene& t) override;
    void close() override;
    int messageBox(const MessageRequest& request) override;
    std::optional<std::string> inputBox(const script::InputBoxRequest& request) override;

private:
    Log& log_;
};

class FakeMedia : public MediaPort {
public:
    explicit FakeMedia(Log& log) : log_(log) {}
    void playMusic(const std::string& path) override { log_.push_back("music " + path); }
    void playSound(const std::string& path) override { log_.push_back("sound " + path); }
    void playVideo(const std::string& path) override { log_.push_back("video " + path); }
    void stopAll() override { log_.push_back("stop media"); }

private:
    Log& log_;
};

class FakeSystem : public SystemPort {
public:
    explicit FakeSystem(Log& log) : log_(log) {}
    std::map<std::string, std::string> files;
    bool starts = true;    // what startProgram, startMenu and openWithDesktop answer

    char separator() const override { return '/'; }
    std::string driveLetterOf(const std::string&) const override { return "D"; }
    bool fileExists(const std::string& path) const override { return files.count(path) != 0; }
    std::optional<std::string> readFile(const std::string& path) const override;
    bool openWithDesktop(const std::string& target) override;
    bool startProgram(const std::string& program, const std::string& arguments) override;
    bool startMenu(const std::string& menuFile) override;
    void ejectTray(const std::string& driveLetter, bool open) override;

private:
    Log& log_;
};

// A project through the real writer and reader, as a player receives it.
MenuData compiled(const MenuProject& project, const MenuDataInfo& info = {"Démo", "Moi"});
// The bytes a compilation appends to the player for that project.
std::string compiledBytes(const MenuProject& project, const MenuDataInfo& info = {"Démo", "Moi"});

}  // namespace qor::player::test
