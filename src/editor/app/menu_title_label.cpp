#include "editor/app/menu_title_label.h"

#include <QMouseEvent>

#include "editor/platform/widget_names.h"

namespace qor {

MenuTitleLabel::MenuTitleLabel(int index, const QString& caption, QWidget* parent)
    : QLabel(caption, parent), index_(index)
{
    named(this, "menu_titre", index);
    setAlignment(Qt::AlignCenter);
    setAutoFillBackground(true);
    setMouseTracking(true);
}

void MenuTitleLabel::enterEvent(QEnterEvent* event)
{
    QLabel::enterEvent(event);
    emit hovered(index_);
}

void MenuTitleLabel::mouseMoveEvent(QMouseEvent* event)
{
    // Kept here: a move that reached the window body would reset the titles.
    event->accept();
    emit hovered(index_);
}

void MenuTitleLabel::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    emit pressed(index_);
}

}  // namespace qor
