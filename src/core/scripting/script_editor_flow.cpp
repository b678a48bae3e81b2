#include "core/scripting/script_editor_flow.h"

#include "core/scripting/forbidden_chars.h"

namespace qor {

void ScriptEditorFlow::load(ScriptSlot slot, int button)
{
    const ScriptEditorRequest request = openScriptSlot(project_, slot, button);
    tag_ = request.tag;
    if (view_)
        view_->load(request);
}

void ScriptEditorFlow::open(ScriptSlot slot, int button)
{
    load(slot, button);
    if (view_)
        view_->show();
}

void ScriptEditorFlow::hide()
{
    if (view_)
        view_->hide();
}

std::optional<std::string> ScriptEditorFlow::textChanged(std::string_view text)
{
    if (auto cleaned = withoutForbiddenChars(text)) {
        dialogs_.message(forbiddenCharMessage());
        return cleaned;
    }
    writeBackScript(project_, selection_.currentButton, tag_, text);
    return std::nullopt;
}

}  // namespace qor
