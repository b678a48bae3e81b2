#pragma once

#include "core/ports/button_baker.h"
#include "model/menu_project.h"

namespace qor {

// Bakes the "_transp.bmp" images of transparent buttons without a screen:
// each image is laid over what the worksheet shows under the button (the
// background colour and the background picture stretched to the window),
// its key colour left out, and saved as a 24-bit BMP beside the source.
// Elements that overlap the button are not drawn under it.
class HeadlessBaker final : public ButtonBaker {
public:
    explicit HeadlessBaker(const MenuProject& project, double twipsPerPixel = 15)
        : project_(project), twipsPerPixel_(twipsPerPixel)
    {
    }

    void bakeAllButtons() override;

private:
    const MenuProject& project_;
    double twipsPerPixel_;
};

}  // namespace qor
