#pragma once

#include "core/designer/designer.h"
#include "core/ports/button_baker.h"
#include "core/ports/dialogs.h"

namespace qor {

class EditorWindows;

// Bakes transparent buttons on the worksheet: before every build and
// printing (all of them, the selector back on "Feuille de travail" so that
// no handle is drawn) and for "Aperçu rapide" (one). The worksheet is drawn
// off screen, so the pointer and the other windows need not be kept away.
// A file that cannot be written is told once per bake.
class EditorButtonBaker final : public ButtonBaker {
public:
    EditorButtonBaker(EditorWindows& windows, Dialogs& dialogs) : windows_(windows), dialogs_(dialogs) {}

    // The project and its designer, once the core exists.
    void attach(Designer& designer) { designer_ = &designer; }

    void bakeAllButtons() override;
    void bakeButton(int number) override;

private:
    EditorWindows& windows_;
    Dialogs& dialogs_;
    Designer* designer_ = nullptr;
};

}  // namespace qor
