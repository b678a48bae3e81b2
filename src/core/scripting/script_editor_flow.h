#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/designer/selection.h"
#include "core/ports/dialogs.h"
#include "core/scripting/script_editor_view.h"
#include "core/scripting/script_slots.h"
#include "model/menu_project.h"

namespace qor {

// The script editor's rules: which slot it edits, and what every change of
// its text does (forbidden characters out with a message, then the text
// written back into that slot). The window shows; this decides.
class ScriptEditorFlow {
public:
    ScriptEditorFlow(MenuProject& project, const Selection& selection, Dialogs& dialogs)
        : project_(project), selection_(selection), dialogs_(dialogs) {}

    // The window, once it exists (it is built on first use).
    void setView(ScriptEditorView* view) { view_ = view; }

    // A panel command: the slot's title, tag and text go to the editor,
    // which is then shown.
    void open(ScriptSlot slot, int button = -1);
    // The panel's refresh of a code button: loaded, left hidden.
    void load(ScriptSlot slot, int button = -1);
    void hide();

    // Every change of the editor's text. When a forbidden character was
    // taken out, the message is shown and the cleaned text is returned for
    // the editor to show instead (that raises the next change); otherwise
    // the text is written back into the slot.
    std::optional<std::string> textChanged(std::string_view text);

    const std::string& tag() const { return tag_; }

private:
    MenuProject& project_;
    const Selection& selection_;
    Dialogs& dialogs_;
    ScriptEditorView* view_ = nullptr;
    std::string tag_;
};

}  // namespace qor
