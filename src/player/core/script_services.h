#pragma once

#include <functional>
#include <string>

#include "player/core/menu_place.h"
#include "player/core/player_view.h"
#include "player/core/stage.h"
#include "player/core/system_port.h"
#include "script/host.h"

namespace qor::player {

// What menu scripts reach beyond the run-time objects: MsgBox and InputBox
// on the front-end's boxes (titled with the window's caption when the script
// gives no title), LoadPicture, and the two objects CreateObject makes,
// "WScript.Shell" (Run) and "Scripting.FileSystemObject".
class PlayerScriptHost : public script::ScriptHost {
public:
    PlayerScriptHost(PlayerView& view, SystemPort& system, Stage& stage, const MenuPlace& place)
        : view_(view), system_(system), stage_(stage), place_(place)
    {
    }
    int msgBox(const script::MsgBoxRequest& request) override;
    std::optional<std::string> inputBox(const script::InputBoxRequest& request) override;
    script::HostResult createObject(std::string_view progId) override;
    script::HostResult loadPicture(std::string_view path) override;

private:
    PlayerView& view_;
    SystemPort& system_;
    Stage& stage_;
    const MenuPlace& place_;
};

}  // namespace qor::player
