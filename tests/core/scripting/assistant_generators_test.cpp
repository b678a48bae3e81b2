#include <gtest/gtest.h>

#include <ostream>

#include "core/scripting/assistant_generators.h"
#include "fake_dialogs.h"

namespace qor {

void PrintTo(const StatementBlock& b, std::ostream* os)
{
    *os << "{" << b.title << " | " << b.statement << "}";
}

namespace {

using Input = test::FakeDialogs::InputRequest;
using Block = std::optional<StatementBlock>;

const Input kBox{"Numéro de la boîte de texte concernée :", "", "1"};
const Input kButton{"Numéro du bouton concerné :", "", "1"};
const char* const kShell = "Set exe_f = CreateObject(\"WScript.Shell\")\r\n";

Message refusal(const char* text, const char* title)
{
    return {text, title, MessageIcon::Exclamation};
}

struct Case {
    const char* name;
    int index;
    std::vector<std::string> answers;
    std::vector<Input> asked;
    Block block;
    std::vector<Message> messages = {};
};

void queueAnswers(test::FakeDialogs& dialogs, const std::vector<std::string>& answers)
{
    dialogs.inputAnswers.insert(dialogs.inputAnswers.end(), answers.begin(), answers.end());
}

void expectGenerator(const Case& c, test::FakeDialogs& dialogs)
{
    queueAnswers(dialogs, c.answers);
    const AssistantResult result = runAssistantEntry(c.name, c.index, dialogs);
    EXPECT_EQ(dialogs.inputs, c.asked) << c.name;
    EXPECT_EQ(result.block, c.block) << c.name;
    EXPECT_FALSE(result.cursorObject) << c.name;
    EXPECT_EQ(dialogs.messages, c.messages) << c.name;
    EXPECT_TRUE(dialogs.inputAnswers.empty()) << c.name << ": answers left unasked";
}

void expectGenerators(const std::vector<Case>& cases)
{
    for (const auto& c : cases) {
        test::FakeDialogs dialogs;
        expectGenerator(c, dialogs);
    }
}

TEST(AssistantGenerators, MessageBox)
{
    const Input title{"Titre :", "Boite de dialogue", ""};
    const Input message{"Message (Tapez [R] pour aller à la ligne) :", "Boite de dialogue", ""};
    const Input type{"Type  (choix entre exclamation, information, question, critical) :", "Boite de dialogue",
                     "information"};
    expectGenerators({
        {"msg", -1, {"Info", "Bonjour[R]à tous", "information"}, {title, message, type},
         StatementBlock{"Boite de dialogue", "MsgBox \"Bonjour\"+chr(10)+chr(13)+\"à tous\", vbinformation, \"Info\""}},
        {"msg", -1, {"Le \"titre\"", "Il dit \"oui\"", "critical"}, {title, message, type},
         StatementBlock{"Boite de dialogue",
                        "MsgBox \"Il dit \"+chr(34)+\"oui\"+chr(34)+\"\", vbcritical, \"Le 'titre'\""}},
        // Nothing is required: empty answers are written as they are.
        {"msg", -1, {"", "", ""}, {title, message, type},
         StatementBlock{"Boite de dialogue", "MsgBox \"\", vb, \"\""}},
    });
}

TEST(AssistantGenerators, PagesDocumentsAndPrograms)
{
    const Input address{"Entrez l'adresse du destinataire :", "", "destinataire@exemple.fr"};
    const Input copies{"Copies conformes (autres destinaires, laissez vide si aucun) :", "", ""};
    const Input subject{"Entrez le sujet du message :", "", ""};
    const Input body{"Message :", "", ""};
    const std::string run = std::string(kShell) + "exe_f.Run(Chr(34) + \"";
    expectGenerators({
        {"sousmenu_princ", -1, {"SousMenu1"}, {{"Nom du sous menu (ex : SousMenu1, ...) :", "Sous menu", ""}},
         StatementBlock{"Lancer un sous menu", std::string(kShell) + "exe_f.Run(\"[CHEMIN]SousMenu1.exe\")"}},
        {"web", -1, {"http://a.b/"}, {{"Entrez l'adresse de la page à ouvrir :", "", "http://www.qor.example.org/"}},
         StatementBlock{"Ouvrir une page web", run + "http://a.b/\" + Chr(34))"}},
        {"html_ouvr_mnu", -1, {"[LECT]:\\index.html"},
         {{"Chemin de la page (ex : [LECT]:\\index.html, c:\\page.htm, ....) :", "", ""}},
         StatementBlock{"Ouvrir une page HTML",
                        run + "explorer \" + chr(34) + \"[LECT]:\\index.html\" + chr(34) + \"\" + Chr(34))"}},
        {"email", -1, {"a@b.fr", "c@d.fr", "Hello world", "Dit \"oui\""}, {address, copies, subject, body},
         StatementBlock{"Envoyer un email",
                        run + "mailto:a@b.fr?cc=c@d.fr&subject=Hello%20world&body=Dit%20%22oui%22\" + Chr(34))"}},
        {"email", -1, {"a@b.fr", "", "", ""}, {address, copies, subject, body},
         StatementBlock{"Envoyer un email", run + "mailto:a@b.fr?cc=&subject=&body=\" + Chr(34))"}},
        {"email", -1, {""}, {address}, std::nullopt},
        {"doc_mnu", -1, {"doc.pdf"}, {{"Document à ouvrir", "", ""}},
         StatementBlock{"Ouvrir un document", run + "doc.pdf\" + Chr(34))"}},
        {"rep_mnu", -1, {"[LECT]:\\"},
         {{"Répertoire à ouvrir (ex:[LECT]:\\rep, ...) :\r\n\r\nNote : Si vous voulez créer un bouton 'explorer CD', "
           "tapez [LECT]:\\",
           "", ""}},
         StatementBlock{"Ouvrir un répertoire", run + "explorer [LECT]:\\\" + Chr(34))"}},
        {"exe_", -1, {"notepad.exe"},
         {{"Entrez le nom du fichier à exécuter : (ex: notepad.exe, mon_rep/prog.exe, ...)", "", ""}},
         StatementBlock{"Exécuter un fichier", run + "notepad.exe\" + Chr(34))"}},
    });
}

TEST(AssistantGenerators, TextFile)
{
    const Input path{"Chemin du fichier à ouvrir (ex: c:\\1.txt, [LECT]:\\rep\\fich.txt, ...)  :", "", ""};
    const Input box{"Boîte de texte dans laquelle le texte sera affiché (ex: Texte1,Texte2, ...) :", "", ""};
    expectGenerators({
        {"texte_mnu", -1, {"c:\\1.txt", "Texte2"}, {path, box},
         StatementBlock{"Ouvrir un fichier texte",
                        "Set fso = CreateObject(\"Scripting.FileSystemObject\")\r\n"
                        "Set fich = fso.opentextfile(\"c:\\1.txt\", 1)\r\nTexte2.Text=fich.ReadAll\r\nfich.Close"}},
        {"texte_mnu", -1, {"c:\\1.txt", ""}, {path, box}, std::nullopt},
    });
}

TEST(AssistantGenerators, CdDriveSoundsAndVideos)
{
    const Input open{"Lettre du lecteur à ouvrir (ex: D,E,...; laissez [LECT] pour ouvrir le lecteur sur lequel est "
                     "le menu) :",
                     "Ouvrir le lecteur CD", "[LECT]"};
    const Input close{"Lettre du lecteur à fermer (ex: D,E,...; laissez [LECT] pour fermer le lecteur sur lequel est "
                      "le menu) :",
                      "Fermer le lecteur CD", "[LECT]"};
    expectGenerators({
        {"ouvCD_mnu", -1, {"e"}, {open},
         StatementBlock{"Ouvrir le lecteur de CD", "Action.Tag = \"E\"\r\nAction.Text = \"OuvrirCD\""}},
        {"fermercd_mnu", -1, {"[lect]"}, {close},
         StatementBlock{"Fermer le lecteur de CD", "Action.Tag = \"[LECT]\"\r\nAction.Text = \"FermerCD\""}},
        {"jouerunson_mnu", -1, {"[LECT]:\\son.mp3"}, {{"Chemin du fichier son :", "Jouer un fichier son", ""}},
         StatementBlock{"Jouer un son", "Action.Tag = \"[LECT]:\\son.mp3\"\r\nAction.Text = \"JouerSon\""}},
        {"jouerunsonwav_menu", -1, {"a.wav"}, {{"Chemin du fichier son :", "Jouer un son WAV", ""}},
         StatementBlock{"Jouer un son WAV", "Action.Tag = \"a.wav\"\r\nAction.Text = \"JouerSonWAV\""}},
        {"jouerunevideo_mnu", -1, {"v.avi"}, {{"Chemin du fichier vidéo :", "Jouer une fichier vidéo", ""}},
         StatementBlock{"Jouer une vidéo", "Action.Tag = \"v.avi\"\r\nAction.Text = \"JouerVideo\""}},
    });
}

TEST(AssistantGenerators, WindowBorderBackgroundAndTimer)
{
    const Input x{"Nouveau X :", "Changer la position", ""};
    const Input width{"Nouvelle épaisseur (en pixel) :", "Epaisseur de la bordure", "1"};
    const Input interval{"Nouvel intervalle (en ms) :", "Intervalle minuteur", ""};
    expectGenerators({
        {"max_mnu", -1, {}, {}, StatementBlock{"Maximiser", "Fenetre.WindowState = 2"}},
        {"min_mnu", -1, {}, {}, StatementBlock{"Minimiser", "Fenetre.WindowState = 1"}},
        {"normtaille_mnu", -1, {}, {}, StatementBlock{"Taille normale", "Fenetre.WindowState = 0"}},
        {"fermer_mnu", -1, {}, {}, StatementBlock{"Fermer", "Action.Text = \"Fermer\""}},
        {"chgertitre_mnu", -1, {"Démo"}, {{"Nouveau titre :", "Changer le titre", ""}},
         StatementBlock{"Changer le titre", "Fenetre.Caption = \"Démo\""}},
        {"xp_mnu", -1, {"abc", "12"}, {x, x}, StatementBlock{"Changer la position", "Fenetre.Left = 12"},
         {refusal("Nombre incorrect !", "Erreur")}},
        {"yp_mnu", -1, {"-5"}, {{"Nouveau Y :", "Changer la position", ""}},
         StatementBlock{"Changer la position", "Fenetre.Top = -5"}},
        {"ouiv_mnu", -1, {}, {}, StatementBlock{"Visible fenetre", "Fenetre.Visible = True"}},
        {"nonv_mnu", -1, {}, {}, StatementBlock{"Invisible fenetre", "Fenetre.Visible = False"}},
        // Refused again and again until a number or nothing is given.
        {"epaisseur_mnu", -1, {"x", "y", ""}, {width, width, width}, std::nullopt,
         {refusal("Nombre incorrect !", "Epaisseur de la bordure"),
          refusal("Nombre incorrect !", "Epaisseur de la bordure")}},
        {"epaisseur_mnu", -1, {" 3 "}, {width}, StatementBlock{"Epaisseur de la bordure", "Bordure.BorderWidth =  3 "}},
        {"forme_sousmenu", 0, {}, {}, StatementBlock{"Changer la forme", "Bordure.Shape = 0"}},
        {"forme_sousmenu", 4, {}, {}, StatementBlock{"Changer la forme", "Bordure.Shape = 4"}},
        {"ouibordure", -1, {}, {}, StatementBlock{"Visible bordure", "Bordure.Visible = True"}},
        {"nonbordure", -1, {}, {}, StatementBlock{"Invisible bordure", "Bordure.Visible = False"}},
        {"img_changer_mnu", -1, {"fond.jpg"}, {{"Chemin de l'image :", "Image de fond", ""}},
         StatementBlock{"Image de fond", "ImageFond.Picture = LoadPicture(\"fond.jpg\")"}},
        {"ouie_mnu", -1, {}, {}, StatementBlock{"Etirer image fond", "ImageFond.Stretch = True"}},
        {"none_mnu", -1, {}, {}, StatementBlock{"Pas étirer image fond", "ImageFond.Stretch = False"}},
        {"ouiam_mnu", -1, {}, {}, StatementBlock{"Activer minuteur", "Minuteur.Enabled = True"}},
        {"nonam_mnu", -1, {}, {}, StatementBlock{"Désactiver minuteur", "Minuteur.Enabled = False"}},
        {"intervalle_mnu", -1, {"1 000", "1000"}, {interval, interval},
         StatementBlock{"Intervalle minuteur", "Minuteur.Interval = 1000"}, {refusal("Nombre incorrect !", "Erreur")}},
    });
}

TEST(AssistantGenerators, TextBoxes)
{
    const Input text{"Nouveau texte (tapez [R] pour aller à la ligne) :", "", ""};
    expectGenerators({
        {"aligntxt_mnu", 2, {"3"}, {kBox}, StatementBlock{"Alignement", "Texte3.Alignment = 2"}},
        {"aligntxt_mnu", 0, {""}, {kBox}, std::nullopt},
        {"ouiverrou_mnu", -1, {"2"}, {kBox}, StatementBlock{"Verrouiller boîte de texte", "Texte2.Locked = True"}},
        {"nonverrou_mnu", -1, {"2"}, {kBox}, StatementBlock{"Verrouiller boîte de texte", "Texte2.Locked = False"}},
        // The number is checked neither against the project nor as a number.
        {"ouitxtvmenu", -1, {"99"}, {kBox}, StatementBlock{"Visible texte99", "Texte99.Visible = True"}},
        {"nontxtvmenu", -1, {"x"}, {kBox}, StatementBlock{"Invisible textex", "Textex.Visible = False"}},
        {"largtailletxt_mnu", -1, {"1", "200"}, {kBox, {"Nouvelle largeur :", "Taille", ""}},
         StatementBlock{"Taille Texte1", "Texte1.Width = 200"}},
        {"hauteurtailletxt_mnu", -1, {"1", "haut"}, {kBox, {"Nouvelle hauteur :", "Taille", ""}}, std::nullopt,
         {refusal("Valeur incorrect !", "Taille")}},
        {"xpos_txt_mnu", -1, {"4", "10"}, {kBox, {"Nouveau X :", "Position", ""}},
         StatementBlock{"Position Texte4", "Texte4.Left = 10"}},
        {"ypos_txt_mnu", -1, {"4", "y"}, {kBox, {"Nouveau Y :", "Position", ""}}, std::nullopt,
         {refusal("Valeur incorrect !", "Position")}},
        {"ouibarretxt_mnu", -1, {"2"}, {kBox},
         StatementBlock{"Affiche barre Texte2", "Action.Tag = \"2\"\r\nAction.Text = \"AfficheBarre\""}},
        {"nonbarretxt_mnu", -1, {"2"}, {kBox},
         StatementBlock{"Masque barre Texte2", "Action.Tag = \"2\"\r\nAction.Text = \"MasqueBarre\""}},
        {"chgertxt_mnu", -1, {"1", "Ligne 1[R]Ligne 2"}, {kBox, text},
         StatementBlock{"Changer texte de Texte1", "Texte1.Text = \"Ligne 1\" + chr(13) + chr(10) + \"Ligne 2\""}},
        {"chgertxt_mnu", -1, {"1", ""}, {kBox, text}, std::nullopt},
    });
}

TEST(AssistantGenerators, Buttons)
{
    expectGenerators({
        {"ouiactive_mnu", -1, {"3"}, {kButton}, StatementBlock{"Activer bouton", "Bouton3.Enabled = True"}},
        {"nonactive_mnu", -1, {"3"}, {kButton}, StatementBlock{"Désactiver bouton", "Bouton3.Enabled = False"}},
        {"xchger_pos_bmnu", -1, {"3", "150"}, {kButton, {"Nouveau X :", "Position", ""}},
         StatementBlock{"Position Bouton3", "Bouton3.Left = 150"}},
        {"ychger_pos_bmnu", -1, {"3", "y"}, {kButton, {"Nouveau Y :", "Position", ""}}, std::nullopt,
         {refusal("Valeur incorrect !", "Position")}},
        {"chger_img_botuon", -1, {"5", "b.gif"}, {kButton, {"Nouvelle image :", "Image Bouton5", ""}},
         StatementBlock{"Image Bouton5", "Bouton5.Picture = LoadPicture(\"b.gif\")"}},
        {"ouivisible_bouton_mnu", -1, {"3"}, {kButton}, StatementBlock{"Visible bouton3", "Bouton3.Visible = True"}},
        {"nonvisible_bouton_mnu", -1, {"3"}, {kButton}, StatementBlock{"Invisible bouton3", "Bouton3.Visible = False"}},
        {"nonvisible_bouton_mnu", -1, {""}, {kButton}, std::nullopt},
        {"annuler", -1, {}, {}, std::nullopt},
    });
}

TEST(AssistantGenerators, ColoursAreWrittenInDecimal)
{
    struct Case {
        const char* name;
        std::vector<std::string> answers;
        std::optional<Colour> colour;
        Block block;
    } cases[] = {
        {"chger_coul_mnu0", {}, 0x00FF8040, StatementBlock{"Changer couleur menu", "Fenetre.BackColor = 16744512"}},
        {"chger_coul_mnu1", {}, 0, StatementBlock{"Changer couleur bordure", "Bordure.BorderColor = 0"}},
        {"coul_txt_mnu", {"2"}, 255, StatementBlock{"Changer couleur texte Texte2", "Texte2.ForeColor = 255"}},
        {"fond_coul_txt_mnu", {"7"}, 0x00FFFFFF,
         StatementBlock{"Changer couleur fond Texte7", "Texte7.BackColor = 16777215"}},
        {"fond_coul_txt_mnu", {"7"}, std::nullopt, std::nullopt},
        {"chger_coul_mnu0", {}, std::nullopt, std::nullopt},
    };
    for (const auto& c : cases) {
        test::FakeDialogs dialogs;
        dialogs.colourAnswers.push_back(c.colour);
        queueAnswers(dialogs, c.answers);
        EXPECT_EQ(runAssistantEntry(c.name, -1, dialogs).block, c.block) << c.name;
        EXPECT_EQ(dialogs.colourRequests.size(), 1u) << c.name;
        EXPECT_EQ(dialogs.inputs.size(), c.answers.size()) << c.name;
    }
}

TEST(AssistantGenerators, FontSetsSixProperties)
{
    test::FakeDialogs dialogs;
    dialogs.inputAnswers = {"1", "4"};
    dialogs.fontAnswers = {FontChoice{"Arial", 12, true, false, true, false},
                           FontChoice{"Courier New", 8.25, false, true, false, true}};
    EXPECT_EQ(runAssistantEntry("chger_police_mnu", -1, dialogs).block,
              (StatementBlock{"Police", "Texte1.FontBold = True\r\nTexte1.FontItalic = False\r\n"
                                        "Texte1.FontName = \"Arial\"\r\nTexte1.FontSize = 12\r\n"
                                        "Texte1.FontStrikethru = True\r\nTexte1.FontUnderline = False"}));
    EXPECT_EQ(runAssistantEntry("chger_police_mnu", -1, dialogs).block,
              (StatementBlock{"Police", "Texte4.FontBold = False\r\nTexte4.FontItalic = True\r\n"
                                        "Texte4.FontName = \"Courier New\"\r\nTexte4.FontSize = 8.25\r\n"
                                        "Texte4.FontStrikethru = False\r\nTexte4.FontUnderline = True"}));
    EXPECT_EQ(dialogs.inputs, (std::vector<Input>{kBox, kBox}));

    // Cancelling the font dialog, or the number before it, writes nothing.
    dialogs.inputAnswers = {"1", ""};
    dialogs.fontAnswers = {std::nullopt};
    EXPECT_FALSE(runAssistantEntry("chger_police_mnu", -1, dialogs).block);
    EXPECT_FALSE(runAssistantEntry("chger_police_mnu", -1, dialogs).block);
    EXPECT_EQ(dialogs.fontRequests.size(), 3u);
}

TEST(AssistantGenerators, CursorsComeInTwoSteps)
{
    struct Case {
        const char* name;
        std::vector<std::string> answers;
        std::vector<Input> asked;
        std::optional<std::string> object;
    } cases[] = {
        {"curseur_menu0", {}, {}, "Fenetre"},
        {"curseur_menu1", {}, {}, "Ecran"},
        {"changer_curseur_bouton", {"3"}, {kButton}, "Bouton3"},
        {"curseur_chger1_mnu", {"2"}, {kBox}, "Texte2"},
        {"curseur_chger1_mnu", {""}, {kBox}, std::nullopt},
    };
    for (const auto& c : cases) {
        test::FakeDialogs dialogs;
        queueAnswers(dialogs, c.answers);
        const AssistantResult result = runAssistantEntry(c.name, -1, dialogs);
        EXPECT_EQ(result.cursorObject, c.object) << c.name;
        EXPECT_FALSE(result.block) << c.name;
        EXPECT_EQ(dialogs.inputs, c.asked) << c.name;
    }
}

TEST(AssistantGenerators, CursorStatements)
{
    const Input icon{"Chemin du fichier (ex: [LECT]:\\monrep\\fichier.ico) :", "Curseur", ""};
    struct Case {
        const char* object;
        int cursor;
        std::vector<std::string> answers;
        std::vector<Input> asked;
        Block block;
    } cases[] = {
        {"Fenetre", 11, {}, {}, StatementBlock{"Changer curseur (Fenetre)", "Fenetre.MousePointer = 11"}},
        {"Ecran", 0, {}, {}, StatementBlock{"Changer curseur (Ecran)", "Ecran.MousePointer = 0"}},
        {"Bouton3", 99, {"c:\\a.ico"}, {icon},
         StatementBlock{"Changer curseur (Bouton3)",
                        "Bouton3.MousePointer = 99\r\nBouton3.MouseIcon = LoadPicture(\"c:\\a.ico\")"}},
        {"Texte2", 99, {""}, {icon}, std::nullopt},
    };
    for (const auto& c : cases) {
        test::FakeDialogs dialogs;
        queueAnswers(dialogs, c.answers);
        EXPECT_EQ(cursorStatement(c.object, c.cursor, dialogs), c.block) << c.object;
        EXPECT_EQ(dialogs.inputs, c.asked) << c.object;
    }
}

}  // namespace
}  // namespace qor
