#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "player/core/player_view.h"
#include "player/core/scene.h"
#include "script/host.h"

namespace qor::player {

// What the run-time objects work on: the scene, the front-end to tell of a
// change, the picture loader and the action requests. The Player is one.
class Stage {
public:
    virtual ~Stage();
    virtual Scene& changeableScene() = 0;
    virtual ScreenInfo screen() const = 0;
    virtual void windowChanged() = 0;
    virtual void buttonChanged(std::size_t index) = 0;
    virtual void textChanged(std::size_t index) = 0;
    virtual void timerChanged() = 0;
    // Action.Text = verb, with Action.Tag as the argument; error 53 when the
    // media file it names is missing.
    virtual script::HostResult request(std::string_view verb, std::string_view argument) = 0;
    // The menu is closing: what is left of the running script shows no box.
    virtual bool closing() const = 0;
    // LoadPicture: a picture object, or error 53 / 481.
    virtual script::HostResult loadPicture(std::string_view path) = 0;
};

}  // namespace qor::player
