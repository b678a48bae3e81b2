#pragma once

#include "core/scripting/script_editor_controls.h"
#include "core/scripting/script_editor_flow.h"

namespace qor {

class EditorWindows;
class ScriptEditorWindow;

// The script editor window as the core's flows drive it. The window is built
// on first use; from then on every change of its text, its keys, commands,
// timers and menus go to the flow, and the flow's answers come back here.
// Scripts speak CR LF and count it as two characters; the text box speaks
// "\n" and UTF-16: this is where one becomes the other.
class EditorScriptEditorView final : public ScriptEditorView, public ScriptEditorControls {
public:
    EditorScriptEditorView(EditorWindows& windows, ScriptEditorFlow& flow) : windows_(windows), flow_(flow) {}

    void load(const ScriptEditorRequest& request) override;
    void show() override;
    void hide() override;

    std::string text() const override;
    TextSelection selection() const override;
    void setText(const std::string& text, std::size_t caret) override;
    void moveCaretTo(std::size_t caret) override;
    bool autoFormat() const override;
    void startFormatTimer() override;
    void startProcedureTimer() override;
    void showProcedures(const std::vector<ProcedureEntry>& entries) override;
    void showCursorChoice(bool pending) override;
    void showWaitNotice(bool shown) override;

private:
    ScriptEditorWindow& window();
    ScriptEditorWindow& window() const;
    void connectText(ScriptEditorWindow& w);
    void connectCommands(ScriptEditorWindow& w);

    EditorWindows& windows_;
    ScriptEditorFlow& flow_;
    bool connected_ = false;
};

}  // namespace qor
