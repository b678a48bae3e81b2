#pragma once

#include <QWidget>

#include <array>

#include "core/designer/element_panel_flows.h"
#include "editor/designer/panel_controls.h"

class QCheckBox;

class QMenu;

namespace qor {

// Panel 1 of the properties panel, a button's properties, with its two
// sub-panels in its own area: the media sub-panel (panel 2) and the code
// sub-panel (panel 3), and the frame "Transparence            " whose box,
// swatch and "Aperçu rapide" bake the button's pictures.
class ButtonPanel : public QWidget {
    Q_OBJECT
public:
    explicit ButtonPanel(QWidget* parent);

    void connectFlows(ElementPanelFlows& flows);
    void showFields(const ButtonFields& fields);
    void showSubPanels(bool media, bool code);

    QWidget* mediaPanel() const { return media_; }
    QWidget* codePanel() const { return code_; }
    QLineEdit* imageField(int i) const { return images_[std::size_t(i)].field; }
    QLineEdit* mediaField() const { return mediaField_; }
    QPushButton* command(const QString& name) const;
    const PathRow& clickSoundRow() const { return clickSound_; }
    const PathRow& hoverSoundRow() const { return hoverSound_; }

private:
    void build();
    QWidget* buildMediaPanel();
    QWidget* buildTransparencyFrame();
    void popUpMediaMenu(ElementPanelFlows& flows);

    std::array<PathRow, 3> images_;
    PathRow clickSound_, hoverSound_;
    QWidget* media_ = nullptr;
    QWidget* code_ = nullptr;
    // The media location pop-up, built once so a translation can retitle it.
    QMenu* mediaMenu_ = nullptr;
    QLineEdit* mediaField_ = nullptr;
    QCheckBox* transparent_ = nullptr;
    QPushButton* transparentColour_ = nullptr;
};

}  // namespace qor
