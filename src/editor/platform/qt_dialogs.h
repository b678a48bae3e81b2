#pragma once

#include <QFont>
#include <QMessageBox>

#include <memory>

#include "core/ports/dialogs.h"

class QFileDialog;
class QWidget;

namespace qor {

// The Dialogs port on Qt's standard dialogs. Every dialog is modal over the
// window that is active when it is asked for.
class QtDialogs : public Dialogs {
public:
    Answer message(const Message& message) override;
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<std::string> openFile(const FileDialogRequest& request) override;
    std::optional<std::string> saveFile(const FileDialogRequest& request) override;
    std::optional<std::string> pickFolder(const std::string& prompt) override;
    std::optional<Colour> pickColour(Colour initial) override;
    std::optional<FontChoice> pickFont(const FontChoice& initial) override;
};

// The message box of a message, ready to be shown: French button texts, the
// icon, the default button, and for a system-modal message a box that blocks
// the whole editor and stays above every window.
std::unique_ptr<QMessageBox> buildMessageBox(const Message& message, QWidget* parent);

// What the user's click means to the core.
Answer answerOf(QMessageBox::StandardButton button);

// Prepares an open or save dialog: its title, filters in Qt's form, the
// start folder (the current folder when none is given) and the preset name.
// A save dialog neither adds an extension nor asks before replacing a file:
// the editor saves exactly under the name the user typed.
void configureFileDialog(QFileDialog& dialog, const FileDialogRequest& request, bool save);

QFont toQFont(const FontChoice& font);
FontChoice fromQFont(const QFont& font);
// What the font dialog hands back: chosen, after it first showed the
// initial font as shown. A family this system lacks shows as another one,
// and a size as the dialog rounds it; confirming them unchanged keeps the
// name and size the menu asked for, so only what the user changed differs.
FontChoice changedFont(const FontChoice& initial, const QFont& shown, const QFont& chosen);

}  // namespace qor
