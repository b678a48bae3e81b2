#include "editor/designer/worksheet_window.h"

#include <algorithm>

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QResizeEvent>
#include <QTextCursor>
#include <QUrl>

#include "core/designer/worksheet_rules.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/run_time_texts.h"

namespace qor {
namespace {

// Navy with a white border, as the handles of the editor's first platform.
QPixmap handlePicture()
{
    QPixmap p(kHandlePixels, kHandlePixels);
    p.fill(Qt::white);
    QPainter painter(&p);
    painter.fillRect(1, 1, kHandlePixels - 2, kHandlePixels - 2, QColor(0, 0, 128));
    return p;
}

bool anyModifier(Qt::KeyboardModifiers m)
{
    return (m & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) != 0;
}

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

WorksheetWindow::WorksheetWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : ToolWindow(nullptr, Qt::Window), screen_(screen)
{
    hooks_ = &hooks;
    named(this, WindowId::Worksheet);
    setWindowTitle(QStringLiteral("Feuille de travail"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    installEventFilter(this);
    background_ = new QLabel(this);
    named(background_, "Image1");
    background_->setScaledContents(true);
    watch(background_);
    (void)button(0);
    (void)text(0);
    const QPixmap picture = handlePicture();
    for (int i = 0; i < 4; ++i) {
        auto* h = named(new QLabel(this), "POINT_BORD", i);
        h->setPixmap(picture);
        h->resize(kHandlePixels, kHandlePixels);
        h->setAttribute(Qt::WA_TransparentForMouseEvents);
        h->hide();
        handles_[std::size_t(i)] = h;
    }
    overlay_ = named(new QLabel(QStringLiteral("Veuillez patienter..."), this), "Label_patienter");
    overlay_->setAlignment(Qt::AlignCenter);
    overlay_->setAutoFillBackground(true);
    overlay_->hide();
    // The usual menu size until start-up gives the worksheet the default one.
    resizeTwips(*this, kDefaultWidth, kDefaultHeight, screen);
    setAcceptDrops(true);
    runLoadHooks(*this, hooks);
}

void WorksheetWindow::watch(QWidget* element)
{
    element->setMouseTracking(true);
    element->installEventFilter(this);
}

ButtonElement& WorksheetWindow::button(int number)
{
    auto it = buttons_.find(number);
    if (it != buttons_.end())
        return *it->second;
    auto* b = new ButtonElement(number, this);
    b->setToolTip(inInterfaceLanguage(*hooks_, b->toolTip()));
    watch(b);
    if (overlay_)
        b->stackUnder(overlay_);
    buttons_[number] = b;
    return *b;
}

TextElement& WorksheetWindow::text(int number)
{
    auto it = texts_.find(number);
    if (it != texts_.end())
        return *it->second;
    auto* t = new TextElement(number, this);
    t->setToolTip(inInterfaceLanguage(*hooks_, t->toolTip()));
    watch(t);
    if (overlay_)
        t->stackUnder(overlay_);
    connect(t, &TextElement::editMade, this, [this](QPlainTextEdit& edit) { watch(edit.viewport()); });
    connect(t, &TextElement::typed, this, [this, t] {
        if (!flows_)
            return;
        QPlainTextEdit& edit = t->edit();
        const QString before = edit.toPlainText();
        if (auto cleaned = flows_->textTyped(t->number(), t->content())) {
            // The caret stays where the user was typing, less what went.
            const int caret = edit.textCursor().position();
            const QString after = toQtLines(*cleaned);
            edit.setPlainText(after);
            QTextCursor cursor = edit.textCursor();
            cursor.setPosition(std::clamp(caret - int(before.size() - after.size()), 0, int(after.size())));
            edit.setTextCursor(cursor);
        }
    });
    texts_[number] = t;
    return *t;
}

void WorksheetWindow::removeElements()
{
    dragged_ = nullptr;
    for (auto it = buttons_.begin(); it != buttons_.end();)
        if (it->first != 0) {
            delete it->second;
            it = buttons_.erase(it);
        } else {
            ++it;
        }
    for (auto it = texts_.begin(); it != texts_.end();)
        if (it->first != 0) {
            delete it->second;
            it = texts_.erase(it);
        } else {
            ++it;
        }
    hideHandles();
}

void WorksheetWindow::bringToFront(QWidget& element)
{
    element.raise();
    overlay_->raise();
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

void WorksheetWindow::setBackgroundStretched(bool stretched)
{
    stretched_ = stretched;
    placeBackground();
}

QSize WorksheetWindow::backgroundPictureSize() const
{
    const QPixmap p = background_->pixmap();
    return p.isNull() ? QSize() : p.size();
}

void WorksheetWindow::placeBackground()
{
    background_->setScaledContents(stretched_);
    const QSize natural = backgroundPictureSize();
    background_->setGeometry(stretched_ || natural.isEmpty() ? rect() : QRect(QPoint(0, 0), natural));
    overlay_->setGeometry(rect());
}

void WorksheetWindow::setSelectionHandlesVisible(bool visible)
{
    handlesVisible_ = visible;
    if (!visible)
        hideHandles();
}

void WorksheetWindow::showHandles(const std::array<QPoint, 4>& corners)
{
    for (std::size_t i = 0; i < 4; ++i) {
        handles_[i]->move(corners[i]);
        handles_[i]->raise();
        handles_[i]->show();
    }
    overlay_->raise();
}

void WorksheetWindow::hideHandles()
{
    for (QWidget* h : handles_)
        h->hide();
}

void WorksheetWindow::resizeEvent(QResizeEvent* event)
{
    ToolWindow::resizeEvent(event);
    if (stretched_)
        placeBackground();
    overlay_->setGeometry(rect());
    emit resized(event->spontaneous());
}

bool WorksheetWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowDeactivate && flows_)
        flows_->deactivated();
    return ToolWindow::event(event);
}

void WorksheetWindow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_F5:
    case Qt::Key_F1: emit keyCommand(event->key()); break;
    default: ToolWindow::keyPressEvent(event); break;
    }
}

WorksheetTarget WorksheetWindow::targetAt(QPoint pos, const QWidget* skip) const
{
    for (QWidget* w = childAt(pos); w && w != this; w = w->parentWidget()) {
        if (w == skip)
            break;
        if (auto* b = qobject_cast<ButtonElement*>(w))
            return WorksheetTarget::button(b->number());
        if (auto* t = qobject_cast<TextElement*>(w))
            return WorksheetTarget::text(t->number());
    }
    return WorksheetTarget::background();
}

WorksheetTarget WorksheetWindow::targetOf(QWidget* w) const
{
    for (; w && w != this; w = w->parentWidget()) {
        if (auto* b = qobject_cast<ButtonElement*>(w))
            return WorksheetTarget::button(b->number());
        if (auto* t = qobject_cast<TextElement*>(w))
            return WorksheetTarget::text(t->number());
    }
    return WorksheetTarget::background();
}

QWidget* WorksheetWindow::elementOf(WorksheetTarget target)
{
    switch (target.kind) {
    case WorksheetTarget::Kind::Button: return hasButton(target.number) ? &button(target.number) : nullptr;
    case WorksheetTarget::Kind::Text: return hasText(target.number) ? &text(target.number) : nullptr;
    case WorksheetTarget::Kind::Background: break;
    }
    return nullptr;
}

TwipsPoint WorksheetWindow::twipsIn(WorksheetTarget target, QPoint pos) const
{
    QPoint p = pos;
    if (QWidget* e = const_cast<WorksheetWindow*>(this)->elementOf(target))
        p = e->mapFrom(this, pos);
    return {p.x() * screen_.twipsPerPixelX, p.y() * screen_.twipsPerPixelY};
}

bool WorksheetWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (!flows_)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return mousePressed(qobject_cast<QWidget*>(watched), static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove: mouseMoved(static_cast<QMouseEvent*>(event)); return dragged_ != nullptr;
    case QEvent::MouseButtonRelease: {
        const bool wasDragging = dragged_ != nullptr;
        mouseReleased(static_cast<QMouseEvent*>(event));
        return wasDragging;
    }
    default: return false;
    }
}

bool WorksheetWindow::mousePressed(QWidget* source, QMouseEvent* event)
{
    const QPoint pos = mapFromGlobal(event->globalPosition().toPoint());
    const bool modifier = anyModifier(event->modifiers());
    // The element the window system gave the press to is the one under the pointer.
    const WorksheetTarget target = targetOf(source);
    QWidget* element = elementOf(target);
    bool drag = false;
    switch (target.kind) {
    case WorksheetTarget::Kind::Button: drag = flows_->pressButton(target.number, modifier, twipsIn(target, pos)); break;
    case WorksheetTarget::Kind::Text:
        drag = flows_->pressText(target.number, modifier, event->button() == Qt::RightButton, twipsIn(target, pos));
        break;
    case WorksheetTarget::Kind::Background:
        if (source == this || source == background_)
            flows_->clickBackground();
        break;
    }
    if (drag && element) {
        dragged_ = element;
        draggedTarget_ = target;
        grabPixels_ = element->mapFrom(this, pos);
        return true;
    }
    if (target.kind != WorksheetTarget::Kind::Text || modifier || event->button() == Qt::RightButton)
        return true;
    // A plain press types into the box: its field is made the first time.
    auto* box = static_cast<TextElement*>(element);
    if (!box || box->editing())
        return false;
    QPlainTextEdit& edit = box->edit();
    edit.setFocus(Qt::MouseFocusReason);
    edit.setTextCursor(edit.cursorForPosition(edit.viewport()->mapFrom(this, pos)));
    return true;
}

void WorksheetWindow::mouseMoved(QMouseEvent* event)
{
    const QPoint pos = mapFromGlobal(event->globalPosition().toPoint());
    if (dragged_) {
        dragged_->move(pos - grabPixels_);
        flows_->pointerMoved(WorksheetTarget::background(), twipsIn(WorksheetTarget::background(), pos), false);
        return;
    }
    const WorksheetTarget target = targetAt(pos);
    flows_->pointerMoved(target, twipsIn(target, pos), event->buttons() == Qt::RightButton);
    if (target.kind == WorksheetTarget::Kind::Background)
        emit pointerOverBackground();
}

void WorksheetWindow::mouseReleased(QMouseEvent* event)
{
    const QPoint pos = mapFromGlobal(event->globalPosition().toPoint());
    if (QWidget* dragged = dragged_) {
        dragged_ = nullptr;
        dragged->hide();
        const WorksheetTarget target = targetAt(pos);
        flows_->drop(draggedTarget_, target, twipsIn(target, pos));
        dragged->show();
        return;
    }
    const WorksheetTarget target = targetAt(pos);
    if (target.kind == WorksheetTarget::Kind::Button) {
        flows_->releaseButton(anyModifier(event->modifiers()));
        return;
    }
    // A press let go off its button ends too, or no hover preview would
    // show again until the next press.
    flows_->releaseButton(false);
    if (target.kind == WorksheetTarget::Kind::Background)
        flows_->releaseOverBackground();
}

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
