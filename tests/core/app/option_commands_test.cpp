#include <gtest/gtest.h>

#include "core/app/option_commands.h"
#include "core/app/options_file.h"
#include "fake_dialogs.h"
#include "fake_shell_view.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

struct OptionsFixture : ::testing::Test {
    test::TempDir dir;
    AppState state;
    test::FakeShellView view;
    test::FakeDialogs dialogs;
    OptionCommands options{state, view, dialogs};

    OptionsFixture() { state.programFolder = dir.folder(); }
};

TEST_F(OptionsFixture, MissingFileKeepsTheInitialMarksAndWritesNothing)
{
    ASSERT_TRUE(options.read().ok());
    EXPECT_EQ(state.options, OptionMarks{});
    EXPECT_TRUE(view.log.empty());
    // The menu shows those marks all the same.
    EXPECT_EQ(view.marks, (std::map<CommandId, bool>{{CommandId::PrecisePointer, false},
                                                     {CommandId::MousePosition, true},
                                                     {CommandId::ShowHandles, true},
                                                     {CommandId::WizardAtStart, false},
                                                     {CommandId::RequireMediaFile, true}}));
    EXPECT_EQ(dir.read(kOptionsFileName), "");
}

TEST_F(OptionsFixture, ReadingRunsEachCommandWithoutRewritingTheFile)
{
    // Garbage lines that a rewrite would normalise: the file must stay as it is.
    const std::string content = "oui\r\nnon\r\nnon\r\n 255 \r\nbof\r\n 0 \r\nArial\r\nnon\r\nnon\r\nligne de trop\r\n";
    dir.write(kOptionsFileName, content);
    ASSERT_TRUE(options.read().ok());

    EXPECT_EQ(state.options, (OptionMarks{true, false, false, false, false}));
    EXPECT_EQ(view.log, (std::vector<std::string>{"pointer cross", "mouse window hidden", "handles hidden"}));
    EXPECT_EQ(view.marks[CommandId::PrecisePointer], true);
    EXPECT_EQ(view.marks[CommandId::MousePosition], false);
    EXPECT_EQ(view.marks[CommandId::RequireMediaFile], false);
    EXPECT_EQ(state.appearance, (Appearance{255, 0, 0, "Arial"}));
    EXPECT_EQ(dir.read(kOptionsFileName), content);
    EXPECT_FALSE(state.readingOptions);

    // After reading, a command writes the file again.
    options.run(CommandId::ShowHandles);
    EXPECT_EQ(dir.read(kOptionsFileName),
              "oui\r\nnon\r\noui\r\n 255 \r\n 0 \r\n 0 \r\nArial\r\nnon\r\nnon\r\n");
}

TEST_F(OptionsFixture, TheWizardOptionOpensTheWizardOnlyWithoutAStartupProject)
{
    struct Case { const char* startupProject; bool ticked; int openings; };
    const Case cases[] = {{"", true, 1}, {"/p/menu.qor", false, 0}};
    for (const auto& c : cases) {
        AppState s;
        s.programFolder = dir.folder();
        s.startupProject = c.startupProject;
        test::FakeShellView v;
        OptionCommands o{s, v, dialogs};
        dir.write(kOptionsFileName, "non\r\noui\r\noui\r\n0\r\n0\r\n0\r\n\r\noui\r\noui\r\n");
        ASSERT_TRUE(o.read().ok());
        EXPECT_EQ(s.options.wizardAtStart, c.ticked) << c.startupProject;
        EXPECT_EQ(v.marks[CommandId::WizardAtStart], c.ticked) << c.startupProject;
        EXPECT_EQ(v.wizardOpenings, c.openings) << c.startupProject;
    }
}

TEST_F(OptionsFixture, EachCommandFlipsAppliesAndWrites)
{
    struct Case { CommandId id; const char* event; int line; const char* value; };
    const Case cases[] = {
        {CommandId::PrecisePointer, "pointer cross", 0, "oui"},
        {CommandId::MousePosition, "mouse window hidden", 1, "non"},
        {CommandId::ShowHandles, "handles hidden", 2, "non"},
        {CommandId::WizardAtStart, "", 7, "oui"},
        {CommandId::RequireMediaFile, "", 8, "non"},
    };
    for (const auto& c : cases) {
        view.log.clear();
        const bool before = options.mark(c.id);
        options.run(c.id);
        EXPECT_EQ(options.mark(c.id), !before);
        EXPECT_EQ(view.marks[c.id], !before);
        EXPECT_EQ(view.log, c.event[0] ? std::vector<std::string>{c.event} : std::vector<std::string>{});
        const auto lines = splitLines(dir.read(kOptionsFileName));
        ASSERT_EQ(lines.size(), 9u);
        EXPECT_EQ(lines[std::size_t(c.line)], c.value);
    }
    EXPECT_EQ(view.wizardOpenings, 0);  // the wizard option acts at the next start only
}

TEST_F(OptionsFixture, AFileThatCannotBeWrittenIsReported)
{
    state.programFolder = dir.folder() + "absent/";
    options.run(CommandId::PrecisePointer);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.lastMessage().title, "Erreur");
    EXPECT_EQ(dialogs.lastMessage().icon, MessageIcon::Critical);
    EXPECT_EQ(dialogs.lastMessage().text.rfind("Erreur pendant l'enregistrement des options ! (", 0), 0u);
    EXPECT_TRUE(state.options.precisePointer);  // the option still took effect
}

TEST_F(OptionsFixture, AnUnreadableFileIsAnErrorAndChangesNothing)
{
    std::filesystem::create_directory(dir.path() / kOptionsFileName);
    Status s = options.read();
    EXPECT_FALSE(s.ok());
    EXPECT_EQ(state.options, OptionMarks{});
    EXPECT_FALSE(state.readingOptions);
}

}  // namespace
}  // namespace qor
