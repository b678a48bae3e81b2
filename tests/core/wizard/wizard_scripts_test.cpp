// What the wizard writes for the startup action and each button's
// function, and the two dialogues that ask for them.

#include <gtest/gtest.h>

#include "core/wizard/wizard_dialogues.h"
#include "core/wizard/wizard_scripts.h"
#include "fake_dialogs.h"

namespace qor {
namespace {

const std::string kMark = "\u00A4";

TEST(WizardScripts, StartupActionPerChoice)
{
    StartupSettings s;
    s.mediaFile = "intro.avi";
    s.open = {"SITE", "http://www.exemple.com/?q=\"a\""};
    s.message = {"Bienvenue", "Ligne 1\r\nLigne 2"};
    struct Case { WizardStartup choice; std::string text; };
    const Case cases[] = {
        {WizardStartup::Nothing, ""},
        {WizardStartup::MediaFile, "intro.avi"},
        {WizardStartup::Open, "VBS:'SITE" + kMark + "Set exe_f = CreateObject(\"WScript.Shell\")" + kMark +
                                  "exe_f.Run(\"http://www.exemple.com/?q='a'\")"},
        {WizardStartup::Message,
         "VBS:MsgBox \"Ligne 1\"+chr(10)+chr(13)+\"Ligne 2\", vbInformation, \"Bienvenue\""},
    };
    for (const auto& c : cases) {
        s.choice = c.choice;
        EXPECT_EQ(startupActionText(s), c.text) << int(c.choice);
    }
}

TEST(WizardScripts, ButtonKindAndActionPerFunction)
{
    struct Case { const char* function; const char* p1; const char* p2; ButtonBehaviour result; };
    const Case cases[] = {
        {"", "", "", {"vidéo", ""}},
        {"", "film.avi", "", {"vidéo", "film.avi"}},
        {"0", "film.avi", "", {"vidéo", "film.avi"}},
        {"1", "ignoré", "", {"quitter", ""}},
        {"2", "Titre", "A\r\nB", {"code", "MsgBox \"A\"+chr(10)+chr(13)+\"B\", vbInformation, \"Titre\""}},
        {"3", "[LECT]:\\doc \"1\".pdf", "CD",
         {"code", "'CD" + kMark + "Set exe_f = CreateObject(\"WScript.Shell\")" + kMark +
                      "exe_f.Run(\"[LECT]:\\doc '1'.pdf\")"}},
    };
    for (const auto& c : cases) {
        WizardButton b;
        b.function = c.function;
        b.param1 = c.p1;
        b.param2 = c.p2;
        EXPECT_EQ(buttonBehaviour(b), c.result) << c.function;
    }
}

TEST(WizardDialogues, TypedMessagesBecomeScriptText)
{
    struct Case { const char* typed; const char* text; };
    const Case cases[] = {
        {"Bonjour", "Bonjour"},
        {"a[R]b", "a\r\nb"},
        {"a[r]b[R]", "a\r\nb\r\n"},
        {"dit \"oui\"", "dit 'oui'"},
        {"[R", "[R"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(typedMessageText(c.typed), c.text) << c.typed;
    EXPECT_EQ(messageTextAsTyped("a\r\nb"), "a[R]b");
}

TEST(WizardDialogues, OpenDialogueAnswerByAnswer)
{
    struct Case {
        std::vector<Answer> answers;
        std::string typed;
        std::optional<OpenTarget> result;
        std::size_t questions;
        std::string prompt;    // the input box asked, "" for none
        std::string defaultText;
    };
    const std::string cdPrompt =
        "Entrez le nom de ce fichier (ex: [LECT]:\\mon_prog.exe, [LECT]:\\mon_doc.doc , [LECT] sera alors "
        "automatiquement remplacé par la lettre du lecteur CD) :";
    const Case cases[] = {
        {{Answer::Yes}, "http://qor.example.org", OpenTarget{"SITE", "http://qor.example.org"}, 1,
         "Entrez l'adresse de la page :", std::string(kExampleAddresses)},
        {{Answer::Yes}, "", std::nullopt, 1, "Entrez l'adresse de la page :", std::string(kExampleAddresses)},
        {{Answer::No, Answer::Yes}, "[LECT]:\\setup.exe", OpenTarget{"CD", "[LECT]:\\setup.exe"}, 2, cdPrompt,
         "[LECT]:\\..."},
        {{Answer::No, Answer::No}, "notepad.exe", OpenTarget{"DISQUE", "notepad.exe"}, 2,
         "Entrez le chemin de ce fichier (ex: notepad.exe, c:\\prog.exe, c:\\document.doc ...) :", ""},
        {{Answer::Cancel}, "", std::nullopt, 1, "", ""},
    };
    for (const auto& c : cases) {
        test::FakeDialogs d;
        d.messageAnswers.assign(c.answers.begin(), c.answers.end());
        if (!c.prompt.empty())
            d.inputAnswers = {c.typed};
        EXPECT_EQ(askOpenTarget(d, "Mon assistant"), c.result);
        ASSERT_EQ(d.messages.size(), c.questions);
        EXPECT_EQ(d.messages[0].text, "Voulez-vous ouvrir une page internet ? (cliquez sur non si vous voulez "
                                      "ouvrir un document ou un programme).");
        EXPECT_EQ(d.messages[0].buttons, MessageButtons::YesNoCancel);
        EXPECT_EQ(d.messages[0].title, "Mon assistant");
        if (c.questions == 2) {
            EXPECT_EQ(d.messages[1], (Message{"Le fichier à ouvrir sera t'il sur le CD ?", "Mon assistant",
                                              MessageIcon::Question, MessageButtons::YesNo}));
        }
        if (c.prompt.empty()) {
            EXPECT_TRUE(d.inputs.empty());
        } else {
            ASSERT_EQ(d.inputs.size(), 1u);
            EXPECT_EQ(d.inputs[0], (test::FakeDialogs::InputRequest{c.prompt, "Mon assistant", c.defaultText}));
        }
    }
}

TEST(WizardDialogues, MessageDialogueNeedsBothAnswers)
{
    struct Case { std::vector<std::string> typed; std::optional<MenuMessage> result; };
    const Case cases[] = {
        {{"Info \"1\"", "Ligne[r]suite"}, MenuMessage{"Info '1'", "Ligne\r\nsuite"}},
        {{"", "jamais demandé"}, std::nullopt},
        {{"Titre", ""}, std::nullopt},
    };
    for (const auto& c : cases) {
        test::FakeDialogs d;
        d.inputAnswers.assign(c.typed.begin(), c.typed.end());
        EXPECT_EQ(askMenuMessage(d, "A", {"Avant", "a\r\nb"}), c.result);
        ASSERT_FALSE(d.inputs.empty());
        EXPECT_EQ(d.inputs[0], (test::FakeDialogs::InputRequest{"Titre de message :", "A", "Avant"}));
        if (c.typed[0].empty()) {
            EXPECT_EQ(d.inputs.size(), 1u);
        } else {
            ASSERT_EQ(d.inputs.size(), 2u);
            EXPECT_EQ(d.inputs[1],
                      (test::FakeDialogs::InputRequest{"Message (tapez [R] pour aller à la ligne) :", "A", "a[R]b"}));
        }
    }
}

}  // namespace
}  // namespace qor
