#include <gtest/gtest.h>

#include <cmath>

#include "text/numbers.h"

namespace qor {
namespace {

TEST(Numbers, WrittenFormHasItsBlanks)
{
    struct Case { double value; int digits; const char* text; };
    const Case cases[] = {
        {9600, 7, " 9600 "},
        {-15, 7, "-15 "},
        {8.25, 7, " 8.25 "},
        {0, 7, " 0 "},
        {-0.0, 7, " 0 "},
        {double(200.0f / 3.0f), 7, " 66.66666 "},
        {16777215, 15, " 16777215 "},
        {-2147483633, 15, "-2147483633 "},
        {1280.0 / 3.0, 15, " 426.666666666667 "},
        {12345678, 7, " 1.234568E+07 "},
        {0.5, 7, " 0.5 "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(formatNumber(c.value, c.digits), c.text) << c.value;
}

TEST(Numbers, SingleAndIntegerShorthands)
{
    EXPECT_EQ(formatSingle(66.666664f), " 66.66666 ");
    EXPECT_EQ(numberText(66.666664f), "66.66666");
    EXPECT_EQ(formatInteger(-2147483643LL), "-2147483643 ");
    EXPECT_EQ(formatInteger(2147483647LL), " 2147483647 ");
}

TEST(Numbers, LenientReading)
{
    struct Case { const char* text; double value; };
    const Case cases[] = {
        {" 9600 ", 9600},
        {"-15 ", -15},
        {" 8.25 ", 8.25},
        {"8,25", 8},
        {"", 0},
        {"abc", 0},
        {"   ", 0},
        {"12abc", 12},
        {"+7", 7},
        {"-", 0},
        {".5", 0.5},
        {"5.", 5},
        {"1e3", 1000},
        {"1E+2x", 100},
        {"2.5D-1", 0.25},
        {"1e", 1},
        {"1e+", 1},
        {"&HFF", 255},
        {"&hff", 255},
        {"&HFFFF", -1},
        {"&H8000000F", -2147483633},
        {"&O17", 15},
        {"&H", 0},
        {"&X1", 0},
        {"\t42", 42},
        {"1 2", 1},
        {"1e-400", 0},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(readNumber(c.text), c.value) << '"' << c.text << '"';
}

TEST(Numbers, HugeNumbersOverflow)
{
    for (const char* text : {"1e400", "&H1FFFFFFFF", "-1e999"}) {
        auto r = parseNumber(text);
        ASSERT_FALSE(r.ok()) << text;
        EXPECT_EQ(r.error().number, 6);
        EXPECT_EQ(readNumber(text), 0) << text;
    }
}

TEST(Numbers, NumericMeansANumberWithOnlyBlanksAround)
{
    struct Case { const char* text; bool numeric; };
    const Case cases[] = {
        {" 9600 ", true}, {"-15", true}, {"8.25", true}, {"&HFF", true}, {".5", true},
        {"1e5", true}, {" 5. ", true},
        {"", false}, {"   ", false}, {"plein", false}, {"ecran", false}, {"8,25", false},
        {"1e", false}, {"12abc", false}, {"-", false}, {".", false}, {"1 2", false},
        {"1e999", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(isNumeric(c.text), c.numeric) << '"' << c.text << '"';
}

TEST(Numbers, RoundingIsHalfToEven)
{
    struct Case { double in; double out; };
    const Case cases[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2},
        {2.4999, 2}, {2.5001, 3}, {7, 7},
    };
    for (const auto& c : cases)
        EXPECT_EQ(roundHalfEven(c.in), c.out) << c.in;
}

TEST(Numbers, IntegerConversionsCheckTheirRange)
{
    EXPECT_EQ(*toInt32(2147483647.4), 2147483647);
    EXPECT_EQ(*toInt32(-2147483648.0), -2147483648LL);
    EXPECT_FALSE(toInt32(2147483647.6).ok());
    EXPECT_FALSE(toInt32(std::nan("")).ok());
    EXPECT_EQ(*toInt16(32767.0), 32767);
    EXPECT_EQ(toInt16(32768.0).error().number, 6);
    EXPECT_EQ(*toSingle(1e30), 1e30f);
    EXPECT_FALSE(toSingle(1e39).ok());
    EXPECT_EQ(*readInt32(" 16777215 "), 16777215);
    EXPECT_EQ(*readInt32("2.5"), 2);
    EXPECT_FALSE(readInt32("1e20").ok());
}

}  // namespace
}  // namespace qor
