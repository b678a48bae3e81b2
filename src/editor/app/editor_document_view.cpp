#include "editor/app/editor_document_view.h"

#include "core/project/file_info.h"
#include "editor/app/editor_windows.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/colours.h"
#include "editor/project/file_info_window.h"

namespace qor {

void EditorDocumentView::showFileInfo(const FileInfo& info, const AuthorFields& fields)
{
    FileInfoWindow& window = windows_.fileInfo();
    if (window.isVisible())
        return;
    window.setNotesRule(cleanNotes);
    window.fill({info.topLine, info.editor, info.version, info.fileVersion, fields.name, fields.email,
                 fields.webSite, fields.notes});
    // One connection per opening: the window is reused.
    QObject::disconnect(&window, &QDialog::accepted, nullptr, nullptr);
    QObject::connect(&window, &QDialog::accepted, &window, [this, &window] {
        const FileInfoView v = window.values();
        if (authorFieldsAccepted)
            authorFieldsAccepted({v.authorName, v.authorEmail, v.authorWebSite, v.notes});
    });
    // Centred on the screen: over the short main window it would be pushed
    // against the screen's top.
    window.adjustSize();
    const ScreenMetrics& screen = windows_.screen();
    window.move((int(screen.widthPixels()) - window.width()) / 2, (int(screen.heightPixels()) - window.height()) / 2);
    window.open();
}

void EditorDocumentView::projectReplaced(const MenuProject& project)
{
    if (!windows_.isLoaded(WindowId::Worksheet))
        return;
    WorksheetWindow& sheet = windows_.worksheet();
    // A full-screen menu has no size of its own: the worksheet keeps its own.
    if (!project.fullScreen)
        windows_.setOuterSize(sheet, project.width, project.height);
    sheet.setBackgroundColour(toQColor(project.backgroundColor, sheet.palette()));
    if (afterProjectReplaced)
        afterProjectReplaced();
}

}  // namespace qor
