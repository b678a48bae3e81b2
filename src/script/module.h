#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "script/host.h"
#include "script/script_error.h"
#include "script/value.h"

namespace qor::script {

class Runtime;
struct Chunk;

// What a run gives back: the value (of an expression or a Function) or the
// error that stopped it.
struct RunResult {
    Value value;
    std::optional<ScriptError> error;
    bool ok() const { return !error.has_value(); }
};

// A script module, like the script control's: objects added by the host,
// texts added as code (their procedures stay defined, their top-level
// statements run at once), procedures run by name, expressions evaluated.
// Every later text sees the procedures, constants and variables of the
// earlier ones, as a menu's button scripts see its global script.
//
// A text is compiled whole before it runs: a syntax error anywhere leaves
// the module as it was. A run-time error stops at its line; what ran
// before it has taken effect.
class Module {
public:
    explicit Module(ScriptHost* host = nullptr);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    // Names an object for the scripts. With its members exposed, the
    // object's properties and children (a window's controls) can also be
    // named directly: "Command1.Caption = ..." as well as "Form2.Command1...".
    void addObject(std::string_view name, Ref<HostObject> object, bool exposeMembers = false);

    RunResult addCode(std::string_view text);
    // Like addCode, but a text that compiled before is not parsed and
    // compiled again: its compiled form runs once more. A script run at every
    // timer tick or pointer entry costs one compilation, and the module does
    // not grow with each run.
    RunResult runCode(std::string_view text);
    // Runs a statement (or several) in the module, like addCode.
    RunResult executeStatement(std::string_view text) { return addCode(text); }
    // Calls a Sub or Function of the module with argument values.
    RunResult run(std::string_view procedure, std::vector<Value> args = {});
    RunResult eval(std::string_view expression);
    bool hasProcedure(std::string_view name) const;

    // Forgets every text, variable and object (the step budget stays).
    void reset();

    // At most this many loop turns and procedure calls per run (addCode,
    // run or eval); 0 for no limit. Beyond it the run fails with error 18.
    void setStepBudget(std::uint64_t steps);
    // Ends the running script at its next loop turn or call, with error 18.
    // Safe to call from another thread.
    void requestStop();
    // How much of the thread's stack nested procedure calls may use.
    void setMaxStackBytes(std::size_t bytes);

    // The last error of any run (the script control's Error object).
    const std::optional<ScriptError>& lastError() const { return lastError_; }

private:
    RunResult finish(RunResult r);
    void install(const Chunk& chunk);
    RunResult runTop(const Chunk& chunk);

    ScriptHost* host_;
    std::unique_ptr<Runtime> rt_;
    std::vector<std::unique_ptr<Chunk>> chunks_;
    std::map<std::string, const Chunk*, std::less<>> compiled_;
    std::optional<ScriptError> lastError_;
    std::uint64_t stepBudget_ = 0;
    std::size_t maxStackBytes_;
};

}  // namespace qor::script
