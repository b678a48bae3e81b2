// compil.exe: shows the QOR menu appended to it (or the one in FILE).
//   compil.exe [FILE] [infos|auteur]
#include <windows.h>
#include <shellapi.h>

#include "player/win32/player_app.h"
#include "player/win32/wide.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words && i < count; ++i)
        arguments.push_back(qor::player::narrow(words[i]));
    LocalFree(words);
    return qor::player::runPlayer(arguments);
}
