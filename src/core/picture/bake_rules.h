#pragma once

#include <string>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "model/menu_project.h"

namespace qor {

// A rectangle in whole pixels.
struct PixelRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// Twips to whole pixels on one axis, halves away from zero.
int toPixels(double twips, double twipsPerPixel);

// The file a baked image is written to: the source path and "_transp.bmp".
std::string bakedImagePath(const std::string& imagePath);

// Whether bake all buttons renders this button: a live, transparent button
// with a normal image.
bool isBaked(const MenuButton& button);

// The buttons bake all buttons renders, in number order.
std::vector<int> buttonsToBake(const MenuProject& project);

// One picture of a button to bake: the source read, the file written.
struct BakeStep {
    std::string source;
    std::string target;

    friend bool operator==(const BakeStep&, const BakeStep&) = default;
};

// The pictures of button n in the order they are baked: pressed, hover,
// normal, so that the worksheet ends on the normal one. An image left
// empty is not baked: its file would be named "_transp.bmp" alone and a
// build would take it for a real picture.
std::vector<BakeStep> bakeSteps(const MenuProject& project, int n);

// Where a picture of size (pixels) stands when it is the button's: the
// button's top-left corner rounded to pixels.
PixelRect buttonRect(const MenuButton& button, int width, int height, const ScreenMetrics& screen);

// The worksheet's inner area in pixels, from the window size in twips.
PixelRect worksheetRect(const MenuProject& project, const ScreenMetrics& screen);

// A baked picture that could not be written (a folder without write access):
// told once per bake, the button's other pictures are not tried.
Message bakeWriteFailedMessage(const std::string& path);

}  // namespace qor
