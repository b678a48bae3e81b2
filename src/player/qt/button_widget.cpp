#include "player/qt/button_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace qor::player {

ButtonWidget::ButtonWidget(std::size_t index, QWidget* parent, std::function<void(std::size_t, Input)> report)
    : QWidget(parent), index_(index), report_(std::move(report))
{
    setAttribute(Qt::WA_Hover, false);
}

void ButtonWidget::setPictures(const QPixmap& normal, const QPixmap& shown, double scale)
{
    const QSize size = normal.isNull() ? kPlaceholderSize : normal.size();
    resize(std::max(1, qRound(size.width() * scale)), std::max(1, qRound(size.height() * scale)));
    shown_ = shown;
    scale_ = scale;
    update();
}

void ButtonWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // Scaled smoothly on a screen denser than 96 dpi.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!shown_.isNull()) {
        painter.drawPixmap(QRect(0, 0, qRound(shown_.width() * scale_), qRound(shown_.height() * scale_)), shown_);
        return;
    }
    painter.fillRect(rect(), QColor(212, 208, 200));
    painter.setPen(QColor(64, 64, 64));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ButtonWidget::enterEvent(QEnterEvent*) { report_(index_, Input::Enter); }
void ButtonWidget::leaveEvent(QEvent*) { report_(index_, Input::Leave); }

void ButtonWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    report_(index_, Input::Press);
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    report_(index_, rect().contains(event->position().toPoint()) ? Input::ReleaseOver : Input::ReleaseOutside);
}

}  // namespace qor::player
