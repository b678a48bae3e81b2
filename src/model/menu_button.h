#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor {

// The kinds a button slot can hold. An empty kind is a slot without button.
namespace button_kind {
inline constexpr std::string_view code = "code";       // runs its button script
inline constexpr std::string_view video = "vidéo";     // plays a media file from the CD
inline constexpr std::string_view quit = "quitter";    // closes the menu
inline constexpr std::string_view deleted = "suppr";   // deleted; kept until the next load
}  // namespace button_kind

// One slot of the project's button table.
struct MenuButton {
    std::int16_t number = 0;
    float left = 0;               // twips
    float top = 0;
    std::string normalImage;      // the button takes this image's size
    std::string hoverImage;
    std::string pressedImage;
    std::string kind;
    std::string action;           // "code": the button script; "vidéo": the media name on the CD
    std::string hoverScript;
    bool transparent = false;     // transparentColor is cut out of the three images
    std::int32_t transparentColor = 0;

    // "code", "vidéo" or "quitter".
    bool isLive() const;
    // All three images chosen.
    bool hasImages() const;
    // Written to the project file: a kind other than "suppr" and all three
    // images. For the kinds the editor creates, that is a live button with
    // its images; a kind read from a hand-edited file survives a save too.
    bool isSavable() const;
};

}  // namespace qor
