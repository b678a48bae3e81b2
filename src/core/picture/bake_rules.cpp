#include "core/picture/bake_rules.h"

#include <cmath>

#include "model/menu_data_layout.h"

namespace qor {

int toPixels(double twips, double twipsPerPixel)
{
    if (twipsPerPixel <= 0)
        return 0;
    // Halves away from zero, as the worksheet has always placed its windows
    // and elements.
    return int(std::lround(twips / twipsPerPixel));
}

std::string bakedImagePath(const std::string& imagePath)
{
    return imagePath + std::string(menu_data_layout::kTransparentSuffix);
}

bool isBaked(const MenuButton& button)
{
    return button.kind != button_kind::deleted && button.transparent && !button.normalImage.empty();
}

std::vector<int> buttonsToBake(const MenuProject& project)
{
    std::vector<int> out;
    // Every slot, as compilation walks them: a slot past the last element is
    // empty and so never baked.
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n)
        if (isBaked(project.button(n)))
            out.push_back(n);
    return out;
}

std::vector<BakeStep> bakeSteps(const MenuProject& project, int n)
{
    const MenuButton& b = project.button(n);
    std::vector<BakeStep> out;
    for (const std::string* image : {&b.pressedImage, &b.hoverImage, &b.normalImage}) {
        if (image->empty())
            continue;
        const std::string source = project.resolve(*image);
        out.push_back({source, bakedImagePath(source)});
    }
    return out;
}

PixelRect buttonRect(const MenuButton& button, int width, int height, const ScreenMetrics& screen)
{
    return {toPixels(button.left, screen.twipsPerPixelX), toPixels(button.top, screen.twipsPerPixelY), width, height};
}

PixelRect worksheetRect(const MenuProject& project, const ScreenMetrics& screen)
{
    return {0, 0, toPixels(project.width, screen.twipsPerPixelX), toPixels(project.height, screen.twipsPerPixelY)};
}

Message bakeWriteFailedMessage(const std::string& path)
{
    return {"Impossible d'écrire l'image '" + path +
                "' : le dossier est peut-être protégé en écriture. Les images de ce bouton n'ont pas été "
                "recalculées.",
            "Transparence des boutons", MessageIcon::Critical};
}

}  // namespace qor
