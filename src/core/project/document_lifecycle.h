#pragma once

#include <string>
#include <vector>

#include "core/ports/desktop.h"
#include "core/ports/dialogs.h"
#include "core/project/document.h"
#include "core/project/file_info.h"
#include "core/project/project_file.h"
#include "model/menu_project.h"

namespace qor {

// What the document lifecycle shows besides the project's own views.
class DocumentView {
public:
    virtual ~DocumentView() = default;

    // Opens the "Propriétés" window with the file's information and the
    // author fields; its "&Valider" hands the fields to applyAuthorFields.
    virtual void showFileInfo(const FileInfo& info, const AuthorFields& fields) = 0;

    // The project was reset or replaced by a load: the worksheet takes the
    // project's size and background colour, the properties panel its values.
    // (The elements, the background picture, the selector and the startup
    // choice have already followed through the project hooks.)
    virtual void projectReplaced(const MenuProject& project) = 0;
};

// The open, save and new commands of the one project, each guarded by the
// save question where it would drop the project. There is no modified flag:
// the question is asked every time.
class DocumentLifecycle final : public Document {
public:
    DocumentLifecycle(MenuProject& project, ProjectServices& services, Desktop& desktop, DocumentView& view)
        : project_(project), services_(services), desktop_(desktop), view_(view) {}

    // The question, naming the project's file when it has one. Yes runs Save
    // and answers Saved even when the save-as dialog is then cancelled.
    SaveAnswer askToSave(bool systemModal) override;

    // "Projet &vierge": ask, then reset.
    void newBlank() override;
    // "&Assistant création": ask, then reset; true when the wizard should open.
    bool newThroughWizard() override;
    // "&Ouvrir": ask, then the open dialog; an existing file is loaded with
    // reset first (a ".qmb" goes to the QMB import).
    void open() override;
    // "&Enregistrer": to filePath, or Save as for a project never saved.
    void save() override;
    // "Enregistrer &Sous": the name chosen is used as typed, with no extension
    // added and no question before replacing a file.
    void saveAs() override;
    // "&Actualiser le projet": ask, then read the file again.
    void reload() override;
    // "&Modidifier la source": ask, explain, then open the file in a plain
    // text editor.
    void editSource() override;
    // An entry of the recent files list; a missing file is reported and the
    // project stays as it is.
    void openRecent(const std::string& path) override;
    // "Propriétés".
    void showFileInfo() override;
    void openPath(const std::string& path) override;
    void clearForQuit() override;
    void setWindowSize(double width, double height) override;

    // Files dropped on the worksheet's background: ask, then open the last one.
    void openDropped(const std::vector<std::string>& paths);

    // Back to an empty project: the model's new values and the views with it;
    // the window size stays.
    void reset();

private:
    bool neverSaved();
    void load(const std::string& path);
    void saveTo(const std::string& path);

    MenuProject& project_;
    ProjectServices& services_;
    Desktop& desktop_;
    DocumentView& view_;
};

// The dialogs and messages of the lifecycle, each in one place.
Message saveQuestion(const std::string& filePath, const Phrases& phrases, bool systemModal);
FileDialogRequest openDialogRequest(const Phrases& phrases);
FileDialogRequest saveAsDialogRequest(const Phrases& phrases);
Message projectNotSavedMessage(const Phrases& phrases);
Message editSourceMessage(const Phrases& phrases);
Message textEditorFailedMessage();
Message recentFileMissingMessage(const std::string& path, const Phrases& phrases);

}  // namespace qor
