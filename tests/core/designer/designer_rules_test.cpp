#include <gtest/gtest.h>

#include "core/designer/designer_messages.h"
#include "core/designer/mouse_position.h"
#include "core/designer/property_checks.h"
#include "core/designer/worksheet_rules.h"

namespace qor {
namespace {

const ScreenMetrics kScreen{15360, 11520, 15, 15};

Phrases english()
{
    Phrases p;
    std::vector<std::string> list(43, "?");
    list[0] = "Too many buttons";
    list[1] = "Error";
    list[2] = "Type here the content of ";
    list[39] = "Worksheet";
    list[40] = "(full screen)";
    list[41] = "Delete button ";
    list[42] = "Delete";
    p.useLanguage(list);
    return p;
}

TEST(WorksheetRules, CaptionGivesTwipsAndUnroundedPixels)
{
    const Phrases french;
    struct Case {
        bool fullScreen;
        TwipsSize outer;
        ScreenMetrics screen;
        const Phrases& phrases;
        const char* caption;
    } cases[] = {
        {false, {9000, 7200}, kScreen, french, "Feuille de travail - 9000x7200 - 600x480px"},
        {false, {1000, 7200}, kScreen, french, "Feuille de travail - 1000x7200 - 66.66666x480px"},
        {false, {9000, 7200}, {0, 0, 12, 10}, french, "Feuille de travail - 9000x7200 - 750x720px"},
        {true, {9000, 7200}, kScreen, french, "Feuille de travail - (sera affiché en plein écran)"},
        {false, {9000, 7200}, kScreen, english(), "Worksheet - 9000x7200 - 600x480px"},
        {true, {9000, 7200}, kScreen, english(), "Worksheet - (full screen)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(worksheetCaption(c.fullScreen, c.outer, c.screen, c.phrases), c.caption);
}

TEST(WorksheetRules, HandlesStandJustOutsideTheFourCorners)
{
    const auto h = handlePositions({1000, 2000, 300, 150}, {105, 90});
    EXPECT_EQ(h[0], (TwipsPoint{895, 1910}));
    EXPECT_EQ(h[1], (TwipsPoint{1300, 1910}));
    EXPECT_EQ(h[2], (TwipsPoint{895, 2150}));
    EXPECT_EQ(h[3], (TwipsPoint{1300, 2150}));
}

TEST(WorksheetRules, DropAndPointerPositions)
{
    struct Case {
        TwipsPoint pointer, targetOrigin, grab, result;
    } drops[] = {
        // Over the background: the pointer less the grab offset.
        {{3000, 1500}, {0, 0}, {100, 50}, {2900, 1450}},
        // Over another button at (4000, 500): relative to the worksheet.
        {{30, 45}, {4000, 500}, {100, 50}, {3930, 495}},
        // Past the left edge: negative and kept.
        {{20, 20}, {0, 0}, {300, 15}, {-280, 5}},
        // Fractions stay: nothing snaps.
        {{12.5, 7.25}, {0, 0}, {0, 0}, {12.5, 7.25}},
    };
    for (const auto& d : drops)
        EXPECT_EQ(dropPosition(d.pointer, d.targetOrigin, d.grab), d.result);
    EXPECT_EQ(pointerOverElement({200.4f, 100}, {30.3, 0.5}), (TwipsPoint{231, 100}));
    EXPECT_EQ(pointerOverElement({0, 0}, {2.5, 3.5}), (TwipsPoint{2, 4}));
}

TEST(WorksheetRules, ResizedTextSpansToThePointerWhenThatIsASize)
{
    EXPECT_EQ(resizedTextSize({200, 200}, {3200, 1700}, kScreen), (TwipsSize{3000, 1500}));
    EXPECT_FALSE(resizedTextSize({200, 200}, {200, 1700}, kScreen));
    EXPECT_FALSE(resizedTextSize({200, 200}, {100, 1700}, kScreen));
    EXPECT_FALSE(resizedTextSize({0, 0}, {15 * 40000.0, 100}, kScreen));
}

TEST(PropertyChecks, TypedSizesAreNumbersTheWindowCanTake)
{
    struct Case {
        const char* w;
        const char* h;
        bool accepted;
    } cases[] = {
        {"9000", "7200", true}, {" 9000 ", "7200.5", true}, {"", "7200", false}, {"abc", "7200", false},
        {"1e400", "7200", false}, {"-0", "7200", false}, {"0", "7200", false}, {"-15", "7200", false},
        {"99999999999", "7200", false}, {"12,5", "7200", false}, {"491505", "7200", true},
        {"491520", "7200", false}, {"9000", "", false},
        // Each side showable, but the picture would take more than 256 MiB.
        {"491505", "491505", false}, {"122880", "122880", true}, {"122880", "122895", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sizeFromFields(c.w, c.h, kScreen).has_value(), c.accepted) << c.w << " x " << c.h;
    EXPECT_EQ(sizeFromFields("7200.5", "15", kScreen), (TwipsSize{7200.5, 15}));
}

TEST(PropertyChecks, TimerIntervalIsAWholeNumberFromOneTo60000)
{
    struct Case {
        const char* field;
        std::optional<std::string> result;
    } cases[] = {
        {"0", std::nullopt}, {"60000", "60000"}, {"12.9", "12"}, {"-250.7", "250"}, {"1", "1"},
        {"60001", std::nullopt}, {"", std::nullopt}, {"abc", std::nullopt}, {"1e400", std::nullopt},
        {"-0", std::nullopt}, {"99999999999", std::nullopt}, {"12,5", std::nullopt}, {" 500 ", "500"},
        {"0.9", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(checkedTimerInterval(c.field), c.result) << c.field;
}

TEST(PropertyChecks, PositionAnswersAreCutTowardsMinusInfinity)
{
    using K = PositionAnswer::Kind;
    struct Case {
        const char* answer;
        double ratio;
        PositionAnswer read;
    } cases[] = {
        {"12.7", 15, {K::Value, 12}}, {"-3.2", 15, {K::Value, -4}}, {"", 15, {K::Cancelled, 0}},
        {"abc", 15, {K::Invalid, 0}}, {"12,5", 15, {K::Invalid, 0}}, {"1e400", 15, {K::Invalid, 0}},
        {"-0", 15, {K::Value, 0}}, {"99999999999", 15, {K::Invalid, 0}}, {"99999999999", 1, {K::Invalid, 0}},
        {"32767", 1, {K::Value, 32767}}, {"32768", 1, {K::Invalid, 0}}, {"491505", 15, {K::Value, 491505}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(readPositionAnswer(c.answer, c.ratio), c.read) << c.answer;
    EXPECT_EQ(pixelDefault(200, 15), 13);
    EXPECT_EQ(pixelDefault(-200, 15), -14);
    EXPECT_EQ(pixelDefault(300, 15), 20);
}

TEST(PropertyChecks, MediaLocationBuildsTheFieldFromTheChosenFile)
{
    using L = MediaLocation;
    struct Case {
        MediaLocation where;
        const char* path;
        const char* folders;
        std::optional<std::string> field;
    } cases[] = {
        {L::CdRoot, "c:\\films\\a.avi", "", "a.avi"},
        {L::CdRoot, "/home/moi/films/a.avi", "", "a.avi"},
        {L::CdFolders, "c:\\films\\a.avi", "videos", "videos\\a.avi"},
        {L::CdFolders, "c:\\films\\a.avi", "videos\\", "videos\\a.avi"},
        {L::CdFolders, "/films/a.avi", "a\\b", "a\\b\\a.avi"},
        {L::CdFolders, "c:\\films\\a.avi", "", std::nullopt},
        {L::WhereItIs, "/home/moi/films/a.avi", "", "/home/moi/films/a.avi"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(mediaFieldFor(c.where, c.path, c.folders), c.field) << c.path << " " << c.folders;
}

TEST(DesignerMessages, FrenchOrThePhrasesOfTheLanguage)
{
    const Phrases french;
    const Phrases other = english();
    EXPECT_EQ(tooManyButtonsMessage(french),
              (Message{"Nombre maximum de bouton atteind !!!", "Erreur - trop de boutons :-)", MessageIcon::Critical}));
    EXPECT_EQ(tooManyButtonsMessage(other), (Message{"Too many buttons", "Error", MessageIcon::Critical}));
    EXPECT_EQ(deleteButtonQuestion(12, french).text, "Supprimer le bouton 12 ?");
    EXPECT_EQ(deleteButtonQuestion(12, other).text, "Delete button 12 ?");
    EXPECT_EQ(deleteButtonQuestion(12, other).title, "Delete");
    EXPECT_EQ(deleteButtonQuestion(12, french).buttons, MessageButtons::YesNo);
    EXPECT_EQ(deleteTextQuestion(3).text, "Supprimer le texte 3 ?");
    EXPECT_EQ(deleteTextQuestion(3).icon, MessageIcon::Question);
    EXPECT_EQ(newTextContent(4, french), "Tapez ici le contenu du Texte 4");
    EXPECT_EQ(newTextContent(4, other), "Type here the content of Texte 4");
}

}  // namespace
}  // namespace qor
