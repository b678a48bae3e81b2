#pragma once

#include <string>

namespace qor::player {

// Sound and video. Paths are full paths; a file that cannot be played is
// left silent: media never stop the menu.
class MediaPort {
public:
    virtual ~MediaPort();
    // The background music, from the start, again and again.
    virtual void playMusic(const std::string& path) = 0;
    // A sound over whatever plays (click, hover, JouerSon, JouerSonWAV).
    virtual void playSound(const std::string& path) = 0;
    // A video in a window of its own that the user can close.
    virtual void playVideo(const std::string& path) = 0;
    virtual void stopAll() = 0;
};

}  // namespace qor::player
