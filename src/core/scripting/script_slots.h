#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/menu_project.h"

namespace qor {

// The six places of a project that hold VBScript, and the tag with which the
// script editor is told which one it edits. Tags are compared in upper case,
// so "Minuteur" selects the timer script as "minuteur" does.
enum class ScriptSlot { Button, Startup, Timer, Global, ButtonHover, WindowHover };

namespace script_tag {
inline constexpr std::string_view button = "bouton";
inline constexpr std::string_view startup = "EDIT_PRINC";
inline constexpr std::string_view timer = "minuteur";
inline constexpr std::string_view global = "global";
inline constexpr std::string_view buttonHover = "boutonsurvol";
inline constexpr std::string_view windowHover = "survolfenetre";
}  // namespace script_tag

// The slot a tag names, none for a tag that matches no slot.
std::optional<ScriptSlot> scriptSlotOfTag(std::string_view tag);

// The tag the editor is given for a slot.
std::string_view scriptTagOf(ScriptSlot slot);

// The prefix of a startup action that holds a script.
inline constexpr std::string_view kStartupScriptPrefix = "VBS:";

// What a cleared startup script leaves in the project: the startup kind
// stays "run a script" instead of falling back to nothing.
inline constexpr std::string_view kEmptiedStartupAction =
    "VBS:'Tapez ici le code VBS à exécuter au démarrage.\r\n";

// The default texts of the empty slots; every line ends with CR LF.
std::string buttonTemplate(int number);
std::string startupTemplate();
std::string timerTemplate();
std::string globalTemplate();

// True when a startup action holds a script: "VBS:" in any case and at
// least one character behind it.
bool isStartupScript(std::string_view startupAction);

// What the script editor is given when a slot is opened.
struct ScriptEditorRequest {
    std::string tag;
    std::string title;
    std::string text;

    friend bool operator==(const ScriptEditorRequest&, const ScriptEditorRequest&) = default;
};

// Opens a slot: its title, tag and text, after the template rules have
// changed the project where they do (an empty timer or global script takes
// its template; a startup action that is not a script gives way to the
// startup template). button is the number of the button concerned, for the
// two button slots.
ScriptEditorRequest openScriptSlot(MenuProject& project, ScriptSlot slot, int button = -1);

// Stores an edited text into the slot named by tag; the forbidden characters
// are already gone. currentButton says which button the two button slots
// mean; a tag of no slot, or a button slot without a current button, stores
// nothing.
void writeBackScript(MenuProject& project, int currentButton, std::string_view tag, std::string_view text);

}  // namespace qor
