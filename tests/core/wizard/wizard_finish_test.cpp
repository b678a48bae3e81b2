// "&Terminer": its four checks, the menu it writes and opens, and how it
// fails without leaving the menu folder and without closing the wizard.

#include <gtest/gtest.h>

#include "core/project/document_lifecycle.h"
#include "core/wizard/wizard_finish.h"
#include "core/wizard/wizard_messages.h"
#include "project_test_env.h"
#include "wizard_fixture.h"

namespace qor {
namespace {

namespace fs = std::filesystem;
using test::kCaption;
using test::refusal;

struct FinishFixture : test::WizardFixture {
    // A menu of three text buttons (the second deleted) and one graphic
    // button, with a background picture, music and a startup message.
    void makeMenu()
    {
        fs::create_directories(dir.path() / "images");
        dialogs.openAnswers = {picture("images/fond.png", 320, 200), dir.write("images/air.mp3", "son")};
        wizard.pickBackgroundImage();
        wizard.pickMusic();
        wizard.setBorder(false);
        goTo(1);
        dialogs.inputAnswers = {"Salut", "Bienvenue[R]sur le CD"};
        wizard.chooseStartup(WizardStartup::Message);
        goTo(2);
        addText("Jouer");
        addText("Perdu");
        wizard.addButton();
        wizard.chooseButtonType(ButtonType::Text);
        wizard.setCaption("Quitter");
        dialogs.colourAnswers = {0x000000FF};
        wizard.pickTextColor();
        wizard.setTransparentBackground(true);
        wizard.validateTextButton();
        addGraphic(picture("images/n.gif", 90, 30), picture("images/s.gif", 90, 30), picture("images/c.gif", 90, 30));
        wizard.selectButtonLine(1);
        dialogs.messageAnswers = {Answer::Yes};
        wizard.deleteSelectedButton();
        goTo(3);
        wizard.selectFunctionLine(1);
        wizard.chooseFunction(1);
        goTo(4);
        fs::create_directories(dir.path() / "menus");
        dialogs.folderAnswers = {dir.folder() + "menus"};
        wizard.pickFolder();
        wizard.setMenuName("Mon CD");
        dialogs.messages.clear();
    }

    std::string menuFile(const std::string& name) { return dir.folder() + "menus/Mon CD/" + name; }
};

TEST_F(FinishFixture, ChecksInOrderAndWritesNothingWhenOneFails)
{
    fs::create_directories(dir.path() / "menus" / "Pris");
    dir.write("fichier", "x");
    struct Case { std::string folder; std::string name; std::string message; };
    const Case cases[] = {
        {"", "Menu", "Cliquez d'abord sur 'Enregistrer le menu...' !"},
        {dir.folder() + "absent", "Menu", "Répertoire invalide !"},
        {dir.folder() + "fichier", "Menu", "Répertoire invalide !"},
        {dir.folder() + "absent", "", "Répertoire invalide !"},
        {dir.folder() + "menus", "", "Vous devez donner un nom à votre menu (étape 1) !"},
        {dir.folder() + "menus", "   ", "Vous devez donner un nom à votre menu (étape 1) !"},
        {dir.folder() + "menus", "Pris", "Ce nom a déjà été utilisé dans ce répertoire ! (étape 1)"},
        {dir.folder() + "menus/", "Pris", "Ce nom a déjà été utilisé dans ce répertoire ! (étape 1)"},
        {dir.folder() + "menus", "..", "Ce nom a déjà été utilisé dans ce répertoire ! (étape 1)"},
    };
    const auto before = filesOnDisk();
    for (const auto& c : cases) {
        const auto checked = checkMenuTarget(c.folder, c.name, kCaption);
        ASSERT_TRUE(std::holds_alternative<Message>(checked)) << c.folder << " " << c.name;
        EXPECT_EQ(std::get<Message>(checked), refusal(c.message)) << c.folder << " " << c.name;
    }
    goTo(4);
    dialogs.folderAnswers = {dir.folder() + "menus"};
    wizard.pickFolder();
    wizard.setMenuName("Pris");
    wizard.finish();
    EXPECT_EQ(dialogs.lastMessage(), refusal("Ce nom a déjà été utilisé dans ce répertoire ! (étape 1)"));
    EXPECT_EQ(filesOnDisk(), before);
    EXPECT_TRUE(wizardOpen);
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(std::get<MenuTarget>(checkMenuTarget(dir.folder() + "menus", "Neuf", kCaption)),
              (MenuTarget{dir.folder() + "menus/Neuf/", dir.folder() + "menus/Neuf/Neuf.qor"}));
}

TEST_F(FinishFixture, WritesTheMenuOpensItAndCloses)
{
    makeMenu();
    wizard.finish();

    EXPECT_EQ(pictures.saved, (std::vector<std::string>{
                                  "n " + menuFile("bouton1_normal.bmp"), "s " + menuFile("bouton1_survol.bmp"),
                                  "c " + menuFile("bouton1_clique.bmp"), "n " + menuFile("bouton3_normal.bmp"),
                                  "s " + menuFile("bouton3_survol.bmp"), "c " + menuFile("bouton3_clique.bmp")}));
    std::set<std::string> inMenu;
    for (const auto& e : fs::directory_iterator(dir.path() / "menus" / "Mon CD"))
        inMenu.insert(e.path().filename().string());
    EXPECT_EQ(inMenu, (std::set<std::string>{"Mon CD.qor", "fond.png", "air.mp3", "n.gif", "s.gif", "c.gif",
                                             "bouton1_normal.bmp", "bouton1_survol.bmp", "bouton1_clique.bmp",
                                             "bouton3_normal.bmp", "bouton3_survol.bmp", "bouton3_clique.bmp"}));

    EXPECT_EQ(document.opened, std::vector<std::string>{menuFile("Mon CD.qor")});
    EXPECT_EQ(dialogs.messages, (std::vector<Message>{Message{
                                    "Votre menu a été enregistré et ouvert avec succès !\r\n\r\nAppuyez sur F5 pour "
                                    "tester ou cliquez sur Créer > Compiler > en autorun pour créer.",
                                    kCaption, MessageIcon::Information}}));
    EXPECT_EQ(view.events, (std::vector<std::string>{"hide", "close"}));
    EXPECT_FALSE(wizardOpen);
    EXPECT_TRUE(wizard.finished());
    // Closing after "&Terminer" asks nothing.
    EXPECT_TRUE(wizard.requestClose());
    EXPECT_EQ(dialogs.messages.size(), 1u);

    // Our own reader makes the menu described of it. Text pictures are 7
    // pixels a character wide and 18 high, the graphic one 30: at 12 twips
    // a pixel the buttons stack at 150, 150 + 216 + 150 and so on.
    test::ProjectEnv env;
    env.load(menuFile("Mon CD.qor"));
    EXPECT_TRUE(env.dialogs.messages.empty());
    const MenuProject& m = env.project;
    EXPECT_EQ(m.backgroundImage, "fond.png");
    EXPECT_EQ(m.width, 320.0f * 15);
    EXPECT_EQ(m.height, 200.0f * 12);
    EXPECT_FALSE(m.border);
    EXPECT_EQ(m.backgroundMusic, "air.mp3");
    EXPECT_EQ(m.startupAction, "VBS:MsgBox \"Bienvenue\"+chr(10)+chr(13)+\"sur le CD\", vbInformation, \"Salut\"");
    EXPECT_EQ(m.backgroundColor, 0x00FFFFFF);
    const auto buttons = m.savableButtons();
    ASSERT_EQ(buttons.size(), 3u);
    struct Want { const char* normal; float top; const char* kind; bool transparent; Colour key; };
    const Want want[] = {
        {"bouton1_normal.bmp", 150, "vidéo", false, 0x00FFFFFF},
        {"bouton3_normal.bmp", 516, "quitter", true, 0x00FFFFFF},
        {"n.gif", 882, "vidéo", false, 0},
    };
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(buttons[i]->normalImage, want[i].normal);
        EXPECT_EQ(buttons[i]->left, 200.0f);
        EXPECT_EQ(buttons[i]->top, want[i].top);
        EXPECT_EQ(buttons[i]->kind, want[i].kind);
        EXPECT_EQ(buttons[i]->action, "");
        EXPECT_EQ(buttons[i]->transparent, want[i].transparent);
        EXPECT_EQ(buttons[i]->transparentColor, want[i].key);
    }
    EXPECT_EQ(buttons[2]->pressedImage, "c.gif");
}

TEST_F(FinishFixture, PathErrorsReadAsAnInvalidNameAndTheWizardStaysOpen)
{
    makeMenu();
    const auto before = filesOnDisk();
    const std::string names[] = {"a/b", "a\\b", "C:", ".cache", std::string(300, 'x'), "menu \u4e2d", "CON"};
    for (const std::string& name : names) {
        wizard.setMenuName(name);
        wizard.finish();
        EXPECT_EQ(dialogs.lastMessage(), refusal("Nom du projet invalide (étape1) !")) << name;
        EXPECT_EQ(filesOnDisk(), before) << name;
    }
    EXPECT_TRUE(wizardOpen);
    EXPECT_TRUE(view.events.empty());
    EXPECT_TRUE(document.opened.empty());
}

TEST_F(FinishFixture, AVanishedPictureStopsTheWritingInsideTheMenuFolder)
{
    makeMenu();
    fs::remove(dir.path() / "images" / "s.gif");
    const auto before = filesOnDisk();
    wizard.finish();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Fichier introuvable : " + dir.folder() + "images/s.gif",
                                              "Erreur - Assistant création", MessageIcon::Critical}));
    EXPECT_TRUE(wizardOpen);
    EXPECT_TRUE(document.opened.empty());
    EXPECT_FALSE(fs::exists(menuFile("Mon CD.qor")));
    // What was written before the failure stays, all of it in the menu folder.
    for (const auto& f : filesOnDisk())
        if (!before.count(f)) {
            EXPECT_EQ(f.rfind("menus/Mon CD", 0), 0u) << f;
        }
    // The choices stay as they were, so that another name can be tried.
    EXPECT_EQ(wizard.buttons()[3].normalImage, dir.folder() + "images/n.gif");
    picture("images/s.gif", 90, 30);
    wizard.setMenuName("Mon CD 2");
    wizard.finish();
    EXPECT_EQ(document.opened, std::vector<std::string>{dir.folder() + "menus/Mon CD 2/Mon CD 2.qor"});
}

TEST_F(FinishFixture, APictureThatIsNoPictureAnymoreIsReported)
{
    makeMenu();
    dir.write("images/fond.png", "abîmé");
    wizard.finish();
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Image incorrecte", "Erreur - Assistant création", MessageIcon::Critical}));
    EXPECT_TRUE(wizardOpen);
}

TEST(WizardFinishFailure, PathErrorsReadAsAnInvalidNameOthersAsTheirDescription)
{
    struct Case { Error error; Message shown; };
    const Case cases[] = {
        {makeError(err::PathNotFound), refusal("Nom du projet invalide (étape1) !")},
        {makeError(err::PathFileAccess), refusal("Nom du projet invalide (étape1) !")},
        // A folder that may not be written to.
        {makeError(err::PermissionDenied), refusal("Nom du projet invalide (étape1) !")},
        {makeError(err::DiskFull), {"Disque plein", "Erreur - Assistant création", MessageIcon::Critical}},
        {makeError(err::InvalidPicture), {"Image incorrecte", "Erreur - Assistant création", MessageIcon::Critical}},
        {makeError(err::OutOfMemory), {"Mémoire insuffisante", "Erreur - Assistant création", MessageIcon::Critical}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(wizard_message::finishFailed(c.error, kCaption), c.shown) << c.error.number;
}

TEST_F(FinishFixture, TwoGraphicButtonsSharingAFileNameShareTheLaterPicture)
{
    fs::create_directories(dir.path() / "a");
    fs::create_directories(dir.path() / "b");
    goTo(2);
    addGraphic(picture("a/b.gif", 10, 20), picture("a/s.gif", 10, 20), picture("a/c.gif", 10, 20));
    addGraphic(picture("b/b.gif", 30, 40), picture("b/s.gif", 30, 40), picture("b/c.gif", 30, 40));
    goTo(4);
    dialogs.folderAnswers = {dir.folder()};
    wizard.pickFolder();
    wizard.setMenuName("Duo");
    wizard.finish();
    EXPECT_EQ(document.opened.size(), 1u);
    EXPECT_EQ(dir.read("Duo/b.gif"), test::FakeButtonPictures::pictureBytes(30, 40));
    test::ProjectEnv env;
    env.load(dir.file("Duo/Duo.qor"));
    EXPECT_EQ(env.project.button(1).normalImage, "b.gif");
    EXPECT_EQ(env.project.button(2).normalImage, "b.gif");
}

TEST_F(FinishFixture, TheOpenedProjectGoesThroughTheDocumentLifecycle)
{
    // The real lifecycle over the written file: the project the editor
    // shows is the one the wizard described.
    struct NoView : DocumentView {
        void showFileInfo(const FileInfo&, const AuthorFields&) override {}
        void projectReplaced(const MenuProject&) override {}
    } noView;
    test::ProjectEnv env;
    DocumentLifecycle lifecycle(env.project, env.services, desktop, noView);
    bool open = false;
    CreationWizard real(open, {dialogs, desktop, pictures, lifecycle}, view,
                        {dir.folder(), dir.folder(), ScreenMetrics{0, 0, 15, 15}});
    real.open();
    real.addButton();
    real.chooseButtonType(ButtonType::Text);
    real.setCaption("Seul");
    real.validateTextButton();
    real.setMenuName("Solo");
    for (int i = 0; i < 4; ++i)
        real.next();
    real.finish();
    EXPECT_EQ(env.project.filePath, dir.folder() + "Solo/Solo.qor");
    ASSERT_EQ(env.project.savableButtons().size(), 1u);
    EXPECT_EQ(env.project.button(1).normalImage, "bouton1_normal.bmp");
    EXPECT_EQ(env.hooks.eventsStartingWith("folder"), std::vector<std::string>{"folder " + dir.folder() + "Solo/"});
    EXPECT_FALSE(open);
}

}  // namespace
}  // namespace qor
