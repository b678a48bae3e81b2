#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "core/ui/control_tree.h"
#include "core/ui/phrase_list_object.h"
#include "core/ui/phrases.h"
#include "script/module.h"

namespace qor {

// The file the main window runs after its own script to fill the phrase list.
inline constexpr const char* kPhrasesScriptName = "phrases.lge";
inline constexpr const char* kTranslationExtension = ".lge";
inline constexpr const char* kPhraseListName = "Liste";

// A translation script is straight-line code: far fewer turns than this
// mean a script that never ends.
inline constexpr std::uint64_t kTranslationStepBudget = 200000;

// Why a window's translation stopped: the description and the script line
// (0 when the file could not be read).
struct TranslationFailure {
    std::string description;
    int line = 0;
};

// Runs each window's translation script of the current interface language
// as the window loads. The state is the run's: the language (emptied when a
// script fails), the phrase list and the program folder.
class Translator {
public:
    Translator(std::string& language, Phrases& phrases, const std::string& programFolder);

    // Translates the window named windowName ("Form1" ...). With French
    // nothing runs. A failure comes back as the message to show; the rest of
    // the run is French by then.
    std::optional<Message> translate(std::string_view windowName, std::unique_ptr<ControlNode> window);

    void setStepBudget(std::uint64_t steps) { module_.setStepBudget(steps); }

private:
    std::optional<TranslationFailure> run(const std::string& fileName);
    std::optional<Message> fail(const TranslationFailure& failure);

    std::string& language_;
    Phrases& phrases_;
    const std::string& programFolder_;
    script::Module module_;
    script::Ref<PhraseListObject> list_;
};

// False for the windows that have no translation script.
bool isTranslatedWindow(std::string_view windowName);

// How a failed translation is shown: the failure's description, titled
// "Langue/Language " and the line of the script's error (0 when the file
// itself failed).
Message translationFailedMessage(const std::string& description, int line);

}  // namespace qor
