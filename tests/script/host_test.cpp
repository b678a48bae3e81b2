// Scripts against host objects: translation files on a window with its
// members exposed, the statements the script assistant and the creation
// wizard write, and the host services (message and input boxes, objects).
#include <gtest/gtest.h>

#include "fake_script_host.h"
#include "script/builtins.h"
#include "script/operations.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script::test {
namespace {

// A window with a few controls, added the way the translation loader adds it.
struct TranslatedWindow {
    FakeScriptHost host;
    Module module{&host};
    std::vector<std::string> log;
    Ref<FakeObject> form{new FakeObject("Form2", &log, {"Caption"})};
    Ref<FakeObject> list{new FakeObject("ListBox", &log)};
    Ref<FakeObject> command1, label1;

    TranslatedWindow()
    {
        command1 = form->addChild("Command1", {"Caption", "ToolTipText"});
        label1 = form->addChild("Label1", {"Caption"});
        Ref<FakeObject> menu = form->addChild("langue_selection", {});
        for (int i = 0; i < 3; ++i)
            menu->items.push_back(Ref<FakeObject>(new FakeObject("Menu" + std::to_string(i), &log, {"Caption", "Checked"})));
        module.addObject("Form2", form, true);
        module.addObject("Liste", list, false);
    }
};

TEST(TranslationScript, SetsCaptionsDirectlyAndThroughTheWindowName)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode(
        "Caption = \"Main window\"\r\n"
        "Command1.Caption = \"&Open\"\r\n"
        "Form2.Label1.Caption = \"Hello\" & \" world\"\r\n"
        "langue_selection(1).Caption = \"English\"\r\n"
        "Command1.ToolTipText = Command1.Caption & \"...\"\r\n");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(toText(w.form->property("Caption")), "Main window");
    EXPECT_EQ(toText(w.command1->property("Caption")), "&Open");
    EXPECT_EQ(toText(w.label1->property("Caption")), "Hello world");
    EXPECT_EQ(toText(w.command1->property("ToolTipText")), "&Open...");
    EXPECT_EQ(w.log[3], "Menu1.Caption=English");
}

TEST(TranslationScript, PhrasesFillTheListInOrderInTheSameEngine)
{
    TranslatedWindow w;
    ASSERT_TRUE(w.module.addCode("Command1.Caption = \"Open\"").ok());
    RunResult r = w.module.addCode("Liste.AddItem \"Phrase 0\"\r\nListe.AddItem \"Phrase \" & 1\r\nListe.AddItem(\"Phrase 2\")\r\n"
                                   "With Liste\r\n  .AddItem \"Phrase 3\"\r\nEnd With\r\n");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(w.list->phrases, (std::vector<std::string>{"Phrase 0", "Phrase 1", "Phrase 2", "Phrase 3"}));
}

TEST(TranslationScript, ListMembersAreNotExposed)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode("AddItem \"x\"");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 13);
}

struct TranslationFailure {
    const char* script;
    int number;
    int line;
    const char* description;
};

class TranslationFailures : public ::testing::TestWithParam<TranslationFailure> {};

TEST_P(TranslationFailures, StopAtTheLineAfterTheLinesBeforeTookEffect)
{
    const auto& c = GetParam();
    TranslatedWindow w;
    RunResult r = w.module.addCode(c.script);
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, c.number);
    EXPECT_EQ(r.error->line, c.line);
    EXPECT_EQ(r.error->description, c.description);
    EXPECT_EQ(toText(w.command1->property("Caption")), "Ouvrir");
    EXPECT_EQ(w.module.lastError()->line, c.line);
}

INSTANTIATE_TEST_SUITE_P(Cases, TranslationFailures, ::testing::Values(
    TranslationFailure{"Command1.Caption = \"Ouvrir\"\r\nCommand9.Caption = \"x\"\r\nLabel1.Caption = \"y\"", 424, 2, "Objet requis : 'Command9'"},
    TranslationFailure{"Command1.Caption = \"Ouvrir\"\r\n\r\nCommand1.Captoin = \"x\"", 438, 3, "Cet objet ne gère pas cette propriété ou cette méthode : 'Captoin'"},
    TranslationFailure{"Command1.Caption = \"Ouvrir\"\r\nlangue_selection(7).Caption = \"x\"", 9, 2, "Indice en dehors de la plage"},
    TranslationFailure{"Command1.Caption = \"Ouvrir\"\r\nForm2.Command9.Caption = \"x\"", 438, 2, "Cet objet ne gère pas cette propriété ou cette méthode : 'Command9'"}
));

TEST(TranslationScript, ASyntaxErrorRunsNothing)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode("Command1.Caption = \"Ouvrir\"\r\nLabel1.Caption = \"unterminated\r\n");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 1033);
    EXPECT_EQ(r.error->line, 2);
    EXPECT_TRUE(w.command1->property("Caption").isEmpty());
}

TEST(TranslationScript, ResetForgetsTheWindow)
{
    TranslatedWindow w;
    ASSERT_TRUE(w.module.addCode("Command1.Caption = \"a\"").ok());
    w.module.reset();
    RunResult r = w.module.addCode("Command1.Caption = \"b\"");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 424);
    EXPECT_EQ(toText(w.command1->property("Caption")), "a");
}

// ---- Statements of the script assistant and of the creation wizard ----

// The comment lines the script editor puts around an assistant statement.
std::string statementBlock(const std::string& title, const std::string& statement)
{
    std::string t = title.size() % 2 == 0 ? title + " " : title;
    std::size_t k = (60 - t.size()) / 2;
    std::string lower = toLowerText(t);
    return "\r\n'" + std::string(k, '#') + t + std::string(k, '#') + "\r\n" + statement + "\r\n'" + std::string(k - 2, '#') +
           "Fin " + lower + std::string(k - 2, '#') + "\r\n";
}

struct Generated {
    const char* title;
    const char* statement;
    const char* effects;  // host log, "|"-joined
};

class AssistantStatements : public ::testing::TestWithParam<Generated> {};

std::string runWithMenuObjects(const std::string& script, FakeScriptHost& host)
{
    Module module(&host);
    for (const char* name : {"Fenetre", "Ecran", "Bordure", "ImageFond", "Minuteur", "Action", "Bouton3", "Texte1", "Texte2"}) {
        Ref<FakeObject> o(new FakeObject(name, &host.log));
        o->anyProperty = true;
        module.addObject(name, o);
    }
    RunResult r = module.addCode(script);
    if (!r.ok())
        return "error " + std::to_string(r.error->number) + " line " + std::to_string(r.error->line) + ": " +
               r.error->description;
    std::string out;
    for (std::size_t i = 0; i < host.log.size(); ++i)
        out += (i ? "|" : "") + host.log[i];
    return out;
}

TEST_P(AssistantStatements, RunAndReachTheMenuObjects)
{
    const auto& g = GetParam();
    FakeScriptHost host;
    host.files["c:\\1.txt"] = "contenu";
    std::string script = "'Tapez ici le code VBS\r\n" + statementBlock(g.title, g.statement) + statementBlock("Fermer", "Action.Text = \"Fermer\"");
    EXPECT_EQ(runWithMenuObjects(script, host), std::string(g.effects) + (*g.effects ? "|" : "") + "Action.Text=Fermer");
}

INSTANTIATE_TEST_SUITE_P(Generators, AssistantStatements, ::testing::Values(
    Generated{"Lancer un sous menu", "Set exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(\"[CHEMIN]SousMenu1.exe\")", "Run [CHEMIN]SousMenu1.exe"},
    Generated{"Ouvrir une page web", "Set exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(Chr(34) + \"http://www.example.org\" + Chr(34))", "Run \"http://www.example.org\""},
    Generated{"Ouvrir une page HTML", "Set exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(Chr(34) + \"explorer \" + chr(34) + \"[LECT]:\\index.html\" + chr(34) + \"\" + Chr(34))", "Run \"explorer \"[LECT]:\\index.html\"\""},
    Generated{"Envoyer un email", "Set exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(Chr(34) + \"mailto:a@b.fr?cc=&subject=Hello%20world&body=%22Hi%22\" + Chr(34))", "Run \"mailto:a@b.fr?cc=&subject=Hello%20world&body=%22Hi%22\""},
    Generated{"Ouvrir un fichier texte", "Set fso = CreateObject(\"Scripting.FileSystemObject\")\r\nSet fich = fso.opentextfile(\"c:\\1.txt\", 1)\r\nTexte1.Text=fich.ReadAll\r\nfich.Close", "OpenTextFile c:\\1.txt,1|Texte1.Text=contenu|Close"},
    Generated{"Ouvrir un répertoire", "Set exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(Chr(34) + \"explorer [LECT]:\\rep\" + Chr(34))", "Run \"explorer [LECT]:\\rep\""},
    Generated{"Ouvrir le lecteur de CD", "Action.Tag = \"E\"\r\nAction.Text = \"OuvrirCD\"", "Action.Tag=E|Action.Text=OuvrirCD"},
    Generated{"Fermer le lecteur de CD", "Action.Tag = \"[LECT]\"\r\nAction.Text = \"FermerCD\"", "Action.Tag=[LECT]|Action.Text=FermerCD"},
    Generated{"Jouer un son", "Action.Tag = \"son.mp3\"\r\nAction.Text = \"JouerSon\"", "Action.Tag=son.mp3|Action.Text=JouerSon"},
    Generated{"Jouer une vidéo", "Action.Tag = \"[LECT]:\\film.avi\"\r\nAction.Text = \"JouerVideo\"", "Action.Tag=[LECT]:\\film.avi|Action.Text=JouerVideo"},
    Generated{"Maximiser", "Fenetre.WindowState = 2", "Fenetre.WindowState=2"},
    Generated{"Changer le titre", "Fenetre.Caption = \"Nouveau titre\"", "Fenetre.Caption=Nouveau titre"},
    Generated{"Changer couleur menu", "Fenetre.BackColor = 16711680", "Fenetre.BackColor=16711680"},
    Generated{"Changer la position", "Fenetre.Left = 120.5", "Fenetre.Left=120.5"},
    Generated{"Invisible fenetre", "Fenetre.Visible = False", "Fenetre.Visible=False"},
    Generated{"Epaisseur de la bordure", "Bordure.BorderWidth = 3", "Bordure.BorderWidth=3"},
    Generated{"Changer la forme", "Bordure.Shape = 4", "Bordure.Shape=4"},
    Generated{"Image de fond", "ImageFond.Picture = LoadPicture(\"fond.jpg\")", "ImageFond.Picture=Picture:fond.jpg"},
    Generated{"Etirer image fond", "ImageFond.Stretch = True", "ImageFond.Stretch=True"},
    Generated{"Désactiver minuteur", "Minuteur.Enabled = False", "Minuteur.Enabled=False"},
    Generated{"Intervalle minuteur", "Minuteur.Interval = 500", "Minuteur.Interval=500"},
    Generated{"Alignement", "Texte2.Alignment = 2", "Texte2.Alignment=2"},
    Generated{"Police", "Texte2.FontBold = True\r\nTexte2.FontItalic = False\r\nTexte2.FontName = \"Arial\"\r\nTexte2.FontSize = 12\r\nTexte2.FontStrikethru = False\r\nTexte2.FontUnderline = True",
              "Texte2.FontBold=True|Texte2.FontItalic=False|Texte2.FontName=Arial|Texte2.FontSize=12|Texte2.FontStrikethru=False|Texte2.FontUnderline=True"},
    Generated{"Changer couleur texte Texte2", "Texte2.ForeColor = 255", "Texte2.ForeColor=255"},
    Generated{"Verrouiller boîte de texte", "Texte2.Locked = True", "Texte2.Locked=True"},
    Generated{"Taille Texte2", "Texte2.Width = 2000", "Texte2.Width=2000"},
    Generated{"Affiche barre Texte2", "Action.Tag = \"2\"\r\nAction.Text = \"AfficheBarre\"", "Action.Tag=2|Action.Text=AfficheBarre"},
    Generated{"Changer texte de Texte2", "Texte2.Text = \"ligne 1\" + chr(13) + chr(10) + \"ligne 2\"", "Texte2.Text=ligne 1\r\nligne 2"},
    Generated{"Désactiver bouton", "Bouton3.Enabled = False", "Bouton3.Enabled=False"},
    Generated{"Position Bouton3", "Bouton3.Top = 300", "Bouton3.Top=300"},
    Generated{"Image Bouton3", "Bouton3.Picture = LoadPicture(\"b3.bmp\")", "Bouton3.Picture=Picture:b3.bmp"},
    Generated{"Invisible bouton3", "Bouton3.Visible = False", "Bouton3.Visible=False"},
    Generated{"Changer curseur (Fenetre)", "Fenetre.MousePointer = 99\r\nFenetre.MouseIcon = LoadPicture(\"[LECT]:\\monrep\\fichier.ico\")", "Fenetre.MousePointer=99|Fenetre.MouseIcon=Picture:[LECT]:\\monrep\\fichier.ico"},
    Generated{"Changer curseur (Ecran)", "Ecran.MousePointer = 11", "Ecran.MousePointer=11"},
    Generated{"Changer curseur (Texte1)", "Texte1.MousePointer = 3", "Texte1.MousePointer=3"}
));

struct MessageCase {
    const char* script;
    const char* prompt;
    int buttons;
    std::optional<std::string> title;
};

class MessageStatements : public ::testing::TestWithParam<MessageCase> {};

TEST_P(MessageStatements, ReachTheHostsMessageBox)
{
    const auto& c = GetParam();
    FakeScriptHost host;
    Module module(&host);
    RunResult r = module.addCode(c.script);
    ASSERT_TRUE(r.ok()) << r.error->description;
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].prompt, c.prompt);
    EXPECT_EQ(host.messages[0].buttons, c.buttons);
    EXPECT_EQ(host.messages[0].title, c.title);
}

INSTANTIATE_TEST_SUITE_P(AssistantAndWizard, MessageStatements, ::testing::Values(
    // "Afficher un message" of the assistant, with [R] and a quote in the text.
    MessageCase{"MsgBox \"Bonjour\"+chr(10)+chr(13)+\"à tous\", vbinformation, \"Info\"", "Bonjour\n\rà tous", 64, "Info"},
    MessageCase{"MsgBox \"il a dit \"+chr(34)+\"oui\"+chr(34)+\"\", vbexclamation, \"\"", "il a dit \"oui\"", 48, ""},
    MessageCase{"MsgBox \"x\", vbcritical, \"t\"", "x", 16, "t"},
    // Startup message and button function 2 of the wizard.
    MessageCase{"MsgBox \"Ligne 1\"+chr(10)+chr(13)+\"Ligne 2\", vbInformation, \"Titre\"", "Ligne 1\n\rLigne 2", 64, "Titre"},
    // The templates' example.
    MessageCase{"'Exemple MsgBox \"[LECT]:\\\" affiche d:\\\r\nMsgBox \"[LECT]:\\\"", "[LECT]:\\", 0, std::nullopt},
    MessageCase{"MsgBox \"q\", vbYesNo + vbQuestion + vbDefaultButton2", "q", 4 + 32 + 256, std::nullopt}
));

TEST(WizardActions, StartupAndButtonScriptsRun)
{
    // The wizard writes these with "¤" for line breaks; the player turns them back into CR LF.
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"'SITE\r\nSet exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(\"http://www.example.org\")", "Run http://www.example.org"},
        {"'CD\r\nSet exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(\"[LECT]:\\doc.pdf\")", "Run [LECT]:\\doc.pdf"},
        {"'DISQUE\r\nSet exe_f = CreateObject(\"WScript.Shell\")\r\nexe_f.Run(\"notepad.exe c:\\lisez 'moi'.txt\")", "Run notepad.exe c:\\lisez 'moi'.txt"},
    };
    for (const auto& [script, effect] : cases) {
        FakeScriptHost host;
        EXPECT_EQ(runWithMenuObjects(script, host), effect) << script;
    }
}

TEST(WizardActions, GlobalTemplateConstantReachesLaterScripts)
{
    FakeScriptHost host;
    Module module(&host);
    ASSERT_TRUE(module.addCode("'Les procédures et constantes définies ici seront accessibles par les\r\n"
                               "'autres scripts du projet (boutons, minuteur, démarrage...)\r\n\r\n"
                               "Const pi = 3.14159265358979\r\n"
                               "Function Aire(r)\r\n  Aire = pi * r * r\r\nEnd Function\r\n")
                    .ok());
    ASSERT_TRUE(module.addCode("MsgBox pi").ok());
    ASSERT_TRUE(module.addCode("MsgBox Round(Aire(2), 4)").ok());
    EXPECT_EQ(host.output(), "3.14159265358979|12.5664");
}

// ---- Host services ----

TEST(HostServices, InputBoxPassesPromptTitleAndDefaultAndCancelGivesEmpty)
{
    FakeScriptHost host;
    host.inputAnswers = {std::string("42"), std::nullopt};
    Module module(&host);
    RunResult r = module.addCode("a = InputBox(\"Age ?\", \"Question\", \"18\")\r\n"
                                 "b = InputBox(\"Nom ?\")\r\n"
                                 "If a > 40 Then MsgBox \"a=\" & a & \" b=[\" & b & \"] \" & TypeName(b)");
    ASSERT_TRUE(r.ok()) << r.error->description;
    ASSERT_EQ(host.inputs.size(), 2u);
    EXPECT_EQ(host.inputs[0].prompt, "Age ?");
    EXPECT_EQ(host.inputs[0].title, std::optional<std::string>("Question"));
    EXPECT_EQ(host.inputs[0].defaultText, "18");
    EXPECT_EQ(host.inputs[1].title, std::nullopt);
    EXPECT_EQ(host.output(), "a=42 b=[] String");
}

TEST(HostServices, MsgBoxReturnsTheHostsAnswer)
{
    FakeScriptHost host;
    host.msgBoxAnswers = {vbNo, vbYes};
    Module module(&host);
    ASSERT_TRUE(module.addCode("If MsgBox(\"Quitter ?\", vbYesNo) = vbYes Then Action.Text = \"Fermer\"\r\n"
                               "If MsgBox(\"Vraiment ?\", vbYesNo) = vbYes Then MsgBox \"bye\"")
                    .ok());
    EXPECT_EQ(host.output(), "Quitter ?|Vraiment ?|bye");
}

TEST(HostServices, ErrorsOfHostObjectsKeepTheirNumberAndText)
{
    FakeScriptHost host;
    Module module(&host);
    RunResult r = module.addCode("Set fso = CreateObject(\"Scripting.FileSystemObject\")\r\nSet f = fso.OpenTextFile(\"absent.txt\")");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 53);
    EXPECT_EQ(r.error->description, "Fichier introuvable");
    EXPECT_EQ(r.error->line, 2);

    r = module.addCode("Set o = CreateObject(\"Excel.Application\")");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 429);
    EXPECT_EQ(r.error->description, "Impossible de créer l'objet : 'Excel.Application'");

    r = module.addCode("Set o = CreateObject(\"WScript.Shell\")\r\no.Exec \"x\"");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 438);
    EXPECT_EQ(r.error->description, "Cet objet ne gère pas cette propriété ou cette méthode : 'Exec'");
}

TEST(HostServices, ForEachWalksAHostCollection)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode("i = 0\r\nFor Each m In langue_selection\r\n  m.Caption = \"L\" & i\r\n  i = i + 1\r\nNext");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(w.log, (std::vector<std::string>{"Menu0.Caption=L0", "Menu1.Caption=L1", "Menu2.Caption=L2"}));
}

}  // namespace
}  // namespace qor::script::test

namespace qor::script::test {
namespace {

TEST(HostObjects, LetTakesTheDefaultValueAndSetKeepsTheObject)
{
    FakeScriptHost host;
    Module module(&host);
    std::vector<std::string> log;
    Ref<FakeObject> window(new FakeObject("Fenetre", &log));
    window->anyProperty = true;
    module.addObject("Fenetre", window);
    RunResult r = module.addCode("On Error Resume Next\r\nErr.Raise 7\r\nn = Err\r\nSet e = Err\r\nErr.Clear\r\n"
                                 "MsgBox n & \" \" & TypeName(n) & \" \" & TypeName(e) & \" \" & e.Number\r\n"
                                 "Set Fenetre.Icon = Fenetre\r\nMsgBox TypeName(Fenetre.Icon)");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(host.output(), "7 Long ErrObject 0|Fenetre");
    EXPECT_EQ(log, (std::vector<std::string>{"Fenetre.Icon=Fenetre"}));
}

TEST(HostObjects, SetNeedsAnObject)
{
    FakeScriptHost host;
    Module module(&host);
    Ref<FakeObject> window(new FakeObject("Fenetre", nullptr));
    window->anyProperty = true;
    module.addObject("Fenetre", window);
    RunResult r = module.addCode("Set Fenetre.Icon = 3");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 424);
}

TEST(HostObjects, NamedObjectsCannotBeAssigned)
{
    FakeScriptHost host;
    Module module(&host);
    module.addObject("Fenetre", Ref<FakeObject>(new FakeObject("Fenetre", nullptr)));
    RunResult r = module.addCode("Fenetre = 3");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 501);
    EXPECT_EQ(r.error->description, "Affectation impossible : 'Fenetre'");
}

TEST(TranslationScript, ProceduresReachExposedMembersToo)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode("Sub Traduire(texte)\r\n  Caption = texte\r\n  Command1.Caption = UCase(texte)\r\nEnd Sub\r\n"
                                   "Traduire \"Menu\"\r\nWith Form2.Label1\r\n  .Caption = Caption & \"!\"\r\nEnd With");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(toText(w.form->property("Caption")), "Menu");
    EXPECT_EQ(toText(w.command1->property("Caption")), "MENU");
    EXPECT_EQ(toText(w.label1->property("Caption")), "Menu!");
}

TEST(TranslationScript, VariablesOfTheScriptStayVariables)
{
    TranslatedWindow w;
    RunResult r = w.module.addCode("t = \"Ouvrir\"\r\nCommand1.Caption = t & \"...\"\r\nt = 5\r\nMsgBox t + 1");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(toText(w.command1->property("Caption")), "Ouvrir...");
    EXPECT_EQ(w.host.output(), "6");
}

}  // namespace
}  // namespace qor::script::test
