// The wizard's flows through the fake dialogs: the five steps, the
// buttons and their functions, the previews, closing.

#include <gtest/gtest.h>

#include "wizard_fixture.h"

namespace qor {
namespace {

namespace fs = std::filesystem;
using test::kCaption;
using test::refusal;
using test::WizardFixture;

TEST_F(WizardFixture, OpensOnTheFirstStepAndMovesWithoutChecking)
{
    EXPECT_TRUE(wizardOpen);
    EXPECT_EQ(form().step, 0);
    EXPECT_EQ(form().menuName, "Sans Titre");
    EXPECT_EQ(form().backgroundColor, 0x00FFFFFF);
    EXPECT_TRUE(form().border);
    EXPECT_FALSE(form().music);
    wizard.setMenuName("");
    wizard.previous();
    EXPECT_EQ(form().step, 0);
    goTo(4);
    EXPECT_EQ(form().step, 4);
    // The documents folder, when no folder was chosen yet.
    EXPECT_EQ(form().folder, dir.folder() + "Documents");
    wizard.next();
    EXPECT_EQ(form().step, 4);
    dialogs.folderAnswers = {dir.folder() + "ailleurs"};
    wizard.pickFolder();
    EXPECT_EQ(dialogs.folderPrompts,
              std::vector<std::string>{"Veuillez choisir le dossier dans lequel votre menu va être enregistré :"});
    goTo(0);
    goTo(4);
    EXPECT_EQ(form().folder, dir.folder() + "ailleurs");
    // A cancelled folder picker changes nothing.
    dialogs.folderAnswers = {std::nullopt};
    wizard.pickFolder();
    EXPECT_EQ(form().folder, dir.folder() + "ailleurs");
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(WizardFixture, FirstStepDialogsKeepTheValueOnCancelOrError)
{
    dialogs.colourAnswers = {0x00112233, std::nullopt};
    wizard.pickBackgroundColor();
    wizard.pickBackgroundColor();
    EXPECT_EQ(dialogs.colourRequests, (std::vector<Colour>{0x00FFFFFF, 0x00112233}));
    EXPECT_EQ(form().backgroundColor, 0x00112233);

    const std::string notAPicture = dir.write("texte.jpg", "bonjour");
    const std::string fond = picture("fond.jpg", 320, 240);
    dialogs.openAnswers = {notAPicture, std::nullopt, fond};
    wizard.pickBackgroundImage();
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"Erreur n°481 (Image incorrecte) dans la procédure Command5_Click de Feuille Form14", "Erreur !",
                       MessageIcon::Critical}));
    EXPECT_EQ(form().backgroundImage, "");
    EXPECT_FALSE(form().backgroundIsImage);
    wizard.pickBackgroundImage();
    EXPECT_EQ(form().backgroundImage, "");
    wizard.pickBackgroundImage();
    EXPECT_EQ(form().backgroundImage, fond);
    EXPECT_TRUE(form().backgroundIsImage);
    ASSERT_EQ(dialogs.openRequests.size(), 3u);
    EXPECT_EQ(dialogs.openRequests[0],
              (FileDialogRequest{"Ouvir une image...", std::string(kImageFilter), "", ""}));
    // The dialog opens on the picture shown.
    dialogs.openAnswers = {std::nullopt};
    wizard.pickBackgroundImage();
    EXPECT_EQ(dialogs.openRequests.back().initialFolder, dir.folder());
    EXPECT_EQ(dialogs.openRequests.back().initialName, "fond.jpg");
}

TEST_F(WizardFixture, MusicIsTakenOnlyWhenChosen)
{
    const std::string song = dir.write("air.mp3", "son");
    dialogs.openAnswers = {std::nullopt, dir.file("parti.mp3"), song};
    wizard.pickMusic();
    EXPECT_FALSE(form().music);
    wizard.pickMusic();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Erreur : Fichier introuvable", "Erreur n°53", MessageIcon::Critical}));
    EXPECT_EQ(form().musicFile, "");
    wizard.pickMusic();
    EXPECT_EQ(form().musicFile, song);
    EXPECT_TRUE(form().music);
    for (const auto& r : dialogs.openRequests)
        EXPECT_EQ(r, (FileDialogRequest{"Musique de fond...", std::string(kSoundFilter), "", ""}));
}

TEST_F(WizardFixture, StartupChoicesFallBackToNothingOnAnEmptyAnswer)
{
    goTo(1);
    dialogs.messageAnswers = {Answer::Cancel};
    wizard.chooseStartup(WizardStartup::Open);
    EXPECT_EQ(form().startup.choice, WizardStartup::Nothing);

    dialogs.messageAnswers = {Answer::No, Answer::No};
    dialogs.inputAnswers = {"calc.exe"};
    wizard.chooseStartup(WizardStartup::Open);
    EXPECT_EQ(form().startup.choice, WizardStartup::Open);
    EXPECT_EQ(form().startup.open, (OpenTarget{"DISQUE", "calc.exe"}));

    dialogs.inputAnswers = {"Salut", "Bonjour[R]à \"tous\""};
    wizard.chooseStartup(WizardStartup::Message);
    EXPECT_EQ(form().startup.choice, WizardStartup::Message);
    EXPECT_EQ(form().startup.message, (MenuMessage{"Salut", "Bonjour\r\nà 'tous'"}));
    wizard.previewStartupMessage();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Bonjour\r\nà 'tous'", "Salut", MessageIcon::Information}));

    // Asked again, it offers the message it has; an empty answer drops it.
    dialogs.inputAnswers = {"Salut", ""};
    wizard.chooseStartup(WizardStartup::Message);
    EXPECT_EQ(dialogs.inputs.back().defaultText, "Bonjour[R]à 'tous'");
    EXPECT_EQ(form().startup.choice, WizardStartup::Nothing);

    wizard.chooseStartup(WizardStartup::MediaFile);
    wizard.setStartupMediaFile("intro.avi");
    EXPECT_EQ(form().startup.choice, WizardStartup::MediaFile);
    EXPECT_EQ(form().startup.mediaFile, "intro.avi");
}

TEST_F(WizardFixture, AddPreparesAFreshTextButton)
{
    goTo(2);
    wizard.addButton();
    EXPECT_TRUE(form().addFrameVisible);
    EXPECT_EQ(form().addType, ButtonType::None);
    EXPECT_EQ(form().current, WizardButton{});
    wizard.chooseButtonType(ButtonType::Text);
    wizard.setCaption("Jouer");
    dialogs.colourAnswers = {0x000000FF};
    wizard.pickTextColor();
    wizard.backToTypeChoice();
    EXPECT_EQ(form().addType, ButtonType::None);
    EXPECT_TRUE(form().addFrameVisible);
    wizard.cancelAdd();
    EXPECT_FALSE(form().addFrameVisible);

    // The background follows the first step's colour, unless a picture is the background.
    dialogs.colourAnswers = {0x00ABCDEF};
    wizard.pickBackgroundColor();
    wizard.addButton();
    EXPECT_EQ(form().captionField, "");
    EXPECT_EQ(form().current.textColor, 0);
    EXPECT_EQ(form().current.caption, "");
    EXPECT_EQ(form().current.backColor, 0x00ABCDEF);
    wizard.chooseBackgroundImage(true);
    wizard.addButton();
    EXPECT_EQ(form().current.backColor, 0x00FFFFFF);
    EXPECT_TRUE(wizard.buttons().empty());
}

TEST_F(WizardFixture, ValidateRefusesWhatIsMissingAndListsTheButtons)
{
    goTo(2);
    for (const char* blank : {"", "   "}) {
        wizard.addButton();
        wizard.chooseButtonType(ButtonType::Text);
        wizard.setCaption(blank);
        wizard.validateTextButton();
        EXPECT_EQ(dialogs.lastMessage(), refusal("Veuillez indiquer le texte du bouton !"));
    }
    EXPECT_TRUE(wizard.buttons().empty());

    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Graphic);
    const std::string n = picture("n.gif", 80, 20);
    dialogs.openAnswers = {n};
    wizard.pickGraphicImage(GraphicImage::Normal);
    wizard.validateGraphicButton();
    EXPECT_EQ(dialogs.lastMessage(), refusal("Veuillez indiquer une image pour chaque propriétés du bouton "
                                             "(normal, survol et clique) !"));
    EXPECT_TRUE(form().addFrameVisible);

    addText("Accueil");
    addGraphic(n, picture("s.gif", 80, 20), picture("c.gif", 80, 20));
    EXPECT_EQ(form().buttonLines, (std::vector<std::string>{"Bouton 1 (Texte)", "Bouton 2 (Graphique)"}));
    EXPECT_FALSE(form().addFrameVisible);
    ASSERT_EQ(wizard.buttons().size(), 2u);
    EXPECT_EQ(wizard.buttons()[0].caption, "Accueil");
    EXPECT_TRUE(wizard.buttons()[0].isText);
    EXPECT_FALSE(wizard.buttons()[1].isText);
    EXPECT_EQ(wizard.buttons()[1].hoverImage, dir.file("s.gif"));
}

TEST_F(WizardFixture, GraphicImageRowsHaveTheirTitlesAndHandlers)
{
    goTo(2);
    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Graphic);
    const std::string bad = dir.write("faux.bmp", "pas une image");
    struct Case { GraphicImage row; const char* title; const char* handler; };
    const Case cases[] = {
        {GraphicImage::Normal, "Quand bouton normal :", "Command12_Click"},
        {GraphicImage::Hover, "Quand survolé  :", "Command13_Click"},
        {GraphicImage::Pressed, "Quand cliqué :", "Command15_Click"},
    };
    for (const auto& c : cases) {
        dialogs.openAnswers = {bad};
        wizard.pickGraphicImage(c.row);
        EXPECT_EQ(dialogs.openRequests.back().title, c.title);
        EXPECT_EQ(dialogs.openRequests.back().filter, kImageFilter);
        EXPECT_EQ(dialogs.lastMessage().text, "Erreur n°481 (Image incorrecte) dans la procédure " +
                                                  std::string(c.handler) + " de Feuille Form14");
        EXPECT_EQ(form().graphicImages[std::size_t(c.row)], "");
    }
}

TEST_F(WizardFixture, TransparentBackgroundNeedsTwoColours)
{
    goTo(2);
    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Text);
    dialogs.colourAnswers = {0x00FFFFFF};
    wizard.pickTextColor();
    wizard.setTransparentBackground(true);
    EXPECT_EQ(dialogs.lastMessage(),
              refusal("La couleur de fond et la couleur du texte doivent être différentes !"));
    EXPECT_FALSE(form().current.transparentBackground);
    // Without a transparent background one colour is allowed: the text is
    // drawn, invisible.
    dialogs.messages.clear();
    wizard.setCaption("Caché");
    wizard.validateTextButton();
    EXPECT_TRUE(dialogs.messages.empty());
    ASSERT_EQ(wizard.buttons().size(), 1u);
    EXPECT_EQ(wizard.buttons()[0].textColor, wizard.buttons()[0].backColor);
    // A fresh button: black on white.
    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Text);
    dialogs.colourAnswers = {0x000000FF};
    wizard.pickBackColor();
    dialogs.messages.clear();
    wizard.setTransparentBackground(true);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(form().current.transparentBackground);
    wizard.setTransparentBackground(false);
    EXPECT_FALSE(form().current.transparentBackground);
}

TEST_F(WizardFixture, FontDialogStartsOnTheButtonsFontAndRefusesSizesPastSixteenBits)
{
    goTo(2);
    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Text);
    FontChoice big{"DejaVu Serif", 200, true, true, true, true};
    dialogs.fontAnswers = {big, FontChoice{"Huge", 40000}, std::nullopt};
    wizard.pickFont();
    EXPECT_EQ(dialogs.fontRequests[0], (FontChoice{"MS Sans Serif", 8, false, false, false, false}));
    const WizardButton& c = form().current;
    EXPECT_EQ(c.fontName, "DejaVu Serif");
    EXPECT_EQ(c.fontSize, 200);
    EXPECT_TRUE(c.bold && c.italic && c.strikethrough && c.underline);
    wizard.pickFont();
    EXPECT_EQ(dialogs.fontRequests[1], big);
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"Erreur n°6 (Dépassement de capacité) dans la procédure Command8_Click de Feuille Form14",
                       "Erreur !", MessageIcon::Critical}));
    wizard.pickFont();
    EXPECT_EQ(form().current.fontName, "DejaVu Serif");
    EXPECT_EQ(form().current.fontSize, 200);
}

TEST_F(WizardFixture, DeletingKeepsTheOtherNumbers)
{
    goTo(2);
    wizard.deleteSelectedButton();
    EXPECT_EQ(dialogs.lastMessage(), refusal("Veuillez sélectionner un bouton pour le supprimer !"));
    for (int i = 1; i <= 12; ++i)
        addText("B" + std::to_string(i));

    wizard.selectButtonLine(11);
    dialogs.messageAnswers = {Answer::No};
    wizard.deleteSelectedButton();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Suppimer le bouton n°12 ?", kCaption, MessageIcon::Question,
                                              MessageButtons::YesNo}));
    EXPECT_EQ(form().buttonLines.size(), 12u);
    EXPECT_FALSE(wizard.buttons()[11].deleted());

    dialogs.messageAnswers = {Answer::Yes};
    wizard.deleteSelectedButton();
    EXPECT_TRUE(wizard.buttons()[11].deleted());
    EXPECT_EQ(form().buttonLines.size(), 11u);
    EXPECT_EQ(form().selectedButtonLine, -1);

    // Line 2 now names button 2; deleting button 2 leaves 3 as "Bouton 3".
    wizard.selectButtonLine(1);
    dialogs.messageAnswers = {Answer::Yes};
    wizard.deleteSelectedButton();
    EXPECT_EQ(dialogs.lastMessage().text, "Suppimer le bouton n°2 ?");
    EXPECT_TRUE(wizard.buttons()[1].deleted());
    EXPECT_EQ(form().buttonLines[1], "Bouton 3 (Texte)");
    addText("Nouveau");
    EXPECT_EQ(form().buttonLines.back(), "Bouton 13 (Texte)");
    EXPECT_EQ(wizard.buttons().size(), 13u);
}

TEST_F(WizardFixture, PreviewsFollowThePointerAndListedButtons)
{
    goTo(2);
    addText("Premier");
    wizard.addButton();
    wizard.chooseButtonType(ButtonType::Text);
    wizard.setCaption("En cours");
    wizard.showTextPreview();
    EXPECT_EQ(form().preview.kind, WizardPreview::Kind::Text);
    EXPECT_TRUE(form().preview.ofCurrent);
    EXPECT_EQ(form().preview.state, ButtonState::Normal);
    EXPECT_TRUE(wizard.previewPointer(PreviewEvent::Moved, false));
    EXPECT_FALSE(wizard.previewPointer(PreviewEvent::Moved, false));
    EXPECT_TRUE(wizard.previewPointer(PreviewEvent::Pressed, true));
    EXPECT_EQ(form().preview.state, ButtonState::Pressed);
    EXPECT_TRUE(wizard.previewPointer(PreviewEvent::Left, true));
    EXPECT_EQ(form().preview.state, ButtonState::Normal);

    // Another button is being made: no preview of a listed one.
    wizard.previewButtonLine(0);
    EXPECT_EQ(dialogs.lastMessage(), refusal("Aucun apercu disponible quand vous éditez un autre bouton."));
    EXPECT_TRUE(form().preview.ofCurrent);
    wizard.cancelAdd();
    wizard.previewButtonLine(0);
    EXPECT_FALSE(form().preview.ofCurrent);
    EXPECT_EQ(form().preview.entry.caption, "Premier");
    wizard.hidePreview();
    EXPECT_EQ(form().preview.kind, WizardPreview::Kind::None);
    EXPECT_FALSE(wizard.previewPointer(PreviewEvent::Moved, false));
}

TEST_F(WizardFixture, ButtonAssistantStartsWhenInstalled)
{
    wizard.startButtonAssistant();
    EXPECT_EQ(dialogs.lastMessage(),
              refusal("L'assistant bouton n'est pas installé, pour le télécharger allez sur "
                      "http://www.qor.example.org/"));
    EXPECT_TRUE(desktop.started.empty());
    fs::create_directories(dir.path() / "programme");
    dir.write("programme/assistant_bouton", "#!/bin/sh\n");
    wizard.startButtonAssistant();
    EXPECT_EQ(desktop.started, (std::vector<test::FakeDesktop::Started>{
                                   {"\"" + dir.folder() + "programme/assistant_bouton\"", WindowShow::Normal}}));
}

TEST_F(WizardFixture, FunctionsAreStoredOnTheSelectedButton)
{
    goTo(2);
    addText("Film");
    addText("Sortie");
    addText("Info");
    addText("Site");
    goTo(3);
    EXPECT_EQ(form().functionLines, form().buttonLines);
    wizard.chooseFunction(1);   // nothing selected: nothing stored
    EXPECT_EQ(wizard.buttons()[0].function, "");

    wizard.selectFunctionLine(0);
    wizard.setFunctionMediaFile("ignoré.avi");
    wizard.chooseFunction(0);
    wizard.setFunctionMediaFile("film.avi");
    wizard.selectFunctionLine(1);
    wizard.chooseFunction(1);
    wizard.selectFunctionLine(2);
    dialogs.inputAnswers = {"Note", "Merci[R]bye"};
    wizard.chooseFunction(2);
    wizard.previewFunctionMessage();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Merci\r\nbye", "Note", MessageIcon::Information}));
    wizard.selectFunctionLine(3);
    dialogs.messageAnswers = {Answer::Yes};
    dialogs.inputAnswers = {"http://qor.example.org"};
    wizard.chooseFunction(3);

    const auto& b = wizard.buttons();
    EXPECT_EQ(b[0].function, "0");
    EXPECT_EQ(b[0].param1, "film.avi");
    EXPECT_EQ(b[1].function, "1");
    EXPECT_EQ(b[2].function, "2");
    EXPECT_EQ(b[2].param1, "Note");
    EXPECT_EQ(b[2].param2, "Merci\r\nbye");
    EXPECT_EQ(b[3].function, "3");
    EXPECT_EQ(b[3].param1, "http://qor.example.org");
    EXPECT_EQ(b[3].param2, "SITE");

    // Selecting a line shows its media file; an empty answer clears the choice.
    wizard.selectFunctionLine(0);
    EXPECT_EQ(form().functionMediaField, "film.avi");
    wizard.selectFunctionLine(3);
    EXPECT_EQ(form().functionMediaField, "");
    dialogs.messageAnswers = {Answer::Cancel};
    wizard.chooseFunction(3);
    EXPECT_EQ(wizard.buttons()[3].function, "");
}

TEST_F(WizardFixture, ClosingAsksUnlessFinished)
{
    goTo(2);
    addText("Un");
    dialogs.messageAnswers = {Answer::No};
    EXPECT_FALSE(wizard.requestClose());
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Quitter l'assistant ?", kCaption, MessageIcon::Question,
                                              MessageButtons::YesNo, 1}));
    EXPECT_TRUE(wizardOpen);
    EXPECT_TRUE(view.events.empty());
    dialogs.messageAnswers = {Answer::Yes};
    EXPECT_TRUE(wizard.requestClose());
    EXPECT_FALSE(wizardOpen);
    EXPECT_TRUE(wizard.buttons().empty());
    EXPECT_EQ(view.events, std::vector<std::string>{"close"});
}

TEST_F(WizardFixture, MessagesAreTitledWithTheCaptionShown)
{
    view.shownCaption = "Creation wizard";
    goTo(2);
    wizard.deleteSelectedButton();
    EXPECT_EQ(dialogs.lastMessage().title, "Creation wizard");
}

}  // namespace
}  // namespace qor
