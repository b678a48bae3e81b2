#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "player/core/player.h"
#include "player/win32/cursors.h"
#include "player/win32/pictures.h"
#include "player/win32/text_boxes.h"
#include "player/win32/win32_media.h"

namespace qor::player {

// The menu's window: a borderless pop-up with its region (outline and
// transparency image), background colour and picture, the border, the
// buttons drawn on it with their three images, and one EDIT control per
// text box. It draws what the Player decides and hands every input to it.
class MenuWindow : public PlayerView {
public:
    MenuWindow(Pictures& pictures, Win32Media& media);
    ~MenuWindow() override;
    MenuWindow(const MenuWindow&) = delete;
    MenuWindow& operator=(const MenuWindow&) = delete;
    void attach(Player& player) { player_ = &player; }
    HWND handle() const { return hwnd_; }

    // PlayerView
    ScreenInfo screen() const override;
    std::optional<ImageSize> imageSize(const std::string& path) override;
    void show(const Scene& scene) override;
    void windowChanged(const WindowScene& window) override;
    void buttonChanged(std::size_t index, const ButtonScene& button) override;
    void textChanged(std::size_t index, const TextScene& text) override;
    void timerChanged(const TimerScene& timer) override;
    void close() override;
    int messageBox(const MessageRequest& request) override;
    std::optional<std::string> inputBox(const script::InputBoxRequest& request) override;

private:
    static LRESULT CALLBACK proc(HWND hwnd, UINT message, WPARAM w, LPARAM l);
    LRESULT handle(UINT message, WPARAM w, LPARAM l);
    bool handleMouse(UINT message, POINT at);
    void paint();
    void paintBackground(HDC dc, int width, int height);
    void paintButtons(HDC dc, const RECT& dirty);
    std::optional<std::size_t> buttonAt(POINT at) const;
    RECT buttonRect(std::size_t index) const;
    void hover(std::optional<std::size_t> button);
    void mouseMove(POINT at);
    void mouseDown(POINT at);
    void mouseUp(POINT at);
    void contextMenu(POINT screenAt);
    bool setCursor(HWND over);
    void applyGeometry(const WindowScene& w);
    void applyRegion();
    void dropBackground();
    HWND owner() const;
    // Twips and layout pixels to this screen's pixels, at the window's scale.
    int px(double twips) const;
    int py(double twips) const;
    int scaled(int layoutPixels) const;
    ScreenInfo scaledScreen() const;
    double densityFactor() const;
    void densityChanged(double factor, const RECT& suggested);

    Pictures& pictures_;
    Win32Media& media_;
    Player* player_ = nullptr;
    HWND hwnd_ = nullptr;
    ScreenInfo screen_;
    // Screen pixels per layout pixel: the density factor of the window's
    // screen (1 at 96 dpi), less when the window must be reduced to fit.
    double density_ = 1;
    double scale_ = 1;
    WindowScene window_;
    std::vector<ButtonScene> buttons_;
    TextBoxes texts_;
    Cursors cursors_;
    std::optional<std::size_t> hovered_;
    std::optional<std::size_t> pressed_;
    bool tracking_ = false;
    int boxesOpen_ = 0;          // message and input boxes open over the window
    HBITMAP background_ = nullptr;   // colour, picture and border at the current size
    SIZE backgroundSize_{};
    SIZE regionSize_{};
    int shownState_ = -2;       // windowState last applied, -1 hidden, -2 never shown
    bool closing_ = false;
};

}  // namespace qor::player
