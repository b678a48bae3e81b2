#pragma once

#include <windows.h>

#include <string>

#include "player/core/media_port.h"

namespace qor::player {

// Sound and video through MCI (WAV, MP3, MIDI, AVI ...) and PlaySound for a
// WAV over everything. A machine without a sound device stays silent: every
// MCI failure is dropped.
class Win32Media : public MediaPort {
public:
    ~Win32Media() override;
    // The window that hears when the music ends, to start it again.
    void setNotifyWindow(HWND window) { window_ = window; }
    // MM_MCINOTIFY: the music starts again from the start; a video that
    // ended closes its window.
    void ended(UINT device);

    void playMusic(const std::string& path) override;
    void playSound(const std::string& path) override;
    void playVideo(const std::string& path) override;
    void stopAll() override;

private:
    bool openAs(const std::string& path, const wchar_t* alias, const wchar_t* extra);

    HWND window_ = nullptr;
    bool music_ = false;
};

}  // namespace qor::player
