#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qor {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

// A message box as the user sees it. Lines of the text are broken by CR LF
// (the editor's newline constant); the dialog shows each as a line break.
struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    int defaultButton = 0;    // 0 = first button, 1 = second, 2 = third
    bool systemModal = false;

    friend bool operator==(const Message&, const Message&) = default;
};

// A common open or save file dialog. The filter is in the editor's own form:
// "Fichier QOR v1.1 (*.qor) | *.qor" (description | patterns, repeated).
struct FileDialogRequest {
    std::string title;
    std::string filter;
    std::string initialFolder;   // empty: the process's current folder
    std::string initialName;     // empty: no preset name

    friend bool operator==(const FileDialogRequest&, const FileDialogRequest&) = default;
};

// A colour 0x00BBGGRR; the high bit set stands for system colour n.
using Colour = std::int32_t;

struct FontChoice {
    std::string name;
    double size = 8;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;

    friend bool operator==(const FontChoice&, const FontChoice&) = default;
};

// Everything the core asks the user goes through here.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual Answer message(const Message& message) = 0;

    // The text typed; empty when the user cancels.
    virtual std::string inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;

    // The chosen path, or nothing when the dialog is cancelled.
    virtual std::optional<std::string> openFile(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> saveFile(const FileDialogRequest& request) = 0;

    // The chosen folder, or nothing when cancelled.
    virtual std::optional<std::string> pickFolder(const std::string& prompt) = 0;

    virtual std::optional<Colour> pickColour(Colour initial) = 0;
    virtual std::optional<FontChoice> pickFont(const FontChoice& initial) = 0;
};

}  // namespace qor
