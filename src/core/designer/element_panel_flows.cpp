#include "core/designer/element_panel_flows.h"

#include <array>

#include "core/designer/designer.h"
#include "core/designer/designer_messages.h"
#include "core/scripting/script_slots.h"
#include "text/numbers.h"

namespace qor {
namespace {

constexpr std::array<const char*, 3> kImageTitles = {"Image normale", "Image au survol", "Image clique"};
constexpr std::string_view kSoundFilter = "Son WAV seulement | *.wav";
constexpr std::string_view kMediaFilter = "Fichier multimédia (*.*) | *.*";

bool isButtonNumber(int n)
{
    return n >= 1 && n <= MenuProject::kLastButtonSlot;
}

// The four prompts of a position dialog: axis, element, unit.
std::string positionPrompt(char axis, bool text, bool pixels)
{
    return std::string("Entrez la nouvelle position ") + axis + (text ? " du texte" : " du bouton") +
           (pixels ? " (en pixel) :" : " :");
}

}  // namespace

void ElementPanelFlows::showFields()
{
    ctx_.v().showButtonFields(ctx_.buttonFields);
}

void ElementPanelFlows::chooseImage(ButtonImage which)
{
    const std::size_t i = std::size_t(which);
    if (auto chosen = askImage(ctx_.ports.dialogs, kImageTitles[i]))
        ctx_.buttonFields.images[i] = *chosen;
    storeImage(which);
    showFields();
}

void ElementPanelFlows::storeImage(ButtonImage which)
{
    const int n = ctx_.selection.currentButton;
    if (!isButtonNumber(n))
        return;
    MenuButton& b = ctx_.project.button(n);
    const std::string& path = ctx_.buttonFields.images[std::size_t(which)];
    switch (which) {
    case ButtonImage::Normal:
        b.normalImage = path;
        // A picture that cannot be read leaves the button without one.
        if (!ctx_.ports.pictures.loadButtonImage(n, ctx_.project.resolve(path)))
            (void)ctx_.ports.pictures.loadButtonImage(n, "");
        break;
    case ButtonImage::Hover: b.hoverImage = path; break;
    case ButtonImage::Pressed: b.pressedImage = path; break;
    }
}

void ElementPanelFlows::chooseSound(bool click)
{
    if (auto path = askFile(ctx_.ports.dialogs, click ? "Son 'clique'..." : "Son 'survol'...",
                            std::string(kSoundFilter)))
        setSound(click, *path);
}

// One sound for every button: the project's, which each button panel shows.
void ElementPanelFlows::setSound(bool click, const std::string& path)
{
    (click ? ctx_.project.clickSound : ctx_.project.hoverSound) = path;
    (click ? ctx_.buttonFields.clickSound : ctx_.buttonFields.hoverSound) = path;
    showFields();
}

void ElementPanelFlows::editHoverScript()
{
    ctx_.ports.scriptEditor.open(ScriptSlot::ButtonHover, ctx_.selection.currentButton);
}

void ElementPanelFlows::editButtonScript()
{
    ctx_.ports.scriptEditor.open(ScriptSlot::Button, ctx_.selection.currentButton);
}

void ElementPanelFlows::mediaTyped(const std::string& text)
{
    ctx_.buttonFields.media = text;
    if (isButtonNumber(ctx_.selection.currentButton))
        ctx_.project.button(ctx_.selection.currentButton).action = text;
}

void ElementPanelFlows::locateMedia(MediaLocation where)
{
    const auto chosen = askFile(ctx_.ports.dialogs, "Recherche d'un fichier multimédia...", std::string(kMediaFilter));
    if (!chosen)
        return;
    std::string folders;
    if (where == MediaLocation::CdFolders)
        folders = ctx_.ports.dialogs.inputBox(std::string(kMediaFoldersPrompt), "", "");
    if (auto field = mediaFieldFor(where, *chosen, folders)) {
        mediaTyped(*field);
        showFields();
    }
}

void ElementPanelFlows::showMediaHelp()
{
    ctx_.ports.dialogs.message(mediaFileHelpMessage());
}

void ElementPanelFlows::transparencyTicked(bool ticked)
{
    ctx_.buttonFields.transparent = ticked;
    const int n = ctx_.selection.currentButton;
    if (!isButtonNumber(n))
        return;
    MenuButton& b = ctx_.project.button(n);
    b.transparent = ticked;
    b.transparentColor = ctx_.buttonFields.transparentColor;
}

void ElementPanelFlows::chooseTransparentColour()
{
    const auto chosen = ctx_.ports.dialogs.pickColour(ctx_.buttonFields.transparentColor);
    if (!chosen)
        return;
    ctx_.buttonFields.transparentColor = *chosen;
    showFields();
    transparencyTicked(ctx_.buttonFields.transparent);
}

void ElementPanelFlows::quickPreview()
{
    const int n = ctx_.selection.currentButton;
    if (isButtonNumber(n) && ctx_.project.button(n).transparent && ctx_.baker)
        ctx_.baker->bakeButton(n);
}

void ElementPanelFlows::showTransparencyInfo()
{
    ctx_.ports.dialogs.message(transparencyInfoMessage());
}

std::optional<double> ElementPanelFlows::askCoordinate(const std::string& prompt, double current, double ratio)
{
    // In pixels the proposal and the answer are whole pixels; in twips the
    // ratio is 1 and the answer is read as it stands.
    const std::string proposal =
        ratio == 1 ? numberText(float(current)) : std::to_string(pixelDefault(current, ratio));
    const std::string answer = ctx_.ports.dialogs.inputBox(prompt, "", proposal);
    const PositionAnswer read = readPositionAnswer(answer, ratio == 1 ? ctx_.screen().twipsPerPixelX : 1);
    if (read.kind == PositionAnswer::Kind::Invalid)
        ctx_.ports.dialogs.message(invalidPositionMessage());
    if (read.kind != PositionAnswer::Kind::Value)
        return std::nullopt;
    return read.value * ratio;
}

void ElementPanelFlows::movePosition(bool text, bool pixels)
{
    const int n = text ? ctx_.selection.currentText : ctx_.selection.currentButton;
    if (text ? (n < 1 || n > ctx_.project.textCount()) : !isButtonNumber(n))
        return;
    float& left = text ? ctx_.project.text(n).left : ctx_.project.button(n).left;
    float& top = text ? ctx_.project.text(n).top : ctx_.project.button(n).top;
    const ScreenMetrics screen = ctx_.screen();
    const auto x = askCoordinate(positionPrompt('X', text, pixels), left, pixels ? screen.twipsPerPixelX : 1);
    if (!x)
        return;
    const auto y = askCoordinate(positionPrompt('Y', text, pixels), top, pixels ? screen.twipsPerPixelY : 1);
    if (!y)
        return;
    left = float(*x);
    top = float(*y);
    if (text)
        ctx_.v().showText(n);
    else
        ctx_.v().placeButton(n);
    designer_.drawHandles();
}

TextFields textFieldsOf(const MenuText& t)
{
    return {t.backColor, t.foreColor, numberText(t.width), numberText(t.height), t.showsScrollBar(), t.isLocked()};
}

MenuText* ElementPanelFlows::currentText()
{
    const int n = ctx_.selection.currentText;
    return n >= 1 && n <= ctx_.project.textCount() ? &ctx_.project.text(n) : nullptr;
}

void ElementPanelFlows::textChanged(MenuText& t)
{
    ctx_.v().showText(t.number);
    setFilling(true);
    ctx_.v().showTextFields(textFieldsOf(t));
    setFilling(false);
}

void ElementPanelFlows::chooseTextColour(bool back)
{
    MenuText* t = currentText();
    if (!t)
        return;
    Colour& field = back ? t->backColor : t->foreColor;
    if (auto colour = ctx_.ports.dialogs.pickColour(field)) {
        field = *colour;
        textChanged(*t);
    }
}

void ElementPanelFlows::chooseFont()
{
    MenuText* t = currentText();
    if (!t)
        return;
    const auto chosen = ctx_.ports.dialogs.pickFont(fontOf(*t));
    if (!chosen)
        return;
    t->fontName = chosen->name;
    t->fontSize = float(chosen->size);
    t->fontBold = chosen->bold;
    t->fontItalic = chosen->italic;
    t->fontStrikethru = chosen->strikethrough;
    t->fontUnderline = chosen->underline;
    ctx_.v().showText(t->number);
}

void ElementPanelFlows::applyTextSize(const std::string& width, const std::string& height)
{
    MenuText* t = currentText();
    if (!t)
        return;
    const auto size = sizeFromFields(width, height, ctx_.screen());
    if (!size) {
        ctx_.ports.dialogs.message(invalidNumbersMessage());
        return;
    }
    t->width = float(size->width);
    t->height = float(size->height);
    ctx_.v().showText(t->number);
    designer_.drawHandles();
}

void ElementPanelFlows::scrollBarClicked(bool scrollBar, bool locked)
{
    // The box shows the bar by writing the settings the text box is drawn from.
    lockClicked(scrollBar, locked);
}

void ElementPanelFlows::lockClicked(bool scrollBar, bool locked)
{
    MenuText* t = currentText();
    if (filling_ || !t)
        return;
    t->settings = std::string(scrollBar ? "1" : "0") + (locked ? "1" : "0");
    ctx_.v().showText(t->number);
}

}  // namespace qor
