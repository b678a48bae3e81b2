#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "fake_ports.h"
#include "player/core/player.h"
#include "script/operations.h"

namespace qor::player::test {

// A menu compiled to /cd/qor/autorun.exe, run through fake ports.
class PlayerTest : public ::testing::Test {
protected:
    Log log;
    FakeView view{log};
    FakeMedia media{log};
    FakeSystem system{log};
    MenuPlace place = MenuPlace::of("/cd/qor/autorun.exe", '/', "D");
    std::unique_ptr<Player> player;

    // Loads and starts the menu; the log then holds only what follows.
    Player& run(const MenuProject& project, bool clearLog = true)
    {
        player = std::make_unique<Player>(compiled(project), place, view, media, system);
        player->setScriptStepBudget(200'000);
        player->start();
        if (clearLog)
            log.clear();
        return *player;
    }

    // A project with n code buttons whose images are b<n>_n.bmp, _s.bmp, _c.bmp.
    static MenuProject withButtons(int n)
    {
        MenuProject p;
        for (int i = 1; i <= n; ++i) {
            MenuButton& b = p.button(*p.addButton());
            b.kind = std::string(button_kind::code);
            b.normalImage = "b" + std::to_string(i) + "_n.bmp";
            b.hoverImage = "b" + std::to_string(i) + "_s.bmp";
            b.pressedImage = "b" + std::to_string(i) + "_c.bmp";
            b.left = 150.0f * i;
            b.top = 300;
        }
        return p;
    }

    // The value of an expression in the menu's module, as text.
    std::string eval(const std::string& expression)
    {
        script::RunResult r = player->module().eval(expression);
        if (!r.ok())
            return "error " + std::to_string(r.error->number);
        return script::toText(r.value);
    }
    // Statements run in the menu's module; "" or the error number.
    std::string exec(const std::string& statements)
    {
        script::RunResult r = player->module().runCode(statements);
        return r.ok() ? "" : "error " + std::to_string(r.error->number);
    }
};

}  // namespace qor::player::test
