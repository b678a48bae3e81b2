#include "editor/wizard/editor_wizard.h"

#include <QStandardPaths>

#include "editor/platform/qt_text.h"
#include "editor/ui/run_time_texts.h"
#include "editor/wizard/creation_wizard_window.h"

namespace qor {

EditorWizard::EditorWizard(Needs needs) : needs_(needs) {}

EditorWizard::~EditorWizard()
{
    drop();
}

void EditorWizard::drop()
{
    // The flows hold the window as their view: they go first.
    flows_.reset();
    window_.reset();
}

void EditorWizard::open(QWidget* parent)
{
    drop();
    window_ = std::make_unique<CreationWizardWindow>(needs_.hooks, parent);
    WizardSetup setup{fromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
                      needs_.programFolder, needs_.screen};
    flows_ = std::make_unique<CreationWizard>(
        needs_.wizardOpen, WizardPorts{needs_.dialogs, needs_.desktop, pictures_, needs_.document}, *window_,
        std::move(setup));
    window_->attach(*flows_);
    // The default menu name is the one text of the form a person reads.
    flows_->setMenuName(fromQt(inInterfaceLanguage(needs_.hooks, toQt(flows_->form().menuName))));
    flows_->open();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void EditorWizard::handOverAsModal()
{
    if (!window_ || !needs_.wizardOpen || window_->closedForGood())
        return;
    window_->hide();
    window_->setWindowModality(Qt::ApplicationModal);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

}  // namespace qor
