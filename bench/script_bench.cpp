#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <benchmark/benchmark.h>

#include <string>

// Executed script lines a second with the trace off, for the shapes of loop that studies use. The
// head of a loop counts once, its body and its end at every pass.
namespace {
using namespace morvane;

void Nothing(TMACRO *) {}
void Discard(std::string_view, void *) {}

void RunScript(benchmark::State &state, const std::string &text, NAT lines) {
    SETSINK(Discard, nullptr);
    TMACRO engine;
    engine.verbose = false;
    engine.PUTPROCEDURE("nop", Nothing);
    for (int i = 0; i < 1000; ++i) // a table of the program's size
        engine.PUTPROCEDURE(UTF16("scalar.command" + std::to_string(i)), Nothing);
    for (int i = 0; i < 40; ++i) // the options of a start
        engine.PUTCONSTANT(UTF16("option.number" + std::to_string(i)), "0");
    engine.LOADTEXT(text);
    for (auto _ : state)
        engine.SINGLERUN();
    state.counters["lines/s"] =
        benchmark::Counter(static_cast<double>(lines) * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate);
    SETSINK(nullptr, nullptr);
}

void AssignNumber(benchmark::State &state) {
    RunScript(state, "for 1000000\na := 5\nend\n", 2'000'001);
}
void AssignVariable(benchmark::State &state) {
    RunScript(state, "b := 7\nfor 200000\na := b\nend\n", 400'002);
}
void AddNumbers(benchmark::State &state) {
    RunScript(state, "a := 0\nfor 200000\na += a 1\nend\n", 400'002);
}
void CallCommand(benchmark::State &state) {
    RunScript(state, "for 200000\nnop for.count\nend\n", 400'001);
}
void ReplaceAt(benchmark::State &state) {
    RunScript(state, "for 200000\nnop \"pass @for.count\"\nend\n", 400'001);
}
void TestAndSkip(benchmark::State &state) {
    RunScript(state, "for 200000\nif for.rest\nthen\nnop 1\nend\nelse\nnop 2\nend\nend\n",
              1'600'001);
}
void CallProcedure(benchmark::State &state) {
    RunScript(state, "procedure p\na := parameter\nend\nfor 200000\np 1\nend\n", 800'004);
}
void CallFunction(benchmark::State &state) {
    RunScript(state, "function f\nresult := parameter[1]\nend\nfor 200000\na := f 1\nend\n",
              800'004);
    state.counters["calls/s"] = benchmark::Counter(
        200'000.0 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
} // namespace

BENCHMARK(AssignNumber)->Unit(benchmark::kMillisecond);
BENCHMARK(AssignVariable)->Unit(benchmark::kMillisecond);
BENCHMARK(AddNumbers)->Unit(benchmark::kMillisecond);
BENCHMARK(CallCommand)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplaceAt)->Unit(benchmark::kMillisecond);
BENCHMARK(TestAndSkip)->Unit(benchmark::kMillisecond);
BENCHMARK(CallProcedure)->Unit(benchmark::kMillisecond);
BENCHMARK(CallFunction)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
