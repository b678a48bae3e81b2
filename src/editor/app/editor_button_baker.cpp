#include "editor/app/editor_button_baker.h"

#include "core/picture/bake_rules.h"
#include "editor/app/editor_windows.h"
#include "editor/designer/worksheet_surface.h"
#include "editor/designer/worksheet_window.h"

namespace qor {

void EditorButtonBaker::bakeAllButtons()
{
    if (!designer_ || !windows_.isLoaded(WindowId::Worksheet))
        return;
    designer_->select(0);
    WorksheetWindow& sheet = windows_.worksheet();
    WorksheetSurface surface(sheet);
    const BakeOutcome outcome = bakeButtons(designer_->context().project, windows_.screen(), sheet.palette(), surface);
    if (outcome.unwritable)
        dialogs_.message(bakeWriteFailedMessage(*outcome.unwritable));
}

void EditorButtonBaker::bakeButton(int number)
{
    if (!designer_ || !windows_.isLoaded(WindowId::Worksheet))
        return;
    WorksheetWindow& sheet = windows_.worksheet();
    WorksheetSurface surface(sheet);
    const BakeOutcome outcome =
        qor::bakeButton(designer_->context().project, number, windows_.screen(), sheet.palette(), surface);
    if (outcome.unwritable)
        dialogs_.message(bakeWriteFailedMessage(*outcome.unwritable));
}

}  // namespace qor
