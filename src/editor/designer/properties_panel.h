#pragma once

#include <optional>
#include <string>

#include "core/designer/designer_view.h"
#include "core/ports/screen.h"
#include "core/ui/appearances_file.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/widget_control_node.h"
#include "editor/ui/window_hooks.h"

class QComboBox;
class QScrollBar;
class QVBoxLayout;

namespace qor {

class ButtonPanel;
class Designer;
class TextPanel;
class WindowPanel;

// The properties panel "Paramètres" ("Form4"): the element selector at the
// top and, below it, the content area that shows one panel at a time (the
// window, a button with its sub-panel, a text box) with a scroll bar at its
// right that moves it in steps of 500 twips. Its width is fixed. The button
// and text-box panels are built when an element is first shown, or when a
// script names their controls.
class PropertiesPanel : public ToolWindow, public LateControls {
    Q_OBJECT
public:
    static constexpr double kWidth = 2985;
    static constexpr double kScrollStep = 500;

    explicit PropertiesPanel(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    // Selections and every control go to the designer from now on.
    void connectDesigner(Designer& designer);

    QComboBox* elementSelector() const { return selector_; }
    // The selector back to its single entry "Feuille de travail", selected.
    void resetElementSelector();
    // An element's entry at the end of the selector.
    void addElementEntry(const std::string& entry);
    void removeElementEntry(int index);
    // Shows the entry selected without running anything.
    void showSelectedEntry(int index);
    QScrollBar* scrollBar() const { return scroll_; }
    QWidget* contentArea() const { return content_; }

    void showPanels(const PanelSet& panels);
    WindowPanel& windowPanel() const { return *window_; }
    ButtonPanel& buttonPanel();
    TextPanel& textPanel();

    // The appearance the window was last given: the panels built later take it.
    void keepAppearance(const Appearance& appearance) { appearance_ = appearance; }
    void buildLateControls() override;

signals:
    // The first time the panel becomes the active window, and never again:
    // the moment the project named on the command line is opened.
    void firstActivated();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void scrollTo(int value);

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    ScreenMetrics screen_;
    QComboBox* selector_ = nullptr;
    QScrollBar* scroll_ = nullptr;
    QWidget* viewport_ = nullptr;
    QWidget* content_ = nullptr;
    QVBoxLayout* column_ = nullptr;
    Designer* designer_ = nullptr;
    std::optional<Appearance> appearance_;
    WindowPanel* window_ = nullptr;
    ButtonPanel* button_ = nullptr;
    TextPanel* text_ = nullptr;
    int activations_ = 0;
};

}  // namespace qor
