#include "model/menu_button.h"

namespace qor {

bool MenuButton::isLive() const
{
    return kind == button_kind::code || kind == button_kind::video || kind == button_kind::quit;
}

bool MenuButton::hasImages() const
{
    return !normalImage.empty() && !hoverImage.empty() && !pressedImage.empty();
}

bool MenuButton::isSavable() const
{
    return !kind.empty() && kind != button_kind::deleted && hasImages();
}

}  // namespace qor
