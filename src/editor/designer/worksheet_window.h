#pragma once

#include <QPointer>
#include <QStringList>

#include <array>
#include <map>

#include "core/designer/worksheet_flows.h"
#include "core/ports/screen.h"
#include "editor/designer/worksheet_elements.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QColor;
class QLabel;

namespace qor {

// The worksheet ("Form3"): the menu window being designed, at its real size,
// with the background element "Image1" filling its inner area, the button
// and text elements standing on it, the four selection handles and the
// "Veuillez patienter..." overlay above everything. Presses, moves, drops
// and keys go to the designer's worksheet flows; the window only carries
// out what they decide.
class WorksheetWindow : public ToolWindow {
    Q_OBJECT
public:
    static constexpr double kDefaultWidth = 12000;
    static constexpr double kDefaultHeight = 9000;

    explicit WorksheetWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    // Where the pointer and the keys go; nothing happens before.
    void setFlows(WorksheetFlows* flows) { flows_ = flows; }

    QLabel* background() const { return background_; }
    // The menu window's background colour, behind its picture.
    void setBackgroundColour(const QColor& colour);
    QColor backgroundColour() const;
    // Stretched, the background fills the inner area; otherwise it shows
    // the picture at its own size.
    void setBackgroundStretched(bool stretched);
    QSize backgroundPictureSize() const;

    // Whether the selected element shows its handles (the option "Afficher
    // les points délimitant les objets"): off hides them at once.
    void setSelectionHandlesVisible(bool visible);
    bool selectionHandlesVisible() const { return handlesVisible_; }
    // The handles at these top-left corners (pixels), or hidden.
    void showHandles(const std::array<QPoint, 4>& corners);
    void hideHandles();
    QWidget* handle(int i) const { return handles_[std::size_t(i)]; }

    // The elements, made on first use (number 0 is each kind's template).
    ButtonElement& button(int number);
    TextElement& text(int number);
    bool hasButton(int number) const { return buttons_.contains(number); }
    bool hasText(int number) const { return texts_.contains(number); }
    // Every element but the two templates goes (a reset).
    void removeElements();
    // Brings an element forward; the overlay stays above it.
    void bringToFront(QWidget& element);
    QLabel* overlay() const { return overlay_; }

signals:
    // Files dropped from the desktop on the worksheet, in the order given.
    void filesDropped(const QStringList& paths);
    // The window took a new size (its background has followed); byUser
    // when the window system resized it (the user dragged its frame).
    void resized(bool byUser);
    // Delete, F5 or F1 pressed on the worksheet.
    void keyCommand(int key);
    // The pointer moved over the background (no element under it).
    void pointerOverBackground();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    WorksheetTarget targetAt(QPoint pos, const QWidget* skip = nullptr) const;
    // The element a watched widget belongs to (a text box's viewport is its box).
    WorksheetTarget targetOf(QWidget* watched) const;
    TwipsPoint twipsIn(WorksheetTarget target, QPoint pos) const;
    QWidget* elementOf(WorksheetTarget target);
    void watch(QWidget* element);
    bool mousePressed(QWidget* element, QMouseEvent* event);
    void mouseMoved(QMouseEvent* event);
    void mouseReleased(QMouseEvent* event);
    void placeBackground();

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    ScreenMetrics screen_;
    WorksheetFlows* flows_ = nullptr;
    QLabel* background_ = nullptr;
    QLabel* overlay_ = nullptr;
    std::array<QWidget*, 4> handles_{};
    std::map<int, ButtonElement*> buttons_;
    std::map<int, TextElement*> texts_;
    bool handlesVisible_ = true;
    bool stretched_ = true;
    // The element being dragged, and where inside it the pointer took it.
    QPointer<QWidget> dragged_;
    WorksheetTarget draggedTarget_;
    QPoint grabPixels_;
};

}  // namespace qor
