#include "core/scripting/script_slots.h"

#include <array>
#include <utility>

#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr std::string_view kCrLf = "\r\n";

struct SlotRow {
    ScriptSlot slot;
    std::string_view tag;
};

constexpr std::array<SlotRow, 6> kSlots{{
    {ScriptSlot::Button, script_tag::button},
    {ScriptSlot::Startup, script_tag::startup},
    {ScriptSlot::Timer, script_tag::timer},
    {ScriptSlot::Global, script_tag::global},
    {ScriptSlot::ButtonHover, script_tag::buttonHover},
    {ScriptSlot::WindowHover, script_tag::windowHover},
}};

std::string dashLine()
{
    return "'" + std::string(78, '-');
}

std::string lines(std::initializer_list<std::string> parts)
{
    std::string text;
    for (const auto& line : parts) {
        text += line;
        text += kCrLf;
    }
    return text;
}

// The three note lines every script template but the global one carries.
std::string noteLines()
{
    return lines({"'NOTE : toutes les occurences de [LECT] seront automatiquement",
                  "'remplacées par la lettre du lecteur en cours.",
                  "'Exemple MsgBox \"[LECT]:\\\" affiche d:\\ si d est le lecteur en cours..."});
}

std::string framedTemplate(std::string_view firstLine)
{
    std::string text = dashLine() + std::string(kCrLf);
    if (!firstLine.empty())
        text += std::string(firstLine) + std::string(kCrLf);
    return text + noteLines() + dashLine() + std::string(kCrLf);
}

bool isButtonNumber(int n)
{
    return n >= 1 && n <= MenuProject::kLastButtonSlot;
}

ScriptEditorRequest request(ScriptSlot slot, std::string title, std::string text)
{
    return {std::string(scriptTagOf(slot)), std::move(title), std::move(text)};
}

// The startup slot: the script behind "VBS:", or the template once any
// other action (a media name, "VBS:" alone) has been dropped.
std::string openStartup(MenuProject& project)
{
    if (isStartupScript(project.startupAction))
        return project.startupAction.substr(kStartupScriptPrefix.size());
    project.startupAction = std::string(kStartupScriptPrefix) + startupTemplate();
    return startupTemplate();
}

std::string& withTemplate(std::string& field, std::string (*makeTemplate)())
{
    if (field.empty())
        field = makeTemplate();
    return field;
}

}  // namespace

std::optional<ScriptSlot> scriptSlotOfTag(std::string_view tag)
{
    const std::string upper = toUpperText(tag);
    for (const auto& row : kSlots)
        if (toUpperText(row.tag) == upper)
            return row.slot;
    return std::nullopt;
}

std::string_view scriptTagOf(ScriptSlot slot)
{
    for (const auto& row : kSlots)
        if (row.slot == slot)
            return row.tag;
    return {};
}

std::string buttonTemplate(int number)
{
    return framedTemplate("'Tapez ici le code VBS à exécuter quand le bouton " + std::to_string(number) +
                          " est préssé.");
}

std::string startupTemplate()
{
    return framedTemplate("'Tapez ici le code VBS à exécuter au démarrage du projet.");
}

std::string timerTemplate()
{
    return framedTemplate({});
}

std::string globalTemplate()
{
    return lines({"'Les procédures et constantes définies ici seront accessibles par les",
                  "'autres scripts du projet (boutons, minuteur, démarrage...)", "",
                  "Const pi = 3.14159265358979"});
}

bool isStartupScript(std::string_view startupAction)
{
    return beginsWithAndLonger(startupAction, kStartupScriptPrefix);
}

ScriptEditorRequest openScriptSlot(MenuProject& project, ScriptSlot slot, int button)
{
    const std::string n = std::to_string(button);
    const bool hasButton = isButtonNumber(button);
    switch (slot) {
    case ScriptSlot::Button:
        return request(slot, "Code VBS sur bouton " + n, hasButton ? project.button(button).action : "");
    case ScriptSlot::Startup:
        return request(slot, "Code VBS à exécuter au démarrage du projet", openStartup(project));
    case ScriptSlot::Timer:
        return request(slot, "Code VBS du minuteur", withTemplate(project.timerScript, timerTemplate));
    case ScriptSlot::Global:
        return request(slot, "Code VBS global", withTemplate(project.globalScript, globalTemplate));
    case ScriptSlot::ButtonHover:
        return request(slot, "Actions au survol du bouton " + n, hasButton ? project.button(button).hoverScript : "");
    case ScriptSlot::WindowHover:
        return request(slot, "Actions au survol de la feuille", project.windowHoverScript);
    }
    return {};
}

void writeBackScript(MenuProject& project, int currentButton, std::string_view tag, std::string_view text)
{
    const auto slot = scriptSlotOfTag(tag);
    if (!slot)
        return;
    const bool hasButton = isButtonNumber(currentButton);
    switch (*slot) {
    case ScriptSlot::Button:
        if (hasButton)
            project.button(currentButton).action = text;
        break;
    case ScriptSlot::Startup:
        project.startupAction = text.empty() ? std::string(kEmptiedStartupAction)
                                             : std::string(kStartupScriptPrefix) + std::string(text);
        break;
    case ScriptSlot::Timer: project.timerScript = text; break;
    case ScriptSlot::Global: project.globalScript = text; break;
    case ScriptSlot::ButtonHover:
        if (hasButton)
            project.button(currentButton).hoverScript = text;
        break;
    case ScriptSlot::WindowHover: project.windowHoverScript = text; break;
    }
}

}  // namespace qor
