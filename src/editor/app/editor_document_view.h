#pragma once

#include <functional>

#include "core/project/document_lifecycle.h"

namespace qor {

class EditorWindows;

// The document lifecycle's view: the "Propriétés" window, and the worksheet
// following the project that a reset or a load leaves.
class EditorDocumentView final : public DocumentView {
public:
    explicit EditorDocumentView(EditorWindows& windows) : windows_(windows) {}

    // Where "&Valider" sends the author fields as the user left them.
    std::function<void(const AuthorFields&)> authorFieldsAccepted;
    // Called once the worksheet has taken the new project's size and colour.
    std::function<void()> afterProjectReplaced;

    // Opens the window without waiting for it: it is modal over the editor,
    // and its "&Valider" hands the fields over when it is pressed.
    void showFileInfo(const FileInfo& info, const AuthorFields& fields) override;
    void projectReplaced(const MenuProject& project) override;

private:
    EditorWindows& windows_;
};

}  // namespace qor
