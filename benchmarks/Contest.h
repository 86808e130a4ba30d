#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace Benchmarks
{

/// Registers one contestant of a workload, named "Workload/contestant". Before its time counts, what `work` answers
/// must be, by `plain`, what the others answer.
template <class Work, class Plain, class Expected>
void Register(std::string const& name, std::size_t bytes, Work const& work, Plain const& plain,
              Expected const& expected)
{
    auto const run = [=](benchmark::State& state)
    {
        if (plain(work()) != expected)
            state.SkipWithError("differs from the others");
        for (auto _ : state)
        {
            auto const result = work();
            benchmark::DoNotOptimize(&result);
            benchmark::ClobberMemory();
        }
        state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * static_cast<std::int64_t>(state.iterations()));
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

} // namespace Benchmarks
