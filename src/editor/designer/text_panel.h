#pragma once

#include <QWidget>

#include "core/designer/designer.h"
#include "editor/designer/panel_controls.h"

class QCheckBox;

namespace qor {

// Panel 4 of the properties panel: a text box's colours, font, size,
// position, scroll bar and lock, and its deletion.
class TextPanel : public QWidget {
    Q_OBJECT
public:
    explicit TextPanel(QWidget* parent);

    void connectFlows(ElementPanelFlows& flows, Designer& designer);
    void showFields(const TextFields& fields);
    void setSizeFields(const QString& width, const QString& height);

    QLineEdit* widthField() const { return width_; }
    QLineEdit* heightField() const { return height_; }
    QCheckBox* scrollBarBox() const { return scrollBar_; }
    QCheckBox* lockBox() const { return lock_; }
    QPushButton* command(const QString& name) const;

private:
    QPushButton* back_ = nullptr;
    QPushButton* fore_ = nullptr;
    QLineEdit* width_ = nullptr;
    QLineEdit* height_ = nullptr;
    QCheckBox* scrollBar_ = nullptr;
    QCheckBox* lock_ = nullptr;
};

}  // namespace qor
