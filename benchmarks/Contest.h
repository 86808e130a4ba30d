#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Benchmarks
{

/// Whether the contestants of a workload answer alike: what the first one that ran has answered counts.
template <class Answer>
bool IsAnswerOfAll(std::string const& workload, Answer const& answer)
{
    static std::map<std::string, Answer> s_answers;
    return s_answers.try_emplace(workload, answer).first->second == answer;
}

/// "Workload" of "Workload/contestant".
inline std::string GetWorkload(std::string const& name)
{
    return name.substr(0, name.rfind('/'));
}

/// What one round handles, where it is not bytes.
struct Items
{
    std::size_t count;
};

inline void Report(benchmark::State& state, std::size_t bytes)
{
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
}

inline void Report(benchmark::State& state, Items items)
{
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(items.count));
}

/// Registers one contestant of a workload, named "Workload/contestant", that handles `amount` bytes or Items a round.
/// Before its time counts, what `work` answers must be, by `plain`, what the others answer.
template <class Amount, class Work, class Plain>
void Register(std::string const& name, Amount amount, Work const& work, Plain const& plain)
{
    auto const run = [=](benchmark::State& state)
    {
        if (!IsAnswerOfAll(GetWorkload(name), plain(work())))
            state.SkipWithError("differs from the others");
        for (auto _ : state)
        {
            auto const result = work();
            benchmark::DoNotOptimize(&result);
            benchmark::ClobberMemory();
        }
        Report(state, amount);
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

/// For work whose answer is comparable as it is.
template <class Amount, class Work>
void Register(std::string const& name, Amount amount, Work const& work)
{
    Register(name, amount, work, [](auto const& answer) { return answer; });
}

/// The same for many operands, which `make` makes when the benchmark runs, each with an answer of its own. The answers
/// to some of them are compared.
template <class Make, class Operation, class Plain>
void RegisterForEach(std::string const& name, Make const& make, Operation const& operation, Plain const& plain)
{
    auto const run = [=](benchmark::State& state)
    {
        auto const operands = make();
        std::vector<decltype(plain(operation(operands[0])))> answers;
        for (std::size_t i = 0; i < operands.size(); i += 17)
            answers.push_back(plain(operation(operands[i])));
        if (!IsAnswerOfAll(GetWorkload(name), answers))
            state.SkipWithError("differs from the others");
        for (auto _ : state)
            for (auto const& operand : operands)
                benchmark::DoNotOptimize(operation(operand));
        Report(state, Items{ operands.size() });
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

} // namespace Benchmarks
