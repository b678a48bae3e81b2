#pragma once

#include <optional>
#include <string>

#include "core/ports/dialogs.h"
#include "core/ports/file_system.h"
#include "model/menu_project.h"
#include "model/picture_rule.h"

namespace qor {

// A picture of the menu that its players could not show.
struct UnreadablePicture {
    std::string path;     // the file, as the compilation would copy it
    std::string place;    // "l'image de fond", "l'image normale du bouton n°3" ...
    PictureFacts facts;
};

// The first picture a compilation ships that fails the picture rule: the
// background, the outline image and each live button's three images (with
// their baked copies when the button is transparent, whose sources the
// baker must have read). A file that is missing is left to the copy, which
// reports it.
std::optional<UnreadablePicture> firstUnreadablePicture(FileSystem& files, const MenuProject& project);

// "L'image '...' (...) est illisible : ...".
Message unreadablePictureMessage(const UnreadablePicture& picture);

// Why a picture cannot be read, as a message says it.
std::string pictureFaultText(const PictureFacts& facts);

}  // namespace qor
