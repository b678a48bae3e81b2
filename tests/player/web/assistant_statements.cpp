// Prints every statement the editor's script assistant writes, as the editor
// inserts it, one after another with a form feed line between them: the
// browser check runs each in the web player.
#include <iostream>

#include "answering_dialogs.h"
#include "core/scripting/assistant_menu.h"
#include "core/scripting/statement_block.h"

int main()
{
    int count = 0;
    qor::test::forEveryAssistantStatement(
        qor::assistantMenu(), [&count](const qor::StatementBlock& block, const std::string&) {
            std::cout << qor::statementBlock(block.title, block.statement) << "\n\f\n";
            ++count;
        });
    std::cerr << count << " statements\n";
    return count > 0 ? 0 : 1;
}
