#pragma once

#include <QLabel>

namespace qor {

// One of the six captions that act as the main window's menu titles. It
// reports the pointer coming over it and presses on it; the main window
// does the highlighting and pops the menu.
class MenuTitleLabel : public QLabel {
    Q_OBJECT
public:
    MenuTitleLabel(int index, const QString& caption, QWidget* parent);

    int index() const { return index_; }

signals:
    void hovered(int index);
    void pressed(int index);

protected:
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int index_;
};

}  // namespace qor
