#pragma once

#include <QPixmap>
#include <QWidget>

#include <cstddef>
#include <functional>

namespace qor::player {

// One menu button: shows the picture it is given and reports the pointer.
// It takes the size of its normal image; a button whose images cannot be
// read shows a plain grey box instead, so that it can still be clicked.
class ButtonWidget : public QWidget {
    Q_OBJECT
public:
    enum class Input { Enter, Leave, Press, ReleaseOver, ReleaseOutside };
    ButtonWidget(std::size_t index, QWidget* parent, std::function<void(std::size_t, Input)> report);

    // scale: the window's reduction when the menu is larger than the screen.
    void setPictures(const QPixmap& normal, const QPixmap& shown, double scale = 1);
    const QPixmap& shown() const { return shown_; }

    static constexpr QSize kPlaceholderSize{75, 25};

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::size_t index_;
    std::function<void(std::size_t, Input)> report_;
    QPixmap shown_;
    double scale_ = 1;
};

}  // namespace qor::player
