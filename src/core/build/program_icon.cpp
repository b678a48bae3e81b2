#include "core/build/program_icon.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "text/utf8.h"

namespace qor {
namespace {

constexpr char kNotAnIcon[] = "ce n'est pas une icône Windows (.ico)";
constexpr char kNoIconSlot[] = "le programme du menu n'a pas d'icône à remplacer";
constexpr char kNoVersion[] = "le programme du menu n'a pas d'informations de version";
constexpr std::uint32_t kIconType = 3;
constexpr std::uint32_t kIconGroupType = 14;
constexpr std::uint32_t kVersionType = 16;
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

// The program with one section added at its end holding the given resource
// data, each data entry (a file offset) pointed at its new bytes.
struct NewResource {
    std::size_t entry;
    std::string bytes;
};

ProgramUpdate withSection(std::string_view program, const Program& p, std::string_view name,
                          const std::vector<NewResource>& resources, std::string_view problem)
{
    std::uint32_t imageEnd = 0;
    std::size_t lastRaw = p.headersSize;
    for (std::size_t i = 0; i < p.sectionCount; ++i) {
        const std::size_t h = p.sections + i * kSectionHeaderSize;
        imageEnd = std::max(imageEnd, get(program, h + 12, 4) + std::max(get(program, h + 8, 4), get(program, h + 16, 4)));
        lastRaw = std::max<std::size_t>(lastRaw, std::size_t(get(program, h + 20, 4)) + get(program, h + 16, 4));
    }
    const std::size_t table = p.sections + p.sectionCount * kSectionHeaderSize;
    // Room for one more section header, unused, and nothing past the sections.
    if (lastRaw != program.size() || table + kSectionHeaderSize > p.headersSize ||
        program.substr(table, kSectionHeaderSize).find_first_not_of('\0') != std::string_view::npos)
        return {{}, std::string(problem)};
    const std::uint32_t va = alignUp(imageEnd, p.sectionAlignment);
    std::string data;
    std::string out(program);
    for (const NewResource& r : resources) {
        put(out, r.entry, va + std::uint32_t(data.size()), 4);
        put(out, r.entry + 4, std::uint32_t(r.bytes.size()), 4);
        data += r.bytes;
        data.resize(alignUp(std::uint32_t(data.size()), 8), '\0');
    }
    const std::uint32_t virtualSize = std::uint32_t(data.size());
    data.resize(alignUp(virtualSize, p.fileAlignment), '\0');
    std::string header(kSectionHeaderSize, '\0');
    header.replace(0, name.size(), name);
    put(header, 8, virtualSize, 4);
    put(header, 12, va, 4);
    put(header, 16, std::uint32_t(data.size()), 4);
    put(header, 20, std::uint32_t(program.size()), 4);
    put(header, 36, 0x40000040u, 4);   // initialised data, readable
    out.replace(table, kSectionHeaderSize, header);
    put(out, p.coff + 2, std::uint32_t(p.sectionCount + 1), 2);
    put(out, p.optional + 56, alignUp(va + virtualSize, p.sectionAlignment), 4);   // SizeOfImage
    put(out, p.optional + 64, 0, 4);   // CheckSum: not checked for a program
    return {out + data, {}};
}

// One block of version information: a key, a value (text when type is 1,
// counted in UTF-16 units then) and the blocks under it, each 4-aligned.
struct VersionBlock {
    std::u16string key;
    std::uint32_t type = 0;
    std::string value;
    std::vector<VersionBlock> children;
};

std::size_t align4(std::size_t v) { return (v + 3) & ~std::size_t(3); }

// The block at res[at], ending by end, and where the next one may start.
std::optional<std::pair<VersionBlock, std::size_t>> readBlock(std::string_view res, std::size_t at, std::size_t end,
                                                              int depth)
{
    if (depth > 4 || at + 6 > end)
        return std::nullopt;
    const std::size_t length = get(res, at, 2);
    const std::size_t valueLength = get(res, at + 2, 2);
    VersionBlock block;
    block.type = get(res, at + 4, 2);
    if (length < 6 || length > end - at)
        return std::nullopt;
    const std::size_t blockEnd = at + length;
    std::size_t p = at + 6;
    for (;; p += 2) {
        if (p + 2 > blockEnd)
            return std::nullopt;
        if (const char16_t c = char16_t(get(res, p, 2)); c != 0)
            block.key.push_back(c);
        else
            break;
    }
    p = align4(p + 2);
    const std::size_t valueBytes = std::min(block.type == 1 ? 2 * valueLength : valueLength, blockEnd - std::min(p, blockEnd));
    block.value = std::string(res.substr(std::min(p, blockEnd), valueBytes));
    for (p = align4(p + valueBytes); p < blockEnd;) {
        auto child = readBlock(res, p, blockEnd, depth + 1);
        if (!child)
            return std::nullopt;
        block.children.push_back(std::move(child->first));
        p = align4(child->second);
    }
    return std::pair{std::move(block), blockEnd};
}

std::string writeBlock(const VersionBlock& block)
{
    std::string out(6, '\0');
    auto pad = [&] { out.resize(align4(out.size()), '\0'); };
    for (const char16_t c : block.key)
        out += {char(c & 0xFF), char(c >> 8)};
    out += std::string(2, '\0');
    pad();
    out += block.value;
    for (const VersionBlock& child : block.children) {
        pad();
        out += writeBlock(child);
    }
    put(out, 0, std::uint32_t(out.size()), 2);
    put(out, 2, std::uint32_t(block.type == 1 ? block.value.size() / 2 : block.value.size()), 2);
    put(out, 4, block.type, 2);
    return out;
}

// A text value: UTF-16, ended by a zero, short enough for any block length.
std::string versionText(std::string_view utf8)
{
    constexpr std::size_t kLongest = 255;
    std::string out;
    std::size_t units = 0;
    for (std::size_t pos = 0; pos < utf8.size() && units < kLongest;) {
        char32_t c = nextCodePoint(utf8, pos);
        if (c >= 0x10000 && units + 2 <= kLongest) {
            c -= 0x10000;
            for (const char32_t unit : {0xD800 + (c >> 10), 0xDC00 + (c & 0x3FF)})
                out += {char(unit & 0xFF), char(unit >> 8)};
            units += 2;
        } else if (c < 0x10000) {
            out += {char(c & 0xFF), char(c >> 8)};
            ++units;
        } else {
            break;
        }
    }
    return out + std::string(2, '\0');
}

std::u16string ascii16(std::string_view s) { return {s.begin(), s.end()}; }

void setText(VersionBlock& table, std::string_view key, std::string_view text)
{
    if (text.empty())
        return;
    const std::u16string wanted = ascii16(key);
    for (VersionBlock& s : table.children)
        if (s.key == wanted) {
            s.value = versionText(text);
            return;
        }
    table.children.push_back({wanted, 1, versionText(text), {}});
}

}  // namespace

ProgramUpdate withProgramIcon(std::string_view program, std::string_view icon)
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

    std::vector<NewResource> resources;
    std::string group(6 + 14 * n, '\0');
    put(group, 2, 1, 2);
    put(group, 4, std::uint32_t(n), 2);
    for (std::size_t i = 0; i < n; ++i) {
        resources.push_back({slots[i], std::string((*images)[i].bytes)});
        group.replace(6 + 14 * i, 12, (*images)[i].entry.substr(0, 12));
        put(group, 6 + 14 * i + 12, ids[i], 2);
    }
    // The group entries name the slots by number; the group found first wins.
    resources.push_back({groups[0], group});
    return withSection(program, *p, ".qoricon", resources, kNoIconSlot);
}

ProgramUpdate withProgramDetails(std::string_view program, const ProgramDetails& details)
{
    const std::optional<Program> p = readProgram(program);
    const std::optional<std::size_t> root = p ? p->offsetOf(program, p->resourceRva, 16) : std::nullopt;
    const std::vector<std::size_t> entries = root ? dataEntries(program, *root, kVersionType) : std::vector<std::size_t>();
    if (entries.empty())
        return {{}, kNoVersion};
    const std::uint32_t size = get(program, entries[0] + 4, 4);
    const std::optional<std::size_t> at = p->offsetOf(program, get(program, entries[0], 4), size);
    auto version = at ? readBlock(program.substr(*at, size), 0, size, 0) : std::nullopt;
    if (!version)
        return {{}, kNoVersion};
    for (VersionBlock& info : version->first.children)
        if (info.key == ascii16("StringFileInfo"))
            for (VersionBlock& table : info.children) {
                setText(table, "FileDescription", details.title);
                setText(table, "ProductName", details.title);
                setText(table, "CompanyName", details.author);
            }
    return withSection(program, *p, ".qorinfo", {{entries[0], writeBlock(version->first)}}, kNoVersion);
}

}  // namespace qor
