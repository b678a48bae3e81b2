#pragma once

#include <QLabel>
#include <QPointer>

#include "core/build/build_view.h"
#include "editor/build/compile_dialog.h"
#include "editor/ui/window_hooks.h"

namespace qor {

class BuildFlows;
class EditorWindows;

// The build's screen: the compile dialog, the notice panels, the worksheet
// minimised during a test run and the test-run watcher.
class EditorBuildView final : public BuildView {
public:
    explicit EditorBuildView(EditorWindows& windows, WindowHooks& hooks = WindowHooks::none());
    ~EditorBuildView() override;

    // The commands the compile dialog forwards to; set once the core exists.
    void setBuild(BuildFlows* build) { build_ = build; }

    void discardCompileDialog() override;
    void openCompileDialog(const CompileRequest& fields, const std::string& iconPath) override;
    void showNoticePanels(bool shown) override;
    void setWorksheetMinimised(bool minimised) override;
    Status watchPlayer(const std::string& program, const std::vector<std::string>& arguments) override;

    // The open compile dialog, or nullptr.
    CompileDialog* compileDialog() const { return dialog_; }
    // The worksheet's notice panel, once it has been shown.
    QLabel* worksheetNotice() const { return notice_; }

private:
    EditorWindows& windows_;
    WindowHooks& hooks_;
    BuildFlows* build_ = nullptr;
    QPointer<CompileDialog> dialog_;
    QPointer<QLabel> notice_;
};

}  // namespace qor
