#include "player/core/executable_image.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "fake_ports.h"
#include "player/core/command_line.h"

namespace qor::player::test {
namespace {

void put16(std::string& b, std::size_t at, std::uint32_t v)
{
    if (b.size() < at + 2)
        b.resize(at + 2, '\0');
    b[at] = char(v & 0xFF);
    b[at + 1] = char((v >> 8) & 0xFF);
}
void put32(std::string& b, std::size_t at, std::uint32_t v)
{
    put16(b, at, v & 0xFFFF);
    put16(b, at + 2, v >> 16);
}

// A small PE32+ image: headers at 0, a COFF header at 0x44, two sections
// whose raw data ends at the given offsets, an optional symbol table and
// signature. The file is padded to fileSize.
struct Image {
    std::uint32_t section1End = 0x400;
    std::uint32_t section2End = 0x600;
    std::uint32_t symbols = 0;          // offset of the symbol table, 0 for none
    std::uint32_t symbolCount = 0;
    std::uint32_t stringTable = 4;      // size of the string table after the symbols
    std::uint32_t signatureAt = 0;
    std::uint32_t signatureSize = 0;
    std::size_t fileSize = 0x600;

    std::string bytes() const
    {
        std::string b(0x40, '\0');
        b[0] = 'M';
        b[1] = 'Z';
        put32(b, 0x3C, 0x40);
        b += std::string("PE\0\0", 4);
        const std::size_t coff = 0x44;
        const std::uint32_t optionalSize = 240;
        put16(b, coff, 0x8664);
        put16(b, coff + 2, 2);
        put32(b, coff + 8, symbols);
        put32(b, coff + 12, symbolCount);
        put16(b, coff + 16, optionalSize);
        const std::size_t optional = coff + 20;
        put16(b, optional, 0x20B);
        put32(b, optional + 112 + 8 * 4, signatureAt);
        put32(b, optional + 112 + 8 * 4 + 4, signatureSize);
        const std::size_t sections = optional + optionalSize;
        put32(b, sections + 16, 0x200);
        put32(b, sections + 20, section1End - 0x200);
        put32(b, sections + 40 + 16, section2End - section1End);
        put32(b, sections + 40 + 20, section1End);
        b.resize(fileSize, '\x90');
        if (symbols && symbols + 18 * symbolCount + 4 <= b.size())
            put32(b, symbols + 18 * symbolCount, stringTable);
        return b;
    }
};

TEST(ExecutableImage, EndsWhereTheFurthestPartEnds)
{
    struct Case {
        const char* name;
        Image image;
        std::size_t end;
    };
    const Case cases[] = {
        {"sections only", Image{}, 0x600},
        {"data appended after the sections", Image{.fileSize = 0x900}, 0x600},
        {"sections listed out of order", Image{.section1End = 0x300, .section2End = 0x500, .fileSize = 0x800}, 0x500},
        {"symbols and their strings", Image{.symbols = 0x600, .symbolCount = 10, .stringTable = 0x20, .fileSize = 0x900},
         0x600 + 180 + 0x20},
        {"a signature past the sections", Image{.signatureAt = 0x600, .signatureSize = 0x80, .fileSize = 0x700}, 0x680},
    };
    for (const Case& c : cases)
        EXPECT_EQ(executableImageEnd(c.image.bytes()), c.end) << c.name;
}

TEST(ExecutableImage, NoEndForWhatIsNoWholeProgram)
{
    std::string cutHeaders = Image{}.bytes().substr(0, 0x50);
    std::string notPe = Image{}.bytes();
    notPe[0x41] = 'X';
    const std::string cases[] = {
        "",
        "(debut)\xAC" "FICHIER DAT",
        cutHeaders,
        notPe,
        Image{.section2End = 0x800, .fileSize = 0x700}.bytes(),   // sections past the end: cut short
    };
    for (const std::string& bytes : cases)
        EXPECT_EQ(executableImageEnd(bytes), 0u) << bytes.size();
}

// The program's own bytes may hold the data's markers: only what follows
// the image is read, whatever the image holds.
TEST(ExecutableImage, MenuReadFromPastTheProgram)
{
    MenuProject appended;
    appended.timerInterval = "1234";
    MenuProject inImage;
    inImage.timerInterval = "99";
    std::string program = Image{}.bytes();
    // A whole data line inside the code, on the image's last line.
    std::string decoy = compiledBytes(inImage);
    decoy.resize(decoy.size() - 2);
    ASSERT_LT(0x300 + decoy.size(), program.size());
    program.replace(0x300, decoy.size(), decoy);

    Log log;
    FakeSystem system(log);
    system.files["/cd/qor/autorun.exe"] = program + compiledBytes(appended);
    system.files["/cd/qor/bare.exe"] = program;
    const LoadResult withData = loadMenu(system, "/cd/qor/autorun.exe");
    ASSERT_TRUE(std::holds_alternative<MenuData>(withData));
    EXPECT_EQ(std::get<MenuData>(withData).project.timerInterval, "1234");
    const LoadResult bare = loadMenu(system, "/cd/qor/bare.exe");
    ASSERT_TRUE(std::holds_alternative<LoadFailure>(bare));
    EXPECT_NE(std::get<LoadFailure>(bare).message.find("Aucun menu"), std::string::npos);
}

}  // namespace
}  // namespace qor::player::test
