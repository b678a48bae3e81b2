#include "player/win32/player_app.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

#include <cstdint>

#include "player/core/command_line.h"
#include "player/core/player.h"
#include "player/win32/menu_window.h"
#include "player/win32/pictures.h"
#include "player/win32/wide.h"
#include "player/win32/win32_media.h"
#include "player/win32/win32_system.h"

namespace qor::player {
namespace {

void inform(UINT icon, std::string_view title, const std::string& text)
{
    MessageBoxW(nullptr, withCrLf(widen(text)).c_str(), widen(title).c_str(), MB_OK | icon);
}

// A relative FILE is taken from the current folder, as the shell means it.
std::string fullPath(const std::string& file)
{
    const std::wstring wide = widen(file);
    const DWORD n = GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr);
    std::wstring out(n, L'\0');
    const DWORD got = GetFullPathNameW(wide.c_str(), n, out.data(), nullptr);
    if (got == 0 || got >= n)
        return file;
    out.resize(got);
    return narrow(out);
}

// One copy per menu file: the name of its lock, which its window also
// carries as a property so a second copy can find it.
std::wstring copyKey(const std::string& file)
{
    std::wstring path = widen(file);
    CharLowerBuffW(path.data(), DWORD(path.size()));
    std::uint32_t hash = 2166136261u;
    for (const wchar_t c : path)
        hash = (hash ^ std::uint32_t(c)) * 16777619u;
    wchar_t text[16];
    wsprintfW(text, L"%08x", hash);
    return L"QOR-menu-" + std::wstring(text);
}

// A second start of the same menu (the CD's autorun and a double click, or
// two double clicks on a slow drive) brings the first copy to the front
// instead of opening another window and another music over it.
struct CopySearch {
    const wchar_t* key;
    HWND found;
};

BOOL CALLBACK findCopy(HWND window, LPARAM l)
{
    auto* s = reinterpret_cast<CopySearch*>(l);
    if (!GetPropW(window, s->key))
        return TRUE;
    s->found = window;
    return FALSE;
}

void bringFirstCopyForward(const std::wstring& key)
{
    CopySearch search{key.c_str(), nullptr};
    EnumWindows(findCopy, LPARAM(&search));
    if (search.found) {
        if (IsIconic(search.found))
            ShowWindow(search.found, SW_RESTORE);
        SetForegroundWindow(search.found);
    }
}

int runMenu(MenuData menu, const std::string& file, Win32System& system)
{
    const std::wstring key = copyKey(file);
    HANDLE lock = CreateMutexW(nullptr, FALSE, key.c_str());
    if (lock && GetLastError() == ERROR_ALREADY_EXISTS) {
        bringFirstCopyForward(key);
        CloseHandle(lock);
        return 0;
    }
    const std::string folder = file.substr(0, file.find_last_of("\\/") + 1);
    MenuPlace place = MenuPlace::of(file, '\\', system.driveLetterOf(folder));
    system.setMenuFolder(place.playerFolder);
    Pictures pictures(system);
    Win32Media media;
    MenuWindow window(pictures, media);
    Player player(std::move(menu), std::move(place), window, media, system);
    window.attach(player);
    SetPropW(window.handle(), key.c_str(), HANDLE(1));
    player.start();
    MSG message;
    while (!player.closed() && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    RemovePropW(window.handle(), key.c_str());
    if (lock)
        CloseHandle(lock);
    return 0;
}

}  // namespace

int runPlayer(const std::vector<std::string>& arguments)
{
    const PlayerCommand command = parseCommand(arguments);
    if (command.mode == PlayerCommand::Mode::Infos) {
        inform(MB_ICONINFORMATION, kAboutTitle, productText());
        return 0;
    }
    // Density-aware per screen, as the manifest says; this call is for a
    // system that does not read it (before Windows 10 it says it once for all).
    using SetAwareness = BOOL(WINAPI*)(HANDLE);
    if (const auto set = reinterpret_cast<SetAwareness>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetProcessDpiAwarenessContext"))))
        set(HANDLE(-4));  // per monitor, version 2
    else
        SetProcessDPIAware();
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const std::string file = command.file.empty() ? Win32System::programPath() : fullPath(command.file);
    Win32System system;
    LoadResult loaded = loadMenu(system, file);
    int status = 1;
    if (const auto* failure = std::get_if<LoadFailure>(&loaded)) {
        inform(MB_ICONERROR, kLoadErrorTitle, failure->message);
    } else if (command.mode == PlayerCommand::Mode::Author) {
        inform(MB_ICONINFORMATION, kAboutTitle, authorText(std::get<MenuData>(loaded).info));
        status = 0;
    } else {
        status = runMenu(std::move(std::get<MenuData>(loaded)), file, system);
    }
    CoUninitialize();
    return status;
}

}  // namespace qor::player
