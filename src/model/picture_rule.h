#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The one rule every reader of a menu's pictures follows (the editor, the
// baker, the compilation and both players): a picture is read whole or
// refused, never shown as nothing. It is decided from the file's first and
// last bytes, without decoding, so a compilation can look at every picture
// of a menu in the time a copy takes.
//
// The limit: a side of at most kLargestPictureSide pixels, far above any
// screen a menu is shown on. Decoded at 4 bytes a pixel the largest picture
// takes kLargestPictureBytes, and a reader must allow that much.

inline constexpr std::uint32_t kLargestPictureSide = 16384;
inline constexpr std::uint64_t kLargestPictureBytes = std::uint64_t(kLargestPictureSide) * kLargestPictureSide * 4;

// The bytes looked at: the file's first bytes (64 KiB, and up to 16 MiB
// when its header runs longer, as a JPEG with large metadata may) and its
// last kPictureTailBytes.
inline constexpr std::size_t kPictureHeadBytes = 64u << 10;
inline constexpr std::size_t kPictureLongestHead = 16u << 20;
inline constexpr std::size_t kPictureTailBytes = 4096;

enum class PictureFormat { Bmp, Jpeg, Png, Gif, Ico };

enum class PictureFault {
    Empty,        // 0 bytes
    NotAPicture,  // none of the formats above (a text file named ".bmp")
    Damaged,      // the format's header does not read
    Truncated,    // the header reads but the file stops short of its end
    TooLarge,     // a side past kLargestPictureSide (width and height tell which)
};

struct PictureFacts {
    PictureFormat format = PictureFormat::Bmp;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::optional<PictureFault> fault;   // nothing: the picture may be decoded

    bool readable() const { return !fault; }
};

// The verdict on a file of fileSize bytes, from its head and tail bytes.
PictureFacts examinePicture(std::string_view head, std::string_view tail, std::uint64_t fileSize);

// The same on a file's whole bytes.
inline PictureFacts examinePicture(std::string_view bytes)
{
    return examinePicture(bytes, bytes, bytes.size());
}

// The same on a file of fileSize bytes that read(offset, count) reads
// (fewer bytes at its end; nothing when it cannot).
using PictureBytes = std::function<std::optional<std::string>(std::uint64_t offset, std::size_t count)>;
PictureFacts examinePicture(const PictureBytes& read, std::uint64_t fileSize);

// The same on a file of the disk; nothing when it cannot be read at all.
std::optional<PictureFacts> examinePictureFile(const std::string& path);

}  // namespace qor
