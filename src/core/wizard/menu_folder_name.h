#pragma once

#include <string_view>

#include "text/error.h"

namespace qor {

// Whether a menu name can name the menu's folder on the machines the menu
// is made for and on this one: no separator or other character a Windows
// folder name cannot hold, not "." or "..", no leading dot (hidden here),
// no trailing dot or blank (dropped there), no device name, at most 255
// bytes, and only characters Windows-1252 holds (the editor's files and the
// CD's menu name them in that character set). A refused name fails as a
// path access error, before anything is written.
Status checkMenuFolderName(std::string_view name);

}  // namespace qor
