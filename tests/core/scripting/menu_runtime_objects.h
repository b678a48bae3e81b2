#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fake_script_host.h"
#include "script/module.h"

namespace qor::test {

// The running menu as its scripts see it: Fenetre, Ecran, Bordure,
// ImageFond, Minuteur, Action, Bouton1..Bouton100 and Texte1..Texte100, each
// with exactly the members menu scripts are promised (any other fails with
// error 438), plus the shell objects and LoadPicture of the script tests'
// host. The tests of what the assistant writes run here, answer by answer;
// the player's own objects run the same statements in the player's tests.
class MenuRuntime {
public:
    MenuRuntime();

    script::RunResult run(std::string_view code) { return module_.addCode(code); }

    // Every assignment ("Fenetre.Caption=Démo") and shell request ("Run ...")
    // in order, then the prompt of every message ("MsgBox <prompt>").
    std::vector<std::string> effects() const;

    script::test::FakeScriptHost host;

private:
    script::Module module_{&host};
};

}  // namespace qor::test
