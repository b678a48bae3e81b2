#pragma once

#include <string>
#include <string_view>

namespace qor::script {

// A syntax or run-time error as the script sees it: the language's error
// number, our French description and the line (1-based) of the text where
// it happened, 0 when no line applies.
struct ScriptError {
    int number = 0;
    std::string description;
    int line = 0;
    std::string source;
    // A stop request or an exhausted step budget: On Error Resume Next
    // cannot swallow it, or a runaway loop could never be ended.
    bool fatal = false;

    friend bool operator==(const ScriptError&, const ScriptError&) = default;
};

// The error numbers the engine raises.
namespace errc {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int FixedArray = 10;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int OutOfStringSpace = 14;
inline constexpr int Interrupted = 18;
inline constexpr int OutOfStack = 28;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int ObjectRequired = 424;
inline constexpr int CannotCreateObject = 429;
inline constexpr int NoSuchMember = 438;
inline constexpr int WrongArguments = 450;
inline constexpr int InvalidPicture = 481;
inline constexpr int UndefinedVariable = 500;
inline constexpr int IllegalAssignment = 501;
inline constexpr int SyntaxError = 1002;
inline constexpr int ExpectedColon = 1003;
inline constexpr int ExpectedOpenParen = 1005;
inline constexpr int ExpectedCloseParen = 1006;
inline constexpr int ExpectedBracket = 1007;
inline constexpr int ExpectedIdentifier = 1010;
inline constexpr int ExpectedEquals = 1011;
inline constexpr int ExpectedIf = 1012;
inline constexpr int ExpectedTo = 1013;
inline constexpr int ExpectedEnd = 1014;
inline constexpr int ExpectedFunction = 1015;
inline constexpr int ExpectedSub = 1016;
inline constexpr int ExpectedThen = 1017;
inline constexpr int ExpectedWend = 1018;
inline constexpr int ExpectedLoop = 1019;
inline constexpr int ExpectedNext = 1020;
inline constexpr int ExpectedCase = 1021;
inline constexpr int ExpectedSelect = 1022;
inline constexpr int ExpectedExpression = 1023;
inline constexpr int ExpectedStatement = 1024;
inline constexpr int ExpectedEndOfStatement = 1025;
inline constexpr int ExpectedInteger = 1026;
inline constexpr int ExpectedWhileOrUntil = 1027;
inline constexpr int ExpectedWith = 1029;
inline constexpr int IdentifierTooLong = 1030;
inline constexpr int InvalidNumber = 1031;
inline constexpr int InvalidCharacter = 1032;
inline constexpr int UnterminatedString = 1033;
inline constexpr int LoopWithoutDo = 1038;
inline constexpr int InvalidExit = 1039;
inline constexpr int InvalidForVariable = 1040;
inline constexpr int NameRedefined = 1041;
inline constexpr int ParenthesesOnSubCall = 1044;
inline constexpr int ExpectedLiteral = 1045;
inline constexpr int ExpectedIn = 1046;
inline constexpr int UnexpectedNext = 1055;
}  // namespace errc

// Our French description of an error number; a generic text for numbers
// the engine does not know.
std::string errorDescription(int number);

// Whether errorDescription knows this number.
bool knownError(int number);

// The error with our description, and with ": 'name'" after it when a name
// is given (the variable, member or procedure concerned).
ScriptError makeScriptError(int number, std::string_view name = {});

// Throws the error; run-time code unwinds to the nearest handler with it.
[[noreturn]] void raise(int number, std::string_view name = {});
[[noreturn]] void raise(ScriptError error);

}  // namespace qor::script
