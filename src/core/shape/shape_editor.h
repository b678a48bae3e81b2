#pragma once

#include <vector>

#include "core/ports/screen.h"
#include "model/shape_block.h"

namespace qor {

// A line of the drawing surface, in twips. The rubber band and the edges
// it leaves behind keep the pointer's fractional position.
struct ShapeEdge {
    TwipsPoint from;
    TwipsPoint to;
    friend bool operator==(const ShapeEdge&, const ShapeEdge&) = default;
};

enum class ShapeState { Empty, Drawing, Closed };

// The pointer buttons as the drawing surface reports them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

// What the drawing surface holds while the shape editor is open: the
// working list and its edges, the old shape's edges, the rubber band, the
// hint, and whether "Aperçu" may be used. Pure state and its rules; the
// surface only draws it.
class ShapeEditor {
public:
    // A fresh surface over the project's shape: nothing drawn, the old
    // edges from the project's points.
    void open(const ShapePoints& projectShape);

    ShapeState state() const;
    // Drawing in progress: what "Charger", "Valider" and "Sauver" refuse.
    bool drawing() const { return rubberVisible_; }
    bool closed() const { return closed_; }
    bool previewEnabled() const { return previewEnabled_; }
    bool hintVisible() const { return hintVisible_; }
    bool rubberBandVisible() const { return rubberVisible_; }
    const ShapeEdge& rubberBand() const { return rubber_; }
    const ShapePoints& points() const { return points_; }
    const std::vector<ShapeEdge>& newEdges() const { return newEdges_; }
    const std::vector<ShapeEdge>& oldEdges() const { return oldEdges_; }

    // A button pressed over the picture at a position in twips.
    void press(int button, TwipsPoint at);
    // The pointer moved; true when the surface is to be dragged instead.
    bool move(TwipsPoint at, bool leftHeld);
    // The pointer passed over the hint: gone until the editor closes.
    void hideHint() { hintVisible_ = false; }

    // Loading a shape file: the working list and its edges emptied, then
    // the points one by one, then closed with "Aperçu" enabled. A load
    // that stops half-way keeps what it read and the state it found.
    void startLoad();
    void appendLoaded(ShapePoint p);
    void finishLoad();

    // The preview: every edge goes for good, the list takes the pixel
    // grid's values and "Aperçu" waits for the next close or load.
    void previewShown(ShapePoints snapped);

private:
    void addEdge(ShapePoint from, ShapePoint to);
    void closePolygon();

    ShapePoints points_;
    std::vector<ShapeEdge> newEdges_;
    std::vector<ShapeEdge> oldEdges_;
    ShapeEdge rubber_;
    bool rubberVisible_ = false;
    bool closed_ = false;
    bool previewEnabled_ = false;
    bool hintVisible_ = true;
};

// A pointer position in twips as a shape point: each axis rounded to the
// nearest whole twip, halves to even, kept within 32 bits.
ShapePoint shapePointAt(TwipsPoint at);

}  // namespace qor
