#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "script/host.h"
#include "script/module.h"

namespace qor::test {

// The running menu as its scripts see it: Fenetre, Ecran, Bordure,
// ImageFond, Minuteur, Action, Bouton1..Bouton100 and Texte1..Texte100, each
// with exactly the members menu scripts are promised (any other fails with
// error 438), plus the two shell objects and LoadPicture. The tests of what
// the assistant writes run here; this is the one place to swap for the
// player's own objects.
class MenuRuntime : public script::ScriptHost {
public:
    MenuRuntime();

    // Runs a script in the menu's module.
    script::RunResult run(std::string_view code) { return module_.addCode(code); }

    // Every assignment ("Fenetre.Caption=Démo"), message ("MsgBox ...") and
    // shell request ("Run ...", "OpenTextFile ...") so far.
    const std::vector<std::string>& log() const { return log_; }

    int msgBox(const script::MsgBoxRequest& request) override;
    std::optional<std::string> inputBox(const script::InputBoxRequest& request) override;
    script::HostResult createObject(std::string_view progId) override;
    script::HostResult loadPicture(std::string_view path) override;

private:
    std::vector<std::string> log_;
    script::Module module_{this};
};

}  // namespace qor::test
