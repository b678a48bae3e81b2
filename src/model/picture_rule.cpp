#include "model/picture_rule.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fstream>

namespace qor {
namespace {

using F = PictureFault;

std::uint32_t le16(std::string_view b, std::size_t at)
{
    return std::uint32_t(std::uint8_t(b[at])) | std::uint32_t(std::uint8_t(b[at + 1])) << 8;
}

std::uint32_t le32(std::string_view b, std::size_t at)
{
    return le16(b, at) | le16(b, at + 2) << 16;
}

std::uint32_t be16(std::string_view b, std::size_t at)
{
    return std::uint32_t(std::uint8_t(b[at])) << 8 | std::uint32_t(std::uint8_t(b[at + 1]));
}

std::uint32_t be32(std::string_view b, std::size_t at)
{
    return be16(b, at) << 16 | be16(b, at + 2);
}

// The last n bytes of the tail.
std::string_view lastBytes(std::string_view tail, std::size_t n)
{
    return tail.size() > n ? tail.substr(tail.size() - n) : tail;
}

// A header cut short is a truncated file when the head holds the whole file,
// else a header too odd to read.
PictureFault shortHeader(std::string_view head, std::uint64_t fileSize)
{
    return head.size() >= fileSize ? F::Truncated : F::Damaged;
}

struct Verdict {
    explicit Verdict(PictureFormat format) { facts.format = format; }

    PictureFacts facts;

    PictureFacts sized(std::uint32_t w, std::uint32_t h)
    {
        facts.width = w;
        facts.height = h;
        if (w == 0 || h == 0)
            facts.fault = F::Damaged;
        else if (w > kLargestPictureSide || h > kLargestPictureSide)
            facts.fault = F::TooLarge;
        return facts;
    }
    PictureFacts fault(PictureFault f)
    {
        facts.fault = f;
        return facts;
    }
};

PictureFacts png(std::string_view head, std::string_view tail, std::uint64_t size)
{
    Verdict v(PictureFormat::Png);
    if (head.size() < 24)
        return v.fault(shortHeader(head, size));
    if (head.substr(12, 4) != "IHDR")
        return v.fault(F::Damaged);
    PictureFacts f = v.sized(be32(head, 16), be32(head, 20));
    if (f.readable() && lastBytes(tail, 64).find("IEND") == std::string_view::npos)
        f.fault = F::Truncated;
    return f;
}

PictureFacts gif(std::string_view head, std::string_view tail, std::uint64_t size)
{
    Verdict v(PictureFormat::Gif);
    if (head.size() < 13)
        return v.fault(shortHeader(head, size));
    PictureFacts f = v.sized(le16(head, 6), le16(head, 8));
    // The trailer byte ends the stream; some writers pad a few bytes after it.
    if (f.readable() && lastBytes(tail, 16).find('\x3B') == std::string_view::npos)
        f.fault = F::Truncated;
    return f;
}

// The bytes a BMP's pixels need, or nothing when its header says nothing sensible.
std::optional<std::uint64_t> bmpPixelBytes(std::uint32_t w, std::uint32_t h, std::uint32_t bpp,
                                           std::uint32_t compression, std::uint32_t sizeImage)
{
    switch (compression) {
    case 0:   // plain rows
    case 3:   // bit fields
    case 6: {
        constexpr std::array<std::uint32_t, 6> depths = {1, 4, 8, 16, 24, 32};
        if (std::find(depths.begin(), depths.end(), bpp) == depths.end())
            return std::nullopt;
        const std::uint64_t row = (std::uint64_t(w) * bpp + 31) / 32 * 4;
        return row * h;
    }
    case 1:   // run lengths: as long as the header says
    case 2:
    case 4:   // a JPEG or PNG inside
    case 5: return std::uint64_t(sizeImage);
    default: return std::nullopt;
    }
}

PictureFacts bmp(std::string_view head, std::uint64_t size)
{
    Verdict v(PictureFormat::Bmp);
    if (head.size() < 26)
        return v.fault(shortHeader(head, size));
    const std::uint32_t offset = le32(head, 10);
    const std::uint32_t dib = le32(head, 14);
    std::uint32_t w = 0, h = 0, bpp = 0, compression = 0, sizeImage = 0;
    if (dib == 12) {
        w = le16(head, 18);
        h = le16(head, 20);
        bpp = le16(head, 24);
    } else if (dib >= 40) {
        if (head.size() < 38)
            return v.fault(shortHeader(head, size));
        const auto sw = std::int32_t(le32(head, 18));
        const auto sh = std::int32_t(le32(head, 22));   // negative: rows top down
        if (sw <= 0 || sh == 0 || sh == INT32_MIN)
            return v.fault(F::Damaged);
        w = std::uint32_t(sw);
        h = std::uint32_t(sh < 0 ? -sh : sh);
        bpp = le16(head, 28);
        compression = le32(head, 30);
        sizeImage = le32(head, 34);
    } else {
        return v.fault(F::Damaged);
    }
    PictureFacts f = v.sized(w, h);
    if (!f.readable())
        return f;
    const auto pixels = bmpPixelBytes(w, h, bpp, compression, sizeImage);
    if (!pixels || offset < 14 + dib)
        f.fault = F::Damaged;
    else if (std::uint64_t(offset) + *pixels > size || offset >= size)
        f.fault = F::Truncated;
    return f;
}

// The frame header's size, walking the segments; the file must also hold
// the end-of-image marker, which compressed data never contains.
PictureFacts jpeg(std::string_view head, std::string_view tail, std::uint64_t size)
{
    Verdict v(PictureFormat::Jpeg);
    std::size_t at = 2;
    for (;;) {
        while (at < head.size() && std::uint8_t(head[at]) == 0xFF && at + 1 < head.size() &&
               std::uint8_t(head[at + 1]) == 0xFF)
            ++at;   // fill bytes
        if (at + 4 > head.size())
            return v.fault(shortHeader(head, size));
        if (std::uint8_t(head[at]) != 0xFF)
            return v.fault(F::Damaged);
        const std::uint8_t marker = std::uint8_t(head[at + 1]);
        if (marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) {
            at += 2;
            continue;
        }
        if (marker == 0xD9 || marker == 0xDA || marker == 0xD8)
            return v.fault(F::Damaged);   // no frame before the data
        const std::uint32_t length = be16(head, at + 2);
        if (length < 2)
            return v.fault(F::Damaged);
        const bool frame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (frame) {
            if (at + 9 > head.size())
                return v.fault(shortHeader(head, size));
            PictureFacts f = v.sized(be16(head, at + 7), be16(head, at + 5));
            if (f.readable() && lastBytes(tail, kPictureTailBytes).find("\xFF\xD9") == std::string_view::npos)
                f.fault = F::Truncated;
            return f;
        }
        at += 2 + length;
    }
}

PictureFacts ico(std::string_view head, std::uint64_t size)
{
    Verdict v(PictureFormat::Ico);
    const std::uint32_t count = le16(head, 4);
    if (count == 0)
        return v.fault(F::Damaged);
    if (head.size() < 6 + std::size_t(count) * 16)
        return v.fault(shortHeader(head, size));
    const auto side = [](std::uint8_t b) { return b == 0 ? 256u : std::uint32_t(b); };
    PictureFacts f = v.sized(side(std::uint8_t(head[6])), side(std::uint8_t(head[7])));
    for (std::uint32_t i = 0; i < count && f.readable(); ++i) {
        const std::size_t entry = 6 + std::size_t(i) * 16;
        if (std::uint64_t(le32(head, entry + 12)) + le32(head, entry + 8) > size)
            f.fault = F::Truncated;
    }
    return f;
}

}  // namespace

PictureFacts examinePicture(std::string_view head, std::string_view tail, std::uint64_t fileSize)
{
    if (fileSize == 0)
        return PictureFacts{.fault = F::Empty};
    if (head.starts_with("\x89PNG\r\n\x1A\n"))
        return png(head, tail, fileSize);
    if (head.starts_with("GIF87a") || head.starts_with("GIF89a"))
        return gif(head, tail, fileSize);
    if (head.starts_with("BM"))
        return bmp(head, fileSize);
    if (head.starts_with("\xFF\xD8"))
        return jpeg(head, tail, fileSize);
    if (head.size() >= 6 && le16(head, 0) == 0 && (le16(head, 2) == 1 || le16(head, 2) == 2))
        return ico(head, fileSize);
    return PictureFacts{.fault = F::NotAPicture};
}

PictureFacts examinePicture(const PictureBytes& read, std::uint64_t fileSize)
{
    const std::uint64_t tailAt = fileSize > kPictureTailBytes ? fileSize - kPictureTailBytes : 0;
    const auto tail = read(tailAt, kPictureTailBytes);
    PictureFacts facts{.fault = F::Truncated};
    for (std::size_t n : {kPictureHeadBytes, kPictureLongestHead}) {
        const auto head = read(0, n);
        if (!head || !tail)
            return PictureFacts{.fault = F::Truncated};
        facts = examinePicture(*head, *tail, fileSize);
        if (facts.fault != F::Damaged || head->size() >= fileSize)
            break;
    }
    return facts;
}

std::optional<PictureFacts> examinePictureFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in)
        return std::nullopt;
    const std::streamoff end = in.tellg();
    if (end < 0)
        return std::nullopt;
    const auto size = std::uint64_t(end);
    return examinePicture(
        [&in](std::uint64_t offset, std::size_t count) -> std::optional<std::string> {
            std::string bytes(count, '\0');
            in.clear();
            in.seekg(std::streamoff(offset));
            in.read(bytes.data(), std::streamsize(count));
            bytes.resize(std::size_t(in.gcount()));
            return in.bad() ? std::nullopt : std::optional(std::move(bytes));
        },
        size);
}

}  // namespace qor
