#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/designer/designer_context.h"
#include "core/designer/element_selector.h"
#include "core/designer/element_panel_flows.h"
#include "core/designer/window_panel_flows.h"
#include "core/designer/worksheet_flows.h"
#include "core/picture/window_transparency.h"
#include "core/shape/shape_flows.h"

namespace qor {

// The toolbox "Objets": its six commands reach the designer here.
enum class ToolboxCommand { Multimedia, Quit, CodeScript, CreateText, ShapeEditor, Transparency };

// The menu designer: elements and their numbers, the element selector and
// the refresh that follows every selection, the selection handles. Its
// three parts handle the worksheet's pointer, the window panel and the
// element panels. It also stands between the project reader and the views:
// what a load creates enters the selector here.
class Designer final : public ProjectHooks {
public:
    Designer(MenuProject& project, Selection& selection, DesignerPorts ports);
    Designer(const Designer&) = delete;
    Designer& operator=(const Designer&) = delete;

    // The views, once they exist; until then nothing is shown.
    void setView(DesignerView* view);

    WorksheetFlows& worksheet() { return worksheet_; }
    WindowPanelFlows& windowPanel() { return windowPanel_; }
    ElementPanelFlows& elementPanel() { return elementPanel_; }
    // The toolbox's "Transparence" pop-up (the menu window's outline image).
    WindowTransparencyFlows& outline() { return outline_; }

    // The project hooks: the views' share of a reset and of a load.
    void resetViews() override;
    void setCurrentFolder(const std::string& folder) override;
    Status loadBackgroundImage(const std::string& path) override;
    Status loadButtonImage(int number, const std::string& path) override;
    void buttonCreated(int number, const std::string& kind) override;
    void textCreated(int number) override;
    void setLoading(bool loading) override;
    void showStartupChoice(StartupChoice choice) override;

    // A reset or a load is over: the worksheet's caption and the window
    // panel follow the project.
    void projectReplaced();

    // The one dispatch point of the toolbox.
    void runToolbox(ToolboxCommand command);
    // Where "Editeur" goes; without it the command does nothing.
    void setShapeEditor(ShapeFlows* shape) { shape_ = shape; }

    // Creates a button of kind ("code", "vidéo", "quitter") and asks for
    // its three images; refused past the 99th button.
    void createButton(std::string_view kind);
    void createText();
    // The Delete key on the worksheet: the current button, after a question.
    void deleteButton();
    // "Supprimer le Texte": the current text box, after a question.
    void deleteText();

    // The element selector: entry 0 "Feuille de travail", then one entry per
    // live element in creation order.
    const std::vector<std::string>& entries() const { return entries_; }
    int selectedEntry() const { return selected_; }
    const std::string& selectedText() const { return entries_[std::size_t(selected_)]; }
    // Selects an entry and runs the refresh, whether the user or a flow chose it.
    void select(int index);
    // The entry of that text, if listed.
    bool selectEntry(std::string_view entry);
    // Around the selected element, unless the option hides them.
    void drawHandles();
    // A button's picture from its normal image; false when it cannot be shown.
    bool showNormalImage(int number);

    DesignerContext& context() { return ctx_; }

private:
    void refresh();
    void refreshButton(const ParsedEntry& entry, PanelSet& panels);
    void refreshText(int number, PanelSet& panels);
    void addEntry(std::string entry);
    void removeEntry(std::string_view prefix, int number);
    void showElementOnTop(bool button, int number);

    DesignerContext ctx_;
    std::vector<std::string> entries_;
    int selected_ = 0;
    WorksheetFlows worksheet_;
    WindowPanelFlows windowPanel_;
    ElementPanelFlows elementPanel_;
    WindowTransparencyFlows outline_;
    ShapeFlows* shape_ = nullptr;
};

}  // namespace qor
