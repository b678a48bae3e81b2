#include "core/scripting/assistant_generators.h"

#include <array>

#include "core/scripting/assistant_menu.h"
#include "core/scripting/assistant_prompts.h"
#include "model/product.h"
#include "text/line_file.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr std::string_view kQ = "\"";

// The shapes several generators share.
std::string shellStatement(std::string_view secondLine)
{
    return "Set exe_f = CreateObject(\"WScript.Shell\")" + std::string(kCrLf) + std::string(secondLine);
}

std::string runStatement(std::string_view target)
{
    return shellStatement("exe_f.Run(Chr(34) + \"" + std::string(target) + "\" + Chr(34))");
}

std::string actionStatement(std::string_view argument, std::string_view verb)
{
    return "Action.Tag = \"" + std::string(argument) + "\"" + std::string(kCrLf) + "Action.Text = \"" +
           std::string(verb) + "\"";
}

// How a table row's text becomes the statement.
enum class Form { Plain, Shell, Run, Action };
enum class Asks { Nothing, Text, Colour };
enum class Element { None, TextBox, Button };

// What a row's patterns are filled with: {n} the element number, {v} the
// answer, {V} the answer in upper case, {R} the answer with each "[R]" made
// a line break, {i} the entry's index.
struct Fill {
    std::string n;
    std::string v;
    int i = -1;
};

std::string expand(std::string_view pattern, const Fill& f)
{
    std::string out;
    for (std::size_t p = 0; p < pattern.size(); ++p) {
        const char key = pattern[p] == '{' && p + 2 < pattern.size() && pattern[p + 2] == '}' ? pattern[p + 1] : 0;
        switch (key) {
        case 'n': out += f.n; break;
        case 'v': out += f.v; break;
        case 'V': out += toUpperText(f.v); break;
        case 'R': out += replaceAll(f.v, "[R]", "\" + chr(13) + chr(10) + \""); break;
        case 'i': out += std::to_string(f.i); break;
        default: out += pattern[p]; continue;
        }
        p += 2;
    }
    return out;
}

struct Row {
    std::string_view name;
    std::string_view title;      // pattern
    std::string_view statement;  // pattern: the statement, the run target or the action's argument
    Element element = Element::None;
    Asks asks = Asks::Nothing;
    std::string_view prompt{};
    std::string_view promptTitle{};  // pattern
    std::string_view defaultText{};
    NumberCheck check = NumberCheck::None;
    std::string_view refusalTitle{};
    Form form = Form::Plain;
    std::string_view verb{};  // Form::Action
};

constexpr NumberCheck kAgain = NumberCheck::AskAgain;
constexpr NumberCheck kRefuse = NumberCheck::Refuse;
constexpr Asks kText = Asks::Text;
constexpr Asks kColour = Asks::Colour;
constexpr Element kBox = Element::TextBox;
constexpr Element kButton = Element::Button;

constexpr std::string_view kCdPromptOpen =
    "Lettre du lecteur à ouvrir (ex: D,E,...; laissez [LECT] pour ouvrir le lecteur sur lequel est le menu) :";
constexpr std::string_view kCdPromptClose =
    "Lettre du lecteur à fermer (ex: D,E,...; laissez [LECT] pour fermer le lecteur sur lequel est le menu) :";
constexpr std::string_view kRepPrompt = "Répertoire à ouvrir (ex:[LECT]:\\rep, ...) :\r\n\r\n"
                                        "Note : Si vous voulez créer un bouton 'explorer CD', tapez [LECT]:\\";

// Every generator that asks at most an element number and one value.
constexpr std::array kRows = std::to_array<Row>({
    // Sub-menus, pages, documents, programs, the CD drive, sounds and videos.
    {.name = "sousmenu_princ", .title = "Lancer un sous menu", .statement = "exe_f.Run(\"[CHEMIN]{v}.exe\")",
     .asks = kText, .prompt = "Nom du sous menu (ex : SousMenu1, ...) :", .promptTitle = "Sous menu",
     .form = Form::Shell},
    {.name = "web", .title = "Ouvrir une page web", .statement = "{v}", .asks = kText,
     .prompt = "Entrez l'adresse de la page à ouvrir :", .defaultText = product::webSite, .form = Form::Run},
    {.name = "html_ouvr_mnu", .title = "Ouvrir une page HTML",
     .statement = "explorer \" + chr(34) + \"{v}\" + chr(34) + \"", .asks = kText,
     .prompt = "Chemin de la page (ex : [LECT]:\\index.html, c:\\page.htm, ....) :", .form = Form::Run},
    {.name = "doc_mnu", .title = "Ouvrir un document", .statement = "{v}", .asks = kText,
     .prompt = "Document à ouvrir", .form = Form::Run},
    {.name = "rep_mnu", .title = "Ouvrir un répertoire", .statement = "explorer {v}", .asks = kText,
     .prompt = kRepPrompt, .form = Form::Run},
    {.name = "exe_", .title = "Exécuter un fichier", .statement = "{v}", .asks = kText,
     .prompt = "Entrez le nom du fichier à exécuter : (ex: notepad.exe, mon_rep/prog.exe, ...)", .form = Form::Run},
    {.name = "ouvCD_mnu", .title = "Ouvrir le lecteur de CD", .statement = "{V}", .asks = kText,
     .prompt = kCdPromptOpen, .promptTitle = "Ouvrir le lecteur CD", .defaultText = "[LECT]",
     .form = Form::Action, .verb = "OuvrirCD"},
    {.name = "fermercd_mnu", .title = "Fermer le lecteur de CD", .statement = "{V}", .asks = kText,
     .prompt = kCdPromptClose, .promptTitle = "Fermer le lecteur CD", .defaultText = "[LECT]",
     .form = Form::Action, .verb = "FermerCD"},
    {.name = "jouerunson_mnu", .title = "Jouer un son", .statement = "{v}", .asks = kText,
     .prompt = "Chemin du fichier son :", .promptTitle = "Jouer un fichier son", .form = Form::Action,
     .verb = "JouerSon"},
    {.name = "jouerunsonwav_menu", .title = "Jouer un son WAV", .statement = "{v}", .asks = kText,
     .prompt = "Chemin du fichier son :", .promptTitle = "Jouer un son WAV", .form = Form::Action,
     .verb = "JouerSonWAV"},
    {.name = "jouerunevideo_mnu", .title = "Jouer une vidéo", .statement = "{v}", .asks = kText,
     .prompt = "Chemin du fichier vidéo :", .promptTitle = "Jouer une fichier vidéo", .form = Form::Action,
     .verb = "JouerVideo"},
    // The window, its border and background picture, the timer.
    {.name = "max_mnu", .title = "Maximiser", .statement = "Fenetre.WindowState = 2"},
    {.name = "min_mnu", .title = "Minimiser", .statement = "Fenetre.WindowState = 1"},
    {.name = "normtaille_mnu", .title = "Taille normale", .statement = "Fenetre.WindowState = 0"},
    {.name = "fermer_mnu", .title = "Fermer", .statement = "Action.Text = \"Fermer\""},
    {.name = "chgertitre_mnu", .title = "Changer le titre", .statement = "Fenetre.Caption = \"{v}\"",
     .asks = kText, .prompt = "Nouveau titre :", .promptTitle = "Changer le titre"},
    {.name = "chger_coul_mnu0", .title = "Changer couleur menu", .statement = "Fenetre.BackColor = {v}",
     .asks = kColour},
    {.name = "xp_mnu", .title = "Changer la position", .statement = "Fenetre.Left = {v}", .asks = kText,
     .prompt = "Nouveau X :", .promptTitle = "Changer la position", .check = kAgain, .refusalTitle = "Erreur"},
    {.name = "yp_mnu", .title = "Changer la position", .statement = "Fenetre.Top = {v}", .asks = kText,
     .prompt = "Nouveau Y :", .promptTitle = "Changer la position", .check = kAgain, .refusalTitle = "Erreur"},
    {.name = "ouiv_mnu", .title = "Visible fenetre", .statement = "Fenetre.Visible = True"},
    {.name = "nonv_mnu", .title = "Invisible fenetre", .statement = "Fenetre.Visible = False"},
    {.name = "epaisseur_mnu", .title = "Epaisseur de la bordure", .statement = "Bordure.BorderWidth = {v}",
     .asks = kText, .prompt = "Nouvelle épaisseur (en pixel) :", .promptTitle = "Epaisseur de la bordure",
     .defaultText = "1", .check = kAgain, .refusalTitle = "Epaisseur de la bordure"},
    {.name = "chger_coul_mnu1", .title = "Changer couleur bordure", .statement = "Bordure.BorderColor = {v}",
     .asks = kColour},
    {.name = "forme_sousmenu", .title = "Changer la forme", .statement = "Bordure.Shape = {i}"},
    {.name = "ouibordure", .title = "Visible bordure", .statement = "Bordure.Visible = True"},
    {.name = "nonbordure", .title = "Invisible bordure", .statement = "Bordure.Visible = False"},
    {.name = "img_changer_mnu", .title = "Image de fond", .statement = "ImageFond.Picture = LoadPicture(\"{v}\")",
     .asks = kText, .prompt = "Chemin de l'image :", .promptTitle = "Image de fond"},
    {.name = "ouie_mnu", .title = "Etirer image fond", .statement = "ImageFond.Stretch = True"},
    {.name = "none_mnu", .title = "Pas étirer image fond", .statement = "ImageFond.Stretch = False"},
    {.name = "ouiam_mnu", .title = "Activer minuteur", .statement = "Minuteur.Enabled = True"},
    {.name = "nonam_mnu", .title = "Désactiver minuteur", .statement = "Minuteur.Enabled = False"},
    {.name = "intervalle_mnu", .title = "Intervalle minuteur", .statement = "Minuteur.Interval = {v}",
     .asks = kText, .prompt = "Nouvel intervalle (en ms) :", .promptTitle = "Intervalle minuteur",
     .check = kAgain, .refusalTitle = "Erreur"},
    // Text boxes.
    {.name = "aligntxt_mnu", .title = "Alignement", .statement = "Texte{n}.Alignment = {i}", .element = kBox},
    {.name = "coul_txt_mnu", .title = "Changer couleur texte Texte{n}", .statement = "Texte{n}.ForeColor = {v}",
     .element = kBox, .asks = kColour},
    {.name = "fond_coul_txt_mnu", .title = "Changer couleur fond Texte{n}",
     .statement = "Texte{n}.BackColor = {v}", .element = kBox, .asks = kColour},
    {.name = "ouiverrou_mnu", .title = "Verrouiller boîte de texte", .statement = "Texte{n}.Locked = True",
     .element = kBox},
    {.name = "nonverrou_mnu", .title = "Verrouiller boîte de texte", .statement = "Texte{n}.Locked = False",
     .element = kBox},
    {.name = "ouitxtvmenu", .title = "Visible texte{n}", .statement = "Texte{n}.Visible = True", .element = kBox},
    {.name = "nontxtvmenu", .title = "Invisible texte{n}", .statement = "Texte{n}.Visible = False",
     .element = kBox},
    {.name = "largtailletxt_mnu", .title = "Taille Texte{n}", .statement = "Texte{n}.Width = {v}",
     .element = kBox, .asks = kText, .prompt = "Nouvelle largeur :", .promptTitle = "Taille", .check = kRefuse,
     .refusalTitle = "Taille"},
    {.name = "hauteurtailletxt_mnu", .title = "Taille Texte{n}", .statement = "Texte{n}.Height = {v}",
     .element = kBox, .asks = kText, .prompt = "Nouvelle hauteur :", .promptTitle = "Taille", .check = kRefuse,
     .refusalTitle = "Taille"},
    {.name = "xpos_txt_mnu", .title = "Position Texte{n}", .statement = "Texte{n}.Left = {v}", .element = kBox,
     .asks = kText, .prompt = "Nouveau X :", .promptTitle = "Position", .check = kRefuse,
     .refusalTitle = "Position"},
    {.name = "ypos_txt_mnu", .title = "Position Texte{n}", .statement = "Texte{n}.Top = {v}", .element = kBox,
     .asks = kText, .prompt = "Nouveau Y :", .promptTitle = "Position", .check = kRefuse,
     .refusalTitle = "Position"},
    {.name = "ouibarretxt_mnu", .title = "Affiche barre Texte{n}", .statement = "{n}", .element = kBox,
     .form = Form::Action, .verb = "AfficheBarre"},
    {.name = "nonbarretxt_mnu", .title = "Masque barre Texte{n}", .statement = "{n}", .element = kBox,
     .form = Form::Action, .verb = "MasqueBarre"},
    {.name = "chgertxt_mnu", .title = "Changer texte de Texte{n}", .statement = "Texte{n}.Text = \"{R}\"",
     .element = kBox, .asks = kText, .prompt = "Nouveau texte (tapez [R] pour aller à la ligne) :"},
    // Buttons.
    {.name = "ouiactive_mnu", .title = "Activer bouton", .statement = "Bouton{n}.Enabled = True",
     .element = kButton},
    {.name = "nonactive_mnu", .title = "Désactiver bouton", .statement = "Bouton{n}.Enabled = False",
     .element = kButton},
    {.name = "xchger_pos_bmnu", .title = "Position Bouton{n}", .statement = "Bouton{n}.Left = {v}",
     .element = kButton, .asks = kText, .prompt = "Nouveau X :", .promptTitle = "Position", .check = kRefuse,
     .refusalTitle = "Position"},
    {.name = "ychger_pos_bmnu", .title = "Position Bouton{n}", .statement = "Bouton{n}.Top = {v}",
     .element = kButton, .asks = kText, .prompt = "Nouveau Y :", .promptTitle = "Position", .check = kRefuse,
     .refusalTitle = "Position"},
    {.name = "chger_img_botuon", .title = "Image Bouton{n}",
     .statement = "Bouton{n}.Picture = LoadPicture(\"{v}\")", .element = kButton, .asks = kText,
     .prompt = "Nouvelle image :", .promptTitle = "Image Bouton{n}"},
    {.name = "ouivisible_bouton_mnu", .title = "Visible bouton{n}", .statement = "Bouton{n}.Visible = True",
     .element = kButton},
    {.name = "nonvisible_bouton_mnu", .title = "Invisible bouton{n}", .statement = "Bouton{n}.Visible = False",
     .element = kButton},
});

std::optional<std::string> askElementOf(Dialogs& dialogs, Element element)
{
    return askElement(dialogs, element == Element::TextBox ? ElementKind::TextBox : ElementKind::Button);
}

// The answers a row asks for, in its order: the element, then the value.
std::optional<Fill> askRow(const Row& row, int index, Dialogs& dialogs)
{
    Fill fill{{}, {}, index};
    if (row.element != Element::None) {
        auto n = askElementOf(dialogs, row.element);
        if (!n)
            return std::nullopt;
        fill.n = *n;
    }
    std::optional<std::string> value;
    if (row.asks == Asks::Text)
        value = ask(dialogs, {row.prompt, expand(row.promptTitle, fill), row.defaultText, row.check, row.refusalTitle});
    else if (row.asks == Asks::Colour)
        value = askColour(dialogs);
    if (row.asks != Asks::Nothing && !value)
        return std::nullopt;
    fill.v = value.value_or("");
    return fill;
}

std::optional<StatementBlock> runRow(const Row& row, int index, Dialogs& dialogs)
{
    const auto fill = askRow(row, index, dialogs);
    if (!fill)
        return std::nullopt;
    const std::string text = expand(row.statement, *fill);
    std::string statement;
    switch (row.form) {
    case Form::Plain: statement = text; break;
    case Form::Shell: statement = shellStatement(text); break;
    case Form::Run: statement = runStatement(text); break;
    case Form::Action: statement = actionStatement(text, row.verb); break;
    }
    return StatementBlock{expand(row.title, *fill), statement};
}

// "Afficher un message": the title loses its quotation marks, the message
// keeps them as chr(34) and turns each "[R]" into a line break; the three
// answers may all be empty.
std::optional<StatementBlock> messageBox(Dialogs& dialogs)
{
    const std::string blockTitle = "Boite de dialogue";
    const std::string title = replaceAll(dialogs.inputBox("Titre :", blockTitle, ""), kQ, "'");
    std::string text = dialogs.inputBox("Message (Tapez [R] pour aller à la ligne) :", blockTitle, "");
    text = replaceAll(replaceAll(text, kQ, "\"+chr(34)+\""), "[R]", "\"+chr(10)+chr(13)+\"");
    const std::string type =
        "vb" + dialogs.inputBox("Type  (choix entre exclamation, information, question, critical) :", blockTitle,
                                "information");
    return StatementBlock{blockTitle, "MsgBox \"" + text + "\", " + type + ", \"" + title + "\""};
}

// "Envoyer un email": only the address is needed; the mail program gets the
// other fields empty. Quotation marks and spaces are written as in an address.
std::optional<StatementBlock> email(Dialogs& dialogs)
{
    const auto address = ask(dialogs, {"Entrez l'adresse du destinataire :", {}, "destinataire@exemple.fr"});
    if (!address)
        return std::nullopt;
    const std::string copies = dialogs.inputBox("Copies conformes (autres destinaires, laissez vide si aucun) :", "", "");
    const std::string subject = dialogs.inputBox("Entrez le sujet du message :", "", "");
    const std::string body = dialogs.inputBox("Message :", "", "");
    std::string target = "mailto:" + *address + "?cc=" + copies + "&subject=" + subject + "&body=" + body;
    target = replaceAll(replaceAll(target, kQ, "%22"), " ", "%20");
    return StatementBlock{"Envoyer un email", runStatement(target)};
}

// "Un fichier texte": the file's whole text into the text box named.
std::optional<StatementBlock> textFile(Dialogs& dialogs)
{
    const auto path = ask(dialogs, {"Chemin du fichier à ouvrir (ex: c:\\1.txt, [LECT]:\\rep\\fich.txt, ...)  :"});
    if (!path)
        return std::nullopt;
    const auto box = ask(dialogs, {"Boîte de texte dans laquelle le texte sera affiché (ex: Texte1,Texte2, ...) :"});
    if (!box)
        return std::nullopt;
    const std::string crLf(kCrLf);
    return StatementBlock{"Ouvrir un fichier texte",
                          "Set fso = CreateObject(\"Scripting.FileSystemObject\")" + crLf +
                              "Set fich = fso.opentextfile(\"" + *path + "\", 1)" + crLf + *box +
                              ".Text=fich.ReadAll" + crLf + "fich.Close"};
}

// "Changer la police": every property of the font chosen, one line each.
std::optional<StatementBlock> font(Dialogs& dialogs)
{
    const auto n = askElement(dialogs, ElementKind::TextBox);
    if (!n)
        return std::nullopt;
    const auto f = dialogs.pickFont(FontChoice{});
    if (!f)
        return std::nullopt;
    const auto flag = [](bool b) { return std::string(b ? "True" : "False"); };
    const std::string o = "Texte" + *n;
    const std::pair<const char*, std::string> lines[] = {
        {".FontBold = ", flag(f->bold)},           {".FontItalic = ", flag(f->italic)},
        {".FontName = ", "\"" + f->name + "\""},   {".FontSize = ", numberText(f->size, kSingleDigits)},
        {".FontStrikethru = ", flag(f->strikethrough)}, {".FontUnderline = ", flag(f->underline)},
    };
    std::string statement;
    for (const auto& [property, value] : lines)
        statement += (statement.empty() ? "" : std::string(kCrLf)) + o + property + value;
    return StatementBlock{"Police", statement};
}

struct CustomGenerator {
    std::string_view name;
    std::optional<StatementBlock> (*run)(Dialogs&);
};

constexpr std::array<CustomGenerator, 4> kCustom{{
    {"msg", messageBox},
    {"email", email},
    {"texte_mnu", textFile},
    {"chger_police_mnu", font},
}};

// The first step of the cursor generators: whose cursor changes.
struct CursorObject {
    std::string_view name;
    std::string_view object;  // "Bouton" and "Texte" take the number asked
    Element element = Element::None;
};

constexpr std::array<CursorObject, 4> kCursorObjects{{
    {"curseur_menu0", "Fenetre"},
    {"curseur_menu1", "Ecran"},
    {"changer_curseur_bouton", "Bouton", kButton},
    {"curseur_chger1_mnu", "Texte", kBox},
}};

std::optional<std::string> askCursorObject(const CursorObject& c, Dialogs& dialogs)
{
    if (c.element == Element::None)
        return std::string(c.object);
    const auto n = askElementOf(dialogs, c.element);
    if (!n)
        return std::nullopt;
    return std::string(c.object) + *n;
}

}  // namespace

AssistantResult runAssistantEntry(std::string_view name, int index, Dialogs& dialogs)
{
    for (const Row& row : kRows)
        if (row.name == name)
            return {runRow(row, index, dialogs), std::nullopt};
    for (const CustomGenerator& g : kCustom)
        if (g.name == name)
            return {g.run(dialogs), std::nullopt};
    for (const CursorObject& c : kCursorObjects)
        if (c.name == name)
            return {std::nullopt, askCursorObject(c, dialogs)};
    return {};
}

std::optional<StatementBlock> cursorStatement(std::string_view object, int cursor, Dialogs& dialogs)
{
    std::string statement = std::string(object) + ".MousePointer = " + std::to_string(cursor);
    if (cursor == kCustomCursor) {
        const auto path = ask(dialogs, {"Chemin du fichier (ex: [LECT]:\\monrep\\fichier.ico) :", "Curseur"});
        if (!path)
            return std::nullopt;
        statement += std::string(kCrLf) + std::string(object) + ".MouseIcon = LoadPicture(\"" + *path + "\")";
    }
    return StatementBlock{"Changer curseur (" + std::string(object) + ")", statement};
}

std::vector<std::string_view> assistantGeneratorNames()
{
    std::vector<std::string_view> names;
    for (const Row& row : kRows)
        names.push_back(row.name);
    for (const CustomGenerator& g : kCustom)
        names.push_back(g.name);
    for (const CursorObject& c : kCursorObjects)
        names.push_back(c.name);
    return names;
}

}  // namespace qor
