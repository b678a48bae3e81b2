#include "editor/app/editor_build_view.h"

#include <QLabel>

#include "core/build/build_flows.h"
#include "editor/app/editor_windows.h"
#include "editor/build/compile_dialog.h"
#include "editor/build/test_run_watcher.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"
#include "editor/scripting/script_editor_window.h"

namespace qor {

EditorBuildView::EditorBuildView(EditorWindows& windows, WindowHooks& hooks) : windows_(windows), hooks_(hooks) {}

EditorBuildView::~EditorBuildView()
{
    delete dialog_;
}

void EditorBuildView::discardCompileDialog()
{
    delete dialog_;
}

void EditorBuildView::openCompileDialog(const CompileRequest& fields, const std::string& iconPath)
{
    if (!build_)
        return;
    dialog_ = new CompileDialog(*build_, fields, toQt(iconPath), hooks_);
    dialog_->show();
}

void EditorBuildView::showNoticePanels(bool shown)
{
    if (!notice_ && windows_.loaded()) {
        WorksheetWindow& sheet = windows_.worksheet();
        notice_ = named(new QLabel(QStringLiteral("Veuillez patienter..."), &sheet), "Label1");
        notice_->setAlignment(Qt::AlignCenter);
        notice_->setFrameShape(QFrame::Box);
        notice_->setAutoFillBackground(true);
    }
    if (notice_) {
        notice_->setGeometry(notice_->parentWidget()->rect().adjusted(40, 40, -40, -40));
        notice_->setVisible(shown);
        // It stands above every element of the worksheet.
        notice_->raise();
    }
    if (windows_.scriptEditorBuilt())
        if (auto* panel = windows_.scriptEditor().findChild<QLabel*>(QStringLiteral("Label2"))) {
            panel->setGeometry(panel->parentWidget()->rect());
            panel->setVisible(shown);
            panel->raise();
        }
}

void EditorBuildView::setWorksheetMinimised(bool minimised)
{
    if (!windows_.loaded())
        return;
    WorksheetWindow& sheet = windows_.worksheet();
    if (minimised)
        sheet.showMinimized();
    else
        sheet.showNormal();
}

Status EditorBuildView::watchPlayer(const std::string& program, const std::vector<std::string>& arguments)
{
    QStringList args;
    for (const auto& a : arguments)
        args << toQt(a);
    TestRunWatcher watcher(hooks_);
    return watcher.run(toQt(program), args);
}

}  // namespace qor
