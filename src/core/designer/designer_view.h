#pragma once

#include <array>
#include <string>

#include "core/designer/worksheet_rules.h"
#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "model/menu_project.h"
#include "model/project_read_hooks.h"

namespace qor {

// The five panels of the properties panel's content area.
enum class PanelId { Window, Button, Media, Code, Text };

// Which panels are shown, one flag per PanelId.
struct PanelSet {
    std::array<bool, 5> shown{};

    bool has(PanelId p) const { return shown[std::size_t(p)]; }
    void add(PanelId p) { shown[std::size_t(p)] = true; }
    friend bool operator==(const PanelSet&, const PanelSet&) = default;
};

// What the button panel's fields show. The three image fields are the
// panel's own: they keep the paths of the button shown last, which a new
// button takes when its image dialogs are cancelled.
struct ButtonFields {
    std::array<std::string, 3> images;   // normal, hover, pressed
    std::string clickSound;
    std::string hoverSound;
    std::string media;
    bool transparent = false;
    Colour transparentColor = 0;

    friend bool operator==(const ButtonFields&, const ButtonFields&) = default;
};

// What the text panel's fields show.
struct TextFields {
    Colour backColor = 0;
    Colour foreColor = 0;
    std::string width;
    std::string height;
    bool scrollBar = true;
    bool locked = false;

    friend bool operator==(const TextFields&, const TextFields&) = default;
};

// A text box's font as the font dialog and the worksheet take it.
inline FontChoice fontOf(const MenuText& t)
{
    return {t.fontName, t.fontSize, t.fontBold, t.fontItalic, t.fontStrikethru, t.fontUnderline};
}

// The worksheet and the properties panel as the designer's flows drive
// them. Every call says what to show; the fields of an element come from
// the model, which the view reads.
class DesignerView {
public:
    virtual ~DesignerView() = default;

    // The element selector mirrors the designer's list of entries.
    virtual void resetEntries() = 0;
    virtual void addEntry(const std::string& entry) = 0;
    virtual void removeEntry(int index) = 0;
    // Shows an entry as the selected one, without calling back.
    virtual void selectEntry(int index) = 0;

    // Button elements: created hidden as copies of the template; placed
    // and shown from the model; sized by the picture they show.
    virtual void createButtonElement(int number) = 0;
    virtual void placeButton(int number) = 0;
    virtual void setButtonVisible(int number, bool visible) = 0;
    virtual TwipsSize buttonSize(int number) = 0;
    // Text elements: created hidden; showText takes every field of the
    // model's text box (place, size, colours, font, scroll bar, content,
    // visibility). A disabled text box is being resized.
    virtual void createTextElement(int number) = 0;
    virtual void showText(int number) = 0;
    virtual void setTextEnabled(int number, bool enabled) = 0;
    virtual bool textEnabled(int number) = 0;
    // Brings an element to the front, and the "Veuillez patienter..."
    // overlay back above it.
    virtual void bringButtonToFront(int number) = 0;
    virtual void bringTextToFront(int number) = 0;
    // The four selection handles at these top-left corners, or none.
    virtual void showHandles(const std::array<TwipsPoint, 4>& corners) = 0;
    virtual void hideHandles() = 0;

    // The worksheet window: outer and inner sizes, caption, background.
    virtual TwipsSize worksheetOuterSize() = 0;
    virtual TwipsSize worksheetInnerSize() = 0;
    // Resizing raises the worksheet's resize (Designer::worksheetResized).
    virtual void setWorksheetOuterSize(TwipsSize size) = 0;
    virtual void setCaption(const std::string& caption) = 0;
    // The background picture's own size; zero when there is none.
    virtual TwipsSize backgroundPictureSize() = 0;
    virtual void setBackgroundStretched(bool stretched) = 0;
    virtual void setBackgroundColour(Colour colour) = 0;
    virtual void showMousePosition(const std::array<std::string, 4>& readouts) = 0;

    // The properties panel.
    virtual void showPanels(const PanelSet& panels) = 0;
    // Every control of the window panel from the project.
    virtual void showWindowFields(const MenuProject& project) = 0;
    virtual void setWindowSizeFields(const std::string& width, const std::string& height, bool enabled) = 0;
    virtual void setTimerIntervalField(const std::string& text) = 0;
    virtual void showStartupChoice(StartupChoice choice, const std::string& captionLine, bool modifyShown) = 0;
    virtual void showButtonFields(const ButtonFields& fields) = 0;
    virtual void showTextFields(const TextFields& fields) = 0;
    virtual void setTextSizeFields(const std::string& width, const std::string& height) = 0;
};

}  // namespace qor
