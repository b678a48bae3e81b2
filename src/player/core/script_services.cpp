#include "player/core/script_services.h"

#include "player/core/file_system_object.h"
#include "player/core/shell_command.h"
#include "script/operations.h"

namespace qor::player {
namespace {

using script::HostResult;
using script::Value;

class ShellObject : public script::HostObject {
public:
    ShellObject(const MenuPlace& place, SystemPort& system) : place_(place), system_(system) {}
    std::string typeName() const override { return "IWshShell3"; }
    HostResult callMethod(std::string_view name, script::Args args) override
    {
        if (!equalsNoCase(name, "Run"))
            return noMember();
        if (args.empty())
            return HostResult::fail(script::errc::WrongArguments);
        try {
            return runCommand(script::toText(args[0]), place_, system_);
        } catch (script::ScriptError& e) {
            return HostResult{Value(), std::move(e)};
        }
    }
    HostResult getProperty(std::string_view name, script::Args args) override { return callMethod(name, args); }

private:
    const MenuPlace& place_;
    SystemPort& system_;
};

}  // namespace

int PlayerScriptHost::msgBox(const script::MsgBoxRequest& request)
{
    if (stage_.closing())
        return 1;
    return view_.messageBox({request.prompt, request.title.value_or(stage_.changeableScene().window.caption), request.buttons});
}

std::optional<std::string> PlayerScriptHost::inputBox(const script::InputBoxRequest& request)
{
    if (stage_.closing())
        return std::nullopt;
    script::InputBoxRequest r = request;
    if (!r.title)
        r.title = stage_.changeableScene().window.caption;
    return view_.inputBox(r);
}

HostResult PlayerScriptHost::createObject(std::string_view progId)
{
    if (script::HostObject::equalsNoCase(progId, "WScript.Shell"))
        return HostResult::ok(Value::object(new ShellObject(place_, system_)));
    if (script::HostObject::equalsNoCase(progId, "Scripting.FileSystemObject")) {
        const MenuPlace& place = place_;
        SystemPort& system = system_;
        return HostResult::ok(Value::object(new FileSystemObject(
            [&place](std::string_view p) { return resolveMenuPath(p, place, place.cdRoot); },
            [&system](const std::string& p) { return system.readFile(p); })));
    }
    return ScriptHost::createObject(progId);
}

HostResult PlayerScriptHost::loadPicture(std::string_view path)
{
    return stage_.loadPicture(path);
}

}  // namespace qor::player
