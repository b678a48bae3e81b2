#pragma once

#include <string>
#include <string_view>

#include "text/error.h"

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

// The error numbers the engine raises: the shared list of classic numbers.
namespace errc = ::qor::err;

// Our French description of an error number (the shared table); a generic
// text for numbers it does not know, since a script may raise any number.
std::string errorDescription(int number);

// The error with our description, and with ": 'name'" after it when a name
// is given (the variable, member or procedure concerned).
ScriptError makeScriptError(int number, std::string_view name = {});

// Throws the error; run-time code unwinds to the nearest handler with it.
[[noreturn]] void raise(int number, std::string_view name = {});
[[noreturn]] void raise(ScriptError error);

}  // namespace qor::script
