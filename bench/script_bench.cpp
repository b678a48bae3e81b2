// The script engine beside Lua 5.4 on the same loops of one million turns:
// numbers (add and compare), big numbers (the counter added into a sum that
// outgrows 32 bits, with an If on a Double), strings (join two short
// strings, then Len, Mid and InStr of the result) and a Function call of one
// argument.
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

// Both engines must agree on every result, or the timing means nothing.
using qor::bench::kNumResult;
using qor::bench::kBigResult;
using qor::bench::kStrResult;
using qor::bench::kCallResult;
using qor::bench::kTurns;
using qor::bench::kVbs;

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
        double v = r.value.isInteger() ? r.value.asInt() : r.value.asDouble();
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

void BM_Numeric_Vbs(benchmark::State& s) { runVbs(s, "NumLoop", kNumResult); }
void BM_Numeric_Lua(benchmark::State& s) { runLua(s, "numloop", kNumResult); }
void BM_BigNumeric_Vbs(benchmark::State& s) { runVbs(s, "BigLoop", kBigResult); }
void BM_BigNumeric_Lua(benchmark::State& s) { runLua(s, "bigloop", kBigResult); }
void BM_String_Vbs(benchmark::State& s) { runVbs(s, "StrLoop", kStrResult); }
void BM_String_Lua(benchmark::State& s) { runLua(s, "strloop", kStrResult); }
void BM_Call_Vbs(benchmark::State& s) { runVbs(s, "CallLoop", kCallResult); }
void BM_Call_Lua(benchmark::State& s) { runLua(s, "callloop", kCallResult); }

}  // namespace

BENCHMARK(BM_Numeric_Vbs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Numeric_Lua)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BigNumeric_Vbs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BigNumeric_Lua)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_String_Vbs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_String_Lua)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Call_Vbs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Call_Lua)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
