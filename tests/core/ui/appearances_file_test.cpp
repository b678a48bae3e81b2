#include <gtest/gtest.h>

#include "core/ui/appearances_file.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

std::vector<std::string> record(std::string name, std::string back, std::string field, std::string text,
                                std::string font)
{
    return {"[App]", name, back, field, text, font, "para"};
}

TEST(AppearancesFile, DefaultFileHoldsTheSixRecordsAndReadsBack)
{
    test::TempDir dir;
    ASSERT_TRUE(writeDefaultAppearancesFile(dir.path()).ok());
    const std::string bytes = dir.read(kAppearancesFileName);
    // Numbers without blanks, "para" for the default font, CR LF everywhere.
    const std::string first = "[App]\r\nBleu\r\n16755370\r\n10461183\r\n0\r\npara\r\npara\r\n";
    EXPECT_EQ(bytes.substr(0, first.size()), first);
    EXPECT_NE(bytes.find("[App]\r\nSombre2\r\n5789784\r\n16744576\r\n65280\r\npara\r\npara\r\n"), std::string::npos);
    EXPECT_EQ(splitLines(bytes).size(), 42u);

    AppearanceList list = readAppearancesFile(dir.path() / kAppearancesFileName);
    EXPECT_FALSE(list.error);
    EXPECT_EQ(list.records, defaultAppearanceRecords());
    ASSERT_EQ(list.records.size(), 6u);
    EXPECT_EQ(list.records[4].name, "Sombre");
    EXPECT_EQ(list.records[4].appearance, (Appearance{6392715, 2208689, 16777215, ""}));
}

TEST(AppearancesFile, ReadingIsLenientAndStopsOnBrokenRecords)
{
    struct Case {
        const char* what;
        std::vector<std::string> lines;
        std::vector<AppearanceRecord> records;
        int error;  // 0 = none
    };
    auto join = [](std::initializer_list<std::vector<std::string>> parts) {
        std::vector<std::string> out;
        for (const auto& p : parts)
            out.insert(out.end(), p.begin(), p.end());
        return out;
    };
    const Case cases[] = {
        {"empty file", {}, {}, 0},
        {"saved record with blanks and a font",
         record("Mine", " 255 ", " 65280 ", "  16711680 ", "Arial"), {{"Mine", {255, 65280, 16711680, "Arial"}}}, 0},
        {"numbers are rounded half to even and read by their leading number",
         record("R", "12.5", "13.5abc", "x", "para"), {{"R", {12, 14, 0, ""}}}, 0},
        {"stray lines between records are skipped",
         join({{"note"}, record("A", "1", "2", "3", "para"), {"", "junk"}, record("B", "4", "5", "6", "para")}),
         {{"A", {1, 2, 3, ""}}, {"B", {4, 5, 6, ""}}}, 0},
        {"a record cut short keeps the records before it",
         join({record("A", "1", "2", "3", "para"), {"[App]", "B", "4"}}), {{"A", {1, 2, 3, ""}}}, err::InputPastEnd},
        {"the reserved seventh line is still needed",
         join({{"[App]", "A", "1", "2", "3", "para"}}), {}, err::InputPastEnd},
        {"a colour beyond 32 bits", record("Big", "99999999999", "0", "0", "para"), {}, err::Overflow},
    };
    for (const auto& c : cases) {
        AppearanceList list = readAppearances(c.lines);
        EXPECT_EQ(list.records, c.records) << c.what;
        EXPECT_EQ(list.error ? list.error->number : 0, c.error) << c.what;
    }
}

TEST(AppearancesFile, TheTableHoldsAHundredAndOneSlotsStrayLinesIncluded)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 100; ++i)
        lines.push_back("stray");
    for (int i = 0; i < 3; ++i) {
        auto r = record("N" + std::to_string(i), "1", "2", "3", "para");
        lines.insert(lines.end(), r.begin(), r.end());
    }
    AppearanceList list = readAppearances(lines);
    ASSERT_EQ(list.records.size(), 1u);  // slot 100 is the last one
    EXPECT_EQ(list.records[0].name, "N0");
    ASSERT_TRUE(list.error);
    EXPECT_EQ(list.error->number, err::SubscriptOutOfRange);
}

TEST(AppearancesFile, MissingFileAndItsMessage)
{
    test::TempDir dir;
    AppearanceList list = readAppearancesFile(dir.path() / kAppearancesFileName);
    ASSERT_TRUE(list.error);
    EXPECT_EQ(list.error->number, err::FileNotFound);
    const Message m = appearanceReadErrorMessage(makeError(err::FileNotFound));
    EXPECT_EQ(m.text, "Erreur :Fichier introuvable");
    EXPECT_EQ(m.title, "Erreur n°53");
    EXPECT_EQ(m.icon, MessageIcon::Critical);
}

TEST(AppearancesFile, DefaultAppearanceUsesTheSystemColours)
{
    // Written as negative numbers in the options file.
    EXPECT_EQ(defaultAppearance(), (Appearance{-2147483633, -2147483643, -2147483630, ""}));
}

}  // namespace
}  // namespace qor
