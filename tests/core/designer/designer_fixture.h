#pragma once

#include <string>
#include <vector>

#include "core/designer/designer.h"
#include "fake_designer_view.h"
#include "fake_dialogs.h"
#include "fake_project_hooks.h"
#include "fake_screen.h"
#include "temp_dir.h"

namespace qor::test {

// Records what the script editor was given and whether it shows.
class RecordingEditor : public ScriptEditorView {
public:
    void load(const ScriptEditorRequest& r) override { loaded.push_back(r); }
    void show() override { visible = true; }
    void hide() override { visible = false; }
    const ScriptEditorRequest& last() const { return loaded.back(); }
    std::vector<ScriptEditorRequest> loaded;
    bool visible = false;
};

// A designer over fakes: scripted dialogs, a 15 twips-per-pixel screen,
// recorded pictures and script editor, the fake worksheet and panel, and a
// folder for image files.
struct DesignerFixture {
    MenuProject project;
    Selection selection;
    FakeDialogs dialogs;
    FakeScreen screen;
    Phrases phrases;
    FakeProjectHooks pictures;
    ScriptEditorFlow scriptFlow{project, selection, dialogs};
    RecordingEditor editor;
    bool showHandles = true;
    Designer designer{project, selection, {dialogs, screen, phrases, pictures, scriptFlow, showHandles}};
    FakeDesignerView view{designer};
    TempDir dir;
    WorksheetFlows& sheet = designer.worksheet();
    WindowPanelFlows& window = designer.windowPanel();
    ElementPanelFlows& element = designer.elementPanel();

    DesignerFixture()
    {
        scriptFlow.setView(&editor);
        designer.setView(&view);
    }

    std::string image(const std::string& name) { return dir.write(name, "x"); }

    // A button whose three image dialogs are cancelled.
    void createButton(std::string_view kind)
    {
        dialogs.openAnswers.insert(dialogs.openAnswers.end(), 3, std::nullopt);
        designer.createButton(kind);
    }

    // A button with three image files of its own; its number.
    int button(std::string_view kind)
    {
        const std::string n = std::to_string(project.buttonElementCount());
        dialogs.openAnswers = {image("b" + n + "n.png"), image("b" + n + "s.png"), image("b" + n + "c.png")};
        const int number = project.buttonElementCount();
        designer.createButton(kind);
        return number;
    }
};

}  // namespace qor::test
