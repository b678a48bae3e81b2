#pragma once

#include "core/scripting/script_editor_flow.h"

namespace qor {

class EditorWindows;
class ScriptEditorWindow;

// The script editor window as the core's flows drive it. The window is built
// on first use; from then on every change of its text goes to the flow,
// and a text the flow cleaned is put back in.
class EditorScriptEditorView final : public ScriptEditorView {
public:
    EditorScriptEditorView(EditorWindows& windows, ScriptEditorFlow& flow) : windows_(windows), flow_(flow) {}

    void load(const ScriptEditorRequest& request) override;
    void show() override;
    void hide() override;

private:
    ScriptEditorWindow& window();

    EditorWindows& windows_;
    ScriptEditorFlow& flow_;
    bool connected_ = false;
};

}  // namespace qor
