// The conversions and operators on values, case by case.
#include <gtest/gtest.h>

#include <cmath>

#include "script/builtins.h"
#include "script/operations.h"
#include "script/script_error.h"

namespace qor::script {
namespace {

struct NumericText {
    const char* text;
    std::optional<double> value;
};

class ParseNumeric : public ::testing::TestWithParam<NumericText> {};

TEST_P(ParseNumeric, ReadsNumbersAsTheLanguageDoes)
{
    EXPECT_EQ(parseNumeric(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, ParseNumeric, ::testing::Values(
    NumericText{"12", 12.0}, NumericText{" 12 ", 12.0}, NumericText{"-1.5", -1.5}, NumericText{"+3", 3.0},
    NumericText{".5", 0.5}, NumericText{"5.", 5.0}, NumericText{"1e3", 1000.0}, NumericText{"1E-2", 0.01},
    NumericText{"&HFF", 255.0}, NumericText{"&hffff", -1.0}, NumericText{"&O17", 15.0}, NumericText{"- 2", -2.0},
    NumericText{"", std::nullopt}, NumericText{" ", std::nullopt}, NumericText{"abc", std::nullopt},
    NumericText{"1,5", std::nullopt}, NumericText{"1e", std::nullopt}, NumericText{"12abc", std::nullopt},
    NumericText{"&H", std::nullopt}, NumericText{"&HFG", std::nullopt}, NumericText{".", std::nullopt},
    NumericText{"1e999", std::nullopt}
));

struct DoubleText {
    double value;
    const char* text;
};

class FormatDouble : public ::testing::TestWithParam<DoubleText> {};

TEST_P(FormatDouble, WritesFifteenSignificantDigits)
{
    EXPECT_EQ(formatDouble(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, FormatDouble, ::testing::Values(
    DoubleText{0.0, "0"}, DoubleText{-0.0, "0"}, DoubleText{1.5, "1.5"}, DoubleText{-2.25, "-2.25"},
    DoubleText{1.0 / 3.0, "0.333333333333333"}, DoubleText{2.0 / 3.0, "0.666666666666667"},
    DoubleText{1e15, "1E+15"}, DoubleText{999999999999999.0, "999999999999999"}, DoubleText{1e-5, "1E-05"},
    DoubleText{0.0001, "0.0001"}, DoubleText{123456.789, "123456.789"}, DoubleText{-1e20, "-1E+20"},
    DoubleText{3.14159265358979, "3.14159265358979"}
));

TEST(DateSerial, RoundTripsCalendarDates)
{
    struct {
        int y, m, d, h, mi, s;
        double serial;
    } cases[] = {
        {1899, 12, 30, 0, 0, 0, 0.0}, {1900, 1, 1, 0, 0, 0, 2.0}, {2000, 2, 29, 12, 0, 0, 36585.5},
        {2026, 11, 23, 18, 0, 0, 46349.75}, {1899, 12, 29, 6, 0, 0, -1.25},
    };
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(toDateSerial(c.y, c.m, c.d, c.h, c.mi, c.s), c.serial);
        int p[6];
        fromDateSerial(c.serial, p);
        EXPECT_EQ(p[0], c.y);
        EXPECT_EQ(p[1], c.m);
        EXPECT_EQ(p[2], c.d);
        EXPECT_EQ(p[3], c.h);
    }
    EXPECT_EQ(formatDate(46349.75), "23/11/2026 18:00:00");
    EXPECT_EQ(formatDate(46349.0), "23/11/2026");
    EXPECT_EQ(formatDate(0.5), "12:00:00");
}

struct Comparison {
    Value a, b;
    std::uint8_t literals;
    int expected;  // -1, 0, 1, 2 for Null
};

class CompareValues : public ::testing::TestWithParam<Comparison> {};

TEST_P(CompareValues, FollowTheMixedTypeRules)
{
    const auto& c = GetParam();
    EXPECT_EQ(compareValues(c.a, c.b, c.literals, false), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Rules, CompareValues, ::testing::Values(
    Comparison{Value::integer(1), Value::dbl(1.0), NoLiteral, 0},
    Comparison{Value::string("abc"), Value::string("abd"), NoLiteral, -1},
    Comparison{Value::string("a"), Value::string("A"), NoLiteral, 1},
    Comparison{Value(), Value::integer(0), NoLiteral, 0},
    Comparison{Value(), Value::string(""), NoLiteral, 0},
    Comparison{Value(), Value(), NoLiteral, 0},
    Comparison{Value::null(), Value::integer(1), NoLiteral, 2},
    // Between two variables a number is less than any text...
    Comparison{Value::integer(10), Value::string("9"), NoLiteral, -1},
    Comparison{Value::string("1"), Value::integer(5), NoLiteral, 1},
    // ...but against a literal the variable takes the literal's type.
    Comparison{Value::string("10"), Value::integer(9), RightLiteral, 1},
    Comparison{Value::integer(10), Value::string("9"), RightLiteral, -1},
    Comparison{Value::boolean(true), Value::integer(-1), NoLiteral, 0}
));

TEST(CompareValues, TextCompareIgnoresCaseOfAccentedLetters)
{
    EXPECT_EQ(compareValues(Value::string("ÉCOLE"), Value::string("école"), NoLiteral, true), 0);
    EXPECT_EQ(compareValues(Value::string("a"), Value::string("B"), NoLiteral, true), -1);
}

TEST(CompareValues, ANumberLiteralAgainstTextThatIsNotNumericIsAMismatch)
{
    try {
        compareValues(Value::string("abc"), Value::integer(1), RightLiteral, false);
        FAIL() << "no error";
    } catch (const ScriptError& e) {
        EXPECT_EQ(e.number, errc::TypeMismatch);
    }
}

struct Arithmetic {
    Value (*op)(const Value&, const Value&);
    Value a, b;
    Type type;
    const char* text;
};

class ArithmeticTypes : public ::testing::TestWithParam<Arithmetic> {};

TEST_P(ArithmeticTypes, PromoteAsTheLanguageDoes)
{
    const auto& c = GetParam();
    Value r = c.op(c.a, c.b);
    EXPECT_EQ(r.type(), c.type);
    EXPECT_EQ(r.isNull() ? "Null" : toText(r), c.text);
}

INSTANTIATE_TEST_SUITE_P(Operators, ArithmeticTypes, ::testing::Values(
    Arithmetic{add, Value::integer(32767), Value::integer(1), Type::Long, "32768"},
    Arithmetic{add, Value::longValue(2147483647), Value::integer(1), Type::Double, "2147483648"},
    Arithmetic{subtract, Value::integer(-32768), Value::integer(1), Type::Long, "-32769"},
    Arithmetic{multiply, Value::integer(200), Value::integer(200), Type::Long, "40000"},
    Arithmetic{add, Value::string("2"), Value::integer(3), Type::Double, "5"},
    Arithmetic{add, Value::string("a"), Value(), Type::String, "a"},
    Arithmetic{add, Value::boolean(true), Value::boolean(true), Type::Integer, "-2"},
    Arithmetic{add, Value::null(), Value::integer(1), Type::Null, "Null"},
    Arithmetic{divide, Value::integer(1), Value::integer(4), Type::Double, "0.25"},
    Arithmetic{intDivide, Value::dbl(7.5), Value::integer(2), Type::Long, "4"},
    Arithmetic{intDivide, Value::integer(7), Value::integer(2), Type::Integer, "3"},
    Arithmetic{modulo, Value::integer(-7), Value::integer(3), Type::Integer, "-1"},
    Arithmetic{power, Value::integer(2), Value::integer(10), Type::Double, "1024"},
    Arithmetic{concat, Value::integer(1), Value::null(), Type::String, "1"},
    Arithmetic{concat, Value::null(), Value::null(), Type::Null, "Null"},
    Arithmetic{logicalAnd, Value::null(), Value::boolean(false), Type::Boolean, "False"},
    Arithmetic{logicalOr, Value::null(), Value::boolean(true), Type::Boolean, "True"},
    Arithmetic{logicalAnd, Value::integer(12), Value::longValue(10), Type::Long, "8"},
    Arithmetic{logicalImp, Value::boolean(false), Value::null(), Type::Boolean, "True"},
    Arithmetic{logicalXor, Value::null(), Value::boolean(true), Type::Null, "Null"}
));

struct Failing {
    Value (*op)(const Value&, const Value&);
    Value a, b;
    int error;
};

class ArithmeticErrors : public ::testing::TestWithParam<Failing> {};

TEST_P(ArithmeticErrors, RaiseTheLanguagesError)
{
    const auto& c = GetParam();
    try {
        c.op(c.a, c.b);
        FAIL() << "no error";
    } catch (const ScriptError& e) {
        EXPECT_EQ(e.number, c.error);
    }
}

INSTANTIATE_TEST_SUITE_P(Operators, ArithmeticErrors, ::testing::Values(
    Failing{divide, Value::integer(1), Value::integer(0), errc::DivisionByZero},
    Failing{divide, Value::integer(0), Value::integer(0), errc::Overflow},
    Failing{intDivide, Value::integer(1), Value(), errc::DivisionByZero},
    Failing{modulo, Value::dbl(3e10), Value::integer(7), errc::Overflow},
    Failing{multiply, Value::dbl(1e300), Value::dbl(1e300), errc::Overflow},
    Failing{add, Value::string("x"), Value::integer(1), errc::TypeMismatch},
    Failing{power, Value::integer(0), Value::integer(-1), errc::DivisionByZero},
    Failing{identical, Value::integer(1), Value::nothing(), errc::ObjectRequired}
));

TEST(Conversions, RoundHalfToEvenAndCheckRanges)
{
    EXPECT_EQ(toLong(Value::dbl(2.5)), 2);
    EXPECT_EQ(toLong(Value::dbl(-3.5)), -4);
    EXPECT_EQ(toInteger(Value::string(" 12 ")), 12);
    EXPECT_THROW(toInteger(Value::longValue(32768)), ScriptError);
    EXPECT_THROW(toLong(Value::dbl(3e9)), ScriptError);
    EXPECT_THROW(toLong(Value::null()), ScriptError);
    EXPECT_TRUE(toBoolean(Value::string("Vrai")));
    EXPECT_FALSE(toBoolean(Value::string(" false ")));
    EXPECT_THROW(toBoolean(Value::string("peut-être")), ScriptError);
    EXPECT_FALSE(isTrue(Value::null()));
}

TEST(Builtins, AreFoundWhateverTheLetterCase)
{
    ASSERT_NE(findBuiltin("msgbox"), nullptr);
    EXPECT_EQ(findBuiltin("INSTRREV"), findBuiltin("InStrRev"));
    EXPECT_EQ(findBuiltin("Print"), nullptr);
    ASSERT_NE(findBuiltinConstant("VBCRLF"), nullptr);
    EXPECT_EQ(findBuiltinConstant("vbInformation")->asInt(), 64);
    EXPECT_EQ(findBuiltinConstant("vbObjectError")->asInt(), -2147221504);
}

}  // namespace
}  // namespace qor::script
