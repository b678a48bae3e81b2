#include "editor/wizard/wizard_widgets.h"

#include <QMouseEvent>

namespace qor {

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent)
{
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::makeSwatch()
{
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setFixedSize(48, 20);
    setProperty("Tag", QStringLiteral("N_DESIGN"));
}

void ClickLabel::setSwatchColour(const QColor& colour)
{
    QPalette p = palette();
    p.setColor(QPalette::Window, colour);
    setPalette(p);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    QLabel::mouseDoubleClickEvent(event);
    emit doubleClicked();
}

PreviewPicture::PreviewPicture(QWidget* parent) : QLabel(parent)
{
    setMouseTracking(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void PreviewPicture::mouseMoveEvent(QMouseEvent* event)
{
    emit pointer(PreviewEvent::Moved, event->buttons() != Qt::NoButton);
}

void PreviewPicture::mousePressEvent(QMouseEvent*)
{
    emit pointer(PreviewEvent::Pressed, true);
}

void PreviewPicture::mouseReleaseEvent(QMouseEvent*)
{
    emit pointer(PreviewEvent::Released, false);
}

void PreviewPicture::leaveEvent(QEvent*)
{
    emit pointer(PreviewEvent::Left, false);
}

}  // namespace qor
