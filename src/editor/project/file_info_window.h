#pragma once

#include <QDialog>

#include <functional>
#include <string>
#include <string_view>

#include "editor/ui/window_hooks.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace qor {

// What the "Propriétés" window shows: the file's origin (read-only) and the
// project's author fields (editable).
struct FileInfoView {
    std::string fileLine;      // "name (size octets )" or "<inconnu>"
    std::string editor;
    std::string version;
    std::string fileVersion;
    std::string authorName;
    std::string authorEmail;
    std::string authorWebSite;
    std::string notes;         // lines separated by CR LF

    friend bool operator==(const FileInfoView&, const FileInfoView&) = default;
};

// The project information window "Propriétés" ("Form19"). "&Valider"
// accepts the dialog, "&Annuler" rejects it; the caller copies the author
// fields into the project on acceptance.
class FileInfoWindow : public QDialog {
    Q_OBJECT
public:
    explicit FileInfoWindow(WindowHooks& hooks = WindowHooks::none(), QWidget* parent = nullptr);

    void fill(const FileInfoView& view);
    // The fields as they stand (the editable ones as the user left them).
    FileInfoView values() const;

    // The rule applied to the notes as they are typed: it gets the whole
    // text and returns the text to keep (the project's line-break mark
    // cannot be typed, say). Without a rule the notes are kept as typed.
    using TextRule = std::function<std::string(std::string_view)>;
    void setNotesRule(TextRule rule) { notesRule_ = std::move(rule); }

    QLineEdit* field(const char* name) const;
    QPlainTextEdit* notesField() const { return notes_; }

private:
    void applyNotesRule();

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    QLabel* fileLine_ = nullptr;
    QLineEdit* editor_ = nullptr;
    QLineEdit* version_ = nullptr;
    QLineEdit* fileVersion_ = nullptr;
    QLineEdit* authorName_ = nullptr;
    QLineEdit* authorEmail_ = nullptr;
    QLineEdit* authorWebSite_ = nullptr;
    QPlainTextEdit* notes_ = nullptr;
    TextRule notesRule_;
    bool applyingRule_ = false;
};

}  // namespace qor
