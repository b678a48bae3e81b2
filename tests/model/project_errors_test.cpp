#include <gtest/gtest.h>

#include <filesystem>

#include "model/project_reader.h"
#include "project_test_env.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

using test::joined;
using test::projectData;
using test::projectDataLines;

constexpr std::size_t kMaxPastEnd = ProjectReader::kMaxReadsPastEnd;

// The number shown by a read-error question.
int errorNumberOf(const Message& m)
{
    auto at = m.text.find("Numéro d'erreur : ");
    return at == std::string::npos ? -1 : std::atoi(m.text.c_str() + at + std::string("Numéro d'erreur : ").size());
}

TEST(ProjectReadErrors, TheQuestionHasItsSixLines)
{
    Message m = readErrorMessage(makeError(62), "[FormeMenu]", "X=30");
    EXPECT_EQ(m.text, "Erreur : Lecture au-delà de la fin du fichier\r\nNuméro d'erreur : 62\r\n"
                      "Paragraphe : [FormeMenu]\r\nLigne suivante : X=30\r\n\r\nContinuer le chargement ?");
    EXPECT_EQ(m.title, "Erreur d'ouverture !");
    EXPECT_EQ(m.icon, MessageIcon::Critical);
    EXPECT_EQ(m.buttons, MessageButtons::YesNo);
}

TEST(ProjectReadErrors, AFileThatCannotBeReadIsNeverAdopted)
{
    test::TempDir dir;
    std::filesystem::create_directory(dir.path() / "dossier.qor");
    struct Case { std::string path; int number; const char* text; };
    const Case cases[] = {
        {dir.file("absent.qor"), 53, "Erreur : Fichier introuvable"},
        {dir.file("absent/menu.qor"), 76, "Erreur : Chemin d'accès introuvable"},
        {dir.file("dossier.qor"), 75, "Erreur : Erreur d'accès au chemin ou au fichier"},
    };
    for (const auto& c : cases)
        for (Answer answer : {Answer::Yes, Answer::No}) {
            test::ProjectEnv env;
            env.project.filePath = "/avant.qor";
            env.answer({answer});
            env.load(c.path);
            ASSERT_EQ(env.dialogs.messages.size(), 1u) << c.path;
            EXPECT_EQ(errorNumberOf(env.dialogs.messages[0]), c.number) << c.path;
            EXPECT_EQ(env.dialogs.messages[0].text.rfind(c.text, 0), 0u) << env.dialogs.messages[0].text;
            EXPECT_EQ(env.project.filePath, "") << c.path;
            EXPECT_TRUE(env.hooks.eventsStartingWith("recent").empty()) << c.path;
            EXPECT_EQ(env.hooks.eventsStartingWith("resetViews").size(), answer == Answer::No ? 2u : 1u);
        }
}

TEST(ProjectReadErrors, AFileCutInsideTheShapeAsksAtEachFailedReadUntilNo)
{
    test::ProjectEnv env;
    env.answer({Answer::Yes, Answer::Yes, Answer::No});
    env.load(projectData("cut_in_shape.qor"));
    ASSERT_EQ(env.dialogs.messages.size(), 3u);
    for (const auto& m : env.dialogs.messages)
        EXPECT_EQ(m, readErrorMessage(makeError(62), "[FormeMenu]", "X=30"));
    EXPECT_TRUE(env.project.shapePoints.empty());
    EXPECT_EQ(env.project.filePath, "");
    const auto& events = env.hooks.events;
    ASSERT_GE(events.size(), 2u);
    EXPECT_EQ(events[events.size() - 2], "loading off");
    EXPECT_EQ(events.back(), "resetViews");
}

TEST(ProjectReadErrors, AnsweringYesForeverStillEndsTheLoad)
{
    test::ProjectEnv env;
    env.dialogs.messageAnswers.assign(10 * kMaxPastEnd, Answer::Yes);
    env.load(projectData("cut_in_shape.qor"));
    EXPECT_EQ(env.dialogs.messages.size(), kMaxPastEnd);
    EXPECT_EQ(env.project.shapePoints, (ShapePoints{{10, 20}, {30, 0}}));
    EXPECT_EQ(env.project.filePath, projectData("cut_in_shape.qor"));

    // A text block cut after its header asks once for each of its 18 lines.
    auto lines = projectDataLines("full_v11.qor");
    lines.resize(std::size_t(std::find(lines.rbegin(), lines.rend(), "[Texte]").base() - lines.begin()));
    test::ProjectEnv cut;
    cut.dialogs.messageAnswers.assign(50, Answer::Yes);
    cut.read(joined(lines));
    EXPECT_EQ(cut.dialogs.messages.size(), 18u);
    EXPECT_EQ(cut.hooks.eventsStartingWith("text 2").size(), 1u);
    EXPECT_EQ(cut.project.filePath, "/p/menu.qor");
}

TEST(ProjectReadErrors, TheButtonBeyondTheTableIsDroppedOnYes)
{
    std::string text = "[Format]\r\nEditeur=QOR\r\nVersion=2.0.1\r\nFichier=1.1\r\n";
    // The last line of the dropped block looks like a header: it must be dropped with its block.
    for (int i = 1; i <= 101; ++i)
        text += "[Bouton]\r\n " + std::to_string(i) + " \r\n 0 \r\nn.gif\r\nh.gif\r\np.gif\r\nquitter\r\n\r\n\r\n 0 \r\n 0 \r\n" +
                (i == 101 ? "[Auteur]" : "'para4") + "\r\n";
    text += "[Texte]\r\nAprès les boutons\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\nArial\r\n 9 \r\n 0 \r\n 0 \r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n10\r\n"
            "para1\r\npara2\r\npara3\r\npara4\r\n";
    for (Answer answer : {Answer::Yes, Answer::No}) {
        test::ProjectEnv env;
        env.answer({answer});
        env.read(text);
        ASSERT_EQ(env.dialogs.messages.size(), 1u);
        EXPECT_EQ(env.dialogs.messages[0], readErrorMessage(makeError(9), "[Bouton]", "'para4"));
        if (answer == Answer::Yes) {
            EXPECT_EQ(env.project.savableButtons().size(), 100u);
            EXPECT_EQ(env.project.button(100).left, 100);
            ASSERT_EQ(env.project.textCount(), 1);
            EXPECT_EQ(env.project.text(1).content, "Après les boutons");
        } else {
            EXPECT_TRUE(env.project.savableButtons().empty());
            EXPECT_EQ(env.project.filePath, "");
        }
    }
}

TEST(ProjectReadErrors, AValueThatCannotBeConvertedKeepsTheFieldOnYes)
{
    struct Case { const char* header; int row; const char* line; int number; std::function<bool(const MenuProject&)> kept; };
    const Case cases[] = {
        {"[Général]", 3, "1e39", 6, [](const MenuProject& p) { return p.width == 9600; }},
        {"[Général]", 5, "1e400", 6, [](const MenuProject& p) { return p.border; }},
        {"[ParamsPlus]", 3, "4294967296", 6, [](const MenuProject& p) { return p.backgroundColor == 0xFFFFFF; }},
        {"[Bouton]", 11, "1e20", 6, [](const MenuProject& p) { return p.button(1).transparentColor == 0; }},
        {"[Texte]", 3, "abc", 13, [](const MenuProject& p) { return p.text(1).backColor == 0xFFFFFF; }},
        {"[Texte]", 4, "", 13, [](const MenuProject& p) { return p.text(1).foreColor == 0; }},
        {"[Texte]", 8, "1e40", 6, [](const MenuProject& p) { return p.text(1).fontSize == 8.25f; }},
    };
    for (const auto& c : cases) {
        test::ProjectEnv env;
        env.project.width = 9600;
        env.answer({Answer::Yes});
        env.read(joined(test::withRow(projectDataLines("full_v11.qor"), c.header, c.row, c.line)));
        ASSERT_EQ(env.dialogs.messages.size(), 1u) << c.header << c.row;
        EXPECT_EQ(errorNumberOf(env.dialogs.messages[0]), c.number) << c.header << c.row;
        EXPECT_NE(env.dialogs.messages[0].text.find("Ligne suivante : " + std::string(c.line) + "\r\n"),
                  std::string::npos);
        EXPECT_TRUE(c.kept(env.project)) << c.header << c.row;
        EXPECT_EQ(env.project.shapePoints.size(), 4u) << "reading went on to the end";
    }
}

TEST(ProjectReadErrors, APictureThatCannotBeLoadedAsksAndYesKeepsTheElement)
{
    const std::string path = projectData("full_v11.qor");
    const std::string folder = folderOf(path);
    test::ProjectEnv env;
    env.hooks.failingImages[folder + "b1_normal.gif"] = makeError(481);
    env.hooks.failingImages[folder + "fond.jpg"] = makeError(481);
    env.answer({Answer::Yes, Answer::Yes});
    env.load(path);
    ASSERT_EQ(env.dialogs.messages.size(), 2u);
    EXPECT_EQ(env.dialogs.messages[0], readErrorMessage(makeError(481), "[Général]", "fond.jpg"));
    EXPECT_EQ(env.dialogs.messages[1], readErrorMessage(makeError(481), "[Bouton]", "MsgBox \"Bouton 1\"¤' fin"));
    EXPECT_EQ(env.project.backgroundImage, "fond.jpg");
    EXPECT_EQ(env.hooks.eventsStartingWith("button 1").size(), 1u);
    EXPECT_EQ(env.project.button(1).hoverScript, "Survol 1");
    EXPECT_EQ(env.project.filePath, path);

    test::ProjectEnv no;
    no.hooks.failingImages[folder + "fond.jpg"] = makeError(481);
    no.answer({Answer::No});
    no.load(path);
    EXPECT_EQ(no.project.filePath, "");
    EXPECT_EQ(no.project.backgroundImage, "");
    EXPECT_TRUE(no.hooks.eventsStartingWith("button").empty());
}

TEST(ProjectSave, AFailedSaveShowsTheMessageEmptiesFilePathAndLeavesWhatWasThere)
{
    test::TempDir dir;
    dir.write("occupe.qor/dedans.txt", "garde");
    struct Case { std::string path; const char* text; };
    const Case cases[] = {
        {dir.file("absent/menu.qor"), "Erreur pendant l'enregistrement ! (Chemin d'accès introuvable)"},
        {dir.file("occupe.qor"), "Erreur pendant l'enregistrement ! (Erreur d'accès au chemin ou au fichier)"},
    };
    for (const auto& c : cases) {
        test::ProjectEnv env;
        env.project.filePath = "/avant.qor";
        env.save(c.path);
        EXPECT_EQ(env.dialogs.messages,
                  (std::vector<Message>{{c.text, "Erreur !", MessageIcon::Critical, MessageButtons::Ok}}));
        EXPECT_EQ(env.project.filePath, "");
        EXPECT_TRUE(env.hooks.events.empty());
    }
    EXPECT_EQ(dir.read("occupe.qor/dedans.txt"), "garde");
    int entries = 0;
    for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(dir.path()))
        ++entries;
    EXPECT_EQ(entries, 1) << "no temporary file is left behind";

    test::ProjectEnv english;
    std::vector<std::string> phrases(30, "?");
    phrases[7] = "Error!";
    phrases[19] = "Error while saving!";
    english.phrases.useLanguage(phrases);
    english.save(dir.file("absent/menu.qor"));
    EXPECT_EQ(english.dialogs.lastMessage().text, "Error while saving! (Chemin d'accès introuvable)");
    EXPECT_EQ(english.dialogs.lastMessage().title, "Error!");
}

TEST(ProjectSave, SavingUnderItsOwnPathDoesNotReadItBack)
{
    test::TempDir dir;
    test::ProjectEnv env;
    env.project.filePath = dir.file("menu.qor");
    env.project.authorName = "Moi";
    env.save(dir.file("menu.qor"));
    EXPECT_EQ(env.hooks.events, (std::vector<std::string>{"recent " + dir.file("menu.qor")}));
    EXPECT_NE(dir.read("menu.qor").find("\r\n[Auteur]\r\nMoi\r\n"), std::string::npos);
}

TEST(ProjectSave, SavingACopyElsewhereStoresFullPathsAndReadsTheCopyBack)
{
    const std::string original = projectData("full_v11.qor");
    test::TempDir dir;
    const std::string copy = dir.file("copie.qor");
    test::ProjectEnv env;
    env.load(original);
    env.hooks.events.clear();
    env.save(copy);
    EXPECT_TRUE(env.dialogs.messages.empty());
    EXPECT_EQ(env.project.filePath, copy);
    EXPECT_EQ(env.project.backgroundImage, folderOf(original) + "fond.jpg");
    EXPECT_EQ(env.project.button(1).normalImage, folderOf(original) + "b1_normal.gif");
    EXPECT_EQ(env.project.backgroundMusic, "C:\\musique\\intro.mp3");
    EXPECT_EQ(env.hooks.events.front(), "resetViews");
    EXPECT_EQ(env.hooks.eventsStartingWith("recent " + copy).size(), 2u);
}

TEST(ProjectLoad, QmbFilesGoToTheImportAndProjectFilesNamedQmbDoNotWhenSaved)
{
    test::ProjectEnv env;
    env.project.filePath = "/avant.qor";
    env.load("/x/demo.QMB");
    EXPECT_EQ(env.hooks.events, (std::vector<std::string>{"qmb /x/demo.QMB"}));
    EXPECT_EQ(env.project.filePath, "/avant.qor");

    test::TempDir dir;
    test::ProjectEnv saved;
    saved.load(projectData("full_v11.qor"));
    saved.save(dir.file("menu.qmb"));
    EXPECT_TRUE(saved.hooks.eventsStartingWith("qmb").empty());
    EXPECT_EQ(saved.project.filePath, dir.file("menu.qmb"));
    EXPECT_EQ(saved.project.savableButtons().size(), 3u);
}

}  // namespace
}  // namespace qor
