// The scene a menu starts with, from its compiled data.
#include <algorithm>
#include <cmath>

#include "player/core/pixels.h"
#include "player/core/player.h"
#include "text/numbers.h"

namespace qor::player {
namespace {

// The timer's period as typed in the editor: a whole number of
// milliseconds, anything else stops the timer.
long timerInterval(std::string_view typed)
{
    if (!isNumeric(typed))
        return 0;
    const double ms = readNumber(typed);
    if (ms != std::floor(ms) || ms < 0 || ms > 1e9)
        return 0;
    return long(ms);
}

// A window never outgrows the screen, as the window system would have it. A
// size that is not positive cannot be shown: the editor's default is taken.
double clampedSize(double twips, double defaultTwips, int screenPixels, double twipsPerPixel)
{
    if (!(twips > 0))
        twips = defaultTwips;
    const int pixels = std::clamp(twipsToPixels(twips, twipsPerPixel), 1, std::max(1, screenPixels));
    return pixels * twipsPerPixel;
}

WindowScene windowFrom(const MenuProject& p, const MenuDataInfo& info, const ScreenInfo& screen)
{
    WindowScene w;
    w.caption = info.projectName;
    w.fullScreen = p.fullScreen;
    if (p.fullScreen) {
        w.width = screen.width * screen.twipsPerPixelX;
        w.height = screen.height * screen.twipsPerPixelY;
    } else {
        const MenuProject defaults;
        const bool cut = !screen.reducesWholeWindow;
        w.width = clampedSize(p.width, defaults.width, cut ? screen.width : kMaxPixels, screen.twipsPerPixelX);
        w.height = clampedSize(p.height, defaults.height, cut ? screen.height : kMaxPixels, screen.twipsPerPixelY);
    }
    // Centred on the screen, on whole pixels.
    w.left = std::floor((screen.width - w.width / screen.twipsPerPixelX) / 2) * screen.twipsPerPixelX;
    w.top = std::floor((screen.height - w.height / screen.twipsPerPixelY) / 2) * screen.twipsPerPixelY;
    w.backColor = std::uint32_t(p.backgroundColor);
    w.borderVisible = p.border;
    w.shape = outlineInPixels(p.shapePoints, screen.twipsPerPixelX, screen.twipsPerPixelY);
    w.handOverButtons = p.handCursor;
    w.contextMenu = p.contextMenu;
    return w;
}

TextScene textFrom(const MenuText& t)
{
    TextScene s;
    s.number = t.number;
    s.text = t.content;
    s.fontName = t.fontName;
    s.fontSize = t.fontSize;
    s.fontBold = t.fontBold;
    s.fontItalic = t.fontItalic;
    s.fontStrikethru = t.fontStrikethru;
    s.fontUnderline = t.fontUnderline;
    s.foreColor = std::uint32_t(t.foreColor);
    s.backColor = std::uint32_t(t.backColor);
    s.left = t.left;
    s.top = t.top;
    s.width = t.width;
    s.height = t.height;
    s.scrollBar = t.showsScrollBar();
    s.locked = t.isLocked();
    return s;
}

}  // namespace

void Player::buildScene()
{
    const MenuProject& p = menu_.project;
    scene_.window = windowFrom(p, menu_.info, screen_);
    scene_.window.backgroundImage = dataFile(p.backgroundImage);
    scene_.window.transparencyImage = dataFile(p.transparencyImage);
    for (int n = 1; n < p.buttonElementCount() && n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& data = p.button(n);
        if (data.kind.empty() || data.kind == button_kind::deleted)
            continue;
        ButtonScene b;
        b.number = data.number;
        b.left = data.left;
        b.top = data.top;
        b.normalImage = dataFile(data.normalImage);
        b.hoverImage = dataFile(data.hoverImage);
        b.pressedImage = dataFile(data.pressedImage);
        scene_.buttons.push_back(std::move(b));
        buttons_.push_back(&data);
    }
    for (int n = 1; n <= p.textCount(); ++n)
        if (p.text(n).isLive())
            scene_.texts.push_back(textFrom(p.text(n)));
    scene_.timer.enabled = p.timerEnabled;
    scene_.timer.interval = timerInterval(p.timerInterval);
}

}  // namespace qor::player
