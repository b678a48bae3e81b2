#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <tuple>
#include <optional>
#include <string>
#include <vector>

#include "player/core/player_view.h"

namespace qor::player {

// The menu's text boxes as EDIT controls: text, font, colours, alignment,
// scroll bar and lock from their scenes; what the user types goes back
// through edited. A box is made when asked (a menu with thousands gets its
// window first and the boxes batch by batch); a box the system refuses
// (it has a limit of windows per program) is left out, the menu goes on.
class TextBoxes {
public:
    using Edited = std::function<void(std::size_t, std::string)>;
    TextBoxes(HWND parent, Edited edited);
    ~TextBoxes();
    TextBoxes(const TextBoxes&) = delete;
    TextBoxes& operator=(const TextBoxes&) = delete;

    // screen: its twips per pixel give the window's scale (15 / scale).
    void reset(const std::vector<TextScene>& texts, const ScreenInfo& screen);
    // The window's scale changed: every box and font follows.
    void rescale(const ScreenInfo& screen);
    // Makes up to count more boxes; true while some are still to be made.
    bool createSome(std::size_t count);
    void change(std::size_t index, const TextScene& text);
    const TextScene* sceneOf(HWND edit) const;

    // WM_CTLCOLOREDIT / WM_CTLCOLORSTATIC: the box's colours, null for a control not ours.
    HBRUSH colours(HWND edit, HDC dc);
    // EN_CHANGE from one of the boxes.
    void changed(HWND edit);

private:
    struct Box {
        TextScene scene;
        HWND window = nullptr;
        HFONT font = nullptr;     // shared: owned by fonts_
        HBRUSH brush = nullptr;   // shared: owned by brushes_
    };
    // Name, size, bold, italic, underline, strike-through.
    using FontKey = std::tuple<std::string, double, bool, bool, bool, bool>;
    std::optional<std::size_t> indexOf(HWND edit) const;
    void present(Box& box);
    void release(Box& box);
    // Boxes that look alike share one font and one brush: a program gets
    // 10 000 drawing objects in all, and a menu may hold as many boxes.
    HFONT font(const TextScene& t);
    HBRUSH brush(COLORREF colour);
    void releaseShared();

    HWND parent_;
    Edited edited_;
    ScreenInfo screen_;
    std::vector<Box> boxes_;
    std::map<FontKey, HFONT> fonts_;
    std::map<COLORREF, HBRUSH> brushes_;
    std::size_t made_ = 0;
    bool setting_ = false;
};

}  // namespace qor::player
