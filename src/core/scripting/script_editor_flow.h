#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/designer/selection.h"
#include "core/ports/dialogs.h"
#include "core/scripting/new_procedure.h"
#include "core/scripting/procedure_list.h"
#include "core/scripting/script_editor_controls.h"
#include "core/scripting/script_editor_view.h"
#include "core/scripting/script_slots.h"
#include "model/menu_project.h"

namespace qor {

// The script editor's rules: which slot it edits, what every change of its
// text does (forbidden characters out with a message, then the text written
// back into that slot and the procedure list rebuilt), the formatter after
// Enter, the procedure list, new procedures, the assistant and the test run.
// The window shows; this decides.
class ScriptEditorFlow {
public:
    ScriptEditorFlow(MenuProject& project, const Selection& selection, Dialogs& dialogs)
        : project_(project), selection_(selection), dialogs_(dialogs) {}

    // The window, once it exists (it is built on first use).
    void setView(ScriptEditorView* view) { view_ = view; }
    void setControls(ScriptEditorControls* controls) { controls_ = controls; }
    // What F5 and "F5 - &Tester" start: the editor's test run command.
    void setTestRun(std::function<void()> testRun) { testRun_ = std::move(testRun); }

    // A panel command: the slot's title, tag and text go to the editor,
    // which is then shown.
    void open(ScriptSlot slot, int button = -1);
    // The panel's refresh of a code button: loaded, left hidden.
    void load(ScriptSlot slot, int button = -1);
    void hide();

    // Every change of the editor's text. When a forbidden character was
    // taken out, the message is shown and the cleaned text is returned for
    // the editor to show instead (that raises the next change); otherwise
    // the text is written back into the slot and the procedure list timer
    // starts.
    std::optional<std::string> textChanged(std::string_view text);

    // Enter typed without Shift, Ctrl or Alt: the formatter runs 10 ms
    // later, once the line break is in the text.
    void enterTyped();
    // The formatter timer: formats the text when "Mise en forme
    // automatique" is ticked and the text is short enough.
    void formatterTimer();
    // The procedure list timer.
    void procedureTimer();
    // A name picked in the procedure list: the caret goes to its declaration.
    void procedureChosen(std::string_view name);

    // "&Valider" of the new procedure panel: the skeleton is appended and
    // the name as written (spaces made "_") comes back for the panel; nothing
    // (the panel stays) for an empty name.
    std::optional<std::string> addProcedure(std::string_view name, ProcedureKind kind, ProcedureScope scope);

    // An entry of the "Assistant VBS" menu, by control name and index.
    void assistantChosen(std::string_view name, int index = -1);
    // A cursor of the "#Curseur#" menu, opened from the blinking prompt.
    void cursorChosen(int cursor);
    bool cursorPending() const { return pendingCursor_.has_value(); }
    // Writes a block at the caret, in place of the selection.
    void insertStatementBlock(std::string_view title, std::string_view statement);

    // F5 released or "F5 - &Tester".
    void testRun();
    // The notice panel, shown by the test run while it compiles.
    void showWaitNotice(bool shown);

    const std::string& tag() const { return tag_; }
    const std::vector<ProcedureEntry>& procedures() const { return procedures_; }

private:
    MenuProject& project_;
    const Selection& selection_;
    Dialogs& dialogs_;
    ScriptEditorView* view_ = nullptr;
    ScriptEditorControls* controls_ = nullptr;
    std::function<void()> testRun_;
    std::string tag_;
    std::vector<ProcedureEntry> procedures_;
    std::optional<std::string> pendingCursor_;
};

}  // namespace qor
