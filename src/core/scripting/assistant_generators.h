#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ports/dialogs.h"

namespace qor {

// The script assistant's statement generators. Each asks its questions
// through the dialogs and gives the title and the statement of the block the
// script editor inserts; the pop-up menu only says which one was chosen.

struct StatementBlock {
    std::string title;
    std::string statement;

    friend bool operator==(const StatementBlock&, const StatementBlock&) = default;
};

// What choosing an assistant entry gives: a block to insert or, for the
// first step of a cursor generator, the object ("Fenetre", "Bouton3"...)
// whose cursor the user picks next. Neither when the user gave up or the
// entry writes nothing.
struct AssistantResult {
    std::optional<StatementBlock> block;
    std::optional<std::string> cursorObject;
};

// Runs the generator of the entry with this control name; index is the value
// of a member of an indexed family (alignment, border shape).
AssistantResult runAssistantEntry(std::string_view name, int index, Dialogs& dialogs);

// The second step of a cursor generator: the statement for the cursor number
// picked in the cursor menu; the custom cursor also asks for its picture.
std::optional<StatementBlock> cursorStatement(std::string_view object, int cursor, Dialogs& dialogs);

// The control names that have a generator.
std::vector<std::string_view> assistantGeneratorNames();

// The label the script editor shows (blinking) while a cursor is pending.
inline constexpr std::string_view kCursorChoiceLabel = "[Choix du nouveau curseur : cliquez ICI]";

}  // namespace qor
