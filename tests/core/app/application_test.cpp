#include <gtest/gtest.h>

#include "core/app/application.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "fake_file_type_registry.h"
#include "fake_project_hooks.h"
#include "fake_screen.h"
#include "fake_settings.h"
#include "fake_shell_view.h"
#include "model/project_writer.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

class NoDocumentView : public DocumentView {
public:
    int shown = 0;
    void showFileInfo(const FileInfo&, const AuthorFields&) override { ++shown; }
    void projectReplaced(const MenuProject&) override {}
};

struct ApplicationFixture : ::testing::Test {
    test::TempDir dir;
    test::FakeDialogs dialogs;
    test::FakeSettings settings;
    test::FakeDesktop desktop;
    test::FakeScreen screen{1280, 1024};
    test::FakeFileTypeRegistry fileTypes;
    MissingQmbConverter converter;
    test::FakeShellView view;
    test::FakeProjectHooks views;
    NoDocumentView documentView;
    Application app{Platform{dialogs, settings, desktop, screen, fileTypes, converter, view, views, documentView}};

    std::string projectFile(const std::string& name, const std::string& author)
    {
        MenuProject p;
        p.authorName = author;
        const std::string path = dir.file(name);
        EXPECT_TRUE(writeFileAtomically(path, projectFileBytes(p, RelativePathRule(path, ""))).ok());
        return path;
    }
};

TEST_F(ApplicationFixture, FromTheCommandLineToTheRecentFilesList)
{
    const std::string path = projectFile("départ.qor", "Au démarrage");
    ASSERT_EQ(app.shell().start({dir.file("qor"), path, {}}), StartOutcome::Running);
    EXPECT_EQ(app.project().filePath, "");
    app.shell().propertiesPanelActivated();

    EXPECT_EQ(app.project().authorName, "Au démarrage");
    EXPECT_EQ(app.project().filePath, path);
    // The recent files reach the menu through the application, not the views' hooks.
    EXPECT_EQ(view.recentFiles.back().path, path);
    EXPECT_EQ(settings.qor("FichiersRecents", "Fichier1"), path);
    EXPECT_TRUE(views.eventsStartingWith("recent").empty());

    app.shell().run(CommandId::FileProperties);
    EXPECT_EQ(documentView.shown, 1);
}

TEST_F(ApplicationFixture, ANewProjectHasTheWorksheetsFirstSizeAndKeepsIt)
{
    ASSERT_EQ(app.shell().start({dir.file("qor"), "", {}}), StartOutcome::Running);
    EXPECT_EQ(app.project().width, 12000);
    EXPECT_EQ(app.project().height, 9000);
    dialogs.messageAnswers = {Answer::No};
    app.shell().run(CommandId::NewBlank);
    EXPECT_EQ(app.project().width, 12000);
    EXPECT_EQ(app.project().height, 9000);
}

TEST_F(ApplicationFixture, OpeningAQmbFileTellsThatItsSupportIsMissing)
{
    ASSERT_EQ(app.shell().start({dir.file("qor"), "", {}}), StartOutcome::Running);
    const std::string qmb = dir.write("vieux.qmb", "QMB");
    dialogs.messageAnswers = {Answer::No};
    dialogs.openAnswers = {qmb};
    app.shell().run(CommandId::Open);
    EXPECT_EQ(dialogs.lastMessage(), qmbNotInstalledMessage());
    EXPECT_TRUE(dialogs.folderPrompts.empty());
    EXPECT_EQ(app.project().filePath, "");
}

}  // namespace
}  // namespace qor
