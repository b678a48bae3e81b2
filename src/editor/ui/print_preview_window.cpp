#include "editor/ui/print_preview_window.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/picture/print_preview_rules.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "picture/bmp_file.h"
#include "text/error.h"

namespace qor {
namespace pp = print_preview;
namespace {

struct CommandRow {
    const char* name;
    const char* caption;
};
// The commands from left to right.
constexpr CommandRow kCommands[] = {
    {"Command1", "Imprimer"}, {"Command2", "Zoom +"},        {"Command3", "Zoom -"},
    {"Command5", "Enregistrer"}, {"Command6", "Presse papier"}, {"Command4", "Fermer"},
};

}  // namespace

PrintPreviewWindow::PrintPreviewWindow(Dialogs& dialogs, const ScreenMetrics& screen, const QString& captureFile,
                                       QWidget* worksheet, WindowHooks& hooks)
    : dialogs_(dialogs), screen_(screen), captureFile_(captureFile), worksheet_(worksheet)
{
    named(this, WindowId::PrintPreview);
    setWindowTitle(QStringLiteral("Imprimer..."));
    setAttribute(Qt::WA_DeleteOnClose);
    build();
    resize(640, 480);
    runLoadHooks(*this, hooks);
}

PrintPreviewWindow::~PrintPreviewWindow()
{
    // A file already gone is no matter.
    QFile::remove(captureFile_);
}

void PrintPreviewWindow::build()
{
    auto* row = new QHBoxLayout;
    for (const CommandRow& c : kCommands)
        row->addWidget(named(new QPushButton(QString::fromUtf8(c.caption), this), c.name));
    row->addStretch();
    auto* column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(new QLabel(QStringLiteral("Aperçu :"), this));
    column->addStretch();
    area_ = named(new QWidget(this), "Picture2");
    image_ = named(new QLabel(area_), "Image1");
    image_->setScaledContents(true);
    hBar_ = named(new QScrollBar(Qt::Horizontal, area_), "HScroll1");
    vBar_ = named(new QScrollBar(Qt::Vertical, area_), "VScroll1");
    corner_ = named(new QWidget(area_), "Picture3");
    corner_->setAutoFillBackground(true);
    corner_->installEventFilter(this);
    connect(command("Command1"), &QPushButton::clicked, this, &PrintPreviewWindow::print);
    connect(command("Command2"), &QPushButton::clicked, this, [this] { zoom(true); });
    connect(command("Command3"), &QPushButton::clicked, this, [this] { zoom(false); });
    connect(command("Command5"), &QPushButton::clicked, this, &PrintPreviewWindow::save);
    connect(command("Command6"), &QPushButton::clicked, this, &PrintPreviewWindow::copyToClipboard);
    connect(command("Command4"), &QPushButton::clicked, this, &QWidget::close);
    connect(hBar_, &QScrollBar::valueChanged, this, &PrintPreviewWindow::scrolled);
    connect(vBar_, &QScrollBar::valueChanged, this, &PrintPreviewWindow::scrolled);
}

QPushButton* PrintPreviewWindow::command(const char* name) const
{
    return findChild<QPushButton*>(QString::fromUtf8(name));
}

bool PrintPreviewWindow::showCapture(const QImage& capture, int entry)
{
    capture_ = capture;
    if (saveBmp(capture, captureFile_))
        return false;
    QImageReader reader(captureFile_);
    const QImage shown = reader.read();
    image_->setPixmap(QPixmap::fromImage(shown));
    width_ = shown.width() * screen_.twipsPerPixelX;
    height_ = shown.height() * screen_.twipsPerPixelY;
    layOut();
    show();
    activateWindow();
    command(std::string(pp::entry(entry).commandName).c_str())->setFocus();
    return true;
}

void PrintPreviewWindow::layOut()
{
    const QPoint at(layout()->contentsMargins().left(), command("Command1")->geometry().bottom() + 24);
    const pp::Layout l = pp::layout(width(), height(), at.x(), at.y(), vBar_->sizeHint().width(),
                                    hBar_->sizeHint().height());
    auto place = [](QWidget* w, const std::optional<PixelRect>& r) {
        if (r)
            w->setGeometry(r->left, r->top, r->width, r->height);
    };
    place(area_, l.area);
    place(vBar_, l.vertical);
    place(hBar_, l.horizontal);
    place(corner_, l.corner);
    corner_->raise();
    vBar_->raise();
    hBar_->raise();
    vBar_->setMaximum(pp::scrollMaximum(height_));
    hBar_->setMaximum(pp::scrollMaximum(width_));
    scrolled();
}

void PrintPreviewWindow::scrolled()
{
    image_->setGeometry(twipsToPixels(pp::scrollOffset(hBar_->value()), screen_.twipsPerPixelX),
                        twipsToPixels(pp::scrollOffset(vBar_->value()), screen_.twipsPerPixelY),
                        twipsToPixels(width_, screen_.twipsPerPixelX), twipsToPixels(height_, screen_.twipsPerPixelY));
}

void PrintPreviewWindow::zoom(bool in)
{
    width_ = in ? pp::zoomedIn(width_) : pp::zoomedOut(width_);
    height_ = in ? pp::zoomedIn(height_) : pp::zoomedOut(height_);
    layOut();
}

void PrintPreviewWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

bool PrintPreviewWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == corner_ && event->type() == QEvent::MouseButtonRelease) {
        hBar_->setValue(0);
        vBar_->setValue(0);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PrintPreviewWindow::save()
{
    const auto path = dialogs_.saveFile(pp::saveRequest(fromQt(QDir::currentPath())));
    if (!path || path->empty())
        return;
    if (const auto failure = saveBmp(capture_, toQt(pp::bmpSavePath(*path))))
        dialogs_.message(pp::saveFailedMessage(err::PathFileAccess, fromQt(*failure)));
}

void PrintPreviewWindow::copyToClipboard()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setImage(capture_);
    if (clipboard->image().isNull()) {
        dialogs_.message(pp::clipboardRefusedMessage());
        return;
    }
    dialogs_.message(pp::clipboardCopiedMessage());
}

void PrintPreviewWindow::print()
{
    if (QPrinterInfo::availablePrinters().isEmpty() || !worksheet_) {
        dialogs_.message(pp::noPrinterMessage());
        return;
    }
    QPrinter printer(QPrinterInfo::defaultPrinter());
    QPainter painter(&printer);
    // The worksheet at the printer's resolution, from the page's corner.
    const double scale = printer.resolution() / double(worksheet_->logicalDpiX());
    painter.scale(scale, scale);
    worksheet_->render(&painter);
}

}  // namespace qor
