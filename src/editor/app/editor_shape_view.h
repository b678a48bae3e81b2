#pragma once

#include <QPointer>

#include "core/shape/shape_flows.h"
#include "core/shape/shape_view.h"
#include "editor/app/editor_windows.h"
#include "editor/shape/shape_panel.h"
#include "editor/shape/shape_surface.h"

namespace qor {

// The shape editor's two windows over the editor's others: made fresh at
// each opening, laid over the worksheet and the toolbox, discarded at each
// closing. They only draw the flows' state and forward input.
class EditorShapeView final : public ShapeView {
public:
    EditorShapeView(EditorWindows& windows, ShapeFlows& flows, WindowHooks& hooks)
        : windows_(windows), flows_(flows), hooks_(hooks)
    {
    }
    ~EditorShapeView() override;

    void showEditor() override;
    void closeEditor() override;
    void refresh() override;
    void rubberBandMoved() override;
    void cutSurface(const std::vector<PixelPoint>& outline) override;
    void dragSurface() override;
    std::string editorCaption() override;

    // While the editor is open; nullptr otherwise.
    ShapeSurface* surface() const { return surface_; }
    ShapePanel* panel() const { return panel_; }

private:
    void setOthersVisible(bool visible);
    void placeSurface();

    EditorWindows& windows_;
    ShapeFlows& flows_;
    WindowHooks& hooks_;
    QPointer<ShapeSurface> surface_;
    QPointer<ShapePanel> panel_;
};

}  // namespace qor
