#pragma once

#include <string>
#include <string_view>

namespace qor::player {

// The core speaks UTF-8; every Windows call takes UTF-16. Paths and texts
// cross here and nowhere else, so accents survive both ways.
std::wstring widen(std::string_view utf8);
std::string narrow(std::wstring_view utf16);

// A full path that Windows accepts past its 260-character limit: long
// drive and network paths get the "\\?\" form; others stay as they are.
std::wstring longPath(std::wstring path);

// The plain form of a path the system gives back ("C:\…", "\\server\share\…"):
// it may give the long form, and wine names a program started from a
// share "UNC\server\share\…".
std::wstring plainPath(std::wstring path);

// Text boxes and message boxes want CR LF; the core may hand over LF alone.
std::wstring withCrLf(std::wstring_view text);

}  // namespace qor::player
