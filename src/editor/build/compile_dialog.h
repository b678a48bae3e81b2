#pragma once

#include <QDialog>

#include "core/build/build_flows.h"
#include "core/build/compile_view.h"
#include "editor/ui/window_hooks.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace qor {

// The compile dialog "Création pour graver" ("Form6"). Its fields hold what
// the compilation is asked; "&Valider" hands them to the core, which tells
// the dialog what to show step by step.
class CompileDialog : public QDialog, public CompileView {
    Q_OBJECT
public:
    CompileDialog(BuildFlows& build, const CompileRequest& fields, const QString& iconPath,
                  WindowHooks& hooks = WindowHooks::none(), QWidget* parent = nullptr);

    // The fields as the compilation takes them.
    CompileRequest request() const;

    void setTarget(const std::string& target) override;
    void setFieldsEnabled(bool enabled) override;
    void setStatus(const std::string& text, Colour colour) override;
    void setStep(const std::string& text) override;
    void setProgress(std::uint64_t done, std::uint64_t total) override;
    void setInstruction(const std::string& text) override;

    QProgressBar* progressBar() const { return progress_; }
    QPushButton* validateButton() const { return validate_; }

    // The instruction above the target field, as the dialog opens.
    static const char* const kInstruction;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildFields(const CompileRequest& fields, const QString& iconPath);
    QWidget* buildProgressFrame();
    void subMenuToggled(bool ticked);
    void compile();
    void repaintNow();

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    BuildFlows& build_;
    QLabel* instruction_ = nullptr;
    QLineEdit* target_ = nullptr;
    QPushButton* browse_ = nullptr;
    QLineEdit* name_ = nullptr;
    QLineEdit* author_ = nullptr;
    QCheckBox* subMenu_ = nullptr;
    QLineEdit* subMenuName_ = nullptr;
    QCheckBox* skipRuntime_ = nullptr;
    QLabel* help_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* step_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* validate_ = nullptr;
    bool compiling_ = false;
};

}  // namespace qor
