#include "menu_runtime_objects.h"

#include <algorithm>
#include <map>

#include "script/operations.h"
#include "text/text_helpers.h"

namespace qor::test {
namespace {

using script::Args;
using script::HostObject;
using script::HostResult;
using script::Value;

constexpr int kElements = 100;

const std::vector<std::string_view> kButtonMembers{"Picture", "Left", "Top", "Enabled", "Visible", "MousePointer",
                                                   "MouseIcon"};
const std::vector<std::string_view> kTextMembers{
    "Text",      "Alignment", "FontBold",  "FontItalic", "FontName", "FontSize", "FontStrikethru",
    "FontUnderline", "ForeColor", "BackColor", "Width", "Height", "Left", "Top", "Locked", "Visible",
    "MousePointer", "MouseIcon"};

struct ObjectRow {
    std::string_view name;
    std::vector<std::string_view> members;
};

const std::vector<ObjectRow> kObjects{
    {"Fenetre", {"Caption", "BackColor", "WindowState", "Left", "Top", "Visible", "MousePointer", "MouseIcon"}},
    {"Ecran", {"MousePointer", "MouseIcon"}},
    {"Bordure", {"BorderColor", "BorderWidth", "Shape", "Visible"}},
    {"ImageFond", {"Picture", "Stretch"}},
    {"Minuteur", {"Interval", "Enabled"}},
    {"Action", {"Tag", "Text"}},
};

std::string describe(const Value& v)
{
    if (v.isObject())
        return v.asObject() ? static_cast<HostObject*>(v.asObject())->typeName() : "Nothing";
    return script::toText(v);
}

// A run-time object: its members keep what is written to them.
class MenuObject : public HostObject {
public:
    MenuObject(std::string name, const std::vector<std::string_view>& members, std::vector<std::string>& log)
        : name_(std::move(name)), members_(members), log_(log) {}
    std::string typeName() const override { return name_; }

    HostResult getProperty(std::string_view name, Args args) override
    {
        const auto it = values_.find(lowerAscii(name));
        if (!knows(name) || !args.empty())
            return noMember();
        return HostResult::ok(it == values_.end() ? Value() : it->second);
    }
    HostResult setProperty(std::string_view name, Args args, const Value& value) override
    {
        if (!knows(name) || !args.empty())
            return noMember();
        values_[lowerAscii(name)] = value;
        log_.push_back(name_ + "." + std::string(name) + "=" + describe(value));
        return HostResult::ok();
    }

private:
    bool knows(std::string_view name) const
    {
        return std::any_of(members_.begin(), members_.end(), [name](std::string_view m) { return equalsNoCase(m, name); });
    }

    std::string name_;
    const std::vector<std::string_view>& members_;
    std::vector<std::string>& log_;
    std::map<std::string, Value> values_;
};

// An object with methods only: the shell's Run, the file system's
// OpenTextFile, a text stream's ReadAll and Close, a picture's nothing.
class MethodObject : public HostObject {
public:
    using Method = HostResult (*)(MethodObject& self, Args args);
    MethodObject(std::string type, std::map<std::string, Method> methods, std::vector<std::string>& log)
        : type_(std::move(type)), methods_(std::move(methods)), log(log) {}
    std::string typeName() const override { return type_; }
    HostResult callMethod(std::string_view name, Args args) override
    {
        const auto it = methods_.find(lowerAscii(name));
        return it == methods_.end() ? noMember() : it->second(*this, args);
    }
    HostResult getProperty(std::string_view name, Args args) override { return callMethod(name, args); }

    std::string type_;
    std::map<std::string, Method> methods_;
    std::vector<std::string>& log;
};

HostResult logged(MethodObject& self, const std::string& line, Value result = {})
{
    self.log.push_back(line);
    return HostResult::ok(std::move(result));
}

HostResult shellRun(MethodObject& self, Args args)
{
    if (args.empty())
        return HostResult::fail(script::errc::WrongArguments);
    return logged(self, "Run " + script::toText(args[0]), Value::integer(0));
}

HostResult readAll(MethodObject&, Args) { return HostResult::ok(Value::string("contenu")); }
HostResult close(MethodObject& self, Args) { return logged(self, "Close"); }

HostResult openTextFile(MethodObject& self, Args args)
{
    if (args.empty())
        return HostResult::fail(script::errc::WrongArguments);
    auto* stream = new MethodObject("TextStream", {{"readall", readAll}, {"close", close}}, self.log);
    return logged(self, "OpenTextFile " + script::toText(args[0]), Value::object(stream));
}

}  // namespace

MenuRuntime::MenuRuntime()
{
    for (const ObjectRow& row : kObjects)
        module_.addObject(row.name, script::makeRef<MenuObject>(std::string(row.name), row.members, log_));
    for (int n = 1; n <= kElements; ++n) {
        const std::string button = "Bouton" + std::to_string(n);
        const std::string text = "Texte" + std::to_string(n);
        module_.addObject(button, script::makeRef<MenuObject>(button, kButtonMembers, log_));
        module_.addObject(text, script::makeRef<MenuObject>(text, kTextMembers, log_));
    }
}

int MenuRuntime::msgBox(const script::MsgBoxRequest& request)
{
    log_.push_back("MsgBox " + request.prompt + " | " + std::to_string(request.buttons) + " | " +
                   request.title.value_or("<none>"));
    return 1;
}

std::optional<std::string> MenuRuntime::inputBox(const script::InputBoxRequest&)
{
    return std::nullopt;
}

script::HostResult MenuRuntime::createObject(std::string_view progId)
{
    if (equalsNoCase(progId, "WScript.Shell"))
        return HostResult::ok(Value::object(new MethodObject("IWshShell3", {{"run", shellRun}}, log_)));
    if (equalsNoCase(progId, "Scripting.FileSystemObject"))
        return HostResult::ok(
            Value::object(new MethodObject("FileSystemObject", {{"opentextfile", openTextFile}}, log_)));
    return ScriptHost::createObject(progId);
}

script::HostResult MenuRuntime::loadPicture(std::string_view path)
{
    return HostResult::ok(Value::object(new MethodObject("Picture " + std::string(path), {}, log_)));
}

}  // namespace qor::test
