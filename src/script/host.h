#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "script/script_error.h"
#include "script/value.h"

namespace qor::script {

// Arguments as a host receives them: plain values, never references.
using Args = std::span<const Value>;

// What a host operation gives back: a value, or an error for the script.
struct HostResult {
    Value value;
    std::optional<ScriptError> error;

    static HostResult ok(Value v = {}) { return HostResult{std::move(v), std::nullopt}; }
    // An error with its number; our description when none is given.
    static HostResult fail(int number, std::string description = {});
    // "This object has no such member": the engine names the member.
    static HostResult noMember() { return fail(errc::NoSuchMember); }
    bool failed() const { return error.has_value(); }
};

// An object the host gives to scripts: a window, a control, the phrase
// list, a shell object... Member names come as the script wrote them; the
// language ignores letter case, so compare them with equalsNoCase.
// Every operation defaults to "no such member".
class HostObject : public Object {
public:
    // TypeName of the object ("Form", "CommandButton", "IWshShell3").
    virtual std::string typeName() const = 0;

    // obj.name or obj.name(args) read as a value.
    virtual HostResult getProperty(std::string_view name, Args args);
    // obj.name = value, or obj.name(args) = value.
    virtual HostResult setProperty(std::string_view name, Args args, const Value& value);
    // obj.name args as a statement; by default the same as reading it.
    virtual HostResult callMethod(std::string_view name, Args args);
    // obj(args): the default member (control arrays, collections).
    virtual HostResult item(Args args);
    virtual HostResult setItem(Args args, const Value& value);
    // The value of the object where a plain value is needed (Err gives its
    // Number this way).
    virtual HostResult defaultValue();
    // The elements For Each walks through, as an array value.
    virtual HostResult elements();

    static bool equalsNoCase(std::string_view a, std::string_view b);
    static HostResult noMember() { return HostResult::noMember(); }
};

struct MsgBoxRequest {
    std::string prompt;
    int buttons = 0;  // vbOKOnly + icon + default button, as the script gave it
    std::optional<std::string> title;  // none when the script gave none
};

struct InputBoxRequest {
    std::string prompt;
    std::optional<std::string> title;
    std::string defaultText;
};

// The services a script reaches beyond its objects. The editor and the
// player route message and input boxes to their dialogs.
class ScriptHost {
public:
    virtual ~ScriptHost();
    // Shows the message; returns the button chosen (vbOK = 1 ... vbNo = 7).
    virtual int msgBox(const MsgBoxRequest& request) = 0;
    // Asks for a text; none when cancelled (the script then gets "").
    virtual std::optional<std::string> inputBox(const InputBoxRequest& request) = 0;
    // CreateObject(progId); by default no object can be created (429).
    virtual HostResult createObject(std::string_view progId);
    // LoadPicture(path); by default no picture can be loaded (481).
    virtual HostResult loadPicture(std::string_view path);
};

}  // namespace qor::script
