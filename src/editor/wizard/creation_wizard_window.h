#pragma once

#include <QDialog>

#include <array>

#include "core/wizard/creation_wizard.h"
#include "editor/ui/window_hooks.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace qor {

class ClickLabel;
class PreviewPicture;

// The creation wizard "Assistant création" ("Form14"): a fixed window with
// a header line, an illustration per step, one panel per step and the
// navigation commands. It shows the flows' form and hands every user
// action to them; it decides nothing.
class CreationWizardWindow : public QDialog, public WizardView {
    Q_OBJECT
public:
    explicit CreationWizardWindow(WindowHooks& hooks = WindowHooks::none(), QWidget* parent = nullptr);

    // The flows this window shows and calls.
    void attach(CreationWizard& wizard);

    std::string caption() override;
    void refresh() override;
    void hideWindow() override;
    void closeWindow() override;

    // True once the flows closed the window for good.
    bool closedForGood() const { return closedForGood_; }
    // The picture the preview shows now (null when hidden).
    QImage previewImage() const;

signals:
    // The window is closed for good.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    // Escape asks as the close box does.
    void reject() override;

private:
    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();

    // The window's parts, one builder and one refresher each.
    QWidget* buildNameStep();
    QWidget* buildStartStep();
    QWidget* buildButtonStep();
    QWidget* buildTextPanel();
    QWidget* buildGraphicPanel();
    QWidget* buildPreviewFrame();
    QWidget* buildFunctionStep();
    QWidget* buildFolderStep();
    QLayout* buildNavigation();
    void refreshNameStep(const WizardForm& form);
    void refreshStartStep(const WizardForm& form);
    void refreshButtonStep(const WizardForm& form);
    void refreshPreview(const WizardForm& form);
    void refreshFunctionStep(const WizardForm& form);
    void onPreviewPointer(PreviewEvent event, bool held);

    // Slots that hand a user action to the flows, unless the window is
    // only showing their form (which moves its own controls).
    bool acting() const { return wizard_ != nullptr && !refreshing_; }
    auto slot(void (CreationWizard::*action)())
    {
        return [this, action] { if (acting()) (wizard_->*action)(); };
    }
    auto flagSlot(void (CreationWizard::*action)(bool))
    {
        return [this, action](bool on) { if (acting()) (wizard_->*action)(on); };
    }
    auto textSlot(void (CreationWizard::*action)(const std::string&))
    {
        return [this, action](const QString& text) { if (acting()) (wizard_->*action)(text.toStdString()); };
    }

    CreationWizard* wizard_ = nullptr;
    bool refreshing_ = false;
    bool closedForGood_ = false;

    QLabel* header_ = nullptr;
    QLabel* illustration_ = nullptr;
    QStackedWidget* panels_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* finish_ = nullptr;

    // "Etape 1"
    QLineEdit* menuName_ = nullptr;
    QRadioButton* colourChoice_ = nullptr;
    QRadioButton* imageChoice_ = nullptr;
    ClickLabel* backgroundSwatch_ = nullptr;
    QLineEdit* imagePath_ = nullptr;
    QCheckBox* border_ = nullptr;
    QCheckBox* music_ = nullptr;
    QLineEdit* musicPath_ = nullptr;

    // "Etape 2"
    QButtonGroup* startup_ = nullptr;
    QLineEdit* startupMedia_ = nullptr;
    QLabel* startupTarget_ = nullptr;
    QPushButton* startupPreview_ = nullptr;
    QLabel* startupNote_ = nullptr;

    // "Etape 3"
    QListWidget* buttonList_ = nullptr;
    QGroupBox* addFrame_ = nullptr;
    QRadioButton* textType_ = nullptr;
    QRadioButton* graphicType_ = nullptr;
    QWidget* textPanel_ = nullptr;
    QWidget* graphicPanel_ = nullptr;
    QLineEdit* caption_ = nullptr;
    ClickLabel* textSwatch_ = nullptr;
    ClickLabel* backSwatch_ = nullptr;
    QCheckBox* transparent_ = nullptr;
    std::array<QLineEdit*, 3> graphicPaths_{};
    QGroupBox* previewFrame_ = nullptr;
    PreviewPicture* previewPicture_ = nullptr;

    // "Etape 4"
    QListWidget* functionList_ = nullptr;
    QButtonGroup* functions_ = nullptr;
    QLineEdit* functionMedia_ = nullptr;
    QPushButton* functionPreview_ = nullptr;
    QLabel* functionNote_ = nullptr;

    // "Etape 5"
    QLabel* folder_ = nullptr;
};

}  // namespace qor
