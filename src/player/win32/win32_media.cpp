#include "player/win32/win32_media.h"

#include <mmsystem.h>

#include "player/win32/wide.h"

namespace qor::player {
namespace {

bool mci(const std::wstring& command, HWND notify = nullptr)
{
    return mciSendStringW(command.c_str(), nullptr, 0, notify) == 0;
}

bool isWave(const std::string& path)
{
    return path.size() > 4 && _wcsicmp(widen(path.substr(path.size() - 4)).c_str(), L".wav") == 0;
}

}  // namespace

Win32Media::~Win32Media()
{
    stopAll();
}

bool Win32Media::openAs(const std::string& path, const wchar_t* alias, const wchar_t* extra)
{
    mci(std::wstring(L"close ") + alias);
    if (path.empty())
        return false;
    return mci(L"open \"" + widen(path) + L"\" " + extra + L" alias " + alias);
}

void Win32Media::playMusic(const std::string& path)
{
    music_ = openAs(path, L"qormusic", L"");
    if (music_)
        mci(L"play qormusic notify", window_);
}

void Win32Media::musicEnded()
{
    if (music_ && mci(L"seek qormusic to start"))
        mci(L"play qormusic notify", window_);
}

void Win32Media::playSound(const std::string& path)
{
    if (isWave(path)) {
        PlaySoundW(widen(path).c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
        return;
    }
    if (openAs(path, L"qorsound", L""))
        mci(L"play qorsound");
}

// The video plays in a pop-up window of its own, which the user closes.
void Win32Media::playVideo(const std::string& path)
{
    if (openAs(path, L"qorvideo", L"style overlapped"))
        mci(L"play qorvideo");
}

void Win32Media::stopAll()
{
    music_ = false;
    PlaySoundW(nullptr, nullptr, 0);
    for (const wchar_t* alias : {L"qormusic", L"qorsound", L"qorvideo"})
        mci(std::wstring(L"close ") + alias);
}

}  // namespace qor::player
