#pragma once

#include <QGroupBox>

class QComboBox;
class QLineEdit;
class QPushButton;
class QLabel;

namespace qor {

// The "Apparences" frame that the main window reveals when it is made tall:
// the list of saved appearances, the three colour swatches, the font field
// and the sample controls. Its controls carry the names the appearance
// rules and translation scripts use; what they do arrives with the
// appearance editor.
class AppearanceFrame : public QGroupBox {
    Q_OBJECT
public:
    explicit AppearanceFrame(QWidget* parent);

    QComboBox* appearanceList() const { return list_; }
    QLabel* swatch(int i) const { return swatches_[i]; }

private:
    QComboBox* list_ = nullptr;
    QLabel* swatches_[3] = {};
};

}  // namespace qor
