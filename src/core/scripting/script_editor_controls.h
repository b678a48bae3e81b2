#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/scripting/procedure_list.h"
#include "core/scripting/statement_block.h"

namespace qor {

// The script editor's own controls as its rules drive them: the text box
// with its caret, the formatter switch, the two 10 ms timers, the procedure
// list, the cursor prompt and the notice panel. Texts use CR LF line breaks;
// positions count characters, CR LF as two.
class ScriptEditorControls {
public:
    virtual ~ScriptEditorControls() = default;

    virtual std::string text() const = 0;
    virtual TextSelection selection() const = 0;
    // Puts a new text in, which raises the text change like typing does,
    // then the caret at caret, and gives the text box the focus.
    virtual void setText(const std::string& text, std::size_t caret) = 0;
    // Moves the caret to the end of the text first, so that the box scrolls
    // and the line reached ends up near its top, then to caret; with focus.
    virtual void moveCaretTo(std::size_t caret) = 0;

    // "Mise en forme automatique".
    virtual bool autoFormat() const = 0;
    // One-shot timers: the formatter, and the procedure list, 10 ms later.
    virtual void startFormatTimer() = 0;
    virtual void startProcedureTimer() = 0;

    // The list rebuilt: its title, then one name per entry.
    virtual void showProcedures(const std::vector<ProcedureEntry>& entries) = 0;
    // The blinking "[Choix du nouveau curseur : cliquez ICI]" while a cursor
    // is to be chosen; hidden and still otherwise.
    virtual void showCursorChoice(bool pending) = 0;
    // "Veuillez patienter..." while a test run compiles.
    virtual void showWaitNotice(bool shown) = 0;
};

}  // namespace qor
