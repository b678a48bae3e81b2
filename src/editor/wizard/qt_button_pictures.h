#pragma once

#include "core/wizard/button_pictures.h"

namespace qor {

// The wizard's pictures on Qt's image I/O: sizes read from the file's
// header, text buttons drawn in memory and saved as 24-bit Windows bitmaps.
class QtButtonPictures final : public ButtonPictures {
public:
    Result<PixelSize> pictureSize(const std::string& path) override;
    Result<PixelSize> saveTextButton(const WizardButton& entry, ButtonState state, const std::string& path) override;
};

}  // namespace qor
