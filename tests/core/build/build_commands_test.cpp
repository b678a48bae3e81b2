#include "build_fixture.h"
#include "core/build/build_messages.h"
#include "core/build/html_launcher.h"

namespace qor::test {
namespace {

using Events = std::vector<std::string>;

TEST_F(BuildFixture, TestRunCompilesIntoTmpAndWatchesThePlayer)
{
    files.addFile("/prog/tmp/old.txt", "old");
    files.addFile("/prog/tmp/qor/autorun.exe", "old player");
    std::string whileRunning;
    view.whilePlayerRuns = [&] { whileRunning = files.bytes("/prog/tmp/qor/autorun.exe"); };
    auto build = flows();
    build.testRun();

    EXPECT_EQ(view.events, (Events{"bake", "notices on", "discard dialog", "notices off", "minimised",
                                   "watch /prog/qorplayer /prog/tmp/qor/autorun.exe", "restored"}));
    EXPECT_FALSE(files.hasFile("/prog/tmp/old.txt"));
    auto menu = readMenuData(whileRunning);
    ASSERT_TRUE(std::holds_alternative<MenuData>(menu));
    EXPECT_EQ(std::get<MenuData>(menu).info, (MenuDataInfo{"TEST", "TEST"}));
    EXPECT_EQ(files.bytes("/prog/tmp/Autorun.inf").substr(0, 9), "[Autorun]");
    EXPECT_TRUE(dialogs.messages.empty());

    // A second run starts again from an emptied folder.
    files.addFile("/prog/tmp/qor/stray.txt", "x");
    build.testRun();
    EXPECT_FALSE(files.hasFile("/prog/tmp/qor/stray.txt"));
}

TEST_F(BuildFixture, TestRunStopsWhereTheCompilationOrThePlayerFails)
{
    files.files.erase("/proj/b1.png");
    {
        auto build = flows();
        build.testRun();
    }
    EXPECT_EQ(view.events, (Events{"bake", "notices on", "discard dialog", "notices off"}));
    EXPECT_EQ(dialogs.lastMessage().text.substr(0, 34), "Erreur durant la compilation ! (Fi");

    files.addFile("/proj/b1.png", picture("PNG"));
    view.events.clear();
    view.watchError = makeError(err::FileNotFound, "qorplayer absent");
    for (bool french : {true, false}) {
        if (!french)
            phrases.useLanguage(std::vector<std::string>(31, "Test error!"));
        auto build = flows();
        build.testRun();
        // The worksheet stays minimised: nothing restores it.
        EXPECT_EQ(view.events.back(), "watch /prog/qorplayer /prog/tmp/qor/autorun.exe");
        EXPECT_EQ(dialogs.lastMessage(), (Message{french ? "Erreur lors du test !!!" : "Test error!",
                                                  "qorplayer absent", MessageIcon::Critical}));
    }
}

// A value the data cannot carry stops every command before it bakes,
// clears or asks anything.
TEST_F(BuildFixture, CommandsRefuseAHostileProjectBeforeWritingAnything)
{
    project.button(1).action = "MsgBox \"a\u00ACb\"";
    files.addFile("/prog/tmp/old.txt", "old");
    files.log.clear();
    const std::function<void(BuildFlows&)> commands[] = {
        [](BuildFlows& b) { b.testRun(); },
        [](BuildFlows& b) { b.exportExecutable(); },
        [](BuildFlows& b) { b.openCompileDialog(); },
    };
    for (const auto& command : commands) {
        dialogs.messages.clear();
        auto build = flows();
        command(build);
        EXPECT_TRUE(view.events.empty()) << view.events.front();
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_NE(dialogs.lastMessage().text.find("L'action du bouton n°1"), std::string::npos);
        EXPECT_TRUE(build.state().compileFailed);
        EXPECT_TRUE(files.log.empty());
    }
}

struct ExportAnswers {
    std::optional<std::string> folder = "/out";
    std::vector<std::string> inputs = {"Mon menu", "Jeanne", "menu"};
    Answer runtime = Answer::Yes;
};

void queue(FakeDialogs& d, const ExportAnswers& a)
{
    d.folderAnswers.push_back(a.folder);
    for (const auto& i : a.inputs)
        d.inputAnswers.push_back(i);
    d.messageAnswers.push_back(a.runtime);
}

TEST_F(BuildFixture, ExportPutsTheExecutableBesideItsMedia)
{
    files.addFile("/out/qor/earlier.png", "earlier export");
    files.addFile("/out/keep.txt", "keep");
    queue(dialogs, {});
    flows().exportExecutable();

    EXPECT_EQ(dialogs.folderPrompts, (Events{"Ou sera placé l'exécutable ?"}));
    ASSERT_EQ(dialogs.inputs.size(), 3u);
    EXPECT_EQ(dialogs.inputs[0], (FakeDialogs::InputRequest{"Nom du projet ?", "QOR - création", "menu"}));
    EXPECT_EQ(dialogs.inputs[1].prompt, "Auteur du projet ?");
    EXPECT_EQ(dialogs.inputs[2].prompt, "Nom de l'exécutable ?");
    EXPECT_EQ(dialogs.messages[0].text, "Copier les fichiers 'RUNTIME' ?");
    EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"L'exécutable a été créé ! (Plusieurs fichiers ont été placé dans le sous répertoire QOR, mais "
                       "seul le .exe est obligatoire.)",
                       "QOR", MessageIcon::Information}));

    EXPECT_EQ(files.bytes("/out/menu.exe"), "MZ-player-bytes" + menuDataBytes(project, {"Mon menu", "Jeanne"}));
    for (const char* gone : {"/out/Autorun.inf", "/out/qor/autorun.exe", "/out/qor/install.bat",
                             "/out/qor/autorun.ico", "/out/qor/earlier.png"})
        EXPECT_FALSE(files.hasFile(gone)) << gone;
    EXPECT_TRUE(files.hasFile("/out/qor/fond.jpg"));
    EXPECT_EQ(files.bytes("/out/keep.txt"), "keep");
    EXPECT_EQ(view.events.front(), "bake");
    EXPECT_EQ(view.events.back(), "notices off");
}

TEST_F(BuildFixture, ExportEndsEarlyWithNothingCompiled)
{
    struct Row {
        const char* what;
        ExportAnswers answers;
        std::string lastMessage;
    };
    const Row rows[] = {
        {"folder cancelled", {std::nullopt, {}, Answer::Yes}, ""},
        {"missing folder", {"/nowhere", {}, Answer::Yes}, "Chemin incorrect."},
        {"no project name", {"/out", {""}, Answer::Yes}, ""},
        {"no author", {"/out", {"Nom", ""}, Answer::Yes}, ""},
        {"no file name", {"/out", {"Nom", "Auteur", ""}, Answer::Yes}, ""},
        {"file name with a path", {"/out", {"Nom", "Auteur", "../menu"}, Answer::Yes},
         badFileNameMessage("../menu", "QOR - création").text},
        {"runtime cancelled", {"/out", {"Nom", "Auteur", "menu"}, Answer::Cancel}, "Copier les fichiers 'RUNTIME' ?"},
    };
    for (const auto& row : rows) {
        BuildWorld w;
        w.files.addFolder("/out");
        w.dialogs.folderAnswers.push_back(row.answers.folder);
        for (const auto& i : row.answers.inputs)
            w.dialogs.inputAnswers.push_back(i);
        if (row.answers.runtime == Answer::Cancel)
            w.dialogs.messageAnswers.push_back(Answer::Cancel);
        w.flows().exportExecutable();
        EXPECT_TRUE(w.files.filesUnder("/out").empty()) << row.what;
        EXPECT_EQ(w.dialogs.messages.empty() ? "" : w.dialogs.lastMessage().text, row.lastMessage) << row.what;
        EXPECT_EQ(w.view.events.back(), "notices off") << row.what;
    }
}

TEST_F(BuildFixture, ExportThatFailsToCompileSaysSoOnce)
{
    files.files.erase("/proj/clic.wav");
    files.addFolder("/out");
    queue(dialogs, {});
    flows().exportExecutable();
    EXPECT_EQ(dialogs.lastMessage().text.substr(0, 31), "Erreur durant la compilation ! ");
    EXPECT_FALSE(files.hasFile("/out/menu.exe"));
}

TEST_F(BuildFixture, OpeningTheCompileDialogBakesThenShowsItsDefaults)
{
    project.authorName = "Jeanne";
    project.authorEmail = "j@example.org";
    flows().openCompileDialog();
    EXPECT_EQ(view.events, (Events{"bake", "discard dialog", "open dialog /home/u/|menu|Jeanne (j@example.org)|"
                                                             "/prog/autorun.ico"}));
}

TEST_F(BuildFixture, HtmlLauncherGoesWhereTheAnswerSays)
{
    files.addFolder("/home/u/Bureau");
    files.addFolder("/web");
    dialogs.inputAnswers = {"/home/u/Bureau/", "/web"};
    auto build = flows();
    build.exportHtml();
    build.exportHtml();
    EXPECT_EQ(dialogs.inputs[0], (FakeDialogs::InputRequest{"rep ?", "QOR - création", "/home/u/Bureau/"}));
    EXPECT_TRUE(files.hasFile("/home/u/Bureau/index.htm"));
    EXPECT_TRUE(files.hasFile("/webindex.htm"));

    files.readOnly.insert("/web");
    dialogs.inputAnswers = {"/web/"};
    build.exportHtml();
    EXPECT_EQ(dialogs.lastMessage().text.substr(0, 24), "La page '/web/index.htm'");
    EXPECT_EQ(dialogs.lastMessage().icon, MessageIcon::Critical);
}

// The bytes of one picture of menu.js ("name":"<base64>"), decoded.
std::string decodedEntry(const std::string& script, const std::string& name)
{
    const std::string key = "\"" + name + "\":\"";
    const auto at = script.find(key);
    if (at == std::string::npos)
        return "<no " + name + ">";
    static const std::string digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    unsigned bits = 0, count = 0;
    for (auto i = at + key.size(); i < script.size() && script[i] != '"' && script[i] != '='; ++i) {
        bits = (bits << 6) | static_cast<unsigned>(digits.find(script[i]));
        if ((count += 6) >= 8) {
            count -= 8;
            out += static_cast<char>((bits >> count) & 0xFF);
        }
    }
    return out;
}

TEST_F(BuildFixture, HtmlExportBakesThenWritesTheWebMenuBesideTheLauncher)
{
    files.addFile("/prog/web/qor_player.js", "PLAYER");
    files.addFile("/prog/web/front.js", "FRONT");
    files.addFile("/prog/web/page.htm", "<script src=\"@FOLDER@/menu.js\"></script>");
    files.addFolder("/web");
    dialogs.inputAnswers = {"/web/"};
    flows().exportHtml();
    EXPECT_EQ(view.events, Events{"bake"});
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(files.hasFile("/web/index.htm"));
    EXPECT_EQ(files.bytes("/web/qor_menu2.htm"), "<script src=\"qor_menu2/menu.js\"></script>");
    EXPECT_EQ(files.bytes("/web/qor_menu2/qor_player.js"), "PLAYER");
    // The pictures and sounds a CD gets, the transparent button's baked.
    EXPECT_EQ(files.bytes("/web/qor_menu2/b2.png_transp.bmp"), picture("BMP b2.png"));
    EXPECT_EQ(files.bytes("/web/qor_menu2/clic.wav"), "RIFF");
    auto menu = readMenuData(files.bytes("/web/qor_menu2/menu.dat"));
    ASSERT_TRUE(std::holds_alternative<MenuData>(menu));
    EXPECT_EQ(std::get<MenuData>(menu).info.projectName, "menu");
    // Pictures travel inside menu.js, base64-coded; sounds stay files.
    const std::string script = files.bytes("/web/qor_menu2/menu.js");
    EXPECT_EQ(decodedEntry(script, "b1.png"), picture("PNG b1.png"));
    EXPECT_EQ(decodedEntry(script, "b2.png_transp.bmp"), picture("BMP b2.png"));
    EXPECT_EQ(script.find("clic.wav"), std::string::npos);

    // Without the browser player beside the editor: one message, naming the page.
    files.addFolder("/w2");
    ASSERT_TRUE(files.removeFile("/prog/web/front.js"));
    dialogs.inputAnswers = {"/w2/"};
    flows().exportHtml();
    EXPECT_TRUE(files.hasFile("/w2/index.htm"));
    EXPECT_EQ(dialogs.lastMessage().text.substr(0, 29), "La page '/w2/qor_menu2.htm' n");
}

TEST(HtmlLauncher, SizesAndLines)
{
    struct Row {
        float width, height;
        bool fullScreen;
        const char* h;
        const char* w;
    } rows[] = {
        {9600, 7200, false, "480", "640"},
        {9600, 6400, false, "426.666666666667", "640"},
        {12000, 6000, false, "400", "800"},
        {9600, 7200, true, "screen.height;", "screen.width;"},
    };
    for (const auto& r : rows) {
        MenuProject p;
        p.width = r.width;
        p.height = r.height;
        p.fullScreen = r.fullScreen;
        const auto lines = htmlLauncherLines(p);
        ASSERT_EQ(lines.size(), 13u);
        EXPECT_EQ(lines[5], std::string("hauteur=") + r.h);
        EXPECT_EQ(lines[6], std::string("largeur=") + r.w);
    }
    const auto lines = htmlLauncherLines(MenuProject());
    EXPECT_EQ(lines[4], "page=\"qor_menu2.htm\"");
    EXPECT_EQ(lines[9],
              "window.open(page,\"\",\"top=\"+top+\",left=\"+left+\",width=\"+largeur+\",height=\"+hauteur+\","
              "toolbar=no,location=no,directories=no,status=no,menubar=no,scrollbars=yes,resizable=yes\");");
    EXPECT_EQ(lines[11], "</script></head><body onload=\"javascript:menu_qor()\">");
    EXPECT_EQ(htmlLauncherPath("d:/web"), "d:/webindex.htm");
    EXPECT_EQ(htmlLauncherPath(""), "index.htm");
}

}  // namespace
}  // namespace qor::test
