// The engine's benchmark loops with a plain clock, so that the same source
// runs natively and, cross-compiled, under wine: the two figures side by side
// say whether the Windows player's scripts run as fast as the Linux ones.
// Each loop runs inside a Function and at a script's top level.
//   script_loops [RUNS]    prints "<loop> <best ms>" per loop; exit 1 on a wrong result
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "script/module.h"
#include "script_loops.h"

namespace {

using namespace qor::script;
using namespace qor::bench;

struct Loop {
    const char* name;
    double expected;
};

const Loop kLoops[] = {
    {"NumLoop", kNumResult},
    {"BigLoop", kBigResult},
    {"StrLoop", kStrResult},
    {"CallLoop", kCallResult},
};

// The best of several runs in milliseconds; a negative value on a wrong result.
double bestRun(Module& module, const Loop& loop, int runs)
{
    double best = 1e300;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        RunResult r = module.run(loop.name, {Value::longValue(kTurns)});
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        if (!r.ok())
            return -1;
        const double v = r.value.isInteger() ? r.value.asInt() : r.value.asDouble();
        if (v != loop.expected)
            return -1;
        if (took.count() < best)
            best = took.count();
    }
    return best;
}

// The same for a top-level loop, run again from its compiled form.
double bestTopRun(const TopLoop& loop, double expected, int runs)
{
    Module module;
    double best = 1e300;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        RunResult r = module.runCode(loop.code);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        RunResult v = r.ok() ? module.eval(loop.result) : r;
        if (!v.ok())
            return -1;
        if ((v.value.isInteger() ? v.value.asInt() : v.value.asDouble()) != expected)
            return -1;
        if (took.count() < best)
            best = took.count();
    }
    return best;
}

}  // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 5;
    Module module;
    if (!module.addCode(kVbs).ok()) {
        std::fprintf(stderr, "the loops do not compile\n");
        return 1;
    }
    for (const Loop& loop : kLoops) {
        const double ms = bestRun(module, loop, runs < 1 ? 1 : runs);
        if (ms < 0) {
            std::fprintf(stderr, "%s: wrong result\n", loop.name);
            return 1;
        }
        std::printf("%s %.2f\n", loop.name, ms);
    }
    for (std::size_t i = 0; i < std::size(kTopLoops); ++i) {
        const double ms = bestTopRun(kTopLoops[i], kTopResults[i], runs < 1 ? 1 : runs);
        if (ms < 0) {
            std::fprintf(stderr, "%s: wrong result\n", kTopLoops[i].name);
            return 1;
        }
        std::printf("%s %.2f\n", kTopLoops[i].name, ms);
    }
    return 0;
}
