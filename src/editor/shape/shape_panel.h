#pragma once

#include <QWidget>

#include "editor/ui/window_hooks.h"

class QPushButton;

namespace qor {

class ShapeFlows;

// The panel "Forme" ("Form17"): the frame "Edition" with "Aperçu",
// "Recommencer", "Pas de forme", "Valider", "Annuler", and below it the
// frame "Spécial" with "Charger" and "Sauver". Each command goes to the
// shape flows; closing the panel by its box closes the editor.
class ShapePanel : public QWidget {
    Q_OBJECT
public:
    // The commands in the order of the panel, top to bottom.
    enum Command { Preview, Restart, NoShape, Validate, Cancel, Load, Save, kCommandCount };

    explicit ShapePanel(WindowHooks& hooks = WindowHooks::none());

    void setFlows(ShapeFlows* flows) { flows_ = flows; }
    QPushButton* command(Command c) const { return commands_[c]; }
    void setPreviewEnabled(bool enabled);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void run(Command c);

    ShapeFlows* flows_ = nullptr;
    QPushButton* commands_[kCommandCount] = {};
};

}  // namespace qor
