#pragma once

#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "core/shape/shape_editor.h"
#include "core/shape/shape_messages.h"
#include "core/shape/shape_view.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"

namespace qor {

struct ShapePorts {
    Dialogs& dialogs;
    Screen& screen;
    const Phrases& phrases;
};

// The shape editor: the toolbox's "Editeur" opens it; the surface's
// pointer and the panel's seven commands arrive here. Only "Valider" and
// "Pas de forme" change the project's shape.
class ShapeFlows {
public:
    ShapeFlows(MenuProject& project, ShapePorts ports) : project_(project), ports_(ports) {}
    ShapeFlows(const ShapeFlows&) = delete;
    ShapeFlows& operator=(const ShapeFlows&) = delete;

    void setView(ShapeView* view) { view_ = view; }

    void open();
    bool isOpen() const { return open_; }
    const ShapeEditor& editor() const { return editor_; }

    // The surface's pointer, in twips.
    void press(int button, TwipsPoint at);
    void move(TwipsPoint at, bool leftHeld);
    void pointerOverHint();

    // The panel's commands.
    void preview();     // "Aperçu"
    void restart();     // "Recommencer"
    void noShape();     // "Pas de forme"
    void validate();    // "Valider"
    void cancel();      // "Annuler"
    void load();        // "Charger"
    void save();        // "Sauver"

    // The panel closes, by a command or by its close box.
    void close();

private:
    bool refuseWhileDrawing(ShapeMessage which);
    void loadFile(const std::string& path);

    MenuProject& project_;
    ShapePorts ports_;
    ShapeView* view_ = nullptr;
    ShapeEditor editor_;
    bool open_ = false;
};

}  // namespace qor
