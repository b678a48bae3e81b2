#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/menu_project.h"

namespace qor {

// What the compile dialog "Création pour graver" hands to the compilation.
struct CompileRequest {
    std::string target;                    // Text1: the folder to burn from
    std::string projectName;               // Text2: "Nom du projet :"
    std::string author;                    // Text3: "Auteur du projet :"
    bool subMenu = false;                  // Check2: "Sous menu    Nom :"
    std::string subMenuName = "SousMenu1"; // Text4
    bool skipRuntime = false;              // Check1: "Ne pas copier les fichiers 'RUNTIME'"

    friend bool operator==(const CompileRequest&, const CompileRequest&) = default;
};

// The name a never saved project compiles under by default.
inline constexpr const char* kGenericProjectName = "Nouveau projet";

// The dialog's defaults: target the user's home folder, the project file's
// name without its extension, the author with the e-mail in brackets.
CompileRequest compileDefaults(const MenuProject& project, const std::string& homeFolder);
std::string defaultProjectName(const MenuProject& project);
std::string defaultAuthor(const MenuProject& project);

// Which fields the sub-menu tick leaves editable.
struct CompileFieldStates {
    bool subMenuNameEnabled = false;   // Text4
    bool skipRuntimeEnabled = true;    // Check1

    friend bool operator==(const CompileFieldStates&, const CompileFieldStates&) = default;
};
CompileFieldStates compileFieldStates(bool subMenuTicked);

// The CD icon the dialog previews: the program folder's default icon for
// the default marker, else the project's icon file.
std::string iconPreviewPath(const MenuProject& project, const std::string& programFolder);

// The folder as a compilation uses it: with a trailing "/".
std::string normalisedTarget(const std::string& typed);

// A name that stands for one file inside a folder and nothing else: a
// sub-menu name, an exported executable's name.
bool isPlainFileName(const std::string& name);

// True when every character of text has a Windows-1252 byte: the data
// line names files in that code page.
bool fitsCp1252(const std::string& text);

// True when some button shows baked images: a live, transparent button
// with its normal image.
bool needsBaking(const MenuProject& project);

// True when folder names the file system's root: "/", "//", "/..", "/./" ...
bool isRootFolder(std::string_view folder);

}  // namespace qor
