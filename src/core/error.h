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

// The classic error numbers the editor reports.
namespace err {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int FileExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int FolderNotChosen = 99;
inline constexpr int CannotCreateObject = 429;
inline constexpr int InvalidPicture = 481;
}  // namespace err

// Our French description of a classic error number ("" for numbers we do not know).
const char* errorDescription(int number);

// An Error with its number and our description of it.
Error makeError(int number);

// An Error with a description of the caller's (a system error text, say).
Error makeError(int number, std::string description);

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
