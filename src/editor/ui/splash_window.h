#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "core/ports/screen.h"
#include "editor/ui/window_hooks.h"

namespace qor {

// The splash picture shown while the editor starts: a borderless window of
// 4620 x 2190 twips that closes on a click, a key or after two seconds.
class SplashWindow : public QWidget {
    Q_OBJECT
public:
    static constexpr double kWidth = 4620;
    static constexpr double kHeight = 2190;
    static constexpr int kTimeoutMs = 2000;

    explicit SplashWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    const QPixmap& picture() const { return picture_; }
    QTimer& timer() { return timer_; }

    // True once the picture has been on screen.
    bool painted() const { return painted_; }

signals:
    // The splash has closed, whatever closed it.
    void closed();
    // The picture has been drawn.
    void picturePainted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QPixmap picture_;
    QTimer timer_;
    bool closedOnce_ = false;
    bool painted_ = false;
};

}  // namespace qor
