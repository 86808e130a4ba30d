// A measured scope beside two bare readings of the clock; messages to three sinks that drop them; the file sink.

#include "DiagnosticsContest.h"

#include <Utilities/FileLogger.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/TimeMeasure.h>
#include <Utilities/TimeMeasureContainer.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;

std::wstring const c_message(100, L'x');

void MeasureScopesWithOurs(benchmark::State& state)
{
    auto const work = []
    {
        for (int i = 0; i < c_roundSize; ++i)
            TimeMeasure const measure("Load the document");
    };
    Run(state, work);
    if (TimeMeasure("Load the document").GetMeasureInfo().GetMeasuresCount() < c_roundSize)
        state.SkipWithError("has not measured");
}

void MeasureScopesBare(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    auto const work = []
    {
        for (int i = 0; i < c_roundSize; ++i)
        {
            auto const start = Clock::now();
            benchmark::DoNotOptimize(Clock::now() - start);
        }
    };
    Run(state, work);
}

class EmptySink : public Logger
{
public:
    void Log(Level level, std::wstring const& message) override
    {
        benchmark::DoNotOptimize(&message + (level != Level::Info));
    }
};

void LogToThreeWithOurs(benchmark::State& state)
{
    MultiLogger loggers;
    for (int i = 0; i < 3; ++i)
        loggers.Add(std::make_unique<EmptySink>());
    auto const work = [&]
    {
        for (int i = 0; i < c_roundSize; ++i)
            loggers.Info(c_message);
    };
    Run(state, work);
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

BENCHMARK(MeasureScopesWithOurs)->Name("MeasuredScope/ours");
BENCHMARK(MeasureScopesBare)->Name("MeasuredScope/two_clock_readings");
BENCHMARK(LogToThreeWithOurs)->Name("LogToThreeSinks/ours");
BENCHMARK(LogToFileWithOurs)->Name("LogToFile/ours");

} // namespace

} // namespace Benchmarks
