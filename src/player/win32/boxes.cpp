#include "player/win32/boxes.h"

#include <algorithm>
#include <cmath>

#include "player/win32/wide.h"

namespace qor::player {
namespace {

// The bits of a MsgBox buttons number that the system box understands.
constexpr UINT kMessageStyles = 0x7 | 0x70 | 0x300 | MB_SYSTEMMODAL | MB_HELP | MB_SETFOREGROUND | MB_TOPMOST |
                                MB_RIGHT | MB_RTLREADING;

constexpr wchar_t kInputClass[] = L"QorInputBox";
constexpr int kEditId = 100;

struct InputState {
    std::wstring text;
    bool done = false;
    bool accepted = false;
};

// The system's message font at a density factor; the caller deletes it.
// The system gives it at the primary screen's density, which is not
// necessarily the menu's.
HFONT messageFont(double density)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof metrics.lfMessageFont, &metrics.lfMessageFont);
    HDC dc = GetDC(nullptr);
    const int systemDpi = std::max(1, GetDeviceCaps(dc, LOGPIXELSY));
    ReleaseDC(nullptr, dc);
    metrics.lfMessageFont.lfHeight = LONG(std::lround(metrics.lfMessageFont.lfHeight * density * 96 / systemDpi));
    return CreateFontIndirectW(&metrics.lfMessageFont);
}

LRESULT CALLBACK inputProc(HWND window, UINT message, WPARAM w, LPARAM l)
{
    auto* state = reinterpret_cast<InputState*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_COMMAND && state && (LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL)) {
        state->accepted = LOWORD(w) == IDOK;
        HWND edit = GetDlgItem(window, kEditId);
        state->text.assign(std::size_t(GetWindowTextLengthW(edit)), L'\0');
        GetWindowTextW(edit, state->text.data(), int(state->text.size() + 1));
        state->done = true;
        return 0;
    }
    if (message == WM_CLOSE && state) {
        state->done = true;
        return 0;
    }
    return DefWindowProcW(window, message, w, l);
}

HWND child(HWND parent, LPCWSTR kind, const std::wstring& text, DWORD style, RECT r, int id, HFONT font)
{
    HWND h = CreateWindowExW(kind == std::wstring(L"EDIT") ? WS_EX_CLIENTEDGE : 0, kind, text.c_str(),
                             WS_CHILD | WS_VISIBLE | style, r.left, r.top, r.right, r.bottom, parent,
                             reinterpret_cast<HMENU>(INT_PTR(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(h, WM_SETFONT, WPARAM(font), TRUE);
    return h;
}

// The box laid out at 96 dpi, every length scaled by the density.
HWND makeInputWindow(HWND owner, const script::InputBoxRequest& request, InputState& state, double density,
                     HFONT font)
{
    static const ATOM registered = [] {
        WNDCLASSW c{};
        c.lpfnWndProc = inputProc;
        c.hInstance = GetModuleHandleW(nullptr);
        c.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        c.hbrBackground = HBRUSH(COLOR_BTNFACE + 1);
        c.lpszClassName = kInputClass;
        return RegisterClassW(&c);
    }();
    (void)registered;
    auto s = [density](int v) { return int(std::lround(v * density)); };
    RECT frame{0, 0, s(360), s(140)};
    AdjustWindowRect(&frame, WS_CAPTION | WS_SYSMENU, FALSE);
    const int w = frame.right - frame.left;
    const int h = frame.bottom - frame.top;
    HWND window = CreateWindowExW(WS_EX_DLGMODALFRAME, kInputClass, widen(request.title.value_or("")).c_str(),
                                  WS_CAPTION | WS_SYSMENU | WS_POPUP, (GetSystemMetrics(SM_CXSCREEN) - w) / 2,
                                  (GetSystemMetrics(SM_CYSCREEN) - h) / 2, w, h, owner, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    if (!window)
        return nullptr;
    SetWindowLongPtrW(window, GWLP_USERDATA, LONG_PTR(&state));
    // RECTs here are left, top, width, height.
    child(window, L"STATIC", withCrLf(widen(request.prompt)), SS_LEFT, RECT{s(10), s(10), s(250), s(80)}, -1, font);
    child(window, L"BUTTON", L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP, RECT{s(270), s(10), s(80), s(26)}, IDOK, font);
    child(window, L"BUTTON", L"Annuler", BS_PUSHBUTTON | WS_TABSTOP, RECT{s(270), s(42), s(80), s(26)}, IDCANCEL,
          font);
    HWND edit = child(window, L"EDIT", widen(request.defaultText), ES_AUTOHSCROLL | WS_TABSTOP,
                      RECT{s(10), s(104), s(340), s(24)}, kEditId, font);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SetFocus(edit);
    return window;
}

}  // namespace

int showMessageBox(HWND owner, const MessageRequest& request)
{
    const int answer = MessageBoxW(owner, withCrLf(widen(request.text)).c_str(), widen(request.title).c_str(),
                                   UINT(request.buttons) & kMessageStyles);
    return answer > 0 ? answer : IDCANCEL;
}

std::optional<std::string> showInputBox(HWND owner, const script::InputBoxRequest& request, double density)
{
    InputState state;
    if (!(density > 0) || density > 8)
        density = 1;
    HFONT font = messageFont(density);
    HWND window = makeInputWindow(owner, request, state, density, font);
    if (!window) {
        DeleteObject(font);
        return std::nullopt;
    }
    if (owner)
        EnableWindow(owner, FALSE);
    ShowWindow(window, SW_SHOW);
    SetFocus(GetDlgItem(window, kEditId));
    MSG message;
    while (!state.done && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    if (owner)
        EnableWindow(owner, TRUE);
    DestroyWindow(window);
    DeleteObject(font);
    if (!state.accepted)
        return std::nullopt;
    return narrow(state.text);
}

}  // namespace qor::player
