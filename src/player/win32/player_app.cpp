#include "player/win32/player_app.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

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

int runMenu(MenuData menu, const std::string& file, Win32System& system)
{
    const std::string folder = file.substr(0, file.find_last_of("\\/") + 1);
    MenuPlace place = MenuPlace::of(file, '\\', system.driveLetterOf(folder));
    system.setMenuFolder(place.playerFolder);
    Pictures pictures(system);
    Win32Media media;
    MenuWindow window(pictures, media);
    Player player(std::move(menu), std::move(place), window, media, system);
    window.attach(player);
    player.start();
    MSG message;
    while (!player.closed() && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
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
    // Pixels are pixels on a screen of any density; the menu sizes itself in twips.
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
