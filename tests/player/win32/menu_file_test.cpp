#include <gtest/gtest.h>

#include <windows.h>

#include <cstdlib>

#include "core/build/program_icon.h"
#include "model/menu_data_writer.h"
#include "player/core/command_line.h"
#include "player/core/executable_image.h"
#include "player/win32/wide.h"
#include "player/win32/win32_system.h"

namespace qor::player {
namespace {

// The real compil.exe, named by the test run (a Unix path under wine).
std::string playerPath()
{
    const char* path = std::getenv("QOR_COMPIL_EXE");
    if (!path)
        return {};
    const std::string p(path);
    return p.starts_with("/") ? "Z:" + p : p;
}

std::wstring tempFolder()
{
    wchar_t buffer[MAX_PATH + 1];
    const DWORD n = GetTempPathW(MAX_PATH + 1, buffer);
    return std::wstring(buffer, n);
}

// Makes every folder of a path (long ones too) and writes the file.
bool writeFile(const std::wstring& path, const std::string& bytes)
{
    for (std::size_t at = 3; (at = path.find(L'\\', at + 1)) != std::wstring::npos;)
        CreateDirectoryW(longPath(path.substr(0, at)).c_str(), nullptr);
    HANDLE h = CreateFileW(longPath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok = WriteFile(h, bytes.data(), DWORD(bytes.size()), &written, nullptr) && written == bytes.size();
    CloseHandle(h);
    return ok;
}

class MenuFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        const std::string path = playerPath();
        ASSERT_FALSE(path.empty()) << "QOR_COMPIL_EXE names no player";
        const std::optional<std::string> bytes = system.readFile(path);
        ASSERT_TRUE(bytes) << "cannot read " << path;
        player = *bytes;
    }
    Win32System system;
    std::string player;
};

// The program's own end is where its file ends: nothing is appended yet.
TEST_F(MenuFile, TheProgramEndsWhereItsFileEnds)
{
    EXPECT_EQ(executableImageEnd(player), player.size());
}

TEST_F(MenuFile, AppendedMenuReadFromEveryFolder)
{
    MenuProject project;
    project.timerInterval = "4321";
    const std::string compiled = player + menuDataBytes(project, {"Démo", "Élodie"});
    const std::wstring base = tempFolder() + L"qor-tests\\";
    const std::wstring deep = base + std::wstring(25, L'd') + L"\\" + std::wstring(120, L'é') + L"\\" +
                              std::wstring(120, L'x') + L"\\qor\\autorun.exe";
    const std::wstring cases[] = {base + L"cd\\qor\\autorun.exe", base + L"Menu élève ç\\qor\\Démo à.exe", deep};
    ASSERT_GT(deep.size(), 260u);
    for (const std::wstring& file : cases) {
        ASSERT_TRUE(writeFile(file, compiled)) << narrow(file);
        const LoadResult r = loadMenu(system, narrow(file));
        ASSERT_TRUE(std::holds_alternative<MenuData>(r)) << narrow(file) << ": " << std::get<LoadFailure>(r).message;
        EXPECT_EQ(std::get<MenuData>(r).project.timerInterval, "4321");
        EXPECT_EQ(std::get<MenuData>(r).info.author, "Élodie");
    }
}

// A .ico file of square 32-bit images of the given sizes, each one colour.
std::string iconFile(std::initializer_list<int> sizes)
{
    auto le = [](std::string& s, std::uint32_t v, int bytes) {
        for (int i = 0; i < bytes; ++i, v >>= 8)
            s += char(v & 0xFF);
    };
    std::string head;
    std::string images;
    le(head, 0, 2);
    le(head, 1, 2);
    le(head, std::uint32_t(sizes.size()), 2);
    for (const int n : sizes) {
        std::string image;
        for (const std::uint32_t v : {40u, std::uint32_t(n), std::uint32_t(2 * n), 1u | (32u << 16), 0u, 0u, 0u, 0u, 0u, 0u})
            le(image, v, 4);
        for (int i = 0; i < n * n; ++i)
            le(image, 0xFF000000u | std::uint32_t(n * 0x010203), 4);
        image.append(std::size_t((n + 31) / 32 * 4 * n), '\0');   // the AND mask
        le(head, std::uint32_t(n) | std::uint32_t(n) << 8, 2);
        le(head, 0, 2);
        le(head, 1, 2);
        le(head, 32, 2);
        le(head, std::uint32_t(image.size()), 4);
        le(head, std::uint32_t(6 + 16 * sizes.size() + images.size()), 4);
        images += image;
    }
    return head + images;
}

std::string_view resource(HMODULE module, LPCWSTR type, int id)
{
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), type);
    if (!found)
        return {};
    return {static_cast<const char*>(LockResource(LoadResource(module, found))), SizeofResource(module, found)};
}

// The CD's icon given to the player's copy, read back by Windows itself: the
// group names the new images, each one is there, the system makes an icon of
// it, and the menu appended afterwards is still found.
TEST_F(MenuFile, TheCdIconBecomesTheProgramIcon)
{
    for (const std::string& ico : {iconFile({16}), iconFile({48, 32, 16}), iconFile({64, 48, 32, 24, 16})}) {
        const ProgramUpdate set = withProgramIcon(player, ico);
        ASSERT_EQ(set.problem, "");
        const std::string compiled = set.program + menuDataBytes(MenuProject(), {"Icône", "Moi"});
        const std::wstring file = tempFolder() + L"qor-tests\\icone\\autorun.exe";
        ASSERT_TRUE(writeFile(file, compiled));
        EXPECT_TRUE(std::holds_alternative<MenuData>(loadMenu(system, narrow(file))));
        HMODULE module = LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
        ASSERT_TRUE(module);
        const std::string_view group = resource(module, RT_GROUP_ICON, 1);
        ASSERT_GE(group.size(), 6u);
        const std::size_t count = std::uint8_t(group[4]);
        EXPECT_EQ(count, std::min<std::size_t>(3, std::uint8_t(ico[4])));
        for (std::size_t i = 0; i < count && group.size() >= 6 + 14 * (i + 1); ++i) {
            const int id = std::uint8_t(group[6 + 14 * i + 12]);
            const std::size_t size = std::uint8_t(ico[6 + 16 * i + 8]) | std::uint8_t(ico[6 + 16 * i + 9]) << 8;
            const std::size_t offset = std::uint8_t(ico[6 + 16 * i + 12]) | std::uint8_t(ico[6 + 16 * i + 13]) << 8;
            EXPECT_EQ(resource(module, RT_ICON, id), std::string_view(ico).substr(offset, size)) << i;
            const std::string_view bits = resource(module, RT_ICON, id);
            HICON made = CreateIconFromResourceEx(reinterpret_cast<PBYTE>(const_cast<char*>(bits.data())),
                                                  DWORD(bits.size()), TRUE, 0x00030000, 0, 0, 0);
            EXPECT_TRUE(made) << i;
            DestroyIcon(made);
        }
        FreeLibrary(module);
    }
}

// One text of a program's version information, as Explorer reads it.
std::wstring versionText(const std::wstring& file, const wchar_t* key)
{
    DWORD ignored = 0;
    std::string info(GetFileVersionInfoSizeW(file.c_str(), &ignored), '\0');
    if (info.empty() || !GetFileVersionInfoW(file.c_str(), 0, DWORD(info.size()), info.data()))
        return L"(none)";
    void* text = nullptr;
    UINT length = 0;
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040C04E4\\") + key;
    if (!VerQueryValueW(info.data(), path.c_str(), &text, &length) || !text)
        return L"(none)";
    return static_cast<const wchar_t*>(text);
}

// The menu's title and author in the copy's version information, after the
// CD's icon or without it; an empty one leaves the player's own, the other
// texts stay, and the menu appended afterwards is still found.
TEST_F(MenuFile, TheMenuNamesTheProgram)
{
    const std::wstring bare = tempFolder() + L"qor-tests\\version\\bare.exe";
    ASSERT_TRUE(writeFile(bare, player));
    const std::wstring ownDescription = versionText(bare, L"FileDescription");
    const std::wstring ownProduct = versionText(bare, L"ProductName");
    const std::wstring ownCompany = versionText(bare, L"CompanyName");
    ASSERT_NE(ownDescription, L"(none)");
    const std::string longTitle(300, 'T');
    struct Row {
        std::string title, author;
        bool icon;
        std::wstring description, product, company;
    } rows[] = {
        {"Démo d'été & co", "Élodie (elodie@exemple.fr)", false, L"Démo d'été & co", L"Démo d'été & co",
         L"Élodie (elodie@exemple.fr)"},
        {"", "Moi", true, ownDescription, ownProduct, L"Moi"},
        {"Menu \u65E5\u672C \U0001F600", "", true, L"Menu \u65E5\u672C \U0001F600", L"Menu \u65E5\u672C \U0001F600", ownCompany},
        {longTitle, "A", false, std::wstring(255, L'T'), std::wstring(255, L'T'), L"A"},
    };
    for (const Row& row : rows) {
        std::string program = player;
        if (row.icon) {
            const ProgramUpdate icon = withProgramIcon(program, iconFile({48, 32}));
            ASSERT_EQ(icon.problem, "");
            program = icon.program;
        }
        const ProgramUpdate set = withProgramDetails(program, {row.title, row.author});
        ASSERT_EQ(set.problem, "") << row.title;
        const std::wstring file = tempFolder() + L"qor-tests\\version\\autorun.exe";
        ASSERT_TRUE(writeFile(file, set.program + menuDataBytes(MenuProject(), {row.title, row.author})));
        const LoadResult r = loadMenu(system, narrow(file));
        ASSERT_TRUE(std::holds_alternative<MenuData>(r)) << row.title;
        EXPECT_EQ(std::get<MenuData>(r).info.author, row.author);
        EXPECT_EQ(versionText(file, L"FileDescription"), row.description) << row.title;
        EXPECT_EQ(versionText(file, L"ProductName"), row.product) << row.title;
        EXPECT_EQ(versionText(file, L"CompanyName"), row.company) << row.title;
        for (const wchar_t* kept : {L"FileVersion", L"OriginalFilename", L"ProductVersion"})
            EXPECT_EQ(versionText(file, kept), versionText(bare, kept)) << row.title;
    }
}

TEST_F(MenuFile, BarePlayerSaysItHasNoMenu)
{
    const LoadResult r = loadMenu(system, playerPath());
    ASSERT_TRUE(std::holds_alternative<LoadFailure>(r));
    EXPECT_NE(std::get<LoadFailure>(r).message.find("Aucun menu"), std::string::npos);
}

TEST(Win32System, DriveLetters)
{
    const Win32System system;
    const std::pair<const char*, const char*> cases[] = {
        {"D:\\qor\\", "D"}, {"e:\\", "E"}, {"\\\\serveur\\cd\\qor\\", ""}, {"", ""}};
    for (const auto& [folder, letter] : cases)
        EXPECT_EQ(system.driveLetterOf(folder), letter) << folder;
}

}  // namespace
}  // namespace qor::player
