#pragma once

#include <string>

#include "core/ports/screen.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QComboBox;
class QScrollBar;

namespace qor {

// The properties panel "Paramètres" ("Form4"): the element selector at the
// top and, below it, the content area that shows one panel at a time with a
// scroll bar at its right. Its width is fixed; the panels arrive with the
// designer.
class PropertiesPanel : public ToolWindow {
    Q_OBJECT
public:
    static constexpr double kWidth = 2985;

    explicit PropertiesPanel(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    QComboBox* elementSelector() const { return selector_; }
    // The selector back to its single entry "Feuille de travail", selected.
    void resetElementSelector();
    // An element's entry at the end of the selector.
    void addElementEntry(const std::string& entry);
    QScrollBar* scrollBar() const { return scroll_; }
    QWidget* contentArea() const { return content_; }

signals:
    // The first time the panel becomes the active window, and never again:
    // the moment the project named on the command line is opened.
    void firstActivated();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QComboBox* selector_ = nullptr;
    QScrollBar* scroll_ = nullptr;
    QWidget* content_ = nullptr;
    int activations_ = 0;
};

}  // namespace qor
