#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/build/compile_request.h"
#include "model/menu_project.h"

namespace qor {

// One thing a compilation does, in the order it does them.
struct CompileAction {
    enum class Kind {
        Show,             // text becomes the current step (Label3)
        WriteAutorunInf,  // target: T + "Autorun.inf"
        CreateFolder,     // target: T + "qor", unless it exists
        Copy,             // source -> target
        SetIcon,          // source: the project's .ico, made the icon of target (the player's copy)
        SetDetails,       // the menu's name and author written into target's version information
        WriteData,        // the compiled menu data appended to target
        Rename,           // source -> target
    };
    Kind kind = Kind::Show;
    std::string text = {};     // Show
    std::string source = {};   // Copy, Rename
    std::string target = {};
    bool keepExisting = false;   // Copy: nothing when target exists already

    friend bool operator==(const CompileAction&, const CompileAction&) = default;
};

// Every step of a compilation after its checks. The player is copied under
// a working name and takes its final name only once its data is appended,
// so that a compilation that fails leaves no half-made player to run.
struct CompilePlan {
    std::vector<CompileAction> actions;
    std::string player;          // T + "qor/autorun.exe" or T + "qor/<name>.exe"
    std::string partialPlayer;   // where it is made

    // Two different files that would land on one name of qor/ (letter case
    // ignored, as on the Windows machines a CD is made for): the first
    // source and the one that would replace it. The same file named twice
    // is copied once and is no clash.
    struct Clash {
        std::string first;
        std::string second;
        friend bool operator==(const Clash&, const Clash&) = default;
    };
    std::optional<Clash> clash;

    // The step texts in order ("Création de l'Autorun...", "Terminé." ...).
    std::vector<std::string> shownTexts() const;
};

// The plan for request (its target ending with "/"), copying the program
// files from programFolder.
CompilePlan compilePlan(const MenuProject& project, const CompileRequest& request, const std::string& programFolder);

}  // namespace qor
