#include "editor/app/editor_shape_view.h"

#include <QLabel>
#include <QPushButton>

#include "core/designer/designer.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_text.h"
#include "editor/shape/shape_panel.h"
#include "editor/shape/shape_surface.h"
#include "editor/ui/mouse_position_window.h"

namespace qor {

EditorShapeView::~EditorShapeView()
{
    delete surface_;
    delete panel_;
}

void EditorShapeView::setOthersVisible(bool visible)
{
    QWidget* others[] = {&windows_.toolbox(), &windows_.main(), &windows_.properties(), &windows_.mousePosition()};
    for (QWidget* w : others)
        w->setVisible(visible);
}

void EditorShapeView::placeSurface()
{
    WorksheetWindow& sheet = windows_.worksheet();
    // Over the worksheet's client area exactly, the same size.
    surface_->move(sheet.mapToGlobal(QPoint(0, 0)));
    surface_->resize(sheet.size());
    const QLabel* picture = sheet.background();
    surface_->setBackground(sheet.backgroundColour(), picture->pixmap(), picture->size());
}

void EditorShapeView::showEditor()
{
    const QPoint toolboxPlace = windows_.toolbox().pos();
    setOthersVisible(false);
    panel_ = new ShapePanel(hooks_);
    panel_->setFlows(&flows_);
    panel_->move(toolboxPlace);
    surface_ = new ShapeSurface(windows_.screen(), hooks_);
    surface_->setFlows(&flows_);
    placeSurface();
    windows_.worksheet().showMinimized();
    surface_->show();
    panel_->show();
}

void EditorShapeView::closeEditor()
{
    windows_.worksheet().showNormal();
    setOthersVisible(true);
    // Closing may come from one of the panel's own buttons: the windows
    // go once the event that closed them is over.
    for (QWidget* w : {static_cast<QWidget*>(surface_), static_cast<QWidget*>(panel_)}) {
        if (!w)
            continue;
        if (auto* panel = qobject_cast<ShapePanel*>(w))
            panel->setFlows(nullptr);
        if (auto* surface = qobject_cast<ShapeSurface*>(w))
            surface->setFlows(nullptr);
        w->hide();
        w->deleteLater();
    }
    surface_ = nullptr;
    panel_ = nullptr;
}

void EditorShapeView::refresh()
{
    if (surface_)
        surface_->showState(flows_.editor());
    if (panel_)
        panel_->setPreviewEnabled(flows_.editor().previewEnabled());
}

void EditorShapeView::rubberBandMoved()
{
    if (surface_)
        surface_->moveBand(flows_.editor());
}

void EditorShapeView::cutSurface(const std::vector<PixelPoint>& outline)
{
    if (surface_)
        surface_->cutTo(outline);
}

void EditorShapeView::dragSurface()
{
    if (surface_)
        surface_->dragWithPointer();
}

std::string EditorShapeView::editorCaption()
{
    const int editor = int(ToolboxCommand::ShapeEditor);
    return fromQt(windows_.toolbox().command(editor)->text().remove(QLatin1Char('&')));
}

}  // namespace qor
