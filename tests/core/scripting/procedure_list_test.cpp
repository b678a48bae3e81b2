#include <gtest/gtest.h>

#include "core/scripting/procedure_list.h"

namespace qor {
namespace {

TEST(ProcedureList, ListsTheLinesThatBeginWithADeclaration)
{
    struct Case {
        std::string text;
        std::vector<ProcedureEntry> entries;
    } cases[] = {
        {"Public Sub A()\r\nEnd Sub\r\nsub B", {{"A()", "Public Sub A()"}, {"B", "sub B"}}},
        {"private sub C(x)\r\nPRIVATE FUNCTION D\r\nPublic Function E()\r\nfunction F()",
         {{"C(x)", "private sub C(x)"}, {"D", "PRIVATE FUNCTION D"}, {"E()", "Public Function E()"},
          {"F()", "function F()"}}},
        // The prefix and one more character go, whatever that character is.
        {"Sub\tG\r\nSubX()", {{"G", "Sub\tG"}, {"()", "SubX()"}}},
        {"Subé()", {{"()", "Subé()"}}},
        {"function é()", {{"é()", "function é()"}}},
        // A line no longer than its prefix, an indented one, a call.
        {"sub\r\n  Sub H()\r\nCall I()\r\nEnd Sub", {}},
        // Any line that begins so counts, even when it declares nothing.
        {"subtotal = 1", {{"otal = 1", "subtotal = 1"}}},
        // Lines are broken at CR LF only.
        {"Sub J\nSub K", {{"J\nSub K", "Sub J\nSub K"}}},
        {"", {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(listProcedures(c.text), c.entries) << c.text;
}

TEST(ProcedureList, PickingANameFindsTheStartOfItsDeclaration)
{
    const std::string text = "' Sub A\r\nx = 1\r\nSub B()\r\nEnd Sub\r\nSub A\r\nEnd Sub";
    const auto entries = listProcedures(text);
    ASSERT_EQ(entries.size(), 2u);
    struct Case {
        std::string text;
        const char* chosen;
        std::optional<std::size_t> caret;
    } cases[] = {
        {text, "B()", 16},
        // The first place the text holds the declaration line, a comment too.
        {text, "A", 2},
        {text, "Procédures", std::nullopt},
        {text, "b()", std::nullopt},
        // The text changed since the list was built.
        {"Sub C", "B()", std::nullopt},
        {"Su", "B()", std::nullopt},
        // Positions count characters, CR LF as two.
        {"' é\r\nSub B()", "B()", 5},
    };
    for (const auto& c : cases)
        EXPECT_EQ(procedureCaret(c.text, entries, c.chosen), c.caret) << c.chosen;
}

TEST(ProcedureList, TheFirstEntryOfANameWins)
{
    const std::vector<ProcedureEntry> entries{{"X", "Sub X"}, {"X", "Function X"}};
    EXPECT_EQ(procedureCaret("Function X\r\nSub X", entries, "X"), 12u);
}

}  // namespace
}  // namespace qor
