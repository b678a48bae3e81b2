#include "script/module.h"

#include <new>
#include <stdexcept>

#include "script/compiler.h"
#include "script/parser.h"
#include "script/runtime.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

// Runs a compiled body in a fresh top-level frame.
class TopFrame {
public:
    TopFrame(Runtime& rt, int locals) : rt_(rt), base_(rt.pushFrame(locals)) {}
    ~TopFrame() { rt_.popFrame(base_); }
    Frame frame() { return Frame{&rt_, base_, false}; }

private:
    Runtime& rt_;
    Value* base_;
};

template <class F>
RunResult guarded(Runtime& rt, F&& f)
{
    RunResult result;
    try {
        RunScope scope(rt);
        rt.line = 0;
        result.value = f();
    } catch (ScriptError& e) {
        if (e.line == 0)
            e.line = rt.line;
        result.error = std::move(e);
    } catch (const std::bad_alloc&) {
        result.error = makeScriptError(errc::OutOfMemory);
        result.error->line = rt.line;
    } catch (const std::length_error&) {
        result.error = makeScriptError(errc::OutOfMemory);
        result.error->line = rt.line;
    }
    return result;
}

}  // namespace

Module::Module(ScriptHost* host) : host_(host), rt_(std::make_unique<Runtime>(host))
{
    maxStackBytes_ = rt_->maxStackBytes;
}

Module::~Module() = default;

void Module::addObject(std::string_view name, Ref<HostObject> object, bool exposeMembers)
{
    Global& g = rt_->globalSlot(std::string(name));
    g.kind = Global::HostObj;
    g.value = Value::object(object.get());
    g.proc.reset();
    if (exposeMembers)
        rt_->exposed.push_back(object);
}

RunResult Module::finish(RunResult r)
{
    if (r.error)
        lastError_ = r.error;
    return r;
}

// The text's names join the module: procedures, constants, variables.
void Module::install(const Chunk& chunk)
{
    for (const auto& proc : chunk.procedures) {
        Global& g = rt_->globalSlot(proc->name);
        g.kind = Global::Proc;
        g.proc = proc;
        g.value = Value();
    }
    for (auto& [g, v] : chunk.constants) {
        g->kind = Global::Constant;
        g->value = v;
        g->proc.reset();
    }
    for (Global* g : chunk.variables)
        if (g->kind == Global::Undefined)
            g->kind = Global::Variable;
    if (chunk.optionExplicit)
        rt_->optionExplicit = true;
}

RunResult Module::runTop(const Chunk& chunk)
{
    install(chunk);
    return finish(guarded(*rt_, [&]() {
        TopFrame top(*rt_, chunk.topLocals);
        Frame f = top.frame();
        chunk.body->exec(f);
        return Value();
    }));
}

RunResult Module::addCode(std::string_view text)
{
    Chunk* chunk = nullptr;
    try {
        Parser parser(text);
        Program program = parser.parseProgram();
        Compiler compiler(*rt_);
        auto compiled = compiler.compile(program);
        chunk = compiled.get();
        chunks_.push_back(std::move(compiled));
    } catch (ScriptError& e) {
        return finish(RunResult{Value(), std::move(e)});
    } catch (const std::bad_alloc&) {
        return finish(RunResult{Value(), makeScriptError(errc::OutOfMemory)});
    }
    return runTop(*chunk);
}

RunResult Module::runCode(std::string_view text)
{
    auto it = compiled_.find(text);
    if (it != compiled_.end())
        return runTop(*it->second);
    const std::size_t before = chunks_.size();
    RunResult r = addCode(text);
    // Only a text that compiled is kept: a syntax error is found again.
    if (chunks_.size() > before)
        compiled_.emplace(std::string(text), chunks_.back().get());
    return r;
}

RunResult Module::run(std::string_view procedure, std::vector<Value> args)
{
    Global* g = rt_->findGlobal(lowerAscii(procedure));
    if (!g || g->kind != Global::Proc)
        return finish(RunResult{Value(), makeScriptError(errc::UndefinedProcedure, procedure)});
    auto proc = g->proc;
    return finish(guarded(*rt_, [&]() { return rt_->callProcedureWithValues(*proc, args); }));
}

RunResult Module::eval(std::string_view expression)
{
    ExprPtr e;
    int locals = 0;
    try {
        Parser parser(expression);
        SyntaxPtr syntax = parser.parseExpressionText();
        Compiler compiler(*rt_);
        e = compiler.compileExpression(*syntax, locals);
    } catch (ScriptError& err) {
        return finish(RunResult{Value(), std::move(err)});
    }
    return finish(guarded(*rt_, [&]() {
        TopFrame top(*rt_, locals);
        Frame f = top.frame();
        rt_->line = 1;
        Value v = e->eval(f);
        return isMissing(v) ? Value() : v;
    }));
}

bool Module::hasProcedure(std::string_view name) const
{
    Global* g = rt_->findGlobal(lowerAscii(name));
    return g && g->kind == Global::Proc;
}

void Module::reset()
{
    compiled_.clear();
    chunks_.clear();
    rt_ = std::make_unique<Runtime>(host_);
    rt_->setStepBudget(stepBudget_);
    rt_->maxStackBytes = maxStackBytes_;
}

void Module::setStepBudget(std::uint64_t steps)
{
    stepBudget_ = steps;
    rt_->setStepBudget(steps);
}

void Module::requestStop() { rt_->requestStop(); }

void Module::setMaxStackBytes(std::size_t bytes)
{
    maxStackBytes_ = bytes;
    rt_->maxStackBytes = bytes;
}

}  // namespace qor::script
