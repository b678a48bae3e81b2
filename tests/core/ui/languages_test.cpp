#include <gtest/gtest.h>

#include <filesystem>

#include "core/ui/languages.h"
#include "temp_dir.h"

namespace qor {
namespace {

TEST(Languages, InstalledLanguagesAreTheFoldersUnderLangues)
{
    test::TempDir dir;
    EXPECT_TRUE(installedLanguages(dir.path()).empty());  // no "langues" folder at all
    std::filesystem::create_directories(dir.path() / "langues" / "English");
    std::filesystem::create_directories(dir.path() / "langues" / "Deutsch");
    dir.write("langues/lisez-moi.txt", "not a language");
    EXPECT_EQ(installedLanguages(dir.path()), (std::vector<std::string>{"Deutsch", "English"}));
}

TEST(Languages, TheSubmenuChecksTheCurrentLanguage)
{
    const std::vector<std::string> installed = {"Deutsch", "English"};
    struct Case { std::string current; int checked; };
    const Case cases[] = {{"", 0}, {"English", 2}, {"Deutsch", 1}, {"Klingon", 0}, {"english", 0}};
    for (const auto& c : cases) {
        LanguageMenu menu = languageMenu(installed, c.current);
        EXPECT_EQ(menu.captions, (std::vector<std::string>{"Français", "Deutsch", "English"}));
        EXPECT_EQ(menu.checked, c.checked) << c.current;
    }
    const LanguageMenu menu = languageMenu(installed, "");
    EXPECT_EQ(languageOfItem(menu, 0), std::optional<std::string>(""));
    EXPECT_EQ(languageOfItem(menu, 2), std::optional<std::string>("English"));
    EXPECT_EQ(languageOfItem(menu, 3), std::nullopt);
    EXPECT_EQ(languageOfItem(menu, -1), std::nullopt);
}

TEST(Languages, ChangedMessageInFrenchAndThroughThePhraseList)
{
    Phrases phrases;
    Message m = languageChangedMessage(phrases);
    EXPECT_EQ(m, (Message{"Langue modifiée, veuillez redémarrer QOR.", "Langue/Language", MessageIcon::Information}));
    std::vector<std::string> list(44, "?");
    list[43] = "Language changed, please restart QOR.";
    phrases.useLanguage(list);
    EXPECT_EQ(languageChangedMessage(phrases).text, "Language changed, please restart QOR.");
}

}  // namespace
}  // namespace qor
