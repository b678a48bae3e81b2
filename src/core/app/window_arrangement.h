#pragma once

#include "core/app/app_state.h"
#include "core/ports/screen.h"

namespace qor {

// The outer sizes (twips) of the windows that start-up arranges, as loaded.
struct WindowSizes {
    TwipsSize toolbox;
    TwipsSize main;
    TwipsSize properties;
    TwipsSize mousePosition;
};

struct WindowPosition {
    double left = 0;
    double top = 0;

    friend bool operator==(const WindowPosition&, const WindowPosition&) = default;
};

// Where start-up puts each window (twips). Sizes not listed stay as loaded.
struct WindowArrangement {
    WindowPosition worksheet;
    TwipsSize worksheetSize;     // the default menu size
    WindowPosition toolbox;
    WindowPosition main;
    WindowPosition properties;
    double propertiesHeight = 0;
    WindowPosition mousePosition;

    friend bool operator==(const WindowArrangement&, const WindowArrangement&) = default;
};

// The worksheet and the toolbox side by side, 200 twips apart and centred on
// the screen; the main window centred above them; the properties panel under
// the toolbox down to 500 twips above the screen's bottom; the mouse-position
// window 500 twips right of the main window, at its top.
WindowArrangement arrangeWindows(const WindowSizes& sizes, const ScreenMetrics& screen,
                                 TwipsSize menuSize);

}  // namespace qor
