#include "core/build/program_icon.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace qor {
namespace {

constexpr char kNotAnIcon[] = "ce n'est pas une icône Windows (.ico)";
constexpr char kNoIconSlot[] = "le programme du menu n'a pas d'icône à remplacer";
constexpr std::uint32_t kIconType = 3;
constexpr std::uint32_t kIconGroupType = 14;
constexpr std::size_t kSectionHeaderSize = 40;

// Little-endian reads and writes, bounds checked by the callers.
std::uint32_t get(std::string_view b, std::size_t at, int bytes)
{
    std::uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i)
        v = (v << 8) | static_cast<unsigned char>(b[at + std::size_t(i)]);
    return v;
}

void put(std::string& b, std::size_t at, std::uint32_t v, int bytes)
{
    for (int i = 0; i < bytes; ++i, v >>= 8)
        b[at + std::size_t(i)] = char(v & 0xFF);
}

std::uint32_t alignUp(std::uint32_t v, std::uint32_t to) { return to ? (v + to - 1) / to * to : v; }

struct Image {
    std::string_view entry;   // the 16-byte directory entry of the .ico file
    std::string_view bytes;
};

// The images of a .ico file, nothing when it is not one.
std::optional<std::vector<Image>> iconImages(std::string_view ico)
{
    if (ico.size() < 6 || get(ico, 0, 2) != 0 || get(ico, 2, 2) != 1)
        return std::nullopt;
    const std::size_t count = get(ico, 4, 2);
    if (count == 0 || ico.size() < 6 + 16 * count)
        return std::nullopt;
    std::vector<Image> images;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = 6 + 16 * i;
        const std::size_t size = get(ico, at + 8, 4);
        const std::size_t offset = get(ico, at + 12, 4);
        if (size == 0 || offset > ico.size() || size > ico.size() - offset)
            return std::nullopt;
        images.push_back({ico.substr(at, 16), ico.substr(offset, size)});
    }
    return images;
}

// The program's headers and sections, as far as a resource update needs them.
struct Program {
    std::size_t coff = 0;           // the COFF header, past "PE\0\0"
    std::size_t optional = 0;       // the optional header
    std::size_t sections = 0;       // the section table
    std::size_t sectionCount = 0;
    std::uint32_t sectionAlignment = 0;
    std::uint32_t fileAlignment = 0;
    std::uint32_t headersSize = 0;
    std::uint32_t resourceRva = 0;

    // The file offset of an RVA inside a section's raw data, of at least size bytes.
    std::optional<std::size_t> offsetOf(std::string_view b, std::uint32_t rva, std::size_t size) const
    {
        for (std::size_t i = 0; i < sectionCount; ++i) {
            const std::size_t h = sections + i * kSectionHeaderSize;
            const std::uint32_t va = get(b, h + 12, 4);
            const std::uint32_t raw = get(b, h + 16, 4);
            const std::uint32_t pointer = get(b, h + 20, 4);
            if (rva >= va && rva - va + size <= raw && std::size_t(pointer) + raw <= b.size())
                return pointer + (rva - va);
        }
        return std::nullopt;
    }
};

std::optional<Program> readProgram(std::string_view b)
{
    if (b.size() < 0x40 || b.substr(0, 2) != "MZ")
        return std::nullopt;
    Program p;
    const std::size_t pe = get(b, 0x3C, 4);
    if (pe > b.size() || b.size() - pe < 24 || b.substr(pe, 4) != std::string_view("PE\0\0", 4))
        return std::nullopt;
    p.coff = pe + 4;
    p.sectionCount = get(b, p.coff + 2, 2);
    p.optional = p.coff + 20;
    const std::size_t optionalSize = get(b, p.coff + 16, 2);
    p.sections = p.optional + optionalSize;
    if (p.sections + p.sectionCount * kSectionHeaderSize > b.size() || optionalSize < 96)
        return std::nullopt;
    const std::uint32_t magic = get(b, p.optional, 2);
    const std::size_t directories = magic == 0x20B ? 112 : magic == 0x10B ? 96 : 0;
    if (directories == 0 || optionalSize < directories + 3 * 8)
        return std::nullopt;
    p.sectionAlignment = get(b, p.optional + 32, 4);
    p.fileAlignment = get(b, p.optional + 36, 4);
    p.headersSize = get(b, p.optional + 60, 4);
    p.resourceRva = get(b, p.optional + directories + 2 * 8, 4);
    return p;
}

// The data entries (file offsets) of every resource of one type, in the
// directory's order, the first language of each.
std::vector<std::size_t> dataEntries(std::string_view b, std::size_t root, std::uint32_t type)
{
    auto entries = [&](std::size_t directory, auto&& each) {
        if (directory + 16 > b.size())
            return;
        const std::size_t n = get(b, directory + 12, 2) + get(b, directory + 14, 2);
        for (std::size_t i = 0; i < n && directory + 16 + 8 * i + 8 <= b.size(); ++i)
            if (!each(get(b, directory + 16 + 8 * i, 4), get(b, directory + 20 + 8 * i, 4)))
                return;
    };
    std::vector<std::size_t> out;
    entries(root, [&](std::uint32_t id, std::uint32_t target) {
        if (id != type || !(target & 0x80000000u))
            return true;
        entries(root + (target & 0x7FFFFFFFu), [&](std::uint32_t, std::uint32_t name) {
            if (name & 0x80000000u)
                entries(root + (name & 0x7FFFFFFFu), [&](std::uint32_t, std::uint32_t leaf) {
                    if (!(leaf & 0x80000000u) && root + leaf + 16 <= b.size())
                        out.push_back(root + leaf);
                    return false;
                });
            return true;
        });
        return false;
    });
    return out;
}

}  // namespace

ProgramIcon withProgramIcon(std::string_view program, std::string_view icon)
{
    const std::optional<std::vector<Image>> images = iconImages(icon);
    if (!images)
        return {{}, kNotAnIcon};
    const std::optional<Program> p = readProgram(program);
    const std::optional<std::size_t> root = p ? p->offsetOf(program, p->resourceRva, 16) : std::nullopt;
    if (!p || !root)
        return {{}, kNoIconSlot};
    const std::vector<std::size_t> slots = dataEntries(program, *root, kIconType);
    const std::vector<std::size_t> groups = dataEntries(program, *root, kIconGroupType);
    if (slots.empty() || groups.empty())
        return {{}, kNoIconSlot};
    // The slots' icon numbers, as the player's own group names them.
    const std::size_t n = std::min(slots.size(), images->size());
    std::vector<std::uint32_t> ids;
    {
        const std::uint32_t groupRva = get(program, groups[0], 4);
        const std::uint32_t groupSize = get(program, groups[0] + 4, 4);
        const std::optional<std::size_t> group = p->offsetOf(program, groupRva, groupSize);
        if (!group || groupSize < 6 || groupSize < 6 + 14 * get(program, *group + 4, 2))
            return {{}, kNoIconSlot};
        for (std::size_t i = 0; i < get(program, *group + 4, 2); ++i)
            ids.push_back(get(program, *group + 6 + 14 * i + 12, 2));
    }
    if (ids.size() < n)
        return {{}, kNoIconSlot};

    // The new section: the images, then the group naming them.
    std::uint32_t imageEnd = 0;
    std::size_t lastRaw = p->headersSize;
    for (std::size_t i = 0; i < p->sectionCount; ++i) {
        const std::size_t h = p->sections + i * kSectionHeaderSize;
        imageEnd = std::max(imageEnd, get(program, h + 12, 4) + std::max(get(program, h + 8, 4), get(program, h + 16, 4)));
        lastRaw = std::max<std::size_t>(lastRaw, std::size_t(get(program, h + 20, 4)) + get(program, h + 16, 4));
    }
    const std::size_t table = p->sections + p->sectionCount * kSectionHeaderSize;
    // Room for one more section header, unused, and nothing past the sections.
    if (lastRaw != program.size() || table + kSectionHeaderSize > p->headersSize ||
        program.substr(table, kSectionHeaderSize).find_first_not_of('\0') != std::string_view::npos)
        return {{}, kNoIconSlot};
    const std::uint32_t va = alignUp(imageEnd, p->sectionAlignment);
    std::string data;
    std::vector<std::uint32_t> at;
    for (std::size_t i = 0; i < n; ++i) {
        at.push_back(std::uint32_t(data.size()));
        data.append((*images)[i].bytes);
        data.resize(alignUp(std::uint32_t(data.size()), 8), '\0');
    }
    const std::uint32_t groupAt = std::uint32_t(data.size());
    std::string group(6 + 14 * n, '\0');
    put(group, 2, 1, 2);
    put(group, 4, std::uint32_t(n), 2);
    for (std::size_t i = 0; i < n; ++i) {
        group.replace(6 + 14 * i, 12, (*images)[i].entry.substr(0, 12));
        put(group, 6 + 14 * i + 12, ids[i], 2);
    }
    data += group;
    const std::uint32_t virtualSize = std::uint32_t(data.size());
    data.resize(alignUp(virtualSize, p->fileAlignment), '\0');

    std::string out(program);
    for (std::size_t i = 0; i < n; ++i) {
        put(out, slots[i], va + at[i], 4);
        put(out, slots[i] + 4, std::uint32_t((*images)[i].bytes.size()), 4);
    }
    // The group entries name the slots by number; the group found first wins.
    put(out, groups[0], va + groupAt, 4);
    put(out, groups[0] + 4, std::uint32_t(group.size()), 4);
    std::string header(kSectionHeaderSize, '\0');
    header.replace(0, 8, std::string_view(".qoricon", 8));
    put(header, 8, virtualSize, 4);
    put(header, 12, va, 4);
    put(header, 16, std::uint32_t(data.size()), 4);
    put(header, 20, std::uint32_t(program.size()), 4);
    put(header, 36, 0x40000040u, 4);   // initialised data, readable
    out.replace(table, kSectionHeaderSize, header);
    put(out, p->coff + 2, std::uint32_t(p->sectionCount + 1), 2);
    put(out, p->optional + 56, alignUp(va + virtualSize, p->sectionAlignment), 4);   // SizeOfImage
    put(out, p->optional + 64, 0, 4);   // CheckSum: not checked for a program
    return {out + data, {}};
}

}  // namespace qor
