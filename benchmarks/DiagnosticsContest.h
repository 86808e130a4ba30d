#pragma once

#include "Contest.h"

#include <cstdint>
#include <filesystem>
#include <string>

/// Measured scopes and logged messages. Files lie in the system's folder for temporary ones and are emptied outside the
/// time.
namespace Benchmarks
{

constexpr int c_roundSize = 10'000; // of what is measured, in one round

/// Rounds of `work`, which does it c_roundSize times.
template <class Work>
void Run(benchmark::State& state, Work const& work)
{
    for (auto _ : state)
        work();
    Report(state, Items{ c_roundSize });
}

/// With `clear` between them outside the time. To stop and start it counts 0.3 us, under Wine 10.
template <class Work, class Clear>
void Run(benchmark::State& state, Work const& work, Clear const& clear)
{
    for (auto _ : state)
    {
        work();
        state.PauseTiming();
        clear();
        state.ResumeTiming();
    }
    Report(state, Items{ c_roundSize });
}

/// A file for one contestant, removed at the end.
class LogFile
{
public:
    explicit LogFile(char const* name) : m_path(std::filesystem::temp_directory_path() / name) { Remove(); }
    LogFile(LogFile const&) = delete;
    LogFile& operator=(LogFile const&) = delete;
    ~LogFile() { Remove(); }

    std::filesystem::path const& GetPath() const { return m_path; }
    void Clear() const { std::filesystem::resize_file(m_path, 0); }

    /// Both write lines of the same length: time, level, text.
    void Check(benchmark::State& state) const
    {
        std::uintmax_t const size = std::filesystem::file_size(m_path);
        if (size != 2 * (24 + 5 + 100 + 1) && size != 2 * (24 + 5 + 100 + 1) + 3) // spdlog writes "warning"
            state.SkipWithError("differs from the other");
    }

private:
    void Remove() const { std::filesystem::remove(m_path); }

    std::filesystem::path m_path;
};

/// At every hundredth message the log is flushed.
template <class Logger, class Message>
void LogToFile(benchmark::State& state, LogFile const& file, Logger& logger, Message const& message)
{
    logger.info(message);
    logger.warn(message);
    file.Check(state);
    auto const work = [&]
    {
        for (int i = 0; i < c_roundSize; ++i)
            i % 100 == 99 ? logger.warn(message) : logger.info(message);
    };
    Run(state, work, [&] { file.Clear(); });
}

} // namespace Benchmarks
