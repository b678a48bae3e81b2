#pragma once

#include <QColor>
#include <QLineF>
#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <vector>

#include "core/ports/screen.h"
#include "core/shape/shape_editor.h"
#include "editor/ui/window_hooks.h"
#include "model/shape_region.h"

class QLabel;

namespace qor {

class ShapeFlows;

// The shape editor's drawing surface ("Form16"): a borderless window over
// the worksheet showing its picture, the frame, the hint, the old shape's
// edges, the new edges and the rubber band. It draws the editor state it is
// shown and hands every press and move to the shape flows in twips.
class ShapeSurface : public QWidget {
    Q_OBJECT
public:
    static constexpr QRgb kOldEdgeColour = qRgb(192, 0, 0);

    ShapeSurface(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    void setFlows(ShapeFlows* flows) { flows_ = flows; }
    // The worksheet's background: colour, picture and the picture's size.
    void setBackground(const QColor& colour, const QPixmap& picture, QSize pictureSize);

    // Draws the state again; only the rubber band moved.
    void showState(const ShapeEditor& editor);
    void moveBand(const ShapeEditor& editor);
    // Keeps only the inside of the outline (window pixels) on screen.
    void cutTo(const std::vector<PixelPoint>& outline);
    // Follows the pointer as by a title bar while the left button is held.
    void dragWithPointer();

    QLabel* hint() const { return hint_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TwipsPoint twipsAt(QPointF pixels) const;
    QPointF pixelsAt(TwipsPoint twips) const;
    QRect bandRect() const;
    void drawLayer();

    ScreenMetrics screen_;
    ShapeFlows* flows_ = nullptr;
    QLabel* hint_ = nullptr;
    QColor colour_;
    QPixmap picture_;
    QSize pictureSize_;
    // Everything but the rubber band, drawn once per change: the band can
    // then follow the pointer with a repaint of its own rectangle only.
    QPixmap layer_;
    const ShapeEditor* shown_ = nullptr;
    bool bandVisible_ = false;
    QLineF band_;
    // Where the pointer took the surface, from its top-left corner, and
    // where the pointer is now (screen pixels).
    QPoint grabOffset_;
    QPoint lastPointer_;
};

}  // namespace qor
