#include <gtest/gtest.h>

#include "text/cp1252.h"
#include "text/utf8.h"

namespace qor {
namespace {

TEST(Cp1252, EveryByteSurvivesDecodeThenEncode)
{
    std::string all;
    for (int b = 0; b < 256; ++b)
        all.push_back(char(b));
    std::string utf8 = decodeCp1252(all);
    EXPECT_EQ(utf8Length(utf8), 256u);
    EXPECT_EQ(encodeCp1252(utf8), all);
}

TEST(Cp1252, DecodesTheSpecialBytes)
{
    struct Case { unsigned char byte; const char* utf8; };
    const Case cases[] = {
        {0x41, "A"},
        {0x80, "\u20AC"},   // €
        {0x8C, "\u0152"},   // Œ
        {0x92, "\u2019"},   // ’
        {0x9C, "\u0153"},   // œ
        {0x9F, "\u0178"},   // Ÿ
        {0xA4, "\u00A4"},   // ¤, the line break mark
        {0xAC, "\u00AC"},   // ¬
        {0xE9, "\u00E9"},   // é
        {0x81, "\u0081"},   // undefined in the code page: kept as a control
        {0x9D, "\u009D"},
    };
    for (const auto& c : cases) {
        std::string bytes(1, char(c.byte));
        EXPECT_EQ(decodeCp1252(bytes), c.utf8) << int(c.byte);
        EXPECT_EQ(encodeCp1252(c.utf8), bytes) << int(c.byte);
    }
}

TEST(Cp1252, CharactersItCannotHoldBecomeQuestionMarks)
{
    struct Case { const char* utf8; const char* bytes; };
    const Case cases[] = {
        {"\u4E2D\u6587", "??"},               // Chinese
        {"a\u0394b", "a?b"},                  // Greek capital delta
        {"\U0001F600", "?"},                  // emoji: one character, one "?"
        {"x\xC3", "x?"},                      // truncated sequence
        {"\xFF\xFE", "??"},                   // bytes that start nothing
        {"\xE2\x82", "??"},                   // cut three-byte sequence: two bad bytes
        {"\xC0\x80", "??"},                   // overlong NUL
        {"caf\u00E9 \u20AC", "caf\xE9 \x80"}, // representable ones stay
    };
    for (const auto& c : cases)
        EXPECT_EQ(encodeCp1252(c.utf8), std::string(c.bytes)) << c.utf8;
}

}  // namespace
}  // namespace qor
