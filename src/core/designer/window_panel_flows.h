#pragma once

#include <string>

#include "core/designer/designer_context.h"

namespace qor {

class Designer;

// The window panel: every property of the menu window, each written into
// the project at once.
class WindowPanelFlows {
public:
    WindowPanelFlows(DesignerContext& ctx, Designer& designer) : ctx_(ctx), designer_(designer) {}

    void chooseBackground();
    void clearBackground();
    void setFullScreen(bool on);
    // "OK" beside "Taille :".
    void applySize(const std::string& width, const std::string& height);
    // "Ajuster à l'image de fond": four passes bring the inner area to the
    // picture's size despite the frame. Nothing without a picture.
    void fitToBackground();
    // "-" (zoomIn false) multiplies the size by 0.95, "+" divides by it.
    void zoom(bool zoomIn);
    void setBorder(bool on);
    void chooseBackgroundColour();
    void chooseMusic();
    void clearMusic();
    void chooseIcon();
    void clearIcon();
    void setHandCursor(bool on);
    void setTimerEnabled(bool on);
    // The interval field lost the focus.
    void timerIntervalLeft(const std::string& field);
    void setContextMenu(bool on);
    void editTimerScript();
    void editGlobalScript();
    void editWindowHoverScript();
    void showGlobalHelp();

    // The startup list: an entry chosen, or "&Modif." repeating it.
    void chooseStartup(StartupChoice choice);
    void modifyStartup() { chooseStartup(choice_); }
    // The choice a load read, shown without running its flow.
    void showLoadedChoice(StartupChoice choice);
    StartupChoice startupChoice() const { return choice_; }

private:
    void showChoice();
    // The project's window and the worksheet take size.
    void setWindowSize(TwipsSize size);
    void windowChanged();

    DesignerContext& ctx_;
    Designer& designer_;
    StartupChoice choice_ = StartupChoice::Nothing;
};

// "Lancer un fichier multimédia" asks for the name with this prompt.
inline constexpr std::string_view kStartupMediaPrompt =
    "Nom du fichier à jouer au démarrage (par rapport au répertoire racine du futur CD) :";

}  // namespace qor
