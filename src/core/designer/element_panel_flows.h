#pragma once

#include <string>

#include "core/designer/designer_context.h"
#include "core/designer/property_checks.h"

namespace qor {

class Designer;

// What the text panel shows for a text box.
TextFields textFieldsOf(const MenuText& text);

// The three images of a button, in the order creation asks for them.
enum class ButtonImage { Normal, Hover, Pressed };

// The button panel (with its media and code sub-panels) and the text
// panel. Each command works on the current button or text box.
class ElementPanelFlows {
public:
    ElementPanelFlows(DesignerContext& ctx, Designer& designer) : ctx_(ctx), designer_(designer) {}

    // The image dialog of one image: the path its field shows afterwards is
    // stored (a cancelled dialog keeps the field, and so stores what it showed).
    void chooseImage(ButtonImage which);
    void chooseClickSound() { chooseSound(true); }
    void clearClickSound() { setSound(true, ""); }
    void chooseHoverSound() { chooseSound(false); }
    void clearHoverSound() { setSound(false, ""); }
    void editHoverScript();
    void editButtonScript();
    // The media field typed into: stored as it stands.
    void mediaTyped(const std::string& text);
    // One of the three places of the media location menu.
    void locateMedia(MediaLocation where);
    void showMediaHelp();
    void showTransparencyInfo();
    // "Activée" clicked: the box and the swatch's colour go to the button.
    void transparencyTicked(bool ticked);
    // The "Couleur :" swatch: the colour dialog; a colour chosen is shown
    // and stored with the box, as a click on "Activée" would.
    void chooseTransparentColour();
    // "Aperçu rapide": bakes the current button when it is transparent.
    void quickPreview();

    // "Modifier la position" / "(px)" of the button or of the text box.
    void movePosition(bool text, bool pixels);

    void chooseTextBackColour() { chooseTextColour(true); }
    void chooseTextForeColour() { chooseTextColour(false); }
    void chooseFont();
    // "OK" beside the text box's "Taille :".
    void applyTextSize(const std::string& width, const std::string& height);
    // The two boxes. Ticking the scroll bar shows it at once, then writes
    // settings as the lock box does; the lock box writes settings unless
    // the refresh is filling the boxes.
    void scrollBarClicked(bool scrollBar, bool locked);
    void lockClicked(bool scrollBar, bool locked);
    // The refresh's guard around filling the boxes.
    void setFilling(bool filling) { filling_ = filling; }

private:
    void storeImage(ButtonImage which);
    void showFields();
    void chooseTextColour(bool back);
    void chooseSound(bool click);
    void setSound(bool click, const std::string& path);
    MenuText* currentText();
    void textChanged(MenuText& t);
    std::optional<double> askCoordinate(const std::string& prompt, double current, double ratio);

    DesignerContext& ctx_;
    Designer& designer_;
    bool filling_ = false;
};

}  // namespace qor
