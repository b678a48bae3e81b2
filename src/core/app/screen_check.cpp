#include "core/app/screen_check.h"

#include <cmath>

namespace qor {

std::optional<TwipsSize> defaultMenuSizeFor(const ScreenMetrics& screen)
{
    // The twips come from whole pixels, so rounding only absorbs the
    // division's floating-point noise.
    const long widthPixels = std::lround(screen.widthPixels());
    if (widthPixels == 640)
        return std::nullopt;
    const double w = widthPixels == 800 ? 640 : 800;
    const double h = widthPixels == 800 ? 480 : 600;
    return TwipsSize{w * screen.twipsPerPixelX, h * screen.twipsPerPixelY};
}

Message screenTooSmallMessage()
{
    return Message{"Votre résolution est insuffisante pour démarrer QOR, vous devez être en 800x600 minimum !",
                   "Erreur de chargement", MessageIcon::Critical};
}

}  // namespace qor
