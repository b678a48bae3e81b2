#pragma once

#include <optional>
#include <string>

#include "player/core/scene.h"
#include "script/host.h"

namespace qor::player {

struct ScreenInfo {
    int width = 800;          // pixels
    int height = 600;
    double twipsPerPixelX = 15;
    double twipsPerPixelY = 15;
    // The front-end reduces a window larger than the screen as a whole
    // (windowScale): its size is then kept as designed, not cut to the screen.
    bool reducesWholeWindow = false;
};

struct ImageSize {
    int width = 0;            // pixels
    int height = 0;
};

// How a message box looks: the script's buttons number (vbOKOnly +
// icon + default button), as MsgBox takes it.
struct MessageRequest {
    std::string text;
    std::string title;
    int buttons = 0;
};

// What the player asks of the screen. The front-end draws the scene it is
// given and reports the user's input back to the Player.
class PlayerView {
public:
    virtual ~PlayerView();
    virtual ScreenInfo screen() const = 0;
    // The size of a picture file, nothing when it is missing or not a picture.
    virtual std::optional<ImageSize> imageSize(const std::string& path) = 0;

    // Builds the window from the whole scene and shows it.
    virtual void show(const Scene& scene) = 0;
    virtual void windowChanged(const WindowScene& window) = 0;
    virtual void buttonChanged(std::size_t index, const ButtonScene& button) = 0;
    virtual void textChanged(std::size_t index, const TextScene& text) = 0;
    // Starts, restarts or stops the ticks that reach Player::timerTick.
    virtual void timerChanged(const TimerScene& timer) = 0;
    // Ends the menu: the window goes and the event loop returns.
    virtual void close() = 0;

    // Modal boxes; the answer is the button chosen (vbOK = 1 ... vbNo = 7).
    virtual int messageBox(const MessageRequest& request) = 0;
    // Nothing when cancelled.
    virtual std::optional<std::string> inputBox(const script::InputBoxRequest& request) = 0;
};

}  // namespace qor::player
