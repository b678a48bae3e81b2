// Every statement the editor's script assistant can write, run by the real
// menu player: a generator and the player's run-time objects can never
// disagree on a name, a member or a value.
#include <gtest/gtest.h>

#include <string>

#include "answering_dialogs.h"
#include "core/scripting/assistant_generators.h"
#include "core/scripting/assistant_menu.h"
#include "core/scripting/statement_block.h"
#include "player_fixture.h"

namespace qor::player::test {
namespace {

using qor::test::AnsweringDialogs;

class AssistantOnThePlayer : public PlayerTest {
protected:
    // Two buttons and two text boxes: the assistant's answers name number 2
    // and "Texte1"; the one path it is given is a file on the CD that reads
    // as text and as a picture, as the generators' statements need.
    void SetUp() override
    {
        view.images["/cd/mon dossier/fichier 1.txt"] = ImageSize{32, 32};
        MenuProject p = withButtons(2);
        ASSERT_TRUE(p.addText());
        ASSERT_TRUE(p.addText());
        system.files["/cd/mon dossier/fichier 1.txt"] = "contenu";
        run(p);
    }

    // The statement as the editor inserts it, comment lines included.
    void expectRuns(const StatementBlock& block, const std::string& context)
    {
        const std::size_t before = log.size() + view.messages.size();
        const std::string error = exec(statementBlock(block.title, block.statement));
        EXPECT_EQ(error, "") << context << "\n" << block.statement;
        EXPECT_GT(log.size() + view.messages.size(), before) << context << " changed nothing:\n" << block.statement;
        ++statements;
    }

    int statements = 0;
};

TEST_F(AssistantOnThePlayer, EveryStatementRunsAndReachesTheMenu)
{
    qor::test::forEveryAssistantStatement(assistantMenu(), [this](const StatementBlock& block, const std::string& context) {
        expectRuns(block, context);
    });
    // 57 generators, two of them families of three entries, and four cursor
    // objects with nine cursors each.
    EXPECT_EQ(statements, 57 + 2 * 2 + 4 * 9);
}

}  // namespace
}  // namespace qor::player::test
