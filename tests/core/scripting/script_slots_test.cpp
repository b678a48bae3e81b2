#include <gtest/gtest.h>

#include "core/scripting/script_slots.h"

namespace qor {
namespace {

const std::string kDash = "'" + std::string(78, '-') + "\r\n";
const std::string kNotes =
    "'NOTE : toutes les occurences de [LECT] seront automatiquement\r\n"
    "'remplacées par la lettre du lecteur en cours.\r\n"
    "'Exemple MsgBox \"[LECT]:\\\" affiche d:\\ si d est le lecteur en cours...\r\n";

TEST(ScriptTemplates, AreTheExactTextsWithCrLfAfterEveryLine)
{
    struct Case {
        std::string actual;
        std::string expected;
    } cases[] = {
        {buttonTemplate(12),
         kDash + "'Tapez ici le code VBS à exécuter quand le bouton 12 est préssé.\r\n" + kNotes + kDash},
        {buttonTemplate(1), kDash + "'Tapez ici le code VBS à exécuter quand le bouton 1 est préssé.\r\n" + kNotes + kDash},
        {startupTemplate(), kDash + "'Tapez ici le code VBS à exécuter au démarrage du projet.\r\n" + kNotes + kDash},
        {timerTemplate(), kDash + kNotes + kDash},
        {globalTemplate(),
         "'Les procédures et constantes définies ici seront accessibles par les\r\n"
         "'autres scripts du projet (boutons, minuteur, démarrage...)\r\n"
         "\r\n"
         "Const pi = 3.14159265358979\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.actual, c.expected);
    EXPECT_EQ(kDash.size(), 79u + 2u);
}

TEST(ScriptSlotTags, AreComparedInUpperCase)
{
    struct Case {
        const char* tag;
        std::optional<ScriptSlot> slot;
    } cases[] = {
        {"bouton", ScriptSlot::Button},        {"BOUTON", ScriptSlot::Button},
        {"EDIT_PRINC", ScriptSlot::Startup},   {"edit_princ", ScriptSlot::Startup},
        {"Minuteur", ScriptSlot::Timer},       {"minuteur", ScriptSlot::Timer},
        {"global", ScriptSlot::Global},        {"boutonsurvol", ScriptSlot::ButtonHover},
        {"SurvolFenetre", ScriptSlot::WindowHover},
        {"", std::nullopt},                    {"boutons", std::nullopt},
        {"EDIT", std::nullopt},                {"survol", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(scriptSlotOfTag(c.tag), c.slot) << c.tag;
}

MenuProject projectWithButton(int n, std::string action, std::string hover)
{
    MenuProject project;
    project.button(n).kind = "code";
    project.button(n).action = std::move(action);
    project.button(n).hoverScript = std::move(hover);
    return project;
}

TEST(OpenScriptSlot, GivesTitleTagAndTextAndFillsTheTemplatesWhereTheyApply)
{
    struct Case {
        const char* name;
        ScriptSlot slot;
        int button;
        std::string startupBefore;
        ScriptEditorRequest expected;
        std::string startupAfter;
    } cases[] = {
        {"button script", ScriptSlot::Button, 7, "", {"bouton", "Code VBS sur bouton 7", "MsgBox 1"}, ""},
        {"button hover", ScriptSlot::ButtonHover, 7, "", {"boutonsurvol", "Actions au survol du bouton 7", "h"}, ""},
        {"window hover, no template", ScriptSlot::WindowHover, -1, "", {"survolfenetre", "Actions au survol de la feuille", ""}, ""},
        {"startup script kept", ScriptSlot::Startup, -1, "vbs:x = 1",
         {"EDIT_PRINC", "Code VBS à exécuter au démarrage du projet", "x = 1"}, "vbs:x = 1"},
        {"startup empty", ScriptSlot::Startup, -1, "",
         {"EDIT_PRINC", "Code VBS à exécuter au démarrage du projet", startupTemplate()}, "VBS:" + startupTemplate()},
        {"startup VBS: alone", ScriptSlot::Startup, -1, "VBS:",
         {"EDIT_PRINC", "Code VBS à exécuter au démarrage du projet", startupTemplate()}, "VBS:" + startupTemplate()},
        {"startup media name dropped", ScriptSlot::Startup, -1, "intro.avi",
         {"EDIT_PRINC", "Code VBS à exécuter au démarrage du projet", startupTemplate()}, "VBS:" + startupTemplate()},
    };
    for (const auto& c : cases) {
        MenuProject project = projectWithButton(7, "MsgBox 1", "h");
        project.startupAction = c.startupBefore;
        EXPECT_EQ(openScriptSlot(project, c.slot, c.button), c.expected) << c.name;
        EXPECT_EQ(project.startupAction, c.startupAfter) << c.name;
    }
}

TEST(OpenScriptSlot, EmptyTimerAndGlobalScriptsTakeTheirTemplateInTheProject)
{
    MenuProject project;
    EXPECT_EQ(openScriptSlot(project, ScriptSlot::Timer).text, timerTemplate());
    EXPECT_EQ(project.timerScript, timerTemplate());
    EXPECT_EQ(openScriptSlot(project, ScriptSlot::Global).text, globalTemplate());
    EXPECT_EQ(project.globalScript, globalTemplate());

    project.timerScript = "Fenetre.Caption = Time";
    project.globalScript = "Dim a";
    EXPECT_EQ(openScriptSlot(project, ScriptSlot::Timer), (ScriptEditorRequest{"minuteur", "Code VBS du minuteur", "Fenetre.Caption = Time"}));
    EXPECT_EQ(openScriptSlot(project, ScriptSlot::Global), (ScriptEditorRequest{"global", "Code VBS global", "Dim a"}));
}

TEST(WriteBackScript, StoresIntoTheSlotTheTagNames)
{
    struct Case {
        const char* tag;
        int currentButton;
        const char* text;
        std::string MenuProject::*field;  // null: a button field or nothing
        std::string MenuButton::*buttonField;
        std::string expected;
    } cases[] = {
        {"bouton", 3, "a\r\nb", nullptr, &MenuButton::action, "a\r\nb"},
        {"BOUTONSURVOL", 3, "h", nullptr, &MenuButton::hoverScript, "h"},
        {"EDIT_PRINC", 3, "MsgBox 1", &MenuProject::startupAction, nullptr, "VBS:MsgBox 1"},
        {"edit_princ", 3, "", &MenuProject::startupAction, nullptr, std::string(kEmptiedStartupAction)},
        {"Minuteur", 3, "t", &MenuProject::timerScript, nullptr, "t"},
        {"global", 3, "g", &MenuProject::globalScript, nullptr, "g"},
        {"survolfenetre", 3, "w", &MenuProject::windowHoverScript, nullptr, "w"},
    };
    for (const auto& c : cases) {
        MenuProject project = projectWithButton(3, "old", "old");
        writeBackScript(project, c.currentButton, c.tag, c.text);
        const std::string& stored = c.field ? project.*c.field : project.button(3).*c.buttonField;
        EXPECT_EQ(stored, c.expected) << c.tag;
    }
    EXPECT_EQ(kEmptiedStartupAction, "VBS:'Tapez ici le code VBS à exécuter au démarrage.\r\n");
}

TEST(WriteBackScript, StoresNothingForAnUnknownTagOrWithoutACurrentButton)
{
    struct Case {
        const char* tag;
        int currentButton;
    } cases[] = {{"inconnu", 3}, {"", 3}, {"bouton", -1}, {"boutonsurvol", -1}, {"bouton", 101}, {"bouton", 0}};
    for (const auto& c : cases) {
        MenuProject project = projectWithButton(3, "old", "old");
        const MenuProject before = project;
        writeBackScript(project, c.currentButton, c.tag, "new");
        EXPECT_EQ(project.button(3).action, "old") << c.tag;
        EXPECT_EQ(project.button(3).hoverScript, "old") << c.tag;
        EXPECT_EQ(project.startupAction, before.startupAction) << c.tag;
        EXPECT_EQ(project.timerScript, before.timerScript) << c.tag;
        EXPECT_EQ(project.globalScript, before.globalScript) << c.tag;
        EXPECT_EQ(project.windowHoverScript, before.windowHoverScript) << c.tag;
    }
}

}  // namespace
}  // namespace qor
