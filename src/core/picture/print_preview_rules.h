#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/picture/bake_rules.h"
#include "core/ports/dialogs.h"

namespace qor {

// The menu picture's preview window ("Imprimer..."): its numbers and texts.
namespace print_preview {

// The capture kept in the program folder while the preview is open.
inline constexpr std::string_view kCaptureFileName = "tmp_impression.bmp";
// One step of either scroll bar, in twips.
inline constexpr double kScrollStep = 800;
// One click of "Zoom -"; "Zoom +" divides by it.
inline constexpr double kZoomFactor = 0.95;

// The preview's commands that a menu entry can give the focus to.
enum class Command { Print, Save, Clipboard };

// The three "Imprimer" entries of "&Fichier", by index.
struct Entry {
    std::string_view caption;
    Command focused;
    std::string_view commandName;
};
inline constexpr std::array<Entry, 3> kEntries{{
    {"Dans un fichier BMP", Command::Save, "Command5"},
    {"Dans le presse papier", Command::Clipboard, "Command6"},
    {"Sur papier", Command::Print, "Command1"},
}};

// The entry of index i; the first one for an index out of range.
const Entry& entry(int index);

// A scroll bar's maximum for an image side in twips: its whole number of
// steps, held in 16 bits.
std::int16_t scrollMaximum(double imageTwips);

// Where the image's edge stands inside the viewing area at a scroll
// position, in twips. Large zoomed images keep scrolling past the 16-bit
// range: the offset is not cut there.
double scrollOffset(int position);

double zoomedIn(double size);
double zoomedOut(double size);

// The viewing area and its scroll bars, all in pixels relative to the
// window's inner area (the bars and the corner relative to the area). A
// part that would not have a positive size is left out, and the next one
// is still placed.
struct Layout {
    std::optional<PixelRect> area;
    std::optional<PixelRect> vertical;
    std::optional<PixelRect> horizontal;
    std::optional<PixelRect> corner;
};

// inner: the window's inner size; areaLeft/areaTop: where the viewing area
// begins; barWidth: the vertical bar's width; barHeight: the horizontal
// bar's height.
Layout layout(int innerWidth, int innerHeight, int areaLeft, int areaTop, int barWidth, int barHeight);

// "Enregistrer": the save dialog, and the message when writing fails.
FileDialogRequest saveRequest(const std::string& currentFolder);
Message saveFailedMessage(int number, const std::string& description);
// The file the picture is written to: the name as typed, with ".bmp" added
// when its last part has no extension of its own.
std::string bmpSavePath(const std::string& typed);
// "Presse papier" done, or refused by the clipboard.
Message clipboardCopiedMessage();
Message clipboardRefusedMessage();
// "Imprimer" without any printer installed.
Message noPrinterMessage();

}  // namespace print_preview
}  // namespace qor
