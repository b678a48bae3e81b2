#include "core/build/test_run.h"

#include "core/build/build_messages.h"
#include "core/build/program_files.h"

namespace qor {

std::string TestRun::folder() const
{
    return c_.settings.programFolder + std::string(kTestFolder) + "/";
}

std::string TestRun::player() const
{
    return c_.settings.programFolder + std::string(program_files::linuxPlayer);
}

std::string TestRun::compiledMenu() const
{
    return folder() + "qor/autorun.exe";
}

void TestRun::run()
{
    CompileRequest request;
    request.target = folder();
    request.projectName = "TEST";
    request.author = "TEST";
    // A value the data cannot carry stops the run before anything is baked or cleared.
    if (c_.compiler.checkValues(c_.project, request) != CompileOutcome::Done)
        return;
    c_.ports.baker.bakeAllButtons();
    c_.ports.view.showNoticePanels(true);
    clearFolder();
    c_.ports.view.discardCompileDialog();
    (void)c_.compileHidden(request);
    c_.ports.view.showNoticePanels(false);
    if (c_.state.compileFailed)
        return;

    c_.ports.view.setWorksheetMinimised(true);
    if (Status s = c_.ports.view.watchPlayer(player(), {compiledMenu()}); !s) {
        // The worksheet stays minimised: the user brings it back.
        c_.ports.dialogs.message(testRunErrorMessage(s.error(), c_.settings.phrases));
        return;
    }
    c_.ports.view.setWorksheetMinimised(false);
}

// Whatever cannot be deleted stays; the compilation overwrites it or says why not.
void TestRun::clearFolder()
{
    FileSystem& files = c_.ports.files;
    const std::string tmp = folder();
    if (files.kind(tmp.substr(0, tmp.size() - 1)) == PathKind::Folder) {
        if (files.kind(tmp + "qor") == PathKind::Folder) {
            files.removeFilesIn(tmp + "qor/");
            (void)files.removeFolder(tmp + "qor");
        }
        files.removeFilesIn(tmp);
        (void)files.removeFolder(tmp.substr(0, tmp.size() - 1));
    }
    if (files.kind(tmp.substr(0, tmp.size() - 1)) == PathKind::None)
        (void)files.createFolder(tmp.substr(0, tmp.size() - 1));
}

}  // namespace qor
