// A measured scope beside two bare readings of the clock and a profiler; messages to three sinks that drop them; the
// file sink beside spdlog's. Files lie in the system's folder for temporary ones and are emptied outside the time.

#include <Utilities/FileLogger.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/TimeMeasure.h>
#include <Utilities/TimeMeasureContainer.h>

#include <benchmark/benchmark.h>
#include <microprofile.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;

constexpr int c_count = 1000; // of what is measured, in one round

/// Rounds of `work`, which does it c_count times, with `clear` between them outside the time.
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
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * c_count);
}

void Nothing()
{
}

void MeasureScopesWithOurs(benchmark::State& state)
{
    auto const work = []
    {
        for (int i = 0; i < c_count; ++i)
            TimeMeasure const measure("Load the document");
    };
    Run(state, work, Nothing);
    if (TimeMeasure("Load the document").GetMeasureInfo().GetMeasuresCount() < c_count)
        state.SkipWithError("has not measured");
}

void MeasureScopesBare(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    auto const work = []
    {
        for (int i = 0; i < c_count; ++i)
        {
            auto const start = Clock::now();
            benchmark::DoNotOptimize(Clock::now() - start);
        }
    };
    Run(state, work, Nothing);
}

void MeasureScopesWithMicroprofile(benchmark::State& state)
{
    [[maybe_unused]] static bool const s_isPrepared = []
    {
        MicroProfileOnThreadCreate("benchmark");
        MicroProfileSetEnableAllGroups(1);
        MicroProfileFlip(nullptr);
        return true;
    }();
    auto const work = []
    {
        for (int i = 0; i < c_count; ++i)
        {
            MICROPROFILE_SCOPEI("benchmark", "Load the document", 0xFF0000);
        }
    };
    Run(state, work, [] { MicroProfileFlip(nullptr); });
}

class EmptySink : public Logger
{
public:
    void Log(Level level, std::wstring const& message) override
    {
        benchmark::DoNotOptimize(&message + (level != Level::Info));
    }
};

std::wstring const c_message(100, L'x');
std::string const c_narrowMessage(100, 'x');

void LogToThreeWithOurs(benchmark::State& state)
{
    MultiLogger loggers;
    for (int i = 0; i < 3; ++i)
        loggers.Add(std::make_unique<EmptySink>());
    auto const work = [&]
    {
        for (int i = 0; i < c_count; ++i)
            loggers.Info(c_message);
    };
    Run(state, work, Nothing);
}

void LogToThreeWithSpdlog(benchmark::State& state)
{
    auto const makeSink = [] { return std::make_shared<spdlog::sinks::null_sink_st>(); };
    spdlog::logger logger("three", { makeSink(), makeSink(), makeSink() });
    auto const work = [&]
    {
        for (int i = 0; i < c_count; ++i)
            logger.info(c_narrowMessage);
    };
    Run(state, work, Nothing);
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
        for (int i = 0; i < c_count; ++i)
            i % 100 == 99 ? logger.warn(message) : logger.info(message);
    };
    Run(state, work, [&] { file.Clear(); });
}

/// The interface that LogToFile asks for.
class OurLogger
{
public:
    explicit OurLogger(std::filesystem::path const& path) : m_logger(path.wstring()) {}
    void info(std::wstring const& message) { m_logger.Info(message); }
    void warn(std::wstring const& message) { m_logger.Warn(message); }

private:
    FileLogger m_logger;
};

void LogToFileWithOurs(benchmark::State& state)
{
    LogFile const file("ours.log");
    OurLogger logger(file.GetPath());
    LogToFile(state, file, logger, c_message);
}

void LogToFileWithSpdlog(benchmark::State& state)
{
    LogFile const file("spdlog.log");
    spdlog::logger logger("file", std::make_shared<spdlog::sinks::basic_file_sink_st>(file.GetPath().string()));
    logger.set_pattern("%Y-%m-%d %H:%M:%S.%e %^%l%$ %v");
    logger.flush_on(spdlog::level::warn);
    LogToFile(state, file, logger, c_narrowMessage);
}

BENCHMARK(MeasureScopesWithOurs)->Name("MeasuredScope/ours");
BENCHMARK(MeasureScopesBare)->Name("MeasuredScope/two_clock_readings");
BENCHMARK(MeasureScopesWithMicroprofile)->Name("MeasuredScope/microprofile");
BENCHMARK(LogToThreeWithOurs)->Name("LogToThreeSinks/ours");
BENCHMARK(LogToThreeWithSpdlog)->Name("LogToThreeSinks/spdlog");
BENCHMARK(LogToFileWithOurs)->Name("LogToFile/ours");
BENCHMARK(LogToFileWithSpdlog)->Name("LogToFile/spdlog");

} // namespace

} // namespace Benchmarks
