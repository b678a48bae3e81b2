// The yardstick of the Windows player's start: an empty Win32 window titled
// "Fenetre vide", shown as soon as the program starts, closed by the script
// that measures it.
#include <windows.h>

namespace {

LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l)
{
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, w, l);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show)
{
    WNDCLASSW c{};
    c.lpfnWndProc = windowProc;
    c.hInstance = instance;
    c.hbrBackground = HBRUSH(COLOR_WINDOW + 1);
    c.lpszClassName = L"FenetreVide";
    RegisterClassW(&c);
    HWND window = CreateWindowExW(0, c.lpszClassName, L"Fenetre vide", WS_POPUP, 100, 100, 640, 480, nullptr,
                                  nullptr, instance, nullptr);
    ShowWindow(window, show);
    UpdateWindow(window);
    MSG m;
    while (GetMessageW(&m, nullptr, 0, 0) > 0) {
        TranslateMessage(&m);
        DispatchMessageW(&m);
    }
    return 0;
}
