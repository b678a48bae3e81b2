#pragma once

#include <string>

#include "core/wizard/wizard_button.h"
#include "text/error.h"

namespace qor {

struct PixelSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// What the wizard needs of pictures, which only the platform can read and
// draw: the size of a picture file, and a text button's picture drawn and
// saved as a Windows bitmap.
class ButtonPictures {
public:
    virtual ~ButtonPictures() = default;

    // FileNotFound (53) when there is no such file, InvalidPicture (481)
    // when it is not a picture the editor reads.
    virtual Result<PixelSize> pictureSize(const std::string& path) = 0;

    // Draws one state of a text button and saves it at path; the size of
    // the picture drawn.
    virtual Result<PixelSize> saveTextButton(const WizardButton& entry, ButtonState state,
                                             const std::string& path) = 0;
};

}  // namespace qor
