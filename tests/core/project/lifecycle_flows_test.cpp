#include <gtest/gtest.h>

#include <filesystem>

#include "core/project/document_lifecycle.h"
#include "fake_desktop.h"
#include "model/project_writer.h"
#include "project_test_env.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

class FakeDocumentView : public DocumentView {
public:
    std::vector<std::pair<FileInfo, AuthorFields>> shown;
    std::vector<std::string> replaced;   // the filePath of each project shown anew
    void showFileInfo(const FileInfo& info, const AuthorFields& fields) override { shown.push_back({info, fields}); }
    void projectReplaced(const MenuProject& p) override { replaced.push_back(p.filePath); }
};

struct LifecycleFixture : ::testing::Test {
    test::TempDir dir;
    test::ProjectEnv env;
    test::FakeDesktop desktop;
    FakeDocumentView view;
    DocumentLifecycle doc{env.project, env.services, desktop, view};

    // A project file on disk whose author is name.
    std::string projectFile(const std::string& file, const std::string& name)
    {
        MenuProject p;
        p.authorName = name;
        const std::string path = dir.file(file);
        EXPECT_TRUE(writeFileAtomically(path, projectFileBytes(p, RelativePathRule(path, ""))).ok());
        return path;
    }

    // The project as loaded from a file, with the events of that load forgotten.
    void loaded(const std::string& path)
    {
        env.load(path);
        env.hooks.events.clear();
        env.dialogs.messages.clear();
    }
};

TEST_F(LifecycleFixture, StartUpSizeIsTheProjectsAndTheViewsShowIt)
{
    env.project.backgroundColor = 0x123456;
    doc.reset();
    view.replaced.clear();
    doc.setWindowSize(12000, 9000);
    EXPECT_EQ(env.project.width, 12000.0f);
    EXPECT_EQ(env.project.height, 9000.0f);
    EXPECT_EQ(env.project.backgroundColor, 0x00FFFFFF);
    EXPECT_EQ(view.replaced, std::vector<std::string>{""});
}

TEST_F(LifecycleFixture, SaveQuestionAnswerByAnswer)
{
    struct Case { const char* filePath; Answer answer; bool modal; SaveAnswer result; const char* text; };
    const Case cases[] = {
        {"", Answer::No, false, SaveAnswer::NotSaved, "Voulez-vous enregistrer le fichier en cours ?"},
        {"", Answer::Cancel, true, SaveAnswer::Cancelled, "Voulez-vous enregistrer le fichier en cours ?"},
        {"/p/mon menu.qor", Answer::No, true, SaveAnswer::NotSaved,
         "Voulez-vous enregistrer les modifications apportées au fichier 'mon menu.qor' ?"},
        {"C:\\menus\\cd.qor", Answer::Cancel, false, SaveAnswer::Cancelled,
         "Voulez-vous enregistrer les modifications apportées au fichier 'cd.qor' ?"},
    };
    for (const auto& c : cases) {
        env.project.filePath = c.filePath;
        env.dialogs.messageAnswers = {c.answer};
        EXPECT_EQ(doc.askToSave(c.modal), c.result);
        Message expected{c.text, "Enregistrement", MessageIcon::Question, MessageButtons::YesNoCancel, 0, c.modal};
        EXPECT_EQ(env.dialogs.lastMessage(), expected);
    }
    std::vector<std::string> list(28, "?");
    list[25] = "Save the current file?";
    list[26] = "Save the changes to ";
    list[27] = "Saving";
    env.phrases.useLanguage(list);
    EXPECT_EQ(saveQuestion("/p/a.qor", env.phrases, false).text, "Save the changes to 'a.qor' ?");
    EXPECT_EQ(saveQuestion("", env.phrases, false).title, "Saving");
}

TEST_F(LifecycleFixture, YesThenACancelledSaveAsStillDropsTheProject)
{
    env.project.authorName = "perdu";
    env.dialogs.messageAnswers = {Answer::Yes};
    env.dialogs.saveAnswers = {std::nullopt};
    doc.newBlank();
    EXPECT_EQ(env.dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(env.project.authorName, "");
    EXPECT_EQ(env.hooks.events, (std::vector<std::string>{"resetViews"}));
    EXPECT_EQ(view.replaced, (std::vector<std::string>{""}));

    // Cancel keeps it.
    env.project.authorName = "gardé";
    env.dialogs.messageAnswers = {Answer::Cancel};
    doc.newBlank();
    EXPECT_EQ(env.project.authorName, "gardé");
    env.dialogs.messageAnswers = {Answer::Cancel};
    EXPECT_FALSE(doc.newThroughWizard());
    env.dialogs.messageAnswers = {Answer::No};
    EXPECT_TRUE(doc.newThroughWizard());
    EXPECT_EQ(env.project.authorName, "");
}

TEST_F(LifecycleFixture, OpenShowsItsDialogAndLoadsExistingFilesOnly)
{
    const std::string path = projectFile("menu.qor", "Ouvert");
    struct Case { std::optional<std::string> chosen; const char* author; };
    const Case cases[] = {
        {std::nullopt, "avant"},
        {"", "avant"},
        {dir.file("absent.qor"), "avant"},
        {path, "Ouvert"},
    };
    for (const auto& c : cases) {
        env.project.authorName = "avant";
        env.dialogs.messageAnswers = {Answer::No};
        env.dialogs.openAnswers = {c.chosen};
        doc.open();
        EXPECT_EQ(env.project.authorName, c.author);
    }
    EXPECT_EQ(env.project.filePath, path);
    EXPECT_EQ(view.replaced, (std::vector<std::string>{path}));
    EXPECT_EQ(env.hooks.eventsStartingWith("recent"), (std::vector<std::string>{"recent " + path}));
    EXPECT_EQ(env.dialogs.openRequests.back(),
              (FileDialogRequest{"&Ouvrir", "Fichier QOR v1.0/v1.1 (*.qor)|*.qor|Fichier QMB ou compatible (*.qmb)|*.qmb",
                                 "", ""}));

    // A ".qmb" goes to the QMB import; Cancel to the question shows no dialog.
    const std::string qmb = dir.write("ancien.QMB", "qmb");
    env.dialogs.messageAnswers = {Answer::No};
    env.dialogs.openAnswers = {qmb};
    doc.open();
    EXPECT_EQ(env.hooks.eventsStartingWith("qmb"), (std::vector<std::string>{"qmb " + qmb}));
    env.dialogs.messageAnswers = {Answer::Cancel};
    doc.open();
    EXPECT_EQ(env.dialogs.openRequests.size(), 5u);

    std::vector<std::string> list(15, "?");
    list[14] = "QOR file";
    env.phrases.useLanguage(list);
    EXPECT_EQ(openDialogRequest(env.phrases).filter, "QOR file v1.0/v1.1 (*.qor) | *.qor;*.qmb");
    EXPECT_EQ(saveAsDialogRequest(env.phrases).filter, "QOR file v1.1 (*.qor) | *.qor");
}

TEST_F(LifecycleFixture, SaveAsTakesTheNameAsTypedAndReplacesWithoutAsking)
{
    env.project.authorName = "Moi";
    const std::string bare = dir.file("sans extension");
    dir.write("sans extension", "ancien contenu");
    env.dialogs.saveAnswers = {bare};
    doc.save();  // never saved: save as
    EXPECT_EQ(env.dialogs.saveRequests.back(),
              (FileDialogRequest{"Enregistrer &Sous", "Fichier QOR v1.1 (*.qor) | *.qor", "", ""}));
    EXPECT_EQ(env.project.filePath, bare);
    EXPECT_NE(dir.read("sans extension").find("Moi"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(bare + ".qor"));
    EXPECT_TRUE(env.dialogs.messages.empty());

    // Saved once, Save writes in place without a dialog and without reloading.
    env.project.authorName = "Encore moi";
    doc.save();
    EXPECT_EQ(env.dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(view.replaced, (std::vector<std::string>{bare}));
    EXPECT_NE(dir.read("sans extension").find("Encore moi"), std::string::npos);
}

TEST_F(LifecycleFixture, SavingWhereNothingCanBeWrittenIsReported)
{
    // A missing folder, and a folder standing where the file should be.
    for (const std::string& target : {dir.file("absent/menu.qor"), dir.folder()}) {
        env.dialogs.messages.clear();
        env.dialogs.saveAnswers = {target};
        doc.saveAs();
        ASSERT_EQ(env.dialogs.messages.size(), 1u) << target;
        EXPECT_EQ(env.dialogs.lastMessage().title, "Erreur !");
        EXPECT_EQ(env.dialogs.lastMessage().text.rfind("Erreur pendant l'enregistrement ! (", 0), 0u);
        EXPECT_EQ(env.project.filePath, "");
    }
}

TEST_F(LifecycleFixture, ReloadAndEditSourceNeedASavedProject)
{
    for (auto command : {&DocumentLifecycle::reload, &DocumentLifecycle::editSource}) {
        env.dialogs.messages.clear();
        (doc.*command)();
        EXPECT_EQ(env.dialogs.messages, (std::vector<Message>{Message{"Le projet en cours n'est pas enregistré !",
                                                                      "", MessageIcon::Exclamation}}));
    }
    EXPECT_TRUE(desktop.edited.empty());
}

TEST_F(LifecycleFixture, ReloadReadsTheEditedFileOrWritesOverItOnYes)
{
    const std::string path = projectFile("menu.qor", "Original");
    struct Case { Answer answer; const char* inMemory; const char* afterwards; };
    const Case cases[] = {
        {Answer::No, "En mémoire", "Modifié à la main"},
        {Answer::Yes, "En mémoire", "En mémoire"},
        {Answer::Cancel, "En mémoire", "En mémoire"},
    };
    for (const auto& c : cases) {
        loaded(path);
        env.project.authorName = c.inMemory;
        projectFile("menu.qor", "Modifié à la main");
        env.dialogs.messageAnswers = {c.answer};
        doc.reload();
        EXPECT_EQ(env.project.authorName, c.afterwards);
        EXPECT_EQ(env.project.filePath, path);
    }
}

TEST_F(LifecycleFixture, EditSourceExplainsThenOpensATextEditor)
{
    const std::string path = projectFile("menu.qor", "Source");
    loaded(path);
    env.dialogs.messageAnswers = {Answer::No};
    doc.editSource();
    EXPECT_EQ(env.dialogs.lastMessage(),
              (Message{"La source du projet en cours va s'afficher, après l'avoir modifiée, cliquez sur Source > Actualiser.",
                       "", MessageIcon::Information}));
    EXPECT_EQ(desktop.edited, (std::vector<std::string>{path}));

    desktop.editSucceeds = false;
    env.dialogs.messageAnswers = {Answer::No};
    doc.editSource();
    EXPECT_EQ(env.dialogs.lastMessage(), textEditorFailedMessage());

    env.dialogs.messageAnswers = {Answer::Cancel};
    doc.editSource();
    EXPECT_EQ(desktop.edited.size(), 2u);
}

TEST_F(LifecycleFixture, OpenRecentReportsAVanishedFileAndKeepsTheProject)
{
    const std::string gone = dir.file("parti.qor");
    env.project.authorName = "intact";
    doc.openRecent(gone);
    EXPECT_EQ(env.dialogs.messages, (std::vector<Message>{Message{"Le fichier '" + gone + "' est introuvable !",
                                                                  "Erreur de chargement", MessageIcon::Critical}}));
    EXPECT_EQ(env.project.authorName, "intact");

    const std::string path = projectFile("là.qor", "Récent");
    env.dialogs.messageAnswers = {Answer::No};
    doc.openRecent(path);
    EXPECT_EQ(env.project.authorName, "Récent");

    std::vector<std::string> list(30, "?");
    list[28] = "Missing file ";
    list[29] = "Loading error";
    env.phrases.useLanguage(list);
    EXPECT_EQ(recentFileMissingMessage("/x.qor", env.phrases),
              (Message{"Missing file '/x.qor'", "Loading error", MessageIcon::Critical}));
}

TEST_F(LifecycleFixture, AnUnreadableProjectLeavesAnEmptyUsableProject)
{
    const std::string broken = dir.write("cassé.qor", "[Bouton]\r\n 10 \r\n");
    env.project.authorName = "avant";
    env.dialogs.messageAnswers = {Answer::No, Answer::No};  // the save question, then "Continuer le chargement ?"
    env.dialogs.openAnswers = {broken};
    doc.open();
    EXPECT_EQ(env.dialogs.lastMessage().title, "Erreur d'ouverture !");
    EXPECT_EQ(env.project.filePath, "");
    EXPECT_EQ(env.project.authorName, "");
}

TEST_F(LifecycleFixture, ResetQuitCleanupDropsAndFileInformation)
{
    env.project.width = 4000;
    env.project.fullScreen = true;
    env.project.button(3).kind = "code";
    std::vector<std::string> list(25, "?");
    list[24] = "Default icon";
    env.phrases.useLanguage(list);
    doc.reset();
    EXPECT_EQ(env.project.width, 4000);
    EXPECT_FALSE(env.project.fullScreen);
    EXPECT_EQ(env.project.icon, "(Default icon)");
    EXPECT_EQ(env.project.button(3).kind, "");
    env.phrases.useFrench();

    env.project.filePath = "/p/a.qor";
    env.project.authorEmail = "a@b";
    env.project.button(100).action = "MsgBox 1";
    env.project.button(7).hoverImage = "s.gif";
    env.project.button(7).left = 90;
    doc.clearForQuit();
    EXPECT_EQ(env.project.filePath, "");
    EXPECT_EQ(env.project.authorEmail, "");
    EXPECT_EQ(env.project.button(100).action, "");
    EXPECT_EQ(env.project.button(7).hoverImage, "");
    EXPECT_EQ(env.project.button(7).left, 90);

    const std::string a = projectFile("a.qor", "A"), b = projectFile("b.qor", "B");
    env.dialogs.messageAnswers = {Answer::No};
    doc.openDropped({a, b});
    EXPECT_EQ(env.project.authorName, "B");

    doc.showFileInfo();
    ASSERT_EQ(view.shown.size(), 1u);
    EXPECT_EQ(view.shown[0].first.editor, "QOR");
    EXPECT_EQ(view.shown[0].second.name, "B");
}

}  // namespace
}  // namespace qor
