#pragma once

#include <QStringList>

#include "core/ports/screen.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QColor;
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

    // The menu window's background colour, behind its picture.
    void setBackgroundColour(const QColor& colour);
    QColor backgroundColour() const;

    // Whether the selected element shows its handles (the option "Afficher
    // les points délimitant les objets"); the elements read it when they
    // are selected.
    void setSelectionHandlesVisible(bool visible) { handlesVisible_ = visible; }
    bool selectionHandlesVisible() const { return handlesVisible_; }

signals:
    // Files dropped from the desktop on the worksheet, in the order given.
    void filesDropped(const QStringList& paths);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QLabel* background_ = nullptr;
    bool handlesVisible_ = true;
};

}  // namespace qor
