#include "editor/designer/worksheet_window.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QResizeEvent>
#include <QUrl>

#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {

WorksheetWindow::WorksheetWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : ToolWindow(nullptr, Qt::Window)
{
    named(this, WindowId::Worksheet);
    setWindowTitle(QStringLiteral("Feuille de travail"));
    background_ = new QLabel(this);
    named(background_, "Image1");
    background_->setScaledContents(true);
    // The usual menu size until start-up gives the worksheet the default one.
    resizeTwips(*this, kDefaultWidth, kDefaultHeight, screen);
    setAcceptDrops(true);
    runLoadHooks(*this, hooks);
}

void WorksheetWindow::setBackgroundColour(const QColor& colour)
{
    QPalette p = palette();
    p.setColor(QPalette::Window, colour);
    setPalette(p);
    setAutoFillBackground(true);
}

QColor WorksheetWindow::backgroundColour() const
{
    return palette().color(QPalette::Window);
}

void WorksheetWindow::resizeEvent(QResizeEvent* event)
{
    ToolWindow::resizeEvent(event);
    background_->setGeometry(rect());
}

namespace {

QStringList localFiles(const QMimeData* data)
{
    QStringList files;
    if (data)
        for (const QUrl& url : data->urls())
            if (url.isLocalFile())
                files << url.toLocalFile();
    return files;
}

}  // namespace

void WorksheetWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void WorksheetWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    emit filesDropped(files);
}

}  // namespace qor
