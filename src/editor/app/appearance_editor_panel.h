#pragma once

#include "core/app/appearance_editor.h"

namespace qor {

class AppearanceFrame;
class MainWindow;

// The appearance editor's view over the main window's "Apparences" frame:
// the list, the three swatches, the font and name fields, and the window's
// height that reveals the frame. Its buttons and swatches run the core's
// appearance editor.
class AppearanceEditorPanel final : public AppearanceEditorView {
public:
    AppearanceEditorPanel(MainWindow& main, AppearanceEditor& editor);

    void setAppearanceEditorVisible(bool visible) override;
    void showAppearanceList(const std::vector<std::string>& names, int selected) override;
    int selectedAppearance() override;
    void showEditorFields(const Appearance& fields) override;
    Appearance editorFields() override;
    std::string newAppearanceName() override;
    void clearNewAppearanceName() override;

private:
    void connectControls(AppearanceFrame& frame, AppearanceEditor& editor);

    MainWindow& main_;
    Appearance fields_;
};

}  // namespace qor
