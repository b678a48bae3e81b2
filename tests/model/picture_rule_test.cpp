#include <gtest/gtest.h>

#include "model/picture_rule.h"

namespace qor {
namespace {

std::string be32(std::uint32_t v)
{
    return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
}

std::string le16(std::uint32_t v)
{
    return {char(v), char(v >> 8)};
}

std::string le32(std::uint32_t v)
{
    return le16(v) + le16(v >> 16);
}

// Files as their writers lay them out: header, some body, the end the
// format has. The body is not valid compressed data: the rule never decodes.
std::string png(std::uint32_t w, std::uint32_t h)
{
    return std::string("\x89PNG\r\n\x1A\n", 8) + be32(13) + "IHDR" + be32(w) + be32(h) + std::string(5, '\x08') +
           "CRC!" + be32(10) + "IDAT" + std::string(10, 'x') + "CRC!" + be32(0) + "IEND" + "\xAE\x42\x60\x82";
}

std::string gif(std::uint32_t w, std::uint32_t h)
{
    return "GIF89a" + le16(w) + le16(h) + std::string(3, '\0') + std::string(20, 'x') + ";";
}

std::string bmp(std::int32_t w, std::int32_t h, std::uint16_t bpp = 24, bool withPixels = true)
{
    const std::uint32_t row = (std::uint32_t(w < 0 ? -w : w) * bpp + 31) / 32 * 4;
    const std::uint32_t pixels = row * std::uint32_t(h < 0 ? -h : h);
    return "BM" + le32(54 + pixels) + le32(0) + le32(54) + le32(40) + le32(std::uint32_t(w)) + le32(std::uint32_t(h)) +
           le16(1) + le16(bpp) + le32(0) + le32(pixels) + std::string(16, '\0') +
           std::string(withPixels ? pixels : 0, '\x7F');
}

// Metadata segments before the frame header, as cameras write them.
std::string jpeg(std::uint32_t w, std::uint32_t h, std::size_t metadata = 100)
{
    std::string out = "\xFF\xD8";
    for (std::size_t left = metadata; left > 0;) {
        const std::size_t n = std::min<std::size_t>(left, 60000);
        out += "\xFF\xE1" + std::string{char((n + 2) >> 8), char(n + 2)} + std::string(n, 'm');
        left -= n;
    }
    out += std::string("\xFF\xC0\x00\x11\x08", 5) + std::string{char(h >> 8), char(h), char(w >> 8), char(w)} +
           std::string(12, '\x01');
    out += std::string("\xFF\xDA\x00\x08", 4) + std::string(6, '\x01') + std::string(50, 'd') + "\xFF\xD9";
    return out;
}

std::string ico(std::uint8_t side, std::uint32_t dataSize = 40)
{
    return le16(0) + le16(1) + le16(1) + std::string{char(side), char(side)} + std::string(6, '\0') +
           le32(dataSize) + le32(22) + std::string(40, 'i');
}

std::string cut(std::string bytes, std::size_t keep)
{
    bytes.resize(keep);
    return bytes;
}

using F = PictureFault;
using Fmt = PictureFormat;

TEST(PictureRule, ReadOrRefusedByName)
{
    constexpr std::uint32_t big = kLargestPictureSide;
    struct Row {
        const char* what;
        std::string bytes;
        std::optional<F> fault;
        std::uint32_t w = 0, h = 0;
    };
    const std::vector<Row> rows = {
        {"png", png(4000, 3000), std::nullopt, 4000, 3000},
        {"gif", gif(7, 5), std::nullopt, 7, 5},
        {"bmp bottom up", bmp(3, 2), std::nullopt, 3, 2},
        {"bmp top down", bmp(3, -2), std::nullopt, 3, 2},
        {"bmp 1 bit", bmp(33, 2, 1), std::nullopt, 33, 2},
        {"jpeg", jpeg(6000, 6000), std::nullopt, 6000, 6000},
        {"jpeg with 200 KB of metadata", jpeg(640, 480, 200000), std::nullopt, 640, 480},
        {"icon 256", ico(0), std::nullopt, 256, 256},
        {"largest", png(big, big), std::nullopt, big, big},
        {"0 bytes", "", F::Empty},
        {"text named .bmp", "pas une image, du texte", F::NotAPicture},
        {"tiff", "II*\0" + std::string(100, '\0'), F::NotAPicture},
        {"1 x 100000", png(1, 100000), F::TooLarge, 1, 100000},
        {"30000 x 30000", bmp(30000, 30000, 1, false), F::TooLarge, 30000, 30000},
        {"wider than the limit", gif(big + 1, 1), F::TooLarge, big + 1, 1},
        {"png cut", cut(png(4, 4), 40), F::Truncated},
        {"png header cut", cut(png(4, 4), 20), F::Truncated},
        {"gif cut", cut(gif(4, 4), 20), F::Truncated},
        {"bmp pixels cut", cut(bmp(40, 40), 600), F::Truncated},
        {"bmp header cut", cut(bmp(4, 4), 30), F::Truncated},
        {"jpeg cut in its data", cut(jpeg(64, 64), 150), F::Truncated},
        {"jpeg cut in its metadata", cut(jpeg(64, 64, 5000), 3000), F::Truncated},
        {"icon data cut", ico(16, 4000), F::Truncated},
        {"png 0 wide", png(0, 5), F::Damaged},
        {"bmp of 7 bits", bmp(4, 4, 7), F::Damaged},
        {"jpeg data before a frame", std::string("\xFF\xD8\xFF\xDA\x00\x02\xFF\xD9", 8), F::Damaged},
    };
    for (const auto& row : rows) {
        const PictureFacts f = examinePicture(row.bytes);
        EXPECT_EQ(f.fault, row.fault) << row.what;
        if (row.w) {
            EXPECT_EQ(f.width, row.w) << row.what;
            EXPECT_EQ(f.height, row.h) << row.what;
        }
    }
}

// A file read through its head and tail alone gets the verdict its whole
// bytes get, including a frame header past the first bytes looked at.
TEST(PictureRule, HeadAndTailAreEnough)
{
    const std::string files[] = {jpeg(800, 600, kPictureHeadBytes + 5000), jpeg(800, 600),
                                 cut(jpeg(800, 600, kPictureHeadBytes * 2), kPictureHeadBytes + 10), png(9, 9)};
    for (const std::string& bytes : files) {
        std::size_t biggest = 0;
        const PictureFacts f = examinePicture(
            [&](std::uint64_t offset, std::size_t count) -> std::optional<std::string> {
                biggest = std::max(biggest, count);
                return offset >= bytes.size() ? std::string() : bytes.substr(offset, count);
            },
            bytes.size());
        const PictureFacts whole = examinePicture(bytes);
        EXPECT_EQ(f.fault, whole.fault);
        EXPECT_EQ(f.width, whole.width);
        EXPECT_LE(biggest, kPictureLongestHead);
    }
    EXPECT_EQ(examinePicture([](std::uint64_t, std::size_t) { return std::optional<std::string>(); }, 10).fault,
              F::Truncated);
}

}  // namespace
}  // namespace qor
