#pragma once

#include <span>
#include <string_view>

#include "script/value.h"

namespace qor::script {

class Runtime;

using BuiltinFn = Value (*)(Runtime&, std::span<Value>);

// A function of the language's library, called with its arguments already
// evaluated (a left-out argument is marked, see isMissing).
struct Builtin {
    const char* name;
    int minArgs;
    int maxArgs;
    BuiltinFn fn;
};

// The built-in function or constant of that name (any letter case), or null.
const Builtin* findBuiltin(std::string_view name);
const Value* findBuiltinConstant(std::string_view name);

// Answers of MsgBox.
inline constexpr int vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7;

}  // namespace qor::script
