#pragma once

#include <string>
#include <vector>

#include "model/shape_region.h"

namespace qor {

// The drawing surface and the panel "Forme" as the shape editor's flows
// drive them. The surface draws the ShapeEditor state it is given.
class ShapeView {
public:
    virtual ~ShapeView() = default;

    // Opening: the toolbox, the main window, the properties panel and the
    // mouse-position window hidden; the panel at the toolbox's place; the
    // surface over the worksheet's client area with its picture and colour;
    // the worksheet minimised; the surface shown, then the panel.
    virtual void showEditor() = 0;
    // Closing, whatever closed it: the worksheet back to normal, the four
    // windows shown again, the surface and the panel closed.
    virtual void closeEditor() = 0;

    // The surface's lines, hint or "Aperçu" changed: draw them again.
    virtual void refresh() = 0;
    // Only the rubber band moved.
    virtual void rubberBandMoved() = 0;
    // Cuts the surface to the outline (window pixels, winding fill).
    virtual void cutSurface(const std::vector<PixelPoint>& outline) = 0;
    // Moves the surface with the pointer, as by a title bar.
    virtual void dragSurface() = 0;

    // The toolbox command's caption in the current language.
    virtual std::string editorCaption() = 0;
};

}  // namespace qor
