// Under callgrind the rounds of a benchmark are counted, and nothing else of the program: the linker leads the four
// calls between which Google Benchmark takes the time through here (CMakeLists.txt). Elsewhere this does nothing.
//
// The first runs only warm up: what is made on first use is there afterwards, and memory has been taken from the
// system. `run.sh --instructions` asks for one row in a process and for three runs of one round each.

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

namespace
{

constexpr int c_warmUps = 1;
int s_runs = 0;

bool IsCounted()
{
    return RUNNING_ON_VALGRIND != 0 && s_runs > c_warmUps;
}

[[maybe_unused]] bool const c_isRegistered = []
{
    auto const doNothing = [](benchmark::State& state)
    {
        for (auto _ : state)
            benchmark::ClobberMemory();
    };
    return RUNNING_ON_VALGRIND != 0 && benchmark::RegisterBenchmark("EmptyRound", doNothing) != nullptr;
}();

} // namespace

extern "C"
{

    // The names of State::StartKeepRunning, FinishKeepRunning, PauseTiming and ResumeTiming.
    void __real__ZN9benchmark5State16StartKeepRunningEv(benchmark::State*);
    void __real__ZN9benchmark5State17FinishKeepRunningEv(benchmark::State*);
    void __real__ZN9benchmark5State11PauseTimingEv(benchmark::State*);
    void __real__ZN9benchmark5State12ResumeTimingEv(benchmark::State*);

    void __wrap__ZN9benchmark5State16StartKeepRunningEv(benchmark::State* state)
    {
        ++s_runs;
        __real__ZN9benchmark5State16StartKeepRunningEv(state);
        if (IsCounted())
            CALLGRIND_START_INSTRUMENTATION;
    }

    void __wrap__ZN9benchmark5State17FinishKeepRunningEv(benchmark::State* state)
    {
        if (IsCounted())
            CALLGRIND_STOP_INSTRUMENTATION;
        __real__ZN9benchmark5State17FinishKeepRunningEv(state);
    }

    void __wrap__ZN9benchmark5State11PauseTimingEv(benchmark::State* state)
    {
        if (IsCounted())
            CALLGRIND_TOGGLE_COLLECT;
        __real__ZN9benchmark5State11PauseTimingEv(state);
    }

    void __wrap__ZN9benchmark5State12ResumeTimingEv(benchmark::State* state)
    {
        __real__ZN9benchmark5State12ResumeTimingEv(state);
        if (IsCounted())
            CALLGRIND_TOGGLE_COLLECT;
    }
}
