#include "editor/ui/splash_window.h"

#include <QCloseEvent>
#include <QImage>
#include <QPainter>
#include <QResource>

#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

// Resources live in the editor library; a static library must register them
// by hand.
static void registerEditorResources()
{
    Q_INIT_RESOURCE(editor);
}

namespace qor {
namespace {

// The picture is kept as raw 8-bit red, green and blue rows, top row first:
// it is on screen at once, without an image decoder to find, load and run
// while the editor starts.
constexpr int kPictureWidth = 308;
constexpr int kPictureHeight = 146;

QPixmap splashPicture()
{
    const QResource resource(QStringLiteral(":/qor/splash.rgb"));
    const QByteArray rows = resource.uncompressedData();
    if (rows.size() != qsizetype(kPictureWidth) * kPictureHeight * 3)
        return {};
    const QImage picture(reinterpret_cast<const uchar*>(rows.constData()), kPictureWidth, kPictureHeight,
                         kPictureWidth * 3, QImage::Format_RGB888);
    return QPixmap::fromImage(picture);
}

}  // namespace

SplashWindow::SplashWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    registerEditorResources();
    named(this, WindowId::Splash);
    setAttribute(Qt::WA_DeleteOnClose, false);
    picture_ = splashPicture();
    setFixedSize(twipsToPixels(kWidth, kHeight, screen));
    timer_.setSingleShot(true);
    timer_.setInterval(kTimeoutMs);
    connect(&timer_, &QTimer::timeout, this, &QWidget::close);
    runLoadHooks(*this, hooks);
}

void SplashWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (picture_.isNull())
        painter.fillRect(rect(), palette().window());
    else
        painter.drawPixmap(rect(), picture_);
    if (!painted_) {
        painted_ = true;
        emit picturePainted();
    }
}

void SplashWindow::mousePressEvent(QMouseEvent*)
{
    close();
}

void SplashWindow::keyPressEvent(QKeyEvent*)
{
    close();
}

void SplashWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    closedOnce_ = false;
    timer_.start();
}

void SplashWindow::closeEvent(QCloseEvent* event)
{
    timer_.stop();
    event->accept();
    if (!closedOnce_) {
        closedOnce_ = true;
        emit closed();
    }
}

}  // namespace qor
