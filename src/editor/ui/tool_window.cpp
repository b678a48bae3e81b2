#include "editor/ui/tool_window.h"

#include <QCloseEvent>

namespace qor {

ToolWindow::ToolWindow(QWidget* parent, Qt::WindowFlags flags) : QWidget(parent, flags) {}

void ToolWindow::closeEvent(QCloseEvent* event)
{
    if (released_)
        event->accept();
    else
        event->ignore();
}

}  // namespace qor
