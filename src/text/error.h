#pragma once

#include <cassert>
#include <string>
#include <utility>
#include <variant>

namespace qor {

// An error as the user sees it: a classic error number and a short French
// description. Core operations return these as values; nothing is thrown
// across a port.
struct Error {
    int number = 0;
    std::string description;

    friend bool operator==(const Error&, const Error&) = default;
};

// The classic error numbers, one list for the editor and the script engine.
namespace err {
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
inline constexpr int UndefinedProcedure = 35;
inline constexpr int InternalError = 51;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int FileExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int FolderNotChosen = 99;
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
}  // namespace err

// Our French description of a classic error number ("" for numbers we do not know).
const char* errorDescription(int number);

// An Error with its number and our description of it.
Error makeError(int number);

// An Error with a description of the caller's (a system error text, say).
Error makeError(int number, std::string description);

// File errors carry the system's own text (in the system's language); the
// user reads our French description of the same number where we have one.
Error inFrench(const Error& error);

// The value of an operation or the error that stopped it.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value) : state_(std::move(value)) {}
    Result(Error error) : state_(std::move(error)) {}

    bool ok() const { return state_.index() == 0; }
    explicit operator bool() const { return ok(); }

    T& value() & { assert(ok()); return std::get<0>(state_); }
    const T& value() const& { assert(ok()); return std::get<0>(state_); }
    T&& value() && { assert(ok()); return std::get<0>(std::move(state_)); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }
    T& operator*() & { return value(); }
    const T& operator*() const& { return value(); }

    const Error& error() const { assert(!ok()); return std::get<1>(state_); }

private:
    std::variant<T, Error> state_;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error) : error_(std::move(error)), ok_(false) {}

    bool ok() const { return ok_; }
    explicit operator bool() const { return ok_; }
    const Error& error() const { assert(!ok_); return error_; }

private:
    Error error_;
    bool ok_ = true;
};

using Status = Result<void>;

}  // namespace qor
