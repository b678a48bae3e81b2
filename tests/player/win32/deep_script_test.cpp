#include <gtest/gtest.h>

#include "player/core/player.h"
#include "script/module.h"

namespace qor::player {
namespace {

// The engine stops a runaway recursion when it has used its share of the
// stack; the program's own stack must hold that share and more, or the
// process dies before the script hears of it.
TEST(DeepScript, RecursionEndsWithOutOfStackNotACrash)
{
    const char* scripts[] = {
        "Function F(n)\r\n F = F(n + 1)\r\nEnd Function\r\nx = F(0)",
        "Sub S(n)\r\n If n >= 0 Then S n + 1\r\nEnd Sub\r\nS 0",
        "Function G(a, b)\r\n G = G(a & \"x\", b + 1) + 1\r\nEnd Function\r\nx = G(\"\", 0)",
    };
    for (const char* text : scripts) {
        script::Module module;
        module.setStepBudget(kScriptStepBudget);
        const script::RunResult r = module.addCode(text);
        ASSERT_FALSE(r.ok()) << text;
        EXPECT_EQ(r.error->number, 28) << text;
    }
}

}  // namespace
}  // namespace qor::player
