#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "script/code.h"
#include "script/host.h"
#include "script/script_error.h"
#include "script/value.h"

namespace qor::script {

// A module-level name: a variable, a constant, a procedure or an object the
// host added. Undefined names are resolved when the script runs (members
// of exposed objects, or a variable created by its first assignment).
struct Global {
    // The kinds from Variable on hold their value in `value`, so that one
    // comparison tells whether reading the name can run code.
    enum Kind : std::uint8_t { Undefined, Proc, Variable, Constant, HostObj };
    std::string name;
    Value value;
    Kind kind = Undefined;
    std::shared_ptr<Procedure> proc;
    bool holdsValue() const { return kind >= Variable; }
};

class ErrObject;

// Everything a running script shares: the module's names, the value stack
// of procedure frames, the Err object, the host, and the safety limits.
class Runtime {
public:
    explicit Runtime(ScriptHost* host);
    ~Runtime();

    ScriptHost* host() const { return host_; }

    // Names of the module (lower-case keys).
    Global* findGlobal(const std::string& lowerName);
    Global& globalSlot(const std::string& name);  // finds or creates an Undefined one
    std::vector<Ref<HostObject>> exposed;  // objects added with their members exposed
    bool optionExplicit = false;

    // Dynamic parts of name resolution.
    Value readGlobal(Global& g, Frame& f);
    void writeGlobal(Global& g, Value v, bool isSet);
    Value callGlobal(Global& g, const ExprList& args, Frame& f, bool asStatement);
    Value callProcedure(const Procedure& p, const ExprList& args, Frame& caller);
    Value callProcedureWithValues(const Procedure& p, std::span<Value> args);

    // Objects and arrays.
    Value getMember(const Value& object, const std::string& name, std::span<Value> args, bool asStatement,
                    const std::string& objectName);
    void setMember(const Value& object, const std::string& name, std::span<Value> args, const Value& v,
                   const std::string& objectName);
    Value index(const Value& target, std::span<Value> args, const std::string& name);
    void storeIndexed(Value& variable, std::span<Value> args, const Value& v, const std::string& name);
    std::size_t elementOffset(const ArrayRep& a, std::span<Value> args, const std::string& name);

    // The value an assignment without Set stores: objects give their default value.
    static Value letValue(Value v);
    static Value setValue(Value v);

    // The Err object.
    ErrObject& err() { return *err_; }
    void recordError(const ScriptError& e);

    // Safety: steps, stop requests and stack depth.
    void tick()
    {
        if (--ticks_ <= 0)
            slowTick();
    }
    void slowTick();
    void setStepBudget(std::uint64_t steps);
    void requestStop() { stop_.store(true, std::memory_order_relaxed); }
    void beginRun();  // refills the budget and clears a pending stop; notes the stack base
    void checkStack();
    std::size_t maxStackBytes = std::size_t(2) << 20;

    int line = 0;  // line of the statement running, for error reports

    // Value stack for procedure frames; never reallocated, so references
    // into it stay valid.
    Value* pushFrame(int count);
    void popFrame(Value* base);

    // Rnd's generator state.
    std::uint32_t rndSeed = 0x50000;
    double lastRnd = 0;

private:
    Value runBody(const Procedure& p, Value* base);

    ScriptHost* host_;
    std::deque<Global> globals_;
    std::unordered_map<std::string, Global*> globalIndex_;
    Ref<ErrObject> err_;
    // Raw storage: slots are constructed when a frame is pushed, so a new
    // module costs no more than the frames it uses.
    std::unique_ptr<Value, void (*)(Value*)> stack_;
    Value* sp_;
    Value* stackEnd_;
    std::int64_t ticks_ = 1 << 20;
    std::uint64_t budget_ = 0;      // 0: no limit
    std::uint64_t remaining_ = 0;
    std::atomic<bool> stop_{false};
    const char* stackBase_ = nullptr;
    int runDepth_ = 0;
    friend class RunScope;
};

// Marks the outermost run for the stack probe; nested runs (a host
// callback running more script) keep the outer base.
class RunScope {
public:
    explicit RunScope(Runtime& rt);
    ~RunScope();

private:
    Runtime& rt_;
};

// The engine's Err object.
class ErrObject : public HostObject {
public:
    int number = 0;
    std::string description;
    std::string source;

    std::string typeName() const override { return "ErrObject"; }
    HostResult getProperty(std::string_view name, Args args) override;
    HostResult setProperty(std::string_view name, Args args, const Value& value) override;
    HostResult callMethod(std::string_view name, Args args) override;
    HostResult defaultValue() override { return HostResult::ok(Value::longValue(number)); }
    void clear();
};

inline constexpr const char* kRuntimeSource = "Erreur d'exécution VBScript";

}  // namespace qor::script
