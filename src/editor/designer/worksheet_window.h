#pragma once

#include "core/ports/screen.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QLabel;

namespace qor {

// The worksheet ("Form3"): the menu window being designed, at its real size,
// with the background element "Image1" filling its inner area. The elements
// on it arrive with the designer.
class WorksheetWindow : public ToolWindow {
    Q_OBJECT
public:
    static constexpr double kDefaultWidth = 12000;
    static constexpr double kDefaultHeight = 9000;

    explicit WorksheetWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    QLabel* background() const { return background_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* background_ = nullptr;
};

}  // namespace qor
