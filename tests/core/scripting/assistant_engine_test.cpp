#include <gtest/gtest.h>

#include <utility>

#include "core/scripting/assistant_generators.h"
#include "core/scripting/assistant_menu.h"
#include "core/scripting/statement_block.h"
#include "answering_dialogs.h"
#include "menu_runtime_objects.h"

namespace qor {
namespace {

using test::AnsweringDialogs;
using test::forEveryAssistantStatement;
using test::kAnyPath;

// Runs a block as the editor inserts it, comment lines included; every
// statement has to reach the menu (an assignment, a message, a request).
std::vector<std::string> expectRuns(const StatementBlock& block, const std::string& context)
{
    test::MenuRuntime menu;
    menu.host.files[kAnyPath] = "contenu";
    const script::RunResult result = menu.run(statementBlock(block.title, block.statement));
    EXPECT_TRUE(result.ok()) << context << ": error " << (result.error ? result.error->number : 0) << " "
                             << (result.error ? result.error->description : "") << "\n"
                             << block.statement;
    EXPECT_FALSE(menu.effects().empty()) << context << " did nothing:\n" << block.statement;
    return menu.effects();
}

TEST(AssistantStatements, EveryStatementRunsOnTheMenuObjects)
{
    int statements = 0;
    forEveryAssistantStatement(assistantMenu(), [&](const StatementBlock& block, const std::string& context) {
        expectRuns(block, context);
        ++statements;
    });
    // 57 generators, two of them families of three entries, and four cursor
    // objects with nine cursors each.
    EXPECT_EQ(statements, 57 + 2 * 2 + 4 * 9);
}

TEST(AssistantStatements, EveryMessageTypeRuns)
{
    for (const char* type : {"exclamation", "information", "question", "critical", ""}) {
        AnsweringDialogs dialogs(type);
        const auto block = runAssistantEntry("msg", -1, dialogs).block;
        ASSERT_TRUE(block) << type;
        const auto log = expectRuns(*block, std::string("msg ") + type);
        ASSERT_EQ(log.size(), 1u) << type;
        EXPECT_EQ(log[0], "MsgBox Il dit \"oui\"\n\r\u00E0 tous");
    }
}

TEST(AssistantStatements, StatementsReachTheObjectsTheyName)
{
    struct Case {
        const char* name;
        int index;
        std::vector<std::string> log;
    } cases[] = {
        {"ouvCD_mnu", -1, {"Action.Tag=E", "Action.Text=OuvrirCD"}},
        {"forme_sousmenu", 2, {"Bordure.Shape=2"}},
        {"chgertxt_mnu", -1, {"Texte2.Text=Ligne 1\r\nLigne 2"}},
        {"xchger_pos_bmnu", -1, {"Bouton2.Left=10"}},
        {"img_changer_mnu", -1, {"ImageFond.Picture=Picture:[LECT]:\\mon dossier\\fichier 1.txt"}},
        {"texte_mnu", -1,
         {"OpenTextFile [LECT]:\\mon dossier\\fichier 1.txt,1", "Texte1.Text=contenu", "Close"}},
        {"exe_", -1, {"Run \"[LECT]:\\mon dossier\\fichier 1.txt\""}},
        {"sousmenu_princ", -1, {"Run [CHEMIN][LECT]:\\mon dossier\\fichier 1.txt.exe"}},
    };
    for (const auto& c : cases) {
        AnsweringDialogs dialogs;
        const auto block = runAssistantEntry(c.name, c.index, dialogs).block;
        ASSERT_TRUE(block) << c.name;
        EXPECT_EQ(expectRuns(*block, c.name), c.log) << c.name;
    }
}

TEST(AssistantStatements, TheMenuObjectsKnowOnlyTheirOwnMembers)
{
    struct Case {
        const char* code;
        int error;
    } cases[] = {
        {"Fenetre.Caption = 1", 0},
        {"Fenetre.Stretch = True", 438},
        {"Ecran.Visible = False", 438},
        {"Bordure.BorderWidth = 2", 0},
        {"Bordure.Picture = 1", 438},
        {"ImageFond.Visible = True", 438},
        {"Minuteur.Caption = 1", 438},
        {"Action.Caption = 1", 438},
        {"Bouton100.MouseIcon = LoadPicture(\"c.ico\")", 0},
        {"Bouton1.Text = 1", 438},
        {"Texte7.FontStrikethru = True", 0},
        {"Texte7.Picture = 1", 438},
        {"x = Texte7.Font", 438},
    };
    for (const auto& c : cases) {
        test::MenuRuntime menu;
        const auto result = menu.run(c.code);
        EXPECT_EQ(result.error ? result.error->number : 0, c.error) << c.code;
    }
}

}  // namespace
}  // namespace qor
