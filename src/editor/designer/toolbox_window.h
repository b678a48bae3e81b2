#pragma once

#include "core/picture/window_transparency.h"
#include "core/ports/screen.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QLabel;
class QPushButton;

class QMenu;

namespace qor {

// The toolbox "Objets" ("Form1"): three framed groups of commands that
// create buttons and text boxes and open the shape tools; each command is
// handed to the designer's one dispatch point. For "Voir l'image actuelle"
// the toolbox turns into the outline image until that is clicked.
class ToolboxWindow : public ToolWindow, public OutlineView {
    Q_OBJECT
public:
    explicit ToolboxWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    // The commands in the order "Multimédia", "Quitter", "Code VBS", "Créer",
    // "Editeur", "Transparence".
    QPushButton* command(int i) const { return commands_[i]; }
    static constexpr int kCommandCount = 6;

    // The "Transparence" pop-up, under its command.
    std::optional<OutlineCommand> popUpOutlineMenu() override;
    bool showOutlineImage(const std::string& path) override;
    // Back to the three groups, at the size the toolbox had.
    void hideOutlineImage();
    QLabel* outlinePicture() const { return outline_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* commands_[kCommandCount] = {};
    // The "Transparence" pop-up, built once so a translation can retitle it.
    QMenu* outlineMenu_ = nullptr;
    QLabel* outline_ = nullptr;
    QSize groupsSize_;
};

}  // namespace qor
