#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ports/screen.h"

namespace qor {

// The checks of what the user types into the properties panel. Each says
// what the typed text means, or that it means nothing usable.

// The largest window or element extent, in pixels, that the platform can
// show: sizes and positions beyond it are refused like non-numbers.
inline constexpr double kMaxPixels = 32767;

// The most memory one window's picture may take (32 bits a pixel), the
// same limit the platform puts on reading one picture: a larger window could
// not be drawn, and asking for it would exhaust the memory first.
inline constexpr double kMaxSurfaceBytes = 256.0 * 1024 * 1024;

// True when a window or element of that size can be shown: above zero, at
// most kMaxPixels on each axis and its picture within kMaxSurfaceBytes.
bool isShowableSize(TwipsSize size, const ScreenMetrics& screen);

// A size typed into a pair of fields ("Taille :" of the window or of a text
// box): both numeric, both above zero and at most kMaxPixels on their axis.
// "12,5", "1e400", "0" and "-3" give nothing.
std::optional<TwipsSize> sizeFromFields(std::string_view width, std::string_view height,
                                        const ScreenMetrics& screen);

// The timer interval field when it loses the focus: the whole part of the
// absolute value as text, or nothing when that is not from 1 to 60000 (the
// field then shows kDefaultTimerInterval after the message).
std::optional<std::string> checkedTimerInterval(std::string_view field);
inline constexpr std::string_view kDefaultTimerInterval = "1000";

// The answer to one prompt of a position dialog.
struct PositionAnswer {
    enum class Kind { Cancelled, Invalid, Value } kind = Kind::Cancelled;
    double value = 0;   // the whole part, towards minus infinity

    friend bool operator==(const PositionAnswer&, const PositionAnswer&) = default;
};

// An answer in twips ("12.7" gives 12, "-3.2" gives -4), or in pixels when
// twipsPerPixel is given as 1. Empty: cancelled. Not a number, or beyond
// kMaxPixels once in pixels: invalid.
PositionAnswer readPositionAnswer(std::string_view answer, double twipsPerPixel);

// What the pixel dialog proposes for a position: the whole part of twips
// divided by the axis' ratio (200 twips at 15 gives 13).
long long pixelDefault(double twips, double twipsPerPixel);

// The three entries of the media location menu.
enum class MediaLocation { CdRoot, CdFolders, WhereItIs };

// The media field after a file was chosen: the bare name, the folders typed
// followed by the name ("videos" and "videos\" both give "videos\a.avi"),
// or the full path. Nothing when the folders answer is empty.
std::optional<std::string> mediaFieldFor(MediaLocation where, std::string_view chosenPath,
                                         std::string_view foldersAnswer);

inline constexpr std::string_view kMediaFoldersPrompt =
    "Entrez le nom du (ou des) répertoire(s) (exemple : monrep1 ou monrep1\\monrep2\\monrep3... ) :";

}  // namespace qor
