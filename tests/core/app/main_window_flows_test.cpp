#include <gtest/gtest.h>

#include <filesystem>

#include "core/app/main_window_flows.h"
#include "core/app/web_pages.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "fake_settings.h"
#include "fake_shell_view.h"
#include "model/product.h"
#include "temp_dir.h"

namespace qor {
namespace {

struct MainWindowFixture : ::testing::Test {
    test::TempDir dir;
    AppState state;
    test::FakeShellView view;
    test::FakeDialogs dialogs;
    test::FakeDesktop desktop;
    test::FakeSettings store;
    UserSettings settings{state, store, dialogs};
    OptionCommands options{state, view, dialogs};
    RecentFiles recent{settings, view};
    Plugins plugins{state, view, dialogs, desktop};
    MainWindowFlows window{state, view, dialogs, desktop, settings, options, recent, plugins};

    MainWindowFixture()
    {
        state.programFolder = dir.folder();
        state.executableFile = "qor";
    }

    std::vector<std::string> languageList(std::initializer_list<std::pair<int, const char*>> phrases)
    {
        std::vector<std::string> list(44, "?");
        for (auto [n, text] : phrases)
            list[std::size_t(n)] = text;
        return list;
    }
};

TEST_F(MainWindowFixture, LoadStepFillsTheWindowAndWritesTheBookkeeping)
{
    std::filesystem::create_directories(dir.path() / "langues" / "English");
    dir.write("qor_options.ini", "oui\r\n");
    dir.write("plugins.ini", "[DEBUT]\r\nCalc\r\ns1:calc\r\n");
    store.values[{"QOR", "FichiersRecents", "Fichier1"}] = "/p/a.qor";
    state.interfaceLanguage = "English";

    window.load({"14:05:09", "23/11/2026"});

    EXPECT_EQ(view.applicationTitle, "QOR - création");
    EXPECT_EQ(view.mainCaption, "QOR v" + product::versionText() + " - créateur de menus");
    EXPECT_EQ(view.languages, (std::vector<std::string>{"Français", "English"}));
    EXPECT_EQ(view.checkedLanguage, 1);
    EXPECT_TRUE(state.options.precisePointer);
    EXPECT_EQ(view.recentFiles, (std::vector<RecentFileEntry>{{1, "/p/a.qor", "/p/a.qor", true}}));
    ASSERT_EQ(view.titleBoxes.size(), 6u);
    EXPECT_EQ(view.titleBoxes[1].left, 120 + 600 + 240);
    EXPECT_EQ(view.plugins, (std::vector<PluginCommand>{{"Calc", "s1:calc"}}));

    struct Case { const char* key; std::string value; };
    const Case cases[] = {
        {"Chemin", dir.folder()}, {"NomExe", "qor"}, {"Version", product::versionText()},
        {"DernHeure", "14:05:09"}, {"DernDate", "23/11/2026"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(store.qor("General", c.key), c.value) << c.key;
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(MainWindowFixture, LoadFailuresAreShownAndTheLoadGoesOn)
{
    dir.write("plugins.ini", "[DEBUT]\r\nOrphelin\r\n");
    std::filesystem::create_directory(dir.path() / "qor_options.ini");  // unreadable
    store.writable = false;  // bookkeeping is not worth a message

    window.load({"", ""});

    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[0].title, "Erreur");
    EXPECT_EQ(dialogs.messages[1], (Message{"Lecture au-delà de la fin du fichier", "Erreur", MessageIcon::Critical}));
    EXPECT_FALSE(view.mainCaption.empty());
    EXPECT_EQ(view.titleBoxes.size(), 6u);
}

TEST_F(MainWindowFixture, CaptionInAnotherLanguage)
{
    state.phrases.useLanguage(languageList({{4, "menu maker"}}));
    EXPECT_EQ(window.caption(), "QOR v" + product::versionText() + " - menu maker");
}

TEST_F(MainWindowFixture, ManualAsksForItsFolderOnceAndCountsOpenings)
{
    const std::string manual = dir.folder() + "manuel";
    dir.write("manuel/index.htm", "<html/>");
    dir.write("vide/lisez-moi.txt", "");

    // A folder without index.htm is refused and not stored.
    dialogs.folderAnswers.push_back(dir.folder() + "vide");
    window.openManual();
    EXPECT_EQ(dialogs.folderPrompts,
              (std::vector<std::string>{"Veuillez choisir le dossier dans lequel vous avez installé le manuel de QOR :"}));
    EXPECT_EQ(dialogs.lastMessage(), (Message{"Répertoire incorrect !", "Erreur", MessageIcon::Critical}));
    EXPECT_EQ(store.qor("Manuel", "Chemin"), "<unset>");
    EXPECT_TRUE(desktop.opened.empty());

    // Cancel stops quietly.
    dialogs.folderAnswers.push_back(std::nullopt);
    window.openManual();
    EXPECT_EQ(dialogs.messages.size(), 1u);

    dialogs.folderAnswers.push_back(manual);  // no trailing separator: one is added
    window.openManual();
    EXPECT_EQ(store.qor("Manuel", "Chemin"), manual + "/");
    EXPECT_EQ(store.qor("Manuel", "FoisDem"), "1");

    window.openManual();  // no question the second time
    EXPECT_EQ(dialogs.folderPrompts.size(), 3u);
    EXPECT_EQ(store.qor("Manuel", "FoisDem"), "2");
    const test::FakeDesktop::Opened opened{manual + "/index.htm", WindowShow::Normal};
    EXPECT_EQ(desktop.opened, (std::vector<test::FakeDesktop::Opened>{opened, opened}));
}

TEST_F(MainWindowFixture, ManualWithAnUnwritableStoreStillOpens)
{
    dir.write("manuel/index.htm", "<html/>");
    store.writable = false;
    dialogs.folderAnswers.push_back(dir.folder() + "manuel/");
    window.openManual();
    EXPECT_EQ(desktop.opened.size(), 1u);
    EXPECT_EQ(dialogs.messages, (std::vector<Message>{settingsNotSavedMessage()}));
}

TEST_F(MainWindowFixture, WebPagesBugReportAndVersionCheck)
{
    const std::string site(product::webSite);
    window.openWebPage(CommandId::Faq);
    window.openWebPage(CommandId::Examples);
    window.openWebPage(CommandId::Tips);
    window.openWebPage(CommandId::Quit);  // not a web page
    dialogs.inputAnswers = {"bouton ne marche pas é", ""};
    window.reportBug();
    window.reportBug();  // empty answer: nothing opened
    window.checkVersion();
    state.interfaceLanguage = "English";
    window.checkVersion();

    std::vector<std::string> addresses;
    for (const auto& o : desktop.opened) {
        EXPECT_EQ(o.show, WindowShow::Normal);
        addresses.push_back(o.target);
    }
    const std::string version = product::fullVersionText();
    EXPECT_EQ(addresses, (std::vector<std::string>{
                             site + "page.php?ext=php&q=faq",
                             site + "page.php?ext=php&q=galerie",
                             site + "page.php?ext=php&q=trucs_astuces",
                             site + "br.php?bug=bouton%20ne%20marche%20pas%20é",
                             site + "version.php?moi=" + version + "&langue=",
                             site + "version.php?moi=" + version + "&langue=English",
                         }));
    EXPECT_EQ(dialogs.inputs[0], (test::FakeDialogs::InputRequest{"Merci de décrire le bug ci-dessous :",
                                                                   "Report de bug", ""}));

    state.phrases.useLanguage(languageList({{9, "Describe the bug:"}}));
    dialogs.inputAnswers = {""};
    window.reportBug();
    EXPECT_EQ(dialogs.inputs.back(), (test::FakeDialogs::InputRequest{"Describe the bug:", "Signaler un bug", ""}));
}

TEST_F(MainWindowFixture, SupportMessage)
{
    window.showSupport();
    const Message& m = dialogs.lastMessage();
    EXPECT_EQ(m.title, "Assistance");
    EXPECT_EQ(m.icon, MessageIcon::Information);
    const std::string start =
        "QOR - créateur de menus\r\n¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯\r\nAuteur : ";
    EXPECT_EQ(m.text.substr(0, start.size()), start);
    for (const char* part : {"\r\nAssistance :\r\n¯¯¯¯¯¯¯¯¯¯¯¯\r\n",
                             "\r\nSi vous avez le moindre problème, question ou suggestion,\r\n"
                             "n'hésitez pas à nous contacter :\r\n",
                             "contact@qor.example.org", "téléphone", "courrier"})
        EXPECT_NE(m.text.find(part), std::string::npos) << part;
}

TEST_F(MainWindowFixture, TitlesHighlightAndPopUpTheirMenu)
{
    window.load({"", ""});
    state.appearance = {10, 20, 30, ""};
    window.pointerOverTitle(2);
    EXPECT_EQ(view.highlightedTitle, 2);
    EXPECT_EQ(view.highlightColours, (TitleColours{30, 10}));
    window.pressTitle(1);
    ASSERT_EQ(view.popUps.size(), 1u);
    EXPECT_EQ(view.popUps[0].index, 1);
    EXPECT_EQ(view.popUps[0].left, 960);  // 120 + 600 + 240
    EXPECT_EQ(view.popUps[0].top, 240);   // 15 + 225
    window.resetTitles();
    EXPECT_EQ(view.highlightedTitle, -1);
}

}  // namespace
}  // namespace qor
