// Placeholders, paths, shell commands and the command line.
#include <gtest/gtest.h>

#include "fake_ports.h"
#include "player/core/command_line.h"
#include "player/core/menu_place.h"
#include "player/core/shell_command.h"

namespace qor::player::test {
namespace {

const MenuPlace kPlace = MenuPlace::of("/media/cd/qor/autorun.exe", '/', "D");

TEST(MenuPlace, OfAMenuFileGivesItsFolderAndTheCdRoot)
{
    EXPECT_EQ(kPlace.playerFolder, "/media/cd/qor/");
    EXPECT_EQ(kPlace.cdRoot, "/media/cd/");
    const MenuPlace windows = MenuPlace::of("E:\\qor\\autorun.exe", '\\', "E");
    EXPECT_EQ(windows.playerFolder, "E:\\qor\\");
    EXPECT_EQ(windows.cdRoot, "E:\\");
}

TEST(MenuPlace, PlaceholdersExpandInAnyLetterCase)
{
    const std::pair<std::string, std::string> cases[] = {
        {"[LECT]:\\index.html", "D:\\index.html"},
        {"[lect] [Chemin]x.exe [JOINDRE]", "D /media/cd/qor/x.exe /media/cd/"},
        {"sans rien", "sans rien"},
        {"[LECT", "[LECT"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(expandPlaceholders(text, kPlace), expected) << text;
}

TEST(MenuPlace, PathsResolveUnderTheCdRootOrTheirBase)
{
    struct Case {
        std::string path;
        std::string base;
        std::string expected;
    };
    const Case cases[] = {
        {"[LECT]:\\rep\\fich.txt", kPlace.cdRoot, "/media/cd/rep/fich.txt"},
        {"d:/rep/fich.txt", kPlace.cdRoot, "/media/cd/rep/fich.txt"},
        {"D:", kPlace.cdRoot, "/media/cd/"},
        {"c:\\page.htm", kPlace.cdRoot, "c:/page.htm"},
        {"films\\a.avi", kPlace.cdRoot, "/media/cd/films/a.avi"},
        {"b1.bmp", kPlace.playerFolder, "/media/cd/qor/b1.bmp"},
        {"[CHEMIN]Sous.exe", kPlace.cdRoot, "/media/cd/qor/Sous.exe"},
        {"/etc/motd", kPlace.cdRoot, "/etc/motd"},
        {"", kPlace.cdRoot, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(resolveMenuPath(c.path, kPlace, c.base), c.expected) << c.path;
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
