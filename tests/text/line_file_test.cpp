#include <gtest/gtest.h>

#include <filesystem>

#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

using Lines = std::vector<std::string>;

TEST(LineFile, SplitsAtEveryKindOfLineEnd)
{
    struct Case { std::string text; Lines lines; };
    const Case cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\rb\r", {"a", "b"}},
        {"a\r\n\r\nb", {"a", "", "b"}},
        {"a\n\rb", {"a", "", "b"}},     // LF then CR: two line ends
        {"\r\n", {""}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"no end", {"no end"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(splitLines(c.text), c.lines) << c.text;
}

TEST(LineFile, WritesWindows1252WithCrLfAfterEveryLine)
{
    test::TempDir dir;
    ASSERT_TRUE(writeLineFile(dir.file("f.txt"), {"été", "", "x"}).ok());
    EXPECT_EQ(dir.read("f.txt"), "\xE9t\xE9\r\n\r\nx\r\n");
    auto back = readLineFile(dir.file("f.txt"));
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(*back, (Lines{"été", "", "x"}));
}

TEST(LineFile, ReadingAMissingFileIsFileNotFound)
{
    test::TempDir dir;
    auto r = readLineFile(dir.file("absent.txt"));
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error().number, 53);
}

TEST(LineFile, ReadingFromAMissingFolderIsPathNotFound)
{
    test::TempDir dir;
    auto r = readLineFile(dir.file("absent/f.txt"));
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error().number, 76);
}

TEST(LineFile, ReadingAFolderFailsWithoutCrash)
{
    test::TempDir dir;
    auto r = readFileBytes(dir.path());
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error().number, 75);
}

TEST(LineFile, AFailedWriteKeepsTheOldFileWhole)
{
    test::TempDir dir;
    dir.write("keep.txt", "old content\r\n");
    // The target is a folder that holds a file: the rename cannot replace it.
    std::filesystem::create_directories(dir.path() / "busy.txt");
    dir.write("busy.txt/inner", "x");
    auto r = writeLineFile(dir.file("busy.txt"), {"new"});
    EXPECT_FALSE(r.ok());
    EXPECT_EQ(dir.read("busy.txt/inner"), "x");
    // No temporary file is left behind.
    int entries = 0;
    for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(dir.path()))
        ++entries;
    EXPECT_EQ(entries, 2);
    EXPECT_EQ(dir.read("keep.txt"), "old content\r\n");
}

TEST(LineFile, WritingIntoAMissingFolderFailsWithAPathError)
{
    test::TempDir dir;
    auto r = writeLineFile(dir.file("no/such/folder/f.txt"), {"x"});
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error().number, 76);
    EXPECT_FALSE(r.error().description.empty());
}

TEST(LineFile, ReplacingKeepsThePermissionsOfTheOldFile)
{
    test::TempDir dir;
    auto path = dir.write("p.txt", "a");
    namespace fs = std::filesystem;
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    ASSERT_TRUE(writeLineFile(path, {"b"}).ok());
    EXPECT_EQ(fs::status(path).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(dir.read("p.txt"), "b\r\n");
}

}  // namespace
}  // namespace qor
