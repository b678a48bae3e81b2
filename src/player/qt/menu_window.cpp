#include "player/qt/menu_window.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <cmath>

#include "player/core/pixels.h"
#include "player/qt/colours.h"
#include "player/qt/cursors.h"
#include "player/qt/message_boxes.h"
#include "player/qt/window_mask.h"

namespace qor::player {

MenuWindow::MenuWindow(QWidget* parent) : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("Fenetre"));
    setMouseTracking(true);
    screen_ = screen();
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (player_)
            player_->timerTick();
    });
}

MenuWindow::~MenuWindow() = default;

ScreenInfo MenuWindow::screen() const
{
    ScreenInfo info;
    // The menu is laid out at 15 twips per pixel on every screen: Qt's
    // pixels are those of a 96-dpi screen, and Qt scales the whole window,
    // pictures and text, by the screen's factor.
    if (const QScreen* s = QGuiApplication::primaryScreen()) {
        info.width = s->geometry().width();
        info.height = s->geometry().height();
    }
    info.reducesWholeWindow = true;
    return info;
}

int MenuWindow::px(double twips) const { return twipsToPixels(twips, screen_.twipsPerPixelX / scale_); }
int MenuWindow::py(double twips) const { return twipsToPixels(twips, screen_.twipsPerPixelY / scale_); }
int MenuWindow::scaled(int layoutPixels) const { return int(std::lround(layoutPixels * scale_)); }

std::optional<ImageSize> MenuWindow::imageSize(const std::string& path)
{
    const QPixmap& pixmap = images_.pixmap(path);
    if (pixmap.isNull())
        return std::nullopt;
    return ImageSize{pixmap.width(), pixmap.height()};
}

void MenuWindow::show(const Scene& scene)
{
    buttonScenes_ = scene.buttons;
    textScenes_ = scene.texts;
    texts_.assign(textScenes_.size(), nullptr);
    for (std::size_t i = 0; i < buttonScenes_.size(); ++i) {
        buttons_.push_back(new ButtonWidget(i, this, [this](std::size_t n, ButtonWidget::Input in) { buttonInput(n, in); }));
        placeButton(i, buttonScenes_[i]);
    }
    createTexts(kTextsAtOnce);
    windowChanged(scene.window);
    QTimer::singleShot(0, this, [this] { warmImages(); });
}

// Text boxes are heavy widgets: a menu with thousands of them gets its
// window at once and the rest batch by batch, the window answering the user
// between batches. A box not made yet keeps its scene until it is.
void MenuWindow::createTexts(std::size_t count)
{
    const std::size_t end = std::min(texts_.size(), textsMade_ + count);
    for (; textsMade_ < end; ++textsMade_) {
        const std::size_t i = textsMade_;
        auto* box = new TextBox(
            i, this, [this](std::size_t n, std::string text) { if (player_) player_->textEdited(n, std::move(text)); },
            [this] { if (player_) player_->pointerLeavesBackground(); });
        texts_[i] = box;
        // Text boxes stand above the buttons, as the worksheet shows them:
        // they come after the buttons in the data.
        textChanged(i, textScenes_[i]);
    }
    if (textsMade_ < texts_.size())
        QTimer::singleShot(0, this, [this] { createTexts(kTextsAtOnce); });
}

// The hover and pressed images are decoded while nobody waits for them.
void MenuWindow::warmImages()
{
    for (const ButtonScene& b : buttonScenes_) {
        images_.warm(b.hoverImage);
        images_.warm(b.pressedImage);
    }
}

void MenuWindow::windowChanged(const WindowScene& w)
{
    const bool outlineChanged = w.shape != window_.shape || w.transparencyImage != window_.transparencyImage;
    const bool backgroundChanged = w.backgroundImage != window_.backgroundImage || w.stretch != window_.stretch;
    const bool pointersChanged = !pointersSet_ || w.cursor != window_.cursor || w.screenCursor != window_.screenCursor ||
                                 w.handOverButtons != window_.handOverButtons;
    window_ = w;
    setWindowTitle(QString::fromStdString(w.caption));
    if (outlineChanged)
        transparency_ = w.transparencyImage.empty() ? QImage() : images_.pixmap(w.transparencyImage).toImage();
    if (backgroundChanged)
        background_ = QPixmap();
    applyGeometry(w);
    if (outlineChanged)
        applyMask();
    if (pointersChanged)
        applyPointers();
    pointersSet_ = true;
    update();
}

void MenuWindow::applyGeometry(const WindowScene& w)
{
    const QScreen* s = QGuiApplication::primaryScreen();
    const QRect area = s ? s->availableGeometry() : QRect();
    const double before = scale_;
    scale_ = w.fullScreen ? 1
                          : windowScale(1, w.width / screen_.twipsPerPixelX, w.height / screen_.twipsPerPixelY,
                                        area.width(), area.height());
    if (scale_ != before) {
        // Everything in the window takes the new scale.
        background_ = QPixmap();
        for (std::size_t i = 0; i < buttons_.size(); ++i)
            placeButton(i, buttonScenes_[i]);
        for (std::size_t i = 0; i < textsMade_; ++i)
            placeText(i, textScenes_[i]);
        maskSize_ = QSize();
    }
    if (w.fullScreen) {
        if (s)
            setGeometry(s->geometry());
    } else if (!isMaximized()) {
        const int width = std::max(1, px(w.width));
        const int height = std::max(1, py(w.height));
        // Reduced, it takes the middle of the free area.
        const QPoint at = scale_ < 1 ? QPoint(area.left() + (area.width() - width) / 2, area.top() + (area.height() - height) / 2)
                                     : QPoint(px(w.left), py(w.top));
        setGeometry(at.x(), at.y(), width, height);
    }
    // Only what a script changed: a window the user minimised stays so while
    // the timer changes its caption.
    const int state = w.visible ? w.windowState : -1;
    if (state == shownState_)
        return;
    shownState_ = state;
    if (!w.visible)
        hide();
    else if (w.windowState == 1)
        showMinimized();
    else if (w.windowState == 2)
        showMaximized();
    else
        showNormal();
}

void MenuWindow::applyMask()
{
    maskSize_ = size();
    std::vector<PixelPoint> outline = window_.shape;
    for (PixelPoint& p : outline)
        p = PixelPoint{scaled(p.x), scaled(p.y)};
    const QRegion region = windowMask(size(), outline, transparency_);
    if (region.isEmpty())
        clearMask();
    else
        setMask(region);
}

void MenuWindow::resizeEvent(QResizeEvent*)
{
    background_ = QPixmap();
    if (maskSize_ != size() && (!transparency_.isNull() || scale_ != 1))
        applyMask();
}

void MenuWindow::applyPointers()
{
    applyPointer(*this, pointerOver(window_, window_.cursor, false));
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        applyPointer(*buttons_[i], pointerOver(window_, buttonScenes_[i].cursor, true));
    for (std::size_t i = 0; i < textsMade_; ++i)
        textChanged(i, textScenes_[i]);
}

void MenuWindow::buttonChanged(std::size_t index, const ButtonScene& button)
{
    if (index >= buttons_.size())
        return;
    const bool pointer = !(button.cursor == buttonScenes_[index].cursor);
    buttonScenes_[index] = button;
    placeButton(index, button);
    if (pointer)
        applyPointer(*buttons_[index], pointerOver(window_, button.cursor, true));
}

void MenuWindow::placeButton(std::size_t index, const ButtonScene& b)
{
    ButtonWidget* w = buttons_[index];
    w->setPictures(images_.pixmap(b.normalImage), images_.pixmap(b.shownImage()), scale_);
    w->move(px(b.left), py(b.top));
    w->setVisible(b.visible);
}

void MenuWindow::textChanged(std::size_t index, const TextScene& text)
{
    if (index >= texts_.size())
        return;
    textScenes_[index] = text;
    TextBox* box = texts_[index];
    if (!box)
        return;
    placeText(index, text);
    const PointerShape shape = pointerOver(window_, text.cursor, false);
    if (shape.cursor == Cursor::Default)
        box->viewport()->setCursor(text.locked ? Qt::ArrowCursor : Qt::IBeamCursor);
    else
        applyPointer(*box->viewport(), shape);
}

void MenuWindow::placeText(std::size_t index, const TextScene& t)
{
    TextBox* box = texts_[index];
    box->setGeometry(px(t.left), py(t.top), std::max(0, px(t.width)), std::max(0, py(t.height)));
    box->present(t, scale_);
}

void MenuWindow::timerChanged(const TimerScene& timer)
{
    if (timer.runs() && !closing_)
        timer_.start(int(timer.interval));
    else
        timer_.stop();
}

void MenuWindow::close()
{
    if (closing_)
        return;
    closing_ = true;
    timer_.stop();
    hide();
    emit finished();
}

int MenuWindow::messageBox(const MessageRequest& request)
{
    return showMessageBox(isVisible() ? this : nullptr, request);
}

std::optional<std::string> MenuWindow::inputBox(const script::InputBoxRequest& request)
{
    return showInputBox(isVisible() ? this : nullptr, request);
}

void MenuWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), toQColor(window_.backColor));
    if (!window_.backgroundImage.empty()) {
        const QPixmap& image = images_.pixmap(window_.backgroundImage);
        if (!image.isNull() && background_.isNull())
            background_ = window_.stretch || scale_ != 1
                              ? image.scaled(window_.stretch ? size() : image.size() * scale_, Qt::IgnoreAspectRatio,
                                             Qt::SmoothTransformation)
                              : image;
        painter.drawPixmap(0, 0, background_);
    }
    if (!window_.borderVisible || window_.borderWidth <= 0)
        return;
    const int pen = std::max(1, scaled(window_.borderWidth));
    painter.setPen(QPen(toQColor(window_.borderColor), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    // The outline stays inside the window, whatever its width.
    const QRectF box = QRectF(rect()).adjusted(pen / 2.0, pen / 2.0, -pen / 2.0, -pen / 2.0);
    if (window_.borderShape == 2) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(box);
    } else if (window_.borderShape == 4) {
        painter.setRenderHint(QPainter::Antialiasing);
        const double r = std::min(box.width(), box.height()) / 6;
        painter.drawRoundedRect(box, r, r);
    } else {
        painter.drawRect(box);
    }
}

void MenuWindow::buttonInput(std::size_t index, ButtonWidget::Input input)
{
    if (!player_)
        return;
    switch (input) {
    case ButtonWidget::Input::Enter: player_->pointerEntersButton(index); break;
    case ButtonWidget::Input::Leave: player_->pointerLeavesButton(index); break;
    case ButtonWidget::Input::Press: player_->pressButton(index); break;
    case ButtonWidget::Input::ReleaseOver: player_->releaseButton(index, true); break;
    case ButtonWidget::Input::ReleaseOutside: player_->releaseButton(index, false); break;
    }
}

// A window without title bar moves when its background is dragged.
void MenuWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !window_.fullScreen) {
        dragging_ = true;
        dragFrom_ = event->position().toPoint();
    }
}

void MenuWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging_ && (event->buttons() & Qt::LeftButton)) {
        move(event->globalPosition().toPoint() - dragFrom_);
        return;
    }
    if (player_ && !childAt(event->position().toPoint()))
        player_->pointerOverBackground();
}

void MenuWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !dragging_)
        return;
    dragging_ = false;
    if (player_)
        player_->windowMoved(int(std::lround(x() / scale_)), int(std::lround(y() / scale_)));
}

void MenuWindow::leaveEvent(QEvent*)
{
    if (player_)
        player_->pointerLeavesBackground();
}

void MenuWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (!player_)
        return;
    const std::vector<std::string> entries = player_->contextMenuEntries();
    if (entries.empty())
        return;
    QMenu menu(this);
    for (const std::string& entry : entries)
        menu.addAction(QString::fromStdString(entry));
    const QAction* chosen = menu.exec(event->globalPos());
    if (!chosen)
        return;
    const int at = int(menu.actions().indexOf(const_cast<QAction*>(chosen)));
    if (at >= 0)
        player_->chooseContextEntry(std::size_t(at));
}

// Minimised or restored by the window system: the core's state follows, so
// the next script that shows the window keeps it as it is.
void MenuWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || shownState_ < 0)
        return;
    const int state = isMinimized() ? 1 : isMaximized() ? 2 : 0;
    if (state == shownState_)
        return;
    shownState_ = state;
    if (player_)
        player_->windowStateChanged(state);
}

void MenuWindow::closeEvent(QCloseEvent* event)
{
    if (closing_ || !player_) {
        event->accept();
        return;
    }
    // The window manager's close goes through the player, which stops the
    // media and, inside a script, waits for it to end.
    event->ignore();
    player_->close();
}

}  // namespace qor::player
