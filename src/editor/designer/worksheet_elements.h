#pragma once

#include <QLabel>
#include <QPlainTextEdit>

#include <string>

#include "core/ports/screen.h"
#include "model/menu_text.h"

namespace qor {

// A button on the worksheet: a borderless picture that takes the size of
// the picture it shows. Number 0 is the hidden template.
class ButtonElement : public QLabel {
    Q_OBJECT
public:
    ButtonElement(int number, QWidget* parent);
    int number() const { return number_; }
    // The picture, at its own size; a null image shows nothing.
    void showPicture(const QImage& image);

private:
    int number_;
};

// A text box on the worksheet: a multi-line field with its colours, font,
// scroll bar and size. While it is being resized it takes no typing.
class TextElement : public QPlainTextEdit {
    Q_OBJECT
public:
    TextElement(int number, QWidget* parent);
    int number() const { return number_; }
    // Every field of the model's text box; visible unless deleted.
    void showText(const MenuText& text, const ScreenMetrics& screen);
    // The content as the model keeps it: lines broken by CR LF.
    std::string content() const;
    void setResizing(bool resizing);
    bool resizing() const { return resizing_; }

private:
    int number_;
    bool resizing_ = false;
};

}  // namespace qor
