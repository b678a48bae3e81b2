#pragma once

#include <QTextEdit>

#include <cstddef>
#include <functional>
#include <string>

#include "player/core/scene.h"

namespace qor::player {

// One text box of the menu: multi-line, word-wrapped, with the colours,
// font, scroll bar and lock of its scene. What the user types is reported
// with CR LF line breaks, as scripts read texts.
class TextBox : public QTextEdit {
    Q_OBJECT
public:
    TextBox(std::size_t index, QWidget* parent, std::function<void(std::size_t, std::string)> edited,
            std::function<void()> entered);
    // Everything but the place and size, which need the screen's twips;
    // the font grows or shrinks with the window's scale.
    void present(const TextScene& scene, double scale = 1);

protected:
    void enterEvent(QEnterEvent* event) override;

private:
    std::size_t index_;
    std::function<void(std::size_t, std::string)> edited_;
    std::function<void()> entered_;
    bool setting_ = false;
};

}  // namespace qor::player
