#include "tools/qorc_baker.h"

#include <QPalette>

#include "core/picture/bake_rules.h"
#include "picture/worksheet_scene.h"

namespace qor {
namespace {

ScreenMetrics screenOf(double twipsPerPixel)
{
    ScreenMetrics screen;
    screen.twipsPerPixelX = screen.twipsPerPixelY = twipsPerPixel;
    return screen;
}

}  // namespace

void HeadlessBaker::bakeAllButtons()
{
    const ScreenMetrics screen = screenOf(twipsPerPixel_);
    const QPalette palette;
    WorksheetScene scene(project_, screen, palette);
    report(bakeButtons(project_, screen, palette, scene).unwritable);
}

void HeadlessBaker::bakeButton(int number)
{
    const ScreenMetrics screen = screenOf(twipsPerPixel_);
    const QPalette palette;
    WorksheetScene scene(project_, screen, palette);
    report(qor::bakeButton(project_, number, screen, palette, scene).unwritable);
}

void HeadlessBaker::report(const std::optional<std::string>& unwritable)
{
    if (!unwritable)
        return;
    failed_ = true;
    dialogs_.message(bakeWriteFailedMessage(*unwritable));
}

}  // namespace qor
