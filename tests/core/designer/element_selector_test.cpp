#include <gtest/gtest.h>

#include "core/designer/element_selector.h"

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

}  // namespace
}  // namespace qor
