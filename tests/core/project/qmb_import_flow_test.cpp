#include <gtest/gtest.h>

#include <filesystem>

#include "core/project/qmb_import.h"
#include "fake_dialogs.h"
#include "temp_dir.h"

namespace qor {
namespace {

// A converter that writes nothing and answers as told.
class FakeQmbConverter : public QmbConverter {
public:
    Status createStatus;
    std::optional<Error> conversionError;
    std::vector<std::pair<std::string, std::string>> conversions;
    int created = 0, released = 0;

    Status create() override { ++created; return createStatus; }
    Result<std::string> qmbToQor(const std::string& qmb, const std::string& folder) override
    {
        conversions.push_back({qmb, folder});
        if (conversionError)
            return *conversionError;
        return folder + "converti.qor";
    }
    void release() override { ++released; }
};

struct QmbFixture : ::testing::Test {
    test::TempDir dir;
    test::FakeDialogs dialogs;
    FakeQmbConverter converter;
    std::vector<std::string> loads;
    QmbImport import{converter, dialogs, [this](const std::string& p) { loads.push_back(p); }};
};

TEST_F(QmbFixture, WithoutTheConverterOnlyNotInstalledIsShown)
{
    MissingQmbConverter missing;
    QmbImport none{missing, dialogs, [this](const std::string& p) { loads.push_back(p); }};
    none.run("/anciens/demo.qmb");
    EXPECT_EQ(dialogs.messages,
              (std::vector<Message>{Message{"La prise en charge du format QMB n'est pas installée !\r\n"
                                            "Rendez-vous sur le site officiel, rubrique téléchargements.",
                                            "", MessageIcon::Information}}));
    EXPECT_TRUE(dialogs.folderPrompts.empty());
    EXPECT_TRUE(loads.empty());
}

TEST_F(QmbFixture, ConvertsIntoASubfolderNamedAfterTheFileAndLoads)
{
    dialogs.folderAnswers = {dir.folder() + "projets"};
    std::filesystem::create_directory(dir.path() / "projets");
    import.run("/anciens/demo.QMB");

    const std::string target = dir.folder() + "projets/demo/";
    EXPECT_EQ(dialogs.folderPrompts,
              (std::vector<std::string>{"Ce projet a besoin d'être ré-enregistré au format QOR, choisissez un dossier :"}));
    EXPECT_TRUE(std::filesystem::is_directory(target));
    EXPECT_EQ(converter.conversions, (std::vector<std::pair<std::string, std::string>>{{"/anciens/demo.QMB", target}}));
    EXPECT_EQ(converter.released, 1);
    EXPECT_EQ(dialogs.messages, (std::vector<Message>{qmbConvertedMessage()}));
    EXPECT_EQ(qmbConvertedMessage().title, "Conversion terminée");
    EXPECT_EQ(loads, (std::vector<std::string>{target + "converti.qor"}));
}

TEST_F(QmbFixture, FailuresShowTheirTextAndNumberAndLoadNothing)
{
    struct Case {
        const char* what;
        std::optional<std::string> folder;
        std::optional<Error> conversionError;
        Message message;
    };
    const Case cases[] = {
        {"picker cancelled", std::nullopt, std::nullopt, {"Erreur dossier !", "Erreur n°99", MessageIcon::Critical}},
        {"empty folder", "", std::nullopt, {"Erreur dossier !", "Erreur n°99", MessageIcon::Critical}},
        {"the subfolder exists already", dir.folder(), std::nullopt,
         {"Ce fichier existe déjà", "Erreur n°58", MessageIcon::Critical}},
        {"the parent folder is missing", dir.folder() + "absent/", std::nullopt,
         {"Fichier introuvable", "Erreur n°53", MessageIcon::Critical}},
        {"the converter fails", dir.folder() + "neuf", Error{5, "Conversion impossible"},
         {"Conversion impossible", "Erreur n°5", MessageIcon::Critical}},
    };
    std::filesystem::create_directory(dir.path() / "demo");
    std::filesystem::create_directory(dir.path() / "neuf");
    for (const auto& c : cases) {
        dialogs.messages.clear();
        converter.conversionError = c.conversionError;
        converter.released = 0;
        dialogs.folderAnswers = {c.folder};
        import.run("/anciens/demo.qmb");
        EXPECT_EQ(dialogs.messages, (std::vector<Message>{c.message})) << c.what;
        EXPECT_EQ(converter.released, 1) << c.what;
    }
    EXPECT_TRUE(loads.empty());

    converter.createStatus = makeError(err::PermissionDenied);
    dialogs.messages.clear();
    import.run("/anciens/demo.qmb");
    EXPECT_EQ(dialogs.lastMessage().title, "Erreur n°70");
}

}  // namespace
}  // namespace qor
