#include "core/picture/print_preview_rules.h"

#include <cmath>
#include <limits>

namespace qor::print_preview {

const Entry& entry(int index)
{
    if (index < 0 || index >= int(kEntries.size()))
        return kEntries[0];
    return kEntries[std::size_t(index)];
}

std::int16_t scrollMaximum(double imageTwips)
{
    const double steps = std::floor(imageTwips / kScrollStep);
    if (!(steps > 0))
        return 0;
    return std::int16_t(std::min(steps, double(std::numeric_limits<std::int16_t>::max())));
}

double scrollOffset(int position)
{
    return -kScrollStep * position;
}

double zoomedIn(double size)
{
    return size / kZoomFactor;
}

double zoomedOut(double size)
{
    return size * kZoomFactor;
}

namespace {

std::optional<PixelRect> placed(int left, int top, int width, int height)
{
    if (width <= 0 || height <= 0)
        return std::nullopt;
    return PixelRect{left, top, width, height};
}

}  // namespace

Layout layout(int innerWidth, int innerHeight, int areaLeft, int areaTop, int barWidth, int barHeight)
{
    Layout out;
    const int areaWidth = innerWidth - areaLeft;
    const int areaHeight = innerHeight - areaTop;
    out.area = placed(areaLeft, areaTop, areaWidth, areaHeight);
    out.vertical = placed(areaWidth - barWidth, 0, barWidth, areaHeight - barHeight);
    out.horizontal = placed(0, areaHeight - barHeight, areaWidth - barWidth, barHeight);
    const int cornerLeft = out.horizontal ? out.horizontal->width : 0;
    const int cornerTop = out.vertical ? out.vertical->height : 0;
    out.corner = placed(cornerLeft, cornerTop, barWidth, barHeight);
    return out;
}

FileDialogRequest saveRequest(const std::string& currentFolder)
{
    return {"Enregistrer", "Image *.bmp | *.bmp", currentFolder, ""};
}

std::string bmpSavePath(const std::string& typed)
{
    const std::size_t separator = typed.find_last_of("/\\");
    const std::size_t name = separator == std::string::npos ? 0 : separator + 1;
    const std::size_t dot = typed.rfind('.');
    // A dot that starts the name (".image") is part of the name.
    const bool hasExtension = dot != std::string::npos && dot > name;
    return hasExtension ? typed : typed + ".bmp";
}

Message saveFailedMessage(int number, const std::string& description)
{
    return {"Erreur n°" + std::to_string(number) + " (" + description +
                ") dans la procédure Command5_Click de Feuille Form18",
            "Erreur !", MessageIcon::Critical};
}

Message clipboardCopiedMessage()
{
    return {"Image copiée dans le presse papier !", "Imprimer", MessageIcon::Information};
}

Message clipboardRefusedMessage()
{
    return {"Le presse papier n'a pas accepté l'image.", "Imprimer", MessageIcon::Exclamation};
}

Message noPrinterMessage()
{
    return {"Aucune imprimante n'est installée : l'impression est impossible.", "Imprimer",
            MessageIcon::Exclamation};
}

}  // namespace qor::print_preview
