#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/menu_data_reader.h"
#include "player/core/media_port.h"
#include "player/core/menu_place.h"
#include "player/core/player_view.h"
#include "player/core/stage.h"
#include "player/core/system_port.h"
#include "script/module.h"

namespace qor::player {

// At most this many loop turns and procedure calls per script run: about a
// second of work. A script that goes beyond it never ends by itself; it is
// stopped with a message and the menu goes on.
inline constexpr std::uint64_t kScriptStepBudget = 30'000'000;

// One running menu: the scene built from the compiled data, the scripts in
// one module (the global script first, every other script in the same
// module so it sees the global procedures and constants), the run-time
// objects, and what each input of the user sets off. A front-end shows the
// scene through the PlayerView, plays through the MediaPort, reaches the
// machine through the SystemPort and reports the user's input here.
class Player : private Stage {
public:
    Player(MenuData menu, MenuPlace place, PlayerView& view, MediaPort& media, SystemPort& system);
    ~Player() override;

    // After the window is built: shows it, adds the global script, starts the
    // music, runs the startup action and arms the timer.
    void start();

    // The user's input. Indexes are positions in scene().buttons / texts.
    void pointerEntersButton(std::size_t index);
    void pointerLeavesButton(std::size_t index);
    void pressButton(std::size_t index);
    void releaseButton(std::size_t index, bool overButton);
    // Every move over the background; its script runs once per entry.
    void pointerOverBackground();
    // The pointer went from the background to a text box or out of the window.
    void pointerLeavesBackground();
    void timerTick();
    void textEdited(std::size_t index, std::string text);
    // The window dragged to a new place, in pixels on the screen.
    void windowMoved(int leftPixels, int topPixels);
    // The user minimised, restored or maximised the window through the
    // system (0 normal, 1 minimised, 2 maximised): scripts see it, and the
    // next one that shows the window shows it as it now is.
    void windowStateChanged(int state);

    // The right-click menu's entries, none when the menu has none.
    std::vector<std::string> contextMenuEntries() const;
    void chooseContextEntry(std::size_t entry);

    // The user closes the window (a "quitter" button, the context menu, the
    // window manager) or a script asks for it.
    void close();
    bool closed() const { return closed_; }

    const Scene& scene() const { return scene_; }
    // The menu's module, where every script of the menu runs.
    script::Module& module() { return module_; }
    const MenuDataInfo& info() const { return menu_.info; }
    const MenuPlace& place() const { return place_; }

    // Stops a running script from another thread (a watchdog, a signal).
    void stopScripts() { module_.requestStop(); }
    // The step budget of each script run (kScriptStepBudget by default).
    void setScriptStepBudget(std::uint64_t steps) { module_.setStepBudget(steps); }

private:
    enum class Where { Outside, Background, Button };

    // Stage: what the run-time objects change.
    Scene& changeableScene() override { return scene_; }
    ScreenInfo screen() const override { return screen_; }
    void windowChanged() override;
    void buttonChanged(std::size_t index) override;
    void textChanged(std::size_t index) override;
    void timerChanged() override;
    script::HostResult request(std::string_view verb, std::string_view argument) override;
    bool closing() const override { return closeAsked_ || closed_; }
    script::HostResult loadPicture(std::string_view path) override;

    void buildScene();
    bool runScript(std::string_view script, std::string_view where);
    void settle();
    void playMedia(std::string_view name);
    void clickButton(std::size_t index);
    std::string dataFile(std::string_view name) const;
    std::string cdFile(std::string_view name) const;

    MenuData menu_;
    MenuPlace place_;
    PlayerView& view_;
    MediaPort& media_;
    SystemPort& system_;
    ScreenInfo screen_;
    Scene scene_;
    std::vector<const MenuButton*> buttons_;   // the data of scene_.buttons
    std::unique_ptr<script::ScriptHost> host_;
    script::Module module_;
    Where where_ = Where::Outside;
    bool busy_ = false;          // a script runs: no other starts until it ends
    bool closeAsked_ = false;
    bool closed_ = false;
};

// The message of a script that failed: "Erreur n°" & number & " (" &
// description & ")", then the line and the script it stands in.
std::string scriptErrorText(const script::ScriptError& error, std::string_view where);
inline constexpr std::string_view kScriptErrorTitle = "Erreur !";

// The pointer to show over an element: the screen's while one is set, else
// the element's own, else a hand over buttons when the menu wants one.
struct PointerShape {
    Cursor cursor = Cursor::Default;
    std::string icon;
    friend bool operator==(const PointerShape&, const PointerShape&) = default;
};
PointerShape pointerOver(const WindowScene& window, const CursorChoice& own, bool isButton);

// Which files a media name plays as a video, which as a sound; any other is
// opened with the desktop.
enum class MediaKind { Video, Sound, Other };
MediaKind mediaKindOf(std::string_view path);

}  // namespace qor::player
