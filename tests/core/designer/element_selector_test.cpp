#include <gtest/gtest.h>

#include "core/designer/element_selector.h"

#include <string>
#include <vector>

namespace qor {
namespace {

// The panel parses these back: the kind from the last two characters and
// the number from what follows the word, so a stray blank breaks it.
TEST(ElementSelector, EntriesCarryNumberAndKindWhereThePanelReadsThem)
{
    struct Case {
        int number;
        const char* kind;
        const char* entry;
    } cases[] = {
        {1, "code", "Bouton 1 (code)"},
        {4, "vidéo", "Bouton 4 (vidéo)"},
        {12, "quitter", "Bouton 12 (quitter)"},
        {99, "", "Bouton 99 ()"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(buttonEntry(c.number, c.kind), c.entry);
    EXPECT_EQ(textEntry(2), "Texte 2");
    EXPECT_EQ(textEntry(32767), "Texte 32767");
}

// The refresh reads three characters from the 8th on, as far as they form
// a number, and the sub-panel from the last two characters.
TEST(ElementSelector, EntriesParseBackToNumberAndSubPanel)
{
    using K = EntryKind;
    using P = ButtonPanelKind;
    struct Case {
        const char* entry;
        ParsedEntry parsed;
    } cases[] = {
        {"Feuille de travail", {K::Worksheet, -1, P::None}},
        {"Bouton 7 (code)", {K::Button, 7, P::Code}},
        {"Bouton 42 (vidéo)", {K::Button, 42, P::Media}},
        {"Bouton 99 (quitter)", {K::Button, 99, P::None}},
        {"Bouton 100 (code)", {K::Button, 100, P::Code}},
        {"bouton 3 (code)", {K::Button, 3, P::Code}},
        {"Texte 2", {K::Text, 2, P::None}},
        {"Texte 32767", {K::Text, 32767, P::None}},
        {"TEXTE 5", {K::Text, 5, P::None}},
        {"Autre chose", {K::Other, -1, P::None}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parseEntry(c.entry), c.parsed) << c.entry;
}

// The walk takes the first entry whose start matches "Bouton " & n, so the
// entry of button 1 goes and that of button 12, listed after it, stays.
TEST(ElementSelector, DeletionRemovesTheFirstEntryThatStartsWithTheNumber)
{
    const std::vector<std::string> entries{"Feuille de travail", "Bouton 1 (code)", "Texte 1", "Bouton 12 (vidéo)",
                                           "Texte 12"};
    struct Case {
        const char* prefix;
        int number;
        int index;
    } cases[] = {
        {"Bouton ", 1, 1}, {"Bouton ", 12, 3}, {"Texte ", 1, 2}, {"Texte ", 12, 4},
        {"Bouton ", 2, -1}, {"Texte ", 3, -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(entryToRemove(entries, c.prefix, c.number), c.index) << c.prefix << c.number;
    // Listed after button 12, button 1's entry is not the one found first.
    EXPECT_EQ(entryToRemove({"Bouton 12 (code)", "Bouton 1 (code)"}, "Bouton ", 1), 0);
}

}  // namespace
}  // namespace qor
