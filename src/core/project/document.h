#pragma once

#include <string>
#include <string_view>

namespace qor {

// The answer of the save question that guards every command dropping the
// project. Callers go on unless it is Cancelled.
enum class SaveAnswer {
    Saved,      // "enr": Yes, and the save ran (even if abandoned in its dialog)
    NotSaved,   // "non"
    Cancelled,  // "annule"
};

// "enr", "non" or "annule".
std::string_view saveAnswerWord(SaveAnswer answer);

// The open project's commands as the shell calls them: the document
// lifecycle implements them over the project model.
class Document {
public:
    virtual ~Document() = default;

    // "Voulez-vous enregistrer ... ?" with Yes, No and Cancel.
    virtual SaveAnswer askToSave(bool systemModal) = 0;

    virtual void newBlank() = 0;
    // Asks to save and resets; true when the wizard should now open.
    virtual bool newThroughWizard() = 0;
    virtual void open() = 0;
    virtual void save() = 0;
    virtual void saveAs() = 0;
    virtual void reload() = 0;
    virtual void editSource() = 0;
    virtual void openRecent(const std::string& path) = 0;
    // "Propriétés": the project file information window.
    virtual void showFileInfo() = 0;

    // Loads a project with reset first, without asking (start-up's project).
    virtual void openPath(const std::string& path) = 0;

    // Quitting: the author fields and the text fields of every button slot
    // emptied, and the project's file forgotten.
    virtual void clearForQuit() = 0;

    // Start-up gave the worksheet its first size (twips): the project's
    // window takes it, so that a new project is saved at the size shown, and
    // the views show the new project.
    virtual void setWindowSize(double width, double height) = 0;
};

}  // namespace qor
