#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/shape_region.h"

namespace qor::player {

// What the menu shows, as the scripts see it: positions and sizes in twips,
// colours 0x00BBGGRR (0x80000000 + n for system colour n), images as full
// paths ("" for none). A front-end draws it; scripts change it through the
// run-time objects and the front-end is told which part changed.

using PixelPoint = qor::PixelPoint;

// The pointer shapes a script can ask for, by their MousePointer numbers.
enum class Cursor {
    Default,    // 0: the element's own (a hand over buttons when asked for)
    Arrow,      // 1, 4
    Cross,      // 2
    IBeam,      // 3
    SizeAll,    // 5, 15
    SizeNeSw,   // 6
    SizeNS,     // 7
    SizeNwSe,   // 8
    SizeWE,     // 9
    UpArrow,    // 10
    Wait,       // 11
    NoDrop,     // 12
    ArrowWait,  // 13
    Help,       // 14
    Custom,     // 99: the MouseIcon picture
    Hand,       // never asked by number: buttons when the menu wants a hand
};

struct CursorChoice {
    int pointer = 0;          // the MousePointer number as set
    std::string icon;         // MouseIcon picture, for 99
    friend bool operator==(const CursorChoice&, const CursorChoice&) = default;
};

struct WindowScene {
    std::string caption;
    bool fullScreen = false;
    double left = 0;          // twips on the screen
    double top = 0;
    double width = 0;
    double height = 0;
    std::uint32_t backColor = 0x00FFFFFF;
    std::string backgroundImage;
    bool stretch = true;      // background image fills the window
    bool borderVisible = true;
    std::uint32_t borderColor = 0;
    int borderWidth = 1;      // pixels
    int borderShape = 0;      // 0 rectangle, 2 oval, 4 rounded rectangle
    std::vector<PixelPoint> shape;   // the outline in window pixels; empty: none
    std::string transparencyImage;   // its white pixels are cut out
    bool visible = true;
    int windowState = 0;      // 0 normal, 1 minimised, 2 maximised
    CursorChoice cursor;
    CursorChoice screenCursor;   // Ecran: over everything while not 0
    bool handOverButtons = true;
    bool contextMenu = true;
};

struct ButtonScene {
    int number = 0;
    double left = 0;
    double top = 0;
    std::string normalImage;
    std::string hoverImage;
    std::string pressedImage;
    enum class Look { Normal, Hover, Pressed };
    Look look = Look::Normal;
    bool enabled = true;
    bool visible = true;
    CursorChoice cursor;

    // The image on screen for the button's look.
    const std::string& shownImage() const
    {
        return look == Look::Pressed ? pressedImage : look == Look::Hover ? hoverImage : normalImage;
    }
};

struct TextScene {
    int number = 0;
    std::string text;
    int alignment = 0;        // 0 left, 1 right, 2 centred
    std::string fontName;
    double fontSize = 8.25;
    bool fontBold = false;
    bool fontItalic = false;
    bool fontStrikethru = false;
    bool fontUnderline = false;
    std::uint32_t foreColor = 0;
    std::uint32_t backColor = 0x00FFFFFF;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool scrollBar = false;
    bool locked = false;
    bool visible = true;
    CursorChoice cursor;
};

struct TimerScene {
    bool enabled = false;
    long interval = 1000;     // milliseconds as set; runs only from 1 to 60000
    bool runs() const { return enabled && interval >= 1 && interval <= 60000; }
};

struct Scene {
    WindowScene window;
    std::vector<ButtonScene> buttons;   // in number order
    std::vector<TextScene> texts;
    TimerScene timer;
};

}  // namespace qor::player
