#include <gtest/gtest.h>

#include "core/scripting/new_procedure.h"
#include "core/scripting/statement_block.h"
#include "text/utf8.h"

namespace qor {
namespace {

std::string hashes(std::size_t n)
{
    return std::string(n, '#');
}

TEST(StatementBlock, FramesTheStatementBetweenTwoNamedLines)
{
    struct Case {
        const char* title;
        std::string header;
        std::string footer;
    } cases[] = {
        {"Fermer", "'" + hashes(26) + "Fermer " + hashes(26), "'" + hashes(24) + "Fin fermer " + hashes(24)},
        {"Police", "'" + hashes(26) + "Police " + hashes(26), "'" + hashes(24) + "Fin police " + hashes(24)},
        {"Maximiser", "'" + hashes(25) + "Maximiser" + hashes(25), "'" + hashes(23) + "Fin maximiser" + hashes(23)},
        // Characters, not bytes: "Désactiver minuteur" has 19.
        {"Désactiver minuteur", "'" + hashes(20) + "Désactiver minuteur" + hashes(20),
         "'" + hashes(18) + "Fin désactiver minuteur" + hashes(18)},
        {"", "'" + hashes(29) + " " + hashes(29), "'" + hashes(27) + "Fin  " + hashes(27)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(statementBlock(c.title, "x = 1"), "\r\n" + c.header + "\r\nx = 1\r\n" + c.footer + "\r\n")
            << c.title;
}

TEST(StatementBlock, BothLinesAreSixtyCharactersUpToFiftyFive)
{
    for (std::size_t length = 0; length <= 57; ++length) {
        const std::string block = statementBlock(std::string(length, 't'), "s");
        const std::size_t headerEnd = block.find("\r\n", 2);
        const std::size_t footerStart = block.find("\r\n", headerEnd + 2) + 2;
        EXPECT_EQ(headerEnd - 2, 60u) << length;
        // Past 55 the footer has no hashes left to give up.
        const std::size_t footer = block.size() - 2 - footerStart;
        EXPECT_EQ(footer, length <= 55 ? 60u : 62u) << length;
    }
    const std::string longTitle(70, 't');
    EXPECT_EQ(statementBlock(longTitle, "s"), "\r\n'" + longTitle + " \r\ns\r\n'Fin " + longTitle + " \r\n");
}

TEST(StatementBlock, ReplacesTheSelectionAndLeavesTheCaretBehindIt)
{
    const std::string block = statementBlock("Fermer", "Action.Text = \"Fermer\"");
    const std::size_t blockLength = utf8Length(block);
    struct Case {
        std::string text;
        TextSelection selection;
        std::string result;
        std::size_t caret;
    } cases[] = {
        {"", {0, 0}, block, blockLength},
        {"ab", {1, 0}, "a" + block + "b", 1 + blockLength},
        {"a\r\nXYZb", {3, 3}, "a\r\n" + block + "b", 3 + blockLength},
        {"éé", {1, 1}, "é" + block, 1 + blockLength},
        {"ab", {9, 4}, "ab" + block, 2 + blockLength},
    };
    for (const auto& c : cases)
        EXPECT_EQ(insertStatementBlock(c.text, c.selection, "Fermer", "Action.Text = \"Fermer\""),
                  (EditedScript{c.result, c.caret}))
            << c.text;
}

TEST(NewProcedure, AppendsASkeletonOfTheKindAndScopeChosen)
{
    struct Case {
        const char* text;
        const char* name;
        ProcedureKind kind;
        ProcedureScope scope;
        NewProcedure result;
    } cases[] = {
        {"x = 1", "Ma proc", ProcedureKind::Sub, ProcedureScope::Public,
         {"Ma_proc", "x = 1\r\nPublic Sub Ma_proc()\r\n\r\nEnd Sub", 29}},
        {"", "f", ProcedureKind::Function, ProcedureScope::Private,
         {"f", "\r\nPrivate Function f()\r\n\r\nEnd Function", 24}},
        {"é", " a  b ", ProcedureKind::Sub, ProcedureScope::Private,
         {"_a__b_", "é\r\nPrivate Sub _a__b_()\r\n\r\nEnd Sub", 25}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(appendProcedure(c.text, c.name, c.kind, c.scope), c.result) << c.name;
    EXPECT_FALSE(appendProcedure("x", "", ProcedureKind::Sub, ProcedureScope::Public));
}

}  // namespace
}  // namespace qor
