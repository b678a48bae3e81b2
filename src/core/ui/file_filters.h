#pragma once

#include <string_view>

namespace qor {

// The picture filter of every dialog that asks for an image: the designer's
// and the wizard's.
inline constexpr std::string_view kImageFilter =
    "Images *.jpg, *.jpeg, *.gif, *.bmp, *.ico | *.jpg;*.jpeg;*.gif;*.bmp;*.ico";

}  // namespace qor
