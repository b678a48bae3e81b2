#include <gtest/gtest.h>

#include "core/app/maintenance.h"
#include "core/app/options_file.h"
#include "core/app/plugins.h"
#include "fake_dialogs.h"
#include "fake_settings.h"
#include "temp_dir.h"

namespace qor {
namespace {

TEST(Maintenance, EachCodeRepairsAndReports)
{
    struct Case {
        const char* answer;
        const char* message;       // "" = no message
        const char* plugins;       // plugins.ini afterwards
        const char* options;       // qor_options.ini afterwards
        bool appearancesRewritten;
        const char* manualFolder;
    };
    const char* kPlugins = "[DEBUT]\r\nCalc\r\ns1:calc\r\n";
    const char* kOptions = "oui\r\n";
    const Case cases[] = {
        {"0", "", kPlugins, kOptions, false, "/doc/"},
        {"", "", kPlugins, kOptions, false, "/doc/"},
        {"abc", "", kPlugins, kOptions, false, "/doc/"},
        {"5", "", kPlugins, kOptions, false, "/doc/"},
        {"1.5", "", kPlugins, kOptions, false, "/doc/"},
        {"1", "Lien QOR <-> Manuel re-initialisé !", kPlugins, kOptions, false, ""},
        {" 2 ", "Fichier plugins.ini vidé", "", kOptions, false, "/doc/"},
        {"3", "Apparences personnalisées détruitres\r\n\r\nApparences par défaut re-créés", kPlugins, kOptions, true, "/doc/"},
        {"4", "Fichier qor_options.ini vidé", kPlugins, "", false, "/doc/"},
        {"6", "OCXs enregistrés !", kPlugins, kOptions, false, "/doc/"},
        {"7", "OCXs désenregistrés !", kPlugins, kOptions, false, "/doc/"},
    };
    for (const auto& c : cases) {
        test::TempDir dir;
        dir.write(kPluginsFileName, kPlugins);
        dir.write(kOptionsFileName, kOptions);
        dir.write(kAppearancesFileName, "[App]\r\nMienne\r\n1\r\n2\r\n3\r\npara\r\npara\r\n");
        AppState state;
        state.programFolder = dir.folder();
        test::FakeSettings settings;
        settings.values[{"QOR", "Manuel", "Chemin"}] = "/doc/";
        test::FakeDialogs dialogs;
        dialogs.inputAnswers.push_back(c.answer);

        runMaintenance(state, dialogs, settings);

        ASSERT_EQ(dialogs.inputs.size(), 1u);
        EXPECT_EQ(dialogs.inputs[0],
                  (test::FakeDialogs::InputRequest{"Code débogage ?\r\n\r\n#", "QOR - Mode débogage", "0"}));
        if (c.message[0]) {
            ASSERT_EQ(dialogs.messages.size(), 1u) << c.answer;
            EXPECT_EQ(dialogs.messages[0], (Message{c.message, "QOR - Mode débogage", MessageIcon::Information}));
        } else {
            EXPECT_TRUE(dialogs.messages.empty()) << c.answer;
        }
        EXPECT_EQ(dir.read(kPluginsFileName), c.plugins) << c.answer;
        EXPECT_EQ(dir.read(kOptionsFileName), c.options) << c.answer;
        EXPECT_EQ(dir.read(kAppearancesFileName).find("Mienne") == std::string::npos, c.appearancesRewritten)
            << c.answer;
        EXPECT_EQ(settings.qor("Manuel", "Chemin"), c.manualFolder) << c.answer;
    }
}

TEST(Maintenance, ARepairThatFailsShowsItsError)
{
    test::TempDir dir;
    AppState state;
    state.programFolder = dir.folder() + "absent/";
    test::FakeSettings settings;
    test::FakeDialogs dialogs;
    dialogs.inputAnswers.push_back("2");
    runMaintenance(state, dialogs, settings);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.lastMessage(),
              (Message{"Erreur : Chemin d'accès introuvable", "Erreur n°76", MessageIcon::Critical}));
}

}  // namespace
}  // namespace qor
