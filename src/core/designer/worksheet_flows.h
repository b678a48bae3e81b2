#pragma once

#include <map>

#include "core/designer/designer_context.h"

namespace qor {

class Designer;

// What lies under the pointer on the worksheet.
struct WorksheetTarget {
    enum class Kind { Background, Button, Text } kind = Kind::Background;
    int number = 0;

    static WorksheetTarget background() { return {}; }
    static WorksheetTarget button(int n) { return {Kind::Button, n}; }
    static WorksheetTarget text(int n) { return {Kind::Text, n}; }
};

// The worksheet's pointer and keys: selection by press, hover and pressed
// previews, dragging with a modifier key, resizing a text box with the
// right button, typing into a text box. Offsets are twips inside the
// element (or the worksheet) under the pointer.
class WorksheetFlows {
public:
    // What a button shows: its normal, hover ("s") or pressed ("c") image.
    enum class Display { Normal, Hover, Pressed };

    WorksheetFlows(DesignerContext& ctx, Designer& designer) : ctx_(ctx), designer_(designer) {}

    // A press on button i: selects it; with a modifier key, true (start
    // dragging, offset kept as the grab offset); otherwise its pressed image.
    bool pressButton(int number, bool modifier, TwipsPoint offset);
    void releaseButton(bool modifier);
    // A press on text box i: selects it; a modifier starts a drag (true);
    // the right button puts it in resize mode.
    bool pressText(int number, bool modifier, bool rightButton, TwipsPoint offset);
    // A click on the background selects "Feuille de travail".
    void clickBackground();
    // The pointer moved over a target; onlyRightButton when the right mouse
    // button alone is held (a resize goes on).
    void pointerMoved(WorksheetTarget target, TwipsPoint offset, bool onlyRightButton);
    // A mouse button released over the background ends a resize.
    void releaseOverBackground();
    // A dragged element let go over a target at offset.
    void drop(WorksheetTarget dragged, WorksheetTarget target, TwipsPoint offset);
    // The worksheet lost the activation: every button shows its normal image.
    void deactivated();
    // Every button but except (0: none) whose display is not normal goes back to
    // its normal image; the walk stops at a normal image that cannot be shown.
    void showNormalImages(int except);
    // A text box's content changed: the forbidden characters go with one
    // message and the cleaned text is handed back for the box to show
    // (which raises the next change); a clean text is stored.
    std::optional<std::string> textTyped(int number, std::string_view content);

    // The worksheet was resized to outer: caption and size fields follow.
    // When the user resized it, the window's size becomes outer too, unless
    // that is only the model's size rounded to whole pixels.
    void resized(TwipsSize outer, bool byUser = false);
    // Stretching the background with the worksheet (off while fitting).
    void setStretch(bool stretch) { stretch_ = stretch; }
    void updateCaption();

    Display display(int number) const;
    bool pointerPressed() const { return pointerPressed_; }
    // Forgets every display state (reset, load).
    void clear();

private:
    TwipsPoint originOf(WorksheetTarget target) const;
    bool validText(int number) const;
    void previewHover(int number);

    DesignerContext& ctx_;
    Designer& designer_;
    std::map<int, Display> displays_;
    bool pointerPressed_ = false;
    bool stretch_ = true;
    TwipsPoint grab_;
};

}  // namespace qor
