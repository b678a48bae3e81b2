#pragma once

#include <QTranslator>

#include <string>

namespace qor {

// The language of Qt's own dialogs and buttons (message box buttons, the
// file, colour and font dialogs): French while the interface is French,
// Qt's English otherwise. The run follows its interface language at start
// and goes back to French when a translation script fails.
class QtDialogLanguage {
public:
    ~QtDialogLanguage();

    // language is the interface language: empty for the built-in French.
    void follow(const std::string& language);
    bool french() const { return installed_; }

private:
    QTranslator french_;
    bool loaded_ = false;
    bool installed_ = false;
};

}  // namespace qor
