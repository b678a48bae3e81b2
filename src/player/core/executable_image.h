#pragma once

#include <cstddef>
#include <string_view>

namespace qor::player {

// Where a Windows executable's own bytes end in its file: past the last
// section, the symbol table with its strings and a signature, whichever
// lies furthest. What follows is what was appended to the program (the
// compiled menu). 0 when the bytes are no whole Windows executable, so the
// caller looks at the whole file.
std::size_t executableImageEnd(std::string_view bytes);

}  // namespace qor::player
