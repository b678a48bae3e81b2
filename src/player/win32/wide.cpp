#include "player/win32/wide.h"

#include <windows.h>

namespace qor::player {

std::wstring widen(std::string_view utf8)
{
    if (utf8.empty())
        return {};
    const int n = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), nullptr, 0);
    std::wstring out(std::size_t(n > 0 ? n : 0), L'\0');
    if (n > 0)
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), out.data(), n);
    return out;
}

std::string narrow(std::wstring_view utf16)
{
    if (utf16.empty())
        return {};
    const int n = WideCharToMultiByte(CP_UTF8, 0, utf16.data(), int(utf16.size()), nullptr, 0, nullptr, nullptr);
    std::string out(std::size_t(n > 0 ? n : 0), '\0');
    if (n > 0)
        WideCharToMultiByte(CP_UTF8, 0, utf16.data(), int(utf16.size()), out.data(), n, nullptr, nullptr);
    return out;
}

std::wstring longPath(std::wstring path)
{
    if (path.size() < MAX_PATH || path.starts_with(L"\\\\?\\"))
        return path;
    for (wchar_t& c : path)
        if (c == L'/')
            c = L'\\';
    if (path.size() > 2 && path[1] == L':' && path[2] == L'\\')
        return L"\\\\?\\" + path;
    if (path.starts_with(L"\\\\"))
        return L"\\\\?\\UNC\\" + path.substr(2);
    return path;
}

std::wstring plainPath(std::wstring path)
{
    if (path.starts_with(L"\\\\?\\UNC\\"))
        return L"\\\\" + path.substr(8);
    if (path.starts_with(L"\\\\?\\"))
        return path.substr(4);
    if (path.starts_with(L"UNC\\"))
        return L"\\\\" + path.substr(4);
    return path;
}

std::wstring withCrLf(std::wstring_view text)
{
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r'))
            out += L'\r';
        out += text[i];
    }
    return out;
}

}  // namespace qor::player
