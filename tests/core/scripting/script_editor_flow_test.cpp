#include <gtest/gtest.h>

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

}  // namespace
}  // namespace qor
