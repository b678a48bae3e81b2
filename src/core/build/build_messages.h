#pragma once

#include <string>

#include "core/ports/dialogs.h"
#include "core/ui/phrases.h"
#include "text/error.h"

namespace qor {

// Every message the build shows, built in one place. Texts are the
// editor's own and kept as users know them, spelling included.

// Compilation.
Message incorrectFolderMessage();                          // "Répertoire incorrect !"
Message forgottenMediaMessage(int buttonNumber);           // a "vidéo" button without its file
Message programIconMessage(const std::string& icon, const std::string& problem);   // the CD's icon not set
Message replaceCompilationQuestion(const std::string& target);
Message noMainMenuMessage();                               // sub-menu without qor/
Message subMenuExistsMessage();                            // qor/<name>.exe already there
Message compilationFailedMessage(const Error& error);      // "Erreur durant la compilation ! (...)"
Message subMenuCreatedMessage(const std::string& name);
Message runtimeHelpMessage();                              // "[Infos]" of the compile dialog
// Refusals of our own, where a compilation would otherwise write outside
// its folder or ship a menu that cannot find its files.
Message qorNotAFolderMessage(const std::string& target);
Message badFileNameMessage(const std::string& name, const std::string& title);
// Two different files that one name of qor/ would receive.
Message fileNameClashMessage(const std::string& first, const std::string& second);

// The compile dialog's texts.
std::string compileFinalText(const std::string& target);   // Label1 once done
std::string browseTargetPrompt();

// Test run.
Message testRunErrorMessage(const Error& error, const Phrases& phrases);

// Executable export, for a kind k with extension x ("exécutable", "exe").
std::string exportKindName(const Phrases& phrases);
std::string exportFolderPrompt(const std::string& kind, const Phrases& phrases);
Message incorrectPathMessage(const Phrases& phrases);
std::string exportFileNamePrompt(const std::string& kind, const Phrases& phrases);
Message copyRuntimeQuestion(const Phrases& phrases, const std::string& title);
Message exportDoneMessage(const std::string& kind, const std::string& extension, const Phrases& phrases);
Message exportErrorMessage(const Error& error);

// HTML launcher.
Message htmlNotWrittenMessage(const std::string& path, const Error& error);

}  // namespace qor
