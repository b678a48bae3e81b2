// The wizard's small rules: list lines and the numbers read back from
// them, picture names and layout, navigation and the controls each choice
// enables, the preview's pictures, and which menu names can name a folder.

#include <gtest/gtest.h>

#include "core/wizard/button_list.h"
#include "core/wizard/menu_folder_name.h"
#include "core/wizard/preview_rules.h"
#include "core/wizard/wizard_button.h"
#include "core/wizard/wizard_steps.h"

namespace qor {
namespace {

TEST(WizardButtonList, LinesAndTheNumbersReadBackFromThem)
{
    EXPECT_EQ(buttonListLine(1, true), "Bouton 1 (Texte)");
    EXPECT_EQ(buttonListLine(12, false), "Bouton 12 (Graphique)");

    struct Case { const char* line; std::optional<int> k; };
    const Case cases[] = {
        {"Bouton 1 (Texte)", 1},
        {"Bouton 12 (Graphique)", 12},
        {"Bouton 123 (Texte)", 123},
        {"Bouton 7", 7},               // no blank after the digits: all of them
        {"Bouton 1x (Texte)", std::nullopt},
        {"Bouton  2 (Texte)", std::nullopt},
        {"bouton 2 (Texte)", std::nullopt},
        {"Texte 2", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(buttonNumberOfLine(c.line), c.k) << c.line;
}

TEST(WizardButtonPictures, FileNamesFontAndLayoutPerState)
{
    struct Case { ButtonState state; const char* file; bool underlineOfPlain; double shift; };
    const Case cases[] = {
        {ButtonState::Normal, "bouton3_normal.bmp", false, 0},
        {ButtonState::Hover, "bouton3_survol.bmp", true, 0},
        {ButtonState::Pressed, "bouton3_clique.bmp", true, 1.2},
    };
    WizardButton plain;
    WizardButton underlined;
    underlined.underline = true;
    underlined.strikethrough = true;
    for (const auto& c : cases) {
        EXPECT_EQ(buttonImageFileName(3, c.state), c.file);
        EXPECT_EQ(buttonFont(plain, c.state).underline, c.underlineOfPlain);
        EXPECT_EQ(buttonFont(underlined, c.state).underline, !c.underlineOfPlain);
        EXPECT_TRUE(buttonFont(underlined, c.state).strikethrough);
        // A caption 50 wide and 20 high: 52.4 x 22.4 in every state.
        const TextButtonLayout l = textButtonLayout(50, 20, c.state);
        EXPECT_DOUBLE_EQ(l.width, 52.4);
        EXPECT_DOUBLE_EQ(l.height, 22.4);
        EXPECT_DOUBLE_EQ(l.textLeft, c.shift);
        EXPECT_DOUBLE_EQ(l.textTop, c.shift);
    }
    EXPECT_EQ(buttonFont(plain, ButtonState::Normal).name, "MS Sans Serif");
    EXPECT_EQ(buttonFont(plain, ButtonState::Normal).size, 8);
}

TEST(WizardSteps, HeadersAndNavigation)
{
    struct Case { int step; const char* header; WizardNavigation nav; };
    const Case cases[] = {
        {0, "Bienvenue dans l'assistant création de projet QOR !", {false, true, false}},
        {1, "Au démarrage...", {true, true, false}},
        {2, "Création des boutons...", {true, true, false}},
        {3, "A quoi servent ces boutons ?", {true, true, false}},
        {4, "La fin approche...", {true, false, true}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(stepHeader(c.step), c.header);
        EXPECT_EQ(navigationOf(c.step), c.nav) << c.step;
    }
}

TEST(WizardSteps, ControlsEachChoiceEnables)
{
    EXPECT_EQ(startupControlsOf(WizardStartup::Nothing), (StartupControls{false, false, false}));
    EXPECT_EQ(startupControlsOf(WizardStartup::MediaFile), (StartupControls{true, false, false}));
    EXPECT_EQ(startupControlsOf(WizardStartup::Open), (StartupControls{false, true, false}));
    EXPECT_EQ(startupControlsOf(WizardStartup::Message), (StartupControls{false, false, true}));

    struct Case { bool selected; const char* function; FunctionControls controls; };
    const Case cases[] = {
        {false, "2", {false, -1, false, false}},
        {true, "", {true, -1, false, false}},
        {true, "0", {true, 0, true, false}},
        {true, "1", {true, 1, false, false}},
        {true, "2", {true, 2, false, true}},
        {true, "3", {true, 3, false, false}},
        {true, "7", {true, -1, false, false}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(functionControlsOf(c.selected, c.function), c.controls) << c.function;
}

TEST(WizardPreview, PictureAfterEachPointerEvent)
{
    using S = ButtonState;
    using E = PreviewEvent;
    struct Case { S shown; E event; bool held; std::optional<S> next; };
    const Case cases[] = {
        {S::Normal, E::Moved, false, S::Hover},
        {S::Hover, E::Moved, false, std::nullopt},
        {S::Pressed, E::Moved, false, S::Hover},
        {S::Pressed, E::Moved, true, std::nullopt},
        {S::Normal, E::Pressed, true, S::Pressed},
        {S::Hover, E::Pressed, true, S::Pressed},
        {S::Pressed, E::Released, false, S::Normal},
        {S::Hover, E::Left, false, S::Normal},
        {S::Pressed, E::Left, true, S::Normal},
        {S::Normal, E::Left, false, std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(previewStateAfter(c.shown, c.event, c.held), c.next)
            << char(c.shown) << " event " << int(c.event) << " held " << c.held;
}

TEST(MenuFolderName, NamesAFolderCanTake)
{
    struct Case { std::string name; bool ok; };
    const Case cases[] = {
        {"Sans Titre", true},
        {"Menu été 2026", true},
        {"Œuvres – complètes", true},   // en dash and Œ are Windows-1252
        {"a.b", true},
        {std::string(255, 'm'), true},
        {std::string(300, 'm'), false},
        {"a/b", false},
        {"a\\b", false},
        {"C:menu", false},
        {"quoi?", false},
        {"\"cité\"", false},
        {"a|b", false},
        {"..", false},
        {".", false},
        {".cache", false},
        {"menu.", false},
        {"menu ", false},
        {"CON", false},
        {"lpt1.txt", false},
        {"COM10", true},
        {"menu \u4e2d\u6587", false},   // Chinese: not in Windows-1252
        {"tab\there", false},
        {"", false},
    };
    for (const auto& c : cases) {
        const Status s = checkMenuFolderName(c.name);
        EXPECT_EQ(s.ok(), c.ok) << c.name;
        if (!s.ok()) {
            EXPECT_EQ(s.error().number, err::PathFileAccess) << c.name;
        }
    }
}

}  // namespace
}  // namespace qor
