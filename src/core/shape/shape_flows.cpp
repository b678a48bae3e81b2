#include "core/shape/shape_flows.h"

#include "core/shape/shape_file.h"
#include "core/shape/shape_messages.h"
#include "core/shape/shape_pixels.h"
#include "text/line_file.h"

namespace qor {
namespace {

constexpr const char* kShapeFilter = "Fichier Forme QOR *.ffl | *.ffl";

}  // namespace

void ShapeFlows::open()
{
    if (open_ || !view_)
        return;
    editor_.open(project_.shapePoints);
    open_ = true;
    view_->showEditor();
    view_->refresh();
}

void ShapeFlows::close()
{
    if (!open_)
        return;
    open_ = false;
    editor_.open({});
    view_->closeEditor();
}

void ShapeFlows::press(int button, TwipsPoint at)
{
    const ShapeState before = editor_.state();
    const std::size_t edges = editor_.newEdges().size();
    editor_.press(button, at);
    if (editor_.state() != before || editor_.newEdges().size() != edges)
        view_->refresh();
    else
        view_->rubberBandMoved();
}

void ShapeFlows::move(TwipsPoint at, bool leftHeld)
{
    if (editor_.move(at, leftHeld))
        view_->dragSurface();
    else if (!editor_.closed())
        view_->rubberBandMoved();
}

void ShapeFlows::pointerOverHint()
{
    if (!editor_.hintVisible())
        return;
    editor_.hideHint();
    view_->refresh();
}

void ShapeFlows::preview()
{
    if (!editor_.previewEnabled())
        return;
    const ScreenMetrics screen = ports_.screen.metrics();
    const auto pixels = shapeInPixels(editor_.points(), screen.twipsPerPixelX, screen.twipsPerPixelY);
    editor_.previewShown(shapeInTwips(pixels, screen.twipsPerPixelX, screen.twipsPerPixelY));
    view_->refresh();
    // An empty list has nothing to cut: the surface stays as it is.
    if (!pixels.empty())
        view_->cutSurface(pixels);
}

void ShapeFlows::restart()
{
    if (ports_.dialogs.message(restartQuestion(ports_.phrases, view_->editorCaption())) != Answer::Yes)
        return;
    close();
    open();
}

void ShapeFlows::noShape()
{
    if (ports_.dialogs.message(shapeMessage(ShapeMessage::ClearShape)) == Answer::No)
        return;
    project_.shapePoints.clear();
    close();
}

void ShapeFlows::validate()
{
    if (refuseWhileDrawing(ShapeMessage::FinishBeforeValidate))
        return;
    if (!editor_.points().empty())
        project_.shapePoints = editor_.points();
    close();
}

void ShapeFlows::cancel()
{
    if (ports_.dialogs.message(shapeMessage(ShapeMessage::AbandonShape)) != Answer::Yes)
        return;
    close();
}

bool ShapeFlows::refuseWhileDrawing(ShapeMessage which)
{
    if (!editor_.drawing())
        return false;
    ports_.dialogs.message(shapeMessage(which));
    return true;
}

void ShapeFlows::load()
{
    if (refuseWhileDrawing(ShapeMessage::FinishBeforeLoad))
        return;
    // A cancelled dialog is the silent error: nothing happens.
    // Loading lists every file; only saving offers the shape filter.
    const auto path = ports_.dialogs.openFile({"Charger une forme...", "", "", ""});
    if (!path || path->empty())
        return;
    loadFile(*path);
}

void ShapeFlows::loadFile(const std::string& path)
{
    ShapeFileRead read = readShapeFileAt(path);
    if (read.started) {
        editor_.startLoad();
        for (const ShapePoint& p : read.points)
            editor_.appendLoaded(p);
        if (!read.error)
            editor_.finishLoad();
        view_->refresh();
    }
    if (read.error)
        ports_.dialogs.message(shapeFileErrorMessage(*read.error));
}

void ShapeFlows::save()
{
    if (refuseWhileDrawing(ShapeMessage::FinishBeforeSave))
        return;
    const auto path = ports_.dialogs.saveFile({"Enregistrer la forme sous...", kShapeFilter, "", ""});
    if (!path || path->empty())
        return;
    // The name is used as given: no extension is added.
    Status written = writeFileAtomically(*path, shapeFileBytes(editor_.points(), project_.shapePoints));
    if (!written)
        ports_.dialogs.message(shapeFileErrorMessage(inFrench(written.error())));
}

}  // namespace qor
