#pragma once

#include <QLabel>

#include "core/wizard/preview_rules.h"

namespace qor {

// A picture or colour swatch the user clicks: the wizard's swatches and
// the button assistant's picture.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(QWidget* parent = nullptr);

    // A swatch shows its own colour under every appearance.
    void makeSwatch();
    void setSwatchColour(const QColor& colour);

signals:
    void clicked();
    void doubleClicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

// The picture of a button's preview: tells what the pointer does over it.
class PreviewPicture : public QLabel {
    Q_OBJECT
public:
    explicit PreviewPicture(QWidget* parent = nullptr);

signals:
    void pointer(qor::PreviewEvent event, bool buttonHeld);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

}  // namespace qor
