#pragma once

#include <optional>
#include <string>

#include "core/build/build_commands.h"
#include "core/build/build_context.h"
#include "core/build/executable_export.h"
#include "core/build/test_run.h"

namespace qor {

// The build's commands as the shell and the compile dialog call them.
class BuildFlows final : public BuildCommands {
public:
    BuildFlows(const MenuProject& project, BuildPorts ports, BuildSettings settings);
    BuildFlows(const BuildFlows&) = delete;
    BuildFlows& operator=(const BuildFlows&) = delete;

    // "En autorun (pour vos CDs)": bakes, then a fresh compile dialog.
    void openCompileDialog() override;
    // "&Tester le projet", also F5.
    void testRun() override { testRun_.run(); }
    // "En exécutable simple".
    void exportExecutable() override;
    // "En page web (html)".
    void exportHtml() override;

    // The compile dialog's own commands.
    CompileOutcome compile(const CompileRequest& request, CompileView& view);
    std::optional<std::string> browseTarget();
    void showRuntimeHelp();

    BuildState& state() { return state_; }
    const TestRun& testRunner() const { return testRun_; }

private:
    BuildState state_;
    Compiler compiler_;
    BuildContext context_;
    TestRun testRun_;
    ExecutableExport export_;
};

}  // namespace qor
