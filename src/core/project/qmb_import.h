#pragma once

#include <functional>
#include <string>

#include "core/ports/dialogs.h"
#include "core/ports/qmb_converter.h"

namespace qor {

// Opens a QMB file (from an older menu tool) by having the separately
// installed converter write it as a project of ours into a new folder, which
// is then loaded. The callers have asked whether to save already.
class QmbImport {
public:
    // load: loads a project file with reset first.
    QmbImport(QmbConverter& converter, Dialogs& dialogs, std::function<void(const std::string&)> load)
        : converter_(converter), dialogs_(dialogs), load_(std::move(load)) {}

    // Asks for a folder, creates in it a subfolder named after the QMB file
    // (without ".qmb"), converts into it and loads the result. Without the
    // converter only "not installed" is shown; any other failure shows its
    // text titled "Erreur n°" + number, and the project is not changed.
    void run(const std::string& qmbPath);

private:
    Status convertAndLoad(const std::string& qmbPath);

    QmbConverter& converter_;
    Dialogs& dialogs_;
    std::function<void(const std::string&)> load_;
};

Message qmbNotInstalledMessage();
Message qmbConvertedMessage();
// The folder picker's prompt.
inline constexpr const char* kQmbFolderPrompt =
    "Ce projet a besoin d'être ré-enregistré au format QOR, choisissez un dossier :";

}  // namespace qor
