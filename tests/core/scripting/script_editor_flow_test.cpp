#include <gtest/gtest.h>

#include <utility>

#include "core/scripting/script_editor_flow.h"
#include "fake_dialogs.h"

namespace qor {
namespace {

// Behaves as the window does: a text put in raises a change, and a cleaned
// text handed back is put in again, raising the next change.
class EchoingEditor : public ScriptEditorView {
public:
    explicit EchoingEditor(ScriptEditorFlow& flow) : flow_(flow) {}

    void load(const ScriptEditorRequest& request) override
    {
        title = request.title;
        type(request.text);
    }
    void show() override { visible = true; }
    void hide() override { visible = false; }

    void type(std::string text)
    {
        shown = text;
        while (auto cleaned = flow_.textChanged(shown))
            shown = *cleaned;
    }

    std::string title;
    std::string shown;
    bool visible = false;

private:
    ScriptEditorFlow& flow_;
};

struct Fixture {
    MenuProject project;
    Selection selection;
    test::FakeDialogs dialogs;
    ScriptEditorFlow flow{project, selection, dialogs};
    EchoingEditor editor{flow};

    Fixture()
    {
        flow.setView(&editor);
        project.button(4).kind = "code";
        project.button(4).action = "avant";
        selection.currentButton = 4;
    }
};

TEST(ScriptEditorFlow, TypedForbiddenCharactersAreTakenOutWithOneMessageEach)
{
    struct Case {
        const char* typed;
        const char* kept;
        std::size_t messages;
    } cases[] = {
        {"MsgBox 1", "MsgBox 1", 0},
        {"a\u00A4b", "ab", 1},
        {"\u00AC", "", 1},
        {"a\u00A4\u00A4b\u00A4", "ab", 1},
        // One kind per change: "¤" first, then the change the cleaned text raises takes "¬".
        {"x\u00ACy\u00A4z", "xyz", 2},
        {"ligne 1\r\nligne 2", "ligne 1\r\nligne 2", 0},
    };
    for (const auto& c : cases) {
        Fixture f;
        f.flow.open(ScriptSlot::Button, 4);
        f.editor.type(c.typed);
        EXPECT_EQ(f.editor.shown, c.kept) << c.typed;
        EXPECT_EQ(f.project.button(4).action, c.kept) << c.typed;
        ASSERT_EQ(f.dialogs.messages.size(), c.messages) << c.typed;
        for (const auto& m : f.dialogs.messages)
            EXPECT_EQ(m, (Message{"Caratère interdit !", "Erreur !", MessageIcon::Critical}));
    }
}

TEST(ScriptEditorFlow, OpenShowsTheSlotAndLoadLeavesTheEditorHidden)
{
    Fixture f;
    f.flow.load(ScriptSlot::Button, 4);
    EXPECT_FALSE(f.editor.visible);
    EXPECT_EQ(f.editor.title, "Code VBS sur bouton 4");
    EXPECT_EQ(f.editor.shown, "avant");

    f.flow.open(ScriptSlot::Timer);
    EXPECT_TRUE(f.editor.visible);
    EXPECT_EQ(f.flow.tag(), "minuteur");
    f.editor.type("Fenetre.Caption = Time");
    EXPECT_EQ(f.project.timerScript, "Fenetre.Caption = Time");
    EXPECT_EQ(f.project.button(4).action, "avant");

    f.flow.hide();
    EXPECT_FALSE(f.editor.visible);
}

TEST(ScriptEditorFlow, ClearingTheStartupScriptLeavesItsPlaceholder)
{
    Fixture f;
    f.flow.open(ScriptSlot::Startup);
    EXPECT_EQ(f.project.startupAction, "VBS:" + startupTemplate());
    f.editor.type("");
    EXPECT_EQ(f.project.startupAction, kEmptiedStartupAction);
}

// The editor's own controls as the window keeps them: the text box and its
// caret, the tick box, the two timers (started here, fired by the test).
class FakeControls : public ScriptEditorControls {
public:
    explicit FakeControls(ScriptEditorFlow& flow) : flow_(flow) {}

    std::string text() const override { return text_; }
    TextSelection selection() const override { return selection_; }
    void setText(const std::string& text, std::size_t caret) override
    {
        type(text, caret);
    }
    void moveCaretTo(std::size_t caret) override { selection_ = {caret, 0}; }
    bool autoFormat() const override { return ticked; }
    void startFormatTimer() override { formatTimer = true; }
    void startProcedureTimer() override { procedureTimer = true; }
    void showProcedures(const std::vector<ProcedureEntry>& entries) override
    {
        procedureNames.clear();
        for (const auto& e : entries)
            procedureNames.push_back(e.name);
    }
    void showCursorChoice(bool pending) override { cursorPrompt = pending; }
    void showWaitNotice(bool shown) override { notice = shown; }

    // A text typed or put in, with the caret after it: every change reaches
    // the flow, and a cleaned text comes back in.
    void type(std::string text, std::size_t caret)
    {
        text_ = std::move(text);
        while (auto cleaned = flow_.textChanged(text_))
            text_ = *cleaned;
        selection_ = {caret, 0};
    }
    void select(std::size_t start, std::size_t length) { selection_ = {start, length}; }

    // The timers fire once, when they were started.
    void fireTimers()
    {
        if (std::exchange(formatTimer, false))
            flow_.formatterTimer();
        if (std::exchange(procedureTimer, false))
            flow_.procedureTimer();
    }

    bool ticked = true;
    bool formatTimer = false;
    bool procedureTimer = false;
    bool cursorPrompt = false;
    bool notice = false;
    std::vector<std::string> procedureNames;

private:
    ScriptEditorFlow& flow_;
    std::string text_;
    TextSelection selection_;
};

struct EditorFixture : Fixture {
    FakeControls controls{flow};

    EditorFixture()
    {
        flow.setControls(&controls);
        flow.open(ScriptSlot::Button, 4);
    }
};

TEST(ScriptEditorFlow, EveryCleanChangeRebuildsTheProcedureList)
{
    EditorFixture f;
    f.controls.fireTimers();
    f.controls.type("Public Sub A()\r\nEnd Sub\r\nsub B", 0);
    EXPECT_TRUE(f.controls.procedureTimer);
    f.controls.fireTimers();
    EXPECT_EQ(f.controls.procedureNames, (std::vector<std::string>{"A()", "B"}));

    f.flow.procedureChosen("B");
    EXPECT_EQ(f.controls.selection().start, 25u);
    f.flow.procedureChosen("Procédures");
    EXPECT_EQ(f.controls.selection().start, 25u);

    // A forbidden character is taken out first; the cleaned text then
    // starts the timer like any change.
    f.controls.type("Sub C\u00A4", 0);
    f.controls.fireTimers();
    EXPECT_EQ(f.controls.procedureNames, std::vector<std::string>{"C"});
}

TEST(ScriptEditorFlow, AssistantBlocksReplaceTheSelection)
{
    EditorFixture f;
    f.controls.type("avant MILIEU apres", 0);
    f.controls.select(6, 6);
    f.flow.assistantChosen("max_mnu");
    const std::string block = "\r\n'" + std::string(25, '#') + "Maximiser" + std::string(25, '#') +
                              "\r\nFenetre.WindowState = 2\r\n'" + std::string(23, '#') + "Fin maximiser" +
                              std::string(23, '#') + "\r\n";
    EXPECT_EQ(f.project.button(4).action, "avant " + block + " apres");
    EXPECT_EQ(f.controls.selection().start, 6 + block.size());

    // A generator the user gives up on leaves the text as it was.
    f.dialogs.inputAnswers = {""};
    f.flow.assistantChosen("chgertitre_mnu");
    EXPECT_EQ(f.project.button(4).action, "avant " + block + " apres");
}

TEST(ScriptEditorFlow, CursorIsChosenFromTheBlinkingPrompt)
{
    EditorFixture f;
    f.controls.type("", 0);
    f.flow.cursorChosen(2);
    EXPECT_EQ(f.controls.text(), "");

    f.dialogs.inputAnswers = {"3"};
    f.flow.assistantChosen("changer_curseur_bouton");
    EXPECT_TRUE(f.controls.cursorPrompt);
    EXPECT_TRUE(f.flow.cursorPending());
    EXPECT_EQ(f.controls.text(), "");

    f.flow.cursorChosen(11);
    EXPECT_FALSE(f.controls.cursorPrompt);
    EXPECT_FALSE(f.flow.cursorPending());
    EXPECT_NE(f.project.button(4).action.find("\r\nBouton3.MousePointer = 11\r\n"), std::string::npos);

    // The custom cursor without a picture ends the choice all the same.
    const std::string before = f.controls.text();
    f.flow.assistantChosen("curseur_menu1");
    f.dialogs.inputAnswers = {""};
    f.flow.cursorChosen(99);
    EXPECT_FALSE(f.controls.cursorPrompt);
    EXPECT_FALSE(f.flow.cursorPending());
    EXPECT_EQ(f.controls.text(), before);
}

}  // namespace
}  // namespace qor
