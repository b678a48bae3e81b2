#include "core/build/picture_check.h"

#include "core/build/value_check.h"
#include "model/menu_data_layout.h"

namespace qor {
namespace {

using R = DataValueFault::Record;

std::string placeOf(R record, int number, std::string_view field)
{
    return valuePlace(DataValueFault{record, number, field, "", DataValueProblem::Separator});
}

std::optional<UnreadablePicture> examine(FileSystem& files, const std::string& path, std::string place)
{
    const auto size = files.fileSize(path);
    if (!size)
        return std::nullopt;
    const PictureFacts facts = examinePicture(
        [&](std::uint64_t offset, std::size_t count) -> std::optional<std::string> {
            auto bytes = files.readRange(path, offset, count);
            return bytes ? std::optional(std::move(bytes).value()) : std::nullopt;
        },
        *size);
    if (facts.readable())
        return std::nullopt;
    return UnreadablePicture{path, std::move(place), facts};
}

}  // namespace

std::optional<UnreadablePicture> firstUnreadablePicture(FileSystem& files, const MenuProject& project)
{
    for (auto [field, stored] : {std::pair{"backgroundImage", &project.backgroundImage},
                                 std::pair{"transparencyImage", &project.transparencyImage}})
        if (!stored->empty())
            if (auto bad = examine(files, project.resolve(*stored), placeOf(R::Project, 0, field)))
                return bad;
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project.button(n);
        if (b.kind == button_kind::deleted || b.normalImage.empty())
            continue;
        for (auto [field, stored] : {std::pair{"normalImage", &b.normalImage}, std::pair{"hoverImage", &b.hoverImage},
                                     std::pair{"pressedImage", &b.pressedImage}}) {
            if (stored->empty())
                continue;
            const std::string source = project.resolve(*stored);
            if (auto bad = examine(files, source, placeOf(R::Button, n, field)))
                return bad;
            if (b.transparent)
                if (auto bad = examine(files, source + std::string(menu_data_layout::kTransparentSuffix),
                                       placeOf(R::Button, n, field)))
                    return bad;
        }
    }
    return std::nullopt;
}

std::string pictureFaultText(const PictureFacts& facts)
{
    switch (facts.fault.value_or(PictureFault::Damaged)) {
    case PictureFault::Empty: return "le fichier est vide";
    case PictureFault::NotAPicture: return "ce n'est pas une image BMP, JPEG, PNG, GIF ou ICO";
    case PictureFault::Damaged: return "son en-tête est endommagé";
    case PictureFault::Truncated: return "le fichier est incomplet";
    case PictureFault::TooLarge:
        return "elle mesure " + std::to_string(facts.width) + " × " + std::to_string(facts.height) +
               " pixels, un menu en affiche au plus " + std::to_string(kLargestPictureSide) + " × " +
               std::to_string(kLargestPictureSide);
    }
    return {};
}

Message unreadablePictureMessage(const UnreadablePicture& picture)
{
    return Message{"Compilation impossible : l'image '" + picture.path + "' (" + picture.place +
                       ") est illisible : " + pictureFaultText(picture.facts) + ".",
                   "Compilation", MessageIcon::Exclamation};
}

}  // namespace qor
