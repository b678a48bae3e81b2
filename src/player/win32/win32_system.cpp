#include "player/win32/win32_system.h"

#include <windows.h>
#include <mmsystem.h>
#include <shellapi.h>

#include <cctype>
#include <memory>

#include "player/win32/wide.h"

namespace qor::player {
namespace {

// Files a script may read whole: well past any text a menu shows.
constexpr LONGLONG kMaxReadBytes = LONGLONG(256) * 1024 * 1024;

struct HandleCloser {
    void operator()(HANDLE h) const { CloseHandle(h); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

// The shell takes no path of 260 characters or more: such a file is named
// by its short (8.3) path, which every folder of it has.
std::wstring shellPath(const std::string& target)
{
    std::wstring file = widen(target);
    if (file.size() < MAX_PATH)
        return file;
    const std::wstring full = longPath(file);
    std::wstring shortPath(GetShortPathNameW(full.c_str(), nullptr, 0), L'\0');
    const DWORD n = GetShortPathNameW(full.c_str(), shortPath.data(), DWORD(shortPath.size()));
    if (n == 0 || n >= shortPath.size())
        return file;
    shortPath.resize(n);
    return plainPath(shortPath);
}

bool shellOpen(const std::string& target, const std::string& arguments)
{
    if (target.empty())
        return false;
    const std::wstring file = shellPath(target);
    const std::wstring args = widen(arguments);
    const HINSTANCE r = ShellExecuteW(nullptr, L"open", file.c_str(), args.empty() ? nullptr : args.c_str(), nullptr,
                                      SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(r) > 32;
}

}  // namespace

std::string Win32System::programPath()
{
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = GetModuleFileNameW(nullptr, buffer.data(), DWORD(buffer.size()));
        if (n < buffer.size()) {
            buffer.resize(n);
            return narrow(plainPath(buffer));
        }
        buffer.resize(buffer.size() * 2);
    }
}

std::string Win32System::driveLetterOf(const std::string& folder) const
{
    if (folder.size() >= 2 && folder[1] == ':' && std::isalpha(static_cast<unsigned char>(folder[0])))
        return std::string(1, char(std::toupper(static_cast<unsigned char>(folder[0]))));
    return {};
}

bool Win32System::fileExists(const std::string& path) const
{
    if (path.empty())
        return false;
    const DWORD a = GetFileAttributesW(longPath(widen(path)).c_str());
    return a != INVALID_FILE_ATTRIBUTES && !(a & FILE_ATTRIBUTE_DIRECTORY);
}

std::optional<std::string> Win32System::readFile(const std::string& path) const
{
    if (path.empty())
        return std::nullopt;
    Handle file(CreateFileW(longPath(widen(path)).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE) {
        file.release();
        return std::nullopt;
    }
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > kMaxReadBytes)
        return std::nullopt;
    std::string bytes(std::size_t(size.QuadPart), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        DWORD got = 0;
        if (!ReadFile(file.get(), bytes.data() + done, DWORD(bytes.size() - done), &got, nullptr) || got == 0)
            return std::nullopt;
        done += got;
    }
    return bytes;
}

bool Win32System::openWithDesktop(const std::string& target)
{
    return shellOpen(target, {});
}

bool Win32System::startProgram(const std::string& program, const std::string& arguments)
{
    return shellOpen(program, arguments);
}

// A sub-menu is a player of its own, with its data appended. Deep in a
// folder, past what the shell takes, it is started directly.
bool Win32System::startMenu(const std::string& menuFile)
{
    if (!fileExists(menuFile))
        return false;
    if (shellOpen(menuFile, {}))
        return true;
    const std::wstring program = longPath(widen(menuFile));
    std::wstring commandLine = L"\"" + widen(menuFile) + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return false;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

void Win32System::ejectTray(const std::string& driveLetter, bool open)
{
    const std::string letter = driveLetter.empty() ? driveLetterOf(menuFolder_) : driveLetter.substr(0, 1);
    if (letter.empty() || !std::isalpha(static_cast<unsigned char>(letter[0])))
        return;
    const std::wstring drive = widen(letter) + L":";
    if (GetDriveTypeW((drive + L"\\").c_str()) != DRIVE_CDROM)
        return;
    const std::wstring openCommand = L"open " + drive + L" type cdaudio alias qortray wait";
    if (mciSendStringW(openCommand.c_str(), nullptr, 0, nullptr) != 0)
        return;
    mciSendStringW(open ? L"set qortray door open wait" : L"set qortray door closed wait", nullptr, 0, nullptr);
    mciSendStringW(L"close qortray", nullptr, 0, nullptr);
}

}  // namespace qor::player
