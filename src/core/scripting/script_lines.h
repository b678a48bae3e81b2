#pragma once

#include <string_view>
#include <vector>

namespace qor {

// The lines of a script as the editor holds it: broken at CR LF only, so a
// lone CR or LF stays inside its line. An empty text is one empty line, and
// a text ending with CR LF ends with an empty line.
std::vector<std::string_view> scriptLines(std::string_view text);

}  // namespace qor
