#include <gtest/gtest.h>

#include <deque>
#include <filesystem>

#include "core/app/association.h"
#include "core/app/options_file.h"
#include "core/app/screen_check.h"
#include "core/app/shell.h"
#include "core/ui/appearances_file.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "fake_file_type_registry.h"
#include "fake_screen.h"
#include "fake_settings.h"
#include "fake_shell_view.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

// Records the project commands the shell hands over.
class FakeDocument : public Document {
public:
    std::vector<std::string> calls;
    std::deque<SaveAnswer> answers;
    bool wizardAfterNew = true;

    SaveAnswer askToSave(bool systemModal) override
    {
        calls.push_back(systemModal ? "ask modal" : "ask");
        SaveAnswer a = answers.empty() ? SaveAnswer::NotSaved : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return a;
    }
    void newBlank() override { calls.push_back("newBlank"); }
    bool newThroughWizard() override { calls.push_back("newThroughWizard"); return wizardAfterNew; }
    void open() override { calls.push_back("open"); }
    void save() override { calls.push_back("save"); }
    void saveAs() override { calls.push_back("saveAs"); }
    void reload() override { calls.push_back("reload"); }
    void editSource() override { calls.push_back("editSource"); }
    void openRecent(const std::string& p) override { calls.push_back("openRecent " + p); }
    void showFileInfo() override { calls.push_back("showFileInfo"); }
    void openPath(const std::string& p) override { calls.push_back("openPath " + p); }
    void clearForQuit() override { calls.push_back("clearForQuit"); }
    // Kept apart from the commands: every start sets it.
    TwipsSize windowSize;
    void setWindowSize(double w, double h) override { windowSize = {w, h}; }
};

struct ShellFixture : ::testing::Test {
    test::TempDir dir;
    test::FakeDialogs dialogs;
    test::FakeSettings settings;
    test::FakeDesktop desktop;
    test::FakeScreen screen{1024, 768};
    test::FakeFileTypeRegistry fileTypes;
    test::FakeShellView view;
    FakeDocument document;
    // What a run of the editor holds; a new start gets fresh ones.
    struct Run {
        AppState state;
        UserSettings userSettings;
        RecentFiles recent;
        Shell shell;
        Run(ShellFixture& f)
            : userSettings(state, f.settings, f.dialogs),
              recent(userSettings, f.view),
              shell(state, AppPorts{f.dialogs, f.settings, f.desktop, f.screen, f.fileTypes}, f.view,
                    userSettings, recent, f.document)
        {
        }
    };
    std::unique_ptr<Run> run = std::make_unique<Run>(*this);
    Shell* shell = &run->shell;

    void restart()
    {
        run = std::make_unique<Run>(*this);
        shell = &run->shell;
    }

    StartOutcome start(const std::string& arguments = "")
    {
        return shell->start({dir.file("qor"), arguments, {"10:00:00", "23/11/2026"}});
    }
};

TEST_F(ShellFixture, FirstStartLoadsArrangesWritesTheSettingsFilesAndShows)
{
    ASSERT_EQ(start(), StartOutcome::Running);

    EXPECT_EQ(view.log, (std::vector<std::string>{
                            "show Splash", "load Toolbox", "load Main", "load Worksheet", "load Properties",
                            "load ScriptEditor", "load MousePosition", "arrange", "show Main", "show Toolbox",
                            "show Worksheet", "show Properties", "show MousePosition", "hide Splash"}));
    EXPECT_EQ(shell->state().programFolder, dir.folder());
    EXPECT_TRUE(shell->state().starting);
    EXPECT_FALSE(view.mainCaption.empty());  // the main window ran its load step

    // Arranged with the sizes the windows report, around a 1024 x 768 screen.
    ASSERT_EQ(view.arrangements.size(), 1u);
    WindowSizes sizes{view.sizes[WindowId::Toolbox], view.sizes[WindowId::Main],
                      view.sizes[WindowId::PropertiesPanel], view.sizes[WindowId::MousePosition]};
    EXPECT_EQ(view.arrangements[0], arrangeWindows(sizes, screen.value, {12000, 9000}));

    // First run: association, options with their defaults, default appearances.
    EXPECT_EQ(fileTypes.registrations.size(), 1u);
    EXPECT_EQ(settings.qor(".qor", "Default"), "QOR");
    EXPECT_EQ(dir.read(kOptionsFileName),
              "non\r\noui\r\noui\r\n-2147483633 \r\n-2147483643 \r\n-2147483630 \r\nMS Sans Serif\r\nnon\r\noui\r\n");
    EXPECT_EQ(readAppearancesFile(dir.path() / kAppearancesFileName).records, defaultAppearanceRecords());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ShellFixture, ScreenWidthDecidesTheMenuSizeOr640Refuses)
{
    struct Case { double widthPixels; StartOutcome outcome; TwipsSize size; };
    const Case cases[] = {
        {640, StartOutcome::Quit, {}},
        {800, StartOutcome::Running, {9600, 7200}},
        {720, StartOutcome::Running, {12000, 9000}},
        {1024, StartOutcome::Running, {12000, 9000}},
    };
    for (const auto& c : cases) {
        test::FakeShellView v;
        test::FakeDialogs d;
        test::FakeScreen s{c.widthPixels, 600};
        AppState st;
        UserSettings us(st, settings, d);
        RecentFiles rf(us, v);
        Shell sh(st, AppPorts{d, settings, desktop, s, fileTypes}, v, us, rf, document);
        EXPECT_EQ(sh.start({dir.file("qor"), "", {}}), c.outcome) << c.widthPixels;
        if (c.outcome == StartOutcome::Quit) {
            EXPECT_EQ(d.messages, (std::vector<Message>{screenTooSmallMessage()}));
            EXPECT_TRUE(v.loaded.empty());
            EXPECT_FALSE(v.splashShown);
        } else {
            ASSERT_EQ(v.arrangements.size(), 1u);
            EXPECT_EQ(v.arrangements[0].worksheetSize, c.size) << c.widthPixels;
            EXPECT_EQ(sh.state().defaultMenuSize, c.size);
            // The project's window is the worksheet's size, not the model's own default.
            EXPECT_EQ(document.windowSize, c.size) << c.widthPixels;
        }
    }
}

TEST_F(ShellFixture, MaintenanceWordRunsTheMaintenanceModeOnly)
{
    dir.write("plugins.ini", "[DEBUT]\r\n");
    dialogs.inputAnswers.push_back("2");
    EXPECT_EQ(start("\"maintien\""), StartOutcome::Quit);
    EXPECT_EQ(dialogs.lastMessage().text, "Fichier plugins.ini vidé");
    EXPECT_EQ(dir.read("plugins.ini"), "");
    EXPECT_TRUE(view.log.empty());  // no splash, no window
    EXPECT_FALSE(std::filesystem::exists(dir.path() / kOptionsFileName));
}

TEST_F(ShellFixture, StartupProjectOpensOnTheFirstActivationOfThePropertiesPanel)
{
    const std::string project = dir.write("mon menu.qor", "");
    ASSERT_EQ(start("\"" + project + "\""), StartOutcome::Running);
    EXPECT_TRUE(document.calls.empty());
    shell->propertiesPanelActivated();
    shell->propertiesPanelActivated();
    EXPECT_EQ(document.calls, (std::vector<std::string>{"openPath " + project}));
}

TEST_F(ShellFixture, LaterStartsReadTheOptionsAndShowTheMouseWindowAnyway)
{
    dir.write(kOptionsFileName, "non\r\nnon\r\noui\r\n");
    dir.write(kAppearancesFileName, "[App]\r\nMienne\r\n1\r\n2\r\n3\r\npara\r\npara\r\n");
    settings.values[{"QOR", "General", "langue"}] = "English";
    ASSERT_EQ(start(), StartOutcome::Running);

    EXPECT_TRUE(fileTypes.registrations.empty());  // not a first run
    EXPECT_EQ(shell->state().interfaceLanguage, "English");
    EXPECT_EQ(dir.read(kOptionsFileName), "non\r\nnon\r\noui\r\n");
    EXPECT_NE(dir.read(kAppearancesFileName).find("Mienne"), std::string::npos);
    const auto& log = view.log;
    auto at = [&](const char* e) { return std::find(log.begin(), log.end(), e) - log.begin(); };
    EXPECT_LT(at("mouse window hidden"), at("show MousePosition"));

    // The option's command hides the window again.
    shell->run(CommandId::MousePosition);
    EXPECT_EQ(log.back(), "mouse window shown");
    shell->run(CommandId::MousePosition);
    EXPECT_EQ(log.back(), "mouse window hidden");

    // Deleting the options file makes the next start a first run again.
    std::filesystem::remove(dir.path() / kOptionsFileName);
    restart();
    ASSERT_EQ(start(), StartOutcome::Running);
    EXPECT_EQ(fileTypes.registrations.size(), 1u);
    EXPECT_EQ(splitLines(dir.read(kOptionsFileName)).size(), 9u);
}

TEST_F(ShellFixture, AProgramFolderThatCannotBeWrittenIsReportedAndTheEditorRuns)
{
    // A file stands where the settings files would go.
    dir.write("ro", "");
    ASSERT_EQ(shell->start({dir.file("ro/qor"), "", {}}), StartOutcome::Running);
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[0].text.rfind("Erreur pendant l'enregistrement des options ! (", 0), 0u);
    EXPECT_EQ(dialogs.messages[1].text.rfind("Erreur pendant l'enregistrement des apparences ! (", 0), 0u);
    EXPECT_EQ(view.shown.size(), 5u);
}

TEST_F(ShellFixture, CommandsReachTheirFlows)
{
    ASSERT_EQ(start(), StartOutcome::Running);
    settings.values[{"QOR", "FichiersRecents", "Fichier1"}] = "/p/un.qor";
    shell->recentFiles().rebuild();
    const std::size_t messagesBefore = dialogs.messages.size();

    struct Case { CommandId id; int position; const char* call; };
    const Case cases[] = {
        {CommandId::NewBlank, 0, "newBlank"},
        {CommandId::NewWizard, 0, "newThroughWizard"},
        {CommandId::Open, 0, "open"},
        {CommandId::Save, 0, "save"},
        {CommandId::SaveAs, 0, "saveAs"},
        {CommandId::FileProperties, 0, "showFileInfo"},
        {CommandId::EditSource, 0, "editSource"},
        {CommandId::ReloadProject, 0, "reload"},
        {CommandId::OpenRecent, 1, "openRecent /p/un.qor"},
        {CommandId::OpenRecent, 2, ""},
    };
    for (const auto& c : cases) {
        document.calls.clear();
        shell->run(c.id, c.position);
        EXPECT_EQ(document.calls, c.call[0] ? std::vector<std::string>{c.call} : std::vector<std::string>{});
    }
    EXPECT_EQ(view.wizardOpenings, 1);

    // Commands of later parts, and "En ecran de veille", do nothing at all.
    const auto logBefore = view.log;
    document.calls.clear();
    for (CommandId id : {CommandId::TestProject, CommandId::CompileAutorun, CommandId::CompileExecutable,
                         CommandId::CompileScreenSaver, CommandId::CompileHtml, CommandId::About})
        shell->run(id);  // no build commands given: the build ones do nothing either
    EXPECT_TRUE(document.calls.empty());
    EXPECT_EQ(view.log, logBefore);
    EXPECT_EQ(dialogs.messages.size(), messagesBefore);
    EXPECT_TRUE(desktop.opened.empty());

    shell->run(CommandId::Appearances);
    EXPECT_EQ(view.appearancePanelOpenings, 1);
    shell->run(CommandId::Faq);
    EXPECT_EQ(desktop.opened.size(), 1u);
    shell->run(CommandId::RunPlugin, 0);
    EXPECT_EQ(dialogs.lastMessage().text, "Aucun plugin installé");
    shell->run(CommandId::AssociateFiles);
    EXPECT_EQ(dialogs.lastMessage(), filesAssociatedMessage());
    EXPECT_EQ(fileTypes.registrations.size(), 2u);
}

// Records the build commands the shell hands on.
class RecordingBuild : public BuildCommands {
public:
    std::vector<std::string> calls;
    void openCompileDialog() override { calls.push_back("compile dialog"); }
    void testRun() override { calls.push_back("test run"); }
    void exportExecutable() override { calls.push_back("executable"); }
    void exportHtml() override { calls.push_back("html"); }
};

TEST_F(ShellFixture, BuildCommandsGoToTheBuild)
{
    ASSERT_EQ(start(), StartOutcome::Running);
    RecordingBuild build;
    shell->setBuild(&build);
    for (CommandId id : {CommandId::TestProject, CommandId::CompileAutorun, CommandId::CompileExecutable,
                         CommandId::CompileScreenSaver, CommandId::CompileHtml})
        shell->run(id);
    EXPECT_EQ(build.calls, (std::vector<std::string>{"test run", "compile dialog", "executable", "html"}));
}

TEST_F(ShellFixture, EachPrintEntryOpensThePreviewWithItsIndex)
{
    ASSERT_EQ(start(), StartOutcome::Running);
    view.log.clear();
    for (CommandId id : {CommandId::PrintToPaper, CommandId::PrintToBmp, CommandId::PrintToClipboard})
        shell->run(id);
    EXPECT_EQ(view.log, (std::vector<std::string>{"print preview 2", "print preview 0", "print preview 1"}));
}

TEST_F(ShellFixture, ChoosingALanguageStoresItForTheNextStart)
{
    std::filesystem::create_directories(dir.path() / "langues" / "English");
    ASSERT_EQ(start(), StartOutcome::Running);
    shell->run(CommandId::ChooseLanguage, 1);
    EXPECT_EQ(settings.qor("General", "langue"), "English");
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"Langue modifiée, veuillez redémarrer QOR.", "Langue/Language", MessageIcon::Information}));
    EXPECT_EQ(shell->state().interfaceLanguage, "");  // effective at the next start only
    shell->run(CommandId::ChooseLanguage, 0);
    EXPECT_EQ(settings.qor("General", "langue"), "");
}

TEST_F(ShellFixture, QuitIsRefusedWithTheWizardOpenOrOnCancel)
{
    ASSERT_EQ(start(), StartOutcome::Running);
    shell->state().wizardOpen = true;
    EXPECT_FALSE(shell->quit());
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Veuillez fermer l'assistant création avant de quitter.",
                                              "Quitter...", MessageIcon::Exclamation}));
    EXPECT_TRUE(document.calls.empty());

    shell->state().wizardOpen = false;
    document.answers = {SaveAnswer::Cancelled};
    EXPECT_FALSE(shell->quit());
    EXPECT_EQ(document.calls, (std::vector<std::string>{"ask modal"}));
    EXPECT_FALSE(view.allHidden);
    EXPECT_EQ(shell->state().programFolder, dir.folder());

    for (SaveAnswer answer : {SaveAnswer::Saved, SaveAnswer::NotSaved}) {
        document.calls.clear();
        view.log.clear();
        document.answers = {answer};
        EXPECT_TRUE(shell->quit());
        EXPECT_EQ(document.calls, (std::vector<std::string>{"ask modal", "clearForQuit"}));
        EXPECT_EQ(view.log, (std::vector<std::string>{"hide all", "unload all"}));
        EXPECT_EQ(shell->state().programFolder, "");
        EXPECT_EQ(shell->state().newline, "");
    }

    std::vector<std::string> list(17, "?");
    list[16] = "Please close the wizard first.";
    shell->state().phrases.useLanguage(list);
    EXPECT_EQ(closeWizardFirstMessage(shell->state().phrases),
              (Message{"Please close the wizard first.", "&Quitter", MessageIcon::Exclamation}));
}

}  // namespace
}  // namespace qor
