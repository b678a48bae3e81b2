#pragma once

#include <string>
#include <string_view>

namespace qor {

class MenuProject;

inline constexpr const char* kUnknownFileInfo = "<inconnu>";

// What the "Propriétés" window shows about the project file: where it comes
// from, read from the file on disk as it is when the window opens.
struct FileInfo {
    std::string topLine;       // "menu.qor (1234 octets )"
    std::string editor;        // "Editeur :"
    std::string version;       // "Version :"
    std::string fileVersion;   // "Version fichier :"

    friend bool operator==(const FileInfo&, const FileInfo&) = default;
};

// The four read-only fields for the project file at filePath: "<inconnu>"
// in all four when there is no such file; otherwise the file's name and size
// and the three lines after its first "[Format]" line, each without its key
// ("Editeur=", "Version=", "Fichier="). An empty file version shows "1.0".
FileInfo readFileInfo(const std::string& filePath);

// The project's author fields as the window edits them.
struct AuthorFields {
    std::string name;
    std::string email;
    std::string webSite;
    std::string notes;   // multi-line

    friend bool operator==(const AuthorFields&, const AuthorFields&) = default;
};

// The fields the window opens with.
AuthorFields authorFieldsOf(const MenuProject& project);

// "&Valider": the fields go into the project, which is not saved.
void applyAuthorFields(MenuProject& project, const AuthorFields& fields);
std::string cleanOneLine(std::string_view typed);

// The notes as typed, every "¤" (the project file's line-break mark) made "*".
std::string cleanNotes(std::string_view typed);

}  // namespace qor
