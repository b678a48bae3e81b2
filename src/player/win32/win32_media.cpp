#include "player/win32/win32_media.h"

#include <mmsystem.h>

#include <cwchar>

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

void Win32Media::ended(UINT device)
{
    if (device != 0 && device == mciGetDeviceIDW(L"qorvideo")) {
        mci(L"close qorvideo");
        return;
    }
    if (music_ && device == mciGetDeviceIDW(L"qormusic") && mci(L"seek qormusic to start"))
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

// The video plays in a window of its own centred over the menu, which the
// user may close and which closes when the video ends.
void Win32Media::playVideo(const std::string& path)
{
    if (!openAs(path, L"qorvideo", L"style overlapped"))
        return;
    // "where ... source" answers "left top width height".
    wchar_t source[64] = {};
    RECT menu{};
    long size[4] = {};
    if (window_ && GetWindowRect(window_, &menu) &&
        mciSendStringW(L"where qorvideo source", source, 64, nullptr) == 0) {
        wchar_t* at = source;
        for (long& n : size)
            n = std::wcstol(at, &at, 10);
    }
    const int width = int(size[2]);
    const int height = int(size[3]);
    if (width > 0 && height > 0 && width < 32768 && height < 32768) {
        RECT frame{0, 0, width, height};
        AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
        const int w = frame.right - frame.left;
        const int h = frame.bottom - frame.top;
        const int x = (menu.left + menu.right - w) / 2;
        const int y = (menu.top + menu.bottom - h) / 2;
        mci(L"put qorvideo window at " + std::to_wstring(x) + L" " + std::to_wstring(y) + L" " + std::to_wstring(w) +
            L" " + std::to_wstring(h));
    }
    mci(L"window qorvideo state show");
    mci(L"play qorvideo notify", window_);
}

void Win32Media::stopAll()
{
    music_ = false;
    PlaySoundW(nullptr, nullptr, 0);
    for (const wchar_t* alias : {L"qormusic", L"qorsound", L"qorvideo"})
        mci(std::wstring(L"close ") + alias);
}

}  // namespace qor::player
