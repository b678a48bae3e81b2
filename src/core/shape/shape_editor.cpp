#include "core/shape/shape_editor.h"

#include "core/shape/shape_pixels.h"

namespace qor {
namespace {

TwipsPoint at(ShapePoint p) { return {double(p.x), double(p.y)}; }

}  // namespace

ShapePoint shapePointAt(TwipsPoint at) { return {wholeCoordinate(at.x), wholeCoordinate(at.y)}; }

void ShapeEditor::open(const ShapePoints& projectShape)
{
    *this = ShapeEditor();
    for (std::size_t k = 1; k < projectShape.size(); ++k)
        oldEdges_.push_back({at(projectShape[k - 1]), at(projectShape[k])});
}

ShapeState ShapeEditor::state() const
{
    if (closed_)
        return ShapeState::Closed;
    return points_.empty() ? ShapeState::Empty : ShapeState::Drawing;
}

void ShapeEditor::press(int button, TwipsPoint pos)
{
    if (closed_)
        return;
    if (button == kRightButton) {
        if (!points_.empty())
            closePolygon();
        return;
    }
    if (button != kLeftButton)
        return;
    if (!points_.empty()) {
        points_.push_back(shapePointAt(pos));
        // The new edge is the rubber band as it stands: it ends where the
        // pointer last moved, which is where it was pressed in practice.
        newEdges_.push_back(rubber_);
    } else {
        points_.push_back(shapePointAt(pos));
        rubberVisible_ = true;
    }
    rubber_ = {pos, pos};
}

void ShapeEditor::closePolygon()
{
    newEdges_.push_back({at(points_.front()), at(points_.back())});
    points_.push_back(points_.front());
    rubberVisible_ = false;
    closed_ = true;
    previewEnabled_ = true;
}

bool ShapeEditor::move(TwipsPoint pos, bool leftHeld)
{
    if (!closed_ && !leftHeld)
        rubber_.to = pos;
    return closed_ && leftHeld;
}

void ShapeEditor::startLoad()
{
    points_.clear();
    newEdges_.clear();
}

void ShapeEditor::appendLoaded(ShapePoint p)
{
    points_.push_back(p);
    if (points_.size() >= 2)
        addEdge(points_[points_.size() - 2], p);
}

void ShapeEditor::finishLoad()
{
    closed_ = true;
    previewEnabled_ = true;
}

void ShapeEditor::previewShown(ShapePoints snapped)
{
    points_ = std::move(snapped);
    newEdges_.clear();
    oldEdges_.clear();
    previewEnabled_ = false;
}

void ShapeEditor::addEdge(ShapePoint from, ShapePoint to) { newEdges_.push_back({at(from), at(to)}); }

}  // namespace qor
