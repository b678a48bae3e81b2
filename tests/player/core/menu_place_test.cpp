// Placeholders, paths, shell commands and the command line.
#include <gtest/gtest.h>

#include "fake_ports.h"
#include "player/core/command_line.h"
#include "player/core/menu_place.h"
#include "player/core/shell_command.h"

namespace qor::player::test {
namespace {

const MenuPlace kPlace = MenuPlace::of("/media/cd/qor/autorun.exe", '/', "D");

TEST(MenuPlace, PlaceholdersExpandInAnyLetterCase)
{
    const std::pair<std::string, std::string> cases[] = {
        {"[LECT]:\\index.html", "/media/cd/index.html"},
        {"\"[lect]:\" & \"\\x\"", "\"/media/cd\" & \"\\x\""},
        {"[lect] [Chemin]x.exe [JOINDRE]", "D /media/cd/qor/x.exe /media/cd/"},
        {"sans rien", "sans rien"},
        {"[LECT", "[LECT"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(expandPlaceholders(text, kPlace), expected) << text;
}

// Wherever the CD was copied, its placeholders name the folders it is really
// in, whether a script's text was expanded first (as menus run) or the path
// is resolved as written.
TEST(MenuPlace, PlaceholdersHoldInAnyFolder)
{
    const std::string longName(280, 'n');
    struct Case {
        std::string menuFile;
        std::string drive;
        std::string playerFolder;
        std::string cdRoot;
    };
    const Case cases[] = {
        {"E:\\qor\\autorun.exe", "E", "E:\\qor\\", "E:\\"},
        {"E:\\autorun.exe", "E", "E:\\", "E:\\"},
        {"C:\\Users\\Élodie\\Mon CD #2 & co\\qor\\autorun.exe", "C", "C:\\Users\\Élodie\\Mon CD #2 & co\\qor\\",
         "C:\\Users\\Élodie\\Mon CD #2 & co\\"},
        {"C:\\a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\qor\\autorun.exe", "C", "C:\\a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\qor\\",
         "C:\\a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\"},
        {"D:\\" + longName + "\\qor\\autorun.exe", "D", "D:\\" + longName + "\\qor\\", "D:\\" + longName + "\\"},
        {"\\\\serveur\\partage\\Mon CD\\qor\\autorun.exe", "", "\\\\serveur\\partage\\Mon CD\\qor\\",
         "\\\\serveur\\partage\\Mon CD\\"},
        {"\\\\serveur\\partage\\autorun.exe", "", "\\\\serveur\\partage\\", "\\\\serveur\\partage\\"},
        {"/media/cd/qor/autorun.exe", "", "/media/cd/qor/", "/media/cd/"},
    };
    for (const Case& c : cases) {
        const MenuPlace place = MenuPlace::of(c.menuFile, c.menuFile[0] == '/' ? '/' : '\\', c.drive);
        EXPECT_EQ(place.playerFolder, c.playerFolder) << c.menuFile;
        EXPECT_EQ(place.cdRoot, c.cdRoot) << c.menuFile;
        const std::string s(1, place.separator);
        const std::pair<std::string, std::string> paths[] = {
            {"[CHEMIN]b2h.bmp", c.playerFolder + "b2h.bmp"},
            {"[CHEMIN]Sous Menu.exe", c.playerFolder + "Sous Menu.exe"},
            {"[LECT]:\\docs\\a.txt", c.cdRoot + "docs" + s + "a.txt"},
            {"[LECT]:\\", c.cdRoot},
            {"[JOINDRE]index.html", c.cdRoot + "index.html"},
        };
        for (const auto& [path, expected] : paths) {
            EXPECT_EQ(resolveMenuPath(path, place, place.cdRoot), expected) << c.menuFile << " " << path;
            EXPECT_EQ(resolveMenuPath(expandPlaceholders(path, place), place, place.cdRoot), expected)
                << c.menuFile << " " << path;
        }
    }
}

TEST(MenuPlace, PathsResolveUnderTheCdRootOrTheirBase)
{
    const MenuPlace inFolder = MenuPlace::of("E:\\copie\\qor\\autorun.exe", '\\', "E");
    struct Case {
        const MenuPlace& place;
        std::string path;
        std::string base;
        std::string expected;
    };
    const Case cases[] = {
        {kPlace, "d:/rep/fich.txt", kPlace.cdRoot, "/media/cd/rep/fich.txt"},
        {kPlace, "D:", kPlace.cdRoot, "/media/cd/"},
        {kPlace, "c:\\page.htm", kPlace.cdRoot, "c:/page.htm"},
        {kPlace, "films\\a.avi", kPlace.cdRoot, "/media/cd/films/a.avi"},
        {kPlace, "b1.bmp", kPlace.playerFolder, "/media/cd/qor/b1.bmp"},
        {kPlace, "/etc/motd", kPlace.cdRoot, "/etc/motd"},
        {kPlace, "", kPlace.cdRoot, ""},
        {inFolder, "e:\\rep\\fich.txt", inFolder.cdRoot, "E:\\copie\\rep\\fich.txt"},
        {inFolder, "E:\\COPIE\\rep\\fich.txt", inFolder.cdRoot, "E:\\COPIE\\rep\\fich.txt"},
        {inFolder, "E:\\copies\\x.txt", inFolder.cdRoot, "E:\\copie\\copies\\x.txt"},
        {inFolder, "\\\\srv\\share\\x.txt", inFolder.cdRoot, "\\\\srv\\share\\x.txt"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(resolveMenuPath(c.path, c.place, c.base), c.expected) << c.path;
}

TEST(ShellCommand, CommandsAreReadAsTheAssistantWritesThem)
{
    Log log;
    FakeSystem system(log);
    system.files["/media/cd/Mon Dossier/prog.exe"] = "MZ";
    system.files["/media/cd/qor/Menu2.exe"] = "MZ\r\n" + compiledBytes(MenuProject());
    system.files["/media/cd/notes.txt"] = "x";
    using K = ShellTarget::Kind;
    const std::pair<std::string, ShellTarget> cases[] = {
        {"\"http://www.qor.example.org/\"", {K::Address, "http://www.qor.example.org/", ""}},
        {"www.example.org", {K::Address, "www.example.org", ""}},
        {"\"explorer \"[LECT]:\\page.html\"\"", {K::Explore, "/media/cd/page.html", ""}},
        {"\"explorer [LECT]:\\\"", {K::Explore, "/media/cd/", ""}},
        {"explorer http://x.org", {K::Address, "http://x.org", ""}},
        {"[CHEMIN]Menu2.exe", {K::SubMenu, "/media/cd/qor/Menu2.exe", ""}},
        {"\"Mon Dossier\\prog.exe\"", {K::Program, "/media/cd/Mon Dossier/prog.exe", ""}},
        {"\"notes.txt\"", {K::Document, "/media/cd/notes.txt", ""}},
        {"notepad.exe c:\\1.txt", {K::Program, "notepad.exe", "c:\\1.txt"}},
        {"\"\"", {K::Program, "", ""}},
    };
    for (const auto& [command, expected] : cases)
        EXPECT_EQ(classifyCommand(command, kPlace, system), expected) << command;

    // The sub-menu statement of a copy in a folder with a blank in its name,
    // run as the script's text has it once expanded.
    const MenuPlace copy = MenuPlace::of("E:\\Mon CD\\qor\\autorun.exe", '\\', "E");
    system.files["E:\\Mon CD\\qor\\Sous Menu.exe"] = "MZ\r\n" + compiledBytes(MenuProject());
    const ShellTarget sub{K::SubMenu, "E:\\Mon CD\\qor\\Sous Menu.exe", ""};
    EXPECT_EQ(classifyCommand("[CHEMIN]Sous Menu.exe", copy, system), sub);
    EXPECT_EQ(classifyCommand(expandPlaceholders("\"[CHEMIN]Sous Menu.exe\"", copy), copy, system), sub);
}

TEST(CommandLine, FileAndModeInAnyOrder)
{
    using M = PlayerCommand::Mode;
    const std::pair<std::vector<std::string>, PlayerCommand> cases[] = {
        {{}, {"", M::Show}},
        {{"a.exe"}, {"a.exe", M::Show}},
        {{"infos"}, {"", M::Infos}},
        {{"a.exe", "AUTEUR"}, {"a.exe", M::Author}},
        {{"auteur", "b.exe"}, {"b.exe", M::Author}},
    };
    for (const auto& [args, expected] : cases) {
        const PlayerCommand c = parseCommand(args);
        EXPECT_EQ(c.file, expected.file);
        EXPECT_EQ(c.mode, expected.mode);
    }
}

TEST(CommandLine, LoadingSaysWhyNoMenuCanBeShown)
{
    Log log;
    FakeSystem system(log);
    const std::string data = compiledBytes(MenuProject());
    system.files["/ok.exe"] = "MZ...(debut)\xAC...\r\n" + data;
    system.files["/nothing.exe"] = "MZ player without data (debut)\xAC (fin des donn\xE9" "es QOR)";
    system.files["/cut.exe"] = "MZ\r\n" + data.substr(0, data.size() / 2);
    system.files["/no-marker.exe"] = "MZ\r\n" + data.substr(0, data.rfind('\xAC')) + "\r\n";
    std::string wrongOrder = data;
    wrongOrder.replace(wrongOrder.find("[ParamsPlus]"), 12, "[Autre]xxxxx");
    system.files["/order.exe"] = wrongOrder;
    EXPECT_TRUE(std::holds_alternative<MenuData>(loadMenu(system, "/ok.exe")));
    const std::pair<std::string, std::string> cases[] = {
        {"/absent.exe", "Impossible de lire le fichier du menu :\r\n/absent.exe"},
        {"/nothing.exe", "Aucun menu n'est attaché à ce programme : il faut le créer avec l'éditeur QOR."},
        {"/cut.exe", "Aucun menu n'est attaché à ce programme : il faut le créer avec l'éditeur QOR."},
        {"/no-marker.exe", "Aucun menu n'est attaché à ce programme : il faut le créer avec l'éditeur QOR."},
        {"/order.exe", "Les données du menu sont endommagées (ligne 10 : « [ParamsPlus] » attendu)."},
    };
    for (const auto& [file, message] : cases) {
        LoadResult r = loadMenu(system, file);
        ASSERT_TRUE(std::holds_alternative<LoadFailure>(r)) << file;
        EXPECT_EQ(std::get<LoadFailure>(r).message, message) << file;
    }
}

TEST(CommandLine, AboutTextsNameTheProductAndTheAuthor)
{
    EXPECT_EQ(authorText({"Mon menu", "Jean"}), "Projet : Mon menu\r\nAuteur : Jean");
    EXPECT_NE(productText().find("QOR 2.0"), std::string::npos);
    EXPECT_NE(productText().find("http://"), std::string::npos);
}

}  // namespace
}  // namespace qor::player::test
