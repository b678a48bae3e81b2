#include "core/designer/worksheet_flows.h"

#include <cmath>

#include "core/designer/mouse_position.h"
#include "core/designer/designer.h"
#include "core/designer/element_selector.h"
#include "core/scripting/forbidden_chars.h"
#include "text/numbers.h"

namespace qor {
namespace {

bool isButtonNumber(int n)
{
    return n >= 1 && n <= MenuProject::kLastButtonSlot;
}

// A window shows whole pixels: a size the model holds between two pixels
// is not changed by the window showing it rounded.
bool sameOnScreen(double modelTwips, double shownTwips, double twipsPerPixel)
{
    return std::lround(modelTwips / twipsPerPixel) == std::lround(shownTwips / twipsPerPixel);
}

}  // namespace

WorksheetFlows::Display WorksheetFlows::display(int number) const
{
    const auto it = displays_.find(number);
    return it == displays_.end() ? Display::Normal : it->second;
}

void WorksheetFlows::clear()
{
    displays_.clear();
    pointerPressed_ = false;
}

bool WorksheetFlows::validText(int number) const
{
    return number >= 1 && number <= ctx_.project.textCount();
}

TwipsPoint WorksheetFlows::originOf(WorksheetTarget target) const
{
    switch (target.kind) {
    case WorksheetTarget::Kind::Button:
        if (isButtonNumber(target.number))
            return {ctx_.project.button(target.number).left, ctx_.project.button(target.number).top};
        break;
    case WorksheetTarget::Kind::Text:
        if (validText(target.number))
            return {ctx_.project.text(target.number).left, ctx_.project.text(target.number).top};
        break;
    case WorksheetTarget::Kind::Background: break;
    }
    return {};
}

bool WorksheetFlows::pressButton(int number, bool modifier, TwipsPoint offset)
{
    if (!isButtonNumber(number))
        return false;
    const MenuButton& b = ctx_.project.button(number);
    designer_.selectEntry(buttonEntry(number, b.kind));
    if (modifier) {
        grab_ = offset;
        return true;
    }
    const std::string pressed = ctx_.project.resolve(b.pressedImage);
    if (fileExists(pressed))
        (void)ctx_.ports.pictures.loadButtonImage(number, pressed);
    displays_[number] = Display::Pressed;
    pointerPressed_ = true;
    return false;
}

void WorksheetFlows::releaseButton(bool modifier)
{
    if (!modifier)
        pointerPressed_ = false;
}

bool WorksheetFlows::pressText(int number, bool modifier, bool rightButton, TwipsPoint offset)
{
    designer_.selectEntry(textEntry(number));
    if (rightButton)
        ctx_.v().setTextEnabled(number, false);
    if (modifier)
        grab_ = offset;
    return modifier;
}

void WorksheetFlows::clickBackground()
{
    designer_.select(0);
}

void WorksheetFlows::previewHover(int number)
{
    if (!pointerPressed_ && display(number) != Display::Hover) {
        const std::string hover = ctx_.project.resolve(ctx_.project.button(number).hoverImage);
        if (fileExists(hover))
            (void)ctx_.ports.pictures.loadButtonImage(number, hover);
        displays_[number] = Display::Hover;
    }
    showNormalImages(number);
}

void WorksheetFlows::pointerMoved(WorksheetTarget target, TwipsPoint offset, bool onlyRightButton)
{
    const bool overElement = target.kind != WorksheetTarget::Kind::Background;
    const TwipsPoint at = overElement ? pointerOverElement(originOf(target), offset) : offset;
    const ScreenMetrics screen = ctx_.screen();
    ctx_.v().showMousePosition(
        mousePositionTexts(float(at.x), float(at.y), screen.twipsPerPixelX, screen.twipsPerPixelY));

    if (target.kind == WorksheetTarget::Kind::Button && isButtonNumber(target.number))
        previewHover(target.number);
    else
        showNormalImages(0);

    const int t = ctx_.selection.currentText;
    if (!validText(t) || ctx_.v().textEnabled(t) || !onlyRightButton)
        return;
    MenuText& text = ctx_.project.text(t);
    const auto size = resizedTextSize({text.left, text.top}, at, screen);
    if (!size)
        return;
    text.width = float(size->width);
    text.height = float(size->height);
    ctx_.v().showText(t);
    if (target.kind != WorksheetTarget::Kind::Button)
        ctx_.v().setTextSizeFields(numberText(text.width), numberText(text.height));
}

void WorksheetFlows::releaseOverBackground()
{
    const int t = ctx_.selection.currentText;
    if (validText(t) && !ctx_.v().textEnabled(t)) {
        ctx_.v().setTextEnabled(t, true);
        designer_.drawHandles();
    }
}

void WorksheetFlows::drop(WorksheetTarget dragged, WorksheetTarget target, TwipsPoint offset)
{
    const TwipsPoint to = dropPosition(offset, originOf(target), grab_);
    if (dragged.kind == WorksheetTarget::Kind::Button && isButtonNumber(dragged.number)) {
        MenuButton& b = ctx_.project.button(dragged.number);
        b.left = float(to.x);
        b.top = float(to.y);
        ctx_.v().placeButton(dragged.number);
    } else if (dragged.kind == WorksheetTarget::Kind::Text && validText(dragged.number)) {
        MenuText& t = ctx_.project.text(dragged.number);
        t.left = float(to.x);
        t.top = float(to.y);
        ctx_.v().showText(dragged.number);
    } else {
        return;
    }
    designer_.drawHandles();
}

void WorksheetFlows::deactivated()
{
    showNormalImages(0);
}

void WorksheetFlows::showNormalImages(int except)
{
    for (auto& [number, shown] : displays_) {
        if (number == except || shown == Display::Normal)
            continue;
        if (!designer_.showNormalImage(number))
            return;
        shown = Display::Normal;
    }
}

std::optional<std::string> WorksheetFlows::textTyped(int number, std::string_view content)
{
    if (auto cleaned = withoutForbiddenChars(content)) {
        ctx_.ports.dialogs.message(forbiddenCharMessage());
        return cleaned;
    }
    if (validText(number))
        ctx_.project.text(number).content = std::string(content);
    return std::nullopt;
}

void WorksheetFlows::resized(TwipsSize outer, bool byUser)
{
    if (!stretch_)
        return;
    MenuProject& p = ctx_.project;
    const ScreenMetrics screen = ctx_.screen();
    if (byUser && !sameOnScreen(p.width, outer.width, screen.twipsPerPixelX))
        p.width = float(outer.width);
    if (byUser && !sameOnScreen(p.height, outer.height, screen.twipsPerPixelY))
        p.height = float(outer.height);
    updateCaption();
}

void WorksheetFlows::updateCaption()
{
    const MenuProject& p = ctx_.project;
    const ScreenMetrics screen = ctx_.screen();
    const TwipsSize outer = ctx_.v().worksheetOuterSize();
    ctx_.v().setCaption(worksheetCaption(p.fullScreen, outer, screen, ctx_.ports.phrases));
    ctx_.v().setWindowSizeFields(numberText(float(outer.width)), numberText(float(outer.height)), !p.fullScreen);
}

}  // namespace qor
