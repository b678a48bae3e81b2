#include "core/designer/designer.h"

#include "core/designer/designer_messages.h"
#include "core/designer/element_selector.h"
#include "core/scripting/script_slots.h"

namespace qor {
namespace {

// Shows nothing: the designer before its windows exist, and a core
// without windows (the benchmarks, the shell's tests).
class NoDesignerView final : public DesignerView {
public:
    void resetEntries() override {}
    void addEntry(const std::string&) override {}
    void removeEntry(int) override {}
    void selectEntry(int) override {}
    void createButtonElement(int) override {}
    void placeButton(int) override {}
    void setButtonVisible(int, bool) override {}
    TwipsSize buttonSize(int) override { return {}; }
    void createTextElement(int) override {}
    void showText(int) override {}
    void setTextEnabled(int, bool) override {}
    bool textEnabled(int) override { return true; }
    void bringButtonToFront(int) override {}
    void bringTextToFront(int) override {}
    void showHandles(const std::array<TwipsPoint, 4>&) override {}
    void hideHandles() override {}
    TwipsSize worksheetOuterSize() override { return {}; }
    TwipsSize worksheetInnerSize() override { return {}; }
    void setWorksheetOuterSize(TwipsSize) override {}
    void setCaption(const std::string&) override {}
    TwipsSize backgroundPictureSize() override { return {}; }
    void setBackgroundStretched(bool) override {}
    void setBackgroundColour(Colour) override {}
    void showMousePosition(const std::array<std::string, 4>&) override {}
    void showPanels(const PanelSet&) override {}
    void showWindowFields(const MenuProject&) override {}
    void setWindowSizeFields(const std::string&, const std::string&, bool) override {}
    void setTimerIntervalField(const std::string&) override {}
    void showStartupChoice(StartupChoice, const std::string&, bool) override {}
    void showButtonFields(const ButtonFields&) override {}
    void showTextFields(const TextFields&) override {}
    void setTextSizeFields(const std::string&, const std::string&) override {}
};

NoDesignerView noView;

constexpr int kButtonElementLimit = 100;
constexpr double kNewElementPlace = 200;

}  // namespace

Designer::Designer(MenuProject& project, Selection& selection, DesignerPorts ports)
    : ctx_{project, selection, ports, &noView, {}, false},
      entries_{std::string(kWorksheetEntry)},
      worksheet_(ctx_, *this),
      windowPanel_(ctx_, *this),
      elementPanel_(ctx_, *this),
      outline_(project, ports.dialogs)
{
}

void Designer::setView(DesignerView* view)
{
    ctx_.view = view ? view : &noView;
}

void Designer::resetViews()
{
    entries_.assign(1, std::string(kWorksheetEntry));
    selected_ = 0;
    // The template button, number 0, is current after a reset.
    ctx_.selection.currentButton = 0;
    worksheet_.clear();
    worksheet_.setStretch(true);
    ctx_.ports.pictures.resetViews();
    ctx_.v().resetEntries();
    ctx_.v().hideHandles();
    windowPanel_.showLoadedChoice(StartupChoice::Nothing);
    ctx_.v().showPanels([] { PanelSet p; p.add(PanelId::Window); return p; }());
}

void Designer::setCurrentFolder(const std::string& folder)
{
    ctx_.ports.pictures.setCurrentFolder(folder);
}

Status Designer::loadBackgroundImage(const std::string& path)
{
    return ctx_.ports.pictures.loadBackgroundImage(path);
}

Status Designer::loadButtonImage(int number, const std::string& path)
{
    return ctx_.ports.pictures.loadButtonImage(number, path);
}

void Designer::buttonCreated(int number, const std::string& kind)
{
    addEntry(buttonEntry(number, kind));
    ctx_.ports.pictures.buttonCreated(number, kind);
    ctx_.v().placeButton(number);
    ctx_.v().setButtonVisible(number, true);
}

void Designer::textCreated(int number)
{
    addEntry(textEntry(number));
    ctx_.ports.pictures.textCreated(number);
    ctx_.v().createTextElement(number);
    ctx_.v().showText(number);
}

void Designer::setLoading(bool loading)
{
    ctx_.loading = loading;
    ctx_.ports.pictures.setLoading(loading);
}

void Designer::showStartupChoice(StartupChoice choice)
{
    ctx_.ports.pictures.showStartupChoice(choice);
    windowPanel_.showLoadedChoice(choice);
}

void Designer::projectReplaced()
{
    ctx_.v().setBackgroundColour(ctx_.project.backgroundColor);
    ctx_.v().showWindowFields(ctx_.project);
    worksheet_.updateCaption();
}

void Designer::runToolbox(ToolboxCommand command)
{
    switch (command) {
    case ToolboxCommand::Multimedia: createButton(button_kind::video); break;
    case ToolboxCommand::Quit: createButton(button_kind::quit); break;
    case ToolboxCommand::CodeScript: createButton(button_kind::code); break;
    case ToolboxCommand::CreateText: createText(); break;
    case ToolboxCommand::Transparency: outline_.popUp(); break;
    case ToolboxCommand::ShapeEditor:
        if (shape_)
            shape_->open();
        break;
    }
}

void Designer::addEntry(std::string entry)
{
    ctx_.v().addEntry(entry);
    entries_.push_back(std::move(entry));
}

void Designer::removeEntry(std::string_view prefix, int number)
{
    const int index = entryToRemove(entries_, prefix, number);
    if (index < 0)
        return;
    entries_.erase(entries_.begin() + index);
    ctx_.v().removeEntry(index);
    if (selected_ >= index && selected_ > 0)
        --selected_;
}

void Designer::showElementOnTop(bool button, int number)
{
    if (button) {
        ctx_.v().bringButtonToFront(number);
        ctx_.v().setButtonVisible(number, true);
    } else {
        ctx_.v().bringTextToFront(number);
        ctx_.v().showText(number);
    }
}

void Designer::createButton(std::string_view kind)
{
    MenuProject& p = ctx_.project;
    const int n = p.buttonElementCount();
    if (n >= kButtonElementLimit) {
        ctx_.ports.dialogs.message(tooManyButtonsMessage(ctx_.ports.phrases));
        return;
    }
    ctx_.selection.currentButton = n;
    addEntry(buttonEntry(n, kind));
    (void)p.addButton();
    MenuButton& b = p.button(n);
    b.left = b.top = kNewElementPlace;
    ctx_.v().createButtonElement(n);
    ctx_.v().placeButton(n);
    for (ButtonImage which : {ButtonImage::Normal, ButtonImage::Hover, ButtonImage::Pressed})
        elementPanel_.chooseImage(which);
    b.kind = std::string(kind);
    if (kind == button_kind::code)
        b.action = buttonTemplate(n);
    showElementOnTop(true, n);
    select(int(entries_.size()) - 1);
}

void Designer::createText()
{
    MenuProject& p = ctx_.project;
    const int n = p.textElementCount();
    auto created = p.addText();
    // Numbers are 16-bit: past 32767 no text box can be numbered.
    if (!created)
        return;
    ctx_.selection.currentText = n;
    addEntry(textEntry(n));
    MenuText& t = p.text(n);
    t.left = t.top = kNewElementPlace;
    t.content = newTextContent(n, ctx_.ports.phrases);
    ctx_.v().createTextElement(n);
    showElementOnTop(false, n);
    select(int(entries_.size()) - 1);
}

void Designer::deleteButton()
{
    const int n = ctx_.selection.currentButton;
    if (n == -1 || !selectedText().starts_with("Bou"))
        return;
    if (ctx_.ports.dialogs.message(deleteButtonQuestion(n, ctx_.ports.phrases)) != Answer::Yes)
        return;
    ctx_.v().setButtonVisible(n, false);
    if (n >= 1 && n <= MenuProject::kLastButtonSlot)
        ctx_.project.deleteButton(n);
    removeEntry("Bouton ", n);
    ctx_.selection.currentButton = -1;
    select(0);
}

void Designer::deleteText()
{
    const int n = ctx_.selection.currentText;
    if (n < 1 || n > ctx_.project.textCount())
        return;
    if (ctx_.ports.dialogs.message(deleteTextQuestion(n)) != Answer::Yes)
        return;
    ctx_.project.deleteText(n);
    ctx_.v().showText(n);
    removeEntry("Texte ", n);
    ctx_.selection.currentText = -1;
    select(0);
}

void Designer::select(int index)
{
    if (index < 0 || index >= int(entries_.size()))
        return;
    selected_ = index;
    ctx_.v().selectEntry(index);
    refresh();
}

bool Designer::selectEntry(std::string_view entry)
{
    for (std::size_t i = 0; i < entries_.size(); ++i)
        if (entries_[i] == entry) {
            select(int(i));
            return true;
        }
    return false;
}

void Designer::refresh()
{
    PanelSet panels;
    const ParsedEntry entry = parseEntry(selectedText());
    switch (entry.kind) {
    case EntryKind::Worksheet:
        panels.add(PanelId::Window);
        ctx_.v().hideHandles();
        break;
    case EntryKind::Button: refreshButton(entry, panels); break;
    case EntryKind::Text: refreshText(entry.number, panels); break;
    case EntryKind::Other: break;
    }
    ctx_.v().showPanels(panels);
    ctx_.ports.scriptEditor.hide();
}

void Designer::refreshButton(const ParsedEntry& entry, PanelSet& panels)
{
    const int n = entry.number;
    if (n < 1 || n > MenuProject::kLastButtonSlot)
        return;
    ctx_.selection.currentButton = n;
    const MenuButton& b = ctx_.project.button(n);
    ButtonFields& f = ctx_.buttonFields;
    f.images = {b.normalImage, b.hoverImage, b.pressedImage};
    f.clickSound = ctx_.project.clickSound;
    f.hoverSound = ctx_.project.hoverSound;
    f.transparent = b.transparent;
    f.transparentColor = b.transparentColor;
    panels.add(PanelId::Button);
    if (entry.subPanel == ButtonPanelKind::Media) {
        panels.add(PanelId::Media);
        f.media = b.action;
    } else if (entry.subPanel == ButtonPanelKind::Code) {
        panels.add(PanelId::Code);
        ctx_.ports.scriptEditor.load(ScriptSlot::Button, n);
    }
    ctx_.v().showButtonFields(f);
    drawHandles();
}

void Designer::refreshText(int n, PanelSet& panels)
{
    if (n < 1 || n > ctx_.project.textCount())
        return;
    ctx_.selection.currentText = n;
    // Selecting a text box again ends its resize.
    ctx_.v().setTextEnabled(n, true);
    const MenuText& t = ctx_.project.text(n);
    elementPanel_.setFilling(true);
    ctx_.v().showTextFields(textFieldsOf(t));
    elementPanel_.setFilling(false);
    panels.add(PanelId::Text);
    drawHandles();
}

void Designer::drawHandles()
{
    if (!ctx_.ports.showHandles)
        return;
    ElementBox box;
    const int b = ctx_.selection.currentButton;
    const int t = ctx_.selection.currentText;
    if (selectedText().starts_with("Bou")) {
        if (b < 1 || b > MenuProject::kLastButtonSlot)
            return;
        const TwipsSize size = ctx_.v().buttonSize(b);
        box = {ctx_.project.button(b).left, ctx_.project.button(b).top, size.width, size.height};
    } else {
        if (t < 1 || t > ctx_.project.textCount())
            return;
        const MenuText& text = ctx_.project.text(t);
        box = {text.left, text.top, text.width, text.height};
    }
    const ScreenMetrics screen = ctx_.screen();
    ctx_.v().hideHandles();
    ctx_.v().showHandles(handlePositions(
        box, {kHandlePixels * screen.twipsPerPixelX, kHandlePixels * screen.twipsPerPixelY}));
}

bool Designer::showNormalImage(int number)
{
    const MenuButton& b = ctx_.project.button(number);
    return bool(ctx_.ports.pictures.loadButtonImage(number, ctx_.project.resolve(b.normalImage)));
}

}  // namespace qor
