#include "core/build/build_flows.h"

#include "core/build/build_messages.h"
#include "core/build/html_launcher.h"
#include "core/build/web_menu.h"
#include "text/text_helpers.h"

namespace qor {

BuildFlows::BuildFlows(const MenuProject& project, BuildPorts ports, BuildSettings settings)
    : compiler_(ports.files, ports.dialogs, state_),
      context_{project, ports, std::move(settings), state_, compiler_},
      testRun_(context_),
      export_(context_)
{
}

void BuildFlows::openCompileDialog()
{
    // The project's values are checked before anything is baked; the
    // dialog's own fields when it compiles.
    if (compiler_.checkValues(context_.project, CompileRequest{}) != CompileOutcome::Done)
        return;
    context_.ports.baker.bakeAllButtons();
    context_.ports.view.discardCompileDialog();
    context_.ports.view.openCompileDialog(compileDefaults(context_.project, context_.ports.files.homeFolder()),
                                          iconPreviewPath(context_.project, context_.settings.programFolder));
}

void BuildFlows::exportExecutable()
{
    export_.run(ExportKind{exportKindName(context_.settings.phrases), "exe"});
}

void BuildFlows::exportHtml()
{
    // The web menu carries the same data line as a CD.
    if (compiler_.checkValues(context_.project, CompileRequest{}) != CompileOutcome::Done)
        return;
    const std::string answer = context_.ports.dialogs.inputBox("rep ?", context_.settings.untitled,
                                                               context_.ports.files.desktopFolder());
    const std::string path = htmlLauncherPath(answer);
    if (Status s = writeHtmlLauncher(context_.ports.files, context_.project, path); !s) {
        context_.ports.dialogs.message(htmlNotWrittenMessage(path, s.error()));
        return;
    }
    // The page the launcher opens, with transparent buttons baked as for a CD.
    context_.ports.baker.bakeAllButtons();
    const CompileRequest names = compileDefaults(context_.project, context_.ports.files.homeFolder());
    const std::string folder = folderOf(path);
    if (Status s = writeWebMenu(context_.ports.files, context_.project, {names.projectName, names.author}, folder,
                                context_.settings.programFolder);
        !s)
        context_.ports.dialogs.message(htmlNotWrittenMessage(folder + kWebPageName, s.error()));
}

CompileOutcome BuildFlows::compile(const CompileRequest& request, CompileView& view)
{
    return compiler_.compile(context_.project, request, context_.environment(), view);
}

std::optional<std::string> BuildFlows::browseTarget()
{
    return context_.ports.dialogs.pickFolder(browseTargetPrompt());
}

void BuildFlows::showRuntimeHelp()
{
    context_.ports.dialogs.message(runtimeHelpMessage());
}

}  // namespace qor
