#include "fake_script_host.h"

#include <algorithm>

#include "script/operations.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script::test {

namespace {
std::string describe(const Value& v)
{
    if (v.isObject())
        return v.asObject() ? static_cast<HostObject*>(v.asObject())->typeName() : "Nothing";
    if (v.isNull())
        return "Null";
    return toText(v);
}
}  // namespace

FakeObject::FakeObject(std::string name, std::vector<std::string>* log, std::vector<std::string> properties)
    : typeName_(name), name_(std::move(name)), log_(log)
{
    for (auto& p : properties)
        known_.push_back(lowerAscii(p));
}

Ref<FakeObject> FakeObject::addChild(const std::string& name, std::vector<std::string> properties)
{
    Ref<FakeObject> child(new FakeObject(name, log_, std::move(properties)));
    children_[lowerAscii(name)] = child;
    return child;
}

Value FakeObject::property(const std::string& name) const
{
    auto it = values_.find(lowerAscii(name));
    return it == values_.end() ? Value() : it->second;
}

HostResult FakeObject::getProperty(std::string_view name, Args args)
{
    std::string key = lowerAscii(name);
    if (auto c = children_.find(key); c != children_.end() && args.empty())
        return HostResult::ok(Value::object(c->second.get()));
    if (key == "listcount")
        return HostResult::ok(Value::longValue(std::int32_t(phrases.size())));
    if (key == "list" && args.size() == 1) {
        std::int32_t i = toLong(args[0]);
        if (i < 0 || std::size_t(i) >= phrases.size())
            return HostResult::fail(errc::InvalidCall);
        return HostResult::ok(Value::string(phrases[std::size_t(i)]));
    }
    if (!anyProperty && std::find(known_.begin(), known_.end(), key) == known_.end())
        return noMember();
    if (!args.empty())
        return HostResult::fail(errc::WrongArguments);
    return HostResult::ok(property(key));
}

HostResult FakeObject::setProperty(std::string_view name, Args args, const Value& value)
{
    std::string key = lowerAscii(name);
    if (!anyProperty && std::find(known_.begin(), known_.end(), key) == known_.end())
        return noMember();
    if (!args.empty())
        return HostResult::fail(errc::WrongArguments);
    values_[key] = value;
    if (log_)
        log_->push_back(name_ + "." + std::string(name) + "=" + describe(value));
    return HostResult::ok();
}

HostResult FakeObject::callMethod(std::string_view name, Args args)
{
    std::string key = lowerAscii(name);
    if (key == "additem" && typeName_ == "ListBox") {
        if (args.empty())
            return HostResult::fail(errc::WrongArguments);
        phrases.push_back(toText(args[0]));
        return HostResult::ok();
    }
    return getProperty(name, args);
}

HostResult FakeObject::item(Args args)
{
    if (items.empty())
        return noMember();
    if (args.size() != 1)
        return HostResult::fail(errc::WrongArguments);
    std::int32_t i = toLong(args[0]);
    if (i < 0 || std::size_t(i) >= items.size())
        return HostResult::fail(errc::SubscriptOutOfRange);
    return HostResult::ok(Value::object(items[std::size_t(i)].get()));
}

HostResult FakeObject::elements()
{
    ArrayRep* a = ArrayRep::make({std::int32_t(items.size()) - 1}, false);
    Value v = Value::array(a);
    for (std::size_t i = 0; i < items.size(); ++i)
        a->items[i] = Value::object(items[i].get());
    return HostResult::ok(v);
}

namespace {

class FakeStream : public HostObject {
public:
    FakeStream(std::string text, std::vector<std::string>* log) : text_(std::move(text)), log_(log) {}
    std::string typeName() const override { return "TextStream"; }
    HostResult getProperty(std::string_view name, Args) override
    {
        if (equalsNoCase(name, "ReadAll"))
            return HostResult::ok(Value::string(text_));
        if (equalsNoCase(name, "Close")) {
            log_->push_back("Close");
            return HostResult::ok();
        }
        return noMember();
    }

private:
    std::string text_;
    std::vector<std::string>* log_;
};

class FakeFileSystem : public HostObject {
public:
    explicit FakeFileSystem(FakeScriptHost& host) : host_(host) {}
    std::string typeName() const override { return "FileSystemObject"; }
    HostResult getProperty(std::string_view name, Args args) override
    {
        if (!equalsNoCase(name, "OpenTextFile"))
            return noMember();
        if (args.empty() || args.size() > 4)
            return HostResult::fail(errc::WrongArguments);
        std::string path = toText(args[0]);
        host_.log.push_back("OpenTextFile " + path + (args.size() > 1 ? "," + toText(args[1]) : ""));
        auto it = host_.files.find(path);
        if (it == host_.files.end())
            return HostResult::fail(53, "Fichier introuvable");
        return HostResult::ok(Value::object(new FakeStream(it->second, &host_.log)));
    }

private:
    FakeScriptHost& host_;
};

class FakeShell : public HostObject {
public:
    explicit FakeShell(std::vector<std::string>* log) : log_(log) {}
    std::string typeName() const override { return "IWshShell3"; }
    HostResult callMethod(std::string_view name, Args args) override
    {
        if (!equalsNoCase(name, "Run"))
            return noMember();
        if (args.empty() || args.size() > 3)
            return HostResult::fail(errc::WrongArguments);
        log_->push_back("Run " + toText(args[0]));
        return HostResult::ok(Value::integer(0));
    }
    HostResult getProperty(std::string_view name, Args args) override { return callMethod(name, args); }

private:
    std::vector<std::string>* log_;
};

class FakePicture : public HostObject {
public:
    explicit FakePicture(std::string path) : path_(std::move(path)) {}
    std::string typeName() const override { return "Picture:" + path_; }

private:
    std::string path_;
};

}  // namespace

int FakeScriptHost::msgBox(const MsgBoxRequest& r)
{
    messages.push_back(r);
    if (msgBoxAnswers.empty())
        return 1;
    int a = msgBoxAnswers.front();
    msgBoxAnswers.pop_front();
    return a;
}

std::optional<std::string> FakeScriptHost::inputBox(const InputBoxRequest& r)
{
    inputs.push_back(r);
    if (inputAnswers.empty())
        return std::nullopt;
    auto a = inputAnswers.front();
    inputAnswers.pop_front();
    return a;
}

HostResult FakeScriptHost::createObject(std::string_view progId)
{
    if (HostObject::equalsNoCase(progId, "WScript.Shell"))
        return HostResult::ok(Value::object(new FakeShell(&log)));
    if (HostObject::equalsNoCase(progId, "Scripting.FileSystemObject"))
        return HostResult::ok(Value::object(new FakeFileSystem(*this)));
    return ScriptHost::createObject(progId);
}

HostResult FakeScriptHost::loadPicture(std::string_view path)
{
    if (path == "absent.bmp")
        return HostResult::fail(errc::InvalidPicture);
    return HostResult::ok(Value::object(new FakePicture(std::string(path))));
}

std::string FakeScriptHost::output() const
{
    std::string out;
    for (std::size_t i = 0; i < messages.size(); ++i)
        out += (i ? "|" : "") + messages[i].prompt;
    return out;
}

Outcome runScript(std::string_view code)
{
    FakeScriptHost host;
    Module module(&host);
    module.setStepBudget(10'000'000);
    std::vector<std::string> log;
    for (const char* name : {"Fenetre", "Ecran", "Bordure", "ImageFond", "Minuteur", "Action", "Bouton1", "Bouton3",
                             "Texte1", "Texte2"}) {
        Ref<FakeObject> o(new FakeObject(name, &log));
        o->anyProperty = true;
        module.addObject(name, o);
    }
    RunResult r = module.addCode(code);
    Outcome out;
    out.output = host.output();
    if (!r.ok()) {
        out.error = r.error->number;
        out.line = r.error->line;
        out.description = r.error->description;
    }
    return out;
}

}  // namespace qor::script::test
