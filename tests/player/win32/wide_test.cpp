#include "player/win32/wide.h"

#include <gtest/gtest.h>

namespace qor::player {
namespace {

TEST(Wide, TextCrossesBothWaysWhole)
{
    const char* cases[] = {"", "menu", "Démo é à ç ù", "Menu €uro œ", "\xE4\xB8\xAD\xE6\x96\x87", "\xF0\x9F\x8E\xB5 musique"};
    for (const char* utf8 : cases)
        EXPECT_EQ(narrow(widen(utf8)), utf8) << utf8;
    EXPECT_EQ(widen("é"), std::wstring(L"\u00E9"));
    EXPECT_EQ(widen("\xF0\x9F\x8E\xB5").size(), 2u);   // a surrogate pair
}

TEST(Wide, LongPathsTakeTheExtendedForm)
{
    const std::wstring deep(300, L'a');
    struct Case {
        std::wstring in;
        std::wstring out;
    };
    const Case cases[] = {
        {L"C:\\cd\\qor\\autorun.exe", L"C:\\cd\\qor\\autorun.exe"},
        {L"C:\\" + deep, L"\\\\?\\C:\\" + deep},
        {L"C:/" + deep, L"\\\\?\\C:\\" + deep},
        {L"\\\\serveur\\cd\\" + deep, L"\\\\?\\UNC\\serveur\\cd\\" + deep},
        {L"\\\\?\\C:\\" + deep, L"\\\\?\\C:\\" + deep},
        {deep, deep},   // relative: left to the system
    };
    for (const Case& c : cases)
        EXPECT_EQ(longPath(c.in), c.out) << narrow(c.in.substr(0, 20));
}

TEST(Wide, PathsGivenBackTakeThePlainForm)
{
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"C:\\cd\\qor\\autorun.exe", L"C:\\cd\\qor\\autorun.exe"},
        {L"\\\\?\\C:\\cd\\autorun.exe", L"C:\\cd\\autorun.exe"},
        {L"\\\\?\\UNC\\serveur\\cd\\autorun.exe", L"\\\\serveur\\cd\\autorun.exe"},
        {L"UNC\\serveur\\cd\\autorun.exe", L"\\\\serveur\\cd\\autorun.exe"},
        {L"\\\\serveur\\cd\\autorun.exe", L"\\\\serveur\\cd\\autorun.exe"},
        {L"UNCLE\\autorun.exe", L"UNCLE\\autorun.exe"},
    };
    for (const auto& [in, out] : cases)
        EXPECT_EQ(plainPath(in), out) << narrow(in);
}

TEST(Wide, LineBreaksBecomeCrLf)
{
    struct Case {
        std::wstring in;
        std::wstring out;
    };
    const Case cases[] = {
        {L"a\nb", L"a\r\nb"}, {L"a\r\nb", L"a\r\nb"}, {L"\n\n", L"\r\n\r\n"}, {L"a\rb", L"a\rb"}, {L"", L""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(withCrLf(c.in), c.out) << narrow(c.in);
}

}  // namespace
}  // namespace qor::player
