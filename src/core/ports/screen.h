#pragma once

namespace qor {

// A width and a height in twips.
struct TwipsSize {
    double width = 0;
    double height = 0;

    friend bool operator==(const TwipsSize&, const TwipsSize&) = default;
};

// A point in twips.
struct TwipsPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const TwipsPoint&, const TwipsPoint&) = default;
};

// The screen in twips (1/1440 inch) and its twips-per-pixel factors.
struct ScreenMetrics {
    double widthTwips = 0;
    double heightTwips = 0;
    double twipsPerPixelX = 15;
    double twipsPerPixelY = 15;

    double widthPixels() const { return widthTwips / twipsPerPixelX; }
    double heightPixels() const { return heightTwips / twipsPerPixelY; }
};

class Screen {
public:
    virtual ~Screen() = default;
    virtual ScreenMetrics metrics() = 0;
};

}  // namespace qor
