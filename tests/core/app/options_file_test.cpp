#include <gtest/gtest.h>

#include "core/app/options_file.h"

namespace qor {
namespace {

const Appearance kCurrent{100, 200, 300, "Tahoma"};

TEST(OptionsFile, NineLinesFromTheMarksAndTheAppearance)
{
    AppState fresh;
    EXPECT_EQ(optionsFileLines(fresh.options, fresh.appearance),
              (std::vector<std::string>{"non", "oui", "oui", "-2147483633 ", "-2147483643 ", "-2147483630 ",
                                        "MS Sans Serif", "non", "oui"}));
    OptionMarks m{true, false, false, true, false};
    EXPECT_EQ(optionsFileLines(m, {16777215, 0, 255, ""}),
              (std::vector<std::string>{"oui", "non", "non", " 16777215 ", " 0 ", " 255 ", "", "oui", "non"}));
}

TEST(OptionsFile, FilesOfAnyLengthRead)
{
    auto lines = [](int n, std::vector<std::string> all) {
        all.resize(std::size_t(n));
        return all;
    };
    const std::vector<std::string> full = {"oui", "non", "oui", " 16777215 ", " 255 ", " 0 ", "Arial", "oui", "non"};
    struct Case {
        const char* what;
        std::vector<std::string> lines;
        OptionsFileContent expected;
    };
    const Case cases[] = {
        {"empty file: every option off but the multimedia one",
         {}, {false, false, false, std::nullopt, false, true}},
        {"three lines keep the appearance",
         lines(3, full), {true, false, true, std::nullopt, false, true}},
        {"four lines: the missing colours keep theirs, the font is empty",
         lines(4, full), {true, false, true, Appearance{16777215, 200, 300, ""}, false, true}},
        {"seven lines", lines(7, full), {true, false, true, Appearance{16777215, 255, 0, "Arial"}, false, true}},
        {"eight lines: line 9 missing counts as oui",
         lines(8, full), {true, false, true, Appearance{16777215, 255, 0, "Arial"}, true, true}},
        {"nine lines", full, {true, false, true, Appearance{16777215, 255, 0, "Arial"}, true, false}},
        {"garbage: not oui is off, unreadable numbers read 0, an empty line 9 is oui",
         {"OUI", "yes", "", "abc", "8,25", "1e999", "", "Oui", ""},
         {false, false, false, Appearance{0, 8, 300, ""}, false, true}},
        {"twenty lines: the extra lines are ignored",
         [&] { auto l = full; l.resize(20, "oui"); return l; }(),
         {true, false, true, Appearance{16777215, 255, 0, "Arial"}, true, false}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(readOptionsLines(c.lines, kCurrent), c.expected) << c.what;
}

}  // namespace
}  // namespace qor
