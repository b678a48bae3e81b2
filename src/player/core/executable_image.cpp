#include "player/core/executable_image.h"

#include <algorithm>
#include <cstdint>

namespace qor::player {
namespace {

// Little-endian fields, read only where the file has them.
struct Reader {
    std::string_view bytes;
    bool has(std::uint64_t at, std::uint64_t size) const { return at + size <= bytes.size(); }
    std::uint32_t u16(std::uint64_t at) const
    {
        return std::uint32_t(std::uint8_t(bytes[at])) | std::uint32_t(std::uint8_t(bytes[at + 1])) << 8;
    }
    std::uint32_t u32(std::uint64_t at) const { return u16(at) | u16(at + 2) << 16; }
};

constexpr std::uint64_t kCoffHeaderSize = 20;
constexpr std::uint64_t kSectionSize = 40;
constexpr std::uint64_t kSymbolSize = 18;
constexpr std::uint32_t kPe32 = 0x10B;
constexpr std::uint32_t kPe32Plus = 0x20B;
constexpr std::uint32_t kSecurityDirectory = 4;

// The end of the COFF symbol table and the string table after it.
std::uint64_t symbolsEnd(const Reader& r, std::uint64_t coff)
{
    const std::uint64_t table = r.u32(coff + 8);
    if (table == 0)
        return 0;
    const std::uint64_t strings = table + kSymbolSize * r.u32(coff + 12);
    return r.has(strings, 4) ? strings + r.u32(strings) : strings;
}

// A signature lies past the sections; its directory gives a file offset.
std::uint64_t signatureEnd(const Reader& r, std::uint64_t optional, std::uint32_t optionalSize)
{
    if (optionalSize < 2 || !r.has(optional, 2))
        return 0;
    const std::uint32_t magic = r.u16(optional);
    const std::uint64_t directories = magic == kPe32 ? 96 : magic == kPe32Plus ? 112 : 0;
    const std::uint64_t entry = directories + 8 * kSecurityDirectory;
    if (directories == 0 || entry + 8 > optionalSize || !r.has(optional + entry, 8))
        return 0;
    const std::uint64_t at = r.u32(optional + entry);
    return at == 0 ? 0 : at + r.u32(optional + entry + 4);
}

}  // namespace

std::size_t executableImageEnd(std::string_view bytes)
{
    const Reader r{bytes};
    if (!r.has(0, 0x40) || bytes.substr(0, 2) != "MZ")
        return 0;
    const std::uint64_t pe = r.u32(0x3C);
    if (!r.has(pe, 4 + kCoffHeaderSize) || bytes.substr(pe, 4) != std::string_view("PE\0\0", 4))
        return 0;
    const std::uint64_t coff = pe + 4;
    const std::uint32_t sectionCount = r.u16(coff + 2);
    const std::uint32_t optionalSize = r.u16(coff + 16);
    const std::uint64_t optional = coff + kCoffHeaderSize;
    const std::uint64_t sections = optional + optionalSize;
    if (sectionCount == 0 || !r.has(sections, kSectionSize * sectionCount))
        return 0;
    std::uint64_t end = sections + kSectionSize * sectionCount;
    for (std::uint32_t i = 0; i < sectionCount; ++i) {
        const std::uint64_t s = sections + kSectionSize * i;
        const std::uint64_t size = r.u32(s + 16);
        if (size != 0)
            end = std::max(end, r.u32(s + 20) + size);
    }
    end = std::max({end, symbolsEnd(r, coff), signatureEnd(r, optional, optionalSize)});
    // Headers that point past the file belong to a damaged or cut program:
    // its own end cannot be told, so nothing is taken from them.
    return end <= bytes.size() ? std::size_t(end) : 0;
}

}  // namespace qor::player
