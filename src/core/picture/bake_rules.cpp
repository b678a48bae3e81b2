#include "core/picture/bake_rules.h"

#include "model/menu_data_layout.h"
#include "text/numbers.h"

namespace qor {

int toPixels(double twips, double twipsPerPixel)
{
    if (twipsPerPixel <= 0)
        return 0;
    return int(roundHalfEven(twips / twipsPerPixel));
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
    for (int n = 1; n < project.buttonElementCount() && n <= MenuProject::kLastButtonSlot; ++n)
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
