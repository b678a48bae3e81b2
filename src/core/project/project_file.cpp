#include "core/project/project_file.h"

#include "core/ui/phrases.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

// Each failure of a read asks the user whether to go on.
class ReadErrorQuestion final : public ReadFailures {
public:
    explicit ReadErrorQuestion(Dialogs& dialogs) : dialogs_(dialogs) {}
    bool goOn(const Error& error, std::string_view paragraph, std::string_view valueLine) override
    {
        return dialogs_.message(readErrorMessage(error, paragraph, valueLine)) == Answer::Yes;
    }

private:
    Dialogs& dialogs_;
};

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

std::string defaultIconMarker(const Phrases& phrases)
{
    return "(" + phrases.text(24, "Icône par défaut") + ")";
}

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
        services.routes.importQmb(path);
        return;
    }
    loadProjectFile(project, path, resetFirst, services);
}

void loadProjectText(MenuProject& project, std::string_view text, const std::string& path,
                     ProjectServices& services)
{
    ReadErrorQuestion question(services.dialogs);
    ProjectReader reader(project, services.hooks, question);
    if (reader.read(text, path) == ReadOutcome::Abandoned) {
        giveUp(project, services);
        return;
    }
    project.filePath = path;
    services.routes.addRecentFile(path);
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
    services.routes.addRecentFile(path);
}

Message readErrorMessage(const Error& error, std::string_view paragraph, std::string_view valueLine)
{
    std::string text;
    text += "Erreur : " + error.description;
    text += kCrLf;
    text += "Numéro d'erreur : " + std::to_string(error.number);
    text += kCrLf;
    text += "Paragraphe : ";
    text += paragraph;
    text += kCrLf;
    text += "Ligne suivante : ";
    text += valueLine;
    text += kCrLf;
    text += kCrLf;
    text += "Continuer le chargement ?";
    return Message{std::move(text), "Erreur d'ouverture !", MessageIcon::Critical, MessageButtons::YesNo};
}

Message saveErrorMessage(const Error& error, const Phrases& phrases)
{
    return Message{phrases.text(19, "Erreur pendant l'enregistrement !") + " (" + error.description + ")",
                   phrases.text(7, "Erreur !"), MessageIcon::Critical, MessageButtons::Ok};
}

}  // namespace qor
