// Scans, parses and runs arbitrary text with the step budget and small
// memory limits, against host objects that accept anything.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "script/module.h"

using namespace qor::script;

namespace {

class AnyObject : public HostObject {
public:
    std::string typeName() const override { return "AnyObject"; }
    HostResult getProperty(std::string_view name, Args args) override
    {
        if (name.size() > 6)
            return noMember();
        if (!args.empty())
            return HostResult::ok(args[0]);
        return HostResult::ok(stored_);
    }
    HostResult setProperty(std::string_view name, Args, const Value& value) override
    {
        if (name.size() > 6)
            return noMember();
        if (!value.isObject())  // no cycles of objects holding themselves
            stored_ = value;
        return HostResult::ok();
    }
    HostResult item(Args) override { return HostResult::ok(Value::object(this)); }
    HostResult setItem(Args, const Value&) override { return HostResult::ok(); }
    HostResult defaultValue() override { return HostResult::ok(Value::integer(7)); }
    HostResult elements() override
    {
        ArrayRep* a = ArrayRep::make({1}, false);
        Value v = Value::array(a);
        a->items[0] = Value::integer(1);
        a->items[1] = Value::string("deux");
        return HostResult::ok(v);
    }

private:
    Value stored_;
};

class FuzzHost : public ScriptHost {
public:
    int msgBox(const MsgBoxRequest& r) override { return 1 + int(r.prompt.size() % 7); }
    std::optional<std::string> inputBox(const InputBoxRequest& r) override
    {
        if (r.prompt.size() % 3 == 0)
            return std::nullopt;
        return r.defaultText + "12";
    }
    HostResult createObject(std::string_view id) override
    {
        if (id.size() % 2)
            return ScriptHost::createObject(id);
        return HostResult::ok(Value::object(new AnyObject));
    }
    HostResult loadPicture(std::string_view path) override
    {
        if (path.empty())
            return ScriptHost::loadPicture(path);
        return HostResult::ok(Value::object(new AnyObject));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool limited = [] {
        MemoryLimits& m = memoryLimits();
        // Small enough that a loop working on a growing text (quadratic by
        // nature) stays well inside the per-input time limit.
        m.maxStringBytes = 16 << 10;
        m.maxLiveStringBytes = 8 << 20;
        m.maxArrayItems = 4096;
        return true;
    }();
    (void)limited;
    std::string_view text(reinterpret_cast<const char*>(data), size);
    FuzzHost host;
    {
        Module module(&host);
        module.setStepBudget(2000);
        module.addObject("Fenetre", makeRef<AnyObject>());
        module.addObject("Form2", makeRef<AnyObject>(), true);
        RunResult r = module.addCode(text);
        if (r.ok() && module.hasProcedure("f"))
            (void)module.run("f", {Value::integer(1)});
        (void)module.eval(text);
    }
    return 0;
}
