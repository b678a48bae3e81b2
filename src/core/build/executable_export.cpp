#include "core/build/executable_export.h"

#include "core/build/build_messages.h"
#include "core/build/program_files.h"
#include "text/text_helpers.h"

namespace qor {

std::string exportedExecutablePath(const std::string& folder, const std::string& name, const ExportKind& kind)
{
    return folder + name + "." + kind.extension;
}

void ExecutableExport::run(const ExportKind& kind)
{
    // The project's own values first: the name and author asked later are
    // checked by the compilation itself.
    if (c_.compiler.checkValues(c_.project, CompileRequest{}) != CompileOutcome::Done)
        return;
    c_.ports.baker.bakeAllButtons();
    c_.ports.view.showNoticePanels(true);
    const auto picked = c_.ports.dialogs.pickFolder(exportFolderPrompt(kind.name, c_.settings.phrases));
    if (!picked || picked->empty())
        return end();
    if (!c_.ports.files.isFolder(*picked)) {
        c_.ports.dialogs.message(incorrectPathMessage(c_.settings.phrases));
        return end();
    }
    const std::string folder = withTrailingSeparator(*picked);

    c_.ports.view.discardCompileDialog();
    // An earlier export's media go first; a link is left alone.
    if (c_.ports.files.kind(folder + "qor") == PathKind::Folder) {
        c_.ports.files.removeFilesIn(folder + "qor/");
        (void)c_.ports.files.removeFolder(folder + "qor");
    }
    CompileRequest request = compileDefaults(c_.project, folder);
    std::string fileName;
    if (!ask(kind, request, fileName))
        return end();

    const CompileOutcome outcome = c_.compileHidden(request);
    // Only what this compilation wrote is rearranged: a refused one wrote nothing.
    if (outcome == CompileOutcome::Done || outcome == CompileOutcome::Failed)
        rearrange(folder, exportedExecutablePath(folder, fileName, kind));
    c_.ports.view.showNoticePanels(false);
    if (!c_.state.compileFailed && outcome == CompileOutcome::Done)
        c_.ports.dialogs.message(exportDoneMessage(kind.name, kind.extension, c_.settings.phrases));
}

bool ExecutableExport::ask(const ExportKind& kind, CompileRequest& request, std::string& fileName)
{
    Dialogs& d = c_.ports.dialogs;
    const std::string& title = c_.settings.untitled;
    request.projectName = d.inputBox("Nom du projet ?", title, request.projectName);
    if (request.projectName.empty())
        return false;
    request.author = d.inputBox("Auteur du projet ?", title, request.author);
    if (request.author.empty())
        return false;
    fileName = d.inputBox(exportFileNamePrompt(kind.name, c_.settings.phrases), title, "");
    if (fileName.empty())
        return false;
    if (!isPlainFileName(fileName)) {
        d.message(badFileNameMessage(fileName, title));
        return false;
    }
    const Answer runtime = d.message(copyRuntimeQuestion(c_.settings.phrases, title));
    if (runtime == Answer::Cancel)
        return false;
    request.skipRuntime = runtime == Answer::No;
    return true;
}

// The autorun parts go; the player becomes the executable beside qor/.
void ExecutableExport::rearrange(const std::string& folder, const std::string& executable)
{
    FileSystem& files = c_.ports.files;
    const std::string qor = folder + "qor/";
    (void)files.removeFile(folder + "Autorun.inf");
    (void)files.removeFile(qor + std::string(program_files::installer));
    (void)files.removeFile(qor + std::string(program_files::icon));
    if (files.kind(qor + "autorun.exe") == PathKind::File)
        (void)files.rename(qor + "autorun.exe", executable);
}

void ExecutableExport::end()
{
    c_.ports.view.discardCompileDialog();
    c_.ports.view.showNoticePanels(false);
}

}  // namespace qor
