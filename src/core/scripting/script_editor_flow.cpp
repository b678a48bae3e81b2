#include "core/scripting/script_editor_flow.h"

#include "core/scripting/assistant_generators.h"
#include "core/scripting/forbidden_chars.h"
#include "core/scripting/script_formatter.h"

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
    if (controls_)
        controls_->startProcedureTimer();
    return std::nullopt;
}

void ScriptEditorFlow::enterTyped()
{
    if (controls_)
        controls_->startFormatTimer();
}

void ScriptEditorFlow::formatterTimer()
{
    if (!controls_ || !controls_->autoFormat())
        return;
    if (auto formatted = formatScript(controls_->text(), controls_->selection().start))
        controls_->setText(formatted->text, formatted->caret);
}

void ScriptEditorFlow::procedureTimer()
{
    if (!controls_)
        return;
    procedures_ = listProcedures(controls_->text());
    controls_->showProcedures(procedures_);
}

void ScriptEditorFlow::procedureChosen(std::string_view name)
{
    if (!controls_)
        return;
    if (auto caret = procedureCaret(controls_->text(), procedures_, name))
        controls_->moveCaretTo(*caret);
}

std::optional<std::string> ScriptEditorFlow::addProcedure(std::string_view name, ProcedureKind kind,
                                                          ProcedureScope scope)
{
    if (!controls_)
        return std::nullopt;
    auto added = appendProcedure(controls_->text(), name, kind, scope);
    if (!added)
        return std::nullopt;
    controls_->setText(added->text, added->caret);
    return added->name;
}

void ScriptEditorFlow::assistantChosen(std::string_view name, int index)
{
    AssistantResult result = runAssistantEntry(name, index, dialogs_);
    if (result.block)
        insertStatementBlock(result.block->title, result.block->statement);
    if (result.cursorObject) {
        pendingCursor_ = std::move(result.cursorObject);
        if (controls_)
            controls_->showCursorChoice(true);
    }
}

void ScriptEditorFlow::cursorChosen(int cursor)
{
    if (!pendingCursor_)
        return;
    const std::string object = *pendingCursor_;
    pendingCursor_.reset();
    if (controls_)
        controls_->showCursorChoice(false);
    if (auto block = cursorStatement(object, cursor, dialogs_))
        insertStatementBlock(block->title, block->statement);
}

void ScriptEditorFlow::insertStatementBlock(std::string_view title, std::string_view statement)
{
    if (!controls_)
        return;
    const EditedScript edited = qor::insertStatementBlock(controls_->text(), controls_->selection(), title, statement);
    controls_->setText(edited.text, edited.caret);
}

void ScriptEditorFlow::testRun()
{
    if (testRun_)
        testRun_();
}

void ScriptEditorFlow::showWaitNotice(bool shown)
{
    if (controls_)
        controls_->showWaitNotice(shown);
}

}  // namespace qor
