#include <gtest/gtest.h>

#include <windows.h>

#include <cstdlib>

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
