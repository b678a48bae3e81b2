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

// A text box on the worksheet: its colours, font, content, scroll bar and
// size. It paints itself; the multi-line field the user types into is made
// the first time the box is edited, so that a project of hundreds of boxes
// loads and repaints as fast as pictures.
class TextElement : public QWidget {
    Q_OBJECT
public:
    TextElement(int number, QWidget* parent);
    int number() const { return number_; }
    // Every field of the model's text box; visible unless deleted.
    void showText(const MenuText& text, const ScreenMetrics& screen);
    // The content as the model keeps it: lines broken by CR LF.
    std::string content() const;
    // The field the user types into, made on first use.
    QPlainTextEdit& edit();
    bool editing() const { return edit_ != nullptr; }
    void setResizing(bool resizing);
    bool resizing() const { return resizing_; }

signals:
    // The user changed the content.
    void typed();
    // The field was made: its widgets want watching too.
    void editMade(QPlainTextEdit& edit);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyToEdit();

    int number_;
    bool resizing_ = false;
    QString text_;
    bool scrollBar_ = true;
    QPlainTextEdit* edit_ = nullptr;
};

}  // namespace qor
