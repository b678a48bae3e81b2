// "Etape 3" and "Etape 4": making the buttons and giving them a function.

#include <array>
#include <utility>

#include "core/wizard/button_list.h"
#include "core/wizard/creation_wizard.h"
#include "core/wizard/wizard_dialogues.h"
#include "core/wizard/wizard_messages.h"
#include "core/wizard/wizard_steps.h"
#include "text/numbers.h"

namespace qor {
namespace {

constexpr std::array<std::string_view, 3> kImageRows = {"Quand bouton normal :", "Quand survolé  :",
                                                          "Quand cliqué :"};
constexpr std::array<std::string_view, 3> kImageHandlers = {"Command12_Click", "Command13_Click",
                                                              "Command15_Click"};

}  // namespace

void CreationWizard::addButton()
{
    form_.captionField.clear();
    WizardButton fresh;
    fresh.backColor = form_.backgroundIsImage ? 0x00FFFFFF : form_.backgroundColor;
    form_.current = fresh;
    form_.addFrameVisible = true;
    form_.addType = ButtonType::None;
    view_.refresh();
}

void CreationWizard::chooseButtonType(ButtonType type)
{
    form_.addType = type;
    view_.refresh();
}

void CreationWizard::backToTypeChoice()
{
    form_.addType = ButtonType::None;
    view_.refresh();
}

void CreationWizard::cancelAdd()
{
    form_.addFrameVisible = false;
    view_.refresh();
}

void CreationWizard::setCaption(const std::string& text)
{
    form_.captionField = text;
    form_.current.caption = text;
    view_.refresh();
}

void CreationWizard::pickTextColor()
{
    pickColour(form_.current.textColor);
}

void CreationWizard::pickBackColor()
{
    pickColour(form_.current.backColor);
}

void CreationWizard::pickFont()
{
    WizardButton& c = form_.current;
    const auto chosen = ports_.dialogs.pickFont(buttonFont(c, ButtonState::Normal));
    if (!chosen)
        return;
    // The size is a whole number of points that must fit the entry.
    auto size = toInt16(chosen->size);
    if (!size) {
        say(wizard_message::dialogError(size.error(), "Command8_Click"));
        return;
    }
    c.fontName = chosen->name;
    c.fontSize = *size;
    c.bold = chosen->bold;
    c.italic = chosen->italic;
    c.strikethrough = chosen->strikethrough;
    c.underline = chosen->underline;
    view_.refresh();
}

void CreationWizard::setTransparentBackground(bool on)
{
    WizardButton& c = form_.current;
    if (on && c.textColor == c.backColor) {
        refuse(wizard_message::Refusal::SameColours);
        on = false;
    }
    c.transparentBackground = on;
    view_.refresh();
}

void CreationWizard::showTextPreview()
{
    form_.preview = {WizardPreview::Kind::Text, true, {}, ButtonState::Normal};
    view_.refresh();
}

void CreationWizard::pickGraphicImage(GraphicImage which)
{
    const auto row = std::size_t(which);
    std::string& path = form_.graphicImages[row];
    if (auto chosen = pickImage(std::string(kImageRows[row]), path, kImageHandlers[row]))
        path = *chosen;
    view_.refresh();
}

void CreationWizard::showGraphicPreview()
{
    WizardButton files;
    files.isText = false;
    files.normalImage = form_.graphicImages[0];
    files.hoverImage = form_.graphicImages[1];
    files.pressedImage = form_.graphicImages[2];
    form_.preview = {WizardPreview::Kind::Graphic, false, files, ButtonState::Normal};
    view_.refresh();
}

void CreationWizard::hidePreview()
{
    form_.preview.kind = WizardPreview::Kind::None;
    view_.refresh();
}

bool CreationWizard::previewPointer(PreviewEvent event, bool buttonHeld)
{
    if (form_.preview.kind == WizardPreview::Kind::None)
        return false;
    const auto next = previewStateAfter(form_.preview.state, event, buttonHeld);
    if (!next)
        return false;
    form_.preview.state = *next;
    return true;
}

void CreationWizard::appendButton(WizardButton entry)
{
    buttons_.push_back(std::move(entry));
    const WizardButton& added = buttons_.back();
    form_.buttonLines.push_back(buttonListLine(int(buttons_.size()), added.isText));
    form_.addFrameVisible = false;
    // The preview showed the button being made; it is made now.
    form_.preview.kind = WizardPreview::Kind::None;
    view_.refresh();
}

void CreationWizard::validateTextButton()
{
    // A caption of blanks only would draw a button nobody can read.
    if (isBlankText(form_.captionField)) {
        refuse(wizard_message::Refusal::MissingCaption);
        return;
    }
    WizardButton entry = form_.current;
    entry.isText = true;
    entry.caption = form_.captionField;
    entry.normalImage.clear();
    entry.hoverImage.clear();
    entry.pressedImage.clear();
    entry.function.clear();
    entry.param1.clear();
    entry.param2.clear();
    appendButton(std::move(entry));
}

void CreationWizard::validateGraphicButton()
{
    const auto& images = form_.graphicImages;
    if (images[0].empty() || images[1].empty() || images[2].empty()) {
        refuse(wizard_message::Refusal::MissingImages);
        return;
    }
    WizardButton entry;
    entry.isText = false;
    entry.normalImage = images[0];
    entry.hoverImage = images[1];
    entry.pressedImage = images[2];
    appendButton(std::move(entry));
}

void CreationWizard::selectButtonLine(int index)
{
    form_.selectedButtonLine = index >= 0 && index < int(form_.buttonLines.size()) ? index : -1;
}

const WizardButton* CreationWizard::entryOfLine(const std::vector<std::string>& lines, int index) const
{
    if (index < 0 || index >= int(lines.size()))
        return nullptr;
    const auto k = buttonNumberOfLine(lines[std::size_t(index)]);
    if (!k || *k < 1 || *k > int(buttons_.size()))
        return nullptr;
    return &buttons_[std::size_t(*k - 1)];
}

WizardButton* CreationWizard::entryOfLine(const std::vector<std::string>& lines, int index)
{
    return const_cast<WizardButton*>(std::as_const(*this).entryOfLine(lines, index));
}

void CreationWizard::deleteSelectedButton()
{
    WizardButton* entry = entryOfLine(form_.buttonLines, form_.selectedButtonLine);
    if (!entry) {
        refuse(wizard_message::Refusal::NoButtonSelected);
        return;
    }
    const int k = *buttonNumberOfLine(form_.buttonLines[std::size_t(form_.selectedButtonLine)]);
    if (ports_.dialogs.message(wizard_message::deleteQuestion(k, view_.caption())) != Answer::Yes)
        return;
    // The entry keeps its place: the other buttons keep their numbers.
    entry->deletedMark = std::string(kDeletedMark);
    form_.buttonLines.erase(form_.buttonLines.begin() + form_.selectedButtonLine);
    form_.selectedButtonLine = -1;
    view_.refresh();
}

void CreationWizard::previewButtonLine(int index)
{
    const WizardButton* entry = entryOfLine(form_.buttonLines, index);
    if (!entry)
        return;
    if (form_.addFrameVisible) {
        refuse(wizard_message::Refusal::NoPreviewWhileEditing);
        return;
    }
    const auto kind = entry->isText ? WizardPreview::Kind::Text : WizardPreview::Kind::Graphic;
    form_.preview = {kind, false, *entry, ButtonState::Normal};
    view_.refresh();
}

// ---- "Etape 4" ----

WizardButton* CreationWizard::selectedFunctionEntry()
{
    return entryOfLine(form_.functionLines, form_.selectedFunctionLine);
}

void CreationWizard::selectFunctionLine(int index)
{
    form_.selectedFunctionLine = index >= 0 && index < int(form_.functionLines.size()) ? index : -1;
    const WizardButton* entry = selectedFunctionEntry();
    form_.functionMediaField = entry && entry->function == "0" ? entry->param1 : "";
    view_.refresh();
}

void CreationWizard::chooseFunction(int function)
{
    WizardButton* entry = selectedFunctionEntry();
    if (!entry || function < 0 || function > 3)
        return;
    // The message asked again starts from the one the button shows already.
    const MenuMessage previous = entry->function == "2" ? MenuMessage{entry->param1, entry->param2} : MenuMessage{};
    entry->function = std::to_string(function);
    const std::string caption = view_.caption();
    if (function == 0) {
        entry->param1 = form_.functionMediaField;
    } else if (function == 2) {
        if (auto m = askMenuMessage(ports_.dialogs, caption, previous)) {
            entry->param1 = m->title;
            entry->param2 = m->text;
        } else {
            entry->function.clear();
        }
    } else if (function == 3) {
        if (auto open = askOpenTarget(ports_.dialogs, caption)) {
            entry->param1 = open->target;
            entry->param2 = open->kind;
        } else {
            entry->function.clear();
        }
    }
    view_.refresh();
}

void CreationWizard::setFunctionMediaFile(const std::string& name)
{
    form_.functionMediaField = name;
    WizardButton* entry = selectedFunctionEntry();
    if (entry && entry->function == "0")
        entry->param1 = name;
}

FunctionControls CreationWizard::functionControls() const
{
    const WizardButton* entry = entryOfLine(form_.functionLines, form_.selectedFunctionLine);
    return functionControlsOf(entry != nullptr, entry ? std::string_view(entry->function) : std::string_view());
}

void CreationWizard::previewFunctionMessage()
{
    if (const WizardButton* entry = selectedFunctionEntry())
        say(wizard_message::preview(entry->param2, entry->param1));
}

}  // namespace qor
