#pragma once

#include <QWidget>

#include "core/designer/window_panel_flows.h"
#include "editor/designer/panel_controls.h"
#include "editor/ui/window_hooks.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;

namespace qor {

// Panel 0 of the properties panel: every property of the menu window.
// Each control calls the window panel's flows; the fields show the project.
class WindowPanel : public QWidget {
    Q_OBJECT
public:
    // hooks: the run's, for the texts it shows in the interface language.
    WindowPanel(QWidget* parent, const WindowHooks& hooks);

    void connectFlows(WindowPanelFlows& flows);
    void showProject(const MenuProject& project);
    void setSizeFields(const QString& width, const QString& height, bool enabled);
    void setTimerInterval(const QString& text);
    void showStartupChoice(StartupChoice choice, const QString& captionLine, bool modifyShown);

    // For the tests and the translation scripts.
    QLineEdit* widthField() const { return width_; }
    QLineEdit* heightField() const { return height_; }
    QLineEdit* intervalField() const { return interval_; }
    QComboBox* startupList() const { return startup_; }
    QLabel* startupCaption() const { return startupCaption_; }
    QPushButton* command(const QString& name) const;
    QCheckBox* box(const QString& name) const;
    const PathRow& backgroundRow() const { return background_; }
    const PathRow& musicRow() const { return music_; }
    const PathRow& iconRow() const { return icon_; }
    QPushButton* colourSwatch() const { return colour_; }

private:
    const WindowHooks& hooks_;
    void build();

    PathRow background_, music_, icon_;
    QCheckBox* fullScreen_ = nullptr;
    QCheckBox* border_ = nullptr;
    QCheckBox* handCursor_ = nullptr;
    QCheckBox* timer_ = nullptr;
    QCheckBox* contextMenu_ = nullptr;
    QLineEdit* width_ = nullptr;
    QLineEdit* height_ = nullptr;
    QPushButton* sizeOk_ = nullptr;
    QPushButton* fit_ = nullptr;
    QPushButton* colour_ = nullptr;
    QGroupBox* timerGroup_ = nullptr;
    QLineEdit* interval_ = nullptr;
    QComboBox* startup_ = nullptr;
    QLabel* startupCaption_ = nullptr;
    QPushButton* startupModify_ = nullptr;
};

}  // namespace qor
