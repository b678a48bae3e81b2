#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "player/core/player.h"

namespace qor::player {

// The core's pointer choice as a Windows cursor: the system's shapes, and
// .ico or .cur files for MouseIcon (loaded once each).
class Cursors {
public:
    ~Cursors();
    // fallback stands for Default: the arrow, or the I-beam over text.
    HCURSOR cursorFor(const PointerShape& shape, LPCWSTR fallback);

private:
    std::map<std::string, HCURSOR> files_;
};

}  // namespace qor::player
