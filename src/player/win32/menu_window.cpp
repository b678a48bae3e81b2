#include "player/win32/menu_window.h"

#include <windowsx.h>
#include <mmsystem.h>

#include <algorithm>
#include <cmath>

#include "player/core/pixels.h"
#include "player/win32/boxes.h"
#include "player/win32/colours.h"
#include "player/win32/wide.h"
#include "player/win32/window_region.h"

namespace qor::player {
namespace {

#ifndef WM_DPICHANGED
constexpr UINT WM_DPICHANGED = 0x02E0;
#endif

constexpr wchar_t kWindowClass[] = L"QorMenuWindow";
constexpr UINT_PTR kTimerId = 1;
// The text boxes still to make come on a timer: the system hands out timer
// messages only when no input waits, so the menu answers the user between
// batches however many boxes it has.
constexpr UINT_PTR kMakeTextsTimerId = 2;
constexpr std::size_t kTextsAtOnce = 50;
// A button without its picture still shows, to be seen and clicked.
constexpr SIZE kPlaceholderSize{75, 25};

HWND createWindow()
{
    static const ATOM atom = [] {
        WNDCLASSW c{};
        c.style = CS_DBLCLKS;
        c.lpfnWndProc = DefWindowProcW;
        c.hInstance = GetModuleHandleW(nullptr);
        c.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1));
        c.lpszClassName = kWindowClass;
        return RegisterClassW(&c);
    }();
    (void)atom;
    return CreateWindowExW(WS_EX_APPWINDOW, kWindowClass, L"", WS_POPUP | WS_CLIPCHILDREN | WS_SYSMENU | WS_MINIMIZEBOX,
                           0, 0, 1, 1, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void fill(HDC dc, const RECT& r, COLORREF colour)
{
    HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &r, brush);
    DeleteObject(brush);
}

}  // namespace

MenuWindow::MenuWindow(Pictures& pictures, Win32Media& media)
    : pictures_(pictures), media_(media), hwnd_(createWindow()), texts_(hwnd_, [this](std::size_t i, std::string text) {
          if (player_)
              player_->textEdited(i, std::move(text));
      })
{
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, LONG_PTR(this));
    SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, LONG_PTR(&MenuWindow::proc));
    screen_ = screen();
    density_ = densityFactor();
    scale_ = density_;
    media_.setNotifyWindow(hwnd_);
}

MenuWindow::~MenuWindow()
{
    media_.setNotifyWindow(nullptr);
    dropBackground();
    if (hwnd_) {
        SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
        DestroyWindow(hwnd_);
    }
}

// The density factor of the window's screen: 1 at 96 dpi.
double MenuWindow::densityFactor() const
{
    using DpiForWindow = UINT(WINAPI*)(HWND);
    static const auto dpiForWindow =
        reinterpret_cast<DpiForWindow>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    UINT dpi = dpiForWindow && hwnd_ ? dpiForWindow(hwnd_) : 0;
    if (dpi == 0) {
        HDC dc = GetDC(nullptr);
        dpi = UINT(GetDeviceCaps(dc, LOGPIXELSX));
        ReleaseDC(nullptr, dc);
    }
    return dpi > 0 ? dpi / 96.0 : 1.0;
}

// The menu is laid out at 15 twips per pixel on every screen: the core sees
// the screen in those pixels, and the window scales as a whole.
ScreenInfo MenuWindow::screen() const
{
    const double density = densityFactor();
    ScreenInfo info;
    info.width = std::max(1, int(GetSystemMetrics(SM_CXSCREEN) / density));
    info.height = std::max(1, int(GetSystemMetrics(SM_CYSCREEN) / density));
    info.reducesWholeWindow = true;
    return info;
}

ScreenInfo MenuWindow::scaledScreen() const
{
    ScreenInfo info = screen_;
    info.twipsPerPixelX = 15 / scale_;
    info.twipsPerPixelY = 15 / scale_;
    return info;
}

int MenuWindow::px(double twips) const { return twipsToPixels(twips, 15 / scale_); }
int MenuWindow::py(double twips) const { return twipsToPixels(twips, 15 / scale_); }
int MenuWindow::scaled(int layoutPixels) const { return int(std::lround(layoutPixels * scale_)); }

std::optional<ImageSize> MenuWindow::imageSize(const std::string& path)
{
    const std::optional<Pictures::Size> size = pictures_.size(path);
    if (!size)
        return std::nullopt;
    return ImageSize{size->width, size->height};
}

void MenuWindow::show(const Scene& scene)
{
    buttons_ = scene.buttons;
    texts_.reset(scene.texts, scaledScreen());
    if (texts_.createSome(kTextsAtOnce))
        SetTimer(hwnd_, kMakeTextsTimerId, USER_TIMER_MINIMUM, nullptr);
    windowChanged(scene.window);
}

void MenuWindow::windowChanged(const WindowScene& w)
{
    const bool outlineChanged = w.shape != window_.shape || w.transparencyImage != window_.transparencyImage;
    const bool lookChanged = w.backgroundImage != window_.backgroundImage || w.stretch != window_.stretch ||
                             w.backColor != window_.backColor || w.borderVisible != window_.borderVisible ||
                             w.borderColor != window_.borderColor || w.borderWidth != window_.borderWidth ||
                             w.borderShape != window_.borderShape;
    const bool first = shownState_ == -2;
    window_ = w;
    SetWindowTextW(hwnd_, widen(w.caption).c_str());
    if (lookChanged || first)
        dropBackground();
    applyGeometry(w);
    RECT client{};
    GetClientRect(hwnd_, &client);
    if (outlineChanged || first || regionSize_.cx != client.right || regionSize_.cy != client.bottom)
        applyRegion();
    InvalidateRect(hwnd_, nullptr, FALSE);
}

void MenuWindow::applyGeometry(const WindowScene& w)
{
    // The whole window at the screen's density, reduced as a whole where
    // it would not fit the work area, and then centred in it.
    MONITORINFO monitor{sizeof monitor, {}, {}, 0};
    GetMonitorInfoW(MonitorFromWindow(hwnd_, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = w.fullScreen ? monitor.rcMonitor : monitor.rcWork;
    const int areaWidth = area.right - area.left;
    const int areaHeight = area.bottom - area.top;
    const double before = scale_;
    scale_ = w.fullScreen ? density_
                          : windowScale(density_, w.width / 15, w.height / 15, areaWidth, areaHeight);
    if (scale_ != before) {
        texts_.rescale(scaledScreen());
        dropBackground();
    }
    if (w.fullScreen) {
        SetWindowPos(hwnd_, nullptr, area.left, area.top, areaWidth, areaHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    } else if (!IsZoomed(hwnd_)) {
        const int width = std::max(1, px(w.width));
        const int height = std::max(1, py(w.height));
        int left = px(w.left);
        int top = py(w.top);
        if (scale_ < density_) {
            left = area.left + (areaWidth - width) / 2;
            top = area.top + (areaHeight - height) / 2;
        }
        SetWindowPos(hwnd_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    // Only what a script changed: a window the user minimised stays so while
    // the timer changes its caption.
    const int state = w.visible ? w.windowState : -1;
    if (state == shownState_)
        return;
    shownState_ = state;
    static constexpr int kShow[] = {SW_SHOWNORMAL, SW_SHOWMINIMIZED, SW_SHOWMAXIMIZED};
    ShowWindow(hwnd_, state < 0 ? SW_HIDE : kShow[std::clamp(state, 0, 2)]);
    if (state >= 0)
        SetForegroundWindow(hwnd_);
}

void MenuWindow::applyRegion()
{
    RECT client{};
    GetClientRect(hwnd_, &client);
    regionSize_ = SIZE{client.right, client.bottom};
    const std::vector<std::uint32_t> kept =
        window_.transparencyImage.empty() ? std::vector<std::uint32_t>{}
                                          : pictures_.pixels(window_.transparencyImage, client.right, client.bottom);
    std::vector<PixelPoint> outline = window_.shape;
    for (PixelPoint& p : outline)
        p = PixelPoint{scaled(p.x), scaled(p.y)};
    // The window owns the region once it is set.
    SetWindowRgn(hwnd_, windowRegion(client.right, client.bottom, outline, kept), TRUE);
}

// Moved to a screen of another density: the whole window follows, where
// the system suggests it.
void MenuWindow::densityChanged(double factor, const RECT& suggested)
{
    if (!(factor > 0) || factor == density_)
        return;
    density_ = factor;
    SetWindowPos(hwnd_, nullptr, suggested.left, suggested.top, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE);
    RECT at{};
    GetWindowRect(hwnd_, &at);
    window_.left = at.left * 15 / factor;
    window_.top = at.top * 15 / factor;
    if (player_)
        player_->windowMoved(int(std::lround(at.left / factor)), int(std::lround(at.top / factor)));
    applyGeometry(window_);
    applyRegion();
    InvalidateRect(hwnd_, nullptr, FALSE);
}

void MenuWindow::dropBackground()
{
    if (background_)
        DeleteObject(background_);
    background_ = nullptr;
}

void MenuWindow::buttonChanged(std::size_t index, const ButtonScene& button)
{
    if (index >= buttons_.size())
        return;
    RECT before = buttonRect(index);
    InvalidateRect(hwnd_, &before, FALSE);
    buttons_[index] = button;
    RECT after = buttonRect(index);
    InvalidateRect(hwnd_, &after, FALSE);
}

void MenuWindow::textChanged(std::size_t index, const TextScene& text)
{
    texts_.change(index, text);
}

void MenuWindow::timerChanged(const TimerScene& timer)
{
    if (timer.runs() && !closing_)
        SetTimer(hwnd_, kTimerId, UINT(timer.interval), nullptr);
    else
        KillTimer(hwnd_, kTimerId);
}

void MenuWindow::close()
{
    if (closing_)
        return;
    closing_ = true;
    KillTimer(hwnd_, kTimerId);
    ShowWindow(hwnd_, SW_HIDE);
    PostQuitMessage(0);
}

HWND MenuWindow::owner() const
{
    return IsWindowVisible(hwnd_) ? hwnd_ : nullptr;
}

int MenuWindow::messageBox(const MessageRequest& request)
{
    ++boxesOpen_;
    const int answer = showMessageBox(owner(), request);
    --boxesOpen_;
    return answer;
}

std::optional<std::string> MenuWindow::inputBox(const script::InputBoxRequest& request)
{
    ++boxesOpen_;
    std::optional<std::string> answer = showInputBox(owner(), request, density_);
    --boxesOpen_;
    return answer;
}

RECT MenuWindow::buttonRect(std::size_t index) const
{
    const ButtonScene& b = buttons_[index];
    const std::optional<Pictures::Size> size = pictures_.size(b.normalImage);
    const int x = px(b.left);
    const int y = py(b.top);
    return RECT{x, y, x + scaled(size ? size->width : kPlaceholderSize.cx),
                y + scaled(size ? size->height : kPlaceholderSize.cy)};
}

// The last button lies on top, as it was placed last.
std::optional<std::size_t> MenuWindow::buttonAt(POINT at) const
{
    for (std::size_t i = buttons_.size(); i-- > 0;) {
        const RECT r = buttonRect(i);
        if (buttons_[i].visible && PtInRect(&r, at))
            return i;
    }
    return std::nullopt;
}

void MenuWindow::paint()
{
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(hwnd_, &ps);
    RECT client{};
    GetClientRect(hwnd_, &client);
    if (!background_ || backgroundSize_.cx != client.right || backgroundSize_.cy != client.bottom) {
        dropBackground();
        backgroundSize_ = SIZE{client.right, client.bottom};
        background_ = CreateCompatibleBitmap(dc, std::max<LONG>(1, client.right), std::max<LONG>(1, client.bottom));
        HDC cache = CreateCompatibleDC(dc);
        HGDIOBJ old = SelectObject(cache, background_);
        paintBackground(cache, client.right, client.bottom);
        SelectObject(cache, old);
        DeleteDC(cache);
    }
    // Composed off screen, so a hover change never flickers.
    const RECT& d = ps.rcPaint;
    HDC frame = CreateCompatibleDC(dc);
    HBITMAP frameBits = CreateCompatibleBitmap(dc, std::max<LONG>(1, client.right), std::max<LONG>(1, client.bottom));
    HGDIOBJ oldFrame = SelectObject(frame, frameBits);
    HDC cache = CreateCompatibleDC(dc);
    HGDIOBJ oldCache = SelectObject(cache, background_);
    BitBlt(frame, d.left, d.top, d.right - d.left, d.bottom - d.top, cache, d.left, d.top, SRCCOPY);
    SelectObject(cache, oldCache);
    DeleteDC(cache);
    paintButtons(frame, d);
    BitBlt(dc, d.left, d.top, d.right - d.left, d.bottom - d.top, frame, d.left, d.top, SRCCOPY);
    SelectObject(frame, oldFrame);
    DeleteObject(frameBits);
    DeleteDC(frame);
    EndPaint(hwnd_, &ps);
}

void MenuWindow::paintBackground(HDC dc, int width, int height)
{
    const RECT all{0, 0, width, height};
    fill(dc, all, toColorRef(window_.backColor));
    if (!window_.backgroundImage.empty()) {
        const std::optional<Pictures::Size> size = pictures_.size(window_.backgroundImage);
        if (size)
            pictures_.draw(dc, window_.backgroundImage,
                           window_.stretch ? all : RECT{0, 0, scaled(size->width), scaled(size->height)});
    }
    if (!window_.borderVisible || window_.borderWidth <= 0)
        return;
    // The outline stays inside the window, whatever its width.
    HPEN pen = CreatePen(PS_INSIDEFRAME, std::max(1, scaled(window_.borderWidth)), toColorRef(window_.borderColor));
    HGDIOBJ oldPen = SelectObject(dc, pen);
    HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(NULL_BRUSH));
    if (window_.borderShape == 2) {
        Ellipse(dc, 0, 0, width, height);
    } else if (window_.borderShape == 4) {
        const int r = std::min(width, height) / 6;
        RoundRect(dc, 0, 0, width, height, 2 * r, 2 * r);
    } else {
        Rectangle(dc, 0, 0, width, height);
    }
    SelectObject(dc, oldBrush);
    SelectObject(dc, oldPen);
    DeleteObject(pen);
}

void MenuWindow::paintButtons(HDC dc, const RECT& dirty)
{
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const RECT r = buttonRect(i);
        RECT overlap{};
        if (!buttons_[i].visible || !IntersectRect(&overlap, &r, &dirty))
            continue;
        const std::string& shown = buttons_[i].shownImage();
        const std::optional<Pictures::Size> size = pictures_.size(shown);
        if (size) {
            // The shown picture at its own size (scaled with the window),
            // inside the button's box.
            const int saved = SaveDC(dc);
            IntersectClipRect(dc, r.left, r.top, r.right, r.bottom);
            pictures_.draw(dc, shown, RECT{r.left, r.top, r.left + scaled(size->width), r.top + scaled(size->height)});
            RestoreDC(dc, saved);
            continue;
        }
        fill(dc, r, RGB(212, 208, 200));
        HBRUSH frame = CreateSolidBrush(RGB(64, 64, 64));
        FrameRect(dc, &r, frame);
        DeleteObject(frame);
    }
}

LRESULT CALLBACK MenuWindow::proc(HWND hwnd, UINT message, WPARAM w, LPARAM l)
{
    auto* self = reinterpret_cast<MenuWindow*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!self)
        return DefWindowProcW(hwnd, message, w, l);
    return self->handle(message, w, l);
}

LRESULT MenuWindow::handle(UINT message, WPARAM w, LPARAM l)
{
    if (handleMouse(message, POINT{GET_X_LPARAM(l), GET_Y_LPARAM(l)}))
        return 0;
    switch (message) {
    case WM_PAINT: paint(); return 0;
    case WM_DPICHANGED:
        densityChanged(HIWORD(w) / 96.0, *reinterpret_cast<const RECT*>(l));
        return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SIZE:
        // Minimised or restored from the taskbar: the core's state follows,
        // so the next script that shows the window keeps it as it is.
        if (w == SIZE_MINIMIZED || w == SIZE_RESTORED || w == SIZE_MAXIMIZED) {
            const int state = w == SIZE_MINIMIZED ? 1 : w == SIZE_MAXIMIZED ? 2 : 0;
            if (shownState_ >= 0 && state != shownState_) {
                shownState_ = state;
                if (player_)
                    player_->windowStateChanged(state);
            }
        }
        if (regionSize_.cx != LOWORD(l) || regionSize_.cy != HIWORD(l))
            applyRegion();
        InvalidateRect(hwnd_, nullptr, FALSE);
        break;
    case WM_TIMER:
        if (w == kTimerId && player_)
            player_->timerTick();
        if (w == kMakeTextsTimerId && (closing_ || !texts_.createSome(kTextsAtOnce)))
            KillTimer(hwnd_, kMakeTextsTimerId);
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(l) == HTCLIENT && setCursor(HWND(w)))
            return TRUE;
        break;
    case WM_CONTEXTMENU:
        if (HWND(w) == hwnd_) {
            POINT at{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
            if (at.x == -1 && at.y == -1)
                GetCursorPos(&at);
            contextMenu(at);
            return 0;
        }
        break;
    case WM_COMMAND:
        if (HIWORD(w) == EN_CHANGE)
            texts_.changed(HWND(l));
        return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        if (HBRUSH brush = texts_.colours(HWND(l), HDC(w)))
            return LRESULT(brush);
        break;
    case MM_MCINOTIFY:
        if (w == MCI_NOTIFY_SUCCESSFUL)
            media_.ended(UINT(l));
        return 0;
    case WM_CLOSE:
        // The system's close goes through the player, which stops the media
        // and, inside a script, waits for it to end.
        if (player_ && !closing_)
            player_->close();
        else
            close();
        return 0;
    default: break;
    }
    return DefWindowProcW(hwnd_, message, w, l);
}

bool MenuWindow::handleMouse(UINT message, POINT at)
{
    switch (message) {
    case WM_MOUSEMOVE: mouseMove(at); return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: mouseDown(at); return true;
    case WM_LBUTTONUP: mouseUp(at); return true;
    case WM_MOUSELEAVE:
        tracking_ = false;
        // A box a script opened (a hover message, say) took the pointer but
        // the user did not leave the button: closed with Enter, the next
        // click on it is a click, not a new entry.
        if (boxesOpen_ > 0)
            return true;
        if (!pressed_)
            hover(std::nullopt);
        if (player_)
            player_->pointerLeavesBackground();
        return true;
    case WM_CAPTURECHANGED:
        // A box opened while a button was held: the button is let go outside.
        if (pressed_) {
            const std::size_t i = *pressed_;
            pressed_.reset();
            if (player_)
                player_->releaseButton(i, false);
        }
        return false;
    default: return false;
    }
}

void MenuWindow::hover(std::optional<std::size_t> button)
{
    if (button == hovered_ || !player_)
        return;
    if (hovered_)
        player_->pointerLeavesButton(*hovered_);
    hovered_ = button;
    if (button)
        player_->pointerEntersButton(*button);
}

void MenuWindow::mouseMove(POINT at)
{
    if (!tracking_) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, hwnd_, 0};
        tracking_ = TrackMouseEvent(&track);
    }
    // A held button keeps the pointer until it is let go.
    if (pressed_ || !player_)
        return;
    const std::optional<std::size_t> over = buttonAt(at);
    hover(over);
    if (!over && player_)
        player_->pointerOverBackground();
}

void MenuWindow::mouseDown(POINT at)
{
    const std::optional<std::size_t> over = buttonAt(at);
    if (over && player_) {
        hover(over);
        pressed_ = over;
        SetCapture(hwnd_);
        player_->pressButton(*over);
        return;
    }
    if (window_.fullScreen || !player_)
        return;
    // A window without title bar moves when its background is dragged.
    RECT before{};
    GetWindowRect(hwnd_, &before);
    ReleaseCapture();
    SendMessageW(hwnd_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
    RECT after{};
    GetWindowRect(hwnd_, &after);
    if (player_ && !closing_ && (after.left != before.left || after.top != before.top))
        player_->windowMoved(int(std::lround(after.left / scale_)), int(std::lround(after.top / scale_)));
}

void MenuWindow::mouseUp(POINT at)
{
    if (!pressed_)
        return;
    const std::size_t i = *pressed_;
    pressed_.reset();
    ReleaseCapture();
    const RECT r = buttonRect(i);
    if (player_)
        player_->releaseButton(i, PtInRect(&r, at) != 0);
    if (!closing_)
        mouseMove(at);
}

void MenuWindow::contextMenu(POINT screenAt)
{
    if (!player_)
        return;
    const std::vector<std::string> entries = player_->contextMenuEntries();
    if (entries.empty())
        return;
    HMENU menu = CreatePopupMenu();
    for (std::size_t i = 0; i < entries.size(); ++i)
        AppendMenuW(menu, MF_STRING, UINT_PTR(i + 1), widen(entries[i]).c_str());
    const int chosen = int(TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_NONOTIFY, screenAt.x, screenAt.y,
                                          0, hwnd_, nullptr));
    DestroyMenu(menu);
    if (chosen > 0 && player_)
        player_->chooseContextEntry(std::size_t(chosen - 1));
}

bool MenuWindow::setCursor(HWND over)
{
    if (const TextScene* text = texts_.sceneOf(over)) {
        // Over a text box the pointer has left the background.
        if (player_)
            player_->pointerLeavesBackground();
        SetCursor(cursors_.cursorFor(pointerOver(window_, text->cursor, false), text->locked ? IDC_ARROW : IDC_IBEAM));
        return true;
    }
    if (over != hwnd_)
        return false;
    POINT at{};
    GetCursorPos(&at);
    ScreenToClient(hwnd_, &at);
    const std::optional<std::size_t> button = pressed_ ? pressed_ : buttonAt(at);
    const PointerShape shape =
        button ? pointerOver(window_, buttons_[*button].cursor, true) : pointerOver(window_, window_.cursor, false);
    SetCursor(cursors_.cursorFor(shape, IDC_ARROW));
    return true;
}

}  // namespace qor::player
