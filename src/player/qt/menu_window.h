#pragma once

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <vector>

#include "player/core/player.h"
#include "player/qt/button_widget.h"
#include "player/qt/image_cache.h"
#include "player/qt/text_box.h"

namespace qor::player {

// The menu's window: no title bar, no frame; background colour and picture,
// the border, the outline cut by the shape and the transparency image, one
// ButtonWidget per button and one TextBox per text box. It draws what the
// Player decides and hands every input to it.
class MenuWindow : public QWidget, public PlayerView {
    Q_OBJECT
public:
    explicit MenuWindow(QWidget* parent = nullptr);
    ~MenuWindow() override;
    void attach(Player& player) { player_ = &player; }

    // PlayerView
    ScreenInfo screen() const override;
    std::optional<ImageSize> imageSize(const std::string& path) override;
    void show(const Scene& scene) override;
    void windowChanged(const WindowScene& window) override;
    void buttonChanged(std::size_t index, const ButtonScene& button) override;
    void textChanged(std::size_t index, const TextScene& text) override;
    void timerChanged(const TimerScene& timer) override;
    void close() override;
    int messageBox(const MessageRequest& request) override;
    std::optional<std::string> inputBox(const script::InputBoxRequest& request) override;

    const std::vector<ButtonWidget*>& buttons() const { return buttons_; }
    // The text boxes, null for one still to be made (see createTexts).
    const std::vector<TextBox*>& texts() const { return texts_; }

signals:
    // The menu has ended: the program may quit.
    void finished();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buttonInput(std::size_t index, ButtonWidget::Input input);
    void placeButton(std::size_t index, const ButtonScene& button);
    void placeText(std::size_t index, const TextScene& text);
    void createTexts(std::size_t count);
    void applyGeometry(const WindowScene& window);
    void applyMask();
    void applyPointers();
    void warmImages();
    int px(double twips) const;
    int py(double twips) const;
    int scaled(int layoutPixels) const;

    Player* player_ = nullptr;
    ScreenInfo screen_;
    // Below 1 when the menu is larger than the screen's free area: the
    // whole window is reduced, so every button stays inside it.
    double scale_ = 1;
    WindowScene window_;
    std::vector<ButtonScene> buttonScenes_;
    std::vector<TextScene> textScenes_;
    std::vector<ButtonWidget*> buttons_;
    std::vector<TextBox*> texts_;     // null for a box not made yet
    std::size_t textsMade_ = 0;
    static constexpr std::size_t kTextsAtOnce = 200;
    ImageCache images_;
    QPixmap background_;        // the background as drawn at the current size
    QImage transparency_;
    QSize maskSize_;
    QTimer timer_;
    QPoint dragFrom_;           // pointer on the window when a drag began
    bool dragging_ = false;
    bool pointersSet_ = false;
    int shownState_ = -2;       // windowState last applied, -1 hidden, -2 never shown
    bool closing_ = false;
};

}  // namespace qor::player
