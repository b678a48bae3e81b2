#include "core/project/project_file.h"

#include "core/project/project_reader.h"
#include "core/project/project_writer.h"
#include "core/text/cp1252.h"
#include "core/text/line_file.h"
#include "core/text/text_helpers.h"
#include "core/ui/phrases.h"

namespace qor {
namespace {

// Errors from the file system carry the system's text; the user reads our
// French description of the same number where we have one.
Error inFrench(const Error& error)
{
    const char* description = errorDescription(error.number);
    return *description ? makeError(error.number) : error;
}

void giveUp(MenuProject& project, ProjectServices& services)
{
    services.hooks.setLoading(false);
    resetProject(project, services);
}

void readFile(MenuProject& project, const std::string& path, ProjectServices& services)
{
    auto bytes = readFileBytes(path);
    if (!bytes) {
        Answer a = services.dialogs.message(readErrorMessage(inFrench(bytes.error()), "", ""));
        if (a != Answer::Yes)
            giveUp(project, services);
        return;
    }
    loadProjectText(project, decodeCp1252(*bytes), path, services);
}

// The load without the QMB detour.
void loadProjectFile(MenuProject& project, const std::string& path, bool resetFirst,
                     ProjectServices& services)
{
    if (resetFirst)
        resetProject(project, services);
    std::string folder = folderOf(path);
    if (!folder.empty())
        services.hooks.setCurrentFolder(folder);
    readFile(project, path, services);
}

}  // namespace

bool isQmbPath(std::string_view path)
{
    return endsWithNoCase(path, "qmb");
}

void resetProject(MenuProject& project, ProjectServices& services)
{
    project.reset(defaultIconMarker(services.phrases));
    services.hooks.resetViews();
}

void loadProject(MenuProject& project, const std::string& path, bool resetFirst,
                 ProjectServices& services)
{
    if (isQmbPath(path)) {
        services.hooks.importQmb(path);
        return;
    }
    loadProjectFile(project, path, resetFirst, services);
}

void loadProjectText(MenuProject& project, std::string_view text, const std::string& path,
                     ProjectServices& services)
{
    ProjectReader reader(project, services.hooks, services.dialogs);
    if (reader.read(text, path) == ReadOutcome::Abandoned) {
        giveUp(project, services);
        return;
    }
    project.filePath = path;
    services.hooks.addRecentFile(path);
}

void saveProject(MenuProject& project, const std::string& path, ProjectServices& services)
{
    const std::string previous = project.filePath;
    Status written = writeFileAtomically(path, projectFileBytes(project, RelativePathRule(path, previous)));
    if (!written) {
        services.dialogs.message(saveErrorMessage(inFrench(written.error()), services.phrases));
        project.filePath.clear();
        return;
    }
    if (path != previous) {
        // Read back what was just written, even under a name ending in
        // "qmb": this is a project file, not one for the QMB import.
        project.filePath = path;
        loadProjectFile(project, path, true, services);
    }
    services.hooks.addRecentFile(path);
}

Message saveErrorMessage(const Error& error, const Phrases& phrases)
{
    return Message{phrases.text(19, "Erreur pendant l'enregistrement !") + " (" + error.description + ")",
                   phrases.text(7, "Erreur !"), MessageIcon::Critical, MessageButtons::Ok};
}

}  // namespace qor
