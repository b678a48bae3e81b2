#include "build_fixture.h"
#include "core/build/autorun_inf.h"
#include "core/build/build_messages.h"
#include "text/cp1252.h"

namespace qor::test {
namespace {

using Steps = std::vector<std::string>;

TEST_F(BuildFixture, StepsAreShownInTheirOrder)
{
    const Steps mainMenu = {"Création de l'Autorun...", "Terminé.", "Création du répertoire 'qor'...", "Terminé.",
                            "Copie des fichiers RUNTIME...", "Terminé.", "Copie de l'icône...",
                            "Copie de autorun.ico...", "Terminé.", "Terminé.",
                            "Copie du filtre pour la transparence...", "Terminé.", "Copie de install.bat...",
                            "Terminé.", "Copie d'aurorun.exe...", "Terminé.", "Copie des fichiers images...",
                            "Terminé.", "Copie des fichiers sons...", "Terminé.", "Compilation en cours...",
                            "Terminé.", ""};
    Steps noRuntime = mainMenu;
    noRuntime.erase(noRuntime.begin() + 4, noRuntime.begin() + 6);
    const Steps subMenu(mainMenu.begin() + 10, mainMenu.end());
    struct Row {
        bool sub, skipRuntime;
        Steps expected;
    } rows[] = {{false, false, mainMenu}, {false, true, noRuntime}, {true, false, subMenu}};
    for (const auto& row : rows) {
        FakeFileSystem fresh = files;
        if (row.sub)
            fresh.addFolder("/cd/qor");
        std::swap(files, fresh);
        CompileRequest r = request();
        r.subMenu = row.sub;
        r.skipRuntime = row.skipRuntime;
        FakeCompileView v;
        ASSERT_EQ(compile(r, v), CompileOutcome::Done);
        EXPECT_EQ(v.steps, row.expected) << row.sub << row.skipRuntime;
        EXPECT_EQ(v.statuses, (Steps{"Dossier OK. Copie des fichiers :", "Terminé."}));
        EXPECT_EQ(v.statusColours.front(), kFolderOkColour);
        std::swap(files, fresh);
    }
}

TEST_F(BuildFixture, MainMenuFolderHoldsEveryFileUnderItsName)
{
    project.icon = "/icons/cd.ico";
    files.addFile("/icons/cd.ico", "MY ICON");
    project.transparencyImage = "/proj/filtre.bmp";
    files.addFile("/proj/filtre.bmp", picture("FILTER"));
    FakeCompileView v;
    ASSERT_EQ(compile(request(), v), CompileOutcome::Done);

    EXPECT_EQ(files.bytes("/cd/Autorun.inf"), autorunInfBytes());
    const std::map<std::string, std::string> expected = {
        {"/cd/qor/autorun.ico", "MY ICON"},     {"/cd/qor/install.bat", "@echo off"},
        {"/cd/qor/filtre.bmp", picture("FILTER")},       {"/cd/qor/fond.jpg", picture("JPEG-background")},
        {"/cd/qor/b1.png", picture("PNG b1.png")},       {"/cd/qor/b1_s.png", picture("PNG b1_s.png")},
        {"/cd/qor/b1_c.png", picture("PNG b1_c.png")},   {"/cd/qor/b2.png_transp.bmp", picture("BMP b2.png")},
        {"/cd/qor/b2_s.png_transp.bmp", picture("BMP b2_s.png")}, {"/cd/qor/b2_c.png_transp.bmp", picture("BMP b2_c.png")},
        {"/cd/qor/theme.mid", "MIDI"},          {"/cd/qor/clic.wav", "RIFF"},
        {"/cd/qor/autorun.exe", "MZ-player-bytes" + menuDataBytes(project, {"Démo", "Moi"})},
    };
    for (const auto& [path, bytes] : expected)
        EXPECT_EQ(files.bytes(path), bytes) << path;
    EXPECT_EQ(files.filesUnder("/cd/qor").size(), expected.size());
    EXPECT_EQ(v.instruction, compileFinalText("/cd/"));
    // "MY ICON" is no icon: the CD is made all the same, with the player's own.
    EXPECT_EQ(dialogs.messages,
              (std::vector<Message>{programIconMessage("/icons/cd.ico", "ce n'est pas une icône Windows (.ico)")}));
}

TEST_F(BuildFixture, DataGoesThroughAnIntermediateFileThatIsRemoved)
{
    ASSERT_EQ(compile(request()), CompileOutcome::Done);
    const auto temps = files.logged("temp ");
    ASSERT_EQ(temps.size(), 1u);
    const std::string temp = temps[0].substr(5);
    EXPECT_FALSE(files.hasFile(temp));
    const std::vector<std::string> order = {"write " + temp, "append /cd/qor/autorun.exe.part", "remove " + temp,
                                            "rename /cd/qor/autorun.exe.part -> /cd/qor/autorun.exe"};
    auto at = files.log.begin();
    for (const auto& line : order) {
        at = std::find(at, files.log.end(), line);
        EXPECT_NE(at, files.log.end()) << line;
    }
    // The player reads back what was written.
    auto menu = readMenuData(files.bytes("/cd/qor/autorun.exe"));
    ASSERT_TRUE(std::holds_alternative<MenuData>(menu));
    EXPECT_EQ(std::get<MenuData>(menu).info, (MenuDataInfo{"Démo", "Moi"}));
}

TEST_F(BuildFixture, RefusalsAndFailuresSetTheFlagByTheirRules)
{
    struct Row {
        const char* what;
        std::function<void(BuildWorld&, CompileRequest&)> arrange;
        CompileOutcome outcome;
        bool flag;
        std::string message;
    };
    const std::vector<Row> rows = {
        {"missing folder", [](BuildWorld&, CompileRequest& r) { r.target = "/nowhere"; },
         CompileOutcome::Refused, true, "Répertoire incorrect !"},
        {"empty target", [](BuildWorld&, CompileRequest& r) { r.target = ""; }, CompileOutcome::Refused, true,
         "Répertoire incorrect !"},
        {"root", [](BuildWorld&, CompileRequest& r) { r.target = "/"; }, CompileOutcome::Refused, true,
         "Répertoire incorrect !"},
        {"root by ..", [](BuildWorld&, CompileRequest& r) { r.target = "/cd/../.."; }, CompileOutcome::Refused,
         true, "Répertoire incorrect !"},
        {"video without file",
         [](BuildWorld& f, CompileRequest&) { f.addButton("vidéo", "v", false); },
         CompileOutcome::Refused, true, "Vous avez oublié d'indiquer un fichier multimédia pour le bouton n°3 !"},
        {"video without file, option off",
         [](BuildWorld& f, CompileRequest&) {
             f.addButton("vidéo", "v", false);
             f.requireMediaFile = false;
         },
         CompileOutcome::Done, false, ""},
        {"replace declined",
         [](BuildWorld& f, CompileRequest&) {
             f.files.addFile("/cd/qor/old.txt", "old");
             f.dialogs.messageAnswers.push_back(Answer::No);
         },
         CompileOutcome::Declined, false, replaceCompilationQuestion("/cd/").text},
        {"sub-menu without main menu", [](BuildWorld&, CompileRequest& r) { r.subMenu = true; },
         CompileOutcome::Refused, false, "Aucun menu principal trouvé dans ce répertoire !"},
        {"sub-menu already there",
         [](BuildWorld& f, CompileRequest& r) {
             r.subMenu = true;
             r.subMenuName = "Intro";
             f.files.addFile("/cd/qor/Intro.exe", "x");
         },
         CompileOutcome::Refused, false, "Un sous menu portant ce nom a déja été créé dans ce répertoire."},
        {"sub-menu named as the main menu in another case",
         [](BuildWorld& f, CompileRequest& r) {
             r.subMenu = true;
             r.subMenuName = "AUTORUN";
             f.files.addFile("/cd/qor/autorun.exe", "x");
         },
         CompileOutcome::Refused, false, "Un sous menu portant ce nom a déja été créé dans ce répertoire."},
        {"missing image", [](BuildWorld& f, CompileRequest&) { f.files.files.erase("/proj/b1_s.png"); },
         CompileOutcome::Failed, true, "Erreur durant la compilation ! (Fichier introuvable : /proj/b1_s.png)"},
        {"missing baked image",
         [](BuildWorld& f, CompileRequest&) { f.files.files.erase("/proj/b2_c.png_transp.bmp"); },
         CompileOutcome::Failed, true,
         "Erreur durant la compilation ! (Fichier introuvable : /proj/b2_c.png_transp.bmp)"},
        {"missing player", [](BuildWorld& f, CompileRequest&) { f.files.files.erase("/prog/compil.exe"); },
         CompileOutcome::Failed, true, "Erreur durant la compilation ! (Fichier introuvable : /prog/compil.exe)"},
        {"disk full", [](BuildWorld& f, CompileRequest&) { f.files.capacity = 200; }, CompileOutcome::Failed,
         true, ""},
    };
    for (const auto& row : rows) {
        BuildWorld f;
        f.state.compileFailed = !row.flag;  // every compilation sets it afresh
        CompileRequest r = f.request();
        row.arrange(f, r);
        FakeCompileView v;
        EXPECT_EQ(f.compile(r, v), row.outcome) << row.what;
        EXPECT_EQ(f.state.compileFailed, row.flag) << row.what;
        if (!row.message.empty()) {
            EXPECT_EQ(f.dialogs.lastMessage().text, row.message) << row.what;
        }
        if (row.outcome == CompileOutcome::Failed) {
            EXPECT_EQ(f.dialogs.lastMessage().title, "Erreur");
            EXPECT_EQ(v.enabled, (std::vector<bool>{false, true})) << row.what;
            // No player under its final name, nor a half-made one.
            EXPECT_FALSE(f.files.hasFile("/cd/qor/autorun.exe")) << row.what;
            EXPECT_FALSE(f.files.hasFile("/cd/qor/autorun.exe.part")) << row.what;
        }
        if (row.outcome == CompileOutcome::Refused || row.outcome == CompileOutcome::Declined) {
            EXPECT_TRUE(v.enabled.empty()) << row.what;
        }
    }
}

TEST_F(BuildFixture, DeclinedReplaceLeavesTheFolderAsItWas)
{
    files.addFile("/cd/qor/old.txt", "old");
    files.addFile("/cd/Autorun.inf", "mine");
    dialogs.messageAnswers.push_back(Answer::No);
    EXPECT_EQ(compile(request("/cd")), CompileOutcome::Declined);
    const Message asked = dialogs.lastMessage();
    EXPECT_EQ(asked.buttons, MessageButtons::YesNo);
    EXPECT_EQ(asked.defaultButton, 1);
    EXPECT_EQ(asked.icon, MessageIcon::Question);
    EXPECT_EQ(files.bytes("/cd/qor/old.txt"), "old");
    EXPECT_EQ(files.bytes("/cd/Autorun.inf"), "mine");
}

TEST_F(BuildFixture, ReplacingEmptiesQorButKeepsSubFoldersAndWhatLiesOutside)
{
    files.addFile("/cd/qor/old.txt", "old");
    files.addFile("/cd/qor/keep/inner.txt", "inner");
    files.addFile("/cd/notes.txt", "notes");
    dialogs.messageAnswers.push_back(Answer::Yes);
    FakeCompileView v;
    ASSERT_EQ(compile(request("/cd"), v), CompileOutcome::Done);
    EXPECT_EQ(v.target, "/cd/");
    EXPECT_FALSE(files.hasFile("/cd/qor/old.txt"));
    EXPECT_EQ(files.bytes("/cd/qor/keep/inner.txt"), "inner");
    EXPECT_EQ(files.bytes("/cd/notes.txt"), "notes");
    EXPECT_TRUE(files.hasFile("/cd/qor/autorun.exe"));
}

TEST_F(BuildFixture, AQorThatIsNoFolderIsRefusedUntouched)
{
    for (bool link : {true, false}) {
        BuildWorld f;
        if (link) {
            f.files.addFile("/elsewhere/precious.txt", "precious");
            f.files.links["/cd/qor"] = "/elsewhere";
        } else {
            f.files.addFile("/cd/qor", "a file");
        }
        for (bool sub : {false, true}) {
            CompileRequest r = f.request();
            r.subMenu = sub;
            EXPECT_EQ(f.compile(r), CompileOutcome::Refused);
            EXPECT_EQ(f.dialogs.lastMessage(), qorNotAFolderMessage("/cd/"));
            EXPECT_TRUE(f.state.compileFailed);
        }
        EXPECT_EQ(f.files.log, std::vector<std::string>{});
    }
}

TEST_F(BuildFixture, SubMenuJoinsAnExistingMainMenu)
{
    files.addFile("/cd/qor/autorun.exe", "MAIN");
    files.addFile("/cd/Autorun.inf", "INF");
    CompileRequest r = request();
    r.subMenu = true;
    r.subMenuName = "Intro";
    ASSERT_EQ(compile(r), CompileOutcome::Done);
    EXPECT_EQ(files.bytes("/cd/qor/autorun.exe"), "MAIN");
    EXPECT_EQ(files.bytes("/cd/Autorun.inf"), "INF");
    EXPECT_FALSE(files.hasFile("/cd/qor/autorun.ico"));
    EXPECT_TRUE(files.hasFile("/cd/qor/install.bat"));
    EXPECT_TRUE(files.hasFile("/cd/qor/fond.jpg"));
    EXPECT_EQ(files.bytes("/cd/qor/Intro.exe"), "MZ-player-bytes" + menuDataBytes(project, {"Démo", "Moi"}));
    EXPECT_EQ(dialogs.lastMessage(), subMenuCreatedMessage("Intro"));
}

TEST_F(BuildFixture, SubMenuNamesMustNameOneFileOfQor)
{
    files.addFolder("/cd/qor");
    for (const char* name : {"", "..", ".", "a/b", "../../etc/x", "a\\b"}) {
        CompileRequest r = request();
        r.subMenu = true;
        r.subMenuName = name;
        EXPECT_EQ(compile(r), CompileOutcome::Refused) << name;
        EXPECT_EQ(dialogs.lastMessage().title, "Sous menu") << name;
        EXPECT_FALSE(state.compileFailed) << name;
    }
    EXPECT_TRUE(files.log.empty());
}

// Each hostile value, wherever the data carries it, stops the compilation
// before anything is written, and the message says where it is.
TEST_F(BuildFixture, ValuesTheDataCannotCarryAreRefusedByName)
{
    const std::string sep = "\u00AC", mark = "\u00A4";
    struct Row {
        std::function<void(BuildWorld&, CompileRequest&)> arrange;
        std::string place;   // as the message names it
    };
    const std::vector<Row> rows = {
        {[&](BuildWorld& f, CompileRequest&) { f.project.backgroundImage = "/img/a" + sep + "b.jpg"; },
         "L'image de fond (« a¬b.jpg »)"},
        {[&](BuildWorld&, CompileRequest& r) { r.projectName = "Mon" + sep + "menu"; }, "Le nom du projet"},
        {[](BuildWorld&, CompileRequest& r) { r.author = "Moi\r\nToi"; }, "L'auteur du projet (« Moi↵Toi »)"},
        {[&](BuildWorld& f, CompileRequest&) { f.project.button(2).action = "MsgBox 1" + mark; },
         "L'action du bouton n°2"},
        {[](BuildWorld& f, CompileRequest&) { f.project.button(1).hoverImage = "/img/b\nc.png"; },
         "L'image de survol du bouton n°1"},
        {[&](BuildWorld& f, CompileRequest&) { f.project.globalScript = "Dim a" + sep; }, "Le code global"},
        {[](BuildWorld& f, CompileRequest&) {   // left out of the data, but its images are copied
             f.project.button(1).kind.clear();
             f.project.button(1).pressedImage = "/img/";
         },
         "L'image du clic du bouton n°1 («  ») ne nomme aucun fichier"},
        {[](BuildWorld& f, CompileRequest&) { f.project.clickSound = "/proj/ウ.wav"; }, "Le son du clic"},
        {[](BuildWorld& f, CompileRequest&) { f.project.hoverSound = "/s/" + std::string(300, 'x') + ".wav"; },
         "Le son du survol"},
        {[](BuildWorld& f, CompileRequest&) {
             (void)f.project.addText();
             (void)f.project.addText();
             f.project.text(2).content = std::string("a\0b", 3);
         },
         "Le texte n°2"},
        {[&](BuildWorld&, CompileRequest& r) {
             r.subMenu = true;
             r.subMenuName = "Intro" + sep;
         },
         "Le nom du sous menu"},
    };
    for (const auto& row : rows) {
        BuildWorld f;
        f.files.addFile("/cd/qor/autorun.exe", "MAIN");
        f.files.log.clear();
        CompileRequest r = f.request();
        row.arrange(f, r);
        EXPECT_EQ(f.compile(r), CompileOutcome::Refused) << row.place;
        EXPECT_EQ(f.dialogs.lastMessage().text.rfind("Compilation impossible : " + row.place, 0), 0u)
            << f.dialogs.lastMessage().text;
        EXPECT_TRUE(f.state.compileFailed) << row.place;
        EXPECT_TRUE(f.files.log.empty()) << row.place;
    }
}

// On the CD's Windows machines, names differing only in letter case are one file.
TEST_F(BuildFixture, TwoFilesForOneNameOfQorAreRefused)
{
    struct Row {
        std::string first, second;
    } rows[] = {{"/photos/fond.jpg", "/archives/fond.jpg"}, {"/photos/Fond.JPG", "/archives/fond.jpg"},
                {"/photos/autorun.exe", "/prog/compil.exe"}};
    for (const auto& row : rows) {
        BuildWorld f;
        f.project.backgroundImage = row.first;
        f.files.addFile(row.first, "1");
        MenuButton& b = f.addButton("code", "b3", false);
        b.normalImage = row.second;
        f.files.addFile(row.second, "2");
        EXPECT_EQ(f.compile(f.request()), CompileOutcome::Refused) << row.second;
        const std::string text = f.dialogs.lastMessage().text;
        EXPECT_NE(text.find("'" + row.first + "'"), std::string::npos) << text;
        EXPECT_NE(text.find("'" + row.second + "'"), std::string::npos) << text;
        EXPECT_TRUE(f.state.compileFailed);
        EXPECT_TRUE(f.files.log.empty());
    }
}

// A picture the players could not show is named before anything is written;
// a missing one is still the copy's error.
TEST_F(BuildFixture, UnreadablePicturesAreRefusedByName)
{
    const std::string tooLarge = std::string("GIF89a\x30\x75\x30\x75\0\0\0", 13) + ";";   // 30000 x 30000
    struct Row {
        std::string path, bytes, expected;
    } rows[] = {
        {"/proj/fond.jpg", "", "l'image '/proj/fond.jpg' (l'image de fond) est illisible : le fichier est vide."},
        {"/proj/b1_s.png", "pas une image",
         "(l'image de survol du bouton n°1) est illisible : ce n'est pas une image BMP, JPEG, PNG, GIF ou ICO."},
        {"/proj/b2_c.png_transp.bmp", picture("BMP").substr(0, 12),
         "(l'image du clic du bouton n°2) est illisible : le fichier est incomplet."},
        {"/proj/b2.png", tooLarge,
         "illisible : elle mesure 30000 × 30000 pixels, un menu en affiche au plus 16384 × 16384."},
    };
    for (const auto& row : rows) {
        BuildWorld f;
        f.files.files[row.path] = row.bytes;
        f.files.log.clear();
        EXPECT_EQ(f.compile(f.request()), CompileOutcome::Refused) << row.path;
        EXPECT_NE(f.dialogs.lastMessage().text.find(row.expected), std::string::npos) << f.dialogs.lastMessage().text;
        EXPECT_TRUE(f.state.compileFailed);
        EXPECT_TRUE(f.files.log.empty());
    }
}

TEST_F(BuildFixture, ASubMenuNeitherReplacesAPlayerNorShadowsAName)
{
    struct Row {
        std::string present;   // in qor/ already
        std::string shipped;   // the sub-menu's background
        bool refused;
    } rows[] = {{"/cd/qor/Fond.jpg", "/img/fond.jpg", true}, {"/cd/qor/autorun.exe", "/img/AUTORUN.EXE", true},
                {"/cd/qor/fond.jpg", "/img/fond.jpg", false}};
    for (const auto& row : rows) {
        BuildWorld f;
        f.files.addFile("/cd/qor/autorun.exe", "MAIN");
        f.files.addFile(row.present, picture("MAIN"));
        f.project.backgroundImage = row.shipped;
        f.files.addFile(row.shipped, picture("SUB"));
        f.files.log.clear();
        CompileRequest r = f.request();
        r.subMenu = true;
        EXPECT_EQ(f.compile(r), row.refused ? CompileOutcome::Refused : CompileOutcome::Done) << row.shipped;
        if (row.refused) {
            EXPECT_EQ(f.dialogs.lastMessage(), fileNameClashMessage(row.shipped, row.present));
            EXPECT_TRUE(f.files.log.empty());
        } else {
            EXPECT_EQ(f.files.bytes(row.present), picture("SUB"));   // shared, copied again
        }
    }
}

TEST_F(BuildFixture, OneFileNamedTwiceIsCopiedOnce)
{
    MenuButton& b = addButton("code", "b3", false);
    b.hoverImage = b.normalImage;
    b.pressedImage = "/proj/" + b.normalImage;   // the same file by its full path
    project.transparencyImage = "fond.jpg";
    ASSERT_EQ(compile(request()), CompileOutcome::Done);
    EXPECT_EQ(files.logged("copy /proj/b3.png ").size(), 1u);
    EXPECT_EQ(files.logged("copy /proj/fond.jpg ").size(), 1u);
}

TEST_F(BuildFixture, ASourceThatIsItsOwnTargetStaysWhole)
{
    files.addFile("/cd/qor/autorun.exe", "MAIN");
    project.backgroundImage = "/cd/qor/fond.jpg";
    files.addFile("/cd/qor/fond.jpg", picture("IN PLACE"));
    CompileRequest r = request();
    r.subMenu = true;
    ASSERT_EQ(compile(r), CompileOutcome::Done);
    EXPECT_EQ(files.bytes("/cd/qor/fond.jpg"), picture("IN PLACE"));
}

TEST_F(BuildFixture, ProgressCountsTheBytesOfEveryCopy)
{
    FakeCompileView v;
    ASSERT_EQ(compile(request(), v), CompileOutcome::Done);
    std::uint64_t total = 0;
    for (const auto& line : files.logged("copy ")) {
        const std::string source = line.substr(5, line.find(" -> ") - 5);
        total += files.bytes(source).size();
    }
    ASSERT_FALSE(v.progress.empty());
    EXPECT_EQ(v.progress.back(), std::make_pair(total, total));
    for (std::size_t i = 1; i < v.progress.size(); ++i) {
        EXPECT_LE(v.progress[i - 1].first, v.progress[i].first);
        EXPECT_EQ(v.progress[i].second, total);
    }
    EXPECT_GT(v.progress.size(), files.logged("copy ").size());  // more than one report for some copies
}

TEST(AutorunInf, LinesAsTheCdReadsThem)
{
    EXPECT_EQ(autorunInfBytes(),
              "[Autorun]\r\nopen=qor/autorun.exe\r\nIcon=qor/autorun.ico\r\n\r\n"
              "shell\\installer=&Installer QOR\r\nshell\\installer\\command=qor/install.bat\r\n\r\n"
              "shell\\qqc=&Qu'est-ce que QOR ?\r\nshell\\qqc\\command=qor/autorun.exe infos\r\n\r\n"
              "shell\\app=&A propos de QOR...\r\nshell\\app\\command=qor/autorun.exe auteur\r\n");
}

}  // namespace
}  // namespace qor::test
