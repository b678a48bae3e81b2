#include "player/win32/text_boxes.h"

#include <algorithm>

#include "player/core/pixels.h"
#include "player/win32/colours.h"
#include "player/win32/wide.h"

namespace qor::player {
namespace {

// By the scene's alignment number: left, right, centred.
constexpr DWORD kAlignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
constexpr DWORD kAlignmentBits = ES_LEFT | ES_RIGHT | ES_CENTER;
constexpr double kDefaultFontSize = 8.25;

DWORD styleOf(const TextScene& t)
{
    const DWORD align = t.alignment >= 0 && t.alignment <= 2 ? kAlignments[t.alignment] : ES_LEFT;
    return WS_CHILD | WS_BORDER | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | align |
           (t.scrollBar ? WS_VSCROLL : 0) | (t.locked ? ES_READONLY : 0) | (t.visible ? WS_VISIBLE : 0);
}

// The font at the window's scale: drawn at that size, text stays crisp and
// keeps its place in its box, which is scaled alike.
HFONT fontOf(const TextScene& t, double scale)
{
    const double points = t.fontSize > 0 && t.fontSize < 1000 ? t.fontSize : kDefaultFontSize;
    const int height = -int(points * 96 * scale / 72.0 + 0.5);
    return CreateFontW(height, 0, 0, 0, t.fontBold ? FW_BOLD : FW_NORMAL, t.fontItalic, t.fontUnderline,
                       t.fontStrikethru, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, widen(t.fontName).c_str());
}

std::wstring windowText(HWND window)
{
    std::wstring text(std::size_t(GetWindowTextLengthW(window)), L'\0');
    if (!text.empty())
        GetWindowTextW(window, text.data(), int(text.size() + 1));
    return text;
}

}  // namespace

TextBoxes::TextBoxes(HWND parent, Edited edited) : parent_(parent), edited_(std::move(edited)) {}

TextBoxes::~TextBoxes()
{
    for (Box& box : boxes_)
        release(box);
    releaseShared();
}

void TextBoxes::release(Box& box)
{
    if (box.window)
        DestroyWindow(box.window);
    box = Box{box.scene};
}

void TextBoxes::releaseShared()
{
    for (auto& [key, f] : fonts_)
        DeleteObject(f);
    fonts_.clear();
    for (auto& [colour, b] : brushes_)
        DeleteObject(b);
    brushes_.clear();
}

HFONT TextBoxes::font(const TextScene& t)
{
    const FontKey key{t.fontName, t.fontSize, t.fontBold, t.fontItalic, t.fontUnderline, t.fontStrikethru};
    auto [at, added] = fonts_.try_emplace(key, nullptr);
    if (added)
        at->second = fontOf(t, 15 / screen_.twipsPerPixelY);
    return at->second;
}

HBRUSH TextBoxes::brush(COLORREF colour)
{
    auto [at, added] = brushes_.try_emplace(colour, nullptr);
    if (added)
        at->second = CreateSolidBrush(colour);
    return at->second;
}

void TextBoxes::reset(const std::vector<TextScene>& texts, const ScreenInfo& screen)
{
    for (Box& box : boxes_)
        release(box);
    releaseShared();
    screen_ = screen;
    boxes_.assign(texts.size(), Box{});
    for (std::size_t i = 0; i < texts.size(); ++i)
        boxes_[i].scene = texts[i];
    made_ = 0;
}

void TextBoxes::rescale(const ScreenInfo& screen)
{
    if (screen.twipsPerPixelX == screen_.twipsPerPixelX && screen.twipsPerPixelY == screen_.twipsPerPixelY)
        return;
    // The old fonts go once no box uses them any more.
    std::map<FontKey, HFONT> old;
    old.swap(fonts_);
    screen_ = screen;
    for (std::size_t i = 0; i < made_; ++i)
        if (boxes_[i].window)
            present(boxes_[i]);
    for (auto& [key, f] : old)
        DeleteObject(f);
}

bool TextBoxes::createSome(std::size_t count)
{
    const std::size_t end = std::min(boxes_.size(), made_ + count);
    for (; made_ < end; ++made_) {
        Box& box = boxes_[made_];
        box.window = CreateWindowExW(0, L"EDIT", L"", styleOf(box.scene), 0, 0, 0, 0, parent_, nullptr,
                                     GetModuleHandleW(nullptr), nullptr);
        if (!box.window)
            continue;
        SetWindowLongPtrW(box.window, GWLP_USERDATA, LONG_PTR(made_ + 1));
        SendMessageW(box.window, EM_SETLIMITTEXT, 0, 0);
        // Buttons are drawn on the window itself: the boxes go below nothing.
        present(box);
    }
    return made_ < boxes_.size();
}

void TextBoxes::change(std::size_t index, const TextScene& text)
{
    if (index >= boxes_.size())
        return;
    boxes_[index].scene = text;
    if (boxes_[index].window)
        present(boxes_[index]);
}

const TextScene* TextBoxes::sceneOf(HWND edit) const
{
    const std::optional<std::size_t> i = indexOf(edit);
    return i ? &boxes_[*i].scene : nullptr;
}

std::optional<std::size_t> TextBoxes::indexOf(HWND edit) const
{
    if (!edit || GetParent(edit) != parent_)
        return std::nullopt;
    const auto tag = std::size_t(GetWindowLongPtrW(edit, GWLP_USERDATA));
    if (tag == 0 || tag > boxes_.size() || boxes_[tag - 1].window != edit)
        return std::nullopt;
    return tag - 1;
}

void TextBoxes::present(Box& box)
{
    const TextScene& t = box.scene;
    const std::wstring text = withCrLf(widen(t.text));
    setting_ = true;
    if (windowText(box.window) != text)
        SetWindowTextW(box.window, text.c_str());
    setting_ = false;
    const auto style = DWORD(GetWindowLongPtrW(box.window, GWL_STYLE));
    const DWORD wanted = styleOf(t);
    if ((style & (kAlignmentBits | WS_VSCROLL)) != (wanted & (kAlignmentBits | WS_VSCROLL)))
        SetWindowLongPtrW(box.window, GWL_STYLE, LONG_PTR((style & ~(kAlignmentBits | WS_VSCROLL)) |
                                                          (wanted & (kAlignmentBits | WS_VSCROLL))));
    SendMessageW(box.window, EM_SETREADONLY, t.locked, 0);
    box.font = font(t);
    SendMessageW(box.window, WM_SETFONT, WPARAM(box.font), FALSE);
    box.brush = brush(toColorRef(t.backColor));
    SetWindowPos(box.window, nullptr, twipsToPixels(t.left, screen_.twipsPerPixelX),
                 twipsToPixels(t.top, screen_.twipsPerPixelY),
                 std::max(0, twipsToPixels(t.width, screen_.twipsPerPixelX)),
                 std::max(0, twipsToPixels(t.height, screen_.twipsPerPixelY)),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | (t.visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    InvalidateRect(box.window, nullptr, TRUE);
}

HBRUSH TextBoxes::colours(HWND edit, HDC dc)
{
    const std::optional<std::size_t> i = indexOf(edit);
    if (!i)
        return nullptr;
    const Box& box = boxes_[*i];
    SetTextColor(dc, toColorRef(box.scene.foreColor));
    SetBkColor(dc, toColorRef(box.scene.backColor));
    return box.brush;
}

void TextBoxes::changed(HWND edit)
{
    const std::optional<std::size_t> i = indexOf(edit);
    if (setting_ || !i)
        return;
    std::string text = narrow(windowText(edit));
    boxes_[*i].scene.text = text;
    edited_(*i, std::move(text));
}

}  // namespace qor::player
