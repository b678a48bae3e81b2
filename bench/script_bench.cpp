// The script engine beside Lua 5.4 on the same loops of one million turns:
// numbers (add and compare), big numbers (the counter added into a sum that
// outgrows 32 bits, with an If on a Double), strings (join two short
// strings, then Len, Mid and InStr of the result) and a Function call of one
// argument. Each loop runs inside a procedure and at the top level of a
// script, where menus keep their variables: there the engine's variables are
// module variables.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

extern "C" {
#include <lauxlib.h>
#include <lua.h>
#include <lualib.h>
}

#include "script/module.h"
#include "script_loops.h"

using namespace qor::script;

namespace {

const char* kLua = R"(
function numloop(n)
    local s = 0
    for i = 1, n do
        s = s + i
        if s > 1000000 then s = s - 1000000 end
    end
    return s
end

function bigloop(n)
    local s, d = 0, 0.5
    for i = 1, n do
        s = s + i
        if d < s then d = d + 1.5 end
    end
    return s
end

function strloop(n)
    local a, b, t = "menu", "QOR", 0
    for i = 1, n do
        local s = a .. b
        t = t + #s + #string.sub(s, 2, 4) + string.find(s, "QOR", 1, true)
    end
    return t
end

local function inc(x)
    return x + 1
end

function callloop(n)
    local s = 0
    for i = 1, n do
        s = inc(s)
    end
    return s
end
)";

// The top-level loops in Lua, with the local variables a Lua programmer
// writes: the yardstick is Lua at its fastest, not Lua's globals.
const char* kLuaTop[] = {
    R"(
local s = 0
for i = 1, 1000000 do
    s = s + i
    if s > 1000000 then s = s - 1000000 end
end
return s
)",
    R"(
local s, d = 0, 0.5
for i = 1, 1000000 do
    s = s + i
    if d < s then d = d + 1.5 end
end
return s
)",
    R"(
local a, b, t = "menu", "QOR", 0
for i = 1, 1000000 do
    local s = a .. b
    t = t + #s + #string.sub(s, 2, 4) + string.find(s, "QOR", 1, true)
end
return t
)",
    R"(
local function inc(x)
    return x + 1
end
local s = 0
for i = 1, 1000000 do
    s = inc(s)
end
return s
)",
};

// Both engines must agree on every result, or the timing means nothing.
using qor::bench::kNumResult;
using qor::bench::kBigResult;
using qor::bench::kStrResult;
using qor::bench::kCallResult;
using qor::bench::kTurns;
using qor::bench::kVbs;

double number(const Value& v) { return v.isInteger() ? v.asInt() : v.asDouble(); }

void runVbs(benchmark::State& state, const char* proc, double expected)
{
    Module module;
    RunResult loaded = module.addCode(kVbs);
    if (!loaded.ok()) {
        state.SkipWithError(loaded.error->description.c_str());
        return;
    }
    for (auto _ : state) {
        RunResult r = module.run(proc, {Value::longValue(kTurns)});
        if (!r.ok()) {
            state.SkipWithError(r.error->description.c_str());
            return;
        }
        double v = number(r.value);
        if (v != expected) {
            state.SkipWithError("wrong result");
            return;
        }
        benchmark::DoNotOptimize(v);
    }
}

void runLua(benchmark::State& state, const char* fn, double expected)
{
    lua_State* L = luaL_newstate();
    luaL_openlibs(L);
    if (luaL_dostring(L, kLua) != 0) {
        state.SkipWithError(lua_tostring(L, -1));
        lua_close(L);
        return;
    }
    for (auto _ : state) {
        lua_getglobal(L, fn);
        lua_pushinteger(L, kTurns);
        if (lua_pcall(L, 1, 1, 0) != 0) {
            state.SkipWithError(lua_tostring(L, -1));
            break;
        }
        double v = lua_tonumber(L, -1);
        lua_pop(L, 1);
        if (v != expected) {
            state.SkipWithError("wrong result");
            break;
        }
        benchmark::DoNotOptimize(v);
    }
    lua_close(L);
}

// A top-level loop run again from its compiled form, as a player runs a
// timer script: the compilation is not measured.
void runVbsTop(benchmark::State& state, int loop)
{
    const auto& top = qor::bench::kTopLoops[loop];
    Module module;
    for (auto _ : state) {
        RunResult r = module.runCode(top.code);
        RunResult v = r.ok() ? module.eval(top.result) : r;
        if (!v.ok()) {
            state.SkipWithError(v.error->description.c_str());
            return;
        }
        if (number(v.value) != qor::bench::kTopResults[loop]) {
            state.SkipWithError("wrong result");
            return;
        }
    }
}

void runLuaTop(benchmark::State& state, int loop)
{
    lua_State* L = luaL_newstate();
    luaL_openlibs(L);
    if (luaL_loadstring(L, kLuaTop[loop]) != 0) {
        state.SkipWithError(lua_tostring(L, -1));
        lua_close(L);
        return;
    }
    for (auto _ : state) {
        lua_pushvalue(L, -1);
        if (lua_pcall(L, 0, 1, 0) != 0) {
            state.SkipWithError(lua_tostring(L, -1));
            break;
        }
        double v = lua_tonumber(L, -1);
        lua_pop(L, 1);
        if (v != qor::bench::kTopResults[loop]) {
            state.SkipWithError("wrong result");
            break;
        }
    }
    lua_close(L);
}

void BM_Numeric_Vbs(benchmark::State& s) { runVbs(s, "NumLoop", kNumResult); }
void BM_Numeric_Lua(benchmark::State& s) { runLua(s, "numloop", kNumResult); }
void BM_BigNumeric_Vbs(benchmark::State& s) { runVbs(s, "BigLoop", kBigResult); }
void BM_BigNumeric_Lua(benchmark::State& s) { runLua(s, "bigloop", kBigResult); }
void BM_String_Vbs(benchmark::State& s) { runVbs(s, "StrLoop", kStrResult); }
void BM_String_Lua(benchmark::State& s) { runLua(s, "strloop", kStrResult); }
void BM_Call_Vbs(benchmark::State& s) { runVbs(s, "CallLoop", kCallResult); }
void BM_Call_Lua(benchmark::State& s) { runLua(s, "callloop", kCallResult); }
void BM_TopNumeric_Vbs(benchmark::State& s) { runVbsTop(s, 0); }
void BM_TopNumeric_Lua(benchmark::State& s) { runLuaTop(s, 0); }
void BM_TopBigNumeric_Vbs(benchmark::State& s) { runVbsTop(s, 1); }
void BM_TopBigNumeric_Lua(benchmark::State& s) { runLuaTop(s, 1); }
void BM_TopString_Vbs(benchmark::State& s) { runVbsTop(s, 2); }
void BM_TopString_Lua(benchmark::State& s) { runLuaTop(s, 2); }
void BM_TopCall_Vbs(benchmark::State& s) { runVbsTop(s, 3); }
void BM_TopCall_Lua(benchmark::State& s) { runLuaTop(s, 3); }

}  // namespace

// Compare the CPU column: other programs of a shared machine weigh less on
// it. --benchmark_repetitions=5 gives medians.
#define QOR_SCRIPT_BENCH(fn) BENCHMARK(fn)->Unit(benchmark::kMillisecond)
QOR_SCRIPT_BENCH(BM_Numeric_Vbs);
QOR_SCRIPT_BENCH(BM_Numeric_Lua);
QOR_SCRIPT_BENCH(BM_BigNumeric_Vbs);
QOR_SCRIPT_BENCH(BM_BigNumeric_Lua);
QOR_SCRIPT_BENCH(BM_String_Vbs);
QOR_SCRIPT_BENCH(BM_String_Lua);
QOR_SCRIPT_BENCH(BM_Call_Vbs);
QOR_SCRIPT_BENCH(BM_Call_Lua);
QOR_SCRIPT_BENCH(BM_TopNumeric_Vbs);
QOR_SCRIPT_BENCH(BM_TopNumeric_Lua);
QOR_SCRIPT_BENCH(BM_TopBigNumeric_Vbs);
QOR_SCRIPT_BENCH(BM_TopBigNumeric_Lua);
QOR_SCRIPT_BENCH(BM_TopString_Vbs);
QOR_SCRIPT_BENCH(BM_TopString_Lua);
QOR_SCRIPT_BENCH(BM_TopCall_Vbs);
QOR_SCRIPT_BENCH(BM_TopCall_Lua);

BENCHMARK_MAIN();
