#include "core/project/document_lifecycle.h"

#include <filesystem>

#include "core/ui/menu_tree.h"
#include "core/ui/phrases.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

bool isFile(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

}  // namespace

Message saveQuestion(const std::string& filePath, const Phrases& phrases, bool systemModal)
{
    Message m;
    m.text = filePath.empty()
                 ? phrases.text(25, "Voulez-vous enregistrer le fichier en cours ?")
                 : phrases.text(26, "Voulez-vous enregistrer les modifications apportées au fichier ") + "'" +
                       fileNameOf(filePath) + "' ?";
    m.title = phrases.text(27, "Enregistrement");
    m.icon = MessageIcon::Question;
    m.buttons = MessageButtons::YesNoCancel;
    m.systemModal = systemModal;
    return m;
}

FileDialogRequest openDialogRequest(const Phrases& phrases)
{
    FileDialogRequest r;
    r.title = commandCaption(CommandId::Open);
    r.filter = phrases.languageActive()
                   ? phrases.text(14, "Fichier QOR") + " v1.0/v1.1 (*.qor) | *.qor;*.qmb"
                   : "Fichier QOR v1.0/v1.1 (*.qor)|*.qor|Fichier QMB ou compatible (*.qmb)|*.qmb";
    return r;
}

FileDialogRequest saveAsDialogRequest(const Phrases& phrases)
{
    FileDialogRequest r;
    r.title = commandCaption(CommandId::SaveAs);
    r.filter = phrases.text(14, "Fichier QOR") + " v1.1 (*.qor) | *.qor";
    return r;
}

Message projectNotSavedMessage(const Phrases& phrases)
{
    return Message{phrases.text(8, "Le projet en cours n'est pas enregistré !"), "", MessageIcon::Exclamation};
}

Message editSourceMessage(const Phrases& phrases)
{
    return Message{phrases.text(18, "La source du projet en cours va s'afficher, après l'avoir modifiée, "
                                    "cliquez sur Source > Actualiser."),
                   "", MessageIcon::Information};
}

Message textEditorFailedMessage()
{
    return Message{"Aucun éditeur de texte n'a pu être démarré pour afficher la source du projet !", "Erreur",
                   MessageIcon::Critical};
}

Message recentFileMissingMessage(const std::string& path, const Phrases& phrases)
{
    if (phrases.languageActive())
        return Message{phrases.text(28, "Le fichier ") + "'" + path + "'", phrases.text(29, "Erreur de chargement"), MessageIcon::Critical};
    return Message{"Le fichier '" + path + "' est introuvable !", "Erreur de chargement", MessageIcon::Critical};
}

SaveAnswer DocumentLifecycle::askToSave(bool systemModal)
{
    switch (services_.dialogs.message(saveQuestion(project_.filePath, services_.phrases, systemModal))) {
    case Answer::Yes:
        save();
        return SaveAnswer::Saved;
    case Answer::No:
        return SaveAnswer::NotSaved;
    default:
        return SaveAnswer::Cancelled;
    }
}

void DocumentLifecycle::newBlank()
{
    if (askToSave(false) != SaveAnswer::Cancelled)
        reset();
}

bool DocumentLifecycle::newThroughWizard()
{
    if (askToSave(false) == SaveAnswer::Cancelled)
        return false;
    reset();
    return true;
}

void DocumentLifecycle::open()
{
    if (askToSave(false) == SaveAnswer::Cancelled)
        return;
    const auto path = services_.dialogs.openFile(openDialogRequest(services_.phrases));
    if (path && !path->empty() && isFile(*path))
        load(*path);
}

void DocumentLifecycle::load(const std::string& path)
{
    loadProject(project_, path, true, services_);
    view_.projectReplaced(project_);
}

void DocumentLifecycle::saveTo(const std::string& path)
{
    const bool elsewhere = path != project_.filePath;
    saveProject(project_, path, services_);
    // Saved under a new name, the project was read back from it.
    if (elsewhere)
        view_.projectReplaced(project_);
}

void DocumentLifecycle::save()
{
    if (project_.filePath.empty())
        saveAs();
    else
        saveTo(project_.filePath);
}

void DocumentLifecycle::saveAs()
{
    const auto path = services_.dialogs.saveFile(saveAsDialogRequest(services_.phrases));
    if (path && !path->empty())
        saveTo(*path);
}

bool DocumentLifecycle::neverSaved()
{
    if (!project_.filePath.empty())
        return false;
    services_.dialogs.message(projectNotSavedMessage(services_.phrases));
    return true;
}

void DocumentLifecycle::reload()
{
    if (neverSaved())
        return;
    // Kept before the question: a Yes whose save fails empties filePath, and
    // the file on disk, left whole by the failed save, is still the one to read.
    const std::string path = project_.filePath;
    if (askToSave(false) == SaveAnswer::Cancelled)
        return;
    load(path);
}

void DocumentLifecycle::editSource()
{
    if (neverSaved())
        return;
    const std::string path = project_.filePath;
    if (askToSave(false) == SaveAnswer::Cancelled)
        return;
    services_.dialogs.message(editSourceMessage(services_.phrases));
    if (!desktop_.editText(path))
        services_.dialogs.message(textEditorFailedMessage());
}

void DocumentLifecycle::openRecent(const std::string& path)
{
    if (!isFile(path)) {
        services_.dialogs.message(recentFileMissingMessage(path, services_.phrases));
        return;
    }
    if (askToSave(false) == SaveAnswer::Cancelled)
        return;
    load(path);
}

void DocumentLifecycle::showFileInfo()
{
    view_.showFileInfo(readFileInfo(project_.filePath), authorFieldsOf(project_));
}

void DocumentLifecycle::openPath(const std::string& path)
{
    load(path);
}

void DocumentLifecycle::openDropped(const std::vector<std::string>& paths)
{
    if (paths.empty() || askToSave(false) == SaveAnswer::Cancelled)
        return;
    load(paths.back());
}

void DocumentLifecycle::reset()
{
    resetProject(project_, services_);
    view_.projectReplaced(project_);
}

void DocumentLifecycle::clearForQuit()
{
    project_.authorName.clear();
    project_.authorEmail.clear();
    project_.authorWebSite.clear();
    project_.notes.clear();
    for (int n = 0; n < MenuProject::kButtonSlots; ++n) {
        MenuButton& b = project_.button(n);
        b.normalImage.clear();
        b.hoverImage.clear();
        b.pressedImage.clear();
        b.kind.clear();
        b.action.clear();
        b.hoverScript.clear();
    }
    project_.filePath.clear();
}

void DocumentLifecycle::setWindowSize(double width, double height)
{
    project_.width = float(width);
    project_.height = float(height);
    // The worksheet shows the new project from the start: its size and its
    // (white) background, not the window's default colour.
    view_.projectReplaced(project_);
}

}  // namespace qor
